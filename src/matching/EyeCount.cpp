#include "EyeCount.h"

#include "core/Text.h"

#include <cmath>

namespace vistrel {

const char* matchFlagText(MatchFlag flag)
{
    switch (flag) {
    case MatchFlag::Match:
        return " -Match";
    case MatchFlag::Equiv:
        return " -Equiv";
    default:
        return " -NONE";
    }
}

SearchRegime makeRegime(
    double leftCylinder, double rightCylinder, bool readingAlso, bool readingOnly, double maxCylinderValue)
{
    SearchRegime r;
    r.astigmatic = !(std::fabs(leftCylinder) <= 0.25 && std::fabs(rightCylinder) <= 0.25);
    r.readingAlso = readingAlso;
    r.readingOnly = readingOnly;
    if (readingOnly)
        r.needed = 1;
    else if (readingAlso)
        r.needed = r.astigmatic ? 4 : 3;
    else
        r.needed = r.astigmatic ? 3 : 2;
    r.noAstigmatismLimit = std::fabs(maxCylinderValue) + 0.05;
    return r;
}

EyeCount countEye(const EyeTarget& eye, const SearchRegime& regime, double s, double c, std::int16_t a, double d)
{
    EyeCount out;
    const double t = eye.sphereTolerance;
    const double S = eye.sphere;
    const bool full = !regime.readingOnly;
    const bool reading = regime.readingAlso || regime.readingOnly;

    if (!regime.astigmatic) {
        if (full) {
            // A zero has no sign here: within tolerance a change of sign never scores.
            const double e = std::fabs(s - S);
            if (e <= t && ((S < 0 && s < 0) || (S > 0 && s > 0) || e < 0.125)) {
                ++out.points;
                out.flag = MatchFlag::Match;
            }
            const bool nearlyNoCylinder = eye.leftEye ? std::fabs(c) <= regime.noAstigmatismLimit
                                                      : std::fabs(c) < regime.noAstigmatismLimit;
            if (nearlyNoCylinder) {
                ++out.points;
                out.flag = MatchFlag::Match;
            }
        }
        if (reading) {
            const double p = s + d + c / 2;
            if (std::fabs(p - eye.readingPower) <= t && (!regime.readingOnly || std::fabs(c) < 0.25)) {
                ++out.points;
                out.flag = MatchFlag::Match;
            }
        }
        return out;
    }

    if (full) {
        // Here a zero counts as positive.
        const double e = std::fabs(s - S);
        if (e <= t && ((S < 0 && s < 0) || (S >= 0 && s >= 0) || e < 0.125)) {
            out.points = 1;
            out.flag = MatchFlag::Match;
        }
        if (std::fabs(c - eye.cylinder) <= eye.cylinderTolerance) {
            ++out.points;
            out.flag = MatchFlag::Match;
        }
        if (std::fabs(c) <= 0.25 && !eye.noEquivalent && std::fabs(s - eye.equivalent) <= t) {
            // A pair with little cylinder stands in through the equivalent.
            out.points = 3;
            out.flag = MatchFlag::Equiv;
        } else if (std::fabs(c) <= 0.25) {
            ++out.points;  // no axis worth the name
            out.flag = MatchFlag::Match;
        } else if (AxisDifference(eye.axis, a) <= eye.axisTolerance) {
            ++out.points;
            out.flag = MatchFlag::Match;
        }
    }
    if (reading) {
        const double p = s + d + c / 2;
        if (std::fabs(p - eye.readingPower) <= t) {
            ++out.points;
            if (out.flag != MatchFlag::Equiv)
                out.flag = MatchFlag::Match;
        }
    }
    return out;
}

}  // namespace vistrel
