#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "game/Square.h"

/// A square that holds a dream; a step on it leads there.
struct DreamDoor {
    Square at;
    std::string name;  ///< of the dream behind it, with "|" for blanks
};

struct TriggerSquare {
    Square at;
    std::int16_t number = 0;
};

/// One map of the practice world: x 0 to kMapWidth, even only, y 0 to kMapHeight.
struct DreamMap {
    std::string file;  ///< as named to the clients
    std::string name;  ///< with "|" for blanks
    std::string way;   ///< what follows "gomap " to get here; empty: there is no such way
    bool playerMade = false;
    std::vector<Square> walls;
    std::vector<TriggerSquare> triggers;
    std::vector<DreamDoor> doors;
    std::string entryText;
};

inline constexpr std::int16_t kMapWidth = 58;
inline constexpr std::int16_t kMapHeight = 40;

/// Where furres arrive, on every map.
inline constexpr Square kStartSquare{20, 15};

/// The practice dream, which is the first, then the maps that can be reached from it.
std::vector<DreamMap> AllDreamMaps();

/// A dream that somebody has opened: open ground, no triggers.
DreamMap OpenedDream(std::string_view name);

/// The neighbour square in one of the directions 1, 3, 7 and 9 of the keypad; nothing for any other.
/// Which x the neighbour has depends on whether y is even, because the rows are shifted against each other.
std::optional<Square> Neighbour(Square from, char direction);

/// Inside the map and no wall.
bool IsFree(const DreamMap& map, Square square);

const DreamDoor* DoorAt(const DreamMap& map, Square square);
const TriggerSquare* TriggerAt(const DreamMap& map, Square square);
