#include "engine/scale/ticks.h"

#include "engine/scale/nice_numbers.h"
#include "engine/scale/number_text.h"
#include "engine/scale/tick_steps.h"

#include <cmath>

namespace chartdraw {
namespace {

double span(const Scale& scale) {
    return scale.upper() - scale.lower();
}

/// A major step in whole items where the scale counts items.
double wholeOnItems(const Scale& scale, double step) {
    return scale.kind() == ScaleKind::Enumerated ? std::max(1.0, std::ceil(step - 1e-9)) : step;
}

void addMajor(Ticks& ticks, const Scale& scale, double origin, double step) {
    const auto values = stepValues(scale.lower(), scale.upper(), origin, step);
    auto labels = stepLabels(values, step, origin);
    ticks.major.clear();
    for (std::size_t i = 0; i < values.size(); ++i)
        ticks.major.push_back({values[i], std::move(labels[i])});
}

/// Into how many parts a major step falls so that minor ticks keep their distance; 1 if none do.
int automaticParts(double majorStep, double majorPx, double minorPx) {
    const double first = std::round(majorStep * std::pow(10.0, 1 - exponentOf(majorStep)));
    const auto fits = [&](int parts) { return majorPx / parts >= minorPx; };
    if (first == 20)
        return fits(4) ? 4 : fits(2) ? 2 : 1;
    if (first == 10 && fits(10))
        return 10;
    return fits(5) ? 5 : first == 10 && fits(2) ? 2 : 1;
}

} // namespace

Ticks linearTicks(const Scale& scale, const Increments& increments, const Density& density) {
    Ticks ticks;
    const double unitsPerPx = span(scale) / lengthOf(density);
    const bool items = scale.kind() == ScaleKind::Enumerated;
    const bool given = isGiven(increments.major);
    const double automatic = niceStep(span(scale) / mostSteps(density));
    double step = automatic;
    if (given)
        step = increments.major < unitsPerPx * kLeastTickPx ? readableStep(increments.major, automatic)
                                                            : increments.major;
    step = wholeOnItems(scale, step);
    const double origin = given && !items ? scale.lower() : 0;
    addMajor(ticks, scale, origin, step);
    // On a short axis between odd limits the step may leave a single tick; a scale takes two to be read.
    for (int tries = 0; !given && ticks.major.size() < 2 && tries < 3; ++tries) {
        step = wholeOnItems(scale, niceStep(step / 2.5));
        addMajor(ticks, scale, origin, step);
    }
    if (items)
        return ticks;
    Increments minor = increments;
    if (!isGiven(minor.minor) && density.minorPx > 0)
        minor.minor = step / automaticParts(step, step / unitsPerPx, std::max(density.minorPx, kLeastTickPx));
    addGivenMinors(ticks, scale, isGiven(increments.minor) ? scale.lower() : origin, step, minor, density);
    return ticks;
}

Ticks makeTicks(const Scale& scale, const Increments& increments, const Density& density) {
    switch (scale.kind()) {
    case ScaleKind::Log:
        return logTicks(scale, density);
    case ScaleKind::Date:
        return dateTicks(scale, increments, density);
    case ScaleKind::Linear:
    case ScaleKind::Enumerated:
        break;
    }
    return linearTicks(scale, increments, density);
}

} // namespace chartdraw
