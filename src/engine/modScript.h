#pragma once

#include <cstdint>
#include <string_view>

#include "engine/Arguments.h"

struct Bot;

namespace modScript {

/// Carries out one effect. Missing braces or phrases, a closed speech gate and unknown numbers do nothing.
/// @param line    the effect's line as written
/// @param number  n of (5:n) plus one, as causes have it to their events; everywhere else an effect has n itself
/// @throws RuntimeFault InvalidProcedureCall, when the last "}" of a one-argument effect stands before its "{";
///         DivisionByZero; Overflow; PathOrFileAccess, for a data file that can't be read or written
void ExecuteEffect(Bot& bot, std::string_view line, std::int16_t number);

/// Does the effect (5:n) do nothing on maps where the bot may not speak?
bool IsGated(std::int16_t number);

/// How the arguments of (5:n) are found; Form::NoArguments, too, for a number that no effect has.
Form FormOf(std::int16_t number);

}  // namespace modScript
