#include "practice/modRequests.h"

#include <algorithm>
#include <optional>

#include "game/Compare.h"
#include "practice/modDreamLines.h"
#include "practice/modTravel.h"

namespace {

using namespace modDreamLines;

void DropRequestsFrom(Guest& guest, FurreId from) {
    std::erase_if(guest.requests, [&](const Request& request) { return request.from == from; });
}

/// Takes the newest request that fits off the list: from the named furre, or from anybody when there is no name.
/// @return who had asked; nullptr when no such request is open
Guest* TakeRequest(World& world, Guest& guest, std::string_view name, std::optional<bool> wantsToJoin) {
    const auto fits = [&](const Request& request) {
        const Guest& from = world.guests.at(request.from);
        return (!wantsToJoin || request.wantsToJoin == *wantsToJoin) &&
               (name.empty() || LooseEquals(from.who.name, name));
    };
    const auto found = std::find_if(guest.requests.rbegin(), guest.requests.rend(), fits);
    if (found == guest.requests.rend()) return nullptr;
    Guest* const from = &world.guests.at(found->from);
    DropRequestsFrom(guest, from->id);
    return from;
}

void Ask(World& world, const Guest& guest, std::string_view name, bool wantsToJoin) {
    if (name.empty()) return world.Send(guest, Remark("Nobody has asked you."));
    Guest* const asked = FindGuestFor(world, guest, name);
    if (!asked) return;
    if (asked->id == guest.id) {
        return world.Send(guest, wantsToJoin ? Remark("There is no joining oneself.") : CannotSummonYourself());
    }
    DropRequestsFrom(*asked, guest.id);
    asked->requests.push_back({guest.id, wantsToJoin});
    world.Send(*asked, wantsToJoin ? JoinRequest(guest.who.name) : JoinInvitation(guest.who.name));
    world.Send(guest, RequestSent(asked->who.name));
}

}  // namespace

namespace modRequests {

void Join(World& world, Guest& guest, std::string_view name) {
    Guest* const host = TakeRequest(world, guest, name, false);
    if (!host) return Ask(world, guest, name, true);
    // In this order: a bot takes notice of a "joins you." only behind the answer to its request.
    world.Send(*host, Accepted(guest.who.name));
    world.Send(*host, Joins(guest.who.name));
    world.Send(guest, Summons(host->who.name));
    modTravel::BringTo(world, guest, *host);
}

void Summon(World& world, Guest& guest, std::string_view name) {
    Guest* const joining = TakeRequest(world, guest, name, true);
    if (!joining) return Ask(world, guest, name, false);
    world.Send(*joining, Accepted(guest.who.name));
    world.Send(*joining, Summons(guest.who.name));
    world.Send(guest, Joins(joining->who.name));
    modTravel::BringTo(world, *joining, guest);
}

void Decline(World& world, Guest& guest, std::string_view name) {
    const Guest* const asking = TakeRequest(world, guest, name, std::nullopt);
    if (!asking) return world.Send(guest, Remark("Nobody has asked you."));
    world.Send(*asking, Declined(guest.who.name));
    world.Send(guest, YouNotice("have declined the request of", asking->who.name));
}

void ForgetRequestsOf(World& world, FurreId furre) {
    for (auto& [id, guest] : world.guests) DropRequestsFrom(guest, furre);
}

}  // namespace modRequests
