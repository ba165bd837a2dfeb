#pragma once
// Round numbers for scales: steps of 1, 2 or 5 times a power of ten and tick positions without the noise of
// binary fractions (0.3, never 0.30000000000000004).

#include <string>
#include <vector>

namespace chartdraw {

/// Smallest step not below `least` (but for a relative 1e-9) of 1, 2 or 5 times a power of ten or of 25, 250,
/// 2500... `least` at or below 0, NaN or infinite gives 1; others are limited to 1e-307..2e307.
double niceStep(double least);

/// The step after `step` in that row: 1, 2, 5, 10, 20, 25, 50, 100...
double nextNiceStep(double step);

/// `value` rounded to the nearest number with `decimals` decimals (below 0: to tens, hundreds...). Unchanged
/// where doubles are too coarse for a difference.
double roundToDecimals(double value, int decimals);

/// `value` divided by `step` and rounded down or up to a whole number, where a value within a billionth of a
/// step of a multiple counts as that multiple. Within +-1e15.
double floorToStep(double value, double step);
double ceilToStep(double value, double step);

/// How many decimals values have that lie `step` apart, counted from `origin` (below 0: tens, hundreds...).
int finestDecimals(double step, double origin = 0);

/// The same for reading: an uneven step, such as a third, is shown with four digits of its own.
int stepDecimals(double step, double origin = 0);

/// A value for reading beside an axis whose labels, or somewhat finer, have `decimals`: two significant
/// digits to six, and nothing that is finer than the axis can tell, such as the noise of computing.
std::string valueText(double value, int decimals);

/// Texts of values that lie `step` apart: all with the decimals of the step (and of `origin`, when the values
/// are counted from there), with exponents where they are huge or tiny; no two of different values are alike.
std::vector<std::string> stepLabels(const std::vector<double>& values, double step, double origin = 0);

} // namespace chartdraw
