#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <optional>
#include <string>
#include <vector>

#include "engine/FileRemarks.h"
#include "ui/Recovery.h"

class Dialogs;
class Options;
class QtHost;
class frmGS;
struct Bot;
struct ProfileLoad;

/// Whether a path names a profile or a script, by its extension; nothing for any other file.
std::optional<FileKind> DocumentKind(const std::string& path);

/// The bot's profile and, in the editor, its script, as files of the user's: new ones, opened and saved ones, the
/// recent ones, and what is put aside unsaved and offered back after a crash. What has to be asked is asked by the
/// dialogs; what is to be shown goes out as a signal. Paths are UTF-8.
class Documents final : public QObject {
    Q_OBJECT

  public:
    /// @param window  the parent, and that of the questions
    /// @param folder  the program's own
    Documents(QWidget* window, QtHost& host, Dialogs& dialogs, Options& options, frmGS& editor, const QString& folder);

    /// Offers back what a crash has left, then opens the documents, or when no profile is among them the recent one.
    /// From now on unsaved work is put aside.
    void Begin(const std::string& recent, const std::vector<std::string>& documents);

    void NewProfile();
    void OpenProfile();

    /// Opens a ".tvm" or ".vs" file; asks about unsaved changes first.
    void Open(const std::string& path);

    /// @return false when the user cancelled, or the file can't be written
    bool SaveProfile();
    bool SaveProfileAs();

    bool HasChanges() const;

    /// Asks about unsaved changes before something else takes their place, and saves those that are wanted.
    /// @return whether it may; false when the user would rather stay
    bool AskToDropChanges(bool offersCancel = true);

    /// Keeps for the next start which profile is open.
    /// @return its path as the settings are to have it
    std::string RememberProfile();

    /// The program ends in order: nothing is unsaved any more.
    void End();

    /// The program ends with a fault: nothing is opened any more, and a profile that is to blame is remembered.
    void EndWithFault();
    bool HasFaulted() const { return faulted_; }

    /// Puts the unsaved work aside a last time.
    /// @return what became of it, for the user; empty when nothing is unsaved
    QString PutAsideAfterFault();

    /// Whether the bot stands without its script, since that may have ended the program.
    bool IsScriptLeftOut() const { return scriptLeftOut_; }

  signals:
    void Told(const QString& line);

    /// The same for what is not to be missed.
    void TroubleTold(const QString& line);

    /// Another profile is the bot's now.
    void ProfileTakenUp();

    /// The profile has been saved, perhaps under another name.
    void ProfileSaved();

    void EditorWanted();

  private:
    QWidget* window_;
    QtHost& host_;
    Dialogs& dialogs_;
    Options& options_;
    frmGS& editor_;
    QString folder_;
    Recovery recovery_;
    QTimer keepUnsaved_{this};
    QElapsedTimer opened_;  ///< since the profile was opened; invalid for a new one
    bool faulted_ = false, scriptLeftOut_ = false;
    bool toldUnkept_ = false;  ///< that unsaved work can't be put aside

    Bot& bot() const;
    void OpenProfileFile(const std::string& path);
    void TakeUpProfile(const std::string& path, const std::string& bytes);
    void ShowLoaded(const ProfileLoad& load, const std::string& path);
    bool WriteProfile(const std::string& path);
    bool AskToTakeBack(const QString& what, const std::string& file);
    std::string PutAside();
    void PutAsideOrTell();
};
