#include <gtest/gtest.h>

#include <map>
#include <string>

#include "engine/Compare.h"
#include "engine/Conditions.h"
#include "support/Cases.h"
#include "support/RehearsalBot.h"
#include "text/Numbers.h"

namespace {

class WatchfulBot : public RehearsalBot {
  public:
    WatchfulBot() {
        BotState& s = bot.state;
        s.message = "Hello there";
        s.player.name = "Some|Furre";
        s.playerTag = "I";
        s.look = {"Lou", "", "Q", {"lc", " ", "]", "?"}};
        s.move = {"mc", {10, 20}, {12, 21}, 0};
        s.ds.trigger = s.dsbot.trigger = 5;
        s.visitors = "Ann, Bob|B";
        s.fst = {7, 5, 9, "AM"};
        s.dice.values = {3, 5};
        s.dream = {8, 8};
        s.requester = "Req", s.onlineName = "Onl", s.arrived = "Arr", s.present = "Pre", s.departed = "Dep";
        files.contents["folder/Guests_.ini"] =
            "before\r\n[Seen]\nAnn|B\r\n[odd\r\nstill seen\r\n[Other]\r\nEve\r\n[seen]\r\nlast";
    }
    bool Holds(GameEvent event, std::string line) {
        bot.currentEvent = event;
        const std::int16_t number = NumberOrFault(line.substr(3, line.find(')') - 3));
        return EvaluateCondition(bot, line, number);
    }
};

struct ConditionCase {
    const char* name;
    std::string line;
    bool holds;
    GameEvent event = EventSpeech;
    void (*prepare)(Bot&) = [](Bot&) {};
};
// clang-format off
const ConditionCase kConditionCases[] = {
    {"MessageEqualsLoosely", "(1:2) {hello|THERE}", true}, {"MessageLikeAPattern", "(1:4) {h*[a-f]?e}", true},
    {"ContainsReadsNoBars", "(1:6) {o|th}", false}, {"EverythingContainsTheEmptyText", "(1:6) {}", true},
    {"WholeArgumentReachesTheLastBrace", "(1:6) {hello} {there}", false},
    {"VariablesAreExpandedFirst", "(1:2) {[message]}", true}, {"MissingBraceIsFalse", "(1:2) Hello there", false},
    {"MissingBraceIsFalseForTheNegationToo", "(1:3) nobody", false},
    {"BracesTheWrongWayRoundAreMissing", "(1:3) }x{", false}, {"FirstArgumentNeedsItsOwnBrace", "(1:77) } {7", false},
    {"NegationOf20ReadsMarkings", "(1:21) bracket", true, EventLookResult},
    {"NegationOf28ReadsMarkings", "(1:29) question", false, EventLookResult},
    {"Number27WasNeverGivenOut", "(1:27) x", false}, {"NegativeNumbersAreFalse", "(1:-1) {x}", false},
    {"BadgeIIgnoresCase", "(1:38) i", true}, {"BadgeSetKnowsNoLookResult", "(1:40) set", false, EventLookResult},
    {"BadgeSetNegationKnowsNoLookResult", "(1:41) set", false, EventLookResult},
    {"BadgeSetMindsCase", "(1:50) set", false, EventSpeech, [](Bot& b) { b.state.playerTag = "i"; }},
    {"NegatedColorsKnowNoMover", "(1:85) {xx}", false, EventFurreMoved}, {"VisitorInList", "(1:74) {bob b}", true},
    {"VisitorIsOneWholeEntry", "(1:74) {Ann, Bob B}", false}, {"EmptyOwnersHoldNobody", "(1:127) {}", false},
    {"ClientFlagTwoIsNeither", "(1:126) x", false, EventSpeech, [](Bot& b) { b.profile.connectClient = 2; }},
    {"NumberIsTheLeadingOne", "(1:76) { 7 o'clock}", true}, {"NumbersAreComparedAsRead", "(1:78) {5.5}", false},
    {"NoNumberIsZero", "(1:80) {nine}", true, EventSpeech, [](Bot& b) { b.state.fst.second = 0; }},
    {"MorningCountsCase", "(1:82) x", false, EventSpeech, [](Bot& b) { b.state.fst.median = "am"; }},
    {"NeitherMorningNorAfternoon", "(1:83) x", false, EventSpeech, [](Bot& b) { b.state.fst.median = ""; }},
    {"OneArgumentServesForBothEqual", "(1:133) {8}", true}, {"OneArgumentServesForBoth", "(1:88) {12}", false},
    {"NegatedSquareNeedsOneDifference", "(1:87) {10} {21}", true}, {"NoNoticeNoAnswer", "(1:97) {5}", false},
    {"LastArgumentOfThree", "(1:114) {1} {2} {1}", true}, {"PatternCountsCase", "(1:118) {abc} {[A-C]bc}", false},
    {"ContainedAtTheEndOnly", "(1:119) {hello world} {hello}", false},
    {"FileHolds", "(1:123) {ann b} {SEEN} {guests?}", true},
    {"FileOddHeaderIsPassedOver", "(1:123) {Still Seen} {seen} {Guests_}", true},
    {"FileLineOfAnotherSection", "(1:123) {eve} {seen} {Guests_}", false},
    {"FileLinesBeforeTheFirstSection", "(1:123) {before} {} {Guests_}", true},
    {"FileMissing", "(1:124) {a} {b} {nofile}", true}, {"FileWithoutThirdArgument", "(1:124) {a} {b}", false},
};
// clang-format on
class AdditionalCondition : public testing::TestWithParam<ConditionCase> {};
TEST_P(AdditionalCondition, HoldsOrNot) {
    WatchfulBot watchful;
    GetParam().prepare(watchful.bot);
    EXPECT_EQ(watchful.Holds(GetParam().event, GetParam().line), GetParam().holds);
}
INSTANTIATE_TEST_SUITE_P(Conditions, AdditionalCondition, testing::ValuesIn(kConditionCases), kCaseName);

TEST(FurreName, IsKnownInFewerEventsThanThePlayer) {
    // clang-format off
    const std::map<GameEvent, std::string> names = {
        {4, "some furre"}, {5, "some furre"}, {7, "some furre"}, {11, "some furre"}, {13, "lou"}, {21, "arr"}, {22, "pre"},
        {23, "dep"}, {27, "req"}, {28, "req"}, {29, "req"}, {30, "req"}, {33, "req"}, {34, "req"}, {36, "onl"}, {37, "onl"}};
    // clang-format on
    WatchfulBot watchful;
    for (GameEvent event = -1; event <= 50; ++event) {
        const auto name = names.find(event);
        const std::string equals = "(1:0) {" + (name == names.end() ? "" : name->second) + "}";
        EXPECT_EQ(watchful.Holds(event, equals), name != names.end()) << "event " << event;
        EXPECT_EQ(watchful.Holds(event, "(1:1) {nobody}"), name != names.end()) << "event " << event;
    }
}

TEST(Dice, ADieThatWasNotRolledIsAFault) {
    WatchfulBot watchful;
    for (const char* const line : {"(1:104) {0} {1}", "(1:104) {3} {1}", "(1:104) {none} {1}"}) {
        EXPECT_EQ(FaultOf([&] { watchful.Holds(EventDiceRoll, line); }), FaultKind::SubscriptOutOfRange) << line;
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
