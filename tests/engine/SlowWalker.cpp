#include "engine/SlowWalker.h"

#include <string>
#include <vector>

#include "bot/Bot.h"
#include "bot/Host.h"
#include "bot/Variables.h"
#include "engine/PlainRules.h"
#include "engine/Script.h"
#include "engine/modScript.h"
#include "text/Numbers.h"
#include "text/Text.h"

namespace {

constexpr auto kNone = std::string::npos;

class SlowWalker {
  public:
    SlowWalker(Bot& bot, GameEvent event) : bot_(bot), event_(event), lines_(Split(bot.script->Text(), "\r\n")) {}

    void Walk() {
        if (lines_.size() < 2 || UpperCase(lines_[0]) != "VSPK 01.00 VOREL") return;
        for (std::size_t i = 1; i < lines_.size(); ++i) {
            const std::string lowered = LowerCase(lines_[i]);
            if (lowered.substr(0, 14) == "*endtriggers* " && lowered.ends_with(" *endtriggers*")) return;
            bot_.currentEvent = -1;
            std::string& line = TrimmedLine(i);
            const std::size_t open = line.find('('), colon = line.find(':', open), end = line.find(") ", colon);
            if (open != 0 || colon == kNone || end == kNone) continue;
            const std::int16_t category = NumberOrFault(line.substr(1, 1)), number = StrictNumber(line);
            if (category == 0 && CauseHolds(line, number)) i = RunTrigger(i);
        }
    }

  private:
    Bot& bot_;
    const GameEvent event_;
    std::vector<std::string> lines_;

    std::string& TrimmedLine(std::size_t i) {
        bot_.place.line = i + 1;
        lines_[i] = std::string(Trim(lines_[i]));
        return lines_[i];
    }

    static std::int16_t StrictNumber(const std::string& line) {
        const std::size_t end = line.find(')', 3);
        return NumberOrFault(end == kNone ? "" : line.substr(3, end - 3));
    }

    bool CauseHolds(std::string& line, std::int16_t number) {
        line = ExpandPlainly(bot_, line);
        bot_.currentEvent = event_;
        if (event_ != 46) return event_ == Add16(number, 1);
        std::size_t at = line.find(' ', 4);
        while (at < line.size() && !IsDigit(line[at])) ++at;
        long interval = 0;
        for (; at < line.size() && IsDigit(line[at]); ++at) {
            interval = interval * 10 + (line[at] - '0');
            if (interval > 32767) return false;
        }
        if (interval == 0) return false;
        const ElapsedClock& clock = bot_.clock;
        return Add16(Add16(Multiply16(clock.hours, 3600), Multiply16(clock.minutes, 60)), clock.seconds) % interval ==
               0;
    }
    /// Effects are the engine's own, and so is how they expand their lines. Told, a mistake there is a difference.
    void CompareExpansions(const std::string& line) {
        const std::string plain = ExpandPlainly(bot_, line);
        if (plain != ExpandVariables(bot_, line)) bot_.host.ShowConsoleLine("plainly expanded: " + plain);
    }
    static bool IsDigit(char c) { return c >= '0' && c <= '9'; }

    /// @return the line from which the walk for causes goes on, which is the one behind the line returned
    std::size_t RunTrigger(std::size_t i) {
        int seen = 0, held = 0;
        std::size_t j = i + 1;
        for (; j < lines_.size() - 1; ++j) {
            std::string& line = TrimmedLine(j);
            if (!line.starts_with('(')) continue;
            const std::int16_t category = NumberOrFault(line.substr(1, 1)), number = StrictNumber(line);
            if (category != 1) break;
            ++seen;
            if (HoldsPlainly(bot_, line, number)) ++held;
        }
        if (held != seen) return i;

        for (std::size_t k = j; k < lines_.size(); ++k) {
            if (k == lines_.size() - 1 || lines_[k].empty()) continue;
            std::string& line = TrimmedLine(k);
            if (!line.starts_with('(')) continue;
            const std::int16_t category = line.size() < 5 ? std::int16_t{-1} : LeadingNumberOrZero(line.substr(1, 1));
            const std::size_t end = line.find(')', 3);
            const std::int16_t number = end == kNone ? std::int16_t{-1} : LeadingNumberOrZero(line.substr(3, end - 3));
            if (category == 0) return k - 1;
            if (category != 5) continue;
            CompareExpansions(line);
            modScript::ExecuteEffect(bot_, line, Add16(number, 1));
            i = k;
        }
        return i;
    }
};

}  // namespace

void WalkSlowly(Bot& bot, GameEvent event) { SlowWalker(bot, event).Walk(); }
