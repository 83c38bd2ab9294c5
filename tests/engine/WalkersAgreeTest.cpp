#include <gtest/gtest.h>

#include <iterator>
#include <memory>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "engine/Dispatcher.h"
#include "engine/SlowWalker.h"
#include "support/Cases.h"
#include "support/RehearsalBot.h"

namespace {

// clang-format off
constexpr std::string_view kCauseTexts[] = {
    "when", "every {2} s", "15", "[n] [every]", "x 65538", "(5:2) 3", "99999999999", "[message] 1s", "0", "(0:0) x 7"};
constexpr std::string_view kConditions[] = {
    "(1:112) {1} {2}", "(1:112) {1} {[n]}", "(1:27) never", "(1:125) alone", "(1:125) hold", "(1:2) {hello there}",
    "(1:117) {[n]} {1}", "(1:120) {a} {b}", "(1:128) {Bob}", "(1:0) {Ann}", "(1:116) {1} {1}", "(1:119) {[word1]} {o}",
    "(1:6) {hello}", "(1:126)", "(1:104) {1} {3}", "(1:113)  {0} {1}"};
constexpr std::string_view kEffects[] = {
    "(5:2) {tell [n] [message]}", "(5:2) {[word1] to [player]}", "(5:2) {x}", "(5:2) {a} {b}", "(5:3) sit", "(5:3)  ",
    "(5:8) {say [n]}", "(5:69) {n} {1}", "(5:70) {n} {3}", "(5:68) {n} and store {(0:1)}", "(5:88) zero", "(5:90) {n}",
    "(5:68) {every} and store {15}", "(5:89) drop", "(5:80) alone", "(5:81) together", "(5:82) {Bob}", "(5:83) {bob}",
    "(5:1) leave"};
constexpr std::string_view kPassedOver[] = {
    "", "  ", "free text", "text (0:0) behind", "(2:0) x", "(9:3) x", "(7:32767) x", "(0:0)", "(0:1)", "(0:45)",
    "(5:3)",
    "(3:1)", "\t(0:0) x", "(1:300) x", "*Endtriggers*9999*Endtriggers*", "*Endtriggers* 9999 *Endtriggers*",
    "*ENDTRIGGERS* *endtriggers*", "  *Endtriggers* 9999 *Endtriggers*", "*Endtriggers* 9999 *Endtriggers* ",
    "*Endtriggers* 9999"};
constexpr std::string_view kRisky[] = {
    "(remark) x", "(a remark)", "(", "()", "(5)", "(5:)", "(0:a) x", "(x:1) x", "(0:32767) x", "(5:32767) x",
    "(1:32767) x", "(0:32768) x", "(7:40000) x", "(5:-1) x", "(0:-1) x", "(5:-32768) x", "(5: 2) {blank}", "(5:x2) x",
    "(5:2.5) {half}", "(1 27) x", "(12:1) x", "( 0:0) x", "(5:2 {x}", "(5:72) {n} {0}", "(5:2) }{", "(1:102) {9} {1}"};

/// Variables without brackets stand for any text: these turn conditions into causes, effects, terminators, remarks,
/// empty lines and lines with blanks around, and back.
struct Rewrite {
    std::string_view name, value;
};
constexpr Rewrite kRewrites[] = {
    {"(1:", "(0:"}, {"(1:1", "(0:0"}, {"(1:1", "(0:1"}, {"(1:12", " (5:12"}, {"(1:", " (1:"}, {"(0:", "(1:"},
    {"(1:125", "(1:27"}, {"(1:2", "(1:3"}, {"(1:27)", "  "}, {"(1:125) alone", ""}, {"(1:117)", "(remark)"},
    {"never", "(0:3) x"}, {"(1:112) {1} {2}", "(0:45) {[n]}"}, {"1", "0"}, {"0", "5"}, {"2", "3"}, {"a", "(a"},
    {"o", "o "}, {"x", ""}, {"(", "  ("}, {") ", "  ) "}, {"(1:1", "*Endtriggers* (1:1"}, {"}", "} *Endtriggers*"},
    {"(1:120) {a} {b}", "*Endtriggers* 9999 *Endtriggers*"}, {"(1:125) hold", " *Endtriggers* 9999 *Endtriggers*"}};
// clang-format on

class ScriptWriter {
  public:
    std::string Script() {
        std::string text(Chance(40) ? "vspk 01.00 VOREL" : Chance(80) ? "VSPK 01.00 Vorel " : "VSPK 01.00 Vorel");
        risky_ = Chance(2);
        for (int lines = Below(24); lines >= 0; --lines) text += "\r\n" + Blanks() + Line() + Blanks();
        return Chance(3) ? text : text + "\r\n";
    }
    GameEvent Event() { return static_cast<GameEvent>(Chance(3) ? 46 : Chance(6) ? Below(52) - 1 : Below(4)); }
    std::vector<Rewrite> Variables() {
        std::vector<Rewrite> chosen;
        if (Chance(2)) chosen.push_back({"[n]", Chance(2) ? "7" : "(0:0) {1}"});
        if (Chance(2)) chosen.push_back({"[every]", "15"});
        for (int count = Below(3); count > 0; --count) chosen.push_back(OneOf(kRewrites));
        return chosen;
    }
    int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

  private:
    std::mt19937 random_{20};
    bool risky_ = false;

    bool Chance(int oneIn) { return Below(oneIn) == 0; }
    template <typename Item, std::size_t Count>
    Item OneOf(const Item (&items)[Count]) {
        return items[Below(static_cast<int>(Count))];
    }
    std::string Blanks() { return Chance(8) ? std::string(static_cast<std::size_t>(Below(3)), ' ') : ""; }
    std::string Line() {
        const int kind = Below(100);
        if (risky_ && kind < 6) return std::string(OneOf(kRisky));
        if (kind < 14) return std::string(OneOf(kPassedOver));
        if (kind < 36) return "(0:" + std::to_string(Event() - 1) + ") " + std::string(OneOf(kCauseTexts));
        return std::string(kind < 60 ? OneOf(kConditions) : OneOf(kEffects));
    }
};

/// A bot to run one script on, by either walk.
class Subject : public RehearsalBot {
  public:
    Subject(const std::string& script, const std::vector<Rewrite>& variables, int seconds) {
        bot.script = std::make_shared<Script>(script);
        for (const Rewrite& variable : variables) bot.variables.Set(variable.name, variable.value);
        bot.clock.seconds = static_cast<std::int16_t>(seconds);
        bot.profile.maps = "Home";
        bot.state.map = "home";
        bot.state.message = "hello there";
        bot.state.player.name = "Ann";
        bot.state.dice = {2, 6, 8, {3, 5}};
    }

    /// Everything to be seen of one event, one line each: what it told, the fault and where, and what it left behind.
    std::vector<std::string> Outcome(void (*walk)(Bot&, GameEvent), GameEvent event) {
        fault = FaultOf([&] { walk(bot, event); });
        std::vector<std::string> outcome = TakeTold();
        if (fault) outcome.push_back("fault " + std::string(RuntimeFault(*fault).Name()));
        if (fault) outcome.push_back("at line " + std::to_string(bot.place.line));
        for (const auto& [rank, row] : bot.variables.Rows()) outcome.push_back(row.name + "=" + row.value);
        outcome.push_back("event " + std::to_string(bot.currentEvent));
        outcome.push_back("profile " + bot.profile.owners + " " + std::to_string(bot.profile.connectClient));
        return outcome;
    }

    std::optional<FaultKind> fault;
};

TEST(Walkers, AgreeOnEveryScript) {
    ScriptWriter writer;
    int faults = 0, told = 0;
    for (int round = 0; round < 6000; ++round) {
        const std::string script = writer.Script();
        const std::vector<Rewrite> variables = writer.Variables();
        const int seconds = writer.Below(3) * 15;
        Subject fast(script, variables, seconds), slow(script, variables, seconds);
        // A few events in a row: what the first one changed is there for the next.
        for (int events = 3; events > 0 && !fast.fault; --events) {
            const GameEvent event = writer.Event();
            const std::vector<std::string> expected = slow.Outcome(WalkSlowly, event);
            ASSERT_EQ(fast.Outcome(RunScript, event), expected) << "event " << event << " on:\n" << script;
            told += expected.front().starts_with("console ") || expected.front().starts_with("sent ") ? 1 : 0;
            faults += fast.fault ? 1 : 0;
        }
    }
    // The comparison is worth something only while scripts do things, and some of them fault.
    EXPECT_GT(told, 2000);
    EXPECT_GT(faults, 500);
}

}  // namespace
