#pragma once

struct Bot;
class ServerLine;

/// Reads a "([" line that is no whisper: "([#" notices, "([*" notices of requests and dice, "([%" cookies.
void ReadBracketNotice(Bot& bot, const ServerLine& line);
