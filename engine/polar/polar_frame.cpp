#include "engine/polar/polar_frame.h"

#include "engine/axis/round_labels.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace chartdraw {

namespace {

const QPointF kToBorders(0.5, 0.5);

} // namespace

QPointF PolarFrame::at(double turn, double pixels) const {
    return centre + roundDirection(turn * 2 * std::numbers::pi) * pixels;
}

double PolarFrame::pixels(double value) const {
    const double from = radial.pixel(value);
    return std::isnan(from) ? from : std::max(0.0, from);
}

QPainterPath PolarFrame::ring(double pixels) const {
    QPainterPath path;
    if (!polygon || spokes.size() < 3) {
        path.addEllipse(centre + kToBorders, pixels, pixels);
        return path;
    }
    for (const double turn : spokes) {
        const QPointF corner = at(turn, pixels) + kToBorders;
        path.elementCount() == 0 ? path.moveTo(corner) : path.lineTo(corner);
    }
    path.closeSubpath();
    return path;
}

QPainterPath PolarFrame::band(double from, double to) const {
    const auto inside = [this](double pixels) { return std::clamp(pixels, 0.0, radius); };
    const double inner = inside(std::min(from, to)), outer = inside(std::max(from, to));
    QPainterPath path;
    if (outer > inner) {
        path = ring(outer); // odd-even: the inner ring is a hole
        if (inner > 0)
            path.addPath(ring(inner));
    }
    return path;
}

QPainterPath PolarFrame::sector(double fromTurn, double turns) const {
    QPainterPath path;
    if (turns >= 1)
        return ring(radius);
    const QPointF middle = centre + kToBorders;
    const QRectF circle(middle - QPointF(radius, radius), QSizeF(2 * radius, 2 * radius));
    path.moveTo(middle);
    path.arcTo(circle, 90 - fromTurn * 360, -turns * 360); // the toolkit's angles run the other way
    path.closeSubpath();
    return polygon && spokes.size() >= 3 ? path.intersected(ring(radius)) : path;
}

} // namespace chartdraw
