#include "engine/paint/clip.h"

#include <QPolygonF>
#include <array>

namespace chartdraw {

bool clipSegment(QPointF& from, QPointF& to, const QRectF& bounds) {
    const QPointF step = to - from;
    double enter = 0;
    double leave = 1;
    // Each side as "distance * t <= room": Liang and Barsky's test.
    const std::array<std::array<double, 2>, 4> sides = {{{-step.x(), from.x() - bounds.left()},
                                                         {step.x(), bounds.right() - from.x()},
                                                         {-step.y(), from.y() - bounds.top()},
                                                         {step.y(), bounds.bottom() - from.y()}}};
    for (const auto& [distance, room] : sides) {
        if (distance == 0) {
            if (room < 0)
                return false;
        } else if (distance < 0) {
            enter = std::max(enter, room / distance);
        } else {
            leave = std::min(leave, room / distance);
        }
    }
    if (enter > leave)
        return false;
    const QPointF start = from;
    if (enter > 0)
        from = start + step * enter;
    if (leave < 1)
        to = start + step * leave;
    return true;
}

namespace {

/// Keeps the part of a polygon where `inside` (a signed distance) is not negative.
template <typename Distance>
QPolygonF cut(const QPolygonF& polygon, const Distance& inside) {
    QPolygonF kept;
    for (qsizetype i = 0; i < polygon.size(); ++i) {
        const QPointF from = polygon[i];
        const QPointF to = polygon[(i + 1) % polygon.size()];
        const double a = inside(from);
        const double b = inside(to);
        if (a >= 0)
            kept << from;
        if ((a < 0) != (b < 0))
            kept << from + (to - from) * (a / (a - b));
    }
    return kept;
}

} // namespace

QPainterPath clipPath(const QPainterPath& path, const QRectF& bounds) {
    QPainterPath clipped;
    clipped.setFillRule(path.fillRule());
    const QList<QPolygonF> polygons = path.toSubpathPolygons();
    for (QPolygonF polygon : polygons) {
        polygon = cut(
            polygon, [&](QPointF p) { return p.x() - bounds.left(); });
        polygon = cut(
            polygon, [&](QPointF p) { return bounds.right() - p.x(); });
        polygon = cut(
            polygon, [&](QPointF p) { return p.y() - bounds.top(); });
        polygon = cut(polygon, [&](QPointF p) { return bounds.bottom() - p.y(); });
        clipped.addPolygon(polygon);
        clipped.closeSubpath();
    }
    return clipped;
}

} // namespace chartdraw
