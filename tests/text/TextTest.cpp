#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "text/Text.h"

namespace {

using Lines = std::vector<std::string>;

TEST(Case, FollowsTheCodePage) {
    // Latin letters, the block behind them, and the four pairs apart: S and Z with caron, OE, Y with diaeresis.
    EXPECT_EQ(UpperCase("az\xE0\xF6\xF8\xFE\x9A\x9C\x9E\xFF"), "AZ\xC0\xD6\xD8\xDE\x8A\x8C\x8E\x9F");
    EXPECT_EQ(LowerCase("AZ\xC0\xD6\xD8\xDE\x8A\x8C\x8E\x9F"), "az\xE0\xF6\xF8\xFE\x9A\x9C\x9E\xFF");
    // Signs between the letters, and the sharp s, have no pair.
    const std::string alone = "@[`{\xD7\xF7\xDF\x80\x83\xB5";
    EXPECT_EQ(UpperCase(alone), alone);
    EXPECT_EQ(LowerCase(alone), alone);
}

TEST(Utf8, EveryCodeWithACharacterComesBack) {
    for (int code = 0; code < 256; ++code) {
        const std::string text(1, static_cast<char>(code));
        const bool unused = code == 0x81 || code == 0x8D || code == 0x8F || code == 0x90 || code == 0x9D;
        EXPECT_EQ(FromUtf8(ToUtf8(text)), unused ? "?" : text) << code;
    }
    EXPECT_EQ(ToUtf8("\xE9\x80"), "\xC3\xA9\xE2\x82\xAC");
}

TEST(Utf8, WhatTheCodePageLacksBecomesAQuestionMark) {
    EXPECT_EQ(FromUtf8("\xE2\x98\xBA\xF0\x9F\x98\x80.\xC2\x80."), "??.?.");
    // Cut off, a tail without a head, and a slash in more bytes than it needs.
    for (const char* const broken : {"\xE2\x82", "\xC3", "\x80", "\xC0\xAF", "\xE0\x80\xAF", "\xFF"}) {
        EXPECT_EQ(FromUtf8(std::string(broken) + "."), "?.") << broken;
    }
}

TEST(FileLines, EndAtTheLineFeed) {
    const std::pair<std::string, Lines> rows[] = {
        {"", {}}, {"\r\n", {""}}, {"a\nb\n\n", {"a", "b", ""}}, {"a\rb\r\r\nc\r", {"a\rb\r", "c\r"}}};
    for (const auto& [bytes, lines] : rows) EXPECT_EQ(FileLines(bytes), lines) << bytes;
}

TEST(Pieces, AreTakenOnce) {
    EXPECT_EQ(ReplaceAll("aaa", "aa", "a"), "aa");
    EXPECT_EQ(ReplaceAll("abc", "", "x"), "abc");
    EXPECT_EQ(Split(",, , ", ", "), (Lines{",", "", ""}));
    EXPECT_EQ(Trim("  \t a  "), "\t a");
    EXPECT_EQ(Trim("   "), "");
}

}  // namespace
