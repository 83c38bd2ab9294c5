#include <gtest/gtest.h>

#include "game/Compare.h"

// What is odd about the conditions themselves is played (tests/sessions/conditions.txt), and all of them are held
// against plain ones; see Judge.h.

TEST(Pattern, MatchesTheWholeTextOrNothing) {
    EXPECT_TRUE(Like("ab", "*a*b*"));
    EXPECT_TRUE(Like("aXbXc", "*X?"));
    EXPECT_TRUE(Like("b-7", "[!x-z][-]#"));
    EXPECT_FALSE(Like("a", ""));
    EXPECT_FALSE(Like("", "[a]"));
    // A list that is never closed, or holds a range the wrong way round, matches nothing.
    for (const char* const pattern : {"[a", "*[", "*[c-a]*", "*[!c-a]*"}) EXPECT_FALSE(Like("[a", pattern)) << pattern;
}
