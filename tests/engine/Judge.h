#pragma once

#include <cstddef>
#include <string>
#include <vector>

/// A script to be walked by the dispatcher and by the slow walker, and what happens to its bot.
struct Case {
    std::string script;
    std::string other;               ///< takes its place when the bot is cut off or says "put other"; may be empty
    std::vector<std::string> steps;  ///< "FIELD=value", "let NAME=value" or "event CODE"

    std::string Text() const;
};

/// Puts a case together from tests/engine/script-pieces.txt; the same seed makes the same case.
Case WriteCase(unsigned seed);

/// What a case has come to, for who must know that cases do something.
struct Tally {
    int told = 0, faults = 0;
};

/// Plays a case by both walks. After each event everything must be the same: what was sent and shown, the fault and its
/// place, variables, lists, files.
/// @return where they disagree first; empty when they don't
std::string Disagreement(const Case& played, Tally& tally);

/// Writes and plays the case of a seed.
/// @return empty when both walks agree; otherwise the case, made as small as it still shows it, and the disagreement
std::string JudgeSeed(unsigned seed, Tally& tally);
