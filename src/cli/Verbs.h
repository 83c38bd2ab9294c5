#pragma once

#include <functional>

namespace CLI {
class App;
}

/// Exit statuses of `vorel`, after <sysexits.h> where that has one.
inline constexpr int kUsageExit = 64;
inline constexpr int kFaultExit = 70;

/// What the chosen verb does once the options have been read; it returns the exit status.
using VerbAction = std::function<int()>;

/// Each adds its verb to the command line and, when it is the one chosen, puts what it does into action.
void AddRunVerb(CLI::App& app, VerbAction& action);
void AddTryVerb(CLI::App& app, VerbAction& action);
void AddPracticeVerb(CLI::App& app, VerbAction& action);
