#pragma once

#include <string>
#include <string_view>

#include "net/Link.h"
#include "net/SendBrake.h"

// What a session says to its user beside the game's own lines. Windows-1252.

/// Why the bot can't connect, when a file that it takes is not there; empty when all are.
std::string_view MissingFiles(bool character, bool client);

/// @param socket  "Server" or "Client"
std::string ErrorLine(std::string_view socket, const SocketError& error);

/// That a server has not answered for a while.
/// @param givenUpAfter  in seconds
std::string SilenceLine(std::string_view address, int givenUpAfter);

/// @param seconds  until the bot connects again
std::string NextTryLine(int seconds);

/// @param whose  "the server" or "the client"
std::string LeftOutLine(std::string_view whose);

/// What the brake has to tell; empty when it has nothing.
std::string BrakeLine(const SendBrake::Report& report);

/// @param program  UTF-8
std::string ClientRefusedLine(const std::string& program, const StartRefusal& refusal);

inline constexpr std::string_view kNoFreePort =
    "No port on this computer is free for the Furcadia client to connect to.";
inline constexpr std::string_view kNoClientWindow =
    "On this desktop the Furcadia client's window can't be found, so it can't be closed either.";
