// A script, to which everything happens that can happen. A fault ends the event, not the run: others are to be seen.
#include <vector>

#include "engine/Dispatcher.h"
#include "fuzz/FuzzBot.h"
#include "language/EventTable.h"

namespace {

std::vector<WrittenSession> SessionsOfAllEvents() {
    std::vector<WrittenSession> sessions;
    for (const EventDescription& event : AllEvents()) sessions.push_back(ParseSession(event.session));
    return sessions;
}

void Try(const auto& handler) {
    try {
        handler();
    } catch (const RuntimeFault&) {
        return;
    }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const std::vector<WrittenSession> sessions = SessionsOfAllEvents();
    FuzzBot bot;
    bot.host.SetServerConnected(true);
    // An input without the header would be passed over in silence.
    bot.bot.script = std::make_shared<Script>(
        ScriptTextFromFile(std::string(kScriptHeader) + "\r\n" + InputText(data, size)), "fuzzed.vs");
    for (const WrittenSession& session : sessions) {
        Try([&] {
            for (const SessionStep& step : session.steps) bot.rehearsal.Play(step);
        });
    }
    // The 49 there are, and some that there aren't.
    for (GameEvent event = 0; event < 52; ++event) Try([&] { RunScript(bot.bot, event); });
    return 0;
}
