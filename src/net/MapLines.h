#pragma once

struct Bot;
class ServerLine;

/// Reads a ";" line, which names the file of the map entered.
void ReadMapLine(Bot& bot, const ServerLine& line);
