#include "practice/modGames.h"

#include <algorithm>
#include <charconv>
#include <vector>

#include "practice/modDreamLines.h"
#include "text/Text.h"

namespace {

using namespace modDreamLines;

/// A jar holds so many; what comes on top falls out.
constexpr int kCookieJar = 100;

std::optional<int> WholeNumber(std::string_view digits, int highest) {
    int number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    const bool isNumber = error == std::errc() && end == digits.data() + digits.size();
    if (!isNumber || number < 1 || number > highest) return std::nullopt;
    return number;
}

std::vector<int> Throw(World& world, const DiceWord& dice) {
    std::vector<int> values(static_cast<std::size_t>(dice.amount));
    for (int& value : values) value = Draw(world, dice.sides);
    return values;
}

std::optional<DiceWord> DiceFor(World& world, const Guest& guest, std::string_view text) {
    const auto dice = ReadDiceWord(text);
    if (!dice) {
        world.Send(guest, Remark("Dice are written like 2d6: up to " + std::to_string(kMostDice) + " dice of up to " +
                                 std::to_string(kMostSides) + " sides."));
    }
    return dice;
}

void TellMap(World& world, const Guest& guest, const std::string& line) {
    ForEachOnMapOf(world, guest, [&](const Guest& other) { world.Send(other, line); });
}

void HandCookie(World& world, Guest& giver, Guest& receiver) {
    receiver.cookies = std::min(receiver.cookies + 1, kCookieJar);
    TellMap(world, giver, CookieGiven(giver.who.name, receiver.who.name));
    if (giver.map != receiver.map) world.Send(receiver, CookieGiven(giver.who.name, receiver.who.name));
}

}  // namespace

std::optional<DiceWord> ReadDiceWord(std::string_view text) {
    const std::size_t d = text.find('d');
    if (d == std::string_view::npos) return std::nullopt;
    const auto amount = WholeNumber(text.substr(0, d), kMostDice);
    const auto sides = WholeNumber(text.substr(d + 1), kMostSides);
    if (!amount || !sides) return std::nullopt;
    return DiceWord{*amount, *sides};
}

namespace modGames {

void RollDice(World& world, Guest& guest, std::string_view text) {
    const auto dice = DiceFor(world, guest, text);
    if (dice) TellMap(world, guest, DiceRoll(guest.who.name, dice->sides, Throw(world, *dice)));
}

void TotalDice(World& world, Guest& guest, std::string_view text) {
    const auto dice = DiceFor(world, guest, text);
    if (!dice) return;
    int total = 0;
    for (const int value : Throw(world, *dice)) total += value;
    TellMap(world, guest, DiceTotal(guest.who.name, dice->amount, dice->sides, total));
}

void MakeCookie(World& world, Guest& guest, std::string_view nameAndMessage) {
    const std::size_t blank = std::min(nameAndMessage.find(' '), nameAndMessage.size());
    Guest* const receiver = FindGuestFor(world, guest, nameAndMessage.substr(0, blank));
    if (!receiver) return;
    HandCookie(world, guest, *receiver);
    const std::string_view message = nameAndMessage.substr(std::min(blank + 1, nameAndMessage.size()));
    if (!message.empty()) world.Send(*receiver, OwnCookie("says: " + std::string(message)));
}

void GiveCookie(World& world, Guest& guest, std::string_view name) {
    Guest* const receiver = FindGuestFor(world, guest, name);
    if (!receiver) return;
    if (guest.cookies == 0) return world.Send(guest, OwnCookie("jar is empty."));
    --guest.cookies;
    HandCookie(world, guest, *receiver);
}

void EatCookie(World& world, Guest& guest, std::string_view) {
    if (guest.cookies == 0) return world.Send(guest, OwnCookie("jar is empty."));
    --guest.cookies;
    world.Send(guest, OwnCookie("tastes of honey."));
}

}  // namespace modGames
