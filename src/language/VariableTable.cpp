#include "language/VariableTable.h"

#include <algorithm>

namespace {

constexpr EventSet kMessages = EventSet::Range(EventSpeech, EventHashNotice) | EventSet{EventClientCommand};
constexpr EventSet kOwn = {EventSelfSpeech, EventSelfShout, EventSelfEmote};
constexpr EventSet kSpeakers = EventSet{EventSpeech, EventShout, EventEmote, EventWhisper, EventSelfWhisper} | kOwn;
constexpr EventSet kCookies = EventSet::Range(EventCookieSeen, EventCookieReceived);
constexpr EventSet kPlayers = kSpeakers | EventSet{EventLookResult, EventLookDescription} |
                              EventSet::Range(EventVisitorArrived, EventVisitorLeft) |
                              EventSet::Range(EventJoinRequest, EventPlayerOffline) | kCookies |
                              EventSet{EventDiceTotal, EventDiceRoll};
constexpr EventSet kLooks = {EventLookResult, EventLookDescription};
constexpr EventSet kMaps = EventSet::Range(EventEnterAcropolis, EventEnterDream);
constexpr EventSet kDice = {EventDiceTotal, EventDiceRoll};
constexpr EventSet kDreams = {EventDreamListS, EventDreamListT};

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
    {"[message]", "what was said, shouted, emoted, whispered or typed", kMessages},
    {"[wordN]", "a word of the message, counted from 1: [word1], [word2] and so on", kMessages},
    {"[startingwordN]", "the message from a word on: [startingword2] is all but the first word", kMessages},

    {"[vorel.name]", "the bot's name", {EventConnected}, kLogin},
    {"[vorel.desc]", "the bot's description", {EventConnected}, kLogin},
    {"[vorel.badge]", "the bot's badge", {}, kNever},
    {"[vorel.colors]", "the bot's colour code", {EventConnected}, kLogin},
    {"[vorel.gender]", "the bot's gender code", {EventConnected}, kLogin},
    {"[vorel.markings]", "the bot's markings code", {EventConnected}, kLogin},
    {"[vorel.species]", "the bot's species code", {EventConnected}, kLogin},
    {"[vorel.owners]", "the bot's owners, with a comma and a blank between them", {}, "the profile"},
    {"[vorel.into]", "where the bot is, as (x,y)", {EventFurreMoved}, kOwnMove},
    {"[vorel.from]", "where the bot was before, as (x,y)", {EventFurreMoved}, kOwnMove},
    {"[vorel.into.x]", "the column where the bot is", {EventFurreMoved}, kOwnMove},
    {"[vorel.into.y]", "the row where the bot is", {EventFurreMoved}, kOwnMove},
    {"[vorel.from.x]", "the column where the bot was", {EventFurreMoved}, kOwnMove},
    {"[vorel.from.y]", "the row where the bot was", {EventFurreMoved}, kOwnMove},

    {"[date]", "today's date, as this computer writes it", {}, kClock},
    {"[time]", "the time, as this computer writes it", {}, kClock},
    {"[hour]", "the hour, from 0 to 23", {}, kClock},
    {"[minute]", "the minute", {}, kClock},
    {"[second]", "the second", {}, kClock},
    {"[median]", "the last two characters of [time], which are AM or PM where the computer writes the time so", {},
     kClock},

    {"[fst]", "the game's own time, such as 7:5:9 PM", {EventTimeOfDay}},
    {"[fst.time]", "the same", {EventTimeOfDay}},
    {"[fst.hour]", "its hour", {EventTimeOfDay}},
    {"[fst.minute]", "its minute", {EventTimeOfDay}},
    {"[fst.second]", "its second", {EventTimeOfDay}},
    {"[fst.median]", "its AM or PM", {EventTimeOfDay}},

    {"[move.colors]", "the colour code of the furre that moved", {EventFurreMoved}},
    {"[move.from.x]", "the column it came from; 0 when it has just come into sight", {EventFurreMoved}},
    {"[move.from.y]", "the row it came from; 0 when it has just come into sight", {EventFurreMoved}},
    {"[move.frame]", "the number of its picture", {EventFurreMoved}},
    {"[move.into.x]", "the column it went to", {EventFurreMoved}},
    {"[move.into.y]", "the row it went to", {EventFurreMoved}},
    {"[move.into]", "where it went, as (x,y)", {EventFurreMoved}},
    {"[move.from]", "where it came from, as (x,y)", {EventFurreMoved}},

    {"[look.name]", "the name of the furre last looked at", kLooks},
    {"[look.colors]", "its colour code", kLooks},
    {"[look.gender]", "its gender code", kLooks},
    {"[look.species]", "its species code", kLooks},
    {"[look.markings]", "its markings code", kLooks},
    {"[look.badge]", "its badge; empty when it has none", {EventLookDescription}},
    {"[look.desc]", "its description", {EventLookDescription}},

    {"[dsbot.from.x]", "a trigger of the first kind: the column its furre came from", {EventDsBotTrigger}},
    {"[dsbot.from.y]", "the row it came from", {EventDsBotTrigger}},
    {"[dsbot.into.x]", "the column it went to", {EventDsBotTrigger}},
    {"[dsbot.into.y]", "the row it went to", {EventDsBotTrigger}},
    {"[dsbot.trigger]", "the trigger's number", {EventDsBotTrigger}},
    {"[dsbot.trigger.x]", "the trigger's column", {EventDsBotTrigger}},
    {"[dsbot.trigger.y]", "the trigger's row", {EventDsBotTrigger}},
    {"[ds.from.x]", "a trigger of the second kind: the column its furre came from", {EventDsTrigger}},
    {"[ds.from.y]", "the row it came from", {EventDsTrigger}},
    {"[ds.into.x]", "the column it went to", {EventDsTrigger}},
    {"[ds.into.y]", "the row it went to", {EventDsTrigger}},
    {"[ds.trigger]", "the trigger's number", {EventDsTrigger}},
    {"[ds.trigger.x]", "the trigger's column", {EventDsTrigger}},
    {"[ds.trigger.y]", "the trigger's row", {EventDsTrigger}},

    {"[breath.x]", "the column of the last breath", {EventBreath}},
    {"[breath.y]", "the row of the last breath", {EventBreath}},
    {"[flame.x]", "the column of the last flame", {EventFlame}},
    {"[flame.y]", "the row of the last flame", {EventFlame}},
    {"[dream.name]", "the name of the dream that appeared last", {EventDreamListS}},
    {"[dream.x]", "the column of the dream that appeared or vanished last", kDreams},
    {"[dream.y]", "the row of that dream", kDreams},
    {"[visitors]",
     "the last list of visitors, with a comma and a blank between the names; while the changes are told, the list "
     "before it", EventSet::Range(EventVisitorArrived, EventVisitorsUpdated)},
    {"[visitorcount]", "how many furres are in the dream", {},
     "the game's notice how many players are in the dream, which raises no event"},
    {"[map]", "the map or dream where the bot is, \"Unknown\" for a map without a name; empty after the login", kMaps,
     "also the notice how many players are in the dream"},
    {"[previousmap]", "the map or dream where the bot was before", kMaps,
     "also the notice how many players are in the dream"},

    {"[dieN]", "one of the dice rolled last, counted from 1: [die1], [die2] and so on", kDice},
    {"[dice.total]", "the sum of the dice", kDice},
    {"[dice.amount]", "how many dice were rolled", kDice},
    {"[dice.sides]", "how many sides they have", kDice},
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
