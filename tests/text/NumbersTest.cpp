#include <cmath>
#include <limits>
#include <string>

#include "support/Cases.h"
#include "text/Numbers.h"

namespace {

constexpr double kInfinite = std::numeric_limits<double>::infinity();
const std::string k400Zeros(400, '0');

TEST(StrictNumber, TakesMinusAndDigitsOnly) {
    EXPECT_EQ(NumberOrFault("32767"), 32767);
    EXPECT_EQ(NumberOrFault("-0032768"), -32768);
    for (const char* const text : {"", "-", "+1", " 1", "1 ", "1.0", "1)", "--1", "0x1"}) {
        EXPECT_EQ(FaultOf([&] { NumberOrFault(text); }), FaultKind::TypeMismatch) << text;
    }
    for (const char* const text : {"32768", "-32769", "99999999999999999999"}) {
        EXPECT_EQ(FaultOf([&] { NumberOrFault(text); }), FaultKind::Overflow) << text;
    }
}

TEST(LenientNumber, TakesWhatTheTextBeginsWith) {
    const std::pair<std::string, double> rows[] = {{"12}", 12}, {"   7", 7}, {"1.5.5", 1.5}, {"-.5", -0.5}, {"3.", 3},
                                                   {".", 0},    {"+4", 4},   {"+-4", 0},     {"- 4", 0},    {"1e3", 1},
                                                   {"0x10", 0}, {"inf", 0},  {"", 0},        {"five5", 0},  {"\t5", 0}};
    for (const auto& [text, number] : rows) EXPECT_EQ(LeadingNumber(text), number) << text;
    EXPECT_EQ(LeadingNumber("-1" + k400Zeros), -kInfinite);
    EXPECT_EQ(LeadingNumber("0." + k400Zeros + "1"), 0);
    EXPECT_FALSE(std::signbit(LeadingNumber("-0")));
}

TEST(Rounding, GoesToTheNearestAndAHalfToTheEvenOne) {
    for (const auto& [number, rounded] : {std::pair{0.5, 0}, {1.5, 2}, {2.5, 2}, {-0.5, 0}, {-1.5, -2}, {-2.6, -3}}) {
        EXPECT_EQ(RoundTo16(number), rounded) << number;
    }
    EXPECT_EQ(RoundTo16(-32768.5), -32768);
    for (const double tooFar : {32767.5, -32768.6, kInfinite, std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(FaultOf([&] { RoundTo16(tooFar); }), FaultKind::Overflow) << tooFar;
    }
}

TEST(Calculation, IsCheckedAtEveryStep) {
    EXPECT_EQ(Add16(-32768, 32767), -1);
    EXPECT_EQ(FaultOf([] { Add16(32767, 1); }), FaultKind::Overflow);
    EXPECT_EQ(FaultOf([] { Subtract16(-32768, 1); }), FaultKind::Overflow);
    EXPECT_EQ(FaultOf([] { Multiply16(-32768, -32768); }), FaultKind::Overflow);
}

TEST(FormattedNumber, HasFifteenDigitsAndNoExponent) {
    // clang-format off
    const std::pair<double, std::string> rows[] = {
        {0.1 + 0.2, "0.3"}, {2.0 / 3, "0.666666666666667"}, {999999999999999.9, "1000000000000000"}, {-0.0, "0"},
        {-1234.5, "-1234.5"}, {1e20, "100000000000000000000"}, {-1.25e-7, "-0.000000125"}};
    // clang-format on
    for (const auto& [number, text] : rows) EXPECT_EQ(FormatNumber(number), text);
}

}  // namespace
