#include "profile/ProfileEdit.h"

#include <algorithm>
#include <iterator>

#include "game/Lists.h"
#include "text/Numbers.h"
#include "text/Text.h"

namespace {

ProfileEdit::NameList NamesOf(const SplitList& list) { return {EntriesOf(list.Text()), list.Text()}; }

std::string JoinedEntries(const ProfileEdit::NameList& list) {
    std::vector<std::string> entries;
    std::copy_if(list.entries.begin(), list.entries.end(), std::back_inserter(entries),
                 [](const std::string& entry) { return !entry.empty(); });
    return Join(entries, kListSeparator);
}

}  // namespace

ProfileEdit::ProfileEdit(Profile& profile)
    : profile_(profile), owners_(NamesOf(profile.owners)), maps_(NamesOf(profile.maps)) {}

std::optional<std::string> ProfileEdit::Add(NameList& list, std::string_view typed, std::string_view refusal) {
    const std::string name = BlanksToBars(typed);
    if (InList(list.text, name)) return name + std::string(refusal);
    list.entries.push_back(name);
    list.text = WithEntry(list.text, name);
    MarkChanged();
    return std::nullopt;
}

std::optional<std::string> ProfileEdit::AddOwner(std::string_view typed) {
    return Add(owners_, typed, " is already on the bot owner list");
}

std::optional<std::string> ProfileEdit::AddMap(std::string_view typed) {
    return Add(maps_, typed, " is already on the active map list");
}

void ProfileEdit::Delete(NameList& list, std::size_t index) {
    if (index >= list.entries.size()) return;
    const std::string entry = list.entries[index];
    const std::string separator(kListSeparator);
    // With a separator first, else the neighbours would be left with two of them.
    list.text = ReplaceAll(list.text, separator + entry, "");
    list.text = ReplaceAll(list.text, entry + separator, "");
    list.text = ReplaceAll(list.text, entry, "");
    list.entries.erase(list.entries.begin() + static_cast<std::ptrdiff_t>(index));
    MarkChanged();
}

void ProfileEdit::DeleteOwner(std::size_t index) { Delete(owners_, index); }
void ProfileEdit::DeleteMap(std::size_t index) { Delete(maps_, index); }

ProfileEdit::IgnoreAnswer ProfileEdit::AddIgnore(std::string& name) {
    name = BarsToBlanks(name);
    // This word has always counted as no answer.
    if (name.empty() || name == "undefined") return IgnoreAnswer::Nothing;
    if (IsIgnored(profile_, name)) return IgnoreAnswer::AlreadyThere;
    profile_.ignores.push_back(name);
    MarkChanged();
    return IgnoreAnswer::Added;
}

void ProfileEdit::RemoveIgnore(std::size_t index) {
    if (index >= profile_.ignores.size()) return;
    profile_.ignores.erase(profile_.ignores.begin() + static_cast<std::ptrdiff_t>(index));
    MarkChanged();
}

bool ProfileEdit::IsUsablePort(const std::string& text) {
    const double number = LeadingNumber(text);
    return number >= 1 && number <= 32767;
}

void ProfileEdit::Apply(const Fields& fields) {
    const Profile before = profile_;
    profile_.clientPath = fields.clientPath;
    profile_.characterPath = fields.characterPath;
    // From the entries: their text may have lost parts of longer names to a removal.
    profile_.owners = JoinedEntries(owners_);
    profile_.maps = JoinedEntries(maps_);
    profile_.connectClient = fields.connectClient ? 1 : 0;
    profile_.closeClient = fields.closeClient ? 1 : 0;
    profile_.signatureFirst = fields.signatureFirst;
    if (IsUsablePort(fields.port)) profile_.port = RoundTo16(LeadingNumber(fields.port));
    if (profile_ != before) MarkChanged();
}
