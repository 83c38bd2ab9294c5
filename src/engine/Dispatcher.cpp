#include "engine/Dispatcher.h"

#include <algorithm>
#include <limits>
#include <map>
#include <memory>
#include <string_view>

#include "bot/Bot.h"
#include "bot/Place.h"
#include "bot/Variables.h"
#include "engine/Conditions.h"
#include "engine/Script.h"
#include "engine/modScript.h"
#include "text/Numbers.h"
#include "text/Text.h"

namespace {

constexpr std::size_t kIntervalFrom = 4;  // behind "(0:n", counted from 0; further digits of n have no blank in them
constexpr std::string_view kDigits = "0123456789";

/// The first number in a cause's text, behind its first blank; 0 when there is none or it exceeds 16 bits, so that
/// it never divides the elapsed seconds.
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

std::int16_t ElapsedSeconds(const ElapsedClock& clock) {
    return Add16(Add16(Multiply16(clock.hours, 3600), Multiply16(clock.minutes, 60)), clock.seconds);
}

/// One event's walk over the script. The walk reads lines as if it had its own copy of them: running over a line for
/// conditions or effects trims it, testing a condition puts its expansion in its place, and the walk for causes may
/// come over both again. Only those lines are kept apart from the script; all others are read from it as they are.
class ScriptWalk {
  public:
    ScriptWalk(Bot& bot, GameEvent event)
        : bot_(bot),
          event_(event),
          script_(bot.script),
          place_(bot, script_->File()),
          last_(script_->Lines().size() - 1) {
        To16(static_cast<int>(
            std::min<std::size_t>(last_, std::numeric_limits<int>::max())));  // lines are counted in 16 bits
    }

    void Run() {
        for (std::size_t i = 1; i <= last_; ++i) {
            if (i >= trimmedUntil_) i = SkipTo(script_->NextStop(event_, i), i);
            if (i > last_ || EndsScript(i)) return;
            i = WalkLine(i);
        }
    }

  private:
    Bot& bot_;
    const GameEvent event_;
    const std::shared_ptr<const Script> script_;  // held on to: an effect may put another in its place
    PlaceMark place_;
    const std::size_t last_;
    std::size_t trimmedUntil_ = 0;               // the lines before it were run over, and so trimmed
    std::map<std::size_t, ScriptLine> changed_;  // the lines whose text was replaced by its expansion

    const ScriptLine& Line(std::size_t i) const {
        const auto changed = changed_.find(i);
        return changed == changed_.end() ? script_->Lines()[i] : changed->second;
    }

    /// Passes over lines at which there is nothing to do, and leaves the current event as a walk over them would: texts
    /// are expanded after the walk as well, when the reader goes on or somebody types.
    std::size_t SkipTo(std::size_t next, std::size_t from) {
        if (next > from) bot_.currentEvent = Line(next - 1).asCause.IsCommand(kCauseLine) ? event_ : GameEvent{-1};
        return next;
    }

    bool EndsScript(std::size_t i) const {
        const ScriptLine& line = Line(i);
        return i < trimmedUntil_ && !changed_.contains(i) ? line.endsScriptWhenTrimmed : line.endsScript;
    }

    const ScriptLine& TrimmedLine(std::size_t i) {
        const auto changed = changed_.find(i);
        if (changed != changed_.end()) changed->second = ScriptLine(std::string(changed->second.text));
        trimmedUntil_ = std::max(trimmedUntil_, i + 1);
        place_.AtLine(i + 1);
        return Line(i);
    }

    /// Handles one line as a possible cause.
    /// @return the last line that is done with
    std::size_t WalkLine(std::size_t i) {
        bot_.currentEvent = -1;  // so that "[player]" in a cause's own words means nobody
        place_.AtLine(i + 1);
        const ScriptLine& cause = Line(i);
        cause.asCause.RaiseFault();
        if (!cause.asCause.IsCommand(kCauseLine)) return i;
        std::string line = cause.text;
        if (!TestCause(bot_, line, cause.asCause.number, event_)) return i;
        bool allHold = true;
        const std::size_t behind = TestConditions(i + 1, allHold);
        return allHold ? RunEffects(behind, i) : i;
    }

    /// Tests every condition from a line on, without a short cut: each test is to be seen in its line. Kept on purpose:
    /// the script's last line is no condition, nor an effect; its terminator usually stands there.
    /// @return the line that ended the run
    std::size_t TestConditions(std::size_t first, bool& allHold) {
        std::size_t j = first;
        for (; j < last_; ++j) {
            const ScriptLine& condition = TrimmedLine(j);
            condition.asCondition.RaiseFault();
            if (condition.asCondition.kind == LineReading::Kind::NoCommand) continue;
            if (!condition.asCondition.IsCommand(kConditionLine)) break;
            std::string line = condition.text;
            allHold = EvaluateCondition(bot_, line, condition.asCondition.number) && allHold;
            if (line != condition.text) changed_.insert_or_assign(j, ScriptLine(line));
        }
        return j;
    }

    /// Carries out the effects from a line on, up to the next cause.
    /// @return the last line that is done with; the cause's own line when there was nothing to carry out
    std::size_t RunEffects(std::size_t first, std::size_t causeLine) {
        std::size_t done = causeLine;
        for (std::size_t k = first; k < last_; ++k) {
            const ScriptLine& effect = TrimmedLine(k);
            effect.asEffect.RaiseFault();
            if (effect.asEffect.IsCommand(kCauseLine)) return k - 1;  // the walk goes on at the cause itself
            if (!effect.asEffect.IsCommand(kEffectLine)) continue;
            std::string line = effect.text;
            // Where an effect raises an event, as (5:1) does, the current event stays as that one's walk has left it:
            // in the effects behind it "[player]" stays as written.
            modScript::ExecuteEffect(bot_, line, Add16(effect.asEffect.number, 1));
            done = k;
        }
        return done;
    }
};

}  // namespace

void RunScript(Bot& bot, GameEvent event) {
    if (bot.script && bot.script->IsValid()) ScriptWalk(bot, event).Run();
}

bool TestCause(Bot& bot, std::string& line, std::int16_t number, GameEvent event) {
    line = ExpandVariables(bot, line);
    bot.currentEvent = event;
    if (event != EventTimerTick) return event == Add16(number, 1);
    // Kept on purpose: the number is not looked at, so that any cause with a digit in its words is a timer as well.
    const std::int16_t interval = TimerInterval(line);
    return interval > 0 && ElapsedSeconds(bot.clock) % interval == 0;
}

void ScriptTimerTick(Bot& bot) {
    ElapsedClock& clock = bot.clock;
    clock.seconds = Add16(clock.seconds, 1);
    if (clock.seconds == 60) {
        clock.seconds = 0;
        clock.minutes = Add16(clock.minutes, 1);
        // Kept on purpose: the hour is not carried, so intervals count from the full hour.
        if (clock.minutes == 60) clock.minutes = 0;
    }
    RunScript(bot, EventTimerTick);
}
