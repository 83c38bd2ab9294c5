#include "engine/Script.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <utility>

#include "text/Numbers.h"
#include "text/Text.h"

namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kTerminatorStart = "*endtriggers* ";
constexpr std::string_view kTerminatorEnd = " *endtriggers*";

// Where category and number stand on a command line, counted from 0.
constexpr std::size_t kCategoryAt = 1;
constexpr std::size_t kNumberAt = 3;
constexpr std::size_t kShortestEffect = 5;  // "(5:0)"

bool IsTerminator(std::string_view line) {
    if (line.size() < kTerminatorStart.size()) return false;
    const std::string lowered = LowerCase(line);
    return lowered.starts_with(kTerminatorStart) && lowered.ends_with(kTerminatorEnd);
}

/// The characters from the number's place up to the first ")" there; nothing without a ")".
std::optional<std::string_view> NumberText(std::string_view line) {
    const std::size_t end = line.find(')', kNumberAt);
    if (end == line.npos) return std::nullopt;
    return line.substr(kNumberAt, end - kNumberAt);
}

std::string_view CategoryText(std::string_view line) { return line.substr(std::min(kCategoryAt, line.size()), 1); }

/// What category and number make of a line. A fault, the category's first, is kept for the walk that gets there.
LineReading Reading(const Outcome<std::int16_t>& category, const Outcome<std::int16_t>& number) {
    for (const auto* const part : {&category, &number}) {
        if (!*part) return {LineReading::Kind::Fault, -1, -1, part->Fault().Kind()};
    }
    return {LineReading::Kind::Command, *category, *number, FaultKind::TypeMismatch};
}

LineReading ReadAsCondition(std::string_view line) {
    if (!line.starts_with('(')) return {};
    const auto number = NumberText(line);
    return Reading(ReadNumber(CategoryText(line)),
                   number ? ReadNumber(*number) : RuntimeFault(FaultKind::TypeMismatch));
}

/// A cause is read as strictly as a condition, but only from a line that has its punctuation.
LineReading ReadAsCause(std::string_view line, const LineReading& asCondition) {
    const std::size_t colon = line.find(':');
    if (colon == line.npos || line.find(") ", colon) == line.npos) return {};
    return asCondition;
}

/// Kept on purpose: reads what it finds for a number, so that a remark such as "(todo)" has category 0 here and ends
/// the effects like a cause. What can be read strictly means the same here.
LineReading ReadAsEffect(std::string_view line, const LineReading& asCondition) {
    if (!line.starts_with('(') || asCondition.kind == LineReading::Kind::Command) return asCondition;
    constexpr std::int16_t kNone = -1;
    const auto number = NumberText(line);
    return Reading(line.size() < kShortestEffect ? kNone : ReadLeadingNumber(CategoryText(line)),
                   number ? ReadLeadingNumber(*number) : kNone);
}

std::size_t FirstAtOrAfter(const std::vector<std::size_t>& lines, std::size_t from) {
    const auto found = std::lower_bound(lines.begin(), lines.end(), from);
    return found == lines.end() ? std::numeric_limits<std::size_t>::max() : *found;
}

}  // namespace

ScriptLine::ScriptLine(std::string_view asItStands)
    : text(Trim(asItStands)),
      endsScript(IsTerminator(asItStands)),
      endsScriptWhenTrimmed(IsTerminator(text)),
      asCondition(ReadAsCondition(text)),
      asCause(ReadAsCause(text, asCondition)),
      asEffect(ReadAsEffect(text, asCondition)) {}

Script::Script(std::string text, std::string file) : text_(std::move(text)), file_(std::move(file)) {
    for (const std::string& line : Split(text_, kLineEnd)) lines_.emplace_back(line);
    // The header is taken from the text, for the lines are trimmed, and a blank before or behind it spoils it.
    isValid_ = lines_.size() >= 2 && UpperCase(Split(text_, kLineEnd).front()) == UpperCase(kScriptHeader);
    if (isValid_) BuildIndex();
}

void Script::BuildIndex() {
    for (std::size_t i = 1; i < lines_.size(); ++i) {
        const LineReading& cause = lines_[i].asCause;
        if (lines_[i].endsScript || cause.kind == LineReading::Kind::Fault) stops_.push_back(i);
        if (!cause.IsCommand(kCauseLine)) continue;
        causes_.push_back(i);
        causesByNumber_[cause.number].push_back(i);
    }
}

std::size_t Script::NextStop(GameEvent event, std::size_t from) const {
    std::size_t next = std::min(FirstAtOrAfter(stops_, from), lines_.size());
    if (event == EventTimerTick) return std::min(next, FirstAtOrAfter(causes_, from));  // whatever its number
    const auto consider = [&](std::int16_t number) {
        const auto causes = causesByNumber_.find(number);
        if (causes != causesByNumber_.end()) next = std::min(next, FirstAtOrAfter(causes->second, from));
    };
    if (event > std::numeric_limits<GameEvent>::min()) consider(static_cast<std::int16_t>(event - 1));
    // For this number, number + 1 overflows whatever the event.
    consider(std::numeric_limits<std::int16_t>::max());
    return next;
}

std::string ScriptTextFromFile(std::string_view bytes) { return Join(FileLines(bytes), kLineEnd); }

std::string ScriptTextToFile(std::string_view text) { return JoinFileLines(Split(text, kLineEnd)); }
