#pragma once

#include <string>
#include <string_view>

/// The command line that a line typed at the keyboard stands for, under the rules of the bot's own console: "/NAME
/// TEXT" whispers, "-" and ":" lines go out as they stand, "`" sends the rest, and anything else is said.
std::string CommandOfTypedLine(std::string_view typed);
