#pragma once

#include "game/Square.h"

struct Bot;

/// Walks the bot to a target square, one diagonal step a tick. Steps carry the keypad's digits: 7 up-left,
/// 9 up-right, 1 down-left, 3 down-right. Where the bot stands is the game's to say: the server's movement lines keep
/// BotState::vorelInto and vorelFrom up to date.
namespace modMovement {

/// The movement timer's interval.
inline constexpr int kWalkTickMs = 675;

/// Sets the walk's target and switches the movement timer on.
void StartWalk(Bot& bot, Square target);

/// Switches the movement timer off; the target is kept.
void StopWalk(Bot& bot);

/// One tick of the movement timer: stops at the target, otherwise sends one step toward it.
/// @throws RuntimeFault Overflow, when a neighbour square lies outside the 16-bit range
void Tick(Bot& bot);

/// True when a dream stands on the square: such a square is never stepped on.
bool IsBlocked(const Bot& bot, Square square);

/// The square next to the bot in one of the four directions; any other direction is the bot's own square.
Square Neighbour(const Bot& bot, std::int16_t direction);

}  // namespace modMovement
