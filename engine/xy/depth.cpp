#include "engine/xy/depth.h"

#include <algorithm>
#include <cmath>

namespace chartdraw {

namespace {

/// How a side is lit that looks towards `normal`: from above and a little from the left.
double light(QPointF normal) {
    const double length = std::hypot(normal.x(), normal.y());
    const double right = length > 0 ? normal.x() / length : 0;
    const double down = length > 0 ? normal.y() / length : 0;
    return -0.2 - 0.12 * right - 0.08 * down;
}

void drawSide(Canvas& canvas, QPointF from, QPointF to, int depth, Colour colour, Colour edge) {
    const QPointF back(depth, -depth);
    QPainterPath path;
    path.addPolygon(QPolygonF{from, to, to + back, from + back});
    path.closeSubpath();
    canvas.fillPath(path, colour);
    canvas.strokePath(path, edge, 1);
}

bool clockwise(const QPolygonF& polygon) {
    double area = 0;
    for (qsizetype i = 0; i < polygon.size(); ++i) {
        const QPointF from = polygon[i];
        const QPointF to = polygon[(i + 1) % polygon.size()];
        area += from.x() * to.y() - to.x() * from.y();
    }
    return area > 0; // y runs downward
}

} // namespace

Colour shaded(const ColourTable& colours, Colour colour, double amount) {
    const QColor plain = colours.solid(colour);
    if (plain.alpha() == 0)
        return kTransparent;
    const double target = amount > 0 ? 255 : 0;
    const auto mixed = [&](int channel) {
        return static_cast<Colour>(std::lround(channel + (target - channel) * std::abs(amount)));
    };
    return static_cast<Colour>(255 - plain.alpha()) << 24 | mixed(plain.red()) << 16 |
           mixed(plain.green()) << 8 | mixed(plain.blue());
}

void drawSides(Canvas& canvas, const QPolygonF& front, int depth, Colour side, Colour edge) {
    const double turn = clockwise(front) ? 1 : -1;
    for (qsizetype i = 0; i < front.size(); ++i) {
        const QPointF from = front[i];
        const QPointF to = front[(i + 1) % front.size()];
        const QPointF normal(turn * (to.y() - from.y()), turn * (from.x() - to.x()));
        if (normal.x() - normal.y() > 0)
            drawSide(canvas, from, to, depth, shaded(canvas.colours(), side, light(normal)), edge);
    }
}

void drawRibbon(Canvas& canvas, std::span<const QPointF> points, int depth, Colour colour) {
    const QPointF half(0.5, 0.5);
    for (std::size_t i = 1; i < points.size(); ++i) {
        const QPointF step = points[i] - points[i - 1];
        if (!std::isnan(step.x() + step.y())) {
            QPointF normal(step.y(), -step.x());
            if (normal.y() > 0) // the side that looks up
                normal = -normal;
            const bool fromBelow = normal.x() - normal.y() < 0;
            const Colour shade = shaded(canvas.colours(), colour, light(normal) - (fromBelow ? 0.15 : 0));
            drawSide(canvas, points[i - 1] + half, points[i] + half, depth, shade, kTransparent);
        }
    }
}

} // namespace chartdraw
