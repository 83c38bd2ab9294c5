#pragma once

#include <cstddef>

struct Bot;
class ServerLine;

/// How many visitors' events one list may raise. No dream holds a hundredth as many visitors; but a name that stands in
/// two lists many times raises an event for each pair, and a list made for that would keep the bot busy for hours.
inline constexpr std::size_t kMostVisitorEvents = 100000;

/// Reads a "(*" line: notices about players, the time, visitor lists, and how many are in a dream.
void ReadSystemNotice(Bot& bot, const ServerLine& line);
