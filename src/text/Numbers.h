#pragma once

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

#include "text/Fault.h"
#include "text/Outcome.h"

constexpr bool Fits16(int wide) {
    return wide >= std::numeric_limits<std::int16_t>::min() && wide <= std::numeric_limits<std::int16_t>::max();
}

/// The numbers of scripts, protocol and files are signed 16-bit. Every step of a calculation goes through one of the
/// checked helpers here, which raise Overflow instead of wrapping.
constexpr std::int16_t To16(int wide) {
    if (!Fits16(wide)) throw RuntimeFault(FaultKind::Overflow);
    return static_cast<std::int16_t>(wide);
}
constexpr std::int16_t Add16(std::int16_t a, std::int16_t b) { return To16(int{a} + int{b}); }
constexpr std::int16_t Subtract16(std::int16_t a, std::int16_t b) { return To16(int{a} - int{b}); }
constexpr std::int16_t Multiply16(std::int16_t a, std::int16_t b) { return To16(int{a} * int{b}); }

/// Rounds to the nearest whole number, a half to the even one.
/// @throws RuntimeFault Overflow, when the result is outside the 16-bit range
std::int16_t RoundTo16(double number);

/// The strict reader: an optional "-" and decimal digits, and nothing else.
/// @return the number; TypeMismatch, when the text is anything else; Overflow, when the number exceeds 16 bits
Outcome<std::int16_t> ReadNumber(std::string_view text);

/// The same for those who need the number.
/// @throws RuntimeFault what ReadNumber returns
std::int16_t NumberOrFault(std::string_view text);

/// The lenient reader: skips blanks, then takes an optional sign, digits and at most one decimal point, and stops at
/// the first character that can't go on with the number. Knows no exponent and no hexadecimal.
/// @return the number; 0 when the text begins with none; never -0; infinite when there are too many digits
double LeadingNumber(std::string_view text);

/// The lenient reader, rounded like RoundTo16.
/// @return the number; 0 when the text begins with none; Overflow, when it exceeds 16 bits
Outcome<std::int16_t> ReadLeadingNumber(std::string_view text);

/// The same for those who need the number.
/// @throws RuntimeFault Overflow
std::int16_t LeadingNumberOrZero(std::string_view text);

/// A number as scripts keep it: at most 15 significant digits, no trailing zeros, no exponent (the readers know
/// none), "-" in front when negative, "0" and never "-0".
std::string FormatNumber(double number);
