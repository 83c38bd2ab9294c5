#pragma once

#include <string_view>

struct Bot;

/// Reads one line of the linked client, or one typed on the console, on its way to the game server. Learns the bot's
/// name, password and colours from the login lines, turns the client's description into the bot's own, and raises
/// EventClientCommand for what begins with a double quote and "&".
/// @return true when the line is to go on to the server; false when it was used up here
/// @throws RuntimeFault InvalidProcedureCall, when a "color " line is too short; what the script raises
bool FilterClientLine(Bot& bot, std::string_view line);

/// Whether a line of the client is a login, from which FilterClientLine learns the bot's name.
bool IsLogin(std::string_view line);
