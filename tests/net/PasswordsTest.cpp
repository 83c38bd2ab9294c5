#include <gtest/gtest.h>

#include "net/Passwords.h"
#include "support/RehearsalBot.h"

namespace {

TEST(Passwords, AreMaskedWhereverAndHoweverTheyAreWritten) {
    RehearsalBot rehearsal;
    EXPECT_EQ(WithoutPasswords(rehearsal.bot, "none known"), "none known");
    rehearsal.bot.characterPassword = "caf\xE9";
    rehearsal.bot.state.password = "caf\xE9|noir";
    for (const auto& [text, masked] : {std::pair{"caf\xE9|noir", "********"},
                                       {"\"it's caf\xE9 noir!", "\"it's ********!"},
                                       {"caf\xE9 caf\xE9|noi", "******** ********|noi"},
                                       {"at caf\xC3\xA9 noir, in UTF-8", "at ********, in UTF-8"},
                                       {"Caf\xE9 cafe", "Caf\xE9 cafe"}}) {
        EXPECT_EQ(WithoutPasswords(rehearsal.bot, text), masked);
    }
    for (const auto& [line, masked] : {std::pair{"connect Bot pw", "connect Bot ********"},
                                       {"\"\"connect Bot pw of mine", "\"\"connect Bot ********"},
                                       {"`:CONNECT Bot pw", "`:CONNECT Bot ********"},
                                       {"connect Bot", "connect Bot"},
                                       {"wh Ann connect me too", "wh Ann connect me too"}}) {
        EXPECT_EQ(WithoutPassword(line), masked);
    }
}

TEST(Passwords, AreKnownFromTheCharacterFileBesideWhatIsTyped) {
    RehearsalBot rehearsal;
    rehearsal.files.contents["bot.ini"] = "Name=Bot\nPASSWORD=s3cr3t\n";
    rehearsal.bot.profile.characterPath = "bot.ini";
    rehearsal.rehearsal.Play(ParseSession("connect\ntype `connect Other pw-2\n"));
    EXPECT_EQ(WithoutPasswords(rehearsal.bot, "s3cr3t and pw-2"), "******** and ********");
}

// A recording has stars where the run had a password.
TEST(Passwords, OfARecordingAreMetByTheRealOnes) {
    RehearsalBot rehearsal;
    rehearsal.bot.characterPassword = "s3cr3t";
    rehearsal.rehearsal.Play(
        ParseSession("type s3cr3t, s3cr3t\nexpect \"********, ********\n"
                     "type s3cr3t\nexpect \"other\ntype `connect Bot a\nexpect connect Bot b\n"));
    EXPECT_EQ(rehearsal.rehearsal.FailedExpectations(), 2);
}

}  // namespace
