#include <string>

#include "bot/Variables.h"
#include "engine/modScript.h"
#include "support/Cases.h"
#include "support/RehearsalBot.h"
#include "text/Numbers.h"

// What effects do is played: tests/sessions, effects.txt, variables.txt and data-files.txt.

namespace {

class ActingBot : public RehearsalBot {
  public:
    void Act(std::int16_t number, const std::string& arguments) {
        std::string line = "(5:0) " + arguments;
        modScript::ExecuteEffect(bot, line, Add16(number, 1));
    }
};

TEST(Effects, FaultWhereTheyCannotGoOnAndChangeNothing) {
    const std::string huge = "{1" + std::string(308, '0') + "}";
    const struct {
        std::int16_t number;
        std::string arguments;
        FaultKind fault;
    } cases[] = {
        {42, "} x {", FaultKind::InvalidProcedureCall}, {53, "{40000}{1}", FaultKind::Overflow},
        {86, "{32767}{1}", FaultKind::Overflow},        {71, "{n} " + huge, FaultKind::Overflow},
        {72, "{n} {x}", FaultKind::DivisionByZero},     {76, "{line} {section} {full}", FaultKind::PathOrFileAccess},
    };
    ActingBot acting;
    acting.bot.variables.Set("[n]", "7");
    acting.bot.profile.maps = acting.bot.state.map = "Home";
    acting.files.unwritable = "folder/full.ini";
    for (const auto& [number, arguments, fault] : cases) {
        EXPECT_EQ(FaultOf([&] { acting.Act(number, arguments); }), fault) << number;
    }
    EXPECT_EQ(ExpandVariables(acting.bot, "[n]"), "7");
    EXPECT_TRUE(acting.told.empty() && acting.files.contents.empty());
}

TEST(Effects, LeaveAloneWhatTheBotIsMadeOf) {
    ActingBot acting;
    acting.bot.profile.path = "folder/bot.ini";
    acting.bot.profile.scriptPath = "CODE.ini";
    acting.files.contents["folder/mac.ini"] = "Name=a\rPassword=b";
    for (const char* const name : {"bot", "code", "mac"}) acting.Act(76, "{x} {y} {" + std::string(name) + "}");
    EXPECT_EQ(acting.files.contents.size(), 1u);
    EXPECT_EQ(acting.told.size(), 3u) << "the console says so";
}

TEST(Effects, WalkToEvenSquaresOnly) {
    ActingBot acting;
    for (const auto& [typed, x] :
         {std::pair{"{13} {20}", 14}, {"{12} {20}", 12}, {"{-3} {20}", -2}, {"{2.5}{20}", 2}}) {
        acting.Act(86, typed);
        EXPECT_EQ(acting.bot.walk.target, (Square{static_cast<std::int16_t>(x), 20})) << typed;
    }
}

}  // namespace
