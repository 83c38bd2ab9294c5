#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "game/DragonSpeakNotice.h"
#include "game/Furre.h"
#include "game/Square.h"

/// The furre that moved last, for which the game has no name.
struct Mover {
    std::string colors;
    std::int16_t frame = 0;
};

struct StandardTime {
    std::int16_t hour = 0, minute = 0, second = 0;
    std::string median;  ///< "AM" or "PM", as received
};

struct Dice {
    std::int16_t amount = 0, sides = 0, total = 0;
};

/// What a session fills. A login begins with a new one.
struct KnownThisSession {
    std::string message;
    Mover move;

    Furre vorel;           ///< the bot's own character
    std::string password;  ///< for the login line only: never shown, logged or recorded

    Furre player;           ///< who spoke or acted in a speech-type event
    std::string playerTag;  ///< the badge code of that furre, or the whole "#A" line it came in

    Furre look;
    Square breath, flame;

    std::string mapFile, map, previousMap;
    std::string dreamName;
    std::vector<Square> dreams;  ///< the squares that hold dreams; a walk never steps on one

    DragonSpeakNotice dsbot, ds;
    StandardTime fst;
    std::vector<std::int16_t> dieValues{0};  ///< the single dice; one 0 before the first roll

    std::string visitors, newVisitors;  ///< see game/Lists.h

    std::string requester;                   ///< the furre of a request, notice or roll
    std::string onlineName;                  ///< the furre of an online answer
    std::string arrived, present, departed;  ///< the visitor of events 21, 22 and 23
    std::string cookieGiver, cookieName;

    bool shutDown = false;  ///< text lines are no longer shown
};

/// What a login leaves as it is. Kept on purpose: scripts in use go on with the squares, the counts and the last roll
/// of the session before, though its single dice are gone.
struct KnownAcrossLogins {
    Square moveFrom, moveInto;
    Square vorelFrom, vorelInto;
    std::int16_t vorelFrame = 0;
    Square dream;
    Dice dice;
    std::int16_t visitorCount = 0;
    bool requestAccepted = false;  ///< consumed by the next "joins you." or "summons you."
};

/// Everything a bot knows of the game. Each field is named after the text variable that reads it; a furre's name has
/// "|" or blanks as the game sent it.
struct BotState : KnownThisSession, KnownAcrossLogins {
    void BeginSession() { static_cast<KnownThisSession&>(*this) = {}; }
};
