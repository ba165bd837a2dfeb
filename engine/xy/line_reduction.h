#pragma once
// From the values of a series to the points of its line. Where many rows fall into one column of pixels only
// those points are kept that the picture can show: the first, the lowest, the highest and the last of them.
// Works straight on the stored numbers, in any order of x: rows that follow each other within one column are
// what is reduced.

#include "engine/xy/layer.h"

#include <QPointF>
#include <cstddef>
#include <limits>
#include <optional>
#include <span>
#include <vector>

namespace chartdraw {

/// A stretch of a pixel column, positions along the axes, that a thin line with more turns than points were
/// kept covers wholly.
struct CoveredStretch {
    int column = 0;
    int from = 0, to = 0; ///< pixels along y, from <= to
};

class LineReduction {
public:
    /// `values` holds a number or a gap a row of the layer, before trimming; it and the layer must outlive
    /// the reduction. `frame` tells the positions. Values that are not above `above` are gaps too.
    LineReduction(const Layer& layer, NumberView values, const PlotFrame& frame,
                  double above = -std::numeric_limits<double>::infinity());

    /// Appends points (positions along x and along y, a NaN for each gap), about `most` of them or all that
    /// are left; false when there are none. A line goes on from the last point of one call to the first of
    /// the next, which repeats it.
    bool more(std::vector<QPointF>& points, std::size_t most);

    /// What the points given so far do not cover though the full line does.
    const std::vector<CoveredStretch>& covered() const { return m_covered; }

private:
    struct Run;
    double xOf(std::size_t row) const {
        return m_x.values.empty() ? static_cast<double>(row - m_begin) : m_x.values[row];
    }
    double pixelOf(std::size_t row) const {
        const double x = xOf(row);
        return m_affine ? m_affine->offset + m_affine->factor * x : m_frame.x.pixel(x);
    }
    bool isShown(double value) const { return isValue(value) && value > m_above; }
    bool isGap(std::size_t row) const;
    std::size_t rowOf(double value, std::size_t row) const;
    Run scan(std::size_t row, double half) const;
    void append(std::vector<QPointF>& points, std::size_t row) const;
    void appendColumn(std::vector<QPointF>& points);

    PlotFrame m_frame;
    NumberView m_x, m_y;
    double m_above;
    std::size_t m_begin, m_end, m_next;
    std::optional<AxisMap::Affine> m_affine;
    bool m_joined = false; ///< the row before `m_next` is a point of the line
    std::vector<CoveredStretch> m_covered;
};

/// All points of a series at once.
std::vector<QPointF> reducedPoints(const Layer& layer, NumberView values, const PlotFrame& frame,
                                   double above = -std::numeric_limits<double>::infinity());

} // namespace chartdraw
