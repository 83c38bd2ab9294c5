#include <algorithm>
#include <array>
#include <string>

#include "Version.h"
#include "bot/Bot.h"
#include "bot/Host.h"
#include "engine/Dispatcher.h"
#include "net/LineReaders.h"
#include "send/modSend.h"
#include "text/Text.h"

namespace {

constexpr std::string_view kShutDown = "shut down";

constexpr std::string_view kCredits =
    "This bot runs on Tandry Vorel, a free bot-making client for everyone who likes to write scripts; it comes with "
    "its source code, under the GNU General Public License.";

constexpr std::string_view kHelp =
    "If this bot is causing problems then any Guardian may whisper 'shut down' (without the quotes) to it in order to "
    "shut it down.";

// Kept on purpose: the same four badges, once as their codes and once as the characters of these codes. The tag is
// whatever the last "]-#" line has brought, so who may do the one may not do the other.
constexpr std::array<std::string_view, 4> kShutDownTags = {"65", "66", "67", "68"};
constexpr std::array<std::string_view, 4> kHelpTags = {"A", "B", "C", "D"};

template <typename Tags>
bool IsOneOf(const Tags& tags, std::string_view tag) {
    return std::find(tags.begin(), tags.end(), tag) != tags.end();
}

bool MayShutDownBot(std::string_view playerTag) { return IsOneOf(kShutDownTags, playerTag); }

std::string StatusAnswer() {
    return std::string(kCredits) + " [Press F8 now] [" + kProductName + " " + kProductVersion + "]";
}

// Whispers are cut where their words are found, which counts from 0, while positions count from 1.

/// ([ You whisper "message" to name. ]. The last `" to ` counts, for the message may hold another one.
void ReadOwnWhisper(Bot& bot, const ServerLine& line) {
    constexpr std::size_t kMessageAt = 17;
    constexpr std::string_view kToName = "\" to ";
    const std::string_view whole = line.Whole();
    const std::size_t quote = whole.rfind(kToName);
    bot.state.message = CutBetween(whole, kMessageAt - 1, quote);
    bot.state.player.name = CutBetween(whole, quote + kToName.size(), whole.rfind(". ]"));
    RunScript(bot, EventSelfWhisper);
}

void Answer(Bot& bot, std::string_view text) { modSend::SendWhisper(bot, bot.state.player.name, text); }

/// ([ name whispers, "message" to you. ]. The first ` whispers, "` counts, for the same reason.
bool ReadWhisperToBot(Bot& bot, const ServerLine& line) {
    constexpr std::size_t kNameAt = 4;
    constexpr std::string_view kWhispers = " whispers, \"", kBehindMessage = "\" to you. ]";
    const std::string_view whole = line.Whole();
    const std::size_t marker = whole.find(kWhispers);
    bot.state.player.name = CutBetween(whole, kNameAt - 1, marker);
    bot.state.message = WithoutLast(whole.substr(marker + kWhispers.size()), kBehindMessage.size());

    // Whoever may shut the bot down may do so even when ignored.
    if (bot.state.message == kShutDown) {
        if (MayShutDownBot(bot.state.playerTag)) {
            bot.state.shutDown = true;
            bot.host.Disconnect();
        }
        return true;
    }
    if (IsIgnored(bot.profile, bot.state.player.name)) return false;

    // The built-in words count in any letter case, and no script hears them. "Shut Down" shuts nothing down.
    const std::string word = LowerCase(bot.state.message);
    if (word == "botstat" || word == LowerCase(kProductName)) {
        Answer(bot, StatusAnswer());
    } else if (word == "vorel-help") {
        if (IsOneOf(kHelpTags, bot.state.playerTag)) Answer(bot, kHelp);
    } else if (word != kShutDown) {
        RunScript(bot, EventWhisper);
    }
    return true;
}

}  // namespace

bool ReadWhisper(Bot& bot, const ServerLine& line) {
    constexpr std::size_t kWhispererAt = 4;
    if (line.HasAt(kWhispererAt, "You ")) {
        ReadOwnWhisper(bot, line);
    } else if (line.Whole().ends_with(" to you. ]")) {
        bot.heard.isWhisper = ReadWhisperToBot(bot, line);
        return bot.heard.isWhisper;
    }
    return true;
}
