
#include <algorithm>
#include <iterator>

#include "bot/Bot.h"
#include "engine/Dispatcher.h"
#include "net/LineReaders.h"

namespace {

constexpr std::size_t kKindAt = 3;          // between the brackets: "#", "*" or "%"
constexpr std::size_t kNameAt = 6;          // behind "([*] " and its like
constexpr std::string_view kYour = "Your";  // in place of a name: a notice about what the bot itself has asked for

void AcceptRequest(Bot& bot) { bot.state.requestAccepted = true; }

template <GameEvent Event>
void Raise(Bot& bot) {
    RunScript(bot, Event);
}

/// Raises an event, and another one when a request had been accepted before.
template <GameEvent Event, GameEvent AfterAccept>
void RaiseAndConsumeAccept(Bot& bot) {
    RunScript(bot, Event);
    if (!bot.state.requestAccepted) return;
    bot.state.requestAccepted = false;
    RunScript(bot, AfterAccept);
}

struct Notice {
    std::string_view text;
    void (*handle)(Bot&);
};

constexpr Notice kNotices[] = {
    {"has accepted your request.", AcceptRequest},
    {"joins you.", RaiseAndConsumeAccept<EventJoined, EventJoinedAfterAccept>},
    {"summons you.", RaiseAndConsumeAccept<EventSummoned, EventSummonedAfterAccept>},
    {"requests permission to join your company. To accept the request, type `summon and press <enter>. To decline, "
     "type `decline and press <enter>",
     Raise<EventJoinRequest>},
    {"asks you to join his / her company. To accept the request, type `join and press <enter>. To decline, type "
     "`decline and press <enter>",
     Raise<EventJoinInvite>},
};

/// ([*] name notice. Where it begins with "Your", the furre is the last word.
void ReadRequestNotice(Bot& bot, const ServerLine& line) {
    bot.state.requester = line.WordAt(kNameAt);
    if (bot.state.requester == kYour) {
        bot.state.requester = line.LastWord();
        RunScript(bot, EventYourNotice);
    } else {
        const std::string_view text = line.BehindWordAt(kNameAt);
        const auto* const notice = std::find_if(std::begin(kNotices), std::end(kNotices),
                                                [text](const Notice& row) { return row.text == text; });
        if (notice != std::end(kNotices)) notice->handle(bot);
    }
    // Every such line may tell of a roll as well, whatever else it was; whose roll it is has been read above.
    ReadDice(bot, line);
}

/// ([%] giver has given receiver a cookie!
void ReadCookie(Bot& bot, const ServerLine& line) {
    // Kept on purpose: of the words around the receiver only the lengths count; a line too short for them is a fault.
    constexpr std::string_view kBeforeReceiver = " has given ", kBehindReceiver = " a cookie!";
    const std::string_view giver = line.WordAt(kNameAt);
    if (giver == kYour) return;
    bot.state.cookieGiver = giver;
    const std::size_t receiverAt = kNameAt + giver.size() + kBeforeReceiver.size();
    bot.state.cookieName = WithoutLast(line.RestFrom(receiverAt), kBehindReceiver.size());
    const bool fromBot = bot.state.cookieGiver == bot.state.vorel.name;
    const bool toBot = bot.state.cookieName == bot.state.vorel.name;
    RunScript(bot, fromBot ? EventCookieGiven : toBot ? EventCookieReceived : EventCookieSeen);
}

}  // namespace

void ReadBracketNotice(Bot& bot, const ServerLine& line) {
    constexpr std::size_t kMessageAt = 6;
    if (line.HasAt(kKindAt, "#")) {
        bot.state.message = line.RestFrom(kMessageAt);
        RunScript(bot, EventHashNotice);
    } else if (line.HasAt(kKindAt, "*")) {
        ReadRequestNotice(bot, line);
    } else if (line.HasAt(kKindAt, "%")) {
        ReadCookie(bot, line);
    }
}
