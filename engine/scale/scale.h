#pragma once
// The map from data values to the length of an axis: a value has a fraction, 0 at the lower limit and 1 at
// the upper one. Which pixel that is, and a reversed axis, is the business of who draws.

#include "engine/data/no_value.h"

#include <cmath>
#include <cstdint>
#include <limits>
#include <span>

namespace chartdraw {

enum class ScaleKind : std::uint8_t {
    Linear,
    Log,        ///< base 10
    Date,       ///< linear in chart time, seconds since 1 January of year 1
    Enumerated, ///< item numbers, from 0
};

/// A value type, always valid: 0 to 1 by default. Limits may be given in any order; what is no finite number
/// (NaN, infinities, missing) counts as 0, sizes are limited to +-1e307, and limits that are equal, or too
/// close to tell apart, are spread.
class Scale {
public:
    Scale() = default;
    static Scale linear(double lower, double upper);
    /// A lower limit at or below 0 is replaced by one two decades below the upper one, both by 1 to 10. Equal
    /// limits show the decade that follows. Sizes are limited to 1e-300..1e300.
    static Scale log(double lower, double upper);
    /// Limited to the years 1 to 9999; limits less than a second apart show the day that follows.
    static Scale date(double lower, double upper);
    /// Items 0 to count - 1: half an item of room at either end with `indent`, none without. A count at or
    /// below 0 counts as 1, and a single item always has its room.
    static Scale items(int count, bool indent);

    ScaleKind kind() const { return m_kind; }
    double lower() const { return m_lower; }
    double upper() const { return m_upper; }

    /// Fraction of a value, limited to +-1e6 so that it can be turned into pixels safely. NaN and missing
    /// values give NaN. On a log scale a value at or below 0 lies far below the lower end.
    double fraction(double value) const {
        if (!isValue(value))
            return std::numeric_limits<double>::quiet_NaN();
        const double t = m_kind == ScaleKind::Log ? (value > 0 ? std::log10(value) : -1e9) : value;
        const double f = (t - m_from) / m_span;
        return f < -kFar ? -kFar : (f > kFar ? kFar : f);
    }
    /// lower + length * fraction(value) for many values, to the last bit; gaps lie anywhere beyond the
    /// limits.
    void positions(std::span<const double> values, double lower, double length, double* result) const;
    /// The value at a fraction; NaN for NaN.
    double value(double fraction) const;
    /// Whether a value lies between the limits, a millionth of the length beyond them included.
    bool contains(double value) const;
    /// The value limited to the limits, NaN for NaN.
    double clamp(double value) const;

    bool operator==(const Scale&) const = default;

private:
    static constexpr double kFar = 1e6;
    Scale(ScaleKind kind, double lower, double upper);

    ScaleKind m_kind = ScaleKind::Linear;
    double m_lower = 0;
    double m_upper = 1;
    double m_from = 0; // lower limit and length in the units of the map: values, or powers of ten
    double m_span = 1;
};

} // namespace chartdraw
