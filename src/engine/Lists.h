#pragma once

#include <string>
#include <string_view>

/// Lists kept as one text, as a profile keeps owners and maps: entries joined with ", ".

/// The list with the entry added at its end; duplicates are not looked for.
std::string WithEntry(std::string_view list, std::string_view entry);

/// The list without every entry that loosely equals the given one.
std::string WithoutEntry(std::string_view list, std::string_view entry);
