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

QPainterPath PolarFrame::circle(double pixels) const {
    QPainterPath path;
    path.addEllipse(centre + kToBorders, pixels, pixels);
    return path;
}

QPainterPath PolarFrame::ring(double pixels) const {
    if (!polygon || spokes.size() < 3)
        return circle(pixels);
    QPainterPath path;
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

QPointF PolarFrame::rim(double turn) const {
    // The corners on both sides, and where the ray meets the line from one to the other.
    const double part = turn - std::floor(turn);
    const auto above = std::upper_bound(spokes.begin(), spokes.end(), part);
    const double next = above == spokes.end() ? spokes.front() + 1 : *above;
    const double before = above == spokes.begin() ? spokes.back() - 1 : *(above - 1);
    const double half = (next - before) * std::numbers::pi;
    const double length = std::cos(half) / std::cos((part - before) * 2 * std::numbers::pi - half);
    // Across more than half a turn the line runs behind the centre, which then lies outside.
    return at(turn, length > 0 && length <= 1 + 1e-9 ? radius * length : 0);
}

QPainterPath PolarFrame::sector(double fromTurn, double turns) const {
    QPainterPath path;
    if (turns >= 1)
        return ring(radius);
    const QPointF middle = centre + kToBorders;
    if (polygon && spokes.size() >= 3) {
        path.moveTo(middle);
        path.lineTo(rim(fromTurn) + kToBorders);
        const double first = fromTurn - std::floor(fromTurn);
        for (int round = 0; round < 2; ++round)
            for (const double spoke : spokes)
                if (const double turn = spoke + round; turn > first && turn < first + turns)
                    path.lineTo(at(spoke, radius) + kToBorders);
        path.lineTo(rim(fromTurn + turns) + kToBorders);
        path.closeSubpath();
        return path;
    }
    const QRectF circle(middle - QPointF(radius, radius), QSizeF(2 * radius, 2 * radius));
    path.moveTo(middle);
    path.arcTo(circle, 90 - fromTurn * 360, -turns * 360); // the toolkit's angles run the other way
    path.closeSubpath();
    return path;
}

QPainterPath PolarFrame::sectorBehind(std::size_t spoke) const {
    const double end = spoke + 1 < spokes.size() ? spokes[spoke + 1] : spokes.front() + 1;
    return sector(spokes[spoke], end - spokes[spoke]);
}

} // namespace chartdraw
