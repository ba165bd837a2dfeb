#include "engine/scale/ticks.h"

#include "engine/scale/nice_numbers.h"
#include "engine/scale/number_text.h"
#include "engine/scale/tick_steps.h"

#include <cmath>
#include <initializer_list>
#include <string>
#include <utility>

namespace chartdraw {
namespace {

/// Which multiples of each decade are ticks, and how close they come in decades.
struct Digits {
    std::initializer_list<int> digits;
    double leastGap;
};

constexpr double kGapOf9To10 = 0.0457; // log10(10 / 9)
constexpr double kGapOf1To2 = 0.301;   // log10(2)
constexpr Digits kAll = {{1, 2, 3, 4, 5, 6, 7, 8, 9}, kGapOf9To10};
constexpr Digits k125 = {{1, 2, 5}, kGapOf1To2};
constexpr Digits k1 = {{1}, 1};

std::vector<double> multiples(const Scale& scale, const Digits& set, int everyDecade = 1) {
    std::vector<double> values;
    const int last = static_cast<int>(std::floor(std::log10(scale.upper()) + 1e-9));
    int exponent = static_cast<int>(std::floor(std::log10(scale.lower()) + 1e-9));
    exponent = static_cast<int>(ceilToStep(exponent, everyDecade)) * everyDecade;
    for (; exponent <= last; exponent += everyDecade)
        for (const int digit : set.digits)
            if (const double value = roundToDecimals(digit * std::pow(10.0, exponent), -exponent);
                scale.contains(value))
                values.push_back(value);
    return values;
}

void setMajor(Ticks& ticks, const std::vector<double>& values, std::vector<std::string> labels) {
    ticks.major.clear();
    for (std::size_t i = 0; i < values.size(); ++i)
        ticks.major.push_back({values[i], std::move(labels[i])});
}

std::vector<double> evenValues(const Scale& scale, double step) {
    auto values = stepValues(scale.lower(), scale.upper(), 0, step);
    std::erase_if(values, [&](double value) { return !scale.contains(value); }); // zero, if the step is vast
    return values;
}

/// Even steps, wide enough at the upper end, where a log scale is densest.
void setLinear(Ticks& ticks, const Scale& scale, double majorDecades, double minorDecades) {
    const auto stepFor = [&](double decades) {
        return niceStep(scale.upper() * (1 - std::pow(10.0, -decades)));
    };
    const double step = stepFor(majorDecades);
    const auto values = evenValues(scale, step);
    if (values.size() <= ticks.major.size())
        return;
    setMajor(ticks, values, stepLabels(values, step));
    ticks.minor.clear();
    const double part = step / 5;
    if (minorDecades > 0 && stepFor(minorDecades) <= part)
        ticks.minor = without(evenValues(scale, part), values, part);
}

/// Plain numbers, or all of them with an exponent where one needs it.
std::vector<std::string> logLabels(const std::vector<double>& values) {
    std::vector<std::string> labels;
    bool exponents = false;
    for (const double value : values) {
        labels.push_back(numberText(value));
        exponents = exponents || labels.back().find('e') != std::string::npos;
    }
    for (std::size_t i = 0; exponents && i < values.size(); ++i) {
        const double exponent = std::floor(std::log10(values[i]) + 1e-9);
        labels[i] = numberText(std::round(values[i] / std::pow(10.0, exponent))) + 'e' + numberText(exponent);
    }
    return labels;
}

/// The densest of the sets whose ticks stand at least `decades` apart; null if none does.
const Digits* densest(double decades) {
    for (const Digits* set : {&kAll, &k125, &k1})
        if (set->leastGap >= decades)
            return set;
    return nullptr;
}

} // namespace

Ticks logTicks(const Scale& scale, const Density& density) {
    constexpr double usualPx = 32;
    const double decades = std::log10(scale.upper()) - std::log10(scale.lower());
    const double decadePx = lengthOf(density) / decades;
    const double majorDecades = wantedPx(density, usualPx) / decadePx;
    const double minorDecades = density.minorPx > 0 ? std::max(density.minorPx, kLeastTickPx) / decadePx : 0;

    Ticks ticks;
    const Digits* set = densest(majorDecades);
    // Of less than two decades too few labels would be left, so ticks may stand a little closer.
    if (set == &k1 && decades < 2 && k125.leastGap >= majorDecades * 0.6)
        set = &k125;
    const int every = set != nullptr ? 1 : static_cast<int>(niceStep(majorDecades));
    const auto major = multiples(scale, set != nullptr ? *set : k1, every);
    setMajor(ticks, major, logLabels(major));
    if (const Digits* minor = minorDecades > 0 ? densest(minorDecades) : nullptr)
        ticks.minor = multiples(scale, *minor);
    // Both lists ascend, so what is left of the minor ticks does too.
    std::erase_if(ticks.minor, [&, next = major.begin()](double value) mutable {
        while (next != major.end() && *next < value * (1 - 1e-9))
            ++next;
        return next != major.end() && *next <= value * (1 + 1e-9);
    });
    if (decades < 1 || ticks.major.size() < 3)
        setLinear(ticks, scale, majorDecades, minorDecades);
    return ticks;
}

} // namespace chartdraw
