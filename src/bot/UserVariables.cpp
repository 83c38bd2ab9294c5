#include "bot/UserVariables.h"

#include <utility>

namespace {

unsigned char First(std::string_view name) { return static_cast<unsigned char>(name.front()); }
unsigned char Last(std::string_view name) { return static_cast<unsigned char>(name.back()); }

std::size_t Unbracketed(std::string_view name) { return name.find('[') == name.npos ? 1 : 0; }

std::size_t Odd(std::string_view name) {
    const bool isSimple =
        name.starts_with('[') && name.ends_with(']') && name.find_first_of("[]", 1) == name.size() - 1;
    return isSimple ? 0 : 1;
}

}  // namespace

const std::string* UserVariables::Find(std::string_view name) const {
    const auto rank = ranks_.find(name);
    return rank == ranks_.end() ? nullptr : &rows_.at(rank->second).value;
}

void UserVariables::Set(std::string_view name, std::string_view value) {
    ++revision_;
    if (const auto rank = ranks_.find(name); rank != ranks_.end()) {
        rows_.at(rank->second).value = value;
    } else {
        rows_.emplace(next_, UserVariable{std::string(name), std::string(value)});
        AddName(name, next_++);
    }
}

void UserVariables::Rename(std::string_view name, std::string_view newName) {
    const auto found = ranks_.find(name);
    if (name == newName || found == ranks_.end()) return;
    const Rank rank = found->second;
    Remove(newName);  // counts as the change, too, where there is none
    RemoveName(name);
    rows_.at(rank).name = newName;
    AddName(newName, rank);
}

void UserVariables::SetAll(std::string_view value) {
    for (auto& [rank, row] : rows_) row.value = value;
    ++revision_;
}

void UserVariables::Remove(std::string_view name) {
    ++revision_;
    const auto found = ranks_.find(name);
    if (found == ranks_.end()) return;
    rows_.erase(found->second);
    RemoveName(name);
}

void UserVariables::Clear() {
    const std::size_t revision = revision_, next = next_;
    *this = UserVariables();
    // Begun again, the revision might come back to one that is shown already.
    revision_ = revision + 1;
    next_ = next;
}

void UserVariables::AddName(std::string_view name, Rank rank) {
    ranks_.emplace(name, rank);
    unbracketed_ += Unbracketed(name);
    odd_ += Odd(name);
    if (name.empty()) return;  // stands nowhere
    ++lengthsOfNames_[name.size()];
    ++startsOfNames_[First(name)];
    ++endsOfNames_[Last(name)];
}

void UserVariables::RemoveName(std::string_view name) {
    unbracketed_ -= Unbracketed(name);
    odd_ -= Odd(name);
    if (!name.empty()) {
        const auto length = lengthsOfNames_.find(name.size());
        if (--length->second == 0) lengthsOfNames_.erase(length);
        --startsOfNames_[First(name)];
        --endsOfNames_[Last(name)];
    }
    ranks_.erase(ranks_.find(name));
}

std::string BracketedName(std::string_view name) {
    std::string bracketed(name);
    if (!bracketed.starts_with('[')) bracketed.insert(0, 1, '[');
    if (!bracketed.ends_with(']')) bracketed += ']';
    return bracketed;
}
