#include "practice/modDreamLines.h"

#include <cstdio>
#include <numeric>

#include "game/Base95.h"
#include "game/Lists.h"
#include "text/Text.h"

namespace {

std::string Number(std::int16_t value, std::int16_t divisor = 1) { return EncodeBase95Pair(value, divisor); }

std::string At(Square square) { return Number(square.x, 2) + Number(square.y); }

/// What a look shows of a badge is one character; a badge written as a number stands for the character of that code.
std::string BadgeCharacter(const std::string& badge) {
    const bool isNumber = badge.size() > 1 && badge.find_first_not_of("0123456789") == std::string::npos;
    const int code = isNumber ? std::stoi(badge.substr(0, 3)) : 0;
    // 10, say, would end the line.
    const bool isCode = code >= ' ' && code <= 255;
    return isCode ? std::string(1, static_cast<char>(code)) : badge.substr(0, 1);
}

std::string Notice(std::string_view name, std::string_view what) {
    return "([*] " + std::string(name) + " " + std::string(what);
}

std::string Rolls(std::string_view name, std::size_t amount, int sides) {
    return Notice(name, "rolls " + std::to_string(amount) + "d" + std::to_string(sides));
}

}  // namespace

namespace modDreamLines {

std::string Welcome(std::string_view name) {
    return Remark("Welcome to the practice dream, " + BarsToBlanks(name) + ".");
}
std::string Booted() { return "(You have been booted."; }
std::string Remark(std::string_view text) { return "(* " + std::string(text); }

std::string LooksOf(const Furre& furre) { return "]-#A" + furre.looks.Code(); }
std::string BadgeOf(const Furre& furre) { return "]-#B" + furre.badge; }

std::string Speech(std::string_view name, std::string_view text) {
    return "(" + std::string(name) + ": " + std::string(text);
}
std::string OwnSpeech(std::string_view text) { return "(You say, \"" + std::string(text) + "\""; }
std::string Shout(std::string_view name, std::string_view text) {
    return "({S} " + std::string(name) + " shouts: " + std::string(text);
}
std::string OwnShout(std::string_view text) { return "(You shout, \"" + std::string(text) + "\""; }
std::string Emote(std::string_view name, std::string_view text) {
    return "(" + std::string(name) + " " + std::string(text);
}
std::string Whisper(std::string_view name, std::string_view text) {
    return "([ " + std::string(name) + " whispers, \"" + std::string(text) + "\" to you. ]";
}
std::string OwnWhisper(std::string_view name, std::string_view text) {
    return "([ You whisper \"" + std::string(text) + "\" to " + std::string(name) + ". ]";
}
std::string HashNotice(std::string_view text) { return "([#] " + std::string(text); }

std::string LookResult(const Furre& furre) { return "]f" + furre.looks.Code() + furre.name; }
std::string LookDescription(const Furre& furre) {
    const std::string badge = BadgeCharacter(furre.badge);
    return (badge.empty() ? std::string("(>") : "(#B" + badge) + " " + furre.desc;
}

std::string Appears(std::string_view colors, Square at, std::int16_t frame) {
    return "<" + std::string(colors) + At(at) + Number(frame);
}
std::string Moves(std::string_view colors, Square into, std::int16_t frame, Square from) {
    return "/" + std::string(colors) + At(into) + Number(frame) + At(from);
}
std::string MapFile(std::string_view file) { return ";" + std::string(file); }
std::string LoadRequest(std::string_view file) { return "]q" + std::string(file); }
std::string EnterDream(std::string_view name) { return "((You enter the dream of " + std::string(name) + ")"; }
std::string ScriptLines(int count) { return "((Lines of DragonSpeak: " + std::to_string(count) + ")"; }
std::string DreamAppears(Square at, std::string_view name) { return "]s" + At(at) + std::string(name); }
std::string DreamVanishes(Square at) { return "]t" + At(at); }
std::string Breath(Square at) { return "]va" + At(at); }
std::string Flame(Square at) { return "]vb" + At(at); }
std::string Trigger(bool own, const DragonSpeakNotice& notice) {
    return (own ? "6" : "7") + At(notice.from) + At(notice.into) + Number(notice.trigger) + At(notice.triggerAt);
}

std::string Visitors(const std::vector<std::string>& names) {
    return "(* Current players: " + Join(names, kListSeparator);
}
std::string VisitorCount(std::size_t count, std::string_view dream) {
    const std::string players = count == 1 ? "One player" : std::to_string(count) + " players";
    return "(* " + players + " in the dream of " + std::string(dream) + ".";
}
std::string NotHere(std::string_view name) { return "(* Player " + std::string(name) + " is not currently here."; }
std::string OnlineAnswer(bool online, std::string_view name) { return (online ? "]%1" : "]%0") + std::string(name); }
std::string TimeOfDay(const LocalTime& time) {
    const int hour = time.hour % 12 == 0 ? 12 : time.hour % 12;
    char text[40];
    std::snprintf(text, sizeof text, "%d:%02d:%02d%s", hour, time.minute, time.second, time.hour < 12 ? "AM" : "PM");
    return "(* Furcadia Standard Time: " + std::string(text);
}
std::string CannotSummonYourself() { return "(* You cannot summon yourself."; }
std::string YouNotice(std::string_view what, std::string_view name) {
    return "(* You " + std::string(what) + " " + std::string(name);
}

std::string JoinRequest(std::string_view name) {
    return Notice(name,
                  "requests permission to join your company. To accept the request, type `summon and press <enter>. "
                  "To decline, type `decline and press <enter>");
}
std::string JoinInvitation(std::string_view name) {
    return Notice(name,
                  "asks you to join his / her company. To accept the request, type `join and press <enter>. "
                  "To decline, type `decline and press <enter>");
}
std::string RequestSent(std::string_view name) {
    return Notice("Your", "request has been sent to " + std::string(name));
}
std::string Accepted(std::string_view name) { return Notice(name, "has accepted your request."); }
std::string Declined(std::string_view name) { return Notice(name, "has declined your request."); }
std::string Joins(std::string_view name) { return Notice(name, "joins you."); }
std::string Summons(std::string_view name) { return Notice(name, "summons you."); }

std::string CookieGiven(std::string_view giver, std::string_view receiver) {
    return "([%] " + std::string(giver) + " has given " + std::string(receiver) + " a cookie.";
}
std::string OwnCookie(std::string_view what) { return "([%] Your cookie " + std::string(what); }
std::string DiceTotal(std::string_view name, int amount, int sides, int total) {
    return Rolls(name, static_cast<std::size_t>(amount), sides) + " & gets " + std::to_string(total) + ".";
}
std::string DiceRoll(std::string_view name, int sides, const std::vector<int>& dice) {
    std::string list;
    for (const int die : dice) list += (list.empty() ? "(" : " (") + std::to_string(die) + ")";
    const int total = std::accumulate(dice.begin(), dice.end(), 0);
    // Clients look for the first die four characters after the last ": ", hence the second bracket.
    return Rolls(name, dice.size(), sides) + " and throws: (" + list + ") = " + std::to_string(total) + ".";
}

}  // namespace modDreamLines
