#pragma once

#include <array>
#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>

struct UserVariable {
    std::string name;  ///< as written in scripts, brackets included
    std::string value;
};

/// The variables a script makes, in the order of their making. Names differ by case. However many there are, each is
/// found by its name at once, and a text is looked through for all of them in one go.
class UserVariables {
  public:
    /// Where in the list a variable stands: later ones rank higher, and each keeps its rank.
    using Rank = std::size_t;
    using List = std::map<Rank, UserVariable>;

    const List& Rows() const { return rows_; }

    /// The value, or nothing when there is no such variable.
    const std::string* Find(std::string_view name) const;

    /// Replaces the variable's value, or adds the variable at the end.
    void Set(std::string_view name, std::string_view value);

    /// Gives a variable another name in the same place; one that has that name already goes.
    void Rename(std::string_view name, std::string_view newName);

    void SetAll(std::string_view value);
    void Remove(std::string_view name);
    void Clear();

    /// Grows with every change, for who shows the variables.
    std::size_t Revision() const { return revision_; }

    /// True when every name holds a "[", so that a text without one can't hold a variable.
    bool AllBracketed() const { return unbracketed_ == 0; }

    /// True when every name is written as scripts write it: a "[", a "]" at its end, and no bracket between. Then
    /// where one stands in a text does not depend on the others.
    bool AllSimple() const { return odd_ == 0; }

    /// Calls found(rank) for every variable whose name stands in a text at an index.
    template <typename Found>
    void NamesAt(std::string_view text, std::size_t at, Found found) const {
        if (startsOfNames_[static_cast<unsigned char>(text[at])] == 0) return;
        for (const auto& [length, count] : lengthsOfNames_) {
            if (length > text.size() - at) return;
            if (endsOfNames_[static_cast<unsigned char>(text[at + length - 1])] == 0) continue;
            const auto name = ranks_.find(text.substr(at, length));
            if (name != ranks_.end()) found(name->second);
        }
    }

    std::size_t LongestName() const { return lengthsOfNames_.empty() ? 0 : lengthsOfNames_.rbegin()->first; }

  private:
    /// Lets a name be looked for without a copy of it.
    struct Hash : std::hash<std::string_view> {
        using is_transparent = void;  // NOLINT(readability-identifier-naming): the library asks for this name
    };
    using CountOfEach = std::array<std::size_t, 256>;

    List rows_;
    std::unordered_map<std::string, Rank, Hash, std::equal_to<>> ranks_;
    Rank next_ = 0;
    std::size_t revision_ = 0;

    // What is known of all names together: it says where in a text none can stand.
    std::map<std::size_t, std::size_t> lengthsOfNames_;  ///< and how many names are as long
    CountOfEach startsOfNames_{}, endsOfNames_{};
    std::size_t unbracketed_ = 0, odd_ = 0;  ///< names without a "[", and all that are not simple

    void AddName(std::string_view name, Rank rank);
    void RemoveName(std::string_view name);
};

/// The name with a "[" in front and a "]" behind, where they are missing.
std::string BracketedName(std::string_view name);
