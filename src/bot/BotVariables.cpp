#include "bot/BotVariables.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <iterator>

#include "bot/Bot.h"
#include "bot/Events.h"
#include "bot/Host.h"

namespace {

bool AppendNumber(std::string& text, int number) {
    std::array<char, 12> digits{};
    const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), number);
    text.append(digits.data(), written.ptr);
    return true;
}

bool AppendText(std::string& text, std::string_view value) {
    text += value;
    return true;
}

bool AppendPair(std::string& text, Square square) {
    AppendNumber(text += '(', square.x);
    AppendNumber(text += ',', square.y);
    return AppendText(text, ")");
}

// --- the event's furre -------------------------------------------------------------------------------------------

bool AppendPlayer(const Bot& bot, std::string& text) {
    const std::string* const name = FactsOf(bot.currentEvent).FurreNameIn(bot.state);
    return name && AppendText(text, *name);
}

/// Of a furre looked at "[player]" is the name alone, the rest of it has variables of its own.
const Furre* PlayerOf(const Bot& bot) {
    const EventFacts& event = FactsOf(bot.currentEvent);
    return event.furre && event.furre != &BotState::look ? &(bot.state.*event.furre) : nullptr;
}

template <std::string Appearance::*Field>
bool AppendLooks(const Bot& bot, std::string& text) {
    const Furre* const player = PlayerOf(bot);
    return player && AppendText(text, player->looks.*Field);
}

bool AppendPlayerDesc(const Bot& bot, std::string& text) {
    const Furre* const player = PlayerOf(bot);
    return player && AppendText(text, player->desc);
}

bool AppendCookieName(const Bot& bot, std::string& text) {
    const EventFacts& event = FactsOf(bot.currentEvent);
    return event.otherName && AppendText(text, bot.state.*event.otherName);
}

constexpr Variable kEventVariables[] = {
    {"[player]", AppendPlayer},
    {"[player.name]", AppendPlayer},
    {"[player.colors]", AppendLooks<&Appearance::colors>},
    {"[player.gender]", AppendLooks<&Appearance::gender>},
    {"[player.species]", AppendLooks<&Appearance::species>},
    {"[player.markings]", AppendLooks<&Appearance::markings>},
    {"[player.desc]", AppendPlayerDesc},
    {"[cookiename]", AppendCookieName},
};

// --- the rest of what the bot knows ------------------------------------------------------------------------------

std::string LongTimeNow(const Bot& bot) { return bot.host.LongTime(bot.host.Now()); }

// Kept on purpose: under a 24-hour format the last two characters of the time are digits of the seconds.
std::string Median(const Bot& bot) {
    const std::string time = LongTimeNow(bot);
    return time.substr(time.size() < 2 ? 0 : time.size() - 2);
}

std::string StandardTimeText(const StandardTime& fst) {
    return std::to_string(fst.hour) + ":" + std::to_string(fst.minute) + ":" + std::to_string(fst.second) + " " +
           fst.median;
}

#define TEXT(path) [](const Bot& bot, std::string& text) { return AppendText(text, bot.path); }
#define MADE(value) [](const Bot& bot, std::string& text) { return AppendText(text, value); }
#define NUMBER(path) [](const Bot& bot, std::string& text) { return AppendNumber(text, bot.path); }
#define PAIR(path) [](const Bot& bot, std::string& text) { return AppendPair(text, bot.path); }

/// The order shows where one value holds another one's name.
constexpr Variable kStateVariables[] = {
    {"[vorel.name]", TEXT(state.vorel.name)},
    {"[vorel.desc]", TEXT(state.vorel.desc)},
    {"[vorel.badge]", TEXT(state.vorel.badge)},
    {"[vorel.colors]", TEXT(state.vorel.looks.colors)},
    {"[vorel.gender]", TEXT(state.vorel.looks.gender)},
    {"[vorel.markings]", TEXT(state.vorel.looks.markings)},
    {"[vorel.species]", TEXT(state.vorel.looks.species)},
    {"[vorel.owners]", TEXT(profile.owners.Text())},
    {"[vorel.into]", PAIR(state.vorelInto)},
    {"[vorel.from]", PAIR(state.vorelFrom)},
    {"[vorel.into.x]", NUMBER(state.vorelInto.x)},
    {"[vorel.into.y]", NUMBER(state.vorelInto.y)},
    {"[vorel.from.x]", NUMBER(state.vorelFrom.x)},
    {"[vorel.from.y]", NUMBER(state.vorelFrom.y)},
    {"[date]", MADE(bot.host.ShortDate(bot.host.Now()))},
    {"[time]", MADE(LongTimeNow(bot))},
    {"[hour]", NUMBER(host.Now().hour)},
    {"[minute]", NUMBER(host.Now().minute)},
    {"[second]", NUMBER(host.Now().second)},
    {"[median]", MADE(Median(bot))},
    {"[fst]", MADE(StandardTimeText(bot.state.fst))},
    {"[fst.time]", MADE(StandardTimeText(bot.state.fst))},
    {"[fst.hour]", NUMBER(state.fst.hour)},
    {"[fst.minute]", NUMBER(state.fst.minute)},
    {"[fst.second]", NUMBER(state.fst.second)},
    {"[fst.median]", TEXT(state.fst.median)},
    {"[move.colors]", TEXT(state.move.colors)},
    {"[move.from.x]", NUMBER(state.moveFrom.x)},
    {"[move.from.y]", NUMBER(state.moveFrom.y)},
    {"[move.frame]", NUMBER(state.move.frame)},
    {"[move.into.x]", NUMBER(state.moveInto.x)},
    {"[move.into.y]", NUMBER(state.moveInto.y)},
    {"[move.into]", PAIR(state.moveInto)},
    {"[move.from]", PAIR(state.moveFrom)},
    {"[look.name]", TEXT(state.look.name)},
    {"[look.colors]", TEXT(state.look.looks.colors)},
    {"[look.gender]", TEXT(state.look.looks.gender)},
    {"[look.species]", TEXT(state.look.looks.species)},
    {"[look.markings]", TEXT(state.look.looks.markings)},
    {"[look.badge]", TEXT(state.look.badge)},
    {"[look.desc]", TEXT(state.look.desc)},
    {"[dsbot.from.x]", NUMBER(state.dsbot.from.x)},
    {"[dsbot.from.y]", NUMBER(state.dsbot.from.y)},
    {"[dsbot.into.x]", NUMBER(state.dsbot.into.x)},
    {"[dsbot.into.y]", NUMBER(state.dsbot.into.y)},
    {"[dsbot.trigger]", NUMBER(state.dsbot.trigger)},
    {"[dsbot.trigger.x]", NUMBER(state.dsbot.triggerAt.x)},
    {"[dsbot.trigger.y]", NUMBER(state.dsbot.triggerAt.y)},
    {"[ds.from.x]", NUMBER(state.ds.from.x)},
    {"[ds.from.y]", NUMBER(state.ds.from.y)},
    {"[ds.into.x]", NUMBER(state.ds.into.x)},
    {"[ds.into.y]", NUMBER(state.ds.into.y)},
    {"[ds.trigger]", NUMBER(state.ds.trigger)},
    {"[ds.trigger.x]", NUMBER(state.ds.triggerAt.x)},
    {"[ds.trigger.y]", NUMBER(state.ds.triggerAt.y)},
    {"[breath.x]", NUMBER(state.breath.x)},
    {"[breath.y]", NUMBER(state.breath.y)},
    {"[flame.x]", NUMBER(state.flame.x)},
    {"[flame.y]", NUMBER(state.flame.y)},
    {"[dream.name]", TEXT(state.dreamName)},
    {"[dream.x]", NUMBER(state.dream.x)},
    {"[dream.y]", NUMBER(state.dream.y)},
    {"[message]", TEXT(state.message)},
    {"[visitors]", TEXT(state.visitors)},
    {"[visitorcount]", NUMBER(state.visitorCount)},
    {"[map]", TEXT(state.map)},
    {"[previousmap]", TEXT(state.previousMap)},
};

constexpr Variable kDiceVariables[] = {
    {"[dice.total]", NUMBER(state.dice.total)},
    {"[dice.amount]", NUMBER(state.dice.amount)},
    {"[dice.sides]", NUMBER(state.dice.sides)},
};

#undef TEXT
#undef MADE
#undef NUMBER
#undef PAIR

// --- by name -----------------------------------------------------------------------------------------------------

constexpr std::size_t kCount = std::size(kEventVariables) + std::size(kStateVariables) + std::size(kDiceVariables);

constexpr std::array<Variable, kCount> kByName = [] {
    std::array<Variable, kCount> all{};
    auto* next = std::copy(std::begin(kEventVariables), std::end(kEventVariables), all.begin());
    next = std::copy(std::begin(kStateVariables), std::end(kStateVariables), next);
    std::copy(std::begin(kDiceVariables), std::end(kDiceVariables), next);
    std::sort(all.begin(), all.end(), [](const Variable& a, const Variable& b) { return a.name < b.name; });
    return all;
}();

/// The number in a name that is a stem and a number; 0 when it is none, or higher than there are.
std::size_t NumberIn(const Bot& bot, std::string_view name, std::string_view numbered,
                     std::size_t (*count)(const Bot&)) {
    const std::string_view stem = StemOf(numbered);
    const std::size_t number = name.starts_with(stem) ? NumberAt(name, stem.size()) : 0;
    return number > 0 && number <= count(bot) ? number : 0;
}

bool AppendNumbered(const Bot& bot, std::string_view name, std::string& text) {
    if (const std::size_t n = NumberIn(bot, name, kWord, CountOfWords)) return AppendText(text, Word(bot, n));
    if (const std::size_t n = NumberIn(bot, name, kStartingWord, CountOfWords))
        return AppendText(text, WordsFrom(bot, n));
    if (const std::size_t n = NumberIn(bot, name, kDie, CountOfDice))
        return AppendNumber(text, bot.state.dieValues[n - 1]);
    return false;
}

}  // namespace

std::span<const Variable> EventVariables() { return kEventVariables; }
std::span<const Variable> StateVariables() { return kStateVariables; }
std::span<const Variable> DiceVariables() { return kDiceVariables; }

std::size_t NumberAt(std::string_view text, std::size_t at) {
    std::size_t number = 0;
    const char* const end = text.data() + text.size();
    const auto read = std::from_chars(text.data() + at, end, number);
    const bool whole = read.ec == std::errc() && read.ptr != end && *read.ptr == ']';
    return whole && text[at] != '0' ? number : 0;
}

std::size_t CountOfWords(const Bot& bot) {
    const std::string& message = bot.state.message;
    // Cutting no message would make an empty word of it.
    return message.empty() ? 0 : 1 + static_cast<std::size_t>(std::count(message.begin(), message.end(), ' '));
}

std::string_view Word(const Bot& bot, std::size_t number) {
    std::string_view rest = bot.state.message;
    for (; number > 1; --number) rest.remove_prefix(rest.find(' ') + 1);
    return rest.substr(0, rest.find(' '));
}

std::string_view WordsFrom(const Bot& bot, std::size_t number) {
    std::string_view rest = bot.state.message;
    for (; number > 1; --number) rest.remove_prefix(rest.find(' ') + 1);
    return rest.substr(std::min(rest.find_first_not_of(' '), rest.size()));
}

std::size_t CountOfDice(const Bot& bot) {
    const auto thrown = static_cast<std::size_t>(std::max<std::int16_t>(bot.state.dice.amount, 0));
    return std::min(bot.state.dieValues.size(), thrown);
}

bool AppendValue(const Bot& bot, std::string_view name, std::string& text) {
    const auto* const row = std::lower_bound(kByName.begin(), kByName.end(), name,
                                             [](const Variable& a, std::string_view b) { return a.name < b; });
    const bool found = row != kByName.end() && row->name == name;
    return found ? row->append(bot, text) : AppendNumbered(bot, name, text);
}
