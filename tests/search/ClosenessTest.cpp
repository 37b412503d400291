#include "matching/Closeness.h"

#include <gtest/gtest.h>

namespace vistrel {
namespace {

TEST(Closeness, WorkedExampleOfAnAstigmaticLeftEye)
{
    // -2.00 -1.00 x 90 against -2.25 -1.00 x 100: 1 + 0 + round(10 / 4 = 2.5) = 2 → 3 / 3.
    const double left = eyeScore(false, -2, -1, 90, -2.5, -2.25, -1, 100, 0, false, 15);
    EXPECT_DOUBLE_EQ(left, 1);
    const double right = eyeScore(false, -2, -1, 90, -2.5, -2, -1, 90, 0, false, 15);
    EXPECT_DOUBLE_EQ(pairCloseness(left, right, false, false), 0.5);
}

TEST(Closeness, AxisPenaltyGrowsWithTheCylinderAndVanishesWithoutOne)
{
    // A 20 degree miss: a quarter of it up to 2 dioptres, half up to 3, all above.
    EXPECT_DOUBLE_EQ(eyeScore(false, 0, -2, 90, 0, 0, -2, 110, 0, false, 15), 5.0 / 3);
    EXPECT_DOUBLE_EQ(eyeScore(false, 0, -3, 90, 0, 0, -3, 110, 0, false, 15), 10.0 / 3);
    EXPECT_DOUBLE_EQ(eyeScore(false, 0, -4, 90, 0, 0, -4, 110, 0, false, 15), 20.0 / 3);
    EXPECT_DOUBLE_EQ(eyeScore(false, 0, -4, 90, 0, 0, -0.25, 110, 0, false, 15), 15.0 / 3);
    // Rounding to even: 10 degrees at a quarter is 2.5 → 2, 14 is 3.5 → 4.
    EXPECT_DOUBLE_EQ(eyeScore(false, 0, -1, 90, 0, 0, -1, 104, 0, false, 15), 4.0 / 3);
}

TEST(Closeness, AxesAcrossTheSeam)
{
    // 5 against 175 is 10 degrees apart, not 170.
    EXPECT_DOUBLE_EQ(eyeScore(false, 0, -1, 5, 0, 0, -1, 175, 0, false, 15), 2.0 / 3);
    EXPECT_DOUBLE_EQ(eyeScore(false, 0, -1, 175, 0, 0, -1, 5, 0, false, 15), 2.0 / 3);
}

TEST(Closeness, EquivalentScoreKeepsTheMinusOfTheCylinder)
{
    // Q -2.50 against -2.25 -0.25: -2.25 - (-0.125) = -2.125, so 0.375 / 0.25.
    EXPECT_DOUBLE_EQ(eyeScore(true, -2, -1, 90, -2.5, -2.25, -0.25, 0, 0, false, 15), 1.5);
    EXPECT_DOUBLE_EQ(eyeScore(true, -2, -1, 90, -2.5, -2.25, -0.25, 0, 2, false, 15), 3.5);
}

TEST(Closeness, AddJoinsTheAverage)
{
    EXPECT_DOUBLE_EQ(eyeScore(false, -1, 0, 0, -1, -1, 0, 0, 4, true, 15), 1);
}

TEST(Closeness, OneDecimalNeverRoundedUpAndOneEyeSearchesCountTwice)
{
    EXPECT_DOUBLE_EQ(pairCloseness(0.99, 0, false, false), 0.4);
    EXPECT_DOUBLE_EQ(pairCloseness(1, 3, true, false), 1);
    EXPECT_DOUBLE_EQ(pairCloseness(1, 3, false, true), 3);
}

}  // namespace
}  // namespace vistrel
