#pragma once
// Rectangles with rounded corners.

#include <QPainterPath>
#include <QRectF>
#include <array>

namespace chartdraw {

/// Corner radii in pixels: top left, top right, bottom right, bottom left. Radii below 0 count as 0.
using Corners = std::array<int, 4>;

/// Whether no corner is rounded.
bool isSquare(const Corners& corners);

/// The radii of the rectangle that lies `inset` pixels within.
Corners insetCorners(Corners corners, int inset);

/// The outline of a rectangle with rounded corners; radii are limited to half the sides.
QPainterPath roundedRect(const QRectF& rect, const Corners& corners);

} // namespace chartdraw
