#include <gtest/gtest.h>

#include "engine/Script.h"

// How a script's lines are read is played (tests/sessions/script-lines.txt), and held against the slow walker.

TEST(ScriptFile, LosesOnlyTheLastLineEnd) {
    EXPECT_EQ(ScriptTextFromFile("a\n\r\nb\r\n"), "a\r\n\r\nb");
    EXPECT_EQ(ScriptTextFromFile(ScriptTextToFile("a\r\n\r\nb")), "a\r\n\r\nb");
    EXPECT_EQ(ScriptTextToFile("a\r\n"), "a\r\n\r\n");
}
