// How long a script takes to read, and an event to find its way through it, by the number of triggers.

#include <benchmark/benchmark.h>

#include "QuietBot.h"
#include "engine/Dispatcher.h"

namespace {

int Triggers(const benchmark::State& state) { return static_cast<int>(state.range(0)); }

void ReadScript(benchmark::State& state) {
    const std::string text = "VSPK 01.00 Vorel\r\n" + WhisperTriggers(Triggers(state));
    for (auto _ : state) benchmark::DoNotOptimize(Script(text).Lines().size());
}
BENCHMARK(ReadScript)->Arg(30)->Arg(300)->Arg(3000);

void Dispatch(benchmark::State& state, GameEvent event) {
    QuietBot quiet;
    const std::string answersLook =
        "(0:12) When the bot has looked at somebody,\r\n     (5:8) say {Hello, [player]!}\r\n\r\n";
    const int half = Triggers(state) / 2;
    quiet.SetScript(WhisperTriggers(half) + answersLook + WhisperTriggers(half - 1));
    for (auto _ : state) RunScript(quiet.bot, event);
    benchmark::DoNotOptimize(quiet.host.written);
}

/// No trigger answers the event.
BENCHMARK_CAPTURE(Dispatch, AnsweredByNone, EventFlame)->Arg(30)->Arg(300)->Arg(3000);
/// One does, in the middle of the script, and speaks.
BENCHMARK_CAPTURE(Dispatch, AnsweredByOne, EventLookResult)->Arg(30)->Arg(300)->Arg(3000);
/// All others do, and the condition of none of them holds.
BENCHMARK_CAPTURE(Dispatch, TriedByAll, EventWhisper)->Arg(30)->Arg(300)->Arg(3000);

/// A tick tries every cause of a script, because the interval is the first number in a cause's text.
void TimerTick(benchmark::State& state, const std::string& timers) {
    QuietBot quiet;
    quiet.SetScript(WhisperTriggers(Triggers(state)) + timers);
    for (auto _ : state) ScriptTimerTick(quiet.bot);
    benchmark::DoNotOptimize(quiet.host.written);
}
BENCHMARK_CAPTURE(TimerTick, NothingDue, std::string("(0:45) Every {3599} seconds,\r\n (5:16) sit.\r\n"))->Arg(300);
BENCHMARK_CAPTURE(TimerTick, OneDue, std::string("(0:45) Every {1} seconds,\r\n (5:8) say {[vorel.into]}\r\n"))
    ->Arg(300);

}  // namespace
