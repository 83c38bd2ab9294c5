#include <gtest/gtest.h>

#include "net/Passwords.h"
#include "support/RehearsalBot.h"

// How recordings are held against the real ones is played: tests/sessions/passwords.txt.

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

}  // namespace
