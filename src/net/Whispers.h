#pragma once

struct Bot;
class ServerLine;

/// Reads a "([ " line: a whisper to the bot or the echo of its own. Answers the built-in words by itself: "botstat",
/// "vorel-help", and "shut down" from a furre who may say so.
/// @return whether the line is to be shown: what an ignored furre whispers is not
bool ReadWhisper(Bot& bot, const ServerLine& line);
