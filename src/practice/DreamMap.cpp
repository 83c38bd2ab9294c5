#include "practice/DreamMap.h"

#include <algorithm>

namespace {

/// What is found at a square, or nothing.
template <typename Thing>
const Thing* ThingAt(const std::vector<Thing>& things, Square square) {
    const auto found =
        std::find_if(things.begin(), things.end(), [&](const Thing& thing) { return thing.at == square; });
    return found == things.end() ? nullptr : &*found;
}

DreamMap OpenMap(std::string_view file, std::string_view name, std::string_view way) {
    DreamMap map;
    map.file = file;
    map.name = name;
    map.way = way;
    return map;
}

}  // namespace

DreamMap OpenedDream(std::string_view name) {
    DreamMap map = OpenMap("opened.map", name, "");
    map.playerMade = true;
    return map;
}

std::vector<DreamMap> AllDreamMaps() {
    DreamMap practice = OpenedDream("Practice|Dream");
    practice.file = "practice.map";
    // A short wall down to the right of where furres arrive, so that a walk there has something to go round.
    practice.walls = {{20, 18}, {22, 18}, {24, 18}};
    practice.triggers = {{{18, 14}, 1}, {{14, 20}, 2}};
    practice.doors = {{{30, 10}, "Quiet|Glade"}};
    practice.entryText = "Everything here is practice. Nobody outside can see it.";
    return {practice,
            OpenMap("acropoli.map", "Acropolis", "*"),
            OpenMap("allegria.map", "Allegria|Island", "#"),
            OpenMap("furn.map", "Furrabian|Nights", "%"),
            OpenMap("imagine.map", "Imaginarium", "("),
            OpenMap("new2friends.map", "New|Haven", "'"),
            OpenMap("meovanni.map", "Meovanni", "$"),
            OpenMap("therio.map", "Theriopolis", "&"),
            OpenedDream("Quiet|Glade")};
}

std::optional<Square> Neighbour(Square from, char direction) {
    constexpr std::string_view kDirections = "1379";
    if (kDirections.find(direction) == std::string_view::npos) return std::nullopt;
    const bool up = direction == '7' || direction == '9';
    const bool right = direction == '3' || direction == '9';
    const bool even = from.y % 2 == 0;
    const int x = from.x + (even ? (right ? 2 : 0) : (right ? 0 : -2));
    const int y = from.y + (up ? -1 : 1);
    return Square{static_cast<std::int16_t>(x), static_cast<std::int16_t>(y)};
}

bool IsFree(const DreamMap& map, Square square) {
    const bool inside = square.x >= 0 && square.x <= kMapWidth && square.y >= 0 && square.y <= kMapHeight;
    return inside && std::find(map.walls.begin(), map.walls.end(), square) == map.walls.end();
}

const DreamDoor* DoorAt(const DreamMap& map, Square square) { return ThingAt(map.doors, square); }
const TriggerSquare* TriggerAt(const DreamMap& map, Square square) { return ThingAt(map.triggers, square); }
