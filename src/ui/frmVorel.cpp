#include "ui/frmVorel.h"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QGroupBox>
#include <QMenuBar>
#include <QProcess>
#include <QPushButton>
#include <QScrollArea>
#include <QSplitter>
#include <QStatusBar>
#include <QVBoxLayout>
#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

#include "Version.h"
#include "bot/ProfilePaths.h"
#include "engine/Dispatcher.h"
#include "net/Passwords.h"
#include "platform/WholeFile.h"
#include "practice/PracticeServer.h"
#include "practice/Tour.h"
#include "profile/ProfileFile.h"
#include "profile/Settings.h"
#include "send/modSend.h"
#include "text/Fault.h"
#include "ui/CommandList.h"
#include "ui/ConsoleFrame.h"
#include "ui/ControlPanel.h"
#include "ui/Dialogs.h"
#include "ui/DocumentDrops.h"
#include "ui/MenuItems.h"
#include "ui/ProgramFolder.h"
#include "ui/SessionMenu.h"
#include "ui/ShownText.h"
#include "ui/TrayIcon.h"
#include "ui/UnnamedFile.h"
#include "ui/VariableList.h"
#include "ui/frmCfg.h"
#include "ui/frmGS.h"

namespace {

constexpr int kFaultExit = 70;  // EX_SOFTWARE, as vorel run

QList<ServerChoice> Servers() {
    return {{kGameServer, kGameServer}, {frmVorel::tr("Practice dream on this computer"), kPracticeAddress}};
}

/// Where the guide and the reference lie: installed, beside the source, or else with whoever gave the program away.
QString DocumentsFolder() {
    const QDir program(QCoreApplication::applicationDirPath());
    for (const char* const place : {"../share/doc/tandry-vorel/docs", "../../docs"}) {
        if (const QFileInfo folder(program.filePath(place)); folder.isDir()) return folder.canonicalFilePath();
    }
    return "docs";
}

}  // namespace

frmVorel::frmVorel(Dialogs& dialogs, const QString& folder, QWidget* parent)
    : QMainWindow(parent),
      dialogs_(dialogs),
      folder_(folder),
      options_(OptionsFile(folder)),
      host_(*this, TypedPath(folder)),
      updates_(QUrl(QString(kUpdateServer))),
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
    BuildStatusBar();
    connect(console_, &ConsoleFrame::LineTyped, this, &frmVorel::txtSend_Enter);
    connect(console_, &ConsoleFrame::HelpAsked, this, &frmVorel::cmdHelp_Click);
    connect(console_, &ConsoleFrame::NotFound, this,
            [this](const QString& text) { panelReason_->setText(tr("\"%1\" was not found.").arg(text)); });
    resize(980, 660);

    tray_ = new TrayIcon(this);
    connect(tray_, &TrayIcon::RestoreChosen, this, &frmVorel::RestoreFromTray);
    connect(tray_, &TrayIcon::MinimizeChosen, this, &frmVorel::MinimizeToTray);
    connect(tray_, &TrayIcon::ExitChosen, this, &QWidget::close);

    connect(&documents_, &Documents::Told, this, &frmVorel::Announce);
    connect(&documents_, &Documents::TroubleTold, this, &frmVorel::AnnounceTrouble);
    connect(&documents_, &Documents::ProfileTakenUp, this, &frmVorel::ShowTitle);
    connect(&documents_, &Documents::ProfileTakenUp, mnuSession_, &SessionMenu::ShowProfile);
    connect(&documents_, &Documents::ProfileSaved, this, &frmVorel::ShowTitle);
    connect(&documents_, &Documents::ProfileSaved, mnuSession_, &SessionMenu::KeepForProfile);
    connect(&documents_, &Documents::EditorWanted, this, &frmVorel::ShowEditor);
    connect(&updates_, &UpdateCheck::NewerFound, this, &frmVorel::OfferUpdate);
    connect(&updates_, &UpdateCheck::ArchiveDone, this, [this](const QString& why) {
        Announce(why.isEmpty() ? tr("The new version has been saved.")
                               : tr("The new version was not saved: %1").arg(why));
    });
    host_.SetAddressResolver([this](std::string& address, int& port) { OpenPractice(address, port); });
    ::NewProfile(bot());
    mnuSession_->ShowProfile();
    bot().profile.serverAddress =
        TypedPath(options_.Get(option::kServerAddress).isEmpty() ? kGameServer : options_.Get(option::kServerAddress));
    drops_ = std::make_unique<DocumentDrops>(QList<QWidget*>{this, editor_.get()},
                                             [this](const QString& path) { documents_.Open(TypedPath(path)); });
    ShowTitle();
    ShowStatus();
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

    auto* const fmeVars = new QGroupBox(tr("Variables"));
    auto* const vars = new QVBoxLayout(fmeVars);
    lvwVars_ = new VariableList(bot().variables);
    vars->addWidget(lvwVars_, 1);
    auto* const buttons = new QHBoxLayout;
    auto* const cmdAddVar = new QPushButton(tr("&Add"));
    auto* const cmdDelVar = new QPushButton(tr("Remo&ve"));
    cmdAddVar->setObjectName("cmdAdd_Var");
    cmdDelVar->setObjectName("cmdDel_Var");
    cmdAddVar->setAccessibleDescription(tr("Adds a variable"));
    cmdDelVar->setAccessibleDescription(tr("Removes the chosen variable"));
    buttons->addWidget(cmdAddVar);
    buttons->addWidget(cmdDelVar);
    buttons->addStretch();
    vars->addLayout(buttons);
    connect(cmdAddVar, &QPushButton::clicked, lvwVars_, &VariableList::AddRow);
    connect(cmdDelVar, &QPushButton::clicked, lvwVars_, &VariableList::RemoveRow);
    layout->addWidget(fmeVars, 1);

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

    BuildLanguageMenu(configuration->addMenu(tr("&Language")));

    QMenu* const help = AddMenu(*menuBar(), "mnuHelp", tr("&Help"));
    AddItem(*help, "mnuGHelp", "Vorel &Help", QKeySequence::HelpContents, [this] { cmdHelp_Click(); });
}

void frmVorel::BuildLanguageMenu(QMenu* menu) {
    struct Language {
        const char *code, *name;
    };
    // Each language by its own name; the empty code is the desktop's language.
    constexpr Language kLanguages[] = {{"", QT_TR_NOOP("&The desktop's")}, {"en", "&English"}, {"de", "&Deutsch"}};
    menu->setObjectName("mnuLanguage");
    auto* const group = new QActionGroup(menu);
    for (const auto& [code, name] : kLanguages) {
        QAction* const action = group->addAction(*code == '\0' ? tr(name) : QString(name));
        action->setCheckable(true);
        action->setChecked(options_.Get(option::kLanguage) == code);
        menu->addAction(action);
        connect(action, &QAction::triggered, this, [this, code = QString(code)] {
            options_.Set(option::kLanguage, code);
            panelReason_->setText(tr("The language changes with the next start."));
        });
    }
}

void frmVorel::BuildStatusBar() {
    auto* const sbVorel = statusBar();
    sbVorel->setObjectName("sbVorel");
    const auto panel = [&](const char* name, int stretch) {
        auto* const label = new QLabel;
        label->setObjectName(name);
        label->setTextFormat(Qt::PlainText);
        sbVorel->addPermanentWidget(label, stretch);
        return label;
    };
    panelName_ = panel("sbVorel_1", 1);
    panelConnection_ = panel("sbVorel_2", 1);
    panelReason_ = panel("sbVorel_3", 3);
}

// --- what the bot shows ------------------------------------------------------------------------------------------

void frmVorel::Announce(const QString& line) { console_->Append(line); }

void frmVorel::AnnounceTrouble(const QString& line) {
    Announce(line);
    lasting_ << line;
}

void frmVorel::ShowConsoleLine(std::string_view line) {
    const std::string shown = WithoutPasswords(bot(), line);
    Announce(Shown(shown));
    if (!watch_.HasWhisperToTell() || isActiveWindow()) return;
    // Some desktops take what looks like a tag for one.
    tray_->showMessage(tr("A whisper"), Shown(shown).replace('<', QChar(0x2039)));
}

void frmVorel::ClearConsole() {
    console_->Clear();
    lasting_.removeDuplicates();
    for (const QString& line : std::exchange(lasting_, {})) Announce(line);
}

void frmVorel::ShowMessage(std::string_view title, std::string_view text) {
    const auto icon = bot().status.lacksFiles ? Dialogs::Icon::Critical : Dialogs::Icon::None;
    dialogs_.ShowMessage(this, Shown(text), Shown(title), icon);
}

void frmVorel::StatusChanged() { ShowStatus(); }

void frmVorel::ShowStatus() {
    mnuSession_->ShowStatus();
    panelName_->setText(watch_.BotName());
    panelConnection_->setText(watch_.Connection());
    panelReason_->setText(watch_.HowItStands());
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
    if (practice) bot().profile.serverAddress = kPracticeAddress;
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
        panelReason_->setText(tr("The options can't be kept."));
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
        mnuRecent_->addAction(QString(path).replace("&", "&&"), this,
                              [this, path] { documents_.Open(TypedPath(path)); });
    }
}

// --- leaving -----------------------------------------------------------------------------------------------------

void frmVorel::SaveAllSettings() {
    Settings settings;
    settings.recent = documents_.RememberProfile();
    if (!isMinimized()) {
        settings.top = y();
        settings.left = x();
    }
    try {
        SaveSettings(host_.Disk(), TypedPath(folder_), settings);
    } catch (const RuntimeFault& fault) {
        // The console goes with the window.
        dialogs_.ShowMessage(
            this, tr("%1.\nThe next start will not know this profile and the window's place.").arg(ShownFault(fault)),
            kProductName, Dialogs::Icon::Critical);
    }
    options_.Keep();
}

void frmVorel::closeEvent(QCloseEvent* event) {
    SaveAllSettings();
    const bool inOrder = !documents_.HasFaulted();
    // From the tray: questions are asked in a window that can be seen.
    if (inOrder && !isVisible() && documents_.HasChanges()) RestoreFromTray();
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

void frmVorel::OfferUpdate(const QString& version, const QString& text) {
    const QString question = tr("Version %1 is there:\n\n%2\n\nSave it to a place of your choice?").arg(version, text);
    if (dialogs_.Ask(this, question, kProductName) != Dialogs::Answer::Yes) return;
    const auto file = dialogs_.AskSaveFile(this, tr("Save the new version"), tr("Archive (*.zip) | *.zip"), {});
    if (file) updates_.FetchArchive(*file);
}

void frmVorel::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && isMinimized()) {
        QTimer::singleShot(0, this, [this] { MinimizeToTray(); });
    }
}

void frmVorel::MinimizeToTray() {
    if (QSystemTrayIcon::isSystemTrayAvailable()) tray_->show();  // it may have come after the start
    if (!tray_->isVisible()) return showMinimized();
    hide();
    if (options_.Get(option::kTrayExplained)) return;
    options_.Set(option::kTrayExplained, true);
    tray_->showMessage(kProductName, tr("The bot goes on here. A double click brings the window back."));
}

void frmVorel::RestoreFromTray() {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

// --- what the controls do ----------------------------------------------------------------------------------------

void frmVorel::txtSend_Enter(const QString& line) {
    host_.RunHandler([&] { host_.session().TypeLine(Typed(line)); });
}

/// For a program that starts in another folder; as the profile has it when there is no such file.
QString frmVorel::CharacterFile() {
    const auto found = FindProfileFile(bot(), bot().profile.characterPath);
    const bool named = !found || FitsCodePage(host_.Disk().Absolute(*found));
    return named ? Shown(bot().profile.characterPath) : ShownPath(host_.Disk().Absolute(*found));
}

void frmVorel::cmdC_Click(const QString& caption) {
    if (caption == kVorelConfigurationTool) return ShowConfiguration();
    const std::string folder = host_.CurrentFolder();
    const bool playerEditor = caption == kPlayerEditorTool;
    const auto program = host_.Disk().Find(JoinPath(folder, playerEditor ? "FurEd.exe" : "config.exe"));
    if (!program) return;
    // A bare name would be looked for along the search path.
    const QString absolute = ShownPath(host_.Disk().Absolute(*program));
    const QStringList arguments = playerEditor ? QStringList{CharacterFile()} : QStringList();
    if (!QProcess::startDetached(absolute, arguments, ShownPath(folder))) {
        Announce(tr("%1 could not be started.").arg(absolute));
    }
}

void frmVorel::cmdHelp_Click() {
    dialogs_.ShowMessage(
        this,
        tr("How to make a bot is told in guide.md, and every command in language.md, both in %1. Other makers are glad "
           "to help in the game's own bot-making dreams.\n\nSettings and data files are kept in %2.")
            .arg(DocumentsFolder(), folder_),
        "Help", Dialogs::Icon::Information);
}

void frmVorel::ShowConfiguration() {
    frmCfg configuration(bot().profile, Servers(), dialogs_, this);
    configuration.exec();
    options_.Set(option::kServerAddress, ShownPath(bot().profile.serverAddress));
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

void frmVorel::OpenPractice(std::string& address, int& port) {
    if (address != kPracticeAddress) return;
    PracticeSettings settings;
    const std::string tourFile = JoinPath(FolderOf(bot().profile.path), "tour.txt");
    if (const auto tour = host_.Disk().Find(tourFile)) {
        TourReading reading = ReadTour(host_.Disk().Read(*tour), *tour);
        if (!reading.fault.empty()) lasting_ << QString::fromStdString(reading.fault);
        settings.tour = std::move(reading.tour);
    }
    practice_ = std::make_unique<PracticeServer>(std::move(settings));
    const auto listening = practice_->Listen(0);
    if (listening.port == 0) Announce(tr("The practice dream can't be opened: %1").arg(listening.fault));
    address = "127.0.0.1";
    port = listening.port;
}
