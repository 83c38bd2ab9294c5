#pragma once

#include <string>
#include <string_view>

struct Bot;

/// What stands for a password in everything that the programs show or write.
inline constexpr std::string_view kMaskedPassword = "********";

/// The text with stars wherever one of the bot's passwords stands in it: that of its character file, and the one it has
/// logged in with. The bot may be in the middle of anything; an empty password is nowhere.
/// @param text  Windows-1252 or UTF-8
std::string WithoutPasswords(const Bot& bot, std::string_view text);

/// A line on its way to the game, with stars in place of the password of a login: "connect name password", behind
/// whatever marks it as a command or as speech. Any other line stays as it is.
std::string WithoutPassword(std::string_view line);
