#include "practice/modTravel.h"

#include <algorithm>

#include "game/Compare.h"
#include "practice/modDreamLines.h"

namespace {

constexpr std::int16_t kFacings = 4;
constexpr std::size_t kPracticeMap = 0;

/// A client is told how long the dream's own script is; the number itself means nothing here.
constexpr int kScriptLines = 12;

std::int16_t FrameOf(const Guest& guest) { return static_cast<std::int16_t>(guest.posture * kFacings + guest.facing); }

std::string AppearanceOf(const Guest& guest) {
    return modDreamLines::Appears(guest.who.looks.colors, guest.at, FrameOf(guest));
}

void SendToLoaded(World& world, const Guest& around, const std::string& line) {
    ForEachOnMapOf(world, around, [&](const Guest& other) {
        if (other.loaded) world.Send(other, line);
    });
}

void ShowMove(World& world, const Guest& guest) {
    SendToLoaded(world, guest, modDreamLines::Moves(guest.who.looks.colors, guest.at, FrameOf(guest), guest.from));
}

/// Clients keep their list of dreams from map to map, so what they leave behind is taken off it.
void ForgetDoors(World& world, const Guest& guest) {
    if (!guest.loaded) return;
    for (const DreamDoor& door : world.MapOf(guest).doors) world.Send(guest, modDreamLines::DreamVanishes(door.at));
}

template <typename Wanted>
std::size_t MapWhere(const World& world, Wanted wanted) {
    const auto found = std::find_if(world.maps.begin(), world.maps.end(), wanted);
    return static_cast<std::size_t>(found - world.maps.begin());
}

std::size_t MapOfWay(const World& world, std::string_view way) {
    return MapWhere(world, [&](const DreamMap& map) { return !map.way.empty() && map.way == way; });
}

std::size_t MapOfDream(const World& world, std::string_view name) {
    return MapWhere(world, [&](const DreamMap& map) { return map.playerMade && LooseEquals(map.name, name); });
}

}  // namespace

namespace modTravel {

void EnterMap(World& world, Guest& guest, std::size_t map, Square at) {
    ForgetDoors(world, guest);
    if (map != guest.map) guest.previousMap = guest.map;
    guest.map = map;
    guest.at = at;
    guest.from = {};
    guest.loaded = false;
    const DreamMap& entered = world.MapOf(guest);
    // The file first: the map is named after it, until the name of a furre's own dream takes that one's place.
    world.Send(guest, modDreamLines::MapFile(entered.file));
    if (entered.playerMade) world.Send(guest, modDreamLines::EnterDream(entered.name));
    world.Send(guest, modDreamLines::LoadRequest(entered.file));
    if (!guest.hasClient) FinishLoading(world, guest);
}

void FinishLoading(World& world, Guest& guest) {
    if (guest.loaded) return;
    guest.loaded = true;
    // The guest is one of them: from its own appearance a bot learns where it stands.
    ForEachOnMapOf(world, guest, [&](const Guest& other) {
        if (!other.loaded) return;
        if (other.id != guest.id) world.Send(guest, AppearanceOf(other));
        world.Send(other, AppearanceOf(guest));
    });
    const DreamMap& map = world.MapOf(guest);
    for (const DreamDoor& door : map.doors) world.Send(guest, modDreamLines::DreamAppears(door.at, door.name));
    if (!map.playerMade) return;
    world.Send(guest, modDreamLines::ScriptLines(kScriptLines));
    if (!map.entryText.empty()) world.Send(guest, modDreamLines::HashNotice(map.entryText));
}

void GoToMap(World& world, Guest& guest, std::string_view way) {
    const std::size_t map = MapOfWay(world, way);
    if (map == world.maps.size()) {
        world.Send(guest, modDreamLines::Remark("There is no way to that map."));
        return;
    }
    EnterMap(world, guest, map);
}

void GoBack(World& world, Guest& guest) { EnterMap(world, guest, guest.previousMap); }
void GoToStart(World& world, Guest& guest) { EnterMap(world, guest, kPracticeMap); }
void GoToAllegria(World& world, Guest& guest) { EnterMap(world, guest, MapOfWay(world, "#")); }

void Step(World& world, Guest& guest, char direction) {
    const auto into = Neighbour(guest.at, direction);
    if (!into || !guest.loaded) return;
    const bool isFree = IsFree(world.MapOf(guest), *into);
    guest.from = guest.at;
    if (isFree) guest.at = *into;
    if (const DreamDoor* const door = isFree ? DoorAt(world.MapOf(guest), guest.at) : nullptr) {
        const std::size_t dream = MapOfDream(world, door->name);
        if (dream < world.maps.size()) return EnterMap(world, guest, dream);
    }
    ShowMove(world, guest);
    if (isFree) SetOffTrigger(world, guest, guest.from);
}

void Turn(World& world, Guest& guest, bool right) {
    guest.facing = static_cast<std::int16_t>((guest.facing + (right ? 1 : kFacings - 1)) % kFacings);
    ShowMove(world, guest);
}

void TakePosture(World& world, Guest& guest, std::int16_t posture) {
    guest.posture = posture;
    ShowMove(world, guest);
}

void SetOffTrigger(World& world, const Guest& guest, Square from) {
    const TriggerSquare* const trigger = TriggerAt(world.MapOf(guest), guest.at);
    if (!trigger) return;
    const DragonSpeakNotice notice{from, guest.at, trigger->number, trigger->at};
    ForEachOnMapOf(world, guest, [&](const Guest& other) {
        if (other.loaded) world.Send(other, modDreamLines::Trigger(other.id == guest.id, notice));
    });
}

void BringTo(World& world, Guest& guest, const Guest& host) {
    const Square beside = *Neighbour(host.at, '3');
    const Square at = IsFree(world.MapOf(host), beside) ? beside : host.at;
    if (guest.map != host.map) return EnterMap(world, guest, host.map, at);
    guest.from = guest.at;
    guest.at = at;
    ShowMove(world, guest);
}

bool OpenDream(World& world, std::string_view name, Square at) {
    DreamMap& practice = world.maps[kPracticeMap];
    if (!IsFree(practice, at) || at.x % 2 != 0 || DoorAt(practice, at)) return false;
    if (MapOfDream(world, name) == world.maps.size()) world.maps.push_back(OpenedDream(name));
    // By its number again: the dream that has been added may have moved the maps.
    world.maps[kPracticeMap].doors.push_back({at, std::string(name)});
    for (const auto& [id, guest] : world.guests) {
        if (guest.loaded && guest.map == kPracticeMap) world.Send(guest, modDreamLines::DreamAppears(at, name));
    }
    return true;
}

bool CloseDream(World& world, std::string_view name) {
    std::vector<DreamDoor>& doors = world.maps[kPracticeMap].doors;
    const auto door =
        std::find_if(doors.begin(), doors.end(), [&](const DreamDoor& d) { return LooseEquals(d.name, name); });
    if (door == doors.end()) return false;
    for (const auto& [id, guest] : world.guests) {
        if (guest.loaded && guest.map == kPracticeMap) world.Send(guest, modDreamLines::DreamVanishes(door->at));
    }
    doors.erase(door);
    return true;
}

}  // namespace modTravel
