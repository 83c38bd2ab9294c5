#include "game/Lists.h"

#include <algorithm>

#include "game/Compare.h"
#include "text/Limits.h"
#include "text/Text.h"

namespace {

bool AnyLooselyEquals(const std::vector<std::string>& entries, std::string_view name) {
    return std::any_of(entries.begin(), entries.end(),
                       [name](const std::string& entry) { return LooseEquals(entry, name); });
}

}  // namespace

std::vector<std::string> EntriesOf(std::string_view list) {
    return list.empty() ? std::vector<std::string>() : Split(list, kListSeparator);
}

std::string JoinedList(const std::vector<std::string>& entries) {
    std::size_t length = 0;
    for (const std::string& entry : entries) length += entry.size() + kListSeparator.size();
    CheckTextLength(length);
    return Join(entries, kListSeparator);
}

std::string WithEntry(std::string_view list, std::string_view entry) {
    CheckTextLength(list.size() + kListSeparator.size() + entry.size());
    std::string longer(list);
    if (!longer.empty()) longer += kListSeparator;
    return longer.append(entry);
}

std::string WithoutEntry(std::string_view list, std::string_view entry) {
    std::vector<std::string> entries = EntriesOf(list);
    std::erase_if(entries, [entry](const std::string& candidate) { return LooseEquals(candidate, entry); });
    return Join(entries, kListSeparator);
}

bool InList(std::string_view list, std::string_view name) { return AnyLooselyEquals(EntriesOf(list), name); }

bool SplitList::Holds(std::string_view name) const { return AnyLooselyEquals(entries_, name); }
