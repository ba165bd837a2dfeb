#pragma once
// Labels around a circle, as pure numbers: where a box stands that just clears the circle, and which boxes
// stay where they have no room beside each other.

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <span>
#include <vector>

namespace chartdraw {

/// The direction of an angle (radians clockwise from the top), of length 1, y downward.
QPointF roundDirection(double angle);

/// A box with its middle on the ray at `angle`, touching the circle from outside.
QRectF boxOutside(QPointF centre, double radius, double angle, QSizeF size);
/// The same from inside; about the centre where the box is too large for the circle.
QRectF boxInside(QPointF centre, double radius, double angle, QSizeF size);

/// Whether any of the box lies within the circle.
bool reachesInto(const QRectF& box, QPointF centre, double radius);

/// The box moved by the least way that brings it into the room; a side that is too long stands at its start.
QRectF movedInto(QRectF box, const QRectF& room);

/// Which boxes stay so that none comes nearer than `gap` to another: every n-th one, the first always, and
/// the last as well if it can.
std::vector<bool> thinAround(std::span<const QRectF> boxes, double gap);

} // namespace chartdraw
