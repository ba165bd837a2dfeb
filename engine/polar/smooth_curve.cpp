#include "engine/polar/smooth_curve.h"

#include <algorithm>
#include <cmath>

namespace chartdraw {

namespace {

constexpr double kPiece = 3;        ///< pixels of a line that stands for a piece of the curve
constexpr double kMostPieces = 100; ///< between two points

double distance(QPointF a, QPointF b) {
    return std::hypot(a.x() - b.x(), a.y() - b.y());
}

/// How the curve leaves `at`, as a control point of a cubic towards `next`: a spline whose parameter grows
/// with the square root of the distance, which is what keeps it from overshooting.
QPointF control(QPointF before, QPointF at, QPointF next) {
    const double d1 = distance(before, at), d2 = distance(at, next);
    const double a = std::sqrt(d1), b = std::sqrt(d2);
    if (a == 0 || b == 0)
        return at;
    // The tangent of the spline at `at`, scaled to a third of the way to `next`.
    const QPointF tangent = (at - before) / a - (next - before) / (a + b) + (next - at) / b;
    return at + tangent * (b / 3);
}

void addCubic(std::vector<QPointF>& curve, QPointF from, QPointF c1, QPointF c2, QPointF to) {
    const double length = distance(from, c1) + distance(c1, c2) + distance(c2, to);
    const int pieces = static_cast<int>(std::clamp(std::ceil(length / kPiece), 1.0, kMostPieces));
    for (int i = 1; i < pieces; ++i) {
        const double t = static_cast<double>(i) / pieces, u = 1 - t;
        curve.push_back(from * (u * u * u) + c1 * (3 * u * u * t) + c2 * (3 * u * t * t) + to * (t * t * t));
    }
    curve.push_back(to);
}

} // namespace

std::vector<QPointF> smoothCurve(std::span<const QPointF> points, bool closed) {
    std::vector<QPointF> knots;
    for (const QPointF& point : points)
        if (knots.empty() || distance(knots.back(), point) > 1e-6)
            knots.push_back(point);
    if (closed && knots.size() > 1 && distance(knots.front(), knots.back()) <= 1e-6)
        knots.pop_back();
    const std::size_t count = knots.size();
    if (count < 2)
        return knots;
    const bool round = closed && count > 2;
    // At an open end the curve begins as if the point before it were the end itself.
    const auto knot = [&](std::ptrdiff_t i) {
        const auto last = static_cast<std::ptrdiff_t>(count) - 1;
        return knots[static_cast<std::size_t>(round ? (i + last + 1) % (last + 1)
                                                    : std::clamp<std::ptrdiff_t>(i, 0, last))];
    };
    std::vector<QPointF> curve = {knots.front()};
    const std::ptrdiff_t segments = static_cast<std::ptrdiff_t>(count) - (round ? 0 : 1);
    for (std::ptrdiff_t i = 0; i < segments; ++i) {
        const QPointF from = knot(i), to = knot(i + 1);
        addCubic(curve, from, control(knot(i - 1), from, to), control(knot(i + 2), to, from), to);
    }
    return curve;
}

} // namespace chartdraw
