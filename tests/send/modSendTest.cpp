#include <gtest/gtest.h>

#include "send/modSend.h"
#include "support/Cases.h"
#include "support/RehearsalBot.h"

// The words of each command, and how often it is expanded, are played: tests/sessions, effects.txt and variables.txt.

namespace {

TEST(modSend, MovesAreWrittenBackExpandedAndNumbersAreExpandedToo) {
    RehearsalBot rehearsal;
    rehearsal.bot.variables.Set("[way]", "97");
    std::string moves = "[way]3";
    modSend::SendMoves(rehearsal.bot, moves);
    EXPECT_EQ(moves, "973");
    rehearsal.TakeTold();
    rehearsal.bot.variables.Set("20", "twenty");
    EXPECT_EQ(FaultOf([&] { modSend::SendLookAt(rehearsal.bot, 20, 5); }), FaultKind::TypeMismatch);
    modSend::SendEntryMusic(rehearsal.bot, 20);
    EXPECT_EQ(rehearsal.told, std::vector<std::string>{"sent \"entrymusic twenty"});
}

}  // namespace
