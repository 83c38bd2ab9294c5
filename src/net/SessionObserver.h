#pragma once

#include <string_view>

/// Is told what happens around a bot, in the order in which it happens, such as for a recording.
class SessionObserver {
  public:
    enum class Happening {
        Connected,
        Closed,  ///< the game server
        Linked,
        Unlinked,  ///< the local client
        ServerLine,
        ClientLine,  ///< a line that arrived, without its line feed
        Typed,       ///< a line typed on the console
        ScriptTick,
        WalkStep,  ///< the timers
        Sent,      ///< a command line to the game server, without its line feed
    };

    virtual ~SessionObserver() = default;

    /// @param text  the line; empty for what has none. It may hold the password of a login line.
    virtual void Note(Happening happening, std::string_view text) = 0;
};
