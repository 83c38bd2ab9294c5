#include "engine/Lists.h"

#include "engine/Compare.h"
#include "text/Text.h"

namespace {
constexpr std::string_view kSeparator = ", ";
}

std::string WithEntry(std::string_view list, std::string_view entry) {
    std::string longer(list);
    if (!longer.empty()) longer += kSeparator;
    return longer.append(entry);
}

std::string WithoutEntry(std::string_view list, std::string_view entry) {
    std::vector<std::string> entries = Split(list, kSeparator);
    std::erase_if(entries, [entry](const std::string& candidate) { return LooseEquals(candidate, entry); });
    return Join(entries, kSeparator);
}
