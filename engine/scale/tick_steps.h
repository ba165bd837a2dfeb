#pragma once
// What the makers of ticks share: how far apart ticks have to stand, and evenly spaced positions.

#include "engine/scale/ticks.h"

#include <algorithm>
#include <span>
#include <vector>

namespace chartdraw {

inline constexpr double kLeastTickPx = 2;

inline double lengthOf(const Density& density) {
    return density.lengthPx > 1 ? std::min(density.lengthPx, 100'000.0) : 1; // also for NaN
}

/// Least distance of automatic major ticks, at least 4 pixels.
double wantedPx(const Density& density, double otherwise);

/// How many steps between major ticks the axis has room for, at least 2.
double mostSteps(const Density& density);

/// Whether a distance was given, rather than left to be found.
bool isGiven(double increment);

/// A given increment if it is at least `least`, else the smallest round multiple of it that is.
double readableStep(double given, double least);

/// Multiples of `step` counted from `origin` that lie on the scale, without noise.
std::vector<double> stepValues(double lower, double upper, double origin, double step);

/// The values of `values` that do not stand at a tick of `taken` (ascending), give or take a thousandth of
/// `step`.
std::vector<double> without(const std::vector<double>& values, std::span<const double> taken, double step);

/// Positions of ticks.
std::vector<double> valuesOf(std::span<const Tick> ticks);

/// Adds the given minor and micro ticks, counted from `origin`, between major ones `majorStep` apart.
void addGivenMinors(Ticks& ticks, const Scale& scale, double origin, double majorStep,
                    const Increments& increments, const Density& density);

} // namespace chartdraw
