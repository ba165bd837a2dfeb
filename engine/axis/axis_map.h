#pragma once
// From a value to a pixel along an axis and back. A pixel position is a number on the chart's grid: a whole
// number n is the centre of pixel column (or row) n, so that a line there covers that pixel and no other.

#include "engine/scale/scale.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <span>

namespace chartdraw {

class AxisMap {
public:
    /// pixel = offset + factor * value, for loops over many points.
    struct Affine {
        double offset = 0;
        double factor = 1;
    };

    AxisMap() = default;
    /// The limits of `scale` stand at the positions `lower` and `upper`, which may be in either order.
    AxisMap(const Scale& scale, double lower, double upper)
        : m_scale(scale), m_lower(lower), m_upper(upper) {}
    /// The map of an axis that is tied to this one: value there = slope * value here + intercept. `slope` is
    /// finite and not 0.
    AxisMap tied(double slope, double intercept) const;

    /// The position of a value, not limited to the axis but to about a million times its length, so that it
    /// fits an int after a check against the plot area; NaN for NaN and missing values. On a log scale what
    /// is not above 0 lies far below the lower end.
    double pixel(double value) const { return m_lower + (m_upper - m_lower) * m_scale.fraction(own(value)); }
    /// The positions of many values; those of gaps are NaN or far beyond the ends.
    void pixels(std::span<const double> values, double* positions) const {
        if (m_tied)
            for (const double value : values)
                *positions++ = pixel(value);
        else
            m_scale.positions(values, m_lower, m_upper - m_lower, positions);
    }
    /// The pixel that a tick, a grid line, a bar's end at this value covers: the nearest one, limited to
    /// +-1e9. The lowest for NaN.
    int wholePixel(double value) const {
        const double at = std::floor(pixel(value) + 0.5);
        return at > -kFarthest && at < kFarthest ? static_cast<int>(at) : at > 0 ? kFarthest : -kFarthest;
    }
    double value(double pixel) const;

    /// Whether the value lies on the axis, its ends included.
    bool contains(double value) const { return m_scale.contains(own(value)); }
    /// The values at the ends of the axis, lower <= upper.
    double lower() const;
    double upper() const;
    /// The value of the axis nearest to `value`: where a bar on a zero that is out of sight begins.
    double clamp(double value) const;
    /// Positions of the lower and the upper limit.
    double lowerPixel() const { return m_lower; }
    double upperPixel() const { return m_upper; }

    /// None on a log scale. Not limited as pixel() is, and gaps are not looked for.
    std::optional<Affine> affine() const;
    const Scale& scale() const { return m_scale; }

private:
    static constexpr int kFarthest = 1'000'000'000;
    static double finite(double value) { return std::clamp(value, -1e307, 1e307); }
    double own(double value) const {
        return m_tied && isValue(value) ? finite((value - m_intercept) / m_slope) : value;
    }
    double other(double value) const { return m_tied ? finite(value * m_slope + m_intercept) : value; }

    Scale m_scale;
    double m_lower = 0, m_upper = 0;
    bool m_tied = false;
    double m_slope = 1, m_intercept = 0;
};

} // namespace chartdraw
