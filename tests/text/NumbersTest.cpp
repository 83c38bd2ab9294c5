#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "support/Cases.h"
#include "text/Numbers.h"

namespace {

constexpr auto kOverflow = FaultKind::Overflow;
constexpr auto kMismatch = FaultKind::TypeMismatch;

struct StrictCase {
    const char* name;
    std::string text;
    std::optional<FaultKind> fault;
    std::int16_t number = 0;
};
const StrictCase kStrictCases[] = {
    {"LargestNumber", "32767", {}, 32767},
    {"SmallestNumber", "-32768", {}, -32768},
    {"LeadingZerosCountForNothing", "000000000007", {}, 7},
    {"OneTooManyOverflows", "32768", kOverflow},
    {"NoIntHoldsItAndStillOverflows", "99999999999999999999", kOverflow},
    {"EmptyIsNoNumber", "", kMismatch},
    {"SignAloneIsNoNumber", "-", kMismatch},
    {"PlusIsNotTaken", "+1", kMismatch},
    {"BlankIsNotSkipped", " 1", kMismatch},
    {"PointIsNotTaken", "1.0", kMismatch},
    {"NothingMayFollow", "1)", kMismatch},
};
class StrictNumber : public testing::TestWithParam<StrictCase> {};
TEST_P(StrictNumber, TakesMinusAndDigitsOnly) {
    std::int16_t number = 0;
    EXPECT_EQ(FaultOf([&] { number = NumberOrFault(GetParam().text); }), GetParam().fault);
    EXPECT_EQ(number, GetParam().number);
}
INSTANTIATE_TEST_SUITE_P(Numbers, StrictNumber, testing::ValuesIn(kStrictCases), kCaseName);

struct LenientCase {
    const char* name;
    std::string text;
    double number;
};
const LenientCase kLenientCases[] = {
    {"StopsAtTheFirstStranger", "12}", 12},
    {"SkipsLeadingBlanks", "   7", 7},
    {"OnePointOnly", "1.5.5", 1.5},
    {"PointMayComeFirst", "-.5", -0.5},
    {"PointMayComeLast", "3.", 3},
    {"PointAloneIsZero", ".", 0},
    {"PlusIsTaken", "+4", 4},
    {"TwoSignsAreNoNumber", "+-4", 0},
    {"KnowsNoExponent", "1e3", 1},
    {"KnowsNoHexadecimal", "0x10", 0},
    {"KnowsNoInfinity", "inf", 0},
    {"NoNumberIsZero", "five", 0},
    {"TooManyDigitsAreInfinite", std::string(400, '9'), std::numeric_limits<double>::infinity()},
    {"TooSmallIsZero", "0." + std::string(400, '0') + "1", 0},
};
class LenientNumber : public testing::TestWithParam<LenientCase> {};
TEST_P(LenientNumber, TakesWhatTheTextBeginsWith) { EXPECT_EQ(LeadingNumber(GetParam().text), GetParam().number); }
INSTANTIATE_TEST_SUITE_P(Numbers, LenientNumber, testing::ValuesIn(kLenientCases), kCaseName);

TEST(RoundTo16, GoesToTheNearestAndAHalfToTheEvenOne) {
    for (const auto& [number, rounded] : {std::pair{0.5, 0}, {1.5, 2}, {2.5, 2}, {-0.5, 0}, {-1.5, -2}, {-2.5, -2}}) {
        EXPECT_EQ(RoundTo16(number), rounded) << number;
    }
    EXPECT_EQ(RoundTo16(32767.4), 32767);
    EXPECT_EQ(RoundTo16(-32768.5), -32768);
    for (const double tooFar : {32767.5, -32768.6, 1e300, std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(FaultOf([&] { RoundTo16(tooFar); }), kOverflow) << tooFar;
    }
}

TEST(To16, EveryStepOfACalculationIsChecked) {
    EXPECT_EQ(Add16(-32768, 32767), -1);
    EXPECT_EQ(FaultOf([] { Add16(32767, 1); }), kOverflow);
    EXPECT_EQ(FaultOf([] { Subtract16(-32768, 1); }), kOverflow);
    EXPECT_EQ(FaultOf([] { Multiply16(-32768, -32768); }), kOverflow);
}

struct FormatCase {
    const char* name;
    double number;
    std::string text;
};
const FormatCase kFormatCases[] = {
    {"FifteenDigitsHideBinaryRest", 0.1 + 0.2, "0.3"},
    {"FifteenDigitsAreRounded", 2.0 / 3, "0.666666666666667"},
    {"RoundingMayCarryThrough", 999999999999999.9, "1000000000000000"},
    {"NeverMinusZero", -0.0, "0"},
    {"NoTrailingZeros", -1.500, "-1.5"},
    {"LargeWithoutExponent", 1e20, "100000000000000000000"},
    {"SmallWithoutExponent", -1.25e-7, "-0.000000125"},
    {"PointBehindFirstDigit", 1234.5, "1234.5"},
};
class FormattedNumber : public testing::TestWithParam<FormatCase> {};
TEST_P(FormattedNumber, IsWhatTheReadersRead) {
    EXPECT_EQ(FormatNumber(GetParam().number), GetParam().text);
    EXPECT_NEAR(LeadingNumber(GetParam().text), GetParam().number, 1e-14 * std::abs(GetParam().number));
}
INSTANTIATE_TEST_SUITE_P(Numbers, FormattedNumber, testing::ValuesIn(kFormatCases), kCaseName);

}  // namespace
