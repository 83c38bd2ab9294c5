#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// The protocol writes numbers as two characters, base 95 counted from the blank (code 32), high digit first.
/// x coordinates travel halved: they are decoded with multiplier 2 and encoded with divisor 2.

/// @param pair        the two characters; any other length decodes to 0
/// @param multiplier  2 for x coordinates, 1 for the rest; 0 counts as 1
/// @return squares for coordinates, otherwise a plain number
/// @throws RuntimeFault Overflow, when a step leaves the 16-bit range
std::int16_t DecodeBase95Pair(std::string_view pair, std::int16_t multiplier);

/// Encodes value \ divisor (truncating); 0 to 9024 give printable characters.
/// @param divisor  2 for x coordinates, 1 for the rest; 0 counts as 1 and is written back as 1
/// @throws RuntimeFault InvalidProcedureCall, when a character's code would fall below 0 or above 255
std::string EncodeBase95Pair(std::int16_t value, std::int16_t& divisor);
