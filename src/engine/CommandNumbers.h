#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>

#include "bot/Events.h"

/// The numbers of a category of commands, as makers write them: all from 0 to the last one, but for one that may never
/// have been given out. Whoever has a table of commands has a row for each, in their order, and lets the build see to
/// it.
struct CommandNumbers {
    std::int16_t last;
    std::int16_t neverGivenOut = -1;

    constexpr bool Hold(int number) const { return 0 <= number && number <= last && number != neverGivenOut; }

    /// How many numbers there are below one.
    constexpr std::size_t CountBelow(int number) const {
        const bool gap = 0 <= neverGivenOut && neverGivenOut < number;
        return static_cast<std::size_t>(number) - (gap ? 1 : 0);
    }
};

inline constexpr CommandNumbers kCauseNumbers = {.last = CauseOf(kLastEvent)};
inline constexpr CommandNumbers kConditionNumbers = {.last = 134, .neverGivenOut = 27};
inline constexpr CommandNumbers kEffectNumbers = {.last = 91, .neverGivenOut = 65};

/// @return nullptr when no command has the number
template <typename Rows>
constexpr auto RowOf(const Rows& rows, CommandNumbers numbers, int number) -> decltype(std::data(rows)) {
    return numbers.Hold(number) ? std::data(rows) + numbers.CountBelow(number) : nullptr;
}

/// For static_assert: a row for each number, in their order, and none besides.
template <typename Rows>
constexpr bool HasARowForEach(CommandNumbers numbers, const Rows& rows) {
    if (std::size(rows) != numbers.CountBelow(numbers.last + 1)) return false;
    for (const auto& row : rows) {
        if (RowOf(rows, numbers, row.number) != &row) return false;
    }
    return true;
}
