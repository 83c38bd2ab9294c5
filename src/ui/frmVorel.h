#pragma once

#include <QElapsedTimer>
#include <QLabel>
#include <QMainWindow>
#include <memory>
#include <string>
#include <vector>

#include "platform/FrontEnd.h"
#include "platform/QtHost.h"
#include "ui/Options.h"
#include "ui/Recovery.h"
#include "ui/UpdateCheck.h"

class ConsoleFrame;
class Dialogs;
class DocumentDrops;
class PracticeServer;
class QAction;
class QMenu;
class TrayIcon;
class VariableList;
class frmGS;
struct ProfileLoad;
struct Settings;

/// Where the address list's practice dream leads; no host has this name.
inline constexpr char kPracticeAddress[] = "practice dream";

/// The main window: console, input line, control panel, variables, and the menus that start and stop the session.
/// It owns the bot's host, and lives until the program ends.
class frmVorel final : public QMainWindow, public FrontEnd {
    Q_OBJECT

  public:
    /// @param folder  the program's own, UTF-8
    frmVorel(Dialogs& dialogs, const QString& folder, QWidget* parent = nullptr);
    ~frmVorel() override;

    QtHost& host() { return host_; }
    frmGS& editor() { return *editor_; }

    /// Reads the settings, offers back what a crash has left, and opens the documents, or when no profile is among them
    /// the most recent one.
    /// @param documents  paths of ".tvm" and ".vs" files, UTF-8
    /// @param practice   connects to the practice dream at once, whatever is set
    void Start(const std::vector<std::string>& documents = {}, bool practice = false);

    /// Opens a ".tvm" or ".vs" file that the desktop or a drop has handed over; asks about unsaved changes first.
    /// @param path  UTF-8
    void OpenDocument(const std::string& path);

    // FrontEnd
    void ShowConsoleLine(std::string_view line) override;
    void ClearConsole() override;
    void ShowMessage(std::string_view title, std::string_view text) override;
    void StatusChanged() override;
    void EndWithFault(const RuntimeFault& fault) override;

    /// Shows a line of the program's own in the console.
    void Announce(const QString& line);

    /// The same for what is not to be missed: once more when the session's console begins.
    void AnnounceTrouble(const QString& line);

  protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    Dialogs& dialogs_;
    QString folder_;
    Options options_;
    std::unique_ptr<PracticeServer> practice_;
    QtHost host_;
    Recovery recovery_;
    QTimer keepUnsaved_{this};
    UpdateCheck updates_;
    QElapsedTimer opened_;  ///< since the profile was opened; invalid for a new one
    bool faulted_ = false;
    bool toldUnkept_ = false;     ///< that unsaved work can't be put aside
    bool scriptLeftOut_ = false;  ///< at the start: a bot without its script is not to connect by itself
    QStringList lasting_;         ///< to be told when the session's console begins

    ConsoleFrame* console_;
    VariableList* lvwVars_;
    QLabel *panelName_, *panelConnection_, *panelReason_;
    QMenu* mnuRecent_;
    QAction* keepsSplitLines_;
    std::unique_ptr<frmGS> editor_;
    TrayIcon* tray_;
    std::unique_ptr<DocumentDrops> drops_;

    QWidget* BuildRightSide();
    void BuildMenus();
    void BuildLanguageMenu(QMenu* menu);
    void BuildStatusBar();

    Bot& bot() { return host_.bot(); }
    const SessionStatus& status() const { return host_.bot().status; }
    void ShowTitle();
    void ShowRecentProfiles();
    void ShowSplitLines();
    void KeepSplitLines(bool keep);
    void ShowLoaded(const ProfileLoad& load, const std::string& path);
    void ShowStatus();
    QString HowItStands() const;
    void QuitAfterFault();

    void NewProfile();
    void OpenProfileByMenu();
    void TakeUpProfile(const std::string& path, const std::string& bytes);
    void OpenProfileFile(const std::string& path);
    bool SaveProfile();
    bool SaveProfileAs();
    bool WriteProfile(const std::string& path);
    bool MayDropChanges(bool offersCancel = true);
    void SaveAllSettings();
    void BeginWork(const std::vector<std::string>& documents);
    void MoveTo(const Settings& settings);

    void txtSend_Enter(const QString& line);
    QString CharacterFile();
    void cmdC_Click(const QString& caption);
    void cmdHelp_Click();
    void ShowConfiguration();
    void ShowEditor();
    void ChooseBrake();
    void RunScriptOnce();
    void OpenPractice(std::string& address, int& port);
    void OfferUpdate(const QString& version, const QString& text);
    QString KeepUnsavedWork();
    void KeepUnsavedWorkOrTell();
    bool Wants(const QString& what, const std::string& file);
    void NotifyWhisper(std::string_view line);
    void MinimizeToTray();
    void RestoreFromTray();
};
