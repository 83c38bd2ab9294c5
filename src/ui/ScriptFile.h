#pragma once

#include <string>

#include "text/Outcome.h"

class QtHost;

/// The script file that is open in the editor: reads and writes it, and has the bot's profile name it.
/// Paths are UTF-8, scripts Windows-1252.
class ScriptFile {
  public:
    explicit ScriptFile(QtHost& host) : host_(host) {}

    /// Empty for a new script.
    const std::string& Path() const { return path_; }

    /// A new script has no file yet.
    void Forget();

    /// The file of the script that the bot runs.
    void TakeBotScript();

    /// The file that an unsaved script is a change of, even if it is gone.
    void TakePath(const std::string& path) { path_ = path; }

    /// @return the script in a file, which is the one that is open from now on; a fault, and nothing else happens, when
    ///         it can't be read
    Outcome<std::string> Read(const std::string& path);

    /// Writes a script; ".vs" is added to a name without it.
    /// @return a fault when it can't be written; then the old file stays the one that is open
    Outcome<Done> Write(const std::string& path, const std::string& script);

    enum class Naming { AsBefore, Anew, Impossible };

    /// Has the profile name this file. One that names it already, perhaps from its own folder, keeps it as it stands.
    Naming NameInProfile();

    /// Names a script in the profile that could not be named there, when a profile at another path can.
    /// @param profile  where the profile is about to be saved, absolute
    void NameFrom(const std::string& profile);

  private:
    QtHost& host_;
    std::string path_;
    bool unnamed_ = false;  ///< the profile, as it lies now, can't name the script
};
