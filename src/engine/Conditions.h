#pragma once

#include <cstdint>
#include <string_view>

#include "engine/Arguments.h"

struct Bot;

/// Does the additional condition (1:n) hold for the current event? A missing brace, an unknown number, or an event
/// that has nothing to compare make it false, negations too.
/// @param line    the condition's line, expanded
/// @param number  n
/// @throws RuntimeFault SubscriptOutOfRange, for a die that was not rolled; PathOrFileAccess, for a data file that
///         exists and can't be read
bool EvaluateCondition(const Bot& bot, std::string_view line, std::int16_t number);

/// May the test of (1:n) raise a fault?
bool MayFault(std::int16_t number);

/// How the arguments of (1:n) are found; Form::NoArguments, too, for a number that no condition has.
Form FormOfCondition(std::int16_t number);
