#include "engine/TriggerIndex.h"

#include <algorithm>
#include <limits>
#include <map>
#include <optional>
#include <set>

#include "bot/Bot.h"
#include "bot/Variables.h"
#include "engine/Conditions.h"
#include "text/Limits.h"

/// A trigger as far as it can be known beforehand.
struct TriggerIndex::Known {
    ConditionIndex::Trigger trigger;
    std::set<std::string> names;  ///< of the variables in its lines
    std::size_t longestLine = 0;
};

/// Takes in a line that is expanded, and nothing more, when the trigger is tried.
/// @return false when more may come of it
bool TriggerIndex::TakesIn(Known& known, const ScriptLine& line) {
    std::string_view rest = line.text;
    if (rest.size() > kLongestText || !line.keepsItsReading) return false;
    known.longestLine = std::max(known.longestLine, rest.size());
    while (const std::optional<Mention> mention = NextMention(rest)) {
        if (!mention->standsApart) return false;
        known.names.emplace(mention->name);
        rest.remove_prefix(mention->at + mention->name.size());
    }
    return true;
}

/// Reads a cause and its conditions as the walk does.
/// @return nothing when trying them may fault or leave a trace
std::optional<TriggerIndex::Known> TriggerIndex::WhatIsKnown(const std::vector<ScriptLine>& lines, std::size_t cause) {
    Known known{.trigger = {cause, {}}, .names = {}};
    if (!TakesIn(known, lines[cause])) return std::nullopt;
    for (std::size_t j = cause + 1; j + 1 < lines.size(); ++j) {
        const ScriptLine& line = lines[j];
        // Trying the trigger trims the line, and it ends the script when the walk comes to it.
        if (line.endsScriptWhenTrimmed && !line.endsScript) return std::nullopt;
        const LineReading& reading = line.asCondition;
        if (reading.kind == LineReading::Kind::Fault) return std::nullopt;
        if (reading.kind == LineReading::Kind::NoCommand) continue;
        if (!reading.IsCommand(kConditionLine)) break;
        if (MayFault(reading.number) || !TakesIn(known, line)) return std::nullopt;
        known.trigger.conditions.push_back(&line);
    }
    return known;
}

TriggerIndex::TriggerIndex(const std::vector<ScriptLine>& lines) {
    std::map<std::int16_t, std::vector<Known>> plain, mentioning;
    std::vector<Known> causes;
    for (std::size_t i = 1; i < lines.size(); ++i) {
        const ScriptLine& line = lines[i];
        hasIndentedTerminator_ = hasIndentedTerminator_ || (line.endsScriptWhenTrimmed && !line.endsScript);
        if (line.endsScript || line.asCause.kind == LineReading::Kind::Fault) stops_.push_back(i);
        if (!line.asCause.IsCommand(kCauseLine)) continue;

        // Every cause is expanded, whether it answers the event or not.
        Known cause{.trigger = {i, {}}, .names = {}};
        const bool isKnown = TakesIn(cause, line);
        AddTimer(line, i, isKnown && cause.names.empty());
        if (!isKnown) {
            stops_.push_back(i);
        } else if (!cause.names.empty()) {
            causes.push_back(std::move(cause));
        }
        const std::int16_t number = line.asCause.number;
        // For this number, number + 1 overflows whatever the event.
        if (number == std::numeric_limits<std::int16_t>::max()) overflows_.push_back(i);
        OfCause& ofCause = ofCauses_[number];
        ofCause.all.push_back(i);
        std::optional<Known> known = WhatIsKnown(lines, i);
        if (!known || known->trigger.conditions.empty()) {
            ofCause.open.push_back(i);
        } else {
            (known->names.empty() ? plain : mentioning)[number].push_back(std::move(*known));
        }
    }
    const auto indexed = [](const std::vector<Known>& known) {
        std::vector<ConditionIndex::Trigger> triggers;
        triggers.reserve(known.size());
        for (const Known& each : known) triggers.push_back(each.trigger);
        return ConditionIndex(triggers);
    };
    for (const auto& [number, known] : plain) ofCauses_[number].byCondition = indexed(known);
    for (const auto& [number, known] : mentioning) {
        ofCauses_[number].byMentioning = indexed(known);
        ofCauses_[number].mentioning = Mentioning(known);
    }
    mentioningCauses_ = Mentioning(causes);
}

TriggerIndex::Mentioning::Mentioning(const std::vector<Known>& known) {
    std::set<std::string> all;
    for (const Known& each : known) {
        lines.push_back(each.trigger.causeLine);
        longestLine = std::max(longestLine, each.longestLine);
        all.insert(each.names.begin(), each.names.end());
    }
    names.assign(all.begin(), all.end());
}

void TriggerIndex::AddTimer(const ScriptLine& cause, std::size_t line, bool isConstant) {
    causes_.push_back(line);
    if (!isConstant) return openTimers_.push_back(line);
    const std::int16_t interval = TimerInterval(cause.text);
    if (interval == 0) return;
    timers_.push_back(line);
    timersByInterval_[interval].push_back(line);
}

void TriggerIndex::Find(const Bot& bot, bool closely, Stops& stops) const {
    const bool isTick = bot.currentEvent == EventTimerTick;
    stops.Clear();
    if (closely) stops.BeginEffort();
    stops.Add(stops_);
    // A variable with any other name may stand anywhere, and may turn a line into something else.
    if (!bot.variables.AllSimple()) return stops.Add(causes_);
    if (isTick) return closely ? FindTimers(bot, stops) : stops.Add(causes_);
    stops.Add(overflows_);
    if (mentioningCauses_.MayFault(bot)) stops.Add(mentioningCauses_.lines);
    if (bot.currentEvent == std::numeric_limits<GameEvent>::min()) return;
    const auto found = ofCauses_.find(CauseOf(bot.currentEvent));
    if (found == ofCauses_.end()) return;
    const auto& [all, open, byCondition, mentioning, byMentioning] = found->second;
    if (!closely) return stops.Add(all);
    stops.Add(open);
    byCondition.Find(bot, stops);
    mentioning.MayFault(bot) ? stops.Add(mentioning.lines) : byMentioning.Find(bot, stops);
}

bool TriggerIndex::Mentioning::MayFault(const Bot& bot) const {
    std::size_t longestValue = 0;
    std::string value;
    for (const std::string& name : names) {
        value.clear();
        AppendValueOf(bot, name, value);
        if (value.find('[') != value.npos) return true;
        longestValue = std::max(longestValue, value.size());
    }
    // A name has two characters at least. None of the factors is near the end of its type.
    return longestLine + longestLine / 2 * longestValue > kLongestText;
}

/// Which timers are due is known from the numbers that divide the elapsed seconds, however many timers there are.
void TriggerIndex::FindTimers(const Bot& bot, Stops& stops) const {
    stops.Add(openTimers_);
    const auto [hours, minutes, seconds] = bot.clock;
    constexpr int kMinute = 60;
    const bool inFirstHour = hours == 0 && 0 <= minutes && minutes < kMinute && 0 <= seconds && seconds < kMinute;
    const int elapsed = minutes * kMinute + seconds;
    // Every interval divides 0. A clock that was set by others than the timer may run over when it is read.
    if (!inFirstHour || elapsed == 0) return stops.Add(timers_);
    const auto addDue = [&](int interval) {
        const auto due = timersByInterval_.find(interval);
        if (due != timersByInterval_.end()) stops.Add(due->second);
    };
    for (int divisor = 1; divisor * divisor <= elapsed; ++divisor) {
        if (elapsed % divisor != 0) continue;
        addDue(divisor);
        if (divisor * divisor != elapsed) addDue(elapsed / divisor);
    }
}
