#include <gmock/gmock.h>

#include "net/ServerLines.h"
#include "support/Cases.h"
#include "support/RehearsalBot.h"

// What each line raises and shows is played: tests/sessions/protocol.txt.

namespace {

std::optional<FaultKind> FaultAt(std::string_view line) {
    RehearsalBot rehearsal;
    rehearsal.bot.state.vorel.looks.colors = "0123456789";
    return FaultOf([&] { ParseServerLine(rehearsal.bot, line); });
}

TEST(ServerLines, AreReadAtTheirLeastLengthAndFaultBelowAndWhereTheyCannotBeRead) {
    // clang-format off
    const std::string_view least[] = {
        "/0123456789 * \" # ( $", "<0123456789 * & #", "7 ! \" # $", "]-#A0123456789abc", "]f9876543210xyz", "]s * %",
        "]t * %", "]va * %", "]%0", "({S} Ann shouts: ", "([%] Ann has given  a cookie!", "(You say, \"",
        "(* Player  is not on-line at all.", "((You enter the dream of )"};
    // clang-format on
    for (const std::string_view line : least) {
        EXPECT_EQ(FaultAt(line), std::nullopt) << line;
        EXPECT_EQ(FaultAt(line.substr(0, line.size() - 1)), FaultKind::InvalidProcedureCall) << line;
    }
    for (const char* const line :
         {"<0123456789\xff\xff & #", "([*] Ann rolls 32768d6 & gets 7.", "(* 32768 players in the dream of Vale."}) {
        EXPECT_EQ(FaultAt(line), FaultKind::Overflow) << line;
    }
    for (const char* const line : {"([ Ann whispered, \"hi\" to you. ]", "([ Ann whispers, \" to you. ]",
                                   "([ You whisper to Ann. ]", "(* Furcadia Standard Time: 7:05"}) {
        EXPECT_NE(FaultAt(line), std::nullopt) << line;
    }
}

TEST(ServerLines, AVisitorNamedSeveralTimesStaysOnceForEachPair) {
    RehearsalBot rehearsal;
    rehearsal.SetScript({"(0:20) came,", "(5:2) {+[player]}", "(0:21) stayed,", "(5:2) {=[player]}", "(0:22) left,",
                         "(5:2) {-[player]}"});
    const auto hear = [&](const std::string& list) {
        ParseServerLine(rehearsal.bot, "(* Current players: " + list);
        auto told = rehearsal.TakeTold();
        std::erase_if(told, [](const std::string& line) { return line.starts_with("console * "); });
        return ReplaceAll(Join(told, " "), "console ", "");
    };
    EXPECT_EQ(hear("Ann, Bea, Ann"), "+Ann +Bea +Ann");
    EXPECT_EQ(hear("Cleo, Ann, Dan, Cleo, Ann"), "=Ann =Ann -Bea =Ann =Ann +Cleo +Dan +Cleo");
    const std::string many = ReplaceAll(std::string(16000, ','), ",", "Zed, ") + "Zed";
    rehearsal.bot.script.reset();
    hear(many);
    EXPECT_EQ(hear(many), "The list of visitors names somebody so often that not every event of it is raised.");
}

TEST(ServerLines, StatusNamesProductAndVersionInAnyCase) {
    RehearsalBot rehearsal;
    constexpr char kAnswer[] = "sent wh Ann .* \\[Press F8 now\\] \\[Tandry Vorel [0-9]+[.][0-9]+[.][0-9]+\\]";
    for (const std::string word : {"BOTSTAT", "Tandry Vorel"}) {
        ParseServerLine(rehearsal.bot, "([ Ann whispers, \"" + word + "\" to you. ]");
        EXPECT_THAT(rehearsal.TakeTold().front(), testing::MatchesRegex(kAnswer));
    }
}

TEST(ServerLines, WhatArrivesTogetherWithTheBootIsNotShown) {
    RehearsalBot rehearsal;
    rehearsal.session.OnServerData("(You have been booted. Bye\n(Ann: hi\n");
    EXPECT_FALSE(rehearsal.host.IsServerConnected());
    EXPECT_TRUE(rehearsal.told.empty());
}

}  // namespace
