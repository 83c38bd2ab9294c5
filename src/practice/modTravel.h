#pragma once

#include <cstddef>
#include <string_view>

#include "practice/World.h"

/// Where furres are, and how they get elsewhere.
namespace modTravel {

/// Takes the furre to a map and has its client load it; a furre without a client is there at once.
void EnterMap(World& world, Guest& guest, std::size_t map, Square at = kStartSquare);

/// The client has loaded the map: it is shown who is there, and they see it appear.
void FinishLoading(World& world, Guest& guest);

/// "gomap X", "goback", "gostart" and "goalleg".
void GoToMap(World& world, Guest& guest, std::string_view way);
void GoBack(World& world, Guest& guest);
void GoToStart(World& world, Guest& guest);
void GoToAllegria(World& world, Guest& guest);

/// One step. Into a wall, the furre is shown where it stands as if it had come from there; onto a dream's square, it
/// enters that dream; onto a trigger, everybody is told.
void Step(World& world, Guest& guest, char direction);

/// Turns by one quarter, to the right or the left.
void Turn(World& world, Guest& guest, bool right);
void TakePosture(World& world, Guest& guest, std::int16_t posture);

/// Sets off the trigger under the furre, if there is one.
void SetOffTrigger(World& world, const Guest& guest, Square from);

/// Brings the furre to the side of another one, on whatever map that is.
void BringTo(World& world, Guest& guest, const Guest& host);

/// A dream opens or closes on the practice map; false when the square can't take it, or none of that name is there.
bool OpenDream(World& world, std::string_view name, Square at);
bool CloseDream(World& world, std::string_view name);

}  // namespace modTravel
