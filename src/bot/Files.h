#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "text/Outcome.h"

/// How large a data file of a script may be, in bytes: 16 MiB is far more than a script can go through at one event.
inline constexpr std::size_t kDataFileLimit = std::size_t{16} * 1024 * 1024;

/// The small file beside the game's client that tells it where to connect.
inline constexpr char kProxyFile[] = "proxy.ini";

/// The file system, as far as a bot may touch it. Paths are UTF-8; contents are bytes as they stand in the file.
/// A relative path starts from the current folder. What can't be done is an outcome, with path and reason.
class Files {
  public:
    virtual ~Files() = default;

    /// @return the whole file; FileNotFound, or PathOrFileAccess when it can't be read
    virtual Outcome<std::string> Read(const std::string& path) const = 0;

    /// Writes the file whole or not at all: after a crash or on a full disk the old or the new one is there.
    /// @return PathOrFileAccess, when it can't be written
    virtual Outcome<Done> Write(const std::string& path, std::string_view bytes) = 0;

    /// The path of the existing file with the name that path ends in, letter case apart; the same case wins.
    /// Folders don't count as files.
    virtual std::optional<std::string> Find(const std::string& path) const = 0;

    /// The path made absolute from the current folder, for keeping.
    virtual std::string Absolute(const std::string& path) const = 0;

    // Data files: what a script may open. It knows them by a name in a folder, and may be anybody's work.

    /// The path of what lies in the folder under that name, letter case apart; the same case wins. Where nothing does,
    /// the path that a new file would have. NUL and other control characters of the name become "_".
    virtual std::string DataPath(const std::string& folder, const std::string& name) const = 0;

    /// Never waits, whatever lies there.
    /// @return the whole file; nothing when there is none; PathOrFileAccess for what is no ordinary file, what a link
    ///         leads to out of the folder, what is larger than kDataFileLimit, and what can't be read
    virtual Outcome<std::optional<std::string>> ReadData(const std::string& path) const = 0;

    /// True when both paths lead to one file, by links too; and where there is none, when it would be the same.
    virtual bool LeadToSameFile(const std::string& a, const std::string& b) const = 0;

    class Lock {
      public:
        virtual ~Lock() = default;
    };

    /// Keeps every other program that asks for the same lock waiting until the returned one is gone, so that a file
    /// of the folder can be read and written with nobody in between. A program that crashes holds none any more.
    /// @return the lock; PathOrFileAccess, when another one has it for too long
    virtual Outcome<std::unique_ptr<Lock>> LockFolder(const std::string& folder) = 0;
};

/// Joins a folder and what lies in it; a path that is absolute already stays itself, an empty folder adds nothing.
std::string JoinPath(std::string_view folder, std::string_view path);

/// What stands behind the last separator of a path, and what stands before it (empty when there is none).
std::string FileNameOf(std::string_view path);
std::string FolderOf(std::string_view path);
