#pragma once

#include <string>
#include <string_view>
#include <vector>

struct UserVariable {
    std::string name;  ///< as written in scripts, brackets included
    std::string value;
};

/// The variables a script makes, in the order of their making. Names differ by case.
class UserVariables {
  public:
    const std::vector<UserVariable>& Rows() const { return rows_; }

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
    bool AllBracketed() const { return allBracketed_; }

  private:
    std::vector<UserVariable> rows_;
    bool allBracketed_ = true;
    std::size_t revision_ = 0;

    void NoteChange();
};

/// The name with a "[" in front and a "]" behind, where they are missing.
std::string BracketedName(std::string_view name);
