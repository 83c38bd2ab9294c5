#include "practice/World.h"

#include <algorithm>

#include "game/Compare.h"
#include "practice/modDreamLines.h"
#include "text/Text.h"

Guest* FindGuest(World& world, std::string_view name) {
    for (auto& [id, guest] : world.guests) {
        if (guest.IsIn() && LooseEquals(guest.who.name, name)) return &guest;
    }
    return nullptr;
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
