#pragma once

struct Bot;
class ServerLine;

/// Reads the dice roll in a "([*" line, if it holds one: "… rolls 2d6 …".
/// With " & gets " the line tells the total alone, otherwise it lists the single dice as well.
void ReadDice(Bot& bot, const ServerLine& line);
