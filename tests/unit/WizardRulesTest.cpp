// The wizard's pure rules: which cases an eye is offered, how the two
// correction levels colour the eye-condition panel, and the multipliers.

#include "wizard/WizardRules.h"

#include <gtest/gtest.h>

namespace vistrel::wizard {
namespace {

struct Offer {
    double sphere, cylinder, equivalent;
    bool c1, c2, c3, c4;
};

TEST(WizardRules, CasesOfferedByCylinderSphereAndEquivalent)
{
    const Offer offers[] = {
        // cylinder 0: nothing to do with the cylinder
        {-2.00, 0.00, -2.00, false, false, false, false},
        // up to 1.00: both small-cylinder cases, when the equivalent is big enough
        {-2.00, -1.00, -2.50, true, true, false, false},
        {-0.25, -0.25, -0.375, true, true, false, false},
        {0.00, -0.50, -0.25, false, true, false, false},  // equivalent 0.25 is not over it
        {0.25, -0.50, 0.00, false, true, false, false},
        // over 1.00 up to 1.75: case 1 only
        {-2.00, -1.25, -2.625, true, false, false, false},
        {-2.00, -1.75, -2.875, true, false, false, false},
        // between 1.75 and 2.00: none at all
        {-2.00, -1.76, -2.88, false, false, false, false},
        {-2.00, -1.99, -3.00, false, false, false, false},
        // 2.00 and over: the sphere decides, signs don't matter
        {-2.00, -2.00, -3.00, false, false, true, false},
        {2.00, -2.00, 1.00, false, false, true, false},
        {-1.75, -2.00, -2.75, false, false, false, true},
        {1.99, -3.00, 0.49, false, false, false, true},
        // a positive cylinder counts by its size
        {-2.00, 1.00, -1.50, true, true, false, false},
    };
    for (const Offer& o : offers) {
        const CaseOffer got = OfferedCases(o.sphere, o.cylinder, o.equivalent);
        SCOPED_TRACE(testing::Message() << o.sphere << " " << o.cylinder << " (" << o.equivalent << ")");
        EXPECT_EQ(got.case1, o.c1);
        EXPECT_EQ(got.case2, o.c2);
        EXPECT_EQ(got.case3, o.c3);
        EXPECT_EQ(got.case4, o.c4);
    }
}

TEST(WizardRules, TheBetterEyeIsGreenAndThePoorerColouredByTheRoundedDifference)
{
    // Equal levels, also both 0: both green, difference 0.
    for (double level : {0.0, 8.0, 99.0}) {
        const EyeCondition same = CompareLevels(level, level);
        EXPECT_EQ(same.left, colors::Green);
        EXPECT_EQ(same.right, colors::Green);
        EXPECT_EQ(same.difference, 0);
    }

    // The right eye poorer (higher level): the left stays green.
    const EyeCondition rightPoorer = CompareLevels(5, 20);
    EXPECT_EQ(rightPoorer.left, colors::Green);
    EXPECT_EQ(rightPoorer.right, 192);
    EXPECT_EQ(rightPoorer.difference, 15);

    // The left eye poorer: the right stays green.
    const EyeCondition leftPoorer = CompareLevels(12, 9);
    EXPECT_EQ(leftPoorer.left, 8421631);
    EXPECT_EQ(leftPoorer.right, colors::Green);
    EXPECT_EQ(leftPoorer.difference, 3);

    // A difference that rounds to 0 still colours the poorer eye.
    const EyeCondition tiny = CompareLevels(8, 8.4);
    EXPECT_EQ(tiny.difference, 0);
    EXPECT_EQ(tiny.right, 33023);
    EXPECT_EQ(tiny.left, colors::Green);
}

TEST(WizardRules, DifferencesRoundHalfToEvenBeforeTheColourIsChosen)
{
    struct Step {
        double right;
        int difference;
        Color colour;
    };
    // Left level 0 throughout.
    const Step steps[] = {
        {2.0, 2, 33023}, {2.5, 2, 33023}, {3.5, 4, 8421631}, {4.5, 4, 8421631}, {5.0, 5, 255},
        {6.5, 6, 255}, {6.51, 7, 192}, {7.0, 7, 192}, {19.5, 20, 192}, {18.5, 18, 192},
    };
    for (const Step& s : steps) {
        SCOPED_TRACE(s.right);
        const EyeCondition c = CompareLevels(0, s.right);
        EXPECT_EQ(c.difference, s.difference);
        EXPECT_EQ(c.right, s.colour);
    }
}

TEST(WizardRules, MultipliersAndTheirColoursInTheOrderOfTheOptions)
{
    const double multipliers[MultiplierRows] = {1.0, 1.5, 2.0, 2.5, 3.0, 4.0};
    const Color colours[MultiplierRows] = {16776960, 12640511, 8454143, 16744703, 65280, 33023};
    for (int row = 0; row < MultiplierRows; ++row) {
        EXPECT_EQ(ToleranceMultiplier(row), multipliers[row]);
        EXPECT_EQ(MultiplierColor(row), colours[row]);
    }
}

}  // namespace
}  // namespace vistrel::wizard
