#include <gtest/gtest.h>

#include "rehearsal/Rehearsal.h"
#include "support/Cases.h"
#include "support/RehearsalBot.h"

namespace {

using Told = std::vector<std::string>;

struct SessionCase {
    std::string name, session;
    Told told;
};

// clang-format off
const SessionCase kSessions[] = {
    {"BlankLinesAndRemarksAreSkipped", "\n# type no\r\ntype a\r\n",           {"sent \"a"}},
    {"TextIsNotTrimmed",               "type  a ",                           {"sent \" a "}},
    {"ExpectClaimsTheOldest",          "type a\ntype b\nexpect \"a\nexpect \"b\nexpect-nothing", {"sent \"a", "sent \"b"}},
    {"ExpectFails",                    "type a\n\nexpect \"b",               {"sent \"a", "failed 3: expected \"\"b\", but \"\"a\" was sent"}},
    {"ExpectNothingFails",             "type a\nexpect-nothing",             {"sent \"a", "failed 2: expected nothing more, but \"\"a\" was sent"}},
    {"FailuresKeepThePasswordToThemselves", "type `connect Me secret\nexpect x",
                                       {"sent connect Me secret", "failed 2: expected \"x\", but \"connect Me ********\" was sent"}},
    {"RecordedLoginsHaveNoPassword",   "type `connect Me secret\nexpect connect Me ********", {"sent connect Me secret"}},
    {"ServerLinesNeedTheConnection",   "close\nserver (Ann: hi\nclose",       {"console 3"}},
    {"LinkedClientSeesServerLines",    "link\nserver (Ann: hi\nunlink\nserver (Bea: hi", {"console Ann: hi", "client (Ann: hi", "console Bea: hi"}},
    {"TicksRunTheScriptTimer",         "tick\ntick 30",                      {"console 46 of 15", "console 46 of 15"}},
    {"TicksBeyond16Bits",              "tick 0\ntick 36001\nevent 50",       Told(2400, "console 46 of 15")},
    {"StepsNeedTheMovementTimer",      "step 5\nevent 50\nevent 20\nstep 5", {"sent m 1", "sent m 9", "sent m 7", "sent m 3"}},
    {"ShowExpands",                    "show [hour]:[minute] [date]",        {"show 13:5 2/1/2003"}},
};
// clang-format on

class PlayedText : public testing::TestWithParam<SessionCase> {};

TEST_P(PlayedText, Tells) {
    RehearsalBot bot;
    bot.SetScript({"(0:2) out,", "(5:2) {3}", "(0:7) every {15} seconds,", "(5:2) {46 of 15}", "(0:19) a dream,",
                   "(5:86) walk to {4} {4}"});
    bot.host.FreezeClock({2003, 2, 1, 13, 5, 9});
    const WrittenSession session = ParseSession(GetParam().session);
    EXPECT_EQ(session.error, std::nullopt);
    bot.rehearsal.Play(session);
    EXPECT_EQ(bot.told, GetParam().told);
}

INSTANTIATE_TEST_SUITE_P(Rehearsal, PlayedText, testing::ValuesIn(kSessions), kCaseName);

TEST(WrittenSession, WhatCannotBeReadIsNamedWithItsLine) {
    const auto errorOf = [](std::string_view text) { return ParseSession(text).error.value_or(""); };
    EXPECT_EQ(errorOf("connect\n\nConnect"), "line 3: there is no instruction \"Connect\"");
    EXPECT_EQ(errorOf("tick x"), "line 1: \"tick\" wants a whole number, not \"x\"");
    for (const char* wrong : {"tick -1", "step 1.5", "event", "event 32768", " connect", "tick 99999999999"}) {
        EXPECT_NE(errorOf(wrong), "") << wrong;
    }
}

}  // namespace
