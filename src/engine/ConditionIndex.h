#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "engine/HeldTexts.h"
#include "engine/Requirement.h"
#include "engine/ScriptLine.h"
#include "engine/Stops.h"
#include "game/Compare.h"

/// Triggers that answer an event, found by what their conditions require instead of one by one. Each is filed under one
/// condition of its own: one that few of the others share, so that it is rarely found in vain.
class ConditionIndex {
  public:
    /// A trigger of which every condition is to hold, none of whose tests leaves a trace or faults.
    struct Trigger {
        std::size_t causeLine;
        std::vector<const ScriptLine*> conditions;  ///< one at least; they outlive the index
    };

    ConditionIndex() = default;
    explicit ConditionIndex(const std::vector<Trigger>& triggers);

    /// Adds the causes' lines of all triggers whose conditions hold for the current event, and maybe of others.
    void Find(const Bot& bot, Stops& stops) const;

  private:
    struct LooseHasher {
        using is_transparent = void;  // NOLINT(readability-identifier-naming): the library asks for this name
        std::size_t operator()(std::string_view text) const { return LooseHash(text); }
    };
    struct LooseEqualTo {
        using is_transparent = void;  // NOLINT(readability-identifier-naming)
        bool operator()(std::string_view a, std::string_view b) const { return LooseEquals(a, b); }
    };
    using ByText = std::unordered_map<std::string, LineNumbers, LooseHasher, LooseEqualTo>;
    using ByNumber = std::unordered_map<std::uint32_t, LineNumbers>;

    template <typename Field, typename Values>
    struct Filed {
        Field field;
        Values values;
    };
    struct Tested {
        std::string line;
        std::int16_t number;
        LineNumbers causes;
    };
    std::vector<Filed<field::TextField, ByText>> equal_, listed_;
    std::vector<Filed<field::TextField, HeldTexts>> held_;
    std::vector<Filed<field::NumberField, ByNumber>> numbers_;
    std::vector<Filed<field::SquareField, ByNumber>> squares_;
    std::vector<Tested> tested_;
};
