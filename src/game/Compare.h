#pragma once

#include <string>
#include <string_view>

/// Equal with "|" read as a blank and letter case ignored.
bool LooseEquals(std::string_view a, std::string_view b);

/// Matches the pattern, with "|" read as a blank and letter case ignored on both sides. See Like.
bool LooseLike(std::string_view text, std::string_view pattern);

/// Matches the whole text against a pattern, letter case counting: "*" is any run of characters, "?" any one, "#" any
/// one digit, "[abc]" or "[a-c]" one of a list, "[!abc]" one outside it; all others match themselves. A list that is
/// never closed, or holds a range the wrong way round, matches nothing.
bool Like(std::string_view text, std::string_view pattern);

/// The text with the characters that can't stand in a file's name replaced by "_".
std::string SafeFileName(std::string_view text);
