#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <tuple>
#include <vector>

#include "engine/Dispatcher.h"
#include "support/Cases.h"
#include "support/RehearsalBot.h"

namespace {

constexpr char kHeader[] = "VSPK 01.00 Vorel";
constexpr char kEnd[] = "*Endtriggers* 9999 *Endtriggers*";
constexpr char kBlankEnd[] = " *Endtriggers* 9999 *Endtriggers* ";

struct WalkCase {
    const char* name;
    std::vector<std::string> script;
    std::string told;  ///< the notices shown and commands sent, joined with blanks
    std::optional<FaultKind> fault = {};
    GameEvent event = EventScriptLoaded;
};
// clang-format off
const WalkCase kWalkCases[] = {
    {"HeaderInAnyCase", {"vspk 01.00 VOREL", "(0:0) a", "(5:2) {1}", ""}, "1"},
    {"HeaderIsNotTrimmed", {"VSPK 01.00 Vorel ", "(0:0) a", "(5:2) {1}", ""}, ""},
    {"CauseAnswersItsNumberPlusOne", {kHeader, "(0:3) a", "(5:2) {1}", "(0:2) b", "(5:2) {2}", ""}, "2", {}, 3},
    {"CauseNeedsTextBehindItsNumber", {kHeader, "(0:0)", "(5:2) {1}", ""}, ""},
    {"LastLineIsNeverCarriedOut", {kHeader, "(0:0) a", "(5:2) {1}", "(5:2) {2}"}, "1"},
    {"ConditionBehindAnEffectIsPassedOver", {kHeader, "(0:0) a", "(5:2) {1}", "(1:27) b", "(5:2) {2}", ""}, "1 2"},
    {"OtherCategoriesEndTheConditions", {kHeader, "(0:0) a", "(2:1) b", "(1:27) c", "(5:2) {1}", ""}, "1"},
    {"FreeTextDoesNotEndTheConditions", {kHeader, "(0:0) a", "text", "", "(1:27) c", "(5:2) {1}", ""}, ""},
    {"EffectsBehindTheTerminatorBelongToTheTriggerBefore",
     {kHeader, "(0:0) a", kEnd, "(5:2) {1}", ""}, "1"},
    {"TerminatorEndsTheWalkForCauses", {kHeader, "(0:1) a", kEnd, "(0:0) b", "(5:2) {2}", ""}, ""},
    {"TerminatorWithBlanksIsNone", {kHeader, kBlankEnd, "(0:0) b", "(5:2) {2}", ""}, "2"},
    {"TerminatorLosesItsBlanksWhenRunOver",
     {kHeader, "(0:0) a", "(1:27) b", kBlankEnd, "(0:0) c", "(5:2) {2}", ""}, ""},
    {"EffectNumberNeedsItsParenthesis", {kHeader, "(0:2) a", "(5:2) {1}", "(5:0 b", ""}, "1", {}, 3},
    {"RemarkBeforeTheFirstEffectFaults",
     {kHeader, "(0:0) a", "(remark)", "(5:2) {1}", ""}, "", FaultKind::TypeMismatch},
    {"RemarkBehindAnEffectEndsTheTrigger", {kHeader, "(0:0) a", "(5:2) {1}", "(remark)", "(5:2) {2}", ""}, "1"},
    {"CauseNumberMustBeOne", {kHeader, "(0:a) b", ""}, "", FaultKind::TypeMismatch},
    {"CauseNumberPlusOneOverflows", {kHeader, "(0:32767) a", ""}, "", FaultKind::Overflow},
    {"OnATickTheCausesNumberIsNotLookedAt", {kHeader, "(0:32767) every {5}", "(5:2) {1}", ""}, "1", {}, EventTimerTick},
    {"EveryCategoryOverflowsAmongEffects",
     {kHeader, "(0:0) a", "(5:2) {1}", "(7:32768)", ""}, "1", FaultKind::Overflow},
    // In the next two, variables without brackets rewrite a condition's line when it is tested.
    {"ConditionRewrittenToACauseIsWalkedAsOne", {kHeader, "(0:0) a", "(1:27) rewritten", "(5:2) {1}", ""}, "1"},
    {"RewrittenConditionLosesItsBlanksWhenRunOver",
     {kHeader, "(0:0) a", "(1:27) rewritten", "(1:27) end", "(1:27) b", "(0:0) c", "(5:2) {1}", ""}, ""},
    // The inner event is over when the outer one's effects go on, and "[player]" is nobody's name then.
    {"EventWithinAnEventTakesTheCurrentEventAlong",
     {kHeader, "(0:3) a", "(5:2) {[player]}", "(5:1) off", "(5:2) {[player]}", "(0:2) b", "(5:2) {gone}", ""},
     "Ann gone [player]", {}, EventSpeech},
};
// clang-format on
class Walk : public testing::TestWithParam<WalkCase> {};

/// What was shown or sent, without the words that say which.
std::string Told(RehearsalBot& rehearsal) {
    std::vector<std::string> told = rehearsal.TakeTold();
    for (std::string& line : told) line = line.substr(line.find(' ') + 1);
    return Join(told, " ");
}

TEST_P(Walk, RunsTheScriptByTheRules) {
    RehearsalBot rehearsal;
    rehearsal.bot.script = std::make_shared<Script>(Join(GetParam().script, "\r\n"));
    rehearsal.bot.state.player.name = "Ann";
    rehearsal.bot.variables.Set("(1:27) rewritten", "(0:0) rewritten");
    rehearsal.bot.variables.Set("(1:27) end", kBlankEnd);
    EXPECT_EQ(FaultOf([&] { RunScript(rehearsal.bot, GetParam().event); }), GetParam().fault);
    EXPECT_EQ(Told(rehearsal), GetParam().told);
}
INSTANTIATE_TEST_SUITE_P(Dispatcher, Walk, testing::ValuesIn(kWalkCases), kCaseName);

TEST(TimerCause, HoldsAtEveryMultipleOfTheFirstNumberInItsText) {
    const std::tuple<std::string, int, std::size_t> rows[] = {{"(0:7) every {15} of 60", 60, 4},
                                                              {"(0:7) every [n]", 60, 2},
                                                              {"(0:7) every 1700, from the full hour", 7200, 6},
                                                              {"(0:7) every 3600, the hour not carried", 7200, 2},
                                                              {"(0:7) every second", 3600, 0},
                                                              {"(0:7) every 0 7 seconds", 60, 0},
                                                              {"(0:7) every 65537, past 16 bits", 3600, 0}};
    for (const auto& [cause, ticks, holds] : rows) {
        RehearsalBot rehearsal;
        rehearsal.bot.variables.Set("[n]", "30");
        rehearsal.SetScript({cause, "(5:2) {tick}"});
        for (int tick = 0; tick < ticks; ++tick) ScriptTimerTick(rehearsal.bot);
        EXPECT_EQ(rehearsal.told.size(), holds) << cause;
    }
}

TEST(ScriptFile, LosesOnlyTheLastLineEnd) {
    EXPECT_EQ(ScriptTextFromFile("a\n\r\nb\r\n"), "a\r\n\r\nb");
    EXPECT_EQ(ScriptTextFromFile(ScriptTextToFile("a\r\n\r\nb")), "a\r\n\r\nb");
    EXPECT_EQ(ScriptTextToFile("a\r\n"), "a\r\n\r\n");
}

}  // namespace
