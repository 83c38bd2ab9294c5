#include "ui/frmGS.h"

#include <Qsci/qsciscintilla.h>

#include <QCloseEvent>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QSplitter>
#include <QStatusBar>
#include <QVBoxLayout>

#include "bot/ProfilePaths.h"
#include "engine/Dispatcher.h"
#include "engine/FileRemarks.h"
#include "engine/Script.h"
#include "platform/QtHost.h"
#include "platform/WholeFile.h"
#include "profile/ProfileFile.h"
#include "text/Fault.h"
#include "ui/CommandList.h"
#include "ui/Dialogs.h"
#include "ui/FindBar.h"
#include "ui/MenuItems.h"
#include "ui/ShownText.h"
#include "ui/UnnamedFile.h"
#include "ui/VorelSpeakLexer.h"

namespace {

constexpr char kTitle[] = "VorelSpeak Script Editor";
constexpr char kFilter[] = "VorelSpeak Script (*.vs) | *.vs";
constexpr char kSaveTitle[] = "Save Script";
constexpr char kSaveQuestion[] = "Do you want to save any changes to your script?";
constexpr char kRootCaptions[][24] = {"Causes", "Additional Conditions", "Effects"};

}  // namespace

frmGS::frmGS(QtHost& host, Dialogs& dialogs)
    : host_(host), dialogs_(dialogs), txtScript_(new QsciScintilla), lexer_(new VorelSpeakLexer(this)) {
    setObjectName("frmGS");
    setWindowIcon(QIcon(":/icons/tvorel.svg"));
    resize(980, 640);
    findBar_ = new FindBar(*txtScript_);
    BuildText();

    auto* const textSide = new QWidget;
    auto* const textLayout = new QVBoxLayout(textSide);
    textLayout->setContentsMargins(0, 0, 0, 0);
    textLayout->addWidget(txtScript_);
    textLayout->addWidget(findBar_);
    auto* const splitter = new QSplitter;
    splitter->setContentsMargins(6, 6, 6, 0);
    splitter->addWidget(textSide);
    splitter->addWidget(BuildCommands());
    splitter->setStretchFactor(0, 1);
    splitter->setSizes({660, 320});
    setCentralWidget(splitter);
    statusBar();
    BuildMenus();
    NewScript();
}

void frmGS::BuildText() {
    txtScript_->setObjectName("txtScript");
    txtScript_->setAccessibleName(tr("Script"));
    txtScript_->setAccessibleDescription(tr("The text of the script. F6 leads to the list of commands."));
    txtScript_->setUtf8(true);
    txtScript_->setEolMode(QsciScintilla::EolWindows);
    txtScript_->setLexer(lexer_);
    txtScript_->setMarginType(0, QsciScintilla::NumberMargin);
    txtScript_->setMarginWidth(0, "00000");
    txtScript_->setMarginWidth(1, 0);
    txtScript_->setCaretLineVisible(true);
    txtScript_->setBraceMatching(QsciScintilla::SloppyBraceMatch);
    txtScript_->setTabWidth(5);
    txtScript_->setIndentationsUseTabs(false);
    FollowPalette();
    connect(txtScript_, &QsciScintilla::modificationChanged, this,
            [this](bool changed) { setWindowModified(changed); });
    connect(txtScript_, &QsciScintilla::cursorPositionChanged, this, [this](int line, int column) {
        statusBar()->showMessage(tr("Line %1, column %2").arg(line + 1).arg(column + 1));
    });
}

QWidget* frmGS::BuildCommands() {
    auto* const side = new QWidget;
    auto* const layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);

    txtFilter_ = new QLineEdit;
    txtFilter_->setObjectName("txtFilter");
    txtFilter_->setPlaceholderText(tr("Show commands with these words"));
    txtFilter_->setClearButtonEnabled(true);
    txtFilter_->setAccessibleName(tr("Filter of the commands"));
    txtFilter_->setAccessibleDescription(tr("Shows only the commands that hold all of these words"));
    auto* const label = new QLabel(tr("Fi&lter:"));
    label->setBuddy(txtFilter_);
    auto* const row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(txtFilter_, 1);
    layout->addLayout(row);

    tvwCmds_ = new QTreeWidget;
    tvwCmds_->setObjectName("tvwCmds");
    tvwCmds_->setHeaderHidden(true);
    tvwCmds_->setUniformRowHeights(true);
    tvwCmds_->setAccessibleName(tr("Commands"));
    tvwCmds_->setAccessibleDescription(tr("Enter or a double click puts the chosen command into the script"));
    for (const auto* const caption : kRootCaptions) new QTreeWidgetItem(tvwCmds_, {QString(caption)});
    layout->addWidget(tvwCmds_, 1);

    lblPreview_ = new QLabel;
    lblPreview_->setObjectName("lblPreview");
    lblPreview_->setWordWrap(true);
    lblPreview_->setTextFormat(Qt::PlainText);
    lblPreview_->setMinimumHeight(lblPreview_->fontMetrics().lineSpacing() * 9);
    lblPreview_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    lblPreview_->setAccessibleName(tr("The chosen command"));
    layout->addWidget(lblPreview_);

    connect(txtFilter_, &QLineEdit::textChanged, this, &frmGS::FilterCommands);
    connect(tvwCmds_, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* item) { InsertCommand(item); });
    connect(tvwCmds_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) { ShowPreview(item); });
    return side;
}

void frmGS::BuildMenus() {
    QMenu* const file = AddMenu(*menuBar(), "mnuFile", tr("&File"));
    AddItem(*file, "mnuNew", tr("&New"), QKeySequence::New, [this] {
        if (AskToDropChanges()) NewScript();
    });
    AddItem(*file, "mnuOpen", tr("&Open..."), QKeySequence::Open, [this] { Open(); });
    AddItem(*file, "mnuSave", tr("&Save"), QKeySequence::Save, [this] { Save(); });
    AddItem(*file, "mnuSaveAs", tr("Save &As..."), QKeySequence::SaveAs, [this] { SaveAs(); });
    file->addSeparator();
    AddItem(*file, "mnuExit", tr("E&xit"), QKeySequence::Close, [this] { close(); });

    QMenu* const edit = AddMenu(*menuBar(), "mnuEdit", tr("&Edit"));
    AddItem(*edit, "mnuUndo", tr("&Undo"), QKeySequence::Undo, [this] { txtScript_->undo(); });
    AddItem(*edit, "mnuRedo", tr("&Redo"), QKeySequence::Redo, [this] { txtScript_->redo(); });
    edit->addSeparator();
    AddItem(*edit, "mnuCut", tr("Cu&t"), QKeySequence::Cut, [this] { txtScript_->cut(); });
    AddItem(*edit, "mnuCopy", tr("&Copy"), QKeySequence::Copy, [this] { txtScript_->copy(); });
    AddItem(*edit, "mnuPaste", tr("&Paste"), QKeySequence::Paste, [this] { txtScript_->paste(); });
    edit->addSeparator();
    AddItem(*edit, "mnuFind", tr("&Find and replace..."), QKeySequence::Find, [this] { findBar_->Open(); });
    AddItem(*edit, "mnuFindNext", tr("Find &next"), QKeySequence::FindNext, [this] { findBar_->FindNext(); });
    AddItem(*edit, "mnuFindPrevious", tr("Find pre&vious"), QKeySequence::FindPrevious,
            [this] { findBar_->FindPrevious(); });
    AddItem(*edit, "mnuGoTo", tr("&Go to line..."), QKeySequence(Qt::CTRL | Qt::Key_G), [this] { AskForLine(); });

    QMenu* const view = AddMenu(*menuBar(), "mnuView", tr("&View"));
    AddItem(*view, "mnuZoomIn", tr("Zoom &in"), QKeySequence::ZoomIn, [this] { txtScript_->zoomIn(); });
    AddItem(*view, "mnuZoomOut", tr("Zoom &out"), QKeySequence::ZoomOut, [this] { txtScript_->zoomOut(); });
    AddItem(*view, "mnuZoomReset", tr("&Usual size"), QKeySequence(Qt::CTRL | Qt::Key_0),
            [this] { txtScript_->zoomTo(0); });
    view->addSeparator();
    AddItem(*view, "mnuCommands", tr("&Commands"), QKeySequence(Qt::Key_F6), [this] {
        if (txtScript_->hasFocus()) {
            tvwCmds_->setFocus();
        } else {
            txtScript_->setFocus();
        }
    });
}

void frmGS::FollowPalette() {
    lexer_->FollowPalette(palette());
    const QColor text = palette().color(QPalette::Text);
    QColor caretLine = palette().color(QPalette::Highlight);
    caretLine.setAlpha(40);
    txtScript_->setCaretForegroundColor(text);
    txtScript_->setCaretLineBackgroundColor(caretLine);
    txtScript_->setMarginsBackgroundColor(palette().color(QPalette::Window));
    txtScript_->setMarginsForegroundColor(palette().color(QPalette::WindowText));
    txtScript_->setMatchedBraceBackgroundColor(palette().color(QPalette::Highlight));
    txtScript_->setMatchedBraceForegroundColor(palette().color(QPalette::HighlightedText));
}

void frmGS::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) FollowPalette();
}

void frmGS::ShowTitle() {
    const QString title(kTitle);
    // The placeholder is where Qt shows its mark of unsaved changes.
    setWindowTitle((path_.empty() ? title : title + " - [" + ShownPath(FileNameOf(path_)) + "]") + "[*]");
    setWindowModified(txtScript_->isModified());
}

void frmGS::SetText(const std::string& text) {
    txtScript_->setText(Shown(text));
    txtScript_->setModified(false);
    ShowTitle();
}

bool frmGS::IsDirty() const { return txtScript_->isModified(); }

std::string frmGS::ScriptText() const { return Typed(txtScript_->text()); }

void frmGS::ShowBotScript() {
    const auto& script = host_.bot().script;
    if (!script) return NewScript();
    // Absolute, for keeping: the next start may be from another folder.
    unnamed_ = false;
    path_ = script->File().empty() ? std::string() : host_.Disk().Absolute(script->File());
    if (!path_.empty()) ClearUnfinished(FolderOf(path_));
    SetText(script->Text());
}

std::string frmGS::ShowFile(const std::string& path) {
    std::string text = ScriptTextFromFile(host_.Disk().Read(path));
    path_ = host_.Disk().Absolute(path);
    ClearUnfinished(FolderOf(path_));
    SetText(text);
    return text;
}

void frmGS::NewScript() {
    unnamed_ = false;
    path_.clear();
    SetText(kNewScript);
}

void frmGS::RestoreText(const std::string& path, const std::string& text) {
    NewScript();
    try {
        if (const auto file = host_.Disk().Find(path)) ShowFile(*file);
    } catch (const RuntimeFault&) {
        // Undoing the change leads to the new script then.
    }
    path_ = path;
    // Replaced by hand, as it were: only that counts as a change, and it can be undone.
    txtScript_->selectAll();
    txtScript_->replaceSelectedText(Shown(text));
    ShowTitle();
}

bool frmGS::AskToDropChanges(bool offersCancel) {
    if (!IsDirty()) return true;
    const auto answer = dialogs_.Ask(this, kSaveQuestion, kSaveTitle, offersCancel);
    return answer == Dialogs::Answer::No || (answer == Dialogs::Answer::Yes && Save());
}

void frmGS::Open() {
    if (!AskToDropChanges()) return;
    const auto chosen =
        dialogs_.AskOpenFile(this, "Select a VorelSpeak Script to Open", kFilter, ShownPath(FolderOf(path_)));
    if (chosen) ReadFrom(TypedPath(*chosen));
}

void frmGS::OpenScript(const std::string& path) {
    if (AskToDropChanges()) ReadFrom(path);
}

void frmGS::ReadFrom(const std::string& path) {
    const std::optional<std::string> found = host_.Disk().Find(path);
    if (!found) return;
    host_.RunHandler([&] {
        const std::string text = ShowFile(*found);
        NameInProfile();
        RunText(text);
    });
}

void frmGS::RunText(const std::string& text) {
    host_.bot().script = std::make_shared<Script>(text, path_);
    if (const auto remark = FileRemark(FileKind::Script, path_, ScriptTextToFile(text))) {
        emit ScriptRemarked(ShownPath(*remark));
    }
    RunScript(host_.bot(), EventScriptLoaded);
}

/// A profile that names this file already, perhaps from its own folder, keeps it as it stands.
void frmGS::NameInProfile() {
    Bot& bot = host_.bot();
    const std::string path = host_.Disk().Absolute(path_);
    unnamed_ = false;
    const auto named = FindProfileFile(bot, bot.profile.scriptPath);
    if (named && host_.Disk().Absolute(*named) == path) return;
    const auto name = ::NameInProfile(bot.profile.path, FitsCodePage(path_) ? path_ : path);
    unnamed_ = !name;
    if (unnamed_) return dialogs_.ShowMessage(this, WhyNotNamed(path), kSaveTitle, Dialogs::Icon::Critical);
    bot.profile.scriptPath = *name;
    emit ScriptFileChanged();
}

void frmGS::NameScriptFrom(const std::string& profile) {
    if (!unnamed_) return;
    const auto name = ::NameInProfile(profile, host_.Disk().Absolute(path_));
    if (name) host_.bot().profile.scriptPath = *name;
    unnamed_ = !name;
}

bool frmGS::Save() { return path_.empty() ? SaveAs() : WriteTo(path_); }

bool frmGS::SaveAs() {
    const auto chosen = AskSaveName(dialogs_, this, "Save VorelSpeak Script As...", kFilter, ShownPath(FolderOf(path_)),
                                    kScriptExtension);
    return chosen && WriteTo(TypedPath(*chosen));
}

/// Asks before characters that a script can't hold are saved as question marks.
bool frmGS::LosesNothing() {
    for (int line = 0; line < txtScript_->lines(); ++line) {
        const QString text = txtScript_->text(line);
        if (Shown(Typed(text)) == text) continue;
        const QString question =
            tr("Line %1 holds characters that the game does not have. Save them as question marks?").arg(line + 1);
        if (dialogs_.Ask(this, question, kSaveTitle) == Dialogs::Answer::Yes) return true;
        GoToLine(line + 1);
        return false;
    }
    return true;
}

bool frmGS::WriteTo(const std::string& path) {
    if (!LosesNothing()) return false;
    const std::string file = WithExtension(path, kScriptExtension);
    const std::string text = ScriptText();
    try {
        host_.Disk().Write(file, ScriptTextToFile(text));
    } catch (const RuntimeFault& fault) {
        // The text is still here, and can be saved elsewhere.
        dialogs_.ShowMessage(
            this, tr("%1.\nThe script counts as not saved; choose another place for it.").arg(ShownFault(fault)),
            kSaveTitle, Dialogs::Icon::Critical);
        return false;
    }
    path_ = file;
    txtScript_->setModified(false);
    ShowTitle();
    NameInProfile();
    host_.RunHandler([&] { RunText(text); });
    return true;
}

void frmGS::closeEvent(QCloseEvent* event) {
    if (unloading_) return event->accept();
    event->ignore();
    const bool save = IsDirty() && dialogs_.Ask(this, kSaveQuestion, kSaveTitle) == Dialogs::Answer::Yes;
    if (!save || Save()) hide();
}

void frmGS::LoadCommands(const std::string& path) {
    for (int root = 0; root < tvwCmds_->topLevelItemCount(); ++root)
        qDeleteAll(tvwCmds_->topLevelItem(root)->takeChildren());
    const std::optional<std::string> found = host_.Disk().Find(path);
    if (!found) return;
    for (const std::string& line : FileLines(host_.Disk().Read(*found))) {
        const CommandRoot root = RootOf(line);
        if (root == CommandRoot::None) continue;
        auto* const item = new QTreeWidgetItem(tvwCmds_->topLevelItem(static_cast<int>(root)), {Shown(line)});
        item->setToolTip(0, Shown(line));
        item->setData(0, Qt::AccessibleDescriptionRole, Shown(CommandPreview(line)));
    }
}

void frmGS::FilterCommands(const QString& words) {
    const QStringList wanted = words.split(' ', Qt::SkipEmptyParts);
    for (int root = 0; root < tvwCmds_->topLevelItemCount(); ++root) {
        QTreeWidgetItem* const top = tvwCmds_->topLevelItem(root);
        for (int i = 0; i < top->childCount(); ++i) {
            const QString text = top->child(i)->text(0);
            const bool holds = std::all_of(wanted.begin(), wanted.end(), [&](const QString& word) {
                return text.contains(word, Qt::CaseInsensitive);
            });
            top->child(i)->setHidden(!holds);
        }
        top->setExpanded(!wanted.isEmpty());
    }
}

void frmGS::ShowPreview(const QTreeWidgetItem* item) {
    const bool isCommand = item && item->parent();
    lblPreview_->setText(isCommand ? item->data(0, Qt::AccessibleDescriptionRole).toString() : QString());
    lblPreview_->setAccessibleDescription(lblPreview_->text());
}

void frmGS::InsertCommand(const QTreeWidgetItem* item) {
    if (item->childCount() > 0 || !item->text(0).startsWith('(')) return;
    const QByteArray text = Shown(CommandInsertion(Typed(item->text(0)))).toUtf8();
    const long caret = txtScript_->SendScintilla(QsciScintilla::SCI_GETCURRENTPOS);
    txtScript_->SendScintilla(QsciScintilla::SCI_INSERTTEXT, static_cast<unsigned long>(caret), text.constData());
    txtScript_->SendScintilla(QsciScintilla::SCI_GOTOPOS, static_cast<unsigned long>(caret + text.size()));
}

void frmGS::AskForLine() {
    bool accepted = false;
    const int line = QInputDialog::getInt(this, tr("Go to line"), tr("Line:"), 1, 1, txtScript_->lines(), 1, &accepted);
    if (accepted) GoToLine(line);
}

void frmGS::GoToLine(int line) {
    txtScript_->setCursorPosition(line - 1, 0);
    txtScript_->ensureLineVisible(line - 1);
    txtScript_->setFocus();
}
