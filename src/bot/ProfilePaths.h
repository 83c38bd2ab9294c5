#pragma once

#include <optional>
#include <string>
#include <string_view>

struct Bot;

/// Finds a file that the bot's profile names. A relative path that does not exist from the current folder is taken
/// from the profile's own.
/// @param pathText  as written in the profile (Windows-1252)
/// @return the existing file's path (UTF-8); nothing when there is none
std::optional<std::string> FindProfileFile(const Bot& bot, std::string_view pathText);

/// How a profile is to name a file: by its path; and by the way from the profile's folder, when the path holds letters
/// that a profile can't hold and the way doesn't.
/// @param profile  the profile's own path, absolute, UTF-8; empty while it has none
/// @param path     UTF-8
/// @return Windows-1252; nothing when the profile can't name the file
std::optional<std::string> NameInProfile(const std::string& profile, const std::string& path);

/// Names the files of the bot's profile anew that a profile at another path would not find under their names of now.
/// Only those are looked at whose whole path a profile can't hold.
/// @param path  where the profile is about to be saved, absolute, UTF-8
/// @return the file that can't be named from there (UTF-8), and then no name has changed
std::optional<std::string> NameFilesFrom(Bot& bot, const std::string& path);
