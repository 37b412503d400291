#pragma once

#include "core/screen/Colors.h"

#include <cstdint>

namespace vistrel::wizard {

// The cases 1 to 4 that the wizard offers an eye, from its sphere,
// cylinder and spherical equivalent as they stand in the mirror fields.
struct CaseOffer {
    bool case1 = false;  // switch to the spherical equivalent
    bool case2 = false;  // clear the cylinder
    bool case3 = false;  // cut the cylinder back, keeping the equivalent
    bool case4 = false;  // reduce the cylinder alone
};
CaseOffer OfferedCases(double sphere, double cylinder, double equivalent);

// The eye-condition panel: each eye's colour from the two correction
// levels. The better eye (or both, when the levels are equal) is green; the
// other takes the colour of the rounded difference.
struct EyeCondition {
    Color left = colors::Green;
    Color right = colors::Green;
    std::int16_t difference = 0;
};
EyeCondition CompareLevels(double leftLevel, double rightLevel);
// The colour of the poorer eye for a rounded difference of levels.
Color ConditionColor(std::int16_t difference);

// The six tolerance multipliers of each eye, *1 to *4, and their colours.
constexpr int MultiplierRows = 6;
double ToleranceMultiplier(int row);
Color MultiplierColor(int row);

}  // namespace vistrel::wizard
