#pragma once
// Where angles and radii of a polar chart stand on the picture, and the outlines of rings and sectors.

#include "engine/axis/axis_map.h"

#include <QPainterPath>
#include <QPointF>
#include <vector>

namespace chartdraw {

/// Positions are centres of pixels, as axis_map.h tells; outlines are paths, counted in pixel borders.
struct PolarFrame {
    QPointF centre;
    double radius = 0;          ///< pixels
    AxisMap radial;             ///< from a value to pixels from the centre
    int decimals = 15;          ///< that tell values on the radial axis apart; below 0: tens...
    std::vector<double> spokes; ///< parts of the turn, 0 up to 1, rising
    bool polygon = false;       ///< rings have corners at the spokes

    QPointF at(double turn, double pixels) const;
    /// Pixels from the centre, not below 0; what lies beyond the scale is beyond the radius. NaN for gaps.
    double pixels(double value) const;

    QPainterPath circle(double pixels) const;
    /// A full ring line: a circle, or a polygon where three or more spokes make one.
    QPainterPath ring(double pixels) const;
    /// The ring between two radii, in either order.
    QPainterPath band(double from, double to) const;
    /// The part of the plot from a part of the turn on.
    QPainterPath sector(double fromTurn, double turns) const;
    /// The part from a spoke to the next one.
    QPainterPath sectorBehind(std::size_t spoke) const;

private:
    /// The point of a polygon's outermost ring at a part of the turn.
    QPointF rim(double turn) const;
};

} // namespace chartdraw
