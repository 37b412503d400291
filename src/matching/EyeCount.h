#pragma once

#include <cstdint>

namespace vistrel {

// How an eye matched: not at all, on sphere, cylinder and axis, or on the
// spherical equivalent. Shown in the result row and steering the score.
enum class MatchFlag : std::uint8_t { None, Match, Equiv };

const char* matchFlagText(MatchFlag flag);  // " -NONE", " -Match", " -Equiv"

// What one search looks for, settled once before the pass over the tables.
struct SearchRegime {
    bool astigmatic = false;  // either eye has more than a quarter of cylinder
    bool readingAlso = false;
    bool readingOnly = false;
    int needed = 2;            // points each counted eye must have, exactly
    double noAstigmatismLimit = 0;
};

// One eye of the measurement with its tolerances.
struct EyeTarget {
    double sphere = 0;       // S
    double cylinder = 0;     // C
    std::int16_t axis = 0;   // A
    double equivalent = 0;   // Q
    double readingPower = 0; // R
    double sphereTolerance = 0;
    double cylinderTolerance = 0;
    double axisTolerance = 0;
    bool noEquivalent = false;
    bool leftEye = true;  // the left eye's no-astigmatism test is inclusive
};

struct EyeCount {
    int points = 0;
    MatchFlag flag = MatchFlag::None;
};

SearchRegime makeRegime(double leftCylinder, double rightCylinder, bool readingAlso, bool readingOnly,
    double maxCylinderValue);

// The points one eye of a pair earns against the measurement.
EyeCount countEye(const EyeTarget& eye, const SearchRegime& regime, double s, double c, std::int16_t a, double d);

}  // namespace vistrel
