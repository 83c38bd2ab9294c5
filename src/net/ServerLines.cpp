#include "net/ServerLines.h"

#include "bot/Bot.h"
#include "bot/Host.h"
#include "net/LineReaders.h"
#include "text/Text.h"

namespace {

constexpr std::string_view kBooted = "(You have been booted.";

constexpr std::size_t kMarkerAt = 1;
constexpr std::size_t kTextAt = 2;  // behind the "(": what is shown
constexpr std::size_t kFormAt = 2;  // the character that tells the forms of text apart
constexpr std::size_t kBehindFormAt = 3;

constexpr LineReaders kForms({
    {'{', ReadShout},
    {'(', ReadDreamNotice},
    {'*', ReadSystemNotice},
    {'>', ReadLookDescription},
    {'#', ReadLookDescriptionWithBadge},
});

/// Tells the forms apart by the second character; speech and emotes, which begin with a name, are what is left.
/// @return whether the line is to be shown: what an ignored furre whispers is not
bool ReadForm(Bot& bot, const ServerLine& line) {
    if (line.HasAt(kFormAt, "[")) {
        if (line.HasAt(kBehindFormAt, " ")) return ReadWhisper(bot, line);
        ReadBracketNotice(bot, line);
    } else if (!kForms.Read(bot, line, kFormAt)) {
        line.HasAt(kFormAt, "You ") ? ReadOwnSpeech(bot, line) : ReadSpeechOrEmote(bot, line);
    }
    return true;
}

void ReadTextLine(Bot& bot, const ServerLine& line) {
    // A line of one word holds no name and no form: it is shown and nothing else. The name is that of speech and
    // emotes; a whisper has a "[" in its place, so its reader looks after the ignored itself.
    const bool hasName = line.Whole().find(' ') != std::string_view::npos;
    const auto isIgnored = [&] { return !bot.profile.ignores.empty() && IsIgnored(bot.profile, SpeakerOf(line)); };
    if (hasName && (isIgnored() || !ReadForm(bot, line))) return;
    // Behind the events: what the script shows on the console stands above the line that it answers, and a line that
    // has shut the bot down is not shown.
    if (bot.state.shutDown || !bot.host.IsConsoleRead()) return;
    const std::string_view text = line.RestFrom(kTextAt);
    text.find('|') == text.npos ? bot.host.ShowConsoleLine(text) : bot.host.ShowConsoleLine(BarsToBlanks(text));
}

constexpr LineReaders kReaders({
    {'(', ReadTextLine},
    {'/', ReadMovementLine},
    {'<', ReadMovementLine},
    {']', ReadBracketLine},
    {';', ReadMapLine},
    {'6', ReadDsBotTriggerLine},
    {'7', ReadDsTriggerLine},
});

}  // namespace

std::int16_t ParseServerLine(Bot& bot, std::string_view text) {
    const ServerLine line(text);
    // Before all text lines: nothing of a line that throws the bot out is shown or raised.
    if (line.HasAt(kMarkerAt, kBooted)) {
        bot.state.shutDown = true;
        bot.host.Disconnect();
    } else {
        kReaders.Read(bot, line, kMarkerAt);
    }
    return -1;
}
