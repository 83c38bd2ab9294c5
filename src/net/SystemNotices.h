#pragma once

struct Bot;
class ServerLine;

/// Reads a "(*" line: notices about players, the time, visitor lists, and how many are in a dream.
void ReadSystemNotice(Bot& bot, const ServerLine& line);
