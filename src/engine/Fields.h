#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "bot/Bot.h"
#include "bot/Events.h"

/// What conditions compare: a field of the bot's state, or nothing where the current event has none to compare.
namespace field {

using TextField = const std::string* (*)(const Bot&);
using NumberField = std::optional<std::int16_t> (*)(const Bot&);
using SquareField = std::optional<Square> (*)(const Bot&);

// --- the furre of the event ------------------------------------------------------------------------------------

inline bool IsSpeechEvent(const EventFacts& event) { return event.comparable && event.furre == &BotState::player; }

inline const std::string* FurreName(const Bot& bot) {
    const EventFacts& event = FactsOf(bot.currentEvent);
    return event.comparable ? event.FurreNameIn(bot.state) : nullptr;
}

template <std::string Appearance::*Part>
const std::string* Looks(const Bot& bot) {
    const EventFacts& event = FactsOf(bot.currentEvent);
    return event.comparable && event.furre ? &((bot.state.*event.furre).looks.*Part) : nullptr;
}

inline const std::string* ColorsOrMoverColors(const Bot& bot) {
    return bot.currentEvent == EventFurreMoved ? &bot.state.move.colors : Looks<&Appearance::colors>(bot);
}

/// The badge belongs to the furre that speaks, or to the one looked at, which of two events ever tells.
template <GameEvent LookEvent>
const std::string* Badge(const Bot& bot) {
    if (IsSpeechEvent(FactsOf(bot.currentEvent))) return &bot.state.playerTag;
    return bot.currentEvent == LookEvent ? &bot.state.look.badge : nullptr;
}

// --- the rest of the state -------------------------------------------------------------------------------------

inline const std::string* LookDesc(const Bot& bot) { return &bot.state.look.desc; }

template <std::string KnownThisSession::*Part>
const std::string* Text(const Bot& bot) {
    return &(bot.state.*Part);
}

template <SplitList Profile::*Names>
const std::string* List(const Bot& bot) {
    return &(bot.profile.*Names).Text();
}

template <std::int16_t StandardTime::*Part>
std::optional<std::int16_t> Time(const Bot& bot) {
    return bot.state.fst.*Part;
}

template <std::int16_t Dice::*Part>
std::optional<std::int16_t> Roll(const Bot& bot) {
    return bot.state.dice.*Part;
}

template <Square KnownAcrossLogins::*Part>
std::optional<Square> Place(const Bot& bot) {
    return bot.state.*Part;
}

/// Where the furre stands after its move; both squares are the same when it only turned. So it is the square moved into
/// every time, and (1:90) asks in other words what (1:88) asks.
inline std::optional<Square> MoveEnd(const Bot& bot) {
    return bot.state.moveFrom == bot.state.moveInto ? bot.state.moveFrom : bot.state.moveInto;
}

// --- notices of DragonSpeak triggers -----------------------------------------------------------------------------

inline const DragonSpeakNotice* Notice(const Bot& bot) {
    if (bot.currentEvent == EventDsBotTrigger) return &bot.state.dsbot;
    return bot.currentEvent == EventDsTrigger ? &bot.state.ds : nullptr;
}

template <Square DragonSpeakNotice::*Part>
std::optional<Square> NoticeSquare(const Bot& bot) {
    const DragonSpeakNotice* const notice = Notice(bot);
    return notice ? std::optional(notice->*Part) : std::nullopt;
}

inline std::optional<std::int16_t> NoticeTrigger(const Bot& bot) {
    const DragonSpeakNotice* const notice = Notice(bot);
    return notice ? std::optional(notice->trigger) : std::nullopt;
}

}  // namespace field
