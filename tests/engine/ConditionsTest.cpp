#include <map>
#include <string>

#include "engine/Conditions.h"
#include "game/Compare.h"
#include "support/Cases.h"
#include "support/RehearsalBot.h"

// What is odd about the conditions themselves is played: tests/sessions/conditions.txt.

namespace {

TEST(FurreName, IsKnownInFewerEventsThanThePlayer) {
    // clang-format off
    const std::map<GameEvent, std::string> names = {
        {4, "some furre"}, {5, "some furre"}, {7, "some furre"}, {11, "some furre"}, {13, "lou"}, {21, "arr"}, {22, "pre"},
        {23, "dep"}, {27, "req"}, {28, "req"}, {29, "req"}, {30, "req"}, {33, "req"}, {34, "req"}, {36, "onl"}, {37, "onl"}};
    // clang-format on
    RehearsalBot rehearsal;
    BotState& state = rehearsal.bot.state;
    state.player.name = "Some|Furre", state.look.name = "Lou", state.requester = "Req", state.onlineName = "Onl";
    state.arrived = "Arr", state.present = "Pre", state.departed = "Dep";
    for (GameEvent event = -1; event <= 50; ++event) {
        const auto name = names.find(event);
        std::string is = "(1:0) {" + (name == names.end() ? "" : name->second) + "}", isNot = "(1:1) {nobody}";
        rehearsal.bot.currentEvent = event;
        EXPECT_EQ(EvaluateCondition(rehearsal.bot, is, 0), name != names.end()) << "event " << event;
        EXPECT_EQ(EvaluateCondition(rehearsal.bot, isNot, 1), name != names.end()) << "event " << event;
    }
}

TEST(Dice, ADieThatWasNotRolledIsAFault) {
    RehearsalBot rehearsal;
    rehearsal.bot.state.dieValues = {3, 5};
    for (std::string line : {"(1:104) {0} {1}", "(1:104) {3} {1}", "(1:104) {none} {1}"}) {
        EXPECT_EQ(FaultOf([&] { EvaluateCondition(rehearsal.bot, line, 104); }), FaultKind::SubscriptOutOfRange)
            << line;
    }
}

TEST(Pattern, MatchesTheWholeTextOrNothing) {
    EXPECT_TRUE(Like("ab", "*a*b*"));
    EXPECT_TRUE(Like("aXbXc", "*X?"));
    EXPECT_TRUE(Like("b-7", "[!x-z][-]#"));
    EXPECT_FALSE(Like("a", ""));
    EXPECT_FALSE(Like("", "[a]"));
    // A list that is never closed, or holds a range the wrong way round, matches nothing.
    for (const char* const pattern : {"[a", "*[", "*[c-a]*", "*[!c-a]*"}) EXPECT_FALSE(Like("[a", pattern)) << pattern;
}

}  // namespace
