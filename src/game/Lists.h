#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Lists kept as one text, as the game sends its visitors, and a profile keeps owners and maps.
inline constexpr std::string_view kListSeparator = ", ";

/// The entries of a list; an empty list has none, two separators in a row have an empty one between them.
std::vector<std::string> EntriesOf(std::string_view list);

/// The entries as one text.
/// @throws RuntimeFault OutOfMemory, when it would be longer than kLongestText
std::string JoinedList(const std::vector<std::string>& entries);

/// The list with the entry added at its end; duplicates are not looked for.
/// @throws RuntimeFault OutOfMemory, when it would be longer than kLongestText
std::string WithEntry(std::string_view list, std::string_view entry);

/// The list without every entry that loosely equals the given one.
std::string WithoutEntry(std::string_view list, std::string_view entry);

/// True when one of the list's entries loosely equals the name.
bool InList(std::string_view list, std::string_view name);

/// A list that is asked more often than it changes, and so cut into its entries when it does.
class SplitList {
  public:
    SplitList() = default;
    explicit SplitList(std::string_view text) : text_(text), entries_(EntriesOf(text)) {}
    SplitList& operator=(std::string_view text) { return *this = SplitList(text); }

    const std::string& Text() const { return text_; }

    /// True when one of the entries loosely equals the name.
    bool Holds(std::string_view name) const;

    friend bool operator==(const SplitList& a, const SplitList& b) { return a.text_ == b.text_; }

  private:
    std::string text_;
    std::vector<std::string> entries_;
};
