#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>

#include "bot/BotState.h"

/// The code of something that happened. A cause (0:n) answers code n + 1; the timer tick has a rule of its own.
using GameEvent = std::int16_t;

inline constexpr GameEvent EventScriptLoaded = 1;
inline constexpr GameEvent EventConnected = 2;
inline constexpr GameEvent EventDisconnected = 3;
inline constexpr GameEvent EventSpeech = 4;
inline constexpr GameEvent EventShout = 5;
inline constexpr GameEvent EventEmote = 6;
inline constexpr GameEvent EventWhisper = 7;
inline constexpr GameEvent EventSelfSpeech = 8;
inline constexpr GameEvent EventSelfShout = 9;
inline constexpr GameEvent EventSelfEmote = 10;
inline constexpr GameEvent EventSelfWhisper = 11;
inline constexpr GameEvent EventHashNotice = 12;
inline constexpr GameEvent EventLookResult = 13;
inline constexpr GameEvent EventLookDescription = 14;
inline constexpr GameEvent EventFurreMoved = 15;
inline constexpr GameEvent EventEnterAcropolis = 16;
inline constexpr GameEvent EventEnterAllegria = 17;
inline constexpr GameEvent EventEnterFurrabianNights = 18;
inline constexpr GameEvent EventEnterImaginarium = 19;
inline constexpr GameEvent EventEnterDream = 20;
inline constexpr GameEvent EventVisitorArrived = 21;
inline constexpr GameEvent EventVisitorPresent = 22;
inline constexpr GameEvent EventVisitorLeft = 23;
inline constexpr GameEvent EventVisitorsUpdated = 24;
inline constexpr GameEvent EventBreath = 25;
inline constexpr GameEvent EventFlame = 26;
inline constexpr GameEvent EventJoinRequest = 27;
inline constexpr GameEvent EventJoinInvite = 28;
inline constexpr GameEvent EventJoined = 29;
inline constexpr GameEvent EventSummoned = 30;
inline constexpr GameEvent EventYouNotice = 31;
inline constexpr GameEvent EventYourNotice = 32;
inline constexpr GameEvent EventSummonedAfterAccept = 33;
inline constexpr GameEvent EventJoinedAfterAccept = 34;
inline constexpr GameEvent EventPlayerNotice = 35;
inline constexpr GameEvent EventPlayerOnline = 36;
inline constexpr GameEvent EventPlayerOffline = 37;
inline constexpr GameEvent EventDsBotTrigger = 38;
inline constexpr GameEvent EventDsTrigger = 39;
inline constexpr GameEvent EventCookieSeen = 40;
inline constexpr GameEvent EventCookieGiven = 41;
inline constexpr GameEvent EventCookieReceived = 42;
inline constexpr GameEvent EventTimeOfDay = 43;
inline constexpr GameEvent EventDiceTotal = 44;
inline constexpr GameEvent EventDiceRoll = 45;
inline constexpr GameEvent EventTimerTick = 46;
inline constexpr GameEvent EventClientCommand = 47;
inline constexpr GameEvent EventDreamListS = 48;
inline constexpr GameEvent EventDreamListT = 49;

inline constexpr GameEvent kFirstEvent = EventScriptLoaded;
inline constexpr GameEvent kLastEvent = EventDreamListT;

/// The number n of the cause (0:n) that answers an event, and the other way round.
constexpr std::int16_t CauseOf(GameEvent event) { return static_cast<std::int16_t>(event - 1); }
constexpr GameEvent EventOf(std::int16_t cause) { return static_cast<GameEvent>(cause + 1); }

/// What a bot gets to know by an event, besides whose event it is. Each is read by a few text variables.
enum class Field {
    None,
    Login,
    Message,
    Look,
    LookDescription,
    Move,
    Map,
    Visitors,
    Breath,
    Flame,
    DsBot,
    Ds,
    StandardTime,
    Dice,
    SingleDice,
    Dream,
    DreamName,
};

/// What there is to know of an event but how its line is read, which is net's, and what makers read of it, which is
/// language's.
struct EventFacts {
    GameEvent code = -1;
    std::string_view name = {};
    std::array<std::string_view, 2> lines = {};  ///< how lines begin that may raise it; none: the bot raises it itself

    // Whose event it is: "[player]" is this name. Nobody's when there is neither.
    Furre BotState::*furre = nullptr;            ///< of a furre of which more is known than the name
    std::string BotState::*furreName = nullptr;  ///< of all others
    std::string BotState::*otherName = nullptr;  ///< the other furre of a cookie

    /// Kept on purpose: conditions know the furres of fewer events than "[player]" does.
    bool comparable = false;

    std::array<Field, 2> fills = {};  ///< by its line, or by one that the game has sent before it

    constexpr bool IsSomeones() const { return furre || furreName; }
    constexpr bool Fills(Field field) const { return std::find(fills.begin(), fills.end(), field) != fills.end(); }

    /// The name of the furre of the event; nullptr when it is nobody's.
    const std::string* FurreNameIn(const BotState& state) const {
        if (furre) return &(state.*furre).name;
        return furreName ? &(state.*furreName) : nullptr;
    }
};

// clang-format off
/// All events, by code.
inline constexpr EventFacts kEvents[] = {
    {.code = EventScriptLoaded, .name = "script loaded"},
    {.code = EventConnected, .name = "connected", .fills = {Field::Login}},
    {.code = EventDisconnected, .name = "disconnected"},
    {.code = EventSpeech, .name = "speech", .lines = {"("}, .furre = &BotState::player, .comparable = true,
     .fills = {Field::Message}},
    {.code = EventShout, .name = "shout", .lines = {"({S} "}, .furre = &BotState::player, .comparable = true,
     .fills = {Field::Message}},
    {.code = EventEmote, .name = "emote", .lines = {"("}, .furre = &BotState::player, .fills = {Field::Message}},
    {.code = EventWhisper, .name = "whisper", .lines = {"([ "}, .furre = &BotState::player, .comparable = true,
     .fills = {Field::Message}},
    // Kept on purpose: in these three events "[player]" is the bot itself.
    {.code = EventSelfSpeech, .name = "the bot's speech", .lines = {"(You say, "}, .furre = &BotState::vorel,
     .fills = {Field::Message}},
    {.code = EventSelfShout, .name = "the bot's shout", .lines = {"(You shout, "}, .furre = &BotState::vorel,
     .fills = {Field::Message}},
    {.code = EventSelfEmote, .name = "the bot's emote", .lines = {"("}, .furre = &BotState::vorel,
     .fills = {Field::Message}},
    {.code = EventSelfWhisper, .name = "the bot's whisper", .lines = {"([ You "}, .furre = &BotState::player,
     .comparable = true, .fills = {Field::Message}},
    {.code = EventHashNotice, .name = "# notice", .lines = {"([#"}, .fills = {Field::Message}},
    {.code = EventLookResult, .name = "look", .lines = {"]f"}, .furre = &BotState::look, .comparable = true,
     .fills = {Field::Look}},
    {.code = EventLookDescription, .name = "look description", .lines = {"(>", "(#B"}, .furre = &BotState::look,
     .fills = {Field::Look, Field::LookDescription}},
    {.code = EventFurreMoved, .name = "move", .lines = {"/", "<"}, .fills = {Field::Move}},
    {.code = EventEnterAcropolis, .name = "Acropolis", .lines = {";"}, .fills = {Field::Map}},
    {.code = EventEnterAllegria, .name = "Allegria Island", .lines = {";"}, .fills = {Field::Map}},
    {.code = EventEnterFurrabianNights, .name = "Furrabian Nights", .lines = {";"}, .fills = {Field::Map}},
    {.code = EventEnterImaginarium, .name = "Imaginarium", .lines = {";"}, .fills = {Field::Map}},
    {.code = EventEnterDream, .name = "map or dream", .lines = {";", "((You enter the dream of "},
     .fills = {Field::Map}},
    {.code = EventVisitorArrived, .name = "visitor arrived", .lines = {"(* Current "}, .furreName = &BotState::arrived,
     .comparable = true, .fills = {Field::Visitors}},
    {.code = EventVisitorPresent, .name = "visitor present", .lines = {"(* Current "}, .furreName = &BotState::present,
     .comparable = true, .fills = {Field::Visitors}},
    {.code = EventVisitorLeft, .name = "visitor left", .lines = {"(* Current "}, .furreName = &BotState::departed,
     .comparable = true, .fills = {Field::Visitors}},
    {.code = EventVisitorsUpdated, .name = "visitors", .lines = {"(* Current "}, .fills = {Field::Visitors}},
    {.code = EventBreath, .name = "breath", .lines = {"]va"}, .fills = {Field::Breath}},
    {.code = EventFlame, .name = "flame", .lines = {"]vb"}, .fills = {Field::Flame}},
    {.code = EventJoinRequest, .name = "join request", .lines = {"([*] "}, .furreName = &BotState::requester,
     .comparable = true},
    {.code = EventJoinInvite, .name = "invitation", .lines = {"([*] "}, .furreName = &BotState::requester,
     .comparable = true},
    {.code = EventJoined, .name = "joined", .lines = {"([*] "}, .furreName = &BotState::requester, .comparable = true},
    {.code = EventSummoned, .name = "summoned", .lines = {"([*] "}, .furreName = &BotState::requester,
     .comparable = true},
    {.code = EventYouNotice, .name = "You notice", .lines = {"(* You "}, .furreName = &BotState::requester},
    {.code = EventYourNotice, .name = "Your notice", .lines = {"([*] Your "}, .furreName = &BotState::requester},
    {.code = EventSummonedAfterAccept, .name = "summoned as asked", .lines = {"([*] "},
     .furreName = &BotState::requester, .comparable = true},
    {.code = EventJoinedAfterAccept, .name = "joined as asked", .lines = {"([*] "}, .furreName = &BotState::requester,
     .comparable = true},
    {.code = EventPlayerNotice, .name = "player notice", .lines = {"(* Player "}, .furreName = &BotState::requester},
    {.code = EventPlayerOnline, .name = "online", .lines = {"]%1"}, .furreName = &BotState::onlineName,
     .comparable = true},
    {.code = EventPlayerOffline, .name = "not online", .lines = {"]%0"}, .furreName = &BotState::onlineName,
     .comparable = true},
    {.code = EventDsBotTrigger, .name = "trigger of the first kind", .lines = {"6"}, .fills = {Field::DsBot}},
    {.code = EventDsTrigger, .name = "trigger of the second kind", .lines = {"7"}, .fills = {Field::Ds}},
    {.code = EventCookieSeen, .name = "cookie seen", .lines = {"([%] "}, .furreName = &BotState::cookieGiver,
     .otherName = &BotState::cookieName},
    // Kept on purpose: the bot gave this cookie, so the furre of the event is the one who got it.
    {.code = EventCookieGiven, .name = "cookie given", .lines = {"([%] "}, .furreName = &BotState::cookieName,
     .otherName = &BotState::cookieGiver},
    {.code = EventCookieReceived, .name = "cookie received", .lines = {"([%] "}, .furreName = &BotState::cookieGiver,
     .otherName = &BotState::cookieName},
    {.code = EventTimeOfDay, .name = "game's time", .lines = {"(* Furcadia Standard Time: "},
     .fills = {Field::StandardTime}},
    {.code = EventDiceTotal, .name = "sum of dice", .lines = {"([*] "}, .furreName = &BotState::requester,
     .fills = {Field::Dice}},
    {.code = EventDiceRoll, .name = "dice", .lines = {"([*] "}, .furreName = &BotState::requester,
     .fills = {Field::Dice, Field::SingleDice}},
    {.code = EventTimerTick, .name = "tick"},
    {.code = EventClientCommand, .name = "command", .lines = {"\"&"}, .fills = {Field::Message}},
    {.code = EventDreamListS, .name = "dream appears", .lines = {"]s"}, .fills = {Field::Dream, Field::DreamName}},
    {.code = EventDreamListT, .name = "dream vanishes", .lines = {"]t"}, .fills = {Field::Dream}},
};
// clang-format on

inline constexpr EventFacts kNoEvent = {};

/// @return kNoEvent for a code that means nothing, such as that of a bot between two events
constexpr const EventFacts& FactsOf(GameEvent event) {
    return kFirstEvent <= event && event <= kLastEvent ? kEvents[event - kFirstEvent] : kNoEvent;
}

static_assert(std::size(kEvents) == kLastEvent &&
                  std::all_of(std::begin(kEvents), std::end(kEvents),
                              [](const EventFacts& row) { return &row == &FactsOf(row.code); }),
              "a row for each event, in the order of the codes");
