#include "language/VariableTable.h"

#include <algorithm>

namespace {

constexpr EventSet kPlayers = EventSet::Someones();
constexpr EventSet kOwn = EventSet::Where([](const EventFacts& event) { return event.furre == &BotState::vorel; });
constexpr EventSet kSpeakers =
    kOwn | EventSet::Where([](const EventFacts& event) { return event.furre == &BotState::player; });
constexpr EventSet kCookies = EventSet::Where([](const EventFacts& event) { return event.otherName != nullptr; });

constexpr EventSet By(Field field) { return EventSet::Filling(field); }

constexpr char kLogin[] = "the login";
constexpr char kNever[] = "the game never tells it";
constexpr char kOwnMove[] = "a move of the bot only";
constexpr char kClock[] = "the computer's clock";

// clang-format off
constexpr VariableDescription kVariables[] = {
    {"[player]",
     "the name of the furre of the event; in the events of the bot's own speech, of the bot. In all other events it "
     "stays as it is written", kPlayers},
    {"[player.name]", "the same", kPlayers},
    {"[player.colors]", "the colour code of the furre of the event", kSpeakers},
    {"[player.gender]", "its gender code", kSpeakers},
    {"[player.species]", "its species code", kSpeakers},
    {"[player.markings]", "its markings code", kSpeakers},
    {"[player.desc]", "the bot's own description in the events of the bot's own speech, otherwise empty", kOwn},
    {"[cookiename]", "the other furre of a cookie", kCookies},
    {"[message]", "what was said, shouted, emoted, whispered or typed", By(Field::Message)},
    {"[wordN]", "a word of the message, counted from 1: [word1], [word2] and so on", By(Field::Message)},
    {"[startingwordN]", "the message from a word on: [startingword2] is all but the first word", By(Field::Message)},

    {"[vorel.name]", "the bot's name", By(Field::Login), kLogin},
    {"[vorel.desc]", "the bot's description", By(Field::Login), kLogin},
    {"[vorel.badge]", "the bot's badge", {}, kNever},
    {"[vorel.colors]", "the bot's colour code", By(Field::Login), kLogin},
    {"[vorel.gender]", "the bot's gender code", By(Field::Login), kLogin},
    {"[vorel.markings]", "the bot's markings code", By(Field::Login), kLogin},
    {"[vorel.species]", "the bot's species code", By(Field::Login), kLogin},
    {"[vorel.owners]", "the bot's owners, with a comma and a blank between them", {}, "the profile"},
    {"[vorel.into]", "where the bot is, as (x,y)", By(Field::Move), kOwnMove},
    {"[vorel.from]", "where the bot was before, as (x,y)", By(Field::Move), kOwnMove},
    {"[vorel.into.x]", "the column where the bot is", By(Field::Move), kOwnMove},
    {"[vorel.into.y]", "the row where the bot is", By(Field::Move), kOwnMove},
    {"[vorel.from.x]", "the column where the bot was", By(Field::Move), kOwnMove},
    {"[vorel.from.y]", "the row where the bot was", By(Field::Move), kOwnMove},

    {"[date]", "today's date, as this computer writes it", {}, kClock},
    {"[time]", "the time, as this computer writes it", {}, kClock},
    {"[hour]", "the hour, from 0 to 23", {}, kClock},
    {"[minute]", "the minute", {}, kClock},
    {"[second]", "the second", {}, kClock},
    {"[median]", "the last two characters of [time], which are AM or PM where the computer writes the time so", {},
     kClock},

    {"[fst]", "the game's own time, such as 7:5:9 PM", By(Field::StandardTime)},
    {"[fst.time]", "the same", By(Field::StandardTime)},
    {"[fst.hour]", "its hour", By(Field::StandardTime)},
    {"[fst.minute]", "its minute", By(Field::StandardTime)},
    {"[fst.second]", "its second", By(Field::StandardTime)},
    {"[fst.median]", "its AM or PM", By(Field::StandardTime)},

    {"[move.colors]", "the colour code of the furre that moved", By(Field::Move)},
    {"[move.from.x]", "the column it came from; 0 when it has just come into sight", By(Field::Move)},
    {"[move.from.y]", "the row it came from; 0 when it has just come into sight", By(Field::Move)},
    {"[move.frame]", "the number of its picture", By(Field::Move)},
    {"[move.into.x]", "the column it went to", By(Field::Move)},
    {"[move.into.y]", "the row it went to", By(Field::Move)},
    {"[move.into]", "where it went, as (x,y)", By(Field::Move)},
    {"[move.from]", "where it came from, as (x,y)", By(Field::Move)},

    {"[look.name]", "the name of the furre last looked at", By(Field::Look)},
    {"[look.colors]", "its colour code", By(Field::Look)},
    {"[look.gender]", "its gender code", By(Field::Look)},
    {"[look.species]", "its species code", By(Field::Look)},
    {"[look.markings]", "its markings code", By(Field::Look)},
    {"[look.badge]", "its badge; empty when it has none", By(Field::LookDescription)},
    {"[look.desc]", "its description", By(Field::LookDescription)},

    {"[dsbot.from.x]", "a trigger of the first kind: the column its furre came from", By(Field::DsBot)},
    {"[dsbot.from.y]", "the row it came from", By(Field::DsBot)},
    {"[dsbot.into.x]", "the column it went to", By(Field::DsBot)},
    {"[dsbot.into.y]", "the row it went to", By(Field::DsBot)},
    {"[dsbot.trigger]", "the trigger's number", By(Field::DsBot)},
    {"[dsbot.trigger.x]", "the trigger's column", By(Field::DsBot)},
    {"[dsbot.trigger.y]", "the trigger's row", By(Field::DsBot)},
    {"[ds.from.x]", "a trigger of the second kind: the column its furre came from", By(Field::Ds)},
    {"[ds.from.y]", "the row it came from", By(Field::Ds)},
    {"[ds.into.x]", "the column it went to", By(Field::Ds)},
    {"[ds.into.y]", "the row it went to", By(Field::Ds)},
    {"[ds.trigger]", "the trigger's number", By(Field::Ds)},
    {"[ds.trigger.x]", "the trigger's column", By(Field::Ds)},
    {"[ds.trigger.y]", "the trigger's row", By(Field::Ds)},

    {"[breath.x]", "the column of the last breath", By(Field::Breath)},
    {"[breath.y]", "the row of the last breath", By(Field::Breath)},
    {"[flame.x]", "the column of the last flame", By(Field::Flame)},
    {"[flame.y]", "the row of the last flame", By(Field::Flame)},
    {"[dream.name]", "the name of the dream that appeared last", By(Field::DreamName)},
    {"[dream.x]", "the column of the dream that appeared or vanished last", By(Field::Dream)},
    {"[dream.y]", "the row of that dream", By(Field::Dream)},
    {"[visitors]",
     "the last list of visitors, with a comma and a blank between the names; while the changes are told, the list "
     "before it", By(Field::Visitors)},
    {"[visitorcount]", "how many furres are in the dream", {},
     "the game's notice how many players are in the dream, which raises no event"},
    {"[map]", "the map or dream where the bot is, \"Unknown\" for a map without a name; empty after the login",
     By(Field::Map), "also the notice how many players are in the dream"},
    {"[previousmap]", "the map or dream where the bot was before", By(Field::Map),
     "also the notice how many players are in the dream"},

    {"[dieN]", "one of the dice rolled last, counted from 1: [die1], [die2] and so on", By(Field::Dice)},
    {"[dice.total]", "the sum of the dice", By(Field::Dice)},
    {"[dice.amount]", "how many dice were rolled", By(Field::Dice)},
    {"[dice.sides]", "how many sides they have", By(Field::Dice)},
};
// clang-format on

/// "[word3]" is a case of "[wordN]".
bool IsCaseOf(std::string_view name, std::string_view row) {
    if (!row.ends_with("N]")) return name == row;
    const std::string_view stem = row.substr(0, row.size() - 2);
    if (!name.starts_with(stem) || !name.ends_with(']')) return false;
    const std::string_view number = name.substr(stem.size(), name.size() - stem.size() - 1);
    return !number.empty() && number.front() != '0' && number.find_first_not_of("0123456789") == number.npos;
}

}  // namespace

std::span<const VariableDescription> AllVariables() { return kVariables; }

const VariableDescription* FindVariable(std::string_view name) {
    const auto* const row = std::find_if(std::begin(kVariables), std::end(kVariables),
                                         [name](const VariableDescription& v) { return IsCaseOf(name, v.name); });
    return row == std::end(kVariables) ? nullptr : row;
}
