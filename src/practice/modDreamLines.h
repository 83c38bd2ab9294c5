#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "game/DragonSpeakNotice.h"
#include "game/Furre.h"
#include "game/LocalTime.h"
#include "game/Square.h"

/// Every line that the practice dream sends is composed here, without the line feed. Clients cut these lines by
/// position, so a changed word is a changed protocol. Names have "|" for blanks.
namespace modDreamLines {

std::string Welcome(std::string_view name);
std::string Booted();
/// A remark to one furre that clients show and otherwise pass over. Its first word must be none of Player, You,
/// Furcadia, Current and One.
std::string Remark(std::string_view text);

// Talk. Lines that tell of another furre are preceded by what it looks like (LooksOf, BadgeOf).
std::string LooksOf(const Furre& furre);
std::string BadgeOf(const Furre& furre);
std::string Speech(std::string_view name, std::string_view text);
std::string OwnSpeech(std::string_view text);
std::string Shout(std::string_view name, std::string_view text);
std::string OwnShout(std::string_view text);
std::string Emote(std::string_view name, std::string_view text);  ///< to everyone, the emoting furre too
std::string Whisper(std::string_view name, std::string_view text);
std::string OwnWhisper(std::string_view name, std::string_view text);
std::string HashNotice(std::string_view text);

// Looks
std::string LookResult(const Furre& furre);
std::string LookDescription(const Furre& furre);

// Places and movement
std::string Appears(std::string_view colors, Square at, std::int16_t frame);
std::string Moves(std::string_view colors, Square into, std::int16_t frame, Square from);
std::string MapFile(std::string_view file);
std::string LoadRequest(std::string_view file);
std::string EnterDream(std::string_view name);
std::string ScriptLines(int count);
std::string DreamAppears(Square at, std::string_view name);
std::string DreamVanishes(Square at);
std::string Breath(Square at);
std::string Flame(Square at);
/// The report of a step on a trigger: own to the furre that stepped, not own to those who see it.
std::string Trigger(bool own, const DragonSpeakNotice& notice);

// Notices
std::string Visitors(const std::vector<std::string>& names);
std::string VisitorCount(std::size_t count, std::string_view dream);
std::string NotHere(std::string_view name);
std::string OnlineAnswer(bool online, std::string_view name);
std::string TimeOfDay(const LocalTime& time);
std::string CannotSummonYourself();
/// The notice "(* You ...", which ends with the name it is about.
std::string YouNotice(std::string_view what, std::string_view name);

// Requests: what the asked furre hears, and what the asking one does.
std::string JoinRequest(std::string_view name);
std::string JoinInvitation(std::string_view name);
std::string RequestSent(std::string_view name);
std::string Accepted(std::string_view name);
std::string Declined(std::string_view name);
std::string Joins(std::string_view name);
std::string Summons(std::string_view name);

// Games
std::string CookieGiven(std::string_view giver, std::string_view receiver);
std::string OwnCookie(std::string_view what);  ///< "tastes of honey."
std::string DiceTotal(std::string_view name, int amount, int sides, int total);
std::string DiceRoll(std::string_view name, int sides, const std::vector<int>& dice);

}  // namespace modDreamLines
