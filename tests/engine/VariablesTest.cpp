#include <gtest/gtest.h>

#include <map>
#include <string>

#include "engine/Variables.h"
#include "support/Cases.h"
#include "support/RehearsalBot.h"

namespace {

/// A bot each of whose fields has a value of its own.
class KnowingBot : public RehearsalBot {
  public:
    KnowingBot() {
        host.FreezeClock({2024, 3, 9, 15, 4, 5});
        BotState& s = bot.state;
        s.message = "hello there  friend";
        s.player = {"Pia", "pd", "", {"pc", "pg", "ps", "pm"}};
        s.vorel = {"Vo", "vd", "vb", {"vc", "vg", "vs", "vm"}};
        s.look.name = "Lou";
        s.vorelInto = {1, 2};
        s.vorelFrom = {3, 4};
        s.map = "Here";
        s.previousMap = "There";
        s.dice = {3, 6, 8, {3, 5}};
        s.requester = "Req", s.onlineName = "Onl", s.arrived = "Arr", s.present = "Pre", s.departed = "Dep";
        s.cookieGiver = "Giv", s.cookieName = "Coo";
        bot.profile.owners = "Own";
    }
    std::string Expand(GameEvent event, std::string_view text) {
        bot.currentEvent = event;
        return ExpandVariables(bot, text);
    }
};

TEST(EventPlayer, IsNamedByTheCurrentEvent) {
    // clang-format off
    const std::map<GameEvent, std::string> names = {
        {4, "Pia"}, {5, "Pia"}, {6, "Pia"}, {7, "Pia"}, {8, "Vo"}, {9, "Vo"}, {10, "Vo"}, {11, "Pia"}, {13, "Lou"},
        {14, "Lou"}, {21, "Arr"}, {22, "Pre"}, {23, "Dep"}, {27, "Req"}, {28, "Req"}, {29, "Req"}, {30, "Req"},
        {31, "Req"}, {32, "Req"}, {33, "Req"}, {34, "Req"}, {35, "Req"}, {36, "Onl"}, {37, "Onl"}, {40, "Giv"},
        {41, "Coo"}, {42, "Giv"}, {44, "Req"}, {45, "Req"}};
    // clang-format on
    KnowingBot knowing;
    for (GameEvent event = -1; event <= 50; ++event) {
        const auto name = names.find(event);
        const std::string expected = name == names.end() ? "[player] [player.name]" : name->second + " " + name->second;
        EXPECT_EQ(knowing.Expand(event, "[player] [player.name]"), expected) << "event " << event;
    }
    // The further variables: a furre's looks where it spoke, the other name where a cookie was given.
    const std::string looks = "[player.colors] [player.gender] [player.species] [player.markings] [player.desc]";
    EXPECT_EQ(knowing.Expand(7, looks), "pc pg ps pm pd");
    EXPECT_EQ(knowing.Expand(9, looks), "vc vg vs vm vd");
    EXPECT_EQ(knowing.Expand(13, looks), looks);
    EXPECT_EQ(knowing.Expand(40, "[cookiename]"), "Coo");
    EXPECT_EQ(knowing.Expand(41, "[cookiename]"), "Giv");
    EXPECT_EQ(knowing.Expand(7, "[cookiename]"), "[cookiename]");
}

struct ExpansionCase {
    const char* name;
    std::string text, expanded;
    void (*prepare)(Bot&) = [](Bot&) {};
};
// clang-format off
const ExpansionCase kExpansionCases[] = {
    {"Bot", "[vorel.name] [vorel.desc] [vorel.badge] [vorel.colors] [vorel.gender] [vorel.markings] [vorel.species]",
     "Vo vd vb vc vg vm vs"},
    {"OwnersAndPlaces",
     "[vorel.owners] [vorel.into] [vorel.from] [vorel.into.x] [vorel.into.y] [vorel.from.x] [vorel.from.y]",
     "Own (1,2) (3,4) 1 2 3 4"},
    {"Clock", "[date] [time] [hour] [minute] [second] [median]", "3/9/2024 3:04:05 PM 15 4 5 PM"},
    {"DiceAsManyAsWereKept", "[die1] [die2] [die3] [dice.total] [dice.amount] [dice.sides]", "3 5 [die3] 8 3 6"},
    {"DiceAsManyAsWereRolled", "[die1] [die2]", "3 [die2]", [](Bot& b) { b.state.dice.amount = 1; }},
    {"NoDiceBeforeTheFirstRoll", "[die1]", "[die1]", [](Bot& b) { b.state.dice = {}; }},
    {"NeverSetIsEmptyOrZero", "[dream.name][dream.x]", "0", [](Bot& b) { b.state = {}; }},
    {"CaseCounts", "[Map] [Player.Name]", "[Map] [Player.Name]"},
    {"TwoBlanksMakeAnEmptyWord", "[word1]:[word3]:[word4]:[word5]:[word01]", "hello::friend:[word5]:[word01]"},
    {"StartingWordDropsEmptyWordsAtItsStartOnly", "[startingword1]:[startingword3]", "hello there  friend:friend"},
    {"EmptyMessageHasNoWords", "[word1]", "[word1]", [](Bot& b) { b.state.message = ""; }},

    {"UserVariablesComeFirst", "[vorel.name]", "mine", [](Bot& b) { b.variables.Set("[vorel.name]", "mine"); }},
    {"UserVariableSeesLaterRowsOnly", "[b]", "[a] c", [](Bot& b) {
        b.variables.Set("[a]", "too early"), b.variables.Set("[b]", "[a] [c]"), b.variables.Set("[c]", "c"); }},
    {"UserVariableNeedsNoBrackets", "nine", "9", [](Bot& b) { b.variables.Set("nine", "9"); }},
    {"WordIsExpandedByLaterSteps", "[word1]", "Vo", [](Bot& b) { b.state.message = "[vorel.name]"; }},
    {"MessageIsNotExpandedByEarlierSteps",
     "[message]", "[word1] [time] Here", [](Bot& b) { b.state.message = "[word1] [time] [map]"; }},
    {"MapMayNameThePreviousMap", "[map]", "There", [](Bot& b) { b.state.map = "[previousmap]"; }},
    {"PreviousMapMayNotNameTheMap", "[previousmap]", "[map]", [](Bot& b) { b.state.previousMap = "[map]"; }},
};
// clang-format on
class Expansion : public testing::TestWithParam<ExpansionCase> {};
TEST_P(Expansion, ReplacesInTheOrderOfTheSteps) {
    KnowingBot knowing;
    GetParam().prepare(knowing.bot);
    EXPECT_EQ(knowing.Expand(EventScriptLoaded, GetParam().text), GetParam().expanded);
}
INSTANTIATE_TEST_SUITE_P(Variables, Expansion, testing::ValuesIn(kExpansionCases), kCaseName);

}  // namespace
