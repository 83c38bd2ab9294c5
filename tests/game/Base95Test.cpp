#include <gtest/gtest.h>

#include "game/Base95.h"
#include "text/Fault.h"

namespace {

TEST(Base95, DecodesTwoCharactersHighDigitFirst) {
    EXPECT_EQ(DecodeBase95Pair("!#", 1), 98);
    EXPECT_EQ(DecodeBase95Pair(" *", 2), 20);
    EXPECT_EQ(DecodeBase95Pair(" *", 0), 10);
    EXPECT_EQ(DecodeBase95Pair(" \xff", 1), 223);  // codes above 127 are not negative
    EXPECT_EQ(DecodeBase95Pair(" \x1f", 2), -2);   // those below the blank are
    for (const char* const noPair : {"*", " **"}) EXPECT_EQ(DecodeBase95Pair(noPair, 1), 0);
    EXPECT_THROW(DecodeBase95Pair("\xff\xff", 2), RuntimeFault);
}

TEST(Base95, EncodesTheTruncatedQuotientUnlessItHasNoCharacter) {
    std::int16_t one = 0, two = 2;
    for (std::int16_t number = 0; number <= 9024; ++number) {
        ASSERT_EQ(DecodeBase95Pair(EncodeBase95Pair(number, one), 1), number);
    }
    EXPECT_EQ(one, 1);  // for the caller, too
    EXPECT_EQ(EncodeBase95Pair(21, two), " *");
    EXPECT_EQ(EncodeBase95Pair(-1, two), "  ");
    EXPECT_EQ(EncodeBase95Pair(21279, one), "\xff~");
    EXPECT_EQ(EncodeBase95Pair(-32, one), std::string({' ', '\0'}));
    EXPECT_THROW(EncodeBase95Pair(21280, one), RuntimeFault);
    EXPECT_THROW(EncodeBase95Pair(-33, one), RuntimeFault);
}

}  // namespace
