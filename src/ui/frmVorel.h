#pragma once

#include <QMainWindow>
#include <memory>
#include <string>
#include <vector>

#include "platform/FrontEnd.h"
#include "platform/QtHost.h"
#include "ui/Documents.h"
#include "ui/Options.h"
#include "ui/PracticeDoor.h"
#include "ui/SessionWatch.h"
#include "ui/Tools.h"
#include "ui/UpdateOffer.h"

class ConsoleFrame;
class Dialogs;
class DocumentDrops;
class SessionMenu;
class StatusPanels;
class QMenu;
class TrayIcon;
class frmGS;
struct Settings;

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
    void OpenDocument(const std::string& path) { documents_.Open(path); }

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
    QtHost host_;
    SessionWatch watch_{host_.bot(), host_.session().status(), options_};
    PracticeDoor practice_;
    UpdateOffer updates_;

    ConsoleFrame* console_;
    QMenu* mnuRecent_;
    SessionMenu* mnuSession_;
    StatusPanels* panels_;
    std::unique_ptr<frmGS> editor_;
    Documents documents_;
    TrayIcon* tray_;
    std::unique_ptr<DocumentDrops> drops_;

    QWidget* BuildRightSide();
    void BuildMenus();

    Bot& bot() { return host_.bot(); }
    void ShowTitle();
    void ShowRecentProfiles();
    void QuitAfterFault();

    void SaveAllSettings();
    void BeginWork(const std::vector<std::string>& documents);
    void MoveTo(const Settings& settings);

    void txtSend_Enter(const QString& line);
    void cmdC_Click(Tool tool);
    void cmdHelp_Click();
    void ShowConfiguration();
    void ShowEditor();
    void RunScriptOnce();
};
