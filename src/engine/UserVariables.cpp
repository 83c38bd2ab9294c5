#include "engine/UserVariables.h"

#include <algorithm>

namespace {
auto HasName(std::string_view name) {
    return [name](const UserVariable& row) { return row.name == name; };
}
}  // namespace

const std::string* UserVariables::Find(std::string_view name) const {
    const auto row = std::find_if(rows_.begin(), rows_.end(), HasName(name));
    return row == rows_.end() ? nullptr : &row->value;
}

void UserVariables::Set(std::string_view name, std::string_view value) {
    const auto row = std::find_if(rows_.begin(), rows_.end(), HasName(name));
    if (row != rows_.end()) {
        row->value = value;
    } else {
        rows_.push_back({std::string(name), std::string(value)});
    }
    NoteChange();
}

void UserVariables::Rename(std::string_view name, std::string_view newName) {
    if (name == newName || !Find(name)) return;
    std::erase_if(rows_, HasName(newName));
    std::find_if(rows_.begin(), rows_.end(), HasName(name))->name = newName;
    NoteChange();
}

void UserVariables::SetAll(std::string_view value) {
    for (UserVariable& row : rows_) row.value = value;
    NoteChange();
}

void UserVariables::Remove(std::string_view name) {
    std::erase_if(rows_, HasName(name));
    NoteChange();
}

void UserVariables::Clear() {
    rows_.clear();
    NoteChange();
}

void UserVariables::NoteChange() {
    ++revision_;
    allBracketed_ = std::all_of(rows_.begin(), rows_.end(),
                                [](const UserVariable& row) { return row.name.find('[') != std::string::npos; });
}

std::string BracketedName(std::string_view name) {
    std::string bracketed(name);
    if (!bracketed.starts_with('[')) bracketed.insert(0, 1, '[');
    if (!bracketed.ends_with(']')) bracketed += ']';
    return bracketed;
}
