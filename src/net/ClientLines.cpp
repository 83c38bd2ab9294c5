#include "net/ClientLines.h"

#include <algorithm>
#include <string>

#include "bot/Bot.h"
#include "bot/Host.h"
#include "engine/Dispatcher.h"
#include "net/ServerLine.h"
#include "send/modSend.h"
#include "text/Text.h"

namespace {

constexpr std::string_view kLogin = "connect ";

/// The first word and the blank behind it, in small letters; empty when there is no blank: "desc" alone is no
/// description, and goes on to the server.
std::string WordOf(std::string_view text) { return LowerCase(text.substr(0, text.find(' ') + 1)); }

/// "connect name password"; what is missing at the end is empty.
void LearnLogin(Bot& bot, std::string_view words) {
    const std::string_view name = words.substr(0, words.find(' '));
    const std::string_view behind = words.substr(std::min(name.size() + 1, words.size()));
    bot.state.password = behind.substr(0, behind.find(' '));
    bot.state.vorel.name = name;
}

/// "color " and looks
void LearnColors(Bot& bot, const ServerLine& line) {
    constexpr std::size_t kLooksAt = 7;
    bot.state.vorel.looks = line.LooksAt(kLooksAt);
}

}  // namespace

bool FilterClientLine(Bot& bot, std::string_view text) {
    constexpr std::string_view kCommandOfBot = "\"&";
    const ServerLine line(text);
    const std::string word = WordOf(text);
    if (word == kLogin) {
        LearnLogin(bot, text.substr(word.size()));
    } else if (word == "color ") {
        LearnColors(bot, line);
    } else if (word == "desc ") {
        // Kept without the signature, which SendDesc adds each time; so the client's own line must not reach the
        // server.
        bot.state.vorel.desc = text.substr(word.size());
        modSend::SendDesc(bot, bot.state.vorel.desc);
        return false;
    } else if (text.starts_with(kCommandOfBot)) {
        bot.state.message = text.substr(kCommandOfBot.size());
        RunScript(bot, EventClientCommand);
        return false;
    }
    return true;
}

bool IsLogin(std::string_view line) { return WordOf(line) == kLogin; }
