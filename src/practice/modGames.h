#pragma once

#include <optional>
#include <string_view>

#include "practice/World.h"

/// "2d6": how many dice, with how many sides.
struct DiceWord {
    int amount = 0;  ///< 1 to kMostDice
    int sides = 0;   ///< 1 to kMostSides
};

/// Few enough that every total fits the 16 bits of the clients.
inline constexpr int kMostDice = 30;
inline constexpr int kMostSides = 1000;

std::optional<DiceWord> ReadDiceWord(std::string_view text);

/// Dice and cookies.
namespace modGames {

void RollDice(World& world, Guest& guest, std::string_view dice);   ///< everybody on the map sees each die
void TotalDice(World& world, Guest& guest, std::string_view dice);  ///< everybody on the map sees the sum

/// "NAME" or "NAME MESSAGE": bakes a cookie for a furre, who reads the message inside.
void MakeCookie(World& world, Guest& guest, std::string_view nameAndMessage);
/// Hands on a cookie that the furre was given before.
void GiveCookie(World& world, Guest& guest, std::string_view name);
void EatCookie(World& world, Guest& guest, std::string_view);

}  // namespace modGames
