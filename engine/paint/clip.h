#pragma once
// Cuts geometry down to what can show. The raster engine goes wrong on coordinates beyond some ten thousand
// pixels, and data has no such bounds.

#include <QPainterPath>
#include <QPointF>
#include <QRectF>

namespace chartdraw {

/// Cuts the segment to the rectangle, on its own line; false when nothing of it lies inside. The ends are
/// finite.
bool clipSegment(QPointF& from, QPointF& to, const QRectF& bounds);

/// The part of a filled path within the rectangle, flattened to polygons.
QPainterPath clipPath(const QPainterPath& path, const QRectF& bounds);

} // namespace chartdraw
