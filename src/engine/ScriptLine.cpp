#include "engine/ScriptLine.h"

#include <algorithm>
#include <limits>
#include <optional>

#include "text/Numbers.h"
#include "text/Outcome.h"
#include "text/Text.h"

namespace {

constexpr std::string_view kTerminatorStart = "*endtriggers* ";
constexpr std::string_view kTerminatorEnd = " *endtriggers*";

// Where category and number stand on a command line, counted from 0.
constexpr std::size_t kCategoryAt = 1;
constexpr std::size_t kNumberAt = 3;
constexpr std::size_t kShortestEffect = 5;  // "(5:0)"

constexpr std::size_t kIntervalFrom = 4;  // behind "(0:n", counted from 0; further digits of n have no blank in them
constexpr std::string_view kDigits = "0123456789";

bool IsTerminator(std::string_view line) {
    if (line.size() < kTerminatorStart.size() || line.front() != kTerminatorStart.front()) return false;
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

}  // namespace

ScriptLine::ScriptLine(std::string_view asItStands)
    : text(Trim(asItStands)),
      endsScript(IsTerminator(asItStands)),
      endsScriptWhenTrimmed(IsTerminator(text)),
      asCondition(ReadAsCondition(text)),
      asCause(ReadAsCause(text, asCondition)),
      asEffect(ReadAsEffect(text, asCondition)),
      keepsItsReading(text.find('[') >= text.find(')', std::min(kNumberAt, text.size()))) {}

std::int16_t TimerInterval(std::string_view line) {
    const std::size_t blank = line.find(' ', kIntervalFrom);
    if (blank == line.npos) return 0;
    const std::size_t first = line.find_first_of(kDigits, blank);
    if (first == line.npos) return 0;
    const std::string_view digits = line.substr(first, line.find_first_not_of(kDigits, first) - first);
    // Not the strict reader: where the cause is no timer, a telephone number in its words is to be no fault.
    const double number = LeadingNumber(digits);
    return number > std::numeric_limits<std::int16_t>::max() ? std::int16_t{0} : static_cast<std::int16_t>(number);
}
