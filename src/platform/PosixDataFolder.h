#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <string>

#include "bot/Files.h"

/// The folder of the scripts' data files on POSIX systems. What each operation takes and returns stands in Files.
namespace modDataFolder {

/// How long a program waits for another one's lock. One is held for a few milliseconds, so that this is for ever.
inline constexpr std::chrono::milliseconds kPatience{5000};

std::string PathOf(const std::string& folder, const std::string& name);
Outcome<std::optional<std::string>> Read(const std::string& path);
bool LeadToSameFile(const std::string& a, const std::string& b);

/// The lock lies on the folder itself, so that no file is left behind and no data file can be in its way. On a file
/// system that knows no such lock, and in a folder that is not there, nothing is locked.
Outcome<std::unique_ptr<Files::Lock>> LockFolder(const std::string& folder, std::chrono::milliseconds patience);

/// The same, giving nothing when another program has it for too long.
std::unique_ptr<Files::Lock> TryLockFolder(const std::string& folder, std::chrono::milliseconds patience);

}  // namespace modDataFolder
