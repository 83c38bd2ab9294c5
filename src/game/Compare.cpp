#include "game/Compare.h"

#include "text/Text.h"

namespace {

std::string Folded(std::string_view text) { return UpperCase(BarsToBlanks(text)); }

unsigned char Code(char c) { return static_cast<unsigned char>(c); }

/// Does the list (what stands between "[" and "]", without a "!") hold the character?
/// @param wellFormed  set to whether every range goes upward; the answer counts only then
bool ListHolds(std::string_view list, char c, bool& wellFormed) {
    bool holds = false;
    wellFormed = true;
    for (std::size_t i = 0; i < list.size(); ++i) {
        const bool range = i + 2 < list.size() && list[i + 1] == '-';
        const char last = range ? list[i + 2] : list[i];
        if (Code(last) < Code(list[i])) wellFormed = false;
        holds = holds || (Code(list[i]) <= Code(c) && Code(c) <= Code(last));
        if (range) i += 2;
    }
    return holds;
}

/// Matches one character against the pattern element at position, and moves position behind the element.
bool MatchesOne(char c, std::string_view pattern, std::size_t& position) {
    const char element = pattern[position++];
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
    const bool holds = ListHolds(list, c, wellFormed);
    return wellFormed && holds != outside;
}

}  // namespace

// The lengths first: folding makes a copy of both, and changes neither's length.
bool LooseEquals(std::string_view a, std::string_view b) { return a.size() == b.size() && Folded(a) == Folded(b); }

bool LooseLike(std::string_view text, std::string_view pattern) { return Like(Folded(text), Folded(pattern)); }

bool Like(std::string_view text, std::string_view pattern) {
    // Only the last "*" met is tried again with a longer run: whatever a longer run of an earlier one could reach, the
    // last one reaches as well. So the time grows with the length of the text times that of the pattern, at worst, and
    // not with the number of ways to share the text out among the stars.
    std::size_t at = 0, position = 0, runEnd = 0, afterStar = pattern.npos;
    while (at < text.size()) {
        if (position < pattern.size() && pattern[position] == '*') {
            afterStar = ++position;
            runEnd = at;
        } else if (position < pattern.size() && MatchesOne(text[at], pattern, position)) {
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

std::string SafeFileName(std::string_view text) {
    std::string name(text);
    for (char& c : name) {
        if (std::string_view("|\\*?><\"/:").find(c) != std::string_view::npos) c = '_';
    }
    return name;
}
