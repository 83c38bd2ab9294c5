#include "ui/frmVorel.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>
#include <cmath>

#include "Version.h"
#include "bot/ProfilePaths.h"
#include "engine/Dispatcher.h"
#include "net/Passwords.h"
#include "platform/WholeFile.h"
#include "profile/ProfileFile.h"
#include "profile/Settings.h"
#include "send/modSend.h"
#include "text/Fault.h"
#include "ui/CommandList.h"
#include "ui/ConsoleFrame.h"
#include "ui/ControlPanel.h"
#include "ui/Dialogs.h"
#include "ui/DocumentDrops.h"
#include "ui/Help.h"
#include "ui/LanguageMenu.h"
#include "ui/MenuItems.h"
#include "ui/ProgramFolder.h"
#include "ui/SessionMenu.h"
#include "ui/ShownText.h"
#include "ui/StatusPanels.h"
#include "ui/TrayIcon.h"
#include "ui/VariableList.h"
#include "ui/frmCfg.h"
#include "ui/frmGS.h"

namespace {

constexpr int kFaultExit = 70;  // EX_SOFTWARE, as vorel run

QList<ServerChoice> Servers() {
    return {{kGameServer, kGameServer}, {frmVorel::tr("Practice dream on this computer"), kPracticeAddress}};
}

}  // namespace

frmVorel::frmVorel(Dialogs& dialogs, const QString& folder, QWidget* parent)
    : QMainWindow(parent),
      dialogs_(dialogs),
      folder_(folder),
      options_(OptionsFile(folder)),
      host_(*this, TypedPath(folder)),
      practice_(host_),
      updates_(dialogs, this),
      console_(new ConsoleFrame(options_, dialogs, this)),
      editor_(std::make_unique<frmGS>(host_, dialogs)),
      documents_(this, host_, dialogs, options_, *editor_, folder) {
    setObjectName("frmVorel");
    setWindowIcon(QIcon(":/icons/tvorel.svg"));

    auto* const splitter = new QSplitter;
    splitter->setContentsMargins(6, 6, 6, 0);
    splitter->addWidget(console_);
    splitter->addWidget(BuildRightSide());
    splitter->setStretchFactor(0, 1);
    setCentralWidget(splitter);
    BuildMenus();
    panels_ = new StatusPanels(watch_);
    setStatusBar(panels_);
    connect(console_, &ConsoleFrame::LineTyped, this, &frmVorel::txtSend_Enter);
    connect(console_, &ConsoleFrame::HelpAsked, this, &frmVorel::cmdHelp_Click);
    connect(console_, &ConsoleFrame::NotFound, this,
            [this](const QString& text) { panels_->Remark(tr("\"%1\" was not found.").arg(text)); });
    resize(980, 660);

    tray_ = new TrayIcon(*this, options_);
    connect(tray_, &TrayIcon::ExitChosen, this, &QWidget::close);

    connect(&documents_, &Documents::Told, this, &frmVorel::Announce);
    connect(&documents_, &Documents::TroubleTold, this, &frmVorel::AnnounceTrouble);
    connect(&documents_, &Documents::ProfileTakenUp, this, &frmVorel::ShowTitle);
    connect(&documents_, &Documents::ProfileTakenUp, mnuSession_, &SessionMenu::ShowProfile);
    connect(&documents_, &Documents::ProfileSaved, this, &frmVorel::ShowTitle);
    connect(&documents_, &Documents::ProfileSaved, mnuSession_, &SessionMenu::KeepForProfile);
    connect(&documents_, &Documents::EditorWanted, this, &frmVorel::ShowEditor);
    connect(&updates_, &UpdateOffer::Told, this, &frmVorel::Announce);
    connect(&practice_, &PracticeDoor::Refused, this, &frmVorel::Announce);
    connect(&practice_, &PracticeDoor::TourRefused, console_, &ConsoleFrame::ShowWhenCleared);
    ::NewProfile(bot());
    mnuSession_->ShowProfile();
    const QString server = options_.Get(option::kServerAddress);
    if (!server.isEmpty()) host_.session().ChooseServer(TypedPath(server));
    drops_ = std::make_unique<DocumentDrops>(QList<QWidget*>{this, editor_.get()},
                                             [this](const QString& path) { documents_.Open(TypedPath(path)); });
    ShowTitle();
    StatusChanged();
}

frmVorel::~frmVorel() {
    // The list of variables shows what belongs to the host, which goes before the window's parts.
    delete takeCentralWidget();
}

// --- what the window is made of ----------------------------------------------------------------------------------

QWidget* frmVorel::BuildRightSide() {
    auto* const side = new QWidget;
    auto* const layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);

    auto* const panel = new ControlPanel;
    layout->addWidget(panel);
    connect(panel, &ControlPanel::CommandChosen, this,
            [this](const QString& tag) { host_.RunHandler([&] { modSend::SendLine(bot(), Typed(tag)); }); });
    connect(panel, &ControlPanel::ToolChosen, this, &frmVorel::cmdC_Click);

    layout->addWidget(new VariableFrame(bot().variables), 1);

    auto* const bottom = new QHBoxLayout;
    auto* const lblLogo = new QLabel("Vorel");
    lblLogo->setObjectName("lblLogo");
    QFont font = lblLogo->font();
    font.setPointSizeF(font.pointSizeF() * 1.6);
    font.setBold(true);
    lblLogo->setFont(font);
    auto* const cmdExit = new QPushButton("E&xit");
    cmdExit->setObjectName("cmdExit");
    cmdExit->setAccessibleDescription(tr("Ends the program"));
    bottom->addWidget(lblLogo);
    bottom->addStretch();
    bottom->addWidget(cmdExit);
    layout->addLayout(bottom);
    connect(cmdExit, &QPushButton::clicked, this, &QWidget::close);
    return side;
}

void frmVorel::BuildMenus() {
    QMenu* const file = AddMenu(*menuBar(), "mnuFile", tr("&File"));
    AddItem(*file, "mnuNew", tr("&New"), QKeySequence::New, [this] { documents_.NewProfile(); });
    AddItem(*file, "mnuOpen", tr("&Open..."), QKeySequence::Open, [this] { documents_.OpenProfile(); });
    mnuRecent_ = file->addMenu(tr("&Recent"));
    mnuRecent_->setObjectName("mnuRecent");
    connect(mnuRecent_, &QMenu::aboutToShow, this, &frmVorel::ShowRecentProfiles);
    AddItem(*file, "mnuSave", tr("&Save"), QKeySequence::Save, [this] { documents_.SaveProfile(); });
    AddItem(*file, "mnuSaveAs", tr("Save &As..."), QKeySequence::SaveAs, [this] { documents_.SaveProfileAs(); });
    file->addSeparator();
    AddItem(*file, "mnuExit", tr("E&xit"), QKeySequence::Quit, [this] { close(); });

    mnuSession_ = new SessionMenu(host_, options_, dialogs_, menuBar());
    menuBar()->addMenu(mnuSession_);

    QMenu* const script = AddMenu(*menuBar(), "mnuScript", "&Script");
    AddItem(*script, "mnuEdit", tr("&Edit"), QKeySequence(Qt::Key_F4), [this] { ShowEditor(); });
    AddItem(*script, "mnuRun", "&Run", QKeySequence(Qt::Key_F5), [this] { RunScriptOnce(); });

    QMenu* const console = AddMenu(*menuBar(), "mnuConsole", tr("&Console"));
    console_->FillMenu(*console);
    AddOption(*console, "mnuNotify", tr("&Notify of whispers"), options_.Get(option::kNotifyWhispers),
              [this](bool on) { options_.Set(option::kNotifyWhispers, on); });

    QMenu* const configuration = AddMenu(*menuBar(), "mnuConfiguration", tr("C&onfiguration"));
    AddItem(*configuration, "mnuCfg", tr("&Vorel Configuration..."), QKeySequence(Qt::CTRL | Qt::Key_Comma),
            [this] { ShowConfiguration(); });

    auto* const language = new LanguageMenu(options_, configuration);
    configuration->addMenu(language);
    connect(language, &LanguageMenu::Chosen, this,
            [this] { panels_->Remark(tr("The language changes with the next start.")); });

    QMenu* const help = AddMenu(*menuBar(), "mnuHelp", tr("&Help"));
    AddItem(*help, "mnuGHelp", "Vorel &Help", QKeySequence::HelpContents, [this] { cmdHelp_Click(); });
}

// --- what the bot shows ------------------------------------------------------------------------------------------

void frmVorel::Announce(const QString& line) { console_->Append(line); }

void frmVorel::AnnounceTrouble(const QString& line) {
    Announce(line);
    console_->ShowWhenCleared(line);
}

void frmVorel::ShowConsoleLine(std::string_view line) {
    const std::string shown = WithoutPasswords(bot(), line);
    Announce(Shown(shown));
    if (!watch_.HasWhisperToTell() || isActiveWindow()) return;
    tray_->TellWhisper(Shown(shown));
}

void frmVorel::ClearConsole() { console_->Clear(); }

void frmVorel::ShowMessage(std::string_view title, std::string_view text) {
    const auto icon = host_.session().status().lacksFiles ? Dialogs::Icon::Critical : Dialogs::Icon::None;
    dialogs_.ShowMessage(this, Shown(text), Shown(title), icon);
}

void frmVorel::StatusChanged() {
    mnuSession_->ShowStatus();
    panels_->ShowStatus();
}

void frmVorel::EndWithFault(const RuntimeFault& fault) {
    documents_.EndWithFault();
    QString text = watch_.FaultInWords(fault, mnuSession_->KeepsSplitLines());
    Announce(text);  // for the log
    if (const QString aside = documents_.PutAsideAfterFault(); !aside.isEmpty()) text += "\n\n" + aside;
    dialogs_.ShowMessage(this, text, kProductName, Dialogs::Icon::Critical);
    QuitAfterFault();
}

void frmVorel::QuitAfterFault() {
    // Later, since the fault may have come before the event loop that this is to end.
    QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(kFaultExit); });
}

void frmVorel::ShowTitle() { setWindowTitle(ShownPath(WindowTitle(bot()))); }

// --- profiles ----------------------------------------------------------------------------------------------------

void frmVorel::Start(const std::vector<std::string>& documents, bool practice) {
    if (practice) host_.session().ChooseServer(kPracticeAddress);
    host_.RunHandler([&] { BeginWork(documents); });
    if (documents_.HasFaulted()) {
        QuitAfterFault();  // again, since a question that was open then has taken the first for itself
    } else if (!documents_.IsScriptLeftOut() && (practice || options_.Get(option::kConnectAtStart))) {
        host_.ConnectNow();
    }
}

void frmVorel::BeginWork(const std::vector<std::string>& documents) {
    console_->ResumeLog();
    for (const QString& folder : {folder_, OwnFolder(folder_)}) ClearUnfinished(TypedPath(folder));
    options_.SetTeller([this](const QString& why) {
        AnnounceTrouble(tr("The options can't be kept: %1").arg(why));
        panels_->Remark(tr("The options can't be kept."));
    });
    if (!QFileInfo(folder_).isWritable())
        AnnounceTrouble(
            tr("Nothing can be written in %1: neither settings nor unsaved work will be kept.").arg(folder_));
    editor_->LoadCommands(TypedPath(QDir(folder_).filePath(kCommandList)));
    Settings settings = LoadSettings(host_.Disk(), TypedPath(folder_));
    if (settings.recent.empty()) settings.recent = TypedPath(options_.Get(option::kOpenProfile));
    MoveTo(settings);
    documents_.Begin(settings.recent, documents);
    if (!documents_.HasFaulted()) updates_.Look();
}

/// Puts the window where it was, unless its title would lie on no screen there.
void frmVorel::MoveTo(const Settings& settings) {
    constexpr double kFarthest = 1e6;  // what any screen has, and an int holds
    if (!settings.hasPlace || std::abs(settings.left) > kFarthest || std::abs(settings.top) > kFarthest) return;
    const QPoint place(static_cast<int>(settings.left), static_cast<int>(settings.top));
    if (QGuiApplication::screenAt(place + QPoint(width() / 2, 10))) move(place);
}

void frmVorel::ShowRecentProfiles() {
    mnuRecent_->clear();
    for (const QString& path : options_.Get(option::kRecentProfiles)) {
        // One alone would mark a key.
        mnuRecent_->addAction(QString(path).replace("&", "&&"), this,
                              [this, path] { documents_.Open(TypedPath(path)); });
    }
}

// --- leaving -----------------------------------------------------------------------------------------------------

void frmVorel::SaveAllSettings() {
    Settings settings;
    settings.recent = documents_.RememberProfile();
    if (!isMinimized()) {  // otherwise it has no place, and 0 and 0 are written
        settings.top = y();
        settings.left = x();
    }
    if (const auto saved = SaveSettings(host_.Disk(), TypedPath(folder_), settings); !saved) {
        // The console goes with the window.
        const QString why = ShownFault(saved.Fault());
        dialogs_.ShowMessage(this,
                             tr("%1.\nThe next start will not know this profile and the window's place.").arg(why),
                             kProductName, Dialogs::Icon::Critical);
    }
    options_.Keep();
}

void frmVorel::closeEvent(QCloseEvent* event) {
    // Before the questions, of which one may be answered by staying: the settings are kept then, too. A profile that is
    // given its name only by an answer is not the recent one for it.
    SaveAllSettings();
    const bool inOrder = !documents_.HasFaulted();
    // From the tray: questions are asked in a window that can be seen.
    if (inOrder && !isVisible() && documents_.HasChanges()) tray_->RestoreWindow();
    if (inOrder && !documents_.AskToDropChanges(false)) return event->ignore();
    documents_.End();
    if (!documents_.HasFaulted()) host_.Leave();
    host_.StopTrying();
    editor_->Unload();
    editor_->close();
    tray_->hide();
    event->accept();
    QCoreApplication::quit();
}

void frmVorel::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && isMinimized()) {
        QTimer::singleShot(0, this, [this] { tray_->MinimizeWindow(); });
    }
}

// --- what the controls do ----------------------------------------------------------------------------------------

void frmVorel::txtSend_Enter(const QString& line) {
    host_.RunHandler([&] { host_.session().TypeLine(Typed(line)); });
}

void frmVorel::cmdC_Click(Tool tool) {
    if (tool == Tool::VorelConfiguration) return ShowConfiguration();
    const QString refused = StartTool(host_, tool);
    if (!refused.isEmpty()) Announce(tr("%1 could not be started.").arg(refused));
}

void frmVorel::cmdHelp_Click() { dialogs_.ShowMessage(this, HelpText(folder_), "Help", Dialogs::Icon::Information); }

void frmVorel::ShowConfiguration() {
    std::string server = host_.session().ChosenServer();
    frmCfg configuration(bot().profile, server, Servers(), dialogs_, this);
    configuration.exec();
    host_.session().ChooseServer(server);
    options_.Set(option::kServerAddress, ShownPath(server));
}

void frmVorel::ShowEditor() {
    const auto show = [this] {
        editor_->show();
        editor_->raise();
        editor_->activateWindow();
    };
    // While the program starts this window is still to come, and would cover it.
    if (!isVisible()) {
        QTimer::singleShot(0, this, show);
    } else {
        show();
    }
}

void frmVorel::RunScriptOnce() {
    host_.RunHandler([this] { RunScript(bot(), EventScriptLoaded); });
}
