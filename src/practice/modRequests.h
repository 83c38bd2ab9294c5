#pragma once

#include <string_view>

#include "practice/World.h"

/// Asking to join a furre, or to be joined by it. Each command both asks and answers: `summon` accepts the request of
/// one who wants to join, `join` the one of a furre that wants company. Without a name the newest request that the
/// command can answer is meant.
namespace modRequests {

void Join(World& world, Guest& guest, std::string_view name);
void Summon(World& world, Guest& guest, std::string_view name);
void Decline(World& world, Guest& guest, std::string_view name);

/// Takes back whatever a furre that goes away has asked of the others.
void ForgetRequestsOf(World& world, FurreId furre);

}  // namespace modRequests
