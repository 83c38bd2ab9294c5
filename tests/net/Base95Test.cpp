#include <gtest/gtest.h>

#include "net/Base95.h"
#include "text/Fault.h"

namespace {

TEST(Base95, DecodesTwoCharactersHighDigitFirst) {
    EXPECT_EQ(DecodeBase95Pair("!#", 1), 98);
    EXPECT_EQ(DecodeBase95Pair(" *", 2), 20);
    EXPECT_EQ(DecodeBase95Pair(" *", 0), 10);
    EXPECT_EQ(DecodeBase95Pair(" \xff", 1), 223);  // codes above 127 are not negative
    EXPECT_EQ(DecodeBase95Pair(" \x1f", 2), -2);   // those below the blank are
    EXPECT_EQ(DecodeBase95Pair("*", 1), 0);
    EXPECT_EQ(DecodeBase95Pair(" **", 1), 0);
    EXPECT_THROW(DecodeBase95Pair("\xff\xff", 2), RuntimeFault);
}

TEST(Base95, EveryPrintableNumberComesBack) {
    for (std::int16_t number = 0; number <= 9024; ++number) {
        std::int16_t divisor = 1;
        ASSERT_EQ(DecodeBase95Pair(EncodeBase95Pair(number, divisor), 1), number);
    }
}

TEST(Base95, EncodesTheTruncatedQuotient) {
    std::int16_t divisor = 0;
    EXPECT_EQ(EncodeBase95Pair(98, divisor), "!#");
    EXPECT_EQ(divisor, 1);  // for the caller, too
    divisor = 2;
    EXPECT_EQ(EncodeBase95Pair(21, divisor), " *");
    EXPECT_EQ(EncodeBase95Pair(-1, divisor), "  ");
}

TEST(Base95, WhatHasNoCharacterIsAFault) {
    std::int16_t divisor = 1;
    EXPECT_EQ(EncodeBase95Pair(21279, divisor), "\xff~");
    EXPECT_THROW(EncodeBase95Pair(21280, divisor), RuntimeFault);
    EXPECT_EQ(EncodeBase95Pair(-32, divisor), std::string({' ', '\0'}));
    EXPECT_THROW(EncodeBase95Pair(-33, divisor), RuntimeFault);
}

}  // namespace
