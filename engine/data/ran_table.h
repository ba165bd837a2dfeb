#pragma once
// Tables of random numbers for sample data. The generator is our own, so that a seed gives the same numbers
// with every compiler and standard library, today and in the next release.

#include "engine/object/object.h"

#include <cstddef>
#include <span>
#include <vector>

namespace chartdraw {

/// The numbers of a column depend on the seed, the column and the arguments of its filling, and not on what
/// was filled before. Limits in the wrong order are exchanged; numbers beyond 8e307 are limited to that, so
/// that every difference is finite. Filling a column that is not there does nothing.
class RanTable : public Object {
public:
    static constexpr Kind kKind = Kind::RanTable;
    static constexpr int kMaxColumns = 1000;
    static constexpr int kMaxRows = 1'000'000;
    static constexpr int kMaxCells = 10'000'000;

    /// All cells are 0. Negative counts are 0; rows give way where there would be too many cells.
    RanTable(int seed, int columns, int rows);

    /// Values spread evenly over [minimum, maximum]. A NaN limit counts as the other one, two as 0.
    void setCol(int column, double minimum, double maximum);

    /// Chart times `step` seconds apart. With `weekdaysOnly` a row that would fall on a weekend moves on by
    /// whole days to the next weekday (back with a negative step), and all later rows with it.
    void setDateCol(int column, double start, double step, bool weekdaysOnly);

    /// High, low, open and close in four columns: a walk of the close from `start` by steps between the
    /// deltas, within [lower, upper]; each row opens where the one before closed. Where the limits leave less
    /// room than the deltas, steps are spread evenly over the room that there is. A NaN limit is no limit.
    void setHLOCCols(int firstColumn, double start, double minDelta, double maxDelta, double lower,
                     double upper);

    /// The numbers of a column, valid as long as the table; none for a column that is not there.
    std::span<const double> column(int index) const;

private:
    bool has(int column) const;
    std::span<double> cells(int column);

    int m_seed;
    std::size_t m_rows;
    std::vector<std::vector<double>> m_columns;
};

} // namespace chartdraw
