#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Lists kept as one text, as a profile keeps owners and maps: entries joined with ", ".

/// The entries as one text.
/// @throws RuntimeFault OutOfMemory, when it would be longer than kLongestText
std::string JoinedList(const std::vector<std::string>& entries);

/// The list with the entry added at its end; duplicates are not looked for.
/// @throws RuntimeFault OutOfMemory, when it would be longer than kLongestText
std::string WithEntry(std::string_view list, std::string_view entry);

/// The list without every entry that loosely equals the given one.
std::string WithoutEntry(std::string_view list, std::string_view entry);
