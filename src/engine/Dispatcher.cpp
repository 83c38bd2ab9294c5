#include "engine/Dispatcher.h"

#include <algorithm>
#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "bot/Bot.h"
#include "bot/Place.h"
#include "bot/Variables.h"
#include "engine/Conditions.h"
#include "engine/Script.h"
#include "engine/modScript.h"
#include "text/Numbers.h"
#include "text/Text.h"

namespace {

std::int16_t ElapsedSeconds(const ElapsedClock& clock) {
    return Add16(Add16(Multiply16(clock.hours, 3600), Multiply16(clock.minutes, 60)), clock.seconds);
}

constexpr std::size_t kFreeLooks = 64;
constexpr std::size_t kMostLines = std::numeric_limits<std::int16_t>::max();

/// One event's walk over the script. The walk reads lines as if it had its own copy of them: running over a line for
/// conditions or effects trims it, testing a condition puts its expansion in its place, and the walk for causes may
/// come over both again. Only those lines are kept apart from the script; all others are read from it as they are.
class ScriptWalk {
  public:
    ScriptWalk(Bot& bot, GameEvent event)
        : bot_(bot), event_(event), script_(bot.script), last_(script_->Lines().size() - 1) {}

    void Run() {
        if (last_ > kMostLines) TooManyLines();
        for (std::size_t i = 1; i <= last_; ++i) {
            if (IsAsRead(i)) i = SkipTo(NextStop(i), i);
            if (i > last_ || EndsScript(i)) return;
            i = WalkLine(i);
        }
    }

  private:
    Bot& bot_;
    const GameEvent event_;
    const std::shared_ptr<const Script> script_;  // held on to: an effect may put another in its place
    std::optional<PlaceMark> place_;
    const std::size_t last_;
    Stops stops_;
    bool stopsAreKnown_ = false, looksClosely_ = true;
    std::size_t looks_ = 0, inVain_ = 0;
    std::size_t trimmedUntil_ = 0;               // the lines before it were run over, and so trimmed
    std::map<std::size_t, ScriptLine> changed_;  // the lines whose text was replaced by its expansion
    std::string room_;                           // for a line's expansion

    /// Marked only where there is something to do: most events pass a script by.
    void MarkPlace(std::size_t line) {
        if (!place_) place_.emplace(bot_, script_->File());
        place_->AtLine(line);
    }

    [[noreturn]] void TooManyLines() {
        MarkPlace(0);
        throw RuntimeFault(FaultKind::Overflow);  // lines are counted in 16 bits
    }

    const ScriptLine& Line(std::size_t i) const {
        const auto changed = changed_.find(i);
        return changed == changed_.end() ? script_->Lines()[i] : changed->second;
    }

    /// Whether the script's index tells what there is to do from a line on.
    bool IsAsRead(std::size_t i) const {
        return i >= trimmedUntil_ || (changed_.empty() && !script_->Triggers().HasIndentedTerminator());
    }

    /// What the index knows holds until an effect changes something. A few looks are free; then it is asked again only
    /// when as many triggers have been tried in vain as asking takes looks, so that a script of which much fires costs
    /// at most twice what walking by all triggers would.
    std::size_t NextStop(std::size_t from) {
        if (!std::exchange(stopsAreKnown_, true)) {
            looksClosely_ = looks_ <= kFreeLooks || inVain_ >= stops_.Effort();
            const GameEvent before = std::exchange(bot_.currentEvent, event_);
            script_->Triggers().Find(bot_, looksClosely_, stops_);
            bot_.currentEvent = before;
            if (looksClosely_) {
                looks_ += stops_.Effort();
                inVain_ = 0;
            }
        }
        return std::min(stops_.NextFrom(from), last_ + 1);
    }

    /// @return the line, with which is done
    std::size_t InVain(std::size_t line) {
        if (!looksClosely_ && ++inVain_ >= stops_.Effort()) stopsAreKnown_ = false;
        return line;
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
        MarkPlace(i + 1);
        return Line(i);
    }

    /// Handles one line as a possible cause.
    /// @return the last line that is done with
    std::size_t WalkLine(std::size_t i) {
        bot_.currentEvent = -1;  // so that "[player]" in a cause's own words means nobody
        MarkPlace(i + 1);
        const ScriptLine& cause = Line(i);
        cause.asCause.RaiseFault();
        if (!cause.asCause.IsCommand(kCauseLine) || !TestCause(bot_, cause.text, cause.asCause.number, event_))
            return i;
        bool allHold = true;
        const std::size_t behind = TestConditions(i + 1, allHold);
        return allHold ? RunEffects(behind, i) : InVain(i);
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
            const std::string_view line = ExpandVariables(bot_, condition.text, room_);
            allHold = EvaluateCondition(bot_, line, condition.asCondition.number) && allHold;
            const bool readsTheSame = condition.keepsItsReading && bot_.variables.AllSimple();
            if (!readsTheSame && line != condition.text) changed_.insert_or_assign(j, ScriptLine(line));
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
            // Where an effect raises an event, as (5:1) does, the current event stays as that one's walk has left it:
            // in the effects behind it "[player]" stays as written.
            modScript::ExecuteEffect(bot_, effect.text, Add16(effect.asEffect.number, 1));
            stopsAreKnown_ = false;
            done = k;
        }
        return done;
    }
};

}  // namespace

void RunScript(Bot& bot, GameEvent event) {
    if (bot.script && bot.script->IsValid()) ScriptWalk(bot, event).Run();
}

bool TestCause(Bot& bot, std::string_view line, std::int16_t number, GameEvent event) {
    std::string room;
    const std::string_view expanded = ExpandVariables(bot, line, room);
    bot.currentEvent = event;
    if (event != EventTimerTick) return event == Add16(number, 1);
    // Kept on purpose: the number is not looked at, so that any cause with a digit in its words is a timer as well.
    const std::int16_t interval = TimerInterval(expanded);
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
