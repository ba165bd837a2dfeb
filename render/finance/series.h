#pragma once
// Series of numbers, one a row, and what the composer calculates with them.

#include <chartdraw/surface.h>
#include <span>
#include <vector>

/// One value a row; CHART_NO_VALUE where a row has none.
using Series = std::span<const double>;

inline int RowCount(Series series) {
    return static_cast<int>(series.size());
}

/// A series being calculated with, in place. It ends with this object; layers keep copies.
class CSeriesMath {
public:
    explicit CSeriesMath(Series series) : m_math(CArrayMath_create(series.data(), RowCount(series))) {}
    ~CSeriesMath() { CArrayMath_destroy(m_math); }
    CSeriesMath(CSeriesMath&& other) noexcept : m_math(other.m_math) { other.m_math = nullptr; }
    CSeriesMath(const CSeriesMath&) = delete;
    CSeriesMath& operator=(const CSeriesMath&) = delete;

    operator ArrayMath*() const { return m_math; }

    /// The rows as they stand; good until the next calculation.
    Series Rows() const {
        const double* rows = nullptr;
        int count = 0;
        CArrayMath_result(m_math, &rows, &count);
        return {rows, static_cast<std::size_t>(count)};
    }

private:
    ArrayMath* m_math;
};
