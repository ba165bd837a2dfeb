#include "engine/meter/meter_pointer.h"

#include <QPolygonF>
#include <algorithm>
#include <cmath>

namespace chartdraw {

namespace {

constexpr double kLargestRatio = 100; // farther out than any picture

/// A symmetric outline from its right half, given from the tip down.
QPainterPath mirrored(const QPolygonF& right) {
    QPolygonF whole = right;
    for (auto corner = right.rbegin(); corner != right.rend(); ++corner)
        if (corner->x() != 0)
            whole << QPointF(-corner->x(), corner->y());
    QPainterPath path;
    path.addPolygon(whole);
    path.closeSubpath();
    return path;
}

} // namespace

QPainterPath pointerOutline(PointerShape shape, double length, double tail, double width) {
    const double half = width / 2;
    const double head = std::min(length * 0.35, width * 1.4); // of arrows and pencils, from the tip
    const double shaft = std::min(half, std::max(width * 0.13, 0.75));
    switch (shape) {
    case PointerShape::Triangular:
        return mirrored({{0, -length}, {half, tail}});
    case PointerShape::Arrow:
        return mirrored({{0, -length}, {half, head - length}, {shaft, head - length}, {shaft, tail}});
    case PointerShape::Arrow2:
        return mirrored({{0, -length}, {half, head - length}, {shaft, head * 0.65 - length}, {shaft, tail}});
    case PointerShape::Line:
        return mirrored({{0, -length}, {shaft / 2, -length}, {shaft / 2, tail}});
    case PointerShape::Pencil:
        return mirrored({{0, -length}, {half * 0.45, head - length}, {half * 0.45, tail}});
    case PointerShape::Diamond:
        break;
    }
    return mirrored({{0, -length}, {half, tail > 0 ? 0 : -length / 2}, {0, tail}});
}

void MeterPointer::setShape(PointerShape shape, double lengthRatio, double widthRatio) {
    const auto ratio = [](double given, double before) {
        return given > 0 ? std::min(given, kLargestRatio) : before; // also for NaN
    };
    m_shape = shape;
    m_lengthRatio = ratio(lengthRatio, m_lengthRatio);
    m_widthRatio = ratio(widthRatio, m_widthRatio);
}

} // namespace chartdraw
