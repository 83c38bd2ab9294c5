#pragma once

#include <cstdint>
#include <string>

struct Bot;

namespace modScript {

/// Carries out one effect. Missing braces or phrases, a closed speech gate and unknown numbers do nothing.
/// @param line    the effect's line; replaced by its expansion
/// @param number  the number on the line plus one: (5:0) is effect 1, (5:91) effect 92
/// @throws RuntimeFault InvalidProcedureCall, when the last "}" of a one-argument effect stands before its "{";
///         DivisionByZero; Overflow; PathOrFileAccess, for a data file that can't be read or written
void ExecuteEffect(Bot& bot, std::string& line, std::int16_t number);

}  // namespace modScript
