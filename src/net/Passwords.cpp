#include "net/Passwords.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "bot/Bot.h"
#include "text/Text.h"

namespace {

/// Whether a password is written in one way only.
bool IsPlain(const std::string& password) {
    return std::all_of(password.begin(), password.end(),
                       [](char c) { return c != '|' && static_cast<unsigned char>(c) < 0x80; });
}

/// Every way in which a password may be written, the longest first, so that no end of it is left behind a shorter one.
std::vector<std::string> Spellings(const Bot& bot) {
    std::vector<std::string> spellings;
    for (const std::string* each : {&bot.state.password, &bot.characterPassword}) {
        const std::string& password = *each;
        if (password.empty()) continue;
        if (IsPlain(password)) {
            spellings.push_back(password);
            continue;
        }
        const std::string blanks = BarsToBlanks(password);
        spellings.insert(spellings.end(), {password, blanks, ToUtf8(password), ToUtf8(blanks)});
    }
    std::sort(spellings.begin(), spellings.end(), [](const auto& a, const auto& b) { return a.size() > b.size(); });
    return spellings;
}

struct Found {
    std::size_t at, length;
};

/// The spelling that comes first in a text, and of several at one place the longest.
std::optional<Found> FirstOf(const std::vector<std::string>& spellings, std::string_view text) {
    std::optional<Found> first;
    for (const std::string& spelling : spellings) {
        const std::size_t at = text.find(spelling);
        if (at != text.npos && (!first || at < first->at)) first = {at, spelling.size()};
    }
    return first;
}

}  // namespace

std::string WithoutPasswords(const Bot& bot, std::string_view text) {
    const std::vector<std::string> spellings = Spellings(bot);
    std::string masked;
    while (const std::optional<Found> next = FirstOf(spellings, text)) {
        masked.append(text.substr(0, next->at)).append(kMaskedPassword);
        text.remove_prefix(next->at + next->length);
    }
    return masked.append(text);
}

std::string WithoutPassword(std::string_view line) {
    constexpr std::string_view kConnect = "connect ", kMarks = "`\":-/ ";
    const std::size_t begin = std::min(line.find_first_not_of(kMarks), line.size());
    if (LowerCase(line.substr(begin, kConnect.size())) != kConnect) return std::string(line);
    const std::size_t nameEnd = line.find(' ', begin + kConnect.size());
    if (nameEnd == line.npos || nameEnd + 1 == line.size()) return std::string(line);
    return std::string(line.substr(0, nameEnd + 1)).append(kMaskedPassword);
}
