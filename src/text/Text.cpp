#include "text/Text.h"

#include <algorithm>
#include <array>

#include "text/CaseTable.h"

namespace {

constexpr char kDivision = '\xF7';  // stands where the small letter of the multiplication sign would
static_assert(InCase(kDivision, kUpperCase) == kDivision);

std::string Mapped(std::string_view text, const CaseTable& table) {
    std::string mapped(text);
    for (char& c : mapped) c = InCase(c, table);
    return mapped;
}

std::string WithCharacter(std::string_view text, char what, char with) {
    std::string changed(text);
    std::replace(changed.begin(), changed.end(), what, with);
    return changed;
}

/// Unicode of the codes 0x80 to 0x9F (Unicode's own table CP1252.TXT); 0 where the code page has no character.
constexpr std::array<char32_t, 32> kHighControls = {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                                    0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

char32_t ToUnicode(unsigned char code) {
    if (code < 0x80 || code > 0x9F) return code;
    const char32_t point = kHighControls[code - 0x80U];
    return point == 0 ? 0xFFFD : point;
}

/// Of the control characters 0x80 to 0x9F Unicode has its own, which the code page lacks.
char FromUnicode(char32_t point) {
    if (point < 0x80 || (point > 0x9F && point <= 0xFF)) return static_cast<char>(point);
    const auto* const found = std::find(kHighControls.begin(), kHighControls.end(), point);
    return found == kHighControls.end() ? '?' : static_cast<char>(0x80 + (found - kHighControls.begin()));
}

void AppendUtf8(std::string& utf8, char32_t point) {
    const auto tail = [&](int shift) { utf8 += static_cast<char>(0x80 | ((point >> shift) & 0x3F)); };
    if (point < 0x80) {
        utf8 += static_cast<char>(point);
    } else if (point < 0x800) {
        utf8 += static_cast<char>(0xC0 | (point >> 6));
        tail(0);
    } else {
        utf8 += static_cast<char>(0xE0 | (point >> 12));
        tail(6);
        tail(0);
    }
}

/// The smallest character that takes so many tail bytes: a longer form than needed is no UTF-8, and would let a slash
/// pass for something else.
constexpr std::array<char32_t, 4> kSmallestWithTails = {0, 0x80, 0x800, 0x10000};

/// Reads one character at position and moves position behind it; a byte that begins no UTF-8 character is U+FFFD.
char32_t NextUtf8(std::string_view utf8, std::size_t& position) {
    const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(utf8[at]); };
    const unsigned char first = byte(position++);
    if (first < 0x80) return first;
    const std::size_t tails = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : 1;
    if (first < 0xC0 || first > 0xF4) return 0xFFFD;  // a tail byte, or beyond the last character of Unicode
    char32_t point = first & (0x3FU >> tails);
    for (std::size_t i = 0; i < tails; ++i) {
        if (position == utf8.size() || (byte(position) & 0xC0) != 0x80) return 0xFFFD;
        point = (point << 6) | (byte(position++) & 0x3FU);
    }
    return point < kSmallestWithTails[tails] ? 0xFFFD : point;
}

}  // namespace

std::string UpperCase(std::string_view text) { return Mapped(text, kUpperCase); }
std::string LowerCase(std::string_view text) { return Mapped(text, kLowerCase); }

std::string_view Trim(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string ReplaceAll(std::string_view text, std::string_view what, std::string_view with) {
    std::string replaced;
    std::size_t from = 0;
    for (std::size_t at = what.empty() ? text.npos : text.find(what); at != text.npos; at = text.find(what, from)) {
        replaced.append(text, from, at - from).append(with);
        from = at + what.size();
    }
    return replaced.append(text, from, text.npos);
}

std::vector<std::string> Split(std::string_view text, std::string_view separator) {
    std::vector<std::string> pieces;
    std::size_t from = 0;
    for (std::size_t at = text.find(separator); at != text.npos; at = text.find(separator, from)) {
        pieces.emplace_back(text.substr(from, at - from));
        from = at + separator.size();
    }
    pieces.emplace_back(text.substr(from));
    return pieces;
}

std::string Join(const std::vector<std::string>& pieces, std::string_view separator) {
    std::string joined;
    for (std::size_t i = 0; i < pieces.size(); ++i) joined.append(i == 0 ? "" : separator).append(pieces[i]);
    return joined;
}

std::string BarsToBlanks(std::string_view text) { return WithCharacter(text, '|', ' '); }
std::string BlanksToBars(std::string_view text) { return WithCharacter(text, ' ', '|'); }

std::vector<std::string> FileLines(std::string_view text) {
    if (text.empty()) return {};
    std::vector<std::string> lines = Split(text, "\n");
    const bool lastIsUnended = !lines.back().empty();
    if (!lastIsUnended) lines.pop_back();
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const bool ended = i + 1 < lines.size() || !lastIsUnended;
        if (ended && lines[i].ends_with('\r')) lines[i].pop_back();
    }
    return lines;
}

std::string JoinFileLines(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) text.append(line).append("\r\n");
    return text;
}

std::string ToUtf8(std::string_view text) {
    std::string utf8;
    for (const char c : text) AppendUtf8(utf8, ToUnicode(static_cast<unsigned char>(c)));
    return utf8;
}

std::string FromUtf8(std::string_view utf8) {
    std::string text;
    for (std::size_t position = 0; position < utf8.size();) text += FromUnicode(NextUtf8(utf8, position));
    return text;
}

bool FitsCodePage(std::string_view utf8) { return ToUtf8(FromUtf8(utf8)) == utf8; }

bool HoldsUtf8(std::string_view bytes) {
    bool beyondAscii = false;
    for (std::size_t position = 0; position < bytes.size();) {
        const char32_t point = NextUtf8(bytes, position);
        if (point == 0xFFFD) return false;
        beyondAscii = beyondAscii || point >= 0x80;
    }
    return beyondAscii;
}
