#pragma once

#include <span>
#include <string_view>

#include "bot/Events.h"

/// One of the game's events, as the people who write scripts see it. The cause that answers it explains it; see
/// language/Commands.h. What is a fact of it stands in bot/Events.h.
struct EventDescription {
    GameEvent code;
    std::string_view raisedBy;  ///< what the game sends, or what else happens
    std::string_view session;   ///< an example, as instructions of a written session, for a bot that is called Greeter
};

/// All events, by code.
std::span<const EventDescription> AllEvents();
