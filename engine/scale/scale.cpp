#include "engine/scale/scale.h"

#include "engine/data/chart_time.h"
#include "engine/data/fast_loop.h"

#include <algorithm>
#include <utility>

namespace chartdraw {
namespace {

constexpr double kLargest = 1e307;
constexpr double kSmallestSpan = 1e-306;

double limited(double value, double largest) {
    return isValue(value) ? std::clamp(value, -largest, largest) : 0;
}

/// Of a scale that is no log one.
CHART_FAST_LOOP void linearPositions(const double* values, std::size_t count, double from, double span,
                                     double farthest, double lower, double length, double* result) {
    for (std::size_t i = 0; i < count; ++i) {
        const double f = (values[i] - from) / span;
        const double above = f < -farthest ? -farthest : f;
        result[i] = lower + length * (above > farthest ? farthest : above);
    }
}

} // namespace

Scale::Scale(ScaleKind kind, double lower, double upper) : m_kind(kind), m_lower(lower), m_upper(upper) {
    const bool isLog = kind == ScaleKind::Log;
    m_from = isLog ? std::log10(lower) : lower;
    m_span = (isLog ? std::log10(upper) : upper) - m_from;
}

Scale Scale::linear(double lower, double upper) {
    lower = limited(lower, kLargest);
    upper = limited(upper, kLargest);
    if (lower > upper)
        std::swap(lower, upper);
    const double size = std::max(std::abs(lower), std::abs(upper));
    if (upper - lower <= std::max(size * 1e-12, kSmallestSpan))
        upper = lower + std::max(1.0, size * 0.1);
    return {ScaleKind::Linear, lower, upper};
}

Scale Scale::log(double lower, double upper) {
    lower = limited(lower, 1e300);
    upper = limited(upper, 1e300);
    if (lower > upper)
        std::swap(lower, upper);
    if (upper <= 0)
        return {ScaleKind::Log, 1, 10};
    upper = std::max(upper, 1e-297);
    lower = lower > 0 ? std::max(lower, 1e-300) : upper / 100;
    if (std::log10(upper) - std::log10(lower) < 1e-6)
        upper = lower * 10;
    return {ScaleKind::Log, lower, upper};
}

Scale Scale::date(double lower, double upper) {
    constexpr double end = kLastChartTime + 1;
    lower = std::max(limited(lower, end), kFirstChartTime);
    upper = std::max(limited(upper, end), kFirstChartTime);
    if (lower > upper)
        std::swap(lower, upper);
    if (upper - lower < 1) {
        lower = std::min(lower, end - kSecondsPerDay);
        upper = lower + kSecondsPerDay;
    }
    return {ScaleKind::Date, lower, upper};
}

Scale Scale::items(int count, bool indent) {
    const double last = std::max(count, 1) - 1;
    const double room = indent || last == 0 ? 0.5 : 0;
    return {ScaleKind::Enumerated, -room, last + room};
}

void Scale::positions(std::span<const double> values, double lower, double length, double* result) const {
    if (m_kind == ScaleKind::Log)
        for (const double value : values)
            *result++ = lower + length * fraction(value);
    else
        linearPositions(values.data(), values.size(), m_from, m_span, kFar, lower, length, result);
}

double Scale::value(double fraction) const {
    if (m_kind != ScaleKind::Log || fraction == 0 || fraction == 1)
        return std::lerp(m_lower, m_upper, fraction);
    return std::pow(10.0, m_from + fraction * m_span);
}

bool Scale::contains(double value) const {
    const double f = fraction(value);
    return f >= -1e-6 && f <= 1 + 1e-6;
}

double Scale::clamp(double value) const {
    return isValue(value) ? std::clamp(value, m_lower, m_upper) : std::numeric_limits<double>::quiet_NaN();
}

} // namespace chartdraw
