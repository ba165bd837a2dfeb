#include "engine/polar/angular_axis.h"

#include "engine/chart/chart.h"
#include "engine/data/no_value.h"
#include "engine/scale/number_text.h"

#include <algorithm>
#include <cmath>

namespace chartdraw {

namespace {

constexpr double kLeastSpacing = 4; ///< pixels between spokes on the rim

/// Parts of a turn that people like, the first one that gives round steps: 12 hours of 30 degrees.
double automaticStep(double range) {
    for (const int parts : {12, 10, 8, 9, 7, 6, 5}) {
        const double step = range / parts;
        if (decimalsOf(step) + exponentOf(step) <= 1) // at most two digits
            return step;
    }
    return range / 8;
}

} // namespace

AngularAxis::AngularAxis(Chart& chart)
    : Part(Kind::AngularAxis, chart), m_labelBox(chart.own<TextBox>(chart)) {
    setLabelStyle({});
}

void AngularAxis::setLinearScale(double lower, double upper, const Increments& increments) {
    const bool usable = isValue(lower) && isValue(upper) && lower != upper;
    m_scale = usable ? Scale::linear(lower, upper) : Scale::linear(0, 360);
    m_falling = usable && lower > upper;
    m_increments = increments;
}

void AngularAxis::setLabels(std::vector<std::string> labels) {
    m_labels = std::move(labels);
}

TextBox* AngularAxis::setLabelStyle(const TextLook& look) {
    m_labelBox->look() = look;
    m_labelBox->look().setMargins(2, 2, 0, 0);
    return m_labelBox;
}

void AngularAxis::addZone(double start, double end, Colour fill, Colour edge) {
    m_zones.push_back({start, end, orDefault(fill, kTransparent), orDefault(edge, kTransparent)});
}

double AngularAxis::turn(double value) const {
    const double rising = m_scale.fraction(value);
    const double turns = m_falling ? 1 - rising : rising;
    const double part = turns - std::floor(turns); // NaN stays NaN
    return part >= 1 ? 0 : part;
}

std::vector<double> AngularAxis::evenSteps(std::size_t count) const {
    const auto parts = static_cast<double>(m_labels.empty() ? count : m_labels.size());
    std::vector<double> values(count);
    for (std::size_t i = 0; i < count; ++i) {
        const double part = static_cast<double>(i) / parts;
        values[i] = m_scale.value(m_falling ? 1 - part : part);
    }
    return values;
}

std::pair<double, double> AngularAxis::zoneTurns(const Zone& zone) const {
    if (!isValue(zone.start) || !isValue(zone.end) || zone.start == zone.end)
        return {0, 0};
    if (std::abs(m_scale.fraction(zone.end) - m_scale.fraction(zone.start)) >= 1)
        return {0, 1};
    const double from = turn(zone.start);
    const double covered = turn(zone.end) - from;
    return {from, covered < 0 ? covered + 1 : covered};
}

AngularTicks AngularAxis::ticks(double circumference) const {
    AngularTicks result;
    if (!m_labels.empty()) {
        const auto most = static_cast<std::size_t>(std::max(1.0, circumference / kLeastSpacing));
        const std::size_t step = (m_labels.size() + most - 1) / most;
        for (std::size_t i = 0; i < m_labels.size(); i += step) {
            const double part = static_cast<double>(i) / static_cast<double>(m_labels.size());
            result.spokes.push_back({part, m_labels[i]});
        }
        return result;
    }
    Increments increments = m_increments;
    if (!(isValue(increments.major) && increments.major > 0))
        increments.major = automaticStep(m_scale.upper() - m_scale.lower());
    const Ticks ticks = linearTicks(m_scale, increments, {.lengthPx = circumference});
    // The ends of the scale are one place, named by the lower limit.
    const auto closes = [this](double value) { return m_scale.fraction(value) > 1 - 1e-9; };
    for (const Tick& tick : ticks.major)
        if (!closes(tick.value))
            result.spokes.push_back({turn(tick.value), tick.label});
    for (const double value : ticks.minor)
        if (!closes(value))
            result.minor.push_back(turn(value));
    return result;
}

} // namespace chartdraw
