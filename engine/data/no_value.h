#pragma once
// The marker of a missing value in a series of numbers, and the one test for it.

#include <cmath>

namespace chartdraw {

constexpr double kNoValue = 1.7E+308;

/// Whether a number of a series is one: not the marker, not NaN, not infinite.
inline bool isValue(double value) {
    return value != kNoValue && std::isfinite(value);
}

} // namespace chartdraw
