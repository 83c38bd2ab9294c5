#pragma once

#include <QMainWindow>
#include <string>

#include "ui/ScriptFile.h"

class CommandTree;
class Dialogs;
class FindBar;
class QsciScintilla;
class QtHost;
class VorelSpeakLexer;

/// The script editor. It is made hidden when the program starts; closing it only hides it. What is typed reaches the
/// bot when it is saved.
class frmGS final : public QMainWindow {
    Q_OBJECT

  public:
    frmGS(QtHost& host, Dialogs& dialogs);

    /// Shows what the bot's script is now, after a profile was loaded: its text, its file, nothing unsaved.
    void ShowBotScript();

    /// Shows a script file that the bot does not run until it is saved here.
    /// @param path  of an existing file, UTF-8
    /// @return its text; a fault, and nothing else happens, when it can't be read
    Outcome<std::string> ShowFile(const std::string& path);

    /// An empty script with the template.
    void NewScript();

    /// Opens a script file and runs EventScriptLoaded; asks about unsaved changes first.
    /// @param path  UTF-8
    void OpenScript(const std::string& path);

    /// Asks about unsaved changes before something else takes their place.
    /// @return false when the user would rather stay
    bool AskToDropChanges(bool offersCancel = true);

    /// Opens a script with text put aside earlier, as an unsaved change of a file (empty: of none).
    void RestoreText(const std::string& path, const std::string& text);

    /// @return false when the user cancelled, or the file can't be written
    bool Save();
    bool SaveAs();

    /// Whether something was changed since the script was opened or saved.
    bool IsDirty() const;

    std::string ScriptText() const;
    const std::string& Path() const { return file_.Path(); }

    /// Names a script in the profile that could not be named there, when a profile at another path can.
    /// @param profile  where the profile is about to be saved, absolute, UTF-8
    void NameScriptFrom(const std::string& profile) { file_.NameFrom(profile); }

    /// Fills the tree of commands from the command list.
    /// @param path  UTF-8; a missing file leaves the roots empty
    void LoadCommands(const std::string& path);

    /// Lets the program end: from now on closing closes.
    void Unload() { unloading_ = true; }

    /// Puts the caret on a line, counted from 1.
    void GoToLine(int line);

  signals:
    /// Another script than the profile named was saved or opened; it names that one now.
    void ScriptFileChanged();

    /// The script that was opened or saved can't run, or not as it is meant; see FileRemark.
    void ScriptRemarked(const QString& remark);

  protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    QtHost& host_;
    Dialogs& dialogs_;
    ScriptFile file_;
    bool unloading_ = false;

    QsciScintilla* txtScript_;
    VorelSpeakLexer* lexer_;
    CommandTree* commands_;
    FindBar* findBar_;

    void BuildText();
    void BuildMenus();
    void FollowPalette();
    void ShowTitle();
    void SetText(const std::string& text);
    void InsertCommand(const QString& command);
    void AskForLine();
    void Open();
    void ReadFrom(const std::string& path);
    void NameInProfile();
    void RunText(const std::string& text);
    bool WriteTo(const std::string& path);
    bool AskAboutLosses();
};
