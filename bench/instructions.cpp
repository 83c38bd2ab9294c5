// Feeds a bot with the same lines every time, so that `scripts/instructions` can count what they take: with 300
// triggers of each kind, for ticks of the timer, and for texts full of variables.
//
// Usage: instructions          names the scenarios, each with the number of its lines or ticks
//        instructions NAME     plays one of them
#include <cstdio>
#include <exception>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "QuietBot.h"
#include "engine/Dispatcher.h"
#include "net/ServerLines.h"
#include "net/Session.h"
#include "road/Talk.h"

/// The work that is counted; what has been done before it is not.
extern "C" [[gnu::noipa]] void Measured(const std::function<void()>& work) { work(); }

namespace {

constexpr int kTriggers = 300, kBatches = 5, kCount = kBatches * kLinesPerBatch;

using Reader = std::function<void(std::string_view packet)>;

void ReadEachLine(Bot& bot, std::string_view lines) {
    for (std::size_t from = 0, end = 0; (end = lines.find('\n', from)) != lines.npos; from = end + 1)
        ParseServerLine(bot, lines.substr(from, end - from));
}

/// Reads one batch before it counts, so that what is made only once is not counted.
/// @return whether the bot has sent as much as it should
bool ReadBatches(const QuietHost& host, std::vector<Batch> batches, const Reader& reader) {
    batches.resize(kBatches + 1);
    std::size_t expected = 0;
    const auto read = [&](const Batch& batch) {
        expected += batch.answers.size();
        reader(batch.lines);
    };
    read(batches.back());
    batches.pop_back();
    Measured([&] {
        for (const Batch& batch : batches) read(batch);
    });
    return host.written == expected;
}

void GiveScript(QuietBot& quiet, const std::string& script) {
    quiet.bot.profile.owners = std::string(kAsker);
    quiet.bot.script = std::make_shared<Script>(script);
}

bool ReadLines(std::string_view kindName, int triggers, Lines lines) {
    const TriggerKind& kind = KindNamed(kindName);
    QuietBot quiet;
    GiveScript(quiet, ScriptOf(kind, triggers));
    return ReadBatches(quiet.host, BatchesFor(kind, triggers, lines),
                       [&](std::string_view packet) { ReadEachLine(quiet.bot, packet); });
}

/// Each batch is a packet of the game, which the session cuts.
bool ReadPackets() {
    const TriggerKind& kind = KindNamed("equal");
    QuietBot quiet;
    QuietLink link;
    Session session(quiet.bot, link);
    session.KeepSplitLines(true);
    GiveScript(quiet, ScriptOf(kind, 1));
    return ReadBatches(quiet.host, BatchesFor(kind, 1, Lines::Mixed),
                       [&](std::string_view packet) { session.OnServerData(packet); });
}

/// A bot of one trigger, which answers each line with many variables, some of them its own.
bool Expand() {
    constexpr std::string_view kLine = "(Ann: one two three\n";
    constexpr std::string_view kAnswer = "wh Ann Hello, Ann: Greeter has heard one two three, and two three. Item 7.\n";
    Batch batch;
    for (int i = 0; i < kLinesPerBatch; ++i) batch.lines += kLine, batch.answers += kAnswer;
    std::string script = "VSPK 01.00 Vorel\r\n(0:4) When somebody shouts,\r\n";
    for (int i = 0; i < 50; ++i)
        script += " (5:68) take the variable {item" + std::to_string(i) + "} and store {" + std::to_string(i) +
                  "} in it.\r\n";
    script +=
        "(0:3) When somebody speaks,\r\n (5:12) whisper back {Hello, [player]: [vorel.name] has heard [message], and "
        "[startingword2]. Item [item7].}\r\n*Endtriggers* 9999 *Endtriggers*\r\n";
    std::vector<Batch> batches(kBatches + 1, batch);
    batches.back().lines.insert(0, "({S} Ann shouts: let us begin\n");
    QuietBot quiet;
    GiveScript(quiet, script);
    return ReadBatches(quiet.host, batches, [&](std::string_view packet) { ReadEachLine(quiet.bot, packet); });
}

/// Ticks at which no timer is due, with as many causes that are none.
bool Tick() {
    QuietBot quiet;
    quiet.bot.script = std::make_shared<Script>(
        "VSPK 01.00 Vorel\r\n" + WhisperTriggers(kTriggers) +
        "(0:45) Every {3599} seconds,\r\n (5:16) sit.\r\n*Endtriggers* 9999 *Endtriggers*\r\n");
    ScriptTimerTick(quiet.bot);
    Measured([&] {
        for (int i = 0; i < kCount; ++i) ScriptTimerTick(quiet.bot);
    });
    return quiet.host.written == 0;
}

struct Scenario {
    std::string_view name;
    bool (*play)();
};

// clang-format off
const Scenario kScenarios[] = {
    {"equal",       [] { return ReadLines("equal",       kTriggers, Lines::Speech); }},
    {"contains",    [] { return ReadLines("contains",    kTriggers, Lines::Speech); }},
    {"pattern",     [] { return ReadLines("pattern",     kTriggers, Lines::Speech); }},
    {"owner",       [] { return ReadLines("owner",       kTriggers, Lines::Speech); }},
    {"other-cause", [] { return ReadLines("other cause", kTriggers, Lines::Speech); }},
    {"one-trigger", [] { return ReadLines("equal",       1,         Lines::Mixed); }},
    {"mixed-lines", [] { return ReadLines("equal",       kTriggers, Lines::Mixed); }},
    {"answered",    [] { return ReadLines("equal",       kTriggers, Lines::AllAnswered); }},
    {"packets",     ReadPackets},
    {"variables",   Expand},
    {"timer-ticks", Tick},
};
// clang-format on

}  // namespace

int main(int argc, char** argv) try {
    for (const Scenario& scenario : kScenarios) {
        if (argc < 2) std::printf("%s %d\n", std::string(scenario.name).c_str(), kCount);
        if (argc < 2 || scenario.name != argv[1]) continue;
        if (scenario.play()) return 0;
        std::fprintf(stderr, "%s: the bot has not sent what it should\n", argv[1]);
        return 1;
    }
    return argc < 2 ? 0 : 64;
} catch (const std::exception& fault) {
    std::fprintf(stderr, "%s\n", fault.what());
    return 1;
}
