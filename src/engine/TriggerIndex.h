#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "bot/Events.h"
#include "engine/ConditionIndex.h"
#include "engine/ScriptLine.h"
#include "engine/Stops.h"

struct Bot;

/// Where a script's walk for an event has something to do, known from what was read once. What can't be decided
/// beforehand counts as something to do.
class TriggerIndex {
  public:
    TriggerIndex() = default;

    /// @param lines  of a valid script; they outlive the index
    explicit TriggerIndex(const std::vector<ScriptLine>& lines);

    /// The lines at which a walk for the current event has something to do as long as nothing changes: lines that
    /// fault, terminators, and the causes of triggers that fire, or whose tests may fault or leave a trace.
    /// @param closely  otherwise the causes of all triggers that the event may fire, which are found at once
    void Find(const Bot& bot, bool closely, Stops& stops) const;

    /// Whether one of the lines becomes a terminator when the blanks in front of it are gone.
    bool HasIndentedTerminator() const { return hasIndentedTerminator_; }

  private:
    struct Known;

    /// Lines that hold variables. A variable's value is as good as a constant, unless it brings about further ones or
    /// makes a text too long; then expanding the lines may fault.
    struct Mentioning {
        LineNumbers lines;  ///< the causes'
        std::vector<std::string> names;
        std::size_t longestLine = 0;

        Mentioning() = default;
        explicit Mentioning(const std::vector<Known>& known);
        bool MayFault(const Bot& bot) const;
    };
    /// All triggers of one cause.
    struct OfCause {
        LineNumbers all, open;  ///< of the open ones nothing is known beforehand
        ConditionIndex byCondition;
        Mentioning mentioning;
        ConditionIndex byMentioning;
    };
    std::unordered_map<std::int16_t, OfCause> ofCauses_;
    LineNumbers stops_, overflows_;
    Mentioning mentioningCauses_;

    // A tick does not look at the cause's number.
    LineNumbers causes_, openTimers_, timers_;
    std::unordered_map<int, LineNumbers> timersByInterval_;

    bool hasIndentedTerminator_ = false;

    static bool TakesIn(Known& known, const ScriptLine& line);
    static std::optional<Known> WhatIsKnown(const std::vector<ScriptLine>& lines, std::size_t cause);
    void AddTimer(const ScriptLine& cause, std::size_t line, bool isConstant);
    void FindTimers(const Bot& bot, Stops& stops) const;
};
