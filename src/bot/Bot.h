#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "bot/BotState.h"
#include "bot/Profile.h"
#include "bot/UserVariables.h"

class Host;
class Script;

/// Advanced by the script timer. The hours are never advanced, so the clock wraps to 0:00 every hour.
struct ElapsedClock {
    std::int16_t hours = 0, minutes = 0, seconds = 0;
};

/// The walk toward a target square, one diagonal step a tick; (0, 0) after arrival or giving up.
struct Walk {
    Square target;
    std::int16_t direction = 0;  ///< 1, 3, 7 or 9 as on the keypad; 0 for none
    bool tried1 = false, tried3 = false, tried7 = false, tried9 = false;
    std::int16_t detourReferenceX = 0;  ///< nothing ever sets it
};

/// Where the program is in a file that it reads or runs, so that a fault can name the place.
struct Place {
    std::string file;      ///< UTF-8; empty when nowhere
    std::size_t line = 0;  ///< counted from 1
};

/// The line the bot is at work on, as it came, so that a fault can name it.
struct Heard {
    enum class From { Nobody, Game, Client, User };
    From from = From::Nobody;
    std::string line;
    bool isWhisper = false;  ///< to the bot, which has answered it: it is about to be shown
};

/// Everything one bot is. Every operation takes the Bot it works on, so that one process can run many.
struct Bot {
    explicit Bot(Host& itsHost) : host(itsHost) {}

    BotState state;
    UserVariables variables;
    Profile profile;
    std::shared_ptr<const Script> script;
    std::int16_t currentEvent = -1;  ///< the code of the event being handled; -1 while no cause is tested
    ElapsedClock clock;
    Walk walk;
    Place place;
    Heard heard;
    bool scriptActs = false;  ///< one of its effects is being carried out: what is sent now, the script sends

    /// Every character file that the profile's file names, as written there, for a script may be loaded before the line
    /// that counts is read. No script can open one.
    std::vector<std::string> characterPaths;
    std::string characterPassword;  ///< kept out of all that is written; see net/Passwords.h
    Host& host;
};
