#include "ui/ConsoleFrame.h"

#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

#include "platform/DiskFiles.h"
#include "text/Fault.h"
#include "ui/ConsoleView.h"
#include "ui/ControlPanel.h"
#include "ui/Dialogs.h"
#include "ui/InputLine.h"
#include "ui/MenuItems.h"
#include "ui/Options.h"
#include "ui/ShownText.h"

ConsoleFrame::ConsoleFrame(Options& options, Dialogs& dialogs, QWidget* parent)
    : QGroupBox("Console", parent), options_(options), dialogs_(dialogs) {
    setObjectName("fmeBot");
    auto* const layout = new QVBoxLayout(this);

    lstView_ = new ConsoleView;
    lstView_->setObjectName("lstView");
    lstView_->setAccessibleName(tr("Console"));
    lstView_->setAccessibleDescription(tr("What the game says, line by line; the chosen line can be read below"));
    lstView_->SetMonospaced(options_.Get(option::kMonospaced));
    lstView_->Lines().SetTimestamps(options_.Get(option::kTimestamps));
    lstView_->Lines().SetScrollBack(options_.Get(option::kScrollBack));
    layout->addWidget(lstView_, 1);

    txtView_ = new QLineEdit;
    txtView_->setObjectName("txtView");
    txtView_->setReadOnly(true);
    txtView_->setAccessibleName(tr("Chosen line"));
    txtView_->setAccessibleDescription(tr("The console line that is chosen, whole, for reading and copying"));
    layout->addWidget(txtView_);
    connect(lstView_->selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& line) {
        txtView_->setText(line.isValid() ? lstView_->Lines().LineAt(line.row()) : QString());
    });

    layout->addWidget(BuildInput());
    auto* const emoticons = new EmoticonRow;
    layout->addWidget(emoticons);
    connect(emoticons, &EmoticonRow::EmoticonChosen, this, [this](const QString& tag) {
        txtSend_->Append(tag);
        txtSend_->setFocus();
    });
}

QWidget* ConsoleFrame::BuildInput() {
    auto* const input = new QWidget;
    auto* const row = new QHBoxLayout(input);
    row->setContentsMargins(0, 0, 0, 0);
    auto* const label = new QLabel(tr("Sa&y:"));
    txtSend_ = new InputLine;
    txtSend_->setObjectName("txtSend");
    txtSend_->setAccessibleName(tr("Input line"));
    txtSend_->setAccessibleDescription(tr("Enter says it; /name text whispers, : and - and ` begin commands"));
    label->setBuddy(txtSend_);
    auto* const cmdHelp = new QPushButton("Help");
    cmdHelp->setObjectName("cmdHelp");
    cmdHelp->setAccessibleDescription(tr("Tells where to find help"));
    row->addWidget(label);
    row->addWidget(txtSend_, 1);
    row->addWidget(cmdHelp);
    connect(txtSend_, &QLineEdit::returnPressed, this, [this] { emit LineTyped(txtSend_->Take()); });
    connect(cmdHelp, &QPushButton::clicked, this, &ConsoleFrame::HelpAsked);
    return input;
}

void ConsoleFrame::FillMenu(QMenu& menu) {
    AddItem(menu, "mnuFind", tr("&Find..."), QKeySequence::Find, [this] { Find(true); });
    AddItem(menu, "mnuFindNext", tr("Find ne&xt"), QKeySequence::FindNext, [this] { Find(false); });
    AddItem(menu, "mnuCopy", tr("&Copy lines"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C),
            [this] { lstView_->CopySelection(); });
    AddItem(menu, "mnuSaveConsole", tr("&Save to a file..."), {}, [this] { Save(); });
    mnuLog_ = AddOption(menu, "mnuLog", tr("&Log to a file"), !options_.Get(option::kLogFile).isEmpty(),
                        [this](bool on) { ChooseLog(on); });
    menu.addSeparator();
    AddOption(menu, "mnuMonospaced", tr("&Monospaced"), options_.Get(option::kMonospaced), [this](bool on) {
        options_.Set(option::kMonospaced, on);
        lstView_->SetMonospaced(on);
    });
    AddOption(menu, "mnuTimestamps", tr("&Timestamps"), options_.Get(option::kTimestamps), [this](bool on) {
        options_.Set(option::kTimestamps, on);
        lstView_->Lines().SetTimestamps(on);
    });
    AddItem(menu, "mnuScrollBack", tr("Scroll-&back..."), {}, [this] { ChooseScrollBack(); });
}

void ConsoleFrame::Append(const QString& line) {
    lstView_->Lines().Append(line);
    if (!log_.Append(line.toStdString())) lstView_->Lines().Append(tr("The log can't be written any more."));
}

void ConsoleFrame::Clear() {
    lstView_->Lines().Clear();
    whenCleared_.removeDuplicates();
    for (const QString& line : std::exchange(whenCleared_, {})) Append(line);
}

void ConsoleFrame::ShowWhenCleared(const QString& line) { whenCleared_ << line; }

void ConsoleFrame::ResumeLog() {
    if (const QString log = options_.Get(option::kLogFile); !log.isEmpty()) OpenLog(log);
}

/// Opens the log, or says on the console why it can't.
bool ConsoleFrame::OpenLog(const QString& path) {
    switch (log_.Open(TypedPath(path))) {
        case ConsoleLog::Refusal::None:
            return true;
        case ConsoleLog::Refusal::CantBeWritten:
            Append(tr("The log %1 can't be written.").arg(path));
            return false;
        case ConsoleLog::Refusal::NoOrdinaryFile:
            Append(tr("The log %1 can't be written: it is not an ordinary file.").arg(path));
            return false;
        case ConsoleLog::Refusal::HoldsOther:
            Append(tr("The log %1 can't be written: the file holds something that is no log. Choose a new one.")
                       .arg(path));
            return false;
    }
    return false;
}

void ConsoleFrame::Find(bool ask) {
    if (ask || sought_.isEmpty()) {
        const auto text = dialogs_.AskText(this, tr("Find this in the console:"), tr("Find"));
        if (!text) return;
        sought_ = *text;
    }
    if (!lstView_->FindNext(sought_)) emit NotFound(sought_);
}

void ConsoleFrame::Save() {
    const auto path = dialogs_.AskSaveFile(this, tr("Save the console"), tr("Text (*.txt) | *.txt"), {});
    if (!path) return;
    const auto saved = DiskFiles().Write(TypedPath(*path), lstView_->Lines().AllText().toStdString());
    if (!saved) dialogs_.ShowMessage(this, ShownFault(saved.Fault()), tr("Save the console"), Dialogs::Icon::Critical);
}

void ConsoleFrame::ChooseLog(bool on) {
    log_.Close();  // first, so that cancelling leaves none, as the item says then
    options_.Set(option::kLogFile, QString());
    if (!on) return;
    const auto path = dialogs_.AskSaveFile(this, tr("Log the console to"), tr("Text (*.txt) | *.txt"), {});
    if (path && OpenLog(*path)) {
        options_.Set(option::kLogFile, *path);
    } else {
        mnuLog_->setChecked(false);
    }
}

void ConsoleFrame::ChooseScrollBack() {
    const auto text = dialogs_.AskText(this, tr("How many lines the console keeps:"), tr("Scroll-back"));
    const int lines = text ? text->toInt() : 0;
    if (lines < 1) return;
    options_.Set(option::kScrollBack, lines);
    lstView_->Lines().SetScrollBack(lines);
}
