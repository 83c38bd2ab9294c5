#include "bot/Lists.h"

#include "game/Compare.h"
#include "text/Limits.h"
#include "text/Text.h"

namespace {
constexpr std::string_view kSeparator = ", ";
}

std::string JoinedList(const std::vector<std::string>& entries) {
    std::size_t length = 0;
    for (const std::string& entry : entries) length += entry.size() + kSeparator.size();
    CheckTextLength(length);
    return Join(entries, kSeparator);
}

std::string WithEntry(std::string_view list, std::string_view entry) {
    CheckTextLength(list.size() + kSeparator.size() + entry.size());
    std::string longer(list);
    if (!longer.empty()) longer += kSeparator;
    return longer.append(entry);
}

std::string WithoutEntry(std::string_view list, std::string_view entry) {
    std::vector<std::string> entries = Split(list, kSeparator);
    std::erase_if(entries, [entry](const std::string& candidate) { return LooseEquals(candidate, entry); });
    return Join(entries, kSeparator);
}
