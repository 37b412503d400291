#include "matching/EyeCount.h"

#include <gtest/gtest.h>

namespace vistrel {
namespace {

EyeTarget eye(double S, double C, std::int16_t A, bool left = true)
{
    EyeTarget e;
    e.sphere = S;
    e.cylinder = C;
    e.axis = A;
    e.equivalent = C * 0.5 + S;
    e.sphereTolerance = 1.0;
    e.cylinderTolerance = 1.0;
    e.axisTolerance = 15;
    e.leftEye = left;
    return e;
}

TEST(Regime, CylinderOfEitherEyeDecidesAndModesSetTheNeededCount)
{
    EXPECT_FALSE(makeRegime(-0.25, 0, false, false, 0.5).astigmatic);
    EXPECT_TRUE(makeRegime(-0.25, -0.5, false, false, 0.5).astigmatic);
    EXPECT_EQ(makeRegime(0, 0, false, false, 0.5).needed, 2);
    EXPECT_EQ(makeRegime(-1, 0, false, false, 0.5).needed, 3);
    EXPECT_EQ(makeRegime(0, 0, true, false, 0.5).needed, 3);
    EXPECT_EQ(makeRegime(-1, 0, true, false, 0.5).needed, 4);
    EXPECT_EQ(makeRegime(-1, 0, true, true, 0.5).needed, 1);  // reading-only wins
    EXPECT_DOUBLE_EQ(makeRegime(0, 0, false, false, -0.5).noAstigmatismLimit, 0.55);
}

TEST(SphericalRegime, ZeroHasNoSignAndSignChangesNeverScore)
{
    const SearchRegime r = makeRegime(0, 0, false, false, 0.5);
    EXPECT_EQ(countEye(eye(0, 0, 0), r, 0.25, 0, 0, 0).points, 1);  // only the cylinder point
    EXPECT_EQ(countEye(eye(0, 0, 0), r, 0, 0, 0, 0).points, 2);     // e < 0.125
    EXPECT_EQ(countEye(eye(-0.25, 0, 0), r, 0.25, 0, 0, 0).points, 1);
    EXPECT_EQ(countEye(eye(-2, 0, 0), r, -3, 0, 0, 0).points, 2);     // the bound is inclusive
    EXPECT_EQ(countEye(eye(-2, 0, 0), r, -3.01, 0, 0, 0).points, 1);
}

TEST(SphericalRegime, NoAstigmatismLimitIsInclusiveLeftAndStrictRight)
{
    const SearchRegime r = makeRegime(0, 0, false, false, 0.5);
    const double atLimit = -0.55;
    EXPECT_EQ(countEye(eye(-1, 0, 0, true), r, -1, atLimit, 90, 0).points, 2);
    EXPECT_EQ(countEye(eye(-1, 0, 0, false), r, -1, atLimit, 90, 0).points, 1);
    EXPECT_EQ(countEye(eye(-1, 0, 0, false), r, -1, -0.5, 90, 0).points, 2);
}

TEST(SphericalRegime, ReadingModes)
{
    EyeTarget e = eye(-1, 0, 0);
    e.readingPower = 1.0;  // equivalent -1 plus an Add of 2
    const SearchRegime also = makeRegime(0, 0, true, false, 0.5);
    EXPECT_EQ(countEye(e, also, -1, 0, 0, 2).points, 3);
    EXPECT_EQ(countEye(e, also, -1, 0, 0, 0).points, 2);  // reading power two dioptres off
    const SearchRegime only = makeRegime(0, 0, false, true, 0.5);
    EXPECT_EQ(countEye(e, only, 0, 0, 0, 1).points, 1);
    EXPECT_EQ(countEye(e, only, 0.125, -0.25, 0, 1).points, 0);  // a quarter of cylinder is too much here
}

TEST(AstigmaticRegime, ZeroCountsAsPositive)
{
    const SearchRegime r = makeRegime(-1, -1, false, false, 0.5);
    EyeTarget e = eye(0, -1, 90);
    e.noEquivalent = true;
    const EyeCount c = countEye(e, r, 0.25, -1, 90, 0);
    EXPECT_EQ(c.points, 3);
    EXPECT_EQ(c.flag, MatchFlag::Match);
    EXPECT_EQ(countEye(eye(-0.25, -1, 90), r, 0.25, -1, 90, 0).points, 2);  // a change of sign
}

TEST(AstigmaticRegime, EquivalentStandsInForAPairWithLittleCylinder)
{
    const SearchRegime r = makeRegime(-1, -1, false, false, 0.5);
    // -2.00 -1.00 (equivalent -2.50) against a plain -2.50 pair with axis 0.
    const EyeCount c = countEye(eye(-2, -1, 90), r, -2.5, 0, 0, 0);
    EXPECT_EQ(c.points, 3);
    EXPECT_EQ(c.flag, MatchFlag::Equiv);
    EyeTarget noEquiv = eye(-2, -1, 90);
    noEquiv.noEquivalent = true;
    const EyeCount m = countEye(noEquiv, r, -2.5, 0, 0, 0);
    EXPECT_EQ(m.points, 3);  // sphere, cylinder, and the free axis point
    EXPECT_EQ(m.flag, MatchFlag::Match);
}

TEST(AstigmaticRegime, AxisWithinToleranceAcrossTheSeam)
{
    const SearchRegime r = makeRegime(-1, -1, false, false, 0.5);
    EXPECT_EQ(countEye(eye(-2, -1, 5), r, -2, -1, 175, 0).points, 3);
    EXPECT_EQ(countEye(eye(-2, -1, 90), r, -2, -1, 105, 0).points, 3);
    EXPECT_EQ(countEye(eye(-2, -1, 90), r, -2, -1, 106, 0).points, 2);
}

TEST(AstigmaticRegime, ReadingPointKeepsTheEquivFlag)
{
    const SearchRegime r = makeRegime(-1, -1, true, false, 0.5);
    EyeTarget e = eye(-2, -1, 90);
    e.readingPower = -0.5;
    const EyeCount c = countEye(e, r, -2.5, 0, 0, 2);
    EXPECT_EQ(c.points, 4);
    EXPECT_EQ(c.flag, MatchFlag::Equiv);
}

}  // namespace
}  // namespace vistrel
