#pragma once

#include <span>

#include "language/Commands.h"

/// The rows of the command table, one file a category. Ask for them through language/Commands.h.
std::span<const Command> CauseRows();
std::span<const Command> ConditionRows();
std::span<const Command> EffectRows();

inline constexpr Scope kEverywhere = {EventSet::All(), false};

/// Of use in some events, in which something has just happened; elsewhere what happened last is still known.
constexpr Scope In(EventSet events) { return {events, false}; }

/// Without any meaning in other events.
constexpr Scope OnlyIn(EventSet events) { return {events, true}; }
