#pragma once

#include <cstdint>
#include <string_view>

struct Bot;

/// Reads one line of the game server: updates the bot's state, answers what the bot answers by itself, shows text
/// lines on the console and raises the events the line stands for. Unknown lines are passed over.
/// @param line  as received, without its line feed; carriage returns are part of it
/// @return always -1: every line goes on to a linked client, whatever was made of it
/// @throws RuntimeFault InvalidProcedureCall, when the line is too short for its kind; SubscriptOutOfRange, for a time
///         of fewer than three parts; Overflow, for a number beyond 16 bits; what the script raises
std::int16_t ParseServerLine(Bot& bot, std::string_view line);
