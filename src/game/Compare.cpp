#include "game/Compare.h"

#include <algorithm>
#include <cstdint>

#include "text/Text.h"

namespace {

/// The characters as they are, and as loose comparisons see them.
struct AsTheyAre {
    char operator()(char c) const { return c; }
};
struct Loosely {
    char operator()(char c) const { return Folded(c); }
};

unsigned char Code(char c) { return static_cast<unsigned char>(c); }

/// Does the list (what stands between "[" and "]", without a "!") hold the character?
/// @param wellFormed  set to whether every range goes upward; the answer counts only then
template <typename Read>
bool ListHolds(std::string_view list, char c, bool& wellFormed) {
    bool holds = false;
    wellFormed = true;
    for (std::size_t i = 0; i < list.size(); ++i) {
        const bool range = i + 2 < list.size() && list[i + 1] == '-';
        const unsigned char first = Code(Read{}(list[i])), last = range ? Code(Read{}(list[i + 2])) : first;
        if (last < first) wellFormed = false;
        holds = holds || (first <= Code(c) && Code(c) <= last);
        if (range) i += 2;
    }
    return holds;
}

/// Matches one character against the pattern element at position, and moves position behind the element.
/// @param c  as it is read
template <typename Read>
bool MatchesOne(char c, std::string_view pattern, std::size_t& position) {
    const char element = Read{}(pattern[position++]);
    if (element == '?') return true;
    if (element == '#') return c >= '0' && c <= '9';
    if (element != '[') return c == element;

    const std::size_t end = pattern.find(']', position);
    if (end == pattern.npos) return false;
    std::string_view list = pattern.substr(position, end - position);
    position = end + 1;
    const bool outside = list.starts_with('!');
    if (outside) list.remove_prefix(1);
    bool wellFormed = false;
    const bool holds = ListHolds<Read>(list, c, wellFormed);
    return wellFormed && holds != outside;
}

template <typename Read>
bool Matches(std::string_view text, std::string_view pattern) {
    // Only the last "*" met is tried again with a longer run: whatever a longer run of an earlier one could reach, the
    // last one reaches as well. So the time grows with the length of the text times that of the pattern, at worst, and
    // not with the number of ways to share the text out among the stars.
    std::size_t at = 0, position = 0, runEnd = 0, afterStar = pattern.npos;
    while (at < text.size()) {
        if (position < pattern.size() && pattern[position] == '*') {
            afterStar = ++position;
            runEnd = at;
        } else if (position < pattern.size() && MatchesOne<Read>(Read{}(text[at]), pattern, position)) {
            ++at;
        } else if (afterStar != pattern.npos) {
            position = afterStar;
            at = ++runEnd;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', position) == pattern.npos;
}

}  // namespace

std::size_t LooseHash(std::string_view text) {
    // FNV-1a (Fowler, Noll and Vo), 64 bits: short texts, one character at a time, as they are read.
    std::uint64_t hash = 0xCBF29CE484222325U;
    for (const char c : text) hash = (hash ^ Code(Folded(c))) * 0x100000001B3U;
    return hash;
}

bool LooseEquals(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) { return Folded(x) == Folded(y); });
}

bool ContainsIgnoringCase(std::string_view text, std::string_view part) {
    return UpperCase(text).find(UpperCase(part)) != std::string::npos;
}

bool Like(std::string_view text, std::string_view pattern) { return Matches<AsTheyAre>(text, pattern); }
bool LooseLike(std::string_view text, std::string_view pattern) { return Matches<Loosely>(text, pattern); }

std::string SafeFileName(std::string_view text) {
    std::string name(text);
    for (char& c : name) {
        if (std::string_view("|\\*?><\"/:").find(c) != std::string_view::npos) c = '_';
    }
    return name;
}
