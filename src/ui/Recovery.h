#pragma once

#include <memory>
#include <optional>
#include <string>

#include "bot/Files.h"

class QLockFile;

/// Unsaved work put aside in a folder that is the program's alone, to be offered back at the next start after a crash.
/// Several programs may run from one folder: each has files of its own, under a number that it keeps locked while it
/// runs.
class Recovery {
  public:
    struct Copy {
        std::string path;     ///< the file it is an unsaved change of, UTF-8; empty for a new one
        std::string profile;  ///< the profile that was open, UTF-8; empty for a new one
        std::string bytes;    ///< the file as it would have been written
    };

    /// Takes the first number that no running program has, or rather one whose program has left work behind.
    /// @param folder  UTF-8
    Recovery(Files& disk, const std::string& folder);
    ~Recovery();
    Recovery(const Recovery&) = delete;
    Recovery& operator=(const Recovery&) = delete;

    /// Puts the unsaved script or profile aside, or clears the copy when there is nothing unsaved. Writes only when
    /// something has changed since the last time.
    /// @return why it could not be written; empty when it was
    std::string KeepScript(const std::optional<Copy>& unsaved) { return Keep(script_, unsaved); }
    std::string KeepProfile(const std::optional<Copy>& unsaved) { return Keep(profile_, unsaved); }

    /// What an earlier run has left; nothing when it ended in order.
    std::optional<Copy> FoundScript() const { return Found(script_); }
    std::optional<Copy> FoundProfile() const { return Found(profile_); }

  private:
    struct Slot {
        std::string file;
        std::optional<std::string> written{};  ///< nothing: what an earlier run has left is still there
    };
    Files& disk_;
    std::unique_ptr<QLockFile> lock_;
    Slot script_, profile_;

    std::string Keep(Slot& slot, const std::optional<Copy>& unsaved);
    std::optional<Copy> Found(const Slot& slot) const;
};
