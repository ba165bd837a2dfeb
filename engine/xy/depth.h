#pragma once
// Bodies in oblique depth: what is at the front at (x, y) is at the back at (x + depth, y - depth). One look
// sees the upper and the right sides of every body.

#include "engine/paint/canvas.h"

#include <QPolygonF>
#include <span>

namespace chartdraw {

/// `colour` made lighter (amount above 0, up to 1: white) or darker (below 0, down to -1: black). Patterns
/// and metals give their plain colour so changed.
Colour shaded(const ColourTable& colours, Colour colour, double amount);

/// The sides of a body with a convex front that can be seen, from the front's outline (picture coordinates,
/// pixel borders) to the back. `side` is the plain colour, each side shaded by where it looks; `edge` may be
/// invisible.
void drawSides(Canvas& canvas, const QPolygonF& front, int depth, Colour side, Colour edge);

/// The band of a line in depth. Points as Canvas::polyline takes them, gaps included.
void drawRibbon(Canvas& canvas, std::span<const QPointF> points, int depth, Colour colour);

} // namespace chartdraw
