#include "practice/World.h"

#include <algorithm>

#include "practice/modDreamLines.h"
#include "text/Text.h"

namespace {

/// What names have in common that LooseEquals takes for the same.
std::string Folded(std::string_view name) { return UpperCase(BarsToBlanks(name)); }

}  // namespace

void LetIn(World& world, Guest& guest, std::string_view name) {
    guest.who.name = name;
    world.named[Folded(name)] = guest.id;
}

void RemoveGuest(World& world, FurreId furre) {
    const auto guest = world.guests.find(furre);
    if (guest == world.guests.end()) return;
    if (guest->second.IsIn()) world.named.erase(Folded(guest->second.who.name));
    world.guests.erase(guest);
}

Guest* FindGuest(World& world, std::string_view name) {
    const auto id = world.named.find(Folded(name));
    return id == world.named.end() ? nullptr : &world.guests.at(id->second);
}

Guest* FindGuestFor(World& world, const Guest& asking, std::string_view name) {
    Guest* const found = FindGuest(world, name);
    if (!found) world.Send(asking, modDreamLines::NotHere(BlanksToBars(name)));
    return found;
}

void ForEachOnMapOf(World& world, const Guest& guest, const std::function<void(Guest&)>& visit) {
    const std::size_t map = guest.map;
    for (auto& [id, other] : world.guests) {
        if (other.IsIn() && other.map == map) visit(other);
    }
}

int Draw(World& world, int highest) {
    return std::clamp(1 + static_cast<int>(world.ports.random() * highest), 1, highest);
}
