#include <gtest/gtest.h>

#include "engine/Judge.h"

TEST(Walkers, AgreeOnEveryScript) {
    Tally tally;
    for (unsigned seed = 1; seed <= 6000; ++seed) ASSERT_EQ(JudgeSeed(seed, tally), "");
    // The comparison is worth something only while scripts do things, and some of them fault.
    EXPECT_GT(tally.told, 2000);
    EXPECT_GT(tally.faults, 500);
}
