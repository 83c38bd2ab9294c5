// What the two busiest helpers of a script cost: replacing variables, and matching patterns.

#include <benchmark/benchmark.h>

#include "QuietBot.h"
#include "bot/Events.h"
#include "bot/Variables.h"
#include "game/Compare.h"

namespace {

void Expand(benchmark::State& state, const std::string& text) {
    QuietBot quiet;
    quiet.bot.currentEvent = EventWhisper;
    for (int i = 0; i < state.range(0); ++i) {
        quiet.bot.variables.Set("[points" + std::to_string(i) + "]", std::to_string(i));
    }
    for (auto _ : state) benchmark::DoNotOptimize(ExpandVariables(quiet.bot, text));
}

const std::string kPlain = "whisper back {Hello! Try roll, walk, remember and recall.}";
const std::string kTwoNames = "whisper back {Hello, [player], you said [message].}";
const std::string kWord = "whisper back {I will remember [startingword2].}";

// The argument is the number of the user's own variables.
BENCHMARK_CAPTURE(Expand, NoBracket, kPlain)->Arg(0)->Arg(50);
BENCHMARK_CAPTURE(Expand, TwoVariables, kTwoNames)->Arg(0)->Arg(50);
BENCHMARK_CAPTURE(Expand, WordOfMessage, kWord)->Arg(0)->Arg(50);

void Match(benchmark::State& state, const std::string& text, const std::string& pattern) {
    for (auto _ : state) benchmark::DoNotOptimize(LooseLike(text, pattern));
}

const std::string kMessage = "Would you please remember that I like tea";
const std::string kManyStars = "*a*a*a*a*a*a*a*a*a*b";  // what a careless pattern may look like

BENCHMARK_CAPTURE(Match, Contained, kMessage, std::string("*remember*"));
BENCHMARK_CAPTURE(Match, List, kMessage, std::string("[a-z]*"));
BENCHMARK_CAPTURE(Match, ManyStarsNoMatch, std::string(200, 'a'), kManyStars);

}  // namespace
