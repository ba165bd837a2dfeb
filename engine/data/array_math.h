#pragma once
// Series of numbers, one a row, and the calculations of technical analysis on them.

#include "engine/object/object.h"

#include <span>
#include <vector>

namespace chartdraw {

/// Every operation works in place and keeps the number of rows. A row without a value (kNoValue, NaN, an
/// infinity) gives kNoValue wherever it takes part, and so does a result that is no finite number. A second
/// series that is shorter has no value in its missing rows; surplus rows are ignored. Moving operations look
/// at the last `interval` rows, this one included, and rows with less history have no value; an interval or
/// offset below 1 counts as 1. They cost the same for every interval.
class ArrayMath : public Object {
public:
    static constexpr Kind kKind = Kind::ArrayMath;

    explicit ArrayMath(std::span<const double> values);

    /// The series as it stands, with kNoValue for every row without a value.
    std::span<const double> result() const { return m_values; }

    void add(std::span<const double> other);
    void sub(std::span<const double> other);
    void mul(double factor);
    void div(double divisor);
    /// Division by another series, `zeroByZero` where both are 0.
    void financeDiv(std::span<const double> divisor, double zeroByZero);
    void abs();
    /// Difference to the value `offset` rows before.
    void delta(int offset);

    void movAvg(int interval);
    void movMax(int interval);
    void movMin(int interval);
    /// Standard deviation of the population: divided by the interval, not by one less.
    void movStdDev(int interval);
    /// Exponential average with a smoothing factor of 0 to 1 (limited), seeded with the first value. Rows
    /// without a value are passed over. A factor that is NaN leaves no values.
    void expAvg(double smoothing);

    /// The largest value, 0 where there is none.
    double max() const;

    /// Keeps the rows in which `test` is above, below, equal to 0 and sets the others to `fill`. An empty
    /// `test` is the series itself.
    void selectGTZ(std::span<const double> test, double fill);
    void selectLTZ(std::span<const double> test, double fill);
    void selectEQZ(std::span<const double> test, double fill);

private:
    std::vector<double> m_values;
};

} // namespace chartdraw
