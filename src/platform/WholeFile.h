#pragma once

#include <sys/types.h>

#include <optional>
#include <string>
#include <string_view>

#include "platform/Descriptor.h"
#include "text/Outcome.h"

/// A file that is written whole or not at all. It grows under a temporary name beside its place, is synced to the disk
/// and renamed over what was there, and then the folder is synced: whenever a call fails, the program is killed or the
/// power goes, the old file is there or the new one, never half of one.
///
/// What becomes of that which stands in its place:
///   nothing there      a new file comes about, for its owner alone (0600): it may hold what visitors have whispered
///   a file             is replaced, and its mode is kept
///   a symbolic link    stays; the file that it leads to is replaced, or made when the link leads nowhere
///   a file that may not be written, or one in a folder where nothing new can be made
///                      is refused: the temporary needs a place, and a file that somebody has protected is meant to
///                      stay
///   a folder, a device or the like
///                      is refused, for a file can't take its place
///
/// The temporary is called ".tvorel-unfinished-" and 16 hexadecimal digits, a name that no file of a bot can have, and
/// is locked while it is written. A process that was killed leaves it behind, unlocked: ClearUnfinished takes it away.
///
/// After something has gone wrong nothing more is done; Commit says what it was.
class WholeFile {
  public:
    /// Begins the file; the first one in a folder takes away what killed processes have left there.
    /// @param path  UTF-8
    explicit WholeFile(std::string path);

    /// Takes the temporary away when the file was not committed.
    ~WholeFile();
    WholeFile(const WholeFile&) = delete;
    WholeFile& operator=(const WholeFile&) = delete;

    void Append(std::string_view bytes);

    /// What has gone wrong so far, for those who don't want to wait for Commit.
    const std::optional<RuntimeFault>& Trouble() const { return trouble_; }

    /// Puts what was appended into its place.
    /// @return PathOrFileAccess with the path and the reason, when anything has gone wrong. What comes only when the
    ///         folder is synced or the file closed finds the new file in its place, but nobody can promise that it
    ///         stays there when the power goes.
    Outcome<Done> Commit();

  private:
    std::string path_;       ///< as it was asked for, for faults
    std::string name_;       ///< what it is renamed to, in the folder
    std::string temporary_;  ///< its name until then; empty when there is none
    Descriptor folder_, file_;
    std::optional<mode_t> mode_;  ///< of the file in its place; nothing when there is none
    std::optional<RuntimeFault> trouble_;

    // Each step says whether all is well; if not, trouble_ tells why.
    bool Begin();
    bool OpenFolder(const std::string& folder);
    bool ReadModeInPlace();
    bool MakeTemporary();
    bool Finish();
    bool KeepMode();
    bool PutIntoPlace();
    bool Check(int result);
    bool Fail(const std::string& reason);
};

/// Takes away the temporaries that killed processes have left in a folder. Those of running programs stay, and so does
/// everything that has another name. Where nothing can be locked or taken away, nothing happens.
/// @param folder  UTF-8; empty for the current one
void ClearUnfinished(const std::string& folder);
