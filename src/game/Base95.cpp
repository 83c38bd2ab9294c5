#include "game/Base95.h"

#include "text/Numbers.h"

namespace {

constexpr int kBase = 95;        // the printable characters of ASCII
constexpr int kZeroDigit = ' ';  // the first of them

/// Any character counts, so that a digit may be negative or beyond 94: what the game sends is not judged here.
std::int16_t Digit(char c) { return Subtract16(static_cast<unsigned char>(c), kZeroDigit); }

char DigitCharacter(int digit) {
    const int code = kZeroDigit + digit;
    if (code < 0 || code > 255) throw RuntimeFault(FaultKind::InvalidProcedureCall);
    return static_cast<char>(code);
}

}  // namespace

std::int16_t DecodeBase95Pair(std::string_view pair, std::int16_t multiplier) {
    if (pair.size() != 2) return 0;
    const std::int16_t number = Add16(Multiply16(Digit(pair[0]), kBase), Digit(pair[1]));
    return Multiply16(number, multiplier == 0 ? std::int16_t{1} : multiplier);
}

std::string EncodeBase95Pair(std::int16_t value, std::int16_t& divisor) {
    if (divisor == 0) divisor = 1;  // Kept on purpose: the caller's own becomes 1 with it.
    const int number = To16(value / divisor);
    return {DigitCharacter(number / kBase), DigitCharacter(number % kBase)};
}
