#include <algorithm>
#include <optional>

#include "bot/Bot.h"
#include "engine/Dispatcher.h"
#include "net/LineReaders.h"
#include "text/Numbers.h"
#include "text/Text.h"

namespace {

constexpr std::string_view kRolls = " rolls ";
constexpr std::size_t kSearchFrom = 5;  // the position of the blank in "([*] ": in front of it nobody rolls

struct DiceWord {
    std::int16_t amount, sides;
};

bool AllDigits(std::string_view text) {
    return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

/// "2d6": two dice of six sides. Anything else is no roll.
std::optional<DiceWord> ReadDiceWord(std::string_view word) {
    const std::size_t d = word.find('d');
    if (d == word.npos || !AllDigits(word.substr(0, d)) || !AllDigits(word.substr(d + 1))) return std::nullopt;
    return DiceWord{NumberOrFault(word.substr(0, d)), NumberOrFault(word.substr(d + 1))};
}

/// The number between the last blank and the last ".". Where it is none, the total is 0.
std::int16_t ReadTotal(std::string_view line) {
    return LeadingNumberOrZero(CutBetween(line, line.rfind(' '), line.rfind('.')));
}

/// The single dice, "…: ((4) (2)) = 6.": what stands behind the last ": " and two brackets, up to the last " = ".
std::vector<std::int16_t> ReadSingleDice(std::string_view line, std::int16_t amount) {
    // Kept on purpose: the brackets are not looked at, only counted.
    constexpr std::string_view kColon = ": ", kBrackets = "((";
    const std::size_t colon = line.rfind(kColon);
    const std::size_t first = colon == line.npos ? colon : colon + kColon.size() + kBrackets.size();
    std::vector<std::string> pieces = Split(CutBetween(line, first, line.rfind(" = ")), ") (");
    // Kept on purpose: of several dice there are as many values as the line lists, however many were thrown.
    if (amount < 2) pieces.resize(1);
    std::vector<std::int16_t> values(pieces.size());
    std::transform(pieces.begin(), pieces.end(), values.begin(), LeadingNumberOrZero);
    return values;
}

}  // namespace

void ReadDice(Bot& bot, const ServerLine& line) {
    const std::string_view whole = line.Whole();
    const std::size_t rolls = whole.find(kRolls, kSearchFrom - 1);
    if (rolls == whole.npos) return;
    const std::size_t wordAt = rolls + kRolls.size();
    const std::optional<DiceWord> word = ReadDiceWord(line.WordAt(wordAt + 1));
    if (!word) return;

    Dice& dice = bot.state.dice;
    dice.amount = word->amount;
    dice.sides = word->sides;
    dice.total = ReadTotal(whole);
    const bool totalOnly = whole.find(" & gets ", rolls) != whole.npos;
    if (totalOnly) {
        // Kept on purpose: each die has the total for its value, for the line tells no other.
        bot.state.dieValues.assign(static_cast<std::size_t>(std::max(dice.amount, std::int16_t{1})), dice.total);
    } else {
        bot.state.dieValues = ReadSingleDice(whole, dice.amount);
    }
    RunScript(bot, totalOnly ? EventDiceTotal : EventDiceRoll);
}
