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

constexpr std::size_t kTextAt = 2;    // behind the "(": what is shown
constexpr std::size_t kFormAt = 2;    // the character that tells the forms apart
constexpr std::size_t kNameAt = 2;    // of speech and emotes
constexpr std::size_t kPhraseAt = 3;  // behind the second character

/// Speech is "(name: text": the first ": " ends the first word. Anything else in the place of a name is an emote.
bool IsSpeech(const ServerLine& line) {
    const std::size_t colon = line.Whole().find(": ");
    return colon != std::string_view::npos && colon + 1 == line.Whole().find(' ');
}

/// The first word, for speech without its colon.
std::string_view SpeakerOf(const ServerLine& line) {
    return IsSpeech(line) ? WithoutLast(line.WordAt(kNameAt), 1) : line.WordAt(kNameAt);
}

/// The bot's own speech and shouts come back as "(You say, …" and "(You shout, …", the text in quotes. Kept on purpose:
/// the quote behind the text stays with the message.
void ReadOwnSpeech(Bot& bot, const ServerLine& line) {
    constexpr std::size_t kSaidAt = 12, kShoutedAt = 14;
    const std::string_view start = line.Whole().substr(0, line.Whole().find(", "));
    const bool says = start == "(You say", shouts = start == "(You shout";
    if (start.size() == line.Length() || !(says || shouts)) return;
    bot.state.player.name = bot.state.vorel.name;
    bot.state.message = line.RestFrom(says ? kSaidAt : kShoutedAt);
    RunScript(bot, says ? EventSelfSpeech : EventSelfShout);
}

void ReadSpeechOrEmote(Bot& bot, const ServerLine& line) {
    const bool speech = IsSpeech(line);
    bot.state.player.name = SpeakerOf(line);
    bot.state.message = line.BehindWordAt(kNameAt);
    const bool own = bot.state.player.name == bot.state.vorel.name;
    RunScript(bot, speech ? EventSpeech : own ? EventSelfEmote : EventEmote);
}

/// ({S} name shouts: text
void ReadShout(Bot& bot, const ServerLine& line) {
    constexpr std::size_t kShouterAt = 6;
    // Kept on purpose: of the words behind the name only the length counts; a line too short for them is a fault.
    constexpr std::string_view kBeforeMessage = " shouts: ";
    if (!line.HasAt(kPhraseAt, "S} ")) return;
    bot.state.player.name = line.WordAt(kShouterAt);
    bot.state.message = line.RestFrom(kShouterAt + bot.state.player.name.size() + kBeforeMessage.size());
    RunScript(bot, EventShout);
}

/// "((You enter the dream of …)" and what else stands in two parentheses.
void ReadDoubleParenthesis(Bot& bot, const ServerLine& line) {
    constexpr std::string_view kEnterDream = "You enter the dream of ";
    if (line.HasAt(kPhraseAt, kEnterDream)) {
        bot.state.previousMap = bot.state.map;
        bot.state.map = WithoutLast(line.RestFrom(kPhraseAt + kEnterDream.size()), 1);
        RunScript(bot, EventEnterDream);
    }
    // A dream that has not been named yet: the answer to "who" names it (SystemNotices.cpp).
    if (line.HasAt(kPhraseAt, "Lines of DragonSpeak: ") && bot.state.map.empty()) modSend::SendLine(bot, "who");
}

void RaiseLookDescription(Bot& bot, std::string badge, std::string_view desc) {
    bot.state.look.badge = std::move(badge);
    bot.state.look.desc = desc;
    RunScript(bot, EventLookDescription);
}

/// Tells the forms apart by the second character; speech and emotes, which begin with a name, are what is left.
/// @return whether the line is to be shown: what an ignored furre whispers is not
bool ReadForm(Bot& bot, const ServerLine& line) {
    constexpr std::size_t kDescAt = 4, kBadgeAt = 4, kDescBehindBadgeAt = 6;
    const std::string second = line.Char(kFormAt);
    if (second == "[" && line.HasAt(kPhraseAt, " ")) return ReadWhisper(bot, line);
    if (second == "[") {
        ReadBracketNotice(bot, line);
    } else if (second == "{") {
        ReadShout(bot, line);
    } else if (second == "(") {
        ReadDoubleParenthesis(bot, line);
    } else if (second == "*") {
        ReadSystemNotice(bot, line);
    } else if (second == ">") {
        RaiseLookDescription(bot, "", line.RestFrom(kDescAt));
    } else if (second == "#") {
        if (line.HasAt(kPhraseAt, "B")) {
            RaiseLookDescription(bot, line.Char(kBadgeAt), line.RestFrom(kDescBehindBadgeAt));
        }
    } else if (line.HasAt(kNameAt, "You ")) {
        ReadOwnSpeech(bot, line);
    } else {
        ReadSpeechOrEmote(bot, line);
    }
    return true;
}

/// Behind the events: what the script shows on the console stands above the line that it answers, and a line that has
/// shut the bot down is not shown.
void Show(Bot& bot, const ServerLine& line) {
    if (!bot.state.shutDown) bot.host.ShowConsoleLine(BarsToBlanks(line.RestFrom(kTextAt)));
}

}  // namespace

void ReadTextLine(Bot& bot, const ServerLine& line) {
    // A line of one word holds no name and no form: it is shown and nothing else. The name is that of speech and
    // emotes; a whisper has a "[" in its place, so its reader looks after the ignored itself.
    const bool hasName = line.Whole().find(' ') != std::string_view::npos;
    if (hasName && (IsIgnored(bot.profile, SpeakerOf(line)) || !ReadForm(bot, line))) return;
    Show(bot, line);
}
