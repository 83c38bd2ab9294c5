#include <gtest/gtest.h>

#include "rehearsal/WrittenSession.h"

TEST(WrittenSession, WhatCannotBeReadIsNamedWithItsLine) {
    const auto errorOf = [](std::string_view text) { return ParseSession(text).error.value_or(""); };
    EXPECT_EQ(errorOf("connect\n\nConnect"), "line 3: there is no instruction \"Connect\"");
    EXPECT_EQ(errorOf("tick x"), "line 1: \"tick\" wants a whole number, not \"x\"");
    for (const char* wrong : {"tick -1", "step 1.5", "event", "event 32768", " connect", "tick 99999999999"}) {
        EXPECT_NE(errorOf(wrong), "") << wrong;
    }
}
