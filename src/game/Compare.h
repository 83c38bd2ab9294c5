#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "text/CaseTable.h"

inline constexpr CaseTable kFolded = [] {
    CaseTable table = kUpperCase;
    table['|'] = ' ';
    return table;
}();

/// The character as all loose comparisons see it: "|" as a blank, a letter as its capital.
constexpr char Folded(char c) { return InCase(c, kFolded); }

/// A number that is the same for texts which are loosely equal.
std::size_t LooseHash(std::string_view text);

/// Equal with "|" read as a blank and letter case ignored.
bool LooseEquals(std::string_view a, std::string_view b);

/// Does the text hold the part, letter case ignored? Unlike where texts are compared whole, "|" is no blank here: a
/// part may well be sought for its bar.
bool ContainsIgnoringCase(std::string_view text, std::string_view part);

/// Matches the pattern, with "|" read as a blank and letter case ignored on both sides. See Like.
bool LooseLike(std::string_view text, std::string_view pattern);

/// Matches the whole text against a pattern, letter case counting: "*" is any run of characters, "?" any one, "#" any
/// one digit, "[abc]" or "[a-c]" one of a list, "[!abc]" one outside it; all others match themselves. A list that is
/// never closed, or holds a range the wrong way round, matches nothing.
bool Like(std::string_view text, std::string_view pattern);

/// The text with the characters that can't stand in a file's name replaced by "_".
std::string SafeFileName(std::string_view text);
