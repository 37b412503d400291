// The shared helpers of the core: reading numbers out of text, number
// text and patterns, the 16-bit stores, and the small text helpers.

#include "core/Numbers.h"
#include "core/Text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <ostream>
#include <string>

namespace vistrel {
namespace {

constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
constexpr double Inf = std::numeric_limits<double>::infinity();

// ---- Val and IsNumeric ----

struct ValCase {
    const char* text;
    double value;
};

TEST(Val, TakesTheLongestLeadingNumberElseZero)
{
    const ValCase cases[] = {
        {"  -1.25abc", -1.25},
        {".5", 0.5},
        {"-.5", -0.5},
        {"+3", 3},
        {"abc", 0},
        {"", 0},
        {"    ", 0},
        {"-", 0},
        {".", 0},
        {"--5", 0},
        {"+-5", 0},
        {"1e3", 1000},
        {"1E+2", 100},
        {"2.5e-1x", 0.25},
        {"1e", 1},    // an exponent without digits is not part of the number
        {"1e+", 1},
        {"3-4", 3},   // the sign of a range doesn't continue the number
        {"1.2.3", 1.2},
        {"12 34", 12},
        {"35)", 35},
        {"0.00", 0},
        {"-0.25", -0.25},
        {"99999999999999999999", 1e20},
        {"1e308", 1e308},
        {"1e999", 0},  // too large for a Double: read as 0
        {"-1e999", 0},
    };
    for (const ValCase& c : cases) {
        SCOPED_TRACE(std::string("Val(\"") + c.text + "\")");
        EXPECT_DOUBLE_EQ(Val(c.text), c.value);
    }
}

TEST(IsNumeric, WholeTextMustBeOneNumber)
{
    const struct {
        const char* text;
        bool numeric;
    } cases[] = {
        {" 5 ", true}, {"1.", true}, {".5", true}, {"-2.25", true}, {"+7", true}, {"1e5", true},
        {"1E-3", true}, {".", false}, {"", false}, {"   ", false}, {"-", false}, {"1,5", false},
        {"abc", false}, {"1e", false}, {"35)", false}, {"1 2", false}, {"--1", false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string("IsNumeric(\"") + c.text + "\")");
        EXPECT_EQ(IsNumeric(c.text), c.numeric);
    }
}

// ---- Plain number text ----

TEST(Str, PlainNumberTextWithSignBlank)
{
    const struct {
        double number;
        const char* text;
    } cases[] = {
        {0.5, " .5"},
        {-0.5, "-.5"},
        {0, " 0"},
        {-0.0, " 0"},
        {12.5, " 12.5"},
        {12, " 12"},
        {-3, "-3"},
        {0.1 + 0.2, " .3"},  // fifteen significant digits
        {2 / 3.0, " .666666666666667"},
        {-2 / 3.0, "-.666666666666667"},
        {123456789012345.0, " 123456789012345"},
        {1e14, " 100000000000000"},
        {1e15 - 1, " 999999999999999"},
        {1e15, " 1E+15"},
        {-1.5e20, "-1.5E+20"},
        {0.0001, " .0001"},
        {0.00001, " 1E-05"},
        {32000, " 32000"},
        {123456789012345678.0, " 1.23456789012346E+17"},
        {0.1234567890123456, " .123456789012346"},
        {999999999999999.9, " 1E+15"},
        {-0.000123, "-.000123"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << "Str(" << c.number << ")");
        EXPECT_EQ(Str(c.number), c.text);
        const std::string trimmed = c.text[0] == ' ' ? std::string(c.text + 1) : std::string(c.text);
        EXPECT_EQ(StrTrimmed(c.number), trimmed);
    }
}

// ---- Number patterns ----

struct FormatCase {
    double number;
    const char* pattern;
    const char* text;
};

std::ostream& operator<<(std::ostream& os, const FormatCase& c)
{
    return os << "Format(" << c.number << ", \"" << c.pattern << "\") -> \"" << c.text << "\"";
}

class FormatTest : public testing::TestWithParam<FormatCase> {};

TEST_P(FormatTest, GivesTheStationsText)
{
    const FormatCase& c = GetParam();
    EXPECT_EQ(Format(c.number, c.pattern), c.text);
}

INSTANTIATE_TEST_SUITE_P(TwoDecimals, FormatTest,
    testing::Values(FormatCase{0, "0.00", "0.00"}, FormatCase{0.5, "0.00", "0.50"},
        FormatCase{-1.125, "0.00", "-1.13"}, FormatCase{12.25, "0.00", "12.25"},
        FormatCase{1.005, "0.00", "1.01"},  // 1.00499999... as a double, 1.005 as a decimal
        FormatCase{2.675, "0.00", "2.68"}, FormatCase{0.125, "0.00", "0.13"},
        FormatCase{-0.005, "0.00", "-0.01"}, FormatCase{0.285, "0.00", "0.29"},
        FormatCase{9.995, "0.00", "10.00"}, FormatCase{-9.995, "0.00", "-10.00"},
        FormatCase{-0.0, "0.00", "0.00"}, FormatCase{0.1 + 0.2, "0.00", "0.30"},
        FormatCase{1e-20, "0.00", "0.00"}, FormatCase{0.045, "0.00", "0.05"},
        FormatCase{1234567.125, "0.00", "1234567.13"}, FormatCase{123456789.125, "0.00", "123456789.13"},
        FormatCase{1e20, "0.00", "100000000000000000000.00"}, FormatCase{6.25 - 0.25 * 49, "0.00", "-6.00"}));

INSTANTIATE_TEST_SUITE_P(NoDigitBeforePoint, FormatTest,
    testing::Values(FormatCase{0, "##.00", ".00"}, FormatCase{0.5, "##.00", ".50"},
        FormatCase{-0.5, "##.00", "-.50"}, FormatCase{-1.125, "##.00", "-1.13"},
        FormatCase{12.25, "##.00", "12.25"}, FormatCase{0.995, "##.00", "1.00"},
        FormatCase{-0.125, "##.00", "-.13"}, FormatCase{100.5, "##.00", "100.50"},
        FormatCase{0.75, "#.00", ".75"}, FormatCase{3, "#.00", "3.00"}));

INSTANTIATE_TEST_SUITE_P(OptionalUnitDigit, FormatTest,
    testing::Values(FormatCase{0, "#0.00", "0.00"}, FormatCase{0.5, "#0.00", "0.50"},
        FormatCase{-0.25, "#0.00", "-0.25"}, FormatCase{-12.375, "#0.00", "-12.38"},
        FormatCase{12.5, "#0.00", "12.50"}));

INSTANTIATE_TEST_SUITE_P(WholeNumbers, FormatTest,
    testing::Values(FormatCase{0, "##0", "0"}, FormatCase{12.5, "##0", "13"}, FormatCase{2.5, "##0", "3"},
        FormatCase{-2.5, "##0", "-3"}, FormatCase{1234, "##0", "1234"}, FormatCase{99.5, "##0", "100"},
        FormatCase{5, "#00", "05"}, FormatCase{0, "#00", "00"}, FormatCase{5, "000", "005"},
        FormatCase{-5, "000", "-005"}, FormatCase{12345, "000", "12345"}, FormatCase{0, "000", "000"},
        FormatCase{90.4, "000", "090"}, FormatCase{179.5, "000", "180"},
        FormatCase{12, "0000", "0012"}, FormatCase{42, "00000", "00042"}, FormatCase{32767, "00000", "32767"},
        FormatCase{-42, "00000", "-00042"}, FormatCase{14295, "###0", "14295"}, FormatCase{0, "###0", "0"},
        FormatCase{15, "#000", "015"}, FormatCase{0, "###", ""}, FormatCase{0.4, "###", ""},
        FormatCase{0.5, "###", "1"}, FormatCase{7, "###", "7"}, FormatCase{7, "00", "07"},
        FormatCase{123, "00", "123"}, FormatCase{0.5, "##0", "1"}, FormatCase{-0.5, "##0", "-1"},
        FormatCase{1.5, "000", "002"}, FormatCase{2.5, "000", "003"}));

INSTANTIATE_TEST_SUITE_P(Literals, FormatTest,
    testing::Values(FormatCase{12, " 000000", " 000012"}, FormatCase{0, " 000000", " 000000"},
        FormatCase{1234567, " 000000", " 1234567"}));

// ---- Stores into whole numbers ----

TEST(ToInteger, RoundsHalfToEvenAndRefusesWhatDoesNotFit)
{
    const struct {
        double number;
        std::optional<std::int16_t> stored;
    } cases[] = {
        {2.5, 2}, {3.5, 4}, {-2.5, -2}, {-3.5, -4}, {0.5, 0}, {1.5, 2}, {-0.5, 0}, {2.4999, 2},
        {2.6, 3}, {32767.4, 32767}, {32767.5, std::nullopt}, {32768, std::nullopt},
        {-32768.5, -32768}, {-32768.6, std::nullopt}, {-40000, std::nullopt}, {NaN, std::nullopt},
        {Inf, std::nullopt}, {-Inf, std::nullopt},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << "ToInteger(" << c.number << ")");
        EXPECT_EQ(ToInteger(c.number), c.stored);
    }
    EXPECT_EQ(ToIntegerOr(40000, 7), 7);
    EXPECT_EQ(ToIntegerOr(6.5, 7), 6);
}

TEST(ToLong, RoundsHalfToEvenWithinThirtyTwoBits)
{
    const struct {
        double number;
        std::optional<std::int32_t> stored;
    } cases[] = {
        {2.5, 2}, {3.5, 4}, {-2.5, -2}, {40000.5, 40000}, {2147483647.4, 2147483647},
        {2147483647.5, std::nullopt}, {-2147483648.5, -2147483647 - 1}, {-2147483649.0, std::nullopt},
        {NaN, std::nullopt}, {Inf, std::nullopt},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << "ToLong(" << c.number << ")");
        EXPECT_EQ(ToLong(c.number), c.stored);
    }
}

TEST(Int, IsTheFloor)
{
    EXPECT_EQ(Int(-0.5), -1);
    EXPECT_EQ(Int(-2), -2);
    EXPECT_EQ(Int(2.99), 2);
    EXPECT_EQ(Int(21 / 10.0), 2);
}

TEST(ShortestNumber, ReadsBackAsTheSameValue)
{
    const struct {
        double number;
        const char* text;
    } cases[] = {
        {0.5, "0.5"}, {-2.125, "-2.125"}, {12, "12"}, {0, "0"}, {-0.0, "0"},
        {0.1 + 0.2, "0.30000000000000004"}, {100, "100"}, {32000, "32000"}, {-1, "-1"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << "ShortestNumber(" << c.number << ")");
        EXPECT_EQ(ShortestNumber(c.number), c.text);
    }
    for (double v : {1e-9, 1e25, -3.0e-5, 1.0 / 3}) {
        SCOPED_TRACE(testing::Message() << v);
        EXPECT_EQ(std::stod(ShortestNumber(v)), v);
    }
}

// ---- Text helpers ----

TEST(SizedField, PadsOnTheRightAndNeverCuts)
{
    EXPECT_EQ(SizedField("ab", 5), "ab   ");
    EXPECT_EQ(SizedField("", 3), "   ");
    EXPECT_EQ(SizedField("abc", 3), "abc");
    EXPECT_EQ(SizedField("abcdef", 3), "abcdef");
    EXPECT_EQ(SizedField("ab", 0), "ab");
    EXPECT_EQ(SizedField("ab", -4), "ab");
}

TEST(TrueFalse, FlagAsListColumn)
{
    EXPECT_EQ(TrueFalse(true, "1/0"), "1");
    EXPECT_EQ(TrueFalse(false, "1/0"), "0");
    EXPECT_EQ(TrueFalse(true, "S"), "S");
    EXPECT_EQ(TrueFalse(false, "S"), "x");
    EXPECT_EQ(TrueFalse(true, ""), "");
    EXPECT_EQ(TrueFalse(false, "1"), "x");
}

TEST(AxisDifference, DistanceOnTheHalfCircle)
{
    const struct {
        std::int16_t first, second, difference;
    } cases[] = {
        {170, 10, 20}, {10, 170, 20}, {180, 0, 0}, {0, 180, 0}, {0, 90, 90}, {90, 0, 90}, {5, 175, 10},
        {175, 5, 10}, {0, 91, 89}, {91, 0, 89}, {45, 45, 0}, {100, 10, 90}, {1, 179, 2}, {30, 60, 30},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << "AxisDifference(" << c.first << ", " << c.second << ")");
        EXPECT_EQ(AxisDifference(c.first, c.second), c.difference);
    }
}

TEST(TextHelpers, BlanksAndCase)
{
    EXPECT_EQ(Trim("  a b  "), "a b");
    EXPECT_EQ(LTrim("  a b  "), "a b  ");
    EXPECT_EQ(RTrim("  a b  "), "  a b");
    EXPECT_EQ(Trim("    "), "");
    EXPECT_EQ(Trim(""), "");
    EXPECT_EQ(UCase("Nikon Retinomax2 -x"), "NIKON RETINOMAX2 -X");
    EXPECT_EQ(RemoveBlanks(" -1. 25 "), "-1.25");
    EXPECT_TRUE(Contains("BOTH-EQUALLY", "EQUAL"));
    EXPECT_FALSE(Contains("BOTH", "both"));
}

}  // namespace
}  // namespace vistrel
