#include "net/TextLines.h"

#include "bot/Bot.h"
#include "bot/Host.h"
#include "engine/Dispatcher.h"
#include "net/BracketNotices.h"
#include "net/ServerLine.h"
#include "net/SystemNotices.h"
#include "net/Whispers.h"
#include "send/modSend.h"
#include "text/Text.h"

namespace {

/// Speech is "(name: text": the first ": " ends the first word.
bool IsSpeech(const ServerLine& line) {
    const std::size_t colon = line.Whole().find(": ");
    return colon != std::string_view::npos && colon + 1 == line.Whole().find(' ');
}

/// The first word, for speech without its colon.
std::string_view SpeakerOf(const ServerLine& line) {
    return IsSpeech(line) ? WithoutLast(line.WordAt(2), 1) : line.WordAt(2);
}

/// The bot's own speech and shouts come back as "(You say, …" and "(You shout, …".
void ReadOwnSpeech(Bot& bot, const ServerLine& line) {
    const std::string_view start = line.Whole().substr(0, line.Whole().find(", "));
    const bool says = start == "(You say", shouts = start == "(You shout";
    if (start.size() == line.Length() || !(says || shouts)) return;
    bot.state.player.name = bot.state.vorel.name;
    bot.state.message = line.RestAfter(says ? 11 : 13);
    RunScript(bot, says ? EventSelfSpeech : EventSelfShout);
}

void ReadSpeechOrEmote(Bot& bot, const ServerLine& line) {
    const bool speech = IsSpeech(line);
    bot.state.player.name = SpeakerOf(line);
    bot.state.message = line.BehindWordAt(2);
    const bool own = bot.state.player.name == bot.state.vorel.name;
    RunScript(bot, speech ? EventSpeech : own ? EventSelfEmote : EventEmote);
}

void ReadShout(Bot& bot, const ServerLine& line) {
    if (!line.HasAt(3, "S} ")) return;
    bot.state.player.name = line.WordAt(6);
    bot.state.message = line.RestAfter(static_cast<std::ptrdiff_t>(bot.state.player.name.size()) + 14);
    RunScript(bot, EventShout);
}

/// "((You enter the dream of …)" and what else stands in two parentheses.
void ReadDoubleParenthesis(Bot& bot, const ServerLine& line) {
    if (line.HasAt(3, "You enter the dream of ")) {
        bot.state.previousMap = bot.state.map;
        bot.state.map = WithoutLast(line.RestAfter(25), 1);
        RunScript(bot, EventEnterDream);
    }
    // A dream that has not been named yet: the answer to "who" names it.
    if (line.HasAt(3, "Lines of DragonSpeak: ") && bot.state.map.empty()) modSend::SendLine(bot, "who");
}

void RaiseLookDescription(Bot& bot, std::string badge, std::string_view desc) {
    bot.state.look.badge = std::move(badge);
    bot.state.look.desc = desc;
    RunScript(bot, EventLookDescription);
}

/// @return whether the line is to be shown: what an ignored furre whispers is not
bool ReadForm(Bot& bot, const ServerLine& line) {
    const std::string second = line.Char(2);
    if (second == "[" && line.HasAt(3, " ")) return ReadWhisper(bot, line);
    if (second == "[") {
        ReadBracketNotice(bot, line);
    } else if (second == "{") {
        ReadShout(bot, line);
    } else if (second == "(") {
        ReadDoubleParenthesis(bot, line);
    } else if (second == "*") {
        ReadSystemNotice(bot, line);
    } else if (second == ">") {
        RaiseLookDescription(bot, "", line.RestAfter(3));
    } else if (second == "#") {
        if (line.HasAt(3, "B")) RaiseLookDescription(bot, line.Char(4), line.RestAfter(5));
    } else if (line.HasAt(2, "You ")) {
        ReadOwnSpeech(bot, line);
    } else {
        ReadSpeechOrEmote(bot, line);
    }
    return true;
}

void Show(Bot& bot, const ServerLine& line) {
    if (!bot.state.shutDown) bot.host.ShowConsoleLine(BarsToBlanks(line.RestAfter(1)));
}

}  // namespace

void ReadTextLine(Bot& bot, const ServerLine& line) {
    const bool hasName = line.Whole().find(' ') != std::string_view::npos;
    if (hasName && (IsIgnored(bot.profile, SpeakerOf(line)) || !ReadForm(bot, line))) return;
    Show(bot, line);
}
