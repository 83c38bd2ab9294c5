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

/// "connect name password"; what is missing at the end is empty.
void LearnLogin(Bot& bot, std::string_view words) {
    const std::string_view name = words.substr(0, words.find(' '));
    const std::string_view behind = words.substr(std::min(name.size() + 1, words.size()));
    bot.state.password = behind.substr(0, behind.find(' '));
    SetBotName(bot, name);
}

void LearnColors(Bot& bot, const ServerLine& line) {
    bot.state.vorel.looks = {std::string(line.Text(7, 10)), line.Char(17), line.Char(18), line.Char(19)};
}

}  // namespace

bool FilterClientLine(Bot& bot, std::string_view text) {
    const ServerLine line(text);
    const std::string word = LowerCase(text.substr(0, text.find(' ') + 1));
    if (word == "connect ") {
        LearnLogin(bot, text.substr(word.size()));
    } else if (word == "color ") {
        LearnColors(bot, line);
    } else if (word == "desc ") {
        bot.state.vorel.desc = text.substr(word.size());
        modSend::SendDesc(bot, bot.state.vorel.desc);
        return false;
    } else if (text.starts_with("\"&")) {
        bot.state.message = text.substr(2);
        RunScript(bot, EventClientCommand);
        return false;
    }
    return true;
}

void SetBotName(Bot& bot, std::string_view name) {
    bot.state.vorel.name = name;
    bot.status.botName = BarsToBlanks(name);
    bot.host.StatusChanged();
}
