#include "Closeness.h"

#include "core/Numbers.h"
#include "core/Text.h"

#include <cmath>
#include <cstdlib>

namespace vistrel {

double eyeScore(bool byEquivalent, double S, double C, std::int16_t A, double Q, double s, double c,
    std::int16_t a, double addTerm, bool withAdd, double axisDeviation)
{
    if (byEquivalent) {
        // The pair's side keeps the minus: sphere plus half the cylinder's size.
        return std::fabs(Q - (s - c * 0.5)) / 0.25 + addTerm;
    }
    const double sphereTerm = std::fabs(S - s) / 0.25;
    const double cylinderTerm = std::fabs(C - c) / 0.25;
    // Across the 0/180 seam the smaller axis is taken round once more.
    int f = A;
    int g = a;
    if (axisDeviation < std::abs(f - g)) {
        if (f <= g)
            f += 180;
        else
            g += 180;
    }
    const std::int16_t d = AxisDifference(static_cast<std::int16_t>(f), static_cast<std::int16_t>(g));
    double penalty = 0;
    if (std::fabs(C) <= 2)
        penalty = ToIntegerOr(d * 0.25, 0);
    else if (std::fabs(C) <= 3)
        penalty = ToIntegerOr(d * 0.5, 0);
    else
        penalty = d;
    if (std::fabs(c) < 0.26)
        penalty = 0;
    if (withAdd)
        return (sphereTerm + cylinderTerm + penalty + addTerm) / 4;
    return (sphereTerm + cylinderTerm + penalty) / 3;
}

double pairCloseness(double leftScore, double rightScore, bool leftOnly, bool rightOnly)
{
    if (rightOnly)
        leftScore = rightScore;
    if (leftOnly)
        rightScore = leftScore;
    return Int((std::fabs(rightScore) + std::fabs(leftScore)) / 2 * 10) / 10;
}

}  // namespace vistrel
