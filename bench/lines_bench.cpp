// How long the bot takes for one line of the game, with a script of 300 triggers behind it.

#include <benchmark/benchmark.h>

#include "QuietBot.h"
#include "net/ServerLines.h"

namespace {

void ReadLine(benchmark::State& state, const std::string& line) {
    QuietBot quiet;
    quiet.SetScript(WhisperTriggers(300));
    for (auto _ : state) ParseServerLine(quiet.bot, line);
    benchmark::DoNotOptimize(quiet.host.written);
}

const std::string kLooks = "w#3#3#3#3#";

BENCHMARK_CAPTURE(ReadLine, Unknown, std::string("~ nothing the bot knows"));
BENCHMARK_CAPTURE(ReadLine, Step, "/" + kLooks + " * / \" * 0");
BENCHMARK_CAPTURE(ReadLine, Looks, "]-#A" + kLooks + "121");
BENCHMARK_CAPTURE(ReadLine, Speech, std::string("(Ann: hello there, how are you"));
BENCHMARK_CAPTURE(ReadLine, Emote, std::string("(Ann waves to everybody"));
BENCHMARK_CAPTURE(ReadLine, DiceRoll, std::string("([* ] Ann rolls 2d6 & gets 7."));
/// The only one that the script listens to: each of its 300 causes answers, none of the conditions holds.
BENCHMARK_CAPTURE(ReadLine, WhisperTriedByAll, std::string("([ Ann whispers, \"hello there\" to you. ]"));

}  // namespace
