// A written session, played to a bot that is recorded meanwhile. What a recording holds must be a session again.
#include <cstdlib>

#include "fuzz/EverythingScript.h"
#include "fuzz/FuzzBot.h"
#include "rehearsal/Recording.h"

namespace {

/// A session may ask for more ticks than anybody can wait for; what is looked for shows in the first few.
constexpr int kMostTicks = 200;

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const auto script = std::make_shared<const Script>(EverythingScript());
    WrittenSession session = ParseSession(InputText(data, size));
    std::string recorded;
    {
        FuzzBot bot;
        Recording recording(bot.bot, [&](const std::string& lines) { recorded += lines; });
        bot.session.SetObserver(&recording);
        bot.bot.script = script;
        for (SessionStep& step : session.steps) {
            if (step.kind != SessionStep::Kind::Event) step.count = std::min(step.count, kMostTicks);
            if (!bot.Handle([&] { bot.rehearsal.Play(step); })) break;
        }
    }
    if (ParseSession(recorded).error) std::abort();
    return 0;
}
