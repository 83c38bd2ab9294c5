#include <gtest/gtest.h>

#include "engine/Events.h"
#include "net/modSend.h"
#include "support/Cases.h"
#include "support/RehearsalBot.h"

namespace {

using Told = std::vector<std::string>;

struct CommandCase {
    std::string name;
    void (*send)(Bot&);
    Told told;
};

void SendMoves(Bot& bot, std::string moves) { modSend::SendMoves(bot, moves); }

/// Variables that each need a pass of their own: [3] is "[2]", [2] is "[1]", [1] is "done".
void SetNestedVariables(Bot& bot) {
    bot.variables.Set("[1]", "done");
    bot.variables.Set("[2]", "[1]");
    bot.variables.Set("[3]", "[2]");
}

// clang-format off
const CommandCase kCommands[] = {
    {"LineIsExpandedOnce",            [](Bot& b) { SetNestedVariables(b); modSend::SendLine(b, "[3]"); }, {"sent [2]"}},
    {"CommandsOnLinesExpandTwice",    [](Bot& b) { SetNestedVariables(b); modSend::SendOnln(b, "[3]"); }, {"sent onln [1]"}},
    {"SpokenCommandsExpandThrice",    [](Bot& b) { SetNestedVariables(b); modSend::SendEmit(b, "[3]"); }, {"sent \"emit done"}},
    {"UnshareLeavesOutItsOwnPass",    [](Bot& b) { SetNestedVariables(b); modSend::SendUnshare(b, "[3]"); }, {"sent \"unshare [1]"}},
    {"DescSignatureBehind",           [](Bot& b) { modSend::SendDesc(b, "Hi"); }, {"sent desc Hi [Tandry Vorel]"}},
    {"DescSignatureFirst",            [](Bot& b) { b.profile.signatureFirst = true; modSend::SendDesc(b, ""); },
                                      {"sent desc [Tandry Vorel] "}},
    {"WhisperBarsTheExpandedName",    [](Bot& b) { b.variables.Set("[n]", "A B"); modSend::SendWhisper(b, "[n]", "[n]"); },
                                      {"sent wh A|B A B"}},
    {"MovesLetters",                  [](Bot& b) { SendMoves(b, "bdefglSsw"); },
                                      {"sent breath", "sent dragon", "sent eagle", "sent flame", "sent get", "sent lie",
                                       "sent stand", "sent sit", "sent wings"}},
    {"MovesUnknownAsThemselves",      [](Bot& b) { SendMoves(b, "xB"); }, {"sent x", "sent B"}},
    {"MovesEmptyOnceExpanded",        [](Bot& b) { b.variables.Set("[m]", ""); SendMoves(b, "[m]"); }, {}},
    {"DroppedWhileNotConnected",      [](Bot& b) { b.host.Disconnect(); modSend::SendSpeech(b, "hi"); }, {}},
};
// clang-format on

class OutgoingCommand : public testing::TestWithParam<CommandCase> {};

TEST_P(OutgoingCommand, WritesExactly) {
    RehearsalBot bot;
    GetParam().send(bot.bot);
    EXPECT_EQ(bot.told, GetParam().told);
}

INSTANTIATE_TEST_SUITE_P(modSend, OutgoingCommand, testing::ValuesIn(kCommands), kCaseName);

TEST(modSend, MovesAreWrittenBackExpandedAndNumbersAreExpandedToo) {
    RehearsalBot bot;
    bot.bot.variables.Set("[way]", "97");
    std::string moves = "[way]3";
    modSend::SendMoves(bot.bot, moves);
    EXPECT_EQ(moves, "973");
    bot.TakeTold();
    bot.bot.variables.Set("20", "twenty");
    EXPECT_THROW(modSend::SendLookAt(bot.bot, 20, 5), RuntimeFault);
    modSend::SendEntryMusic(bot.bot, 20);
    EXPECT_EQ(bot.told, Told{"sent \"entrymusic twenty"});
}

TEST(modSend, NoticesReachTheClientExceptAboutTheConnection) {
    RehearsalBot bot;
    bot.host.SetClientConnected(true);
    bot.bot.state.vorel.looks = {"0123456789", "g", "s", "m"};
    bot.bot.currentEvent = EventSpeech;
    modSend::ShowNotice(bot.bot, "hi");
    EXPECT_EQ(bot.TakeTold(), (Told{"console hi", "client ]-#A0123456789gsm", "client (Tandry Vorel: hi"}));
    for (const GameEvent event : {EventConnected, EventDisconnected}) {
        bot.bot.currentEvent = event;
        modSend::ShowNotice(bot.bot, "hi");
        EXPECT_EQ(bot.TakeTold(), Told{"console hi"});
    }
}

}  // namespace
