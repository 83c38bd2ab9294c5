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
