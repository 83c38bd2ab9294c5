#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "engine/CommandNumbers.h"
#include "language/Commands.h"

/// The rows of the command table, one file a category. Ask for them through language/Commands.h.
std::span<const Command> CauseRows();
std::span<const Command> ConditionRows();
std::span<const Command> EffectRows();

/// Of use in some events, in which something has just happened; elsewhere what happened last is still known.
constexpr Scope In(EventSet events) { return {events, false}; }

/// Without any meaning in other events.
constexpr Scope OnlyIn(EventSet events) { return {events, true}; }

/// The rows with their category.
template <std::size_t Count>
constexpr std::array<Command, Count> InCategory(std::int16_t category, const Command (&rows)[Count]) {
    std::array<Command, Count> commands = std::to_array(rows);
    for (Command& command : commands) command.category = category;
    return commands;
}
