#pragma once
// Smooth curves through points of the plane.

#include <QPointF>
#include <span>
#include <vector>

namespace chartdraw {

/// Points of a curve through the given ones, close enough for lines between them to look round. It passes
/// each point in turn, without loops or cusps between two of them; points that lie on one another count
/// once. A closed curve goes on from the last point to the first and ends there.
std::vector<QPointF> smoothCurve(std::span<const QPointF> points, bool closed);

} // namespace chartdraw
