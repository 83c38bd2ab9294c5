#pragma once

#include <array>

/// What each character of the code page becomes, by its code.
using CaseTable = std::array<char, 256>;

constexpr CaseTable MakeCaseTable(bool toUpper) {
    /// The letter pairs of the code page that stand outside the two regular blocks (Latin letters at 0x40 and 0xC0).
    struct Pair {
        unsigned char upper, lower;
    };
    constexpr Pair kOddPairs[] = {{0x8A, 0x9A}, {0x8C, 0x9C}, {0x8E, 0x9E}, {0x9F, 0xFF}};
    constexpr unsigned kSharpS = 0xDF, kMultiplication = 0xD7;

    CaseTable table{};
    for (unsigned code = 0; code < table.size(); ++code) table[code] = static_cast<char>(code);
    const auto pair = [&](unsigned upper, unsigned lower) {
        table[toUpper ? lower : upper] = static_cast<char>(toUpper ? upper : lower);
    };
    for (unsigned upper = 'A'; upper <= 'Z'; ++upper) pair(upper, upper + 32);
    for (unsigned upper = 0xC0; upper < kSharpS; ++upper) {
        if (upper != kMultiplication) pair(upper, upper + 32);
    }
    for (const Pair odd : kOddPairs) pair(odd.upper, odd.lower);
    return table;
}

inline constexpr CaseTable kUpperCase = MakeCaseTable(true);
inline constexpr CaseTable kLowerCase = MakeCaseTable(false);

constexpr char InCase(char c, const CaseTable& table) { return table[static_cast<unsigned char>(c)]; }
