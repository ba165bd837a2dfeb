#pragma once
// The geometry of a pie as pure numbers: which part of the turn each value takes, the outlines of the sectors
// and of their walls in a view from above, and the order in which walls hide one another.
//
// Angles are radians clockwise from the top. A pie is a flat body: its upper face is an ellipse (a circle
// seen slantwise) and its lower face the same, moved by `depth`. Faces lie in one plane, so that no wall
// hides a face: walls are drawn first, from back to front, then all faces.

#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <span>
#include <vector>

namespace chartdraw {

/// The part of the turn that a sector takes; `span` is never negative, `start` is its anticlockwise end.
struct SectorSpan {
    double start = 0;
    double span = 0;

    double middle() const { return start + span / 2; }
    double end() const { return start + span; }
};

/// Fractions of the whole, each 0 to 1. Negative and missing values count as 0; a sum of 0 gives only zeros.
std::vector<double> shares(std::span<const double> values);

/// Spans of sectors one after the other, from `startDegrees` clockwise from the top.
std::vector<SectorSpan> sectorSpans(std::span<const double> shares, double startDegrees, bool clockwise);

/// The direction of an angle on the pie's own plane, of length 1, y downward.
QPointF direction(double angle);

/// Shape and view of the whole pie.
struct PieBody {
    QPointF centre;      ///< of the upper face, pixels
    double radius = 0;   ///< of the rim
    double inner = 0;    ///< of the hole; 0: none
    double flatness = 1; ///< height of the face's ellipse by its width
    QPointF depth = {};  ///< from the upper face to the lower one; null: flat

    bool solid() const { return !depth.isNull(); }
    /// The face's ellipse of a radius about a centre.
    QRectF ellipse(QPointF about, double ellipseRadius) const;
    /// The point at an angle and radius of the face about a centre.
    QPointF at(QPointF about, double angle, double distance) const;
    /// A way outwards along an angle, in the picture.
    QPointF shift(double angle, double distance) const;
    /// How much of the depth a wall with the outward normal `angle` shows: 1 in front, 0 from the side on.
    double facing(double angle) const;
    /// Everything that a sector about `about` may cover, its walls included.
    QRectF bounds(QPointF about) const;

    /// The upper face of a sector.
    QPainterPath face(QPointF about, const SectorSpan& span) const;
    /// The part of the outer or inner wall that shows: where it faces the viewer. Empty: none.
    QPainterPath roundWall(QPointF about, const SectorSpan& span, bool outer) const;
    /// The straight wall at one end of a sector; empty where it faces away.
    QPainterPath cutWall(QPointF about, const SectorSpan& span, bool atEnd) const;
};

/// A step of drawing the walls.
struct WallStep {
    std::size_t sector;
    bool front; ///< the outer wall; else the cut and inner walls
};

/// The order in which walls are to be drawn, those at the back first. Sectors without a span are left out.
/// `towardsViewer` is the angle of the depth on the pie's plane.
std::vector<WallStep> wallOrder(std::span<const SectorSpan> spans, double towardsViewer);

/// The angle of the depth on the pie's plane: pi when the depth goes straight down.
double viewerAngle(const PieBody& body);

} // namespace chartdraw
