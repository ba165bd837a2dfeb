#include "engine/scale/nice_numbers.h"

#include "engine/data/no_value.h"
#include "engine/scale/number_text.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace chartdraw {
namespace {

constexpr double kTolerance = 1e-9;

/// 10 to the power of `exponent`, exact up to 22.
double powerOfTen(int exponent) {
    constexpr std::array<double, 23> exact = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                              1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                              1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
    return exponent < 23 ? exact[static_cast<std::size_t>(exponent)] : std::pow(10.0, exponent);
}

/// mantissa * 10^exponent without the noise of a multiplication by 0.1 and the like.
double scaled(double mantissa, int exponent) {
    return exponent >= 0 ? mantissa * powerOfTen(exponent) : mantissa / powerOfTen(-exponent);
}

} // namespace

double niceStep(double least) {
    if (!(least > 0) || !std::isfinite(least))
        return 1;
    least = std::clamp(least, 1e-307, 2e307);
    const int exponent = static_cast<int>(std::floor(std::log10(least)));
    for (const double mantissa : {1.0, 2.0, 2.5, 5.0, 10.0}) {
        const double step = scaled(mantissa, exponent);
        const bool allowed = mantissa != 2.5 || exponent >= 1;
        if (allowed && least <= step * (1 + kTolerance))
            return step;
    }
    return scaled(2, exponent + 1); // the logarithm was a hair too low
}

double nextNiceStep(double step) {
    return niceStep(step * (1 + 1e-6));
}

double roundToDecimals(double value, int decimals) {
    if (std::abs(decimals) > 300)
        return value;
    const double units = scaled(value, decimals);
    if (!(std::abs(units) < 0x1p53))
        return value;
    return scaled(std::round(units), -decimals) + 0.0; // + 0.0: no negative zero
}

double floorToStep(double value, double step) {
    const double steps = std::clamp(value / step, -1e15, 1e15);
    const double nearest = std::round(steps);
    return std::abs(steps - nearest) <= kTolerance + std::abs(steps) * 1e-15 ? nearest : std::floor(steps);
}

double ceilToStep(double value, double step) {
    return -floorToStep(-value, step);
}

int finestDecimals(double step, double origin) {
    return origin == 0 ? decimalsOf(step) : std::max(decimalsOf(step), decimalsOf(origin));
}

int stepDecimals(double step, double origin) {
    const int enough = 3 - exponentOf(step);
    const int all = finestDecimals(step, origin);
    return all > enough + 2 ? enough : all;
}

std::string valueText(double value, int decimals) {
    const int digits = exponentOf(value) + decimals + 1;
    if (digits < -1) // far below what shows: nothing
        return isValue(value) ? "0" : std::string();
    return numberText(value, {.form = NumberSpec::Form::General, .digits = std::clamp(digits, 2, 6)});
}

std::vector<std::string> stepLabels(const std::vector<double>& values, double step, double origin) {
    double largest = 0;
    for (const double value : values)
        largest = std::max(largest, std::abs(value));
    const int decimals = stepDecimals(step, origin);
    NumberSpec spec = NumberSpec::fixed(std::max(0, decimals));
    if (largest >= 1e15 || largest < 1e-5)
        spec = NumberSpec::atPower(exponentOf(largest), decimals);
    std::vector<std::string> labels;
    labels.reserve(values.size());
    for (const double value : values)
        labels.push_back(value == 0 && spec.power ? "0" : numberText(value, spec));
    return labels;
}

} // namespace chartdraw
