#include <utility>

#include "bot/Bot.h"
#include "engine/Dispatcher.h"
#include "net/LineReaders.h"
#include "send/modSend.h"
#include "text/Text.h"

namespace {

constexpr std::size_t kNameAt = 2;    // of speech and emotes
constexpr std::size_t kPhraseAt = 3;  // behind the second character

/// Speech is "(name: text": the first blank stands behind a colon. Anything else in the place of a name is an emote.
bool IsSpeech(const ServerLine& line) {
    const std::size_t blank = line.Whole().find(' ');
    return blank != std::string_view::npos && blank > 0 && line.Whole()[blank - 1] == ':';
}

void RaiseLookDescription(Bot& bot, std::string badge, std::string_view desc) {
    bot.state.look.badge = std::move(badge);
    bot.state.look.desc = desc;
    RunScript(bot, EventLookDescription);
}

}  // namespace

std::string_view SpeakerOf(const ServerLine& line) {
    return IsSpeech(line) ? WithoutLast(line.WordAt(kNameAt), 1) : line.WordAt(kNameAt);
}

// The bot's own speech and shouts come back with the text in quotes. Kept on purpose: the quote behind the text stays
// with the message.
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

void ReadShout(Bot& bot, const ServerLine& line) {
    constexpr std::size_t kShouterAt = 6;
    // Kept on purpose: of the words behind the name only the length counts; a line too short for them is a fault.
    constexpr std::string_view kBeforeMessage = " shouts: ";
    if (!line.HasAt(kPhraseAt, "S} ")) return;
    bot.state.player.name = line.WordAt(kShouterAt);
    bot.state.message = line.RestFrom(kShouterAt + bot.state.player.name.size() + kBeforeMessage.size());
    RunScript(bot, EventShout);
}

void ReadDreamNotice(Bot& bot, const ServerLine& line) {
    constexpr std::string_view kEnterDream = "You enter the dream of ";
    if (line.HasAt(kPhraseAt, kEnterDream)) {
        bot.state.previousMap = bot.state.map;
        bot.state.map = WithoutLast(line.RestFrom(kPhraseAt + kEnterDream.size()), 1);
        RunScript(bot, EventEnterDream);
    }
    // A dream that has not been named yet: the answer to "who" names it (SystemNotices.cpp).
    if (line.HasAt(kPhraseAt, "Lines of DragonSpeak: ") && bot.state.map.empty()) modSend::SendLine(bot, "who");
}

void ReadLookDescription(Bot& bot, const ServerLine& line) {
    constexpr std::size_t kDescAt = 4;
    RaiseLookDescription(bot, "", line.RestFrom(kDescAt));
}

void ReadLookDescriptionWithBadge(Bot& bot, const ServerLine& line) {
    constexpr std::size_t kBadgeAt = 4, kDescAt = 6;
    if (line.HasAt(kPhraseAt, "B")) RaiseLookDescription(bot, line.Char(kBadgeAt), line.RestFrom(kDescAt));
}
