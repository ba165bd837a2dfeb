#include "engine/pie/sector_geometry.h"

#include "engine/data/no_value.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace chartdraw {

namespace {

constexpr double kTurn = 2 * std::numbers::pi;
constexpr double kWhole = kTurn - 1e-9; ///< a span from here on has no ends

double normalised(double angle) {
    const double rest = std::fmod(angle, kTurn);
    return rest < 0 ? rest + kTurn : rest;
}

/// QPainterPath counts degrees anticlockwise from the right.
double painterDegrees(double angle) {
    return 90 - angle * 180 / std::numbers::pi;
}

void arcTo(QPainterPath& path, const QRectF& ellipse, double from, double to) {
    path.arcTo(ellipse, painterDegrees(from), painterDegrees(to) - painterDegrees(from));
}

/// Walls begin a little under their face: two smoothed edges side by side would let the background through.
constexpr double kUnderFace = 0.75;

QPointF underFace(QPointF depth) {
    return depth * (kUnderFace / std::hypot(depth.x(), depth.y()));
}

} // namespace

std::vector<double> shares(std::span<const double> values) {
    std::vector<double> result;
    result.reserve(values.size());
    double largest = 0;
    for (double value : values) {
        result.push_back(isValue(value) && value > 0 ? value : 0);
        largest = std::max(largest, result.back());
    }
    if (largest <= 0)
        return result;
    // Scaled by the largest first: a sum of huge values must not leave the range of numbers.
    double sum = 0;
    for (double& value : result) {
        value /= largest;
        sum += value;
    }
    for (double& value : result)
        value /= sum;
    return result;
}

std::vector<SectorSpan> sectorSpans(std::span<const double> shares, double startDegrees, bool clockwise) {
    std::vector<SectorSpan> result;
    result.reserve(shares.size());
    const double degrees = std::isfinite(startDegrees) ? std::fmod(startDegrees, 360.0) : 0;
    double at = degrees * std::numbers::pi / 180;
    for (double share : shares) {
        const double span = share * kTurn;
        result.push_back({clockwise ? at : at - span, span});
        at += clockwise ? span : -span;
    }
    return result;
}

QPointF direction(double angle) {
    return {std::sin(angle), -std::cos(angle)};
}

QRectF PieBody::ellipse(QPointF about, double ellipseRadius) const {
    const QPointF half(ellipseRadius, ellipseRadius * flatness);
    return {about - half, about + half};
}

QPointF PieBody::at(QPointF about, double angle, double distance) const {
    return about + shift(angle, distance);
}

QPointF PieBody::shift(double angle, double distance) const {
    const QPointF way = direction(angle) * distance;
    return {way.x(), way.y() * flatness};
}

double PieBody::facing(double angle) const {
    if (!solid())
        return 0;
    return std::max(0.0, std::cos(angle - viewerAngle(*this)));
}

QRectF PieBody::bounds(QPointF about) const {
    const QRectF face = ellipse(about, radius);
    return face.united(face.translated(depth));
}

QPainterPath PieBody::face(QPointF about, const SectorSpan& span) const {
    QPainterPath path;
    const QRectF rim = ellipse(about, radius);
    const QRectF hole = ellipse(about, inner);
    if (span.span >= kWhole) {
        path.addEllipse(rim);
        if (inner > 0)
            path.addEllipse(hole);
        return path;
    }
    path.moveTo(at(about, span.start, inner));
    path.lineTo(at(about, span.start, radius));
    arcTo(path, rim, span.start, span.end());
    if (inner > 0) {
        path.lineTo(at(about, span.end(), inner));
        arcTo(path, hole, span.end(), span.start);
    }
    path.closeSubpath();
    return path;
}

QPainterPath PieBody::roundWall(QPointF about, const SectorSpan& span, bool outer) const {
    QPainterPath path;
    const double wallRadius = outer ? radius : inner;
    if (!solid() || wallRadius <= 0)
        return path;
    // The outer wall shows on the half turned to the viewer, the inner one on the other half.
    const double viewer = viewerAngle(*this) + (outer ? 0 : std::numbers::pi);
    const double visibleStart = viewer - kTurn / 4;
    const double offset = normalised(span.start - visibleStart); // start of the sector, from that of the half
    const QRectF lower = ellipse(about, wallRadius).translated(depth);
    const QPointF lifted = about - underFace(depth);
    const QRectF upper = ellipse(lifted, wallRadius);
    // A sector of more than half a turn can reach into the half at both of its ends.
    for (const double turn : {0.0, kTurn}) {
        const double from = visibleStart + std::max(0.0, offset - turn);
        const double to = visibleStart + std::min(kTurn / 2, offset - turn + span.span);
        if (to - from <= 1e-9)
            continue;
        path.moveTo(at(lifted, from, wallRadius));
        arcTo(path, upper, from, to);
        path.lineTo(at(about, to, wallRadius) + depth);
        arcTo(path, lower, to, from);
        path.closeSubpath();
    }
    return path;
}

QPainterPath PieBody::cutWall(QPointF about, const SectorSpan& span, bool atEnd) const {
    QPainterPath path;
    const double angle = atEnd ? span.end() : span.start;
    const double outwards = angle + (atEnd ? kTurn / 4 : -kTurn / 4);
    if (!solid() || span.span >= kWhole || facing(outwards) <= 1e-6)
        return path;
    const QPointF near = at(about, angle, inner);
    const QPointF far = at(about, angle, radius);
    const QPointF lift = underFace(depth);
    path.moveTo(near - lift);
    path.lineTo(at(about, angle, std::max(inner, radius - kUnderFace)) - lift);
    path.lineTo(far);
    path.lineTo(far + depth);
    path.lineTo(near + depth);
    path.closeSubpath();
    return path;
}

double viewerAngle(const PieBody& body) {
    // On the pie's own plane the picture's y is stretched by 1 / flatness. The normal of the ellipse that is
    // at right angles to the depth stands where the plane's direction, flattened, does not change sign.
    return std::atan2(body.depth.x() * body.flatness, -body.depth.y());
}

std::vector<WallStep> wallOrder(std::span<const SectorSpan> spans, double towardsViewer) {
    struct Ranked {
        WallStep step;
        double distance; ///< from the viewer, as an angle: pi is the back
    };
    std::vector<Ranked> ranked;
    const double back = towardsViewer + std::numbers::pi;
    for (std::size_t i = 0; i < spans.size(); ++i) {
        const SectorSpan& span = spans[i];
        if (span.span <= 0)
            continue;
        const bool holdsBack = normalised(back - span.start) < span.span;
        const bool holdsFront = normalised(towardsViewer - span.start) < span.span;
        const double fromFront = normalised(span.middle() - towardsViewer);
        const double between = std::min(fromFront, kTurn - fromFront);
        // A sector at the very back or front lies behind or before all others, whatever its middle is; one
        // that is both has its inner walls behind and its outer wall before them.
        const double innerAt = holdsBack ? kTurn : holdsFront ? -1 : between;
        const double outerAt = holdsFront ? -1 : holdsBack ? kTurn : between;
        ranked.push_back({{i, false}, innerAt});
        ranked.push_back({{i, true}, outerAt});
    }
    std::stable_sort(ranked.begin(), ranked.end(),
                     [](const Ranked& a, const Ranked& b) { return a.distance > b.distance; });
    std::vector<WallStep> result;
    result.reserve(ranked.size());
    for (const Ranked& entry : ranked)
        result.push_back(entry.step);
    return result;
}

} // namespace chartdraw
