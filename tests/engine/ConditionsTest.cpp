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
        s.player = {"Some|Furre", "", "", {"pc", "!", "#", "5"}};
        s.playerTag = "I";
        s.look = {"Lou", "A Tall|Cat", "Q", {"lc", " ", "]", "?"}};
        s.move = {"mc", {10, 20}, {12, 21}, 0};
        s.dsbot = {{1, 2}, {3, 4}, 5, {6, 7}};
        s.ds = {{11, 12}, {13, 14}, 15, {16, 17}};
        s.map = "Goldwyn";
        s.previousMap = "Vinca";
        s.visitors = "Ann, Bob|B";
        s.fst = {7, 5, 9, "AM"};
        s.dice = {2, 6, 8, {3, 5}};
        s.dreamName = "My|Dream";
        s.dream = {8, 9};
        s.requester = "Req";
        s.onlineName = "Onl";
        s.arrived = "Arr";
        s.present = "Pre";
        s.departed = "Dep";
        bot.profile.maps = "Home, Goldwyn";
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
    {"ContainsIgnoresCase", "(1:6) {O TH}", true}, {"ContainsReadsNoBars", "(1:6) {o|th}", false},
    {"EverythingContainsTheEmptyText", "(1:6) {}", true},
    {"WholeArgumentReachesTheLastBrace", "(1:6) {hello} {there}", false},
    {"VariablesAreExpandedFirst", "(1:2) {[message]}", true}, {"LookDescEquals", "(1:8) {a tall cat}", true},
    {"MissingBraceIsFalse", "(1:2) Hello there", false},
    {"MissingBraceIsFalseForTheNegationToo", "(1:3) nobody", false},
    {"BracesTheWrongWayRoundAreMissing", "(1:3) }x{", false}, {"FirstArgumentNeedsItsOwnBrace", "(1:77) } {7", false},

    {"SpeciesOfTheLookedAt", "(1:20) bracket", true, EventLookResult},
    {"NegationOf20ReadsMarkings", "(1:21) bracket", true, EventLookResult},
    {"NegationOf28ReadsMarkings", "(1:29) question", false, EventLookResult},
    {"Number27WasNeverGivenOut", "(1:27) x", false}, {"NegativeNumbersAreFalse", "(1:-1) {x}", false},
    {"BlankGender", "(1:32) blank", true, EventLookResult}, {"BadgePresent", "(1:36) any", true, EventLookResult},
    {"BadgeIIgnoresCase", "(1:38) i", true},
    {"BadgeSetWaitsForTheDescription", "(1:40) set", true, EventLookDescription},
    {"BadgeSetKnowsNoLookResult", "(1:40) set", false, EventLookResult},
    {"BadgeSetNegationKnowsNoLookResult", "(1:41) set", false, EventLookResult},
    {"BadgeSetMindsCase", "(1:50) set", false, EventSpeech, [](Bot& b) { b.state.playerTag = "i"; }},
    {"LongBadgeIsInNoSet", "(1:50) set", false, EventSpeech, [](Bot& b) { b.state.playerTag = "IJ"; }},
    {"ColorsOfTheMover", "(1:84) {MC}", true, EventFurreMoved},
    {"NegatedColorsKnowNoMover", "(1:85) {xx}", false, EventFurreMoved},

    {"PreviousMapEquals", "(1:72) {vinca}", true}, {"VisitorInList", "(1:74) {bob b}", true},
    {"VisitorIsOneWholeEntry", "(1:74) {Ann, Bob B}", false}, {"EmptyOwnersHoldNobody", "(1:127) {}", false},
    {"MapsHold", "(1:129) {home}", true},
    {"ClientFlagTwoIsNeither", "(1:126) x", false, EventSpeech, [](Bot& b) { b.profile.connectClient = 2; }},

    {"NumberIsTheLeadingOne", "(1:76) { 7 o'clock}", true}, {"NumbersAreComparedAsRead", "(1:78) {5.5}", false},
    {"NoNumberIsZero", "(1:80) {nine}", true, EventSpeech, [](Bot& b) { b.state.fst.second = 0; }},
    {"MorningCountsCase", "(1:82) x", false, EventSpeech, [](Bot& b) { b.state.fst.median = "am"; }},
    {"NeitherMorningNorAfternoon", "(1:83) x", false, EventSpeech, [](Bot& b) { b.state.fst.median = ""; }},
    {"MovedFrom", "(1:86) {10} {20}", true}, {"OneArgumentServesForBoth", "(1:88) {12}", false},
    {"OneArgumentServesForBothEqual", "(1:133) {8}", true, EventSpeech, [](Bot& b) { b.state.dream = {8, 8}; }},
    {"NegatedSquareNeedsOneDifference", "(1:87) {10} {21}", true}, {"EndOfTheMove", "(1:90) {12} {21}", true},
    {"FirstNotice", "(1:94) {3} {4}", true, EventDsBotTrigger},
    {"SecondNotice", "(1:98) {16} {17}", true, EventDsTrigger}, {"NoNoticeNoAnswer", "(1:97) {5}", false},

    {"DieIsCountedFromOne", "(1:104) {1} {3}", true}, {"DieStandsOnTheLeft", "(1:102) {2} {6}", true},
    {"DieGreaterOrEqual", "(1:105) {2} {6}", false}, {"TotalStandsOnTheLeft", "(1:107) {9}", true},
    {"TotalLessOrEqual", "(1:108) {8}", true}, {"DieLessOrEqual", "(1:103) {2} {5}", true},
    {"TotalGreaterOrEqual", "(1:110) {8}", true}, {"Less", "(1:112) {-1} {0}", true},
    {"Greater", "(1:115) {1} {1}", false}, {"GreaterOrEqual", "(1:116) {1} {1}", true},
    {"LastArgumentOfThree", "(1:114) {1} {2} {1}", true}, {"TextsAreComparedExactly", "(1:117) {abc} {ABC}", false},
    {"TextsDiffer", "(1:120) {abc} {ABC}", true}, {"PatternCountsCase", "(1:118) {abc} {[A-C]bc}", false},
    {"PatternDoesNotMatch", "(1:121) {abc} {a?}", true},
    {"ContainedAtTheEndOnly", "(1:119) {hello world} {world}", true},
    {"NotContainedAtTheStart", "(1:119) {hello world} {hello}", false},
    {"NotContainedNegated", "(1:122) {hello world} {hello}", true},

    {"FileHolds", "(1:123) {ann b} {SEEN} {guests?}", true},
    {"FileOddHeaderIsPassedOver", "(1:123) {Still Seen} {seen} {Guests_}", true},
    {"FileLineOfAnotherSection", "(1:123) {eve} {seen} {Guests_}", false},
    {"FileLinesBeforeTheFirstSection", "(1:123) {before} {} {Guests_}", true},
    {"FileDoesNotHold", "(1:124) {eve} {seen} {Guests_}", true}, {"FileMissing", "(1:124) {a} {b} {nofile}", true},
    {"FileWithoutThirdArgument", "(1:124) {a} {b}", false},
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
    const std::map<GameEvent, std::string> names = {
        {4, "some furre"}, {5, "some furre"}, {7, "some furre"}, {11, "some furre"}, {13, "lou"}, {21, "arr"},
        {22, "pre"},       {23, "dep"},       {27, "req"},       {28, "req"},        {29, "req"}, {30, "req"},
        {33, "req"},       {34, "req"},       {36, "onl"},       {37, "onl"}};
    WatchfulBot watchful;
    for (GameEvent event = -1; event <= 50; ++event) {
        const auto name = names.find(event);
        const std::string equals = "(1:0) {" + (name == names.end() ? "" : name->second) + "}";
        EXPECT_EQ(watchful.Holds(event, equals), name != names.end()) << "event " << event;
        EXPECT_EQ(watchful.Holds(event, "(1:1) {nobody}"), name != names.end()) << "event " << event;
    }
}

TEST(Negations, HoldWhereTheConditionDoesNot) {
    WatchfulBot watchful;
    const auto expectOpposites = [&](int number, int negation) {
        const GameEvent event = number >= 92 && number <= 99 ? EventDsTrigger : EventSpeech;
        for (const char* const arguments : {") {a} {b} {c}", ") {5} {7} {7}", ") {*} {*} {*}"}) {
            EXPECT_NE(watchful.Holds(event, "(1:" + std::to_string(number) + arguments),
                      watchful.Holds(event, "(1:" + std::to_string(negation) + arguments))
                << number << arguments;
        }
    };
    for (const auto& [first, last] : {std::pair{0, 18}, {22, 24}, {30, 80}, {84, 98}, {123, 123}, {127, 133}}) {
        for (int number = first; number <= last; number += 2) expectOpposites(number, number + 1);
    }
    for (const int number : {117, 118, 119}) expectOpposites(number, number + 3);
}

TEST(BadgeSets, AreTenGroupsOfFourAndTheirFourPlaces) {
    WatchfulBot watchful;
    for (int code = 1; code < 256; ++code) {
        watchful.bot.state.playerTag = std::string(1, static_cast<char>(code));
        const auto expect = [&](int number, bool wanted) {
            const std::string line = "(1:" + std::to_string(number) + ") x";
            EXPECT_EQ(watchful.Holds(EventWhisper, line), wanted) << line << " with code " << code;
        };
        int number = 40;
        for (const char first : std::string_view("QEj]AIeUMaY")) {
            expect(number, code >= first && code < first + (first == 'j' ? 1 : 4));
            number += 2;
        }
        for (int place = 0; place < 4; ++place)
            expect(62 + 2 * place, code >= 'A' && code <= 'h' && (code - 'A') % 4 == place);
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
    EXPECT_FALSE(Like("a", "#"));
    EXPECT_FALSE(Like("a", ""));
    EXPECT_FALSE(Like("", "[a]"));
    // A list that is never closed, or holds a range the wrong way round, matches nothing.
    for (const char* const pattern : {"[a", "*[", "*[c-a]*", "*[!c-a]*"}) EXPECT_FALSE(Like("[a", pattern)) << pattern;
}

}  // namespace
