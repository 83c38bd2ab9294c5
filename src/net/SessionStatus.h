#pragma once

#include <string>

/// What the menus and the status bar of a window show of the session.
struct SessionStatus {
    bool canConnect = true, canDisconnect = false, canStandAlone = false;
    std::string botName;     ///< "|" shown as blanks
    std::string connection;  ///< "Connected", "Disconnected", or empty before the first connection

    /// How the last session ended: not at all yet, by the bot's own doing, by the server, or by an error.
    enum class End { NotYet, Asked, ByServer, ByError };
    End end = End::NotYet;
    std::string reason;  ///< of an error, in words

    bool lacksFiles = false;  ///< the bot was to connect, but its character or client is not there

    int nextTry = 0;  ///< in how many seconds the bot tries to connect again; 0 when it doesn't

    /// How often running the server has closed the connection before it let the bot in. Once may be the server's own
    /// trouble, so many times are a refused login.
    int refusals = 0;
    static constexpr int kRefusalsToBelieve = 5;
    bool IsLoginRefused() const { return refusals >= kRefusalsToBelieve; }

    /// Whether the bot is neither connected nor about to be.
    bool IsIdle() const { return canConnect && nextTry == 0; }

    /// Whether the last connection was lost, refused or could not be had, instead of given up by the bot.
    bool IsLost() const { return end == End::ByServer || end == End::ByError; }
};
