#pragma once

#include <optional>
#include <string>
#include <string_view>

/// The file system, as far as a bot may touch it. Paths are UTF-8; contents are bytes as they stand in the file.
/// A relative path starts from the current folder.
class Files {
  public:
    virtual ~Files() = default;

    /// The whole file.
    /// @throws RuntimeFault FileNotFound, or PathOrFileAccess when it can't be read
    virtual std::string Read(const std::string& path) const = 0;

    /// Writes the file whole or not at all: after a crash or on a full disk the old or the new one is there.
    /// @throws RuntimeFault PathOrFileAccess
    virtual void Write(const std::string& path, std::string_view bytes) = 0;

    /// The path of the existing file with the name that path ends in, letter case apart; the same case wins.
    /// Folders don't count as files.
    virtual std::optional<std::string> Find(const std::string& path) const = 0;

    /// The path made absolute from the current folder, for keeping.
    virtual std::string Absolute(const std::string& path) const = 0;
};

/// Joins a folder and what lies in it; a path that is absolute already stays itself, an empty folder adds nothing.
std::string JoinPath(std::string_view folder, std::string_view path);

/// What stands behind the last separator of a path, and what stands before it (empty when there is none).
std::string FileNameOf(std::string_view path);
std::string FolderOf(std::string_view path);
