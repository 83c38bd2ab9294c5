#include "net/Passwords.h"

#include <algorithm>
#include <vector>

#include "engine/Bot.h"
#include "text/Text.h"

namespace {

/// Every way in which a password may be written, the longest first, so that no end of it is left behind a shorter one.
std::vector<std::string> Spellings(const Bot& bot) {
    std::vector<std::string> spellings;
    for (const std::string& password : {bot.state.password, bot.characterPassword}) {
        if (password.empty()) continue;
        const std::string blanks = BarsToBlanks(password);
        spellings.insert(spellings.end(), {password, blanks, ToUtf8(password), ToUtf8(blanks)});
    }
    std::sort(spellings.begin(), spellings.end(), [](const auto& a, const auto& b) { return a.size() > b.size(); });
    return spellings;
}

}  // namespace

std::string WithoutPasswords(const Bot& bot, std::string_view text) {
    const std::vector<std::string> spellings = Spellings(bot);
    std::string masked;
    while (!text.empty()) {
        const auto here = std::find_if(spellings.begin(), spellings.end(),
                                       [&](const std::string& spelling) { return text.starts_with(spelling); });
        if (here == spellings.end()) {
            masked += text.front();
        } else {
            masked += kMaskedPassword;
        }
        text.remove_prefix(here == spellings.end() ? 1 : here->size());
    }
    return masked;
}

std::string WithoutPassword(std::string_view line) {
    constexpr std::string_view kConnect = "connect ", kMarks = "`\":-/ ";
    const std::size_t begin = std::min(line.find_first_not_of(kMarks), line.size());
    if (LowerCase(line.substr(begin, kConnect.size())) != kConnect) return std::string(line);
    const std::size_t nameEnd = line.find(' ', begin + kConnect.size());
    if (nameEnd == line.npos || nameEnd + 1 == line.size()) return std::string(line);
    return std::string(line.substr(0, nameEnd + 1)).append(kMaskedPassword);
}
