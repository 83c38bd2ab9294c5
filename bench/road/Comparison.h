#pragma once

#include <map>
#include <string>
#include <vector>

#include "road/Load.h"
#include "road/Talk.h"

/// What is measured: a script, and the lines that it is sent.
struct Task {
    const TriggerKind* kind;
    int triggers;
    Lines lines;

    auto operator<=>(const Task&) const = default;
};

/// What the bot and the bare loop have made of a task, in each repetition.
struct Results {
    std::vector<Figures> bot, bare;
};
using AllResults = std::map<Task, Results>;

/// What is compared, and how.
struct Plan {
    std::string programs;  ///< the folder of `vorel` and `bare_loop`
    std::vector<int> triggers{1, 10, 100, 300, 1000, 3000};
    std::vector<std::string> kinds{"equal", "contains", "pattern", "owner"};
    std::vector<std::string> options;  ///< more ones of `vorel run`
    int repetitions = 3;
    bool extras = true;  ///< the other lines and scripts, too
    Effort effort;
};

/// Gives tasks to `vorel run` and to the bare loop in turns, and tells standard error how it goes.
/// @throws std::runtime_error when one of them fails
AllResults Compare(const Plan& plan, const std::vector<Task>& tasks);

/// How `vorel run` does nothing, with the shortest script of a plan.
Idleness MeasureIdleBot(const Plan& plan);
