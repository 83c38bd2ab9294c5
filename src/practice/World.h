#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "game/Furre.h"
#include "game/LocalTime.h"
#include "game/Square.h"
#include "practice/DreamMap.h"

/// What the practice dream asks of the machine.
struct DreamPorts {
    std::function<LocalTime()> now;
    std::function<double()> random;  ///< a uniform draw, at least 0 and below 1
};

using FurreId = int;

/// Somebody has asked to join, or to be joined by, the furre that keeps this.
struct Request {
    FurreId from = 0;
    bool wantsToJoin = true;  ///< false: from wants to be joined
};

/// A furre in the practice world.
struct Guest {
    FurreId id = 0;
    Furre who;               ///< the name is empty until it has logged in
    bool hasClient = false;  ///< it is somebody's client, which loads a dream before it sees anything in it
    bool loaded = false;
    std::size_t map = 0, previousMap = 0;  ///< indexes of World::maps
    Square at = kStartSquare, from;
    std::int16_t posture = 0, facing = 0;
    int cookies = 0;
    std::vector<Request> requests;  ///< open ones, the newest last, one from each furre

    bool IsIn() const { return !who.name.empty(); }
};

/// A line on its way to a furre, without the line feed; after the last one the connection is to be closed.
struct Delivery {
    FurreId furre = 0;
    std::string line;
    bool last = false;
};

/// All there is in the practice world: plain data, on which the mod... modules work.
struct World {
    explicit World(DreamPorts machine) : ports(std::move(machine)), maps(AllDreamMaps()) {}

    DreamPorts ports;
    std::map<FurreId, Guest> guests;                 ///< in order of arrival
    std::unordered_map<std::string, FurreId> named;  ///< those that are in; see LetIn
    std::vector<DreamMap> maps;
    std::vector<Delivery> deliveries;

    DreamMap& MapOf(const Guest& guest) { return maps[guest.map]; }
    void Send(const Guest& guest, std::string line) { deliveries.push_back({guest.id, std::move(line), false}); }
};

/// Gives a guest its name, by which the others find it from now on. Nobody here has that name yet.
void LetIn(World& world, Guest& guest, std::string_view name);

/// A number that isn't here is fine.
void RemoveGuest(World& world, FurreId furre);

/// Who has that name ("|" and blanks alike, in any case); nullptr when nobody here has.
Guest* FindGuest(World& world, std::string_view name);

/// Who has that name, after telling the asking furre when nobody has.
Guest* FindGuestFor(World& world, const Guest& asking, std::string_view name);

/// Calls visit for every furre that is in on the same map, the given one included.
void ForEachOnMapOf(World& world, const Guest& guest, const std::function<void(Guest&)>& visit);

/// A whole number from 1 to highest.
int Draw(World& world, int highest);
