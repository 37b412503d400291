#pragma once

#include <cstdint>

namespace vistrel {

// The closeness of one eye of a pair to the measurement: 0 is a perfect
// fit, and a quarter dioptre off counts one. byEquivalent: the eye matched
// on the spherical equivalent. withAdd: the Add is part of the search.
double eyeScore(bool byEquivalent, double S, double C, std::int16_t A, double Q, double s, double c,
    std::int16_t a, double addTerm, bool withAdd, double axisDeviation);

// Both eyes to one figure with one decimal, never rounded up; a search by
// one eye alone counts that eye twice.
double pairCloseness(double leftScore, double rightScore, bool leftOnly, bool rightOnly);

}  // namespace vistrel
