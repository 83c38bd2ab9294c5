#pragma once

struct Bot;
class ServerLine;

/// Reads a "(" line: speech, whispers, emotes and the server's notices. Shows it on the console unless it comes from
/// an ignored furre or the bot is being shut down.
void ReadTextLine(Bot& bot, const ServerLine& line);
