#include <random>

#include "engine/Dispatcher.h"
#include "engine/SlowWalker.h"
#include "support/Cases.h"
#include "support/RehearsalBot.h"
#include "support/Written.h"

namespace {

using Pieces = std::vector<std::string>;

/// What stands in quotes in a block of the file beside this one.
Pieces PiecesOf(std::size_t block) {
    const std::string quoted = Join(BlocksOf("tests/engine/script-pieces.txt").at(block), " ");
    return Split(quoted.substr(1, quoted.size() - 2), "\" \"");
}
const Pieces kCauseTexts = PiecesOf(0), kConditions = PiecesOf(1), kEffects = PiecesOf(2), kPassedOver = PiecesOf(3),
             kRisky = PiecesOf(4), kRewrites = PiecesOf(5);

class ScriptWriter {
  public:
    std::string Script() {
        std::string text(Chance(40) ? "vspk 01.00 VOREL" : Chance(80) ? "VSPK 01.00 Vorel " : "VSPK 01.00 Vorel");
        risky_ = Chance(2);
        for (int lines = Below(24); lines >= 0; --lines) text += "\r\n" + Blanks() + Line() + Blanks();
        return Chance(3) ? text : text + "\r\n";
    }
    GameEvent Event() { return static_cast<GameEvent>(Chance(3) ? 46 : Chance(6) ? Below(52) - 1 : Below(4)); }
    /// The variables' names and values, " -> " between.
    Pieces Variables() {
        Pieces chosen;
        if (Chance(2)) chosen.push_back(Chance(2) ? "[n] -> 7" : "[n] -> (0:0) {1}");
        if (Chance(2)) chosen.push_back("[every] -> 15");
        for (int count = Below(3); count > 0; --count) chosen.push_back(OneOf(kRewrites));
        return chosen;
    }
    int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

  private:
    std::mt19937 random_{20};
    bool risky_ = false;

    bool Chance(int oneIn) { return Below(oneIn) == 0; }
    std::string OneOf(const Pieces& pieces) {
        return pieces[static_cast<std::size_t>(Below(static_cast<int>(pieces.size())))];
    }
    std::string Blanks() { return Chance(8) ? std::string(static_cast<std::size_t>(Below(3)), ' ') : ""; }
    std::string Line() {
        const int kind = Below(100);
        if (risky_ && kind < 6) return OneOf(kRisky);
        if (kind < 14) return OneOf(kPassedOver);
        if (kind < 36) return "(0:" + std::to_string(Event() - 1) + ") " + OneOf(kCauseTexts);
        return OneOf(kind < 60 ? kConditions : kEffects);
    }
};

/// A bot to run one script on, by either walk.
class Subject : public RehearsalBot {
  public:
    Subject(const std::string& script, const Pieces& variables, int seconds) {
        bot.script = std::make_shared<Script>(script);
        for (const std::string& set : variables) bot.variables.Set(Split(set, " -> ")[0], Split(set, " -> ")[1]);
        bot.clock.seconds = static_cast<std::int16_t>(seconds);
        bot.profile.maps = "Home";
        bot.state.map = "home";
        bot.state.message = "hello there";
        bot.state.player.name = "Ann";
        bot.state.dice = {2, 6, 8};
        bot.state.dieValues = {3, 5};
    }

    /// Everything to be seen of one event, one line each: what it told, the fault and where, and what it left behind.
    std::vector<std::string> Outcome(void (*walk)(Bot&, GameEvent), GameEvent event) {
        fault = FaultOf([&] { walk(bot, event); });
        std::vector<std::string> outcome = TakeTold();
        if (fault) outcome.push_back("fault " + std::string(RuntimeFault(*fault).Name()));
        if (fault) outcome.push_back("at line " + std::to_string(bot.place.line));
        for (const auto& [rank, row] : bot.variables.Rows()) outcome.push_back(row.name + "=" + row.value);
        outcome.push_back("event " + std::to_string(bot.currentEvent));
        outcome.push_back("profile " + bot.profile.owners.Text() + " " + std::to_string(bot.profile.connectClient));
        return outcome;
    }

    std::optional<FaultKind> fault;
};

TEST(Walkers, AgreeOnEveryScript) {
    ScriptWriter writer;
    int faults = 0, told = 0;
    for (int round = 0; round < 6000; ++round) {
        const std::string script = writer.Script();
        const Pieces variables = writer.Variables();
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
