#include "engine/scale/tick_steps.h"

#include "engine/scale/nice_numbers.h"

#include <cmath>
#include <cstdint>

namespace chartdraw {

double wantedPx(const Density& density, double otherwise) {
    return density.majorPx > 0 ? std::max(density.majorPx, 4.0) : otherwise;
}

double mostSteps(const Density& density) {
    constexpr double usualPx = 32;
    return std::max(2.0, std::floor(lengthOf(density) / wantedPx(density, usualPx)));
}

bool isGiven(double increment) {
    return isValue(increment) && increment > 0;
}

double readableStep(double given, double least) {
    if (given >= least)
        return given;
    const double step = given * niceStep(least / given);
    return step >= least * (1 - 1e-6) && std::isfinite(step) ? step : niceStep(least);
}

std::vector<double> stepValues(double lower, double upper, double origin, double step) {
    const int decimals = finestDecimals(step, origin);
    const auto first = static_cast<std::int64_t>(ceilToStep(lower - origin, step));
    const auto last = static_cast<std::int64_t>(floorToStep(upper - origin, step));
    std::vector<double> values;
    for (std::int64_t k = first; k <= last; ++k)
        if (const double value = roundToDecimals(origin + static_cast<double>(k) * step, decimals);
            values.empty() || value > values.back())
            values.push_back(value);
    return values;
}

std::vector<double> without(const std::vector<double>& values, std::span<const double> taken, double step) {
    std::vector<double> free;
    auto next = taken.begin();
    for (const double value : values) {
        while (next != taken.end() && *next < value - step * 1e-3)
            ++next;
        if (next == taken.end() || *next > value + step * 1e-3)
            free.push_back(value);
    }
    return free;
}

std::vector<double> valuesOf(std::span<const Tick> ticks) {
    std::vector<double> values;
    values.reserve(ticks.size());
    for (const Tick& tick : ticks)
        values.push_back(tick.value);
    return values;
}

void addGivenMinors(Ticks& ticks, const Scale& scale, double origin, double majorStep,
                    const Increments& increments, const Density& density) {
    const double least = (scale.upper() - scale.lower()) / lengthOf(density) * kLeastTickPx;
    const auto major = valuesOf(ticks.major);
    double above = majorStep;
    const auto spaced = [&](double increment) {
        const double step = isGiven(increment) ? readableStep(increment, least) : above;
        if (step >= above * (1 - 1e-6))
            return std::vector<double>{};
        above = step;
        return without(stepValues(scale.lower(), scale.upper(), origin, step), major, step);
    };
    if (isGiven(increments.minor))
        ticks.minor = spaced(increments.minor);
    ticks.micro = without(spaced(increments.micro), ticks.minor, above);
}

} // namespace chartdraw
