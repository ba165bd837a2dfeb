#pragma once
// Lines between points that are not straight: smooth curves and steps. Points are positions along x and along
// y; a NaN is a gap.

#include <QPointF>
#include <span>
#include <vector>

namespace chartdraw {

/// A smooth curve through the points, as short straight pieces. Between two points it stays between their
/// values, so it shows no peak that the data does not have.
std::vector<QPointF> smoothCurve(std::span<const QPointF> points);

/// Each value is kept until the next point. On whole pixels.
std::vector<QPointF> steps(std::span<const QPointF> points);

/// Puts level pieces of a line onto whole pixels, where they are crisp.
void snapLevels(std::span<QPointF> points);

/// Calls `visit` with each stretch of points between gaps.
template <class Visit>
void forEachRun(std::span<const QPointF> points, const Visit& visit) {
    for (std::size_t i = 0; i < points.size();) {
        std::size_t end = i;
        while (end < points.size() && points[end].x() == points[end].x() &&
               points[end].y() == points[end].y())
            ++end;
        if (end > i)
            visit(points.subspan(i, end - i));
        i = end + 1;
    }
}

} // namespace chartdraw
