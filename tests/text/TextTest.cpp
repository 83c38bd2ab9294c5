#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/Cases.h"
#include "text/Text.h"

namespace {

TEST(Case, FollowsTheCodePage) {
    // Latin letters, the block behind them, and the four pairs apart: S and Z with caron, OE, Y with diaeresis.
    EXPECT_EQ(UpperCase("az\xE0\xF6\xF8\xFE\x9A\x9C\x9E\xFF"), "AZ\xC0\xD6\xD8\xDE\x8A\x8C\x8E\x9F");
    EXPECT_EQ(LowerCase("AZ\xC0\xD6\xD8\xDE\x8A\x8C\x8E\x9F"), "az\xE0\xF6\xF8\xFE\x9A\x9C\x9E\xFF");
    // Signs between the letters, and the sharp s, have no pair.
    const std::string alone = "@[`{\xD7\xF7\xDF\x80\x83\xB5";
    EXPECT_EQ(UpperCase(alone), alone);
    EXPECT_EQ(LowerCase(alone), alone);
}

struct Utf8Case {
    const char* name;
    std::string utf8, text;
    std::string back;  ///< in UTF-8 again
};
const Utf8Case kUtf8Cases[] = {
    {"LatinLetterOfTwoBytes", "\xC3\xA9", "\xE9", "\xC3\xA9"},
    {"EuroOfThreeBytes", "\xE2\x82\xAC", "\x80", "\xE2\x82\xAC"},
    {"OutsideTheCodePage", "\xE2\x98\xBA\xF0\x9F\x98\x80.", "??.", "??."},
    {"ControlOfTheHighBlockIsNoCharacterHere", "\xC2\x80", "?", "?"},
    {"CutOffCharacter", "a\xE2\x82", "a?", "a?"},
    {"CutOffCharacterLeavesTheNextOne", "\xC3.", "?.", "?."},
    {"StrayTailByte", "\x80.", "?.", "?."},
    {"LongFormOfASlashIsNoSlash", "\xC0\xAF", "?", "?"},
    {"LongerFormOfASlashIsNoSlash", "\xE0\x80\xAF", "?", "?"},
};
class Utf8 : public testing::TestWithParam<Utf8Case> {};
TEST_P(Utf8, ConvertsBothWays) {
    EXPECT_EQ(FromUtf8(GetParam().utf8), GetParam().text);
    EXPECT_EQ(ToUtf8(GetParam().text), GetParam().back);
}
INSTANTIATE_TEST_SUITE_P(Text, Utf8, testing::ValuesIn(kUtf8Cases), kCaseName);

TEST(Utf8Codes, EveryCodeWithACharacterComesBack) {
    for (int code = 0; code < 256; ++code) {
        const std::string text(1, static_cast<char>(code));
        const bool unused = code == 0x81 || code == 0x8D || code == 0x8F || code == 0x90 || code == 0x9D;
        EXPECT_EQ(FromUtf8(ToUtf8(text)), unused ? "?" : text) << code;
    }
}

struct LinesCase {
    const char* name;
    std::string bytes;
    std::vector<std::string> lines;
};
const LinesCase kLinesCases[] = {
    {"EmptyFileHasNoLines", "", {}},
    {"LineEndAloneIsOneEmptyLine", "\r\n", {""}},
    {"LastLineNeedsNoEnd", "a\r\nb", {"a", "b"}},
    {"LoneLineFeedEndsALineToo", "a\nb\n\n", {"a", "b", ""}},
    {"LoneReturnIsACharacter", "a\rb\r\r\nc\r", {"a\rb\r", "c\r"}},
};
class LinesOfFile : public testing::TestWithParam<LinesCase> {};
TEST_P(LinesOfFile, EndAtTheLineFeed) { EXPECT_EQ(FileLines(GetParam().bytes), GetParam().lines); }
INSTANTIATE_TEST_SUITE_P(Text, LinesOfFile, testing::ValuesIn(kLinesCases), kCaseName);

TEST(Pieces, ReplacingAndSplittingTakeNothingTwice) {
    EXPECT_EQ(ReplaceAll("aaa", "aa", "a"), "aa");
    EXPECT_EQ(ReplaceAll("abc", "", "x"), "abc");
    EXPECT_EQ(Split(",, , ", ", "), (std::vector<std::string>{",", "", ""}));
    EXPECT_EQ(Trim("  \t a  "), "\t a");
    EXPECT_EQ(Trim("   "), "");
}

}  // namespace
