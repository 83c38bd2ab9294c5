#pragma once

#include <functional>

namespace CLI {
class App;
}

/// Exit statuses of `vorel`, after <sysexits.h> where that has one.
inline constexpr int kUsageExit = 64;
inline constexpr int kNoInputExit = 66;      ///< a file that must be there is not
inline constexpr int kUnavailableExit = 69;  ///< a connection or a port could not be had
inline constexpr int kFaultExit = 70;
inline constexpr int kCantCreateExit = 73;    ///< a file can't be written
inline constexpr int kNoPermissionExit = 77;  ///< the game does not let the bot in
inline constexpr int kConfigExit = 78;        ///< the profile is not complete enough to connect

/// What the chosen verb does once the options have been read; it returns the exit status.
using VerbAction = std::function<int()>;

/// Each adds its verb to the command line and, when it is the one chosen, puts what it does into action.
void AddRunVerb(CLI::App& app, VerbAction& action);
void AddTryVerb(CLI::App& app, VerbAction& action);
void AddPracticeVerb(CLI::App& app, VerbAction& action);
