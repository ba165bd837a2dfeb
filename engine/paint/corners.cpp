#include "engine/paint/corners.h"

#include <algorithm>

namespace chartdraw {

bool isSquare(const Corners& corners) {
    return std::all_of(
        corners.begin(), corners.end(), [](int radius) { return radius <= 0; });
}

Corners insetCorners(Corners corners, int inset) {
    for (int& radius : corners)
        radius = std::max(0, radius - inset);
    return corners;
}

QPainterPath roundedRect(const QRectF& rect, const Corners& corners) {
    const double limit = std::min(rect.width(), rect.height()) / 2;
    const auto size = [&](int corner) {
        return std::clamp<double>(corners[static_cast<std::size_t>(corner)], 0, std::max(limit, 0.0)) * 2;
    };
    QPainterPath path;
    const auto arc = [&](double x, double y, double diameter, double startAngle) {
        if (diameter > 0)
            path.arcTo(x, y, diameter, diameter, startAngle, -90);
        else
            path.lineTo(x, y);
    };
    path.moveTo(rect.left(), rect.top() + size(0) / 2);
    arc(rect.left(), rect.top(), size(0), 180);
    arc(rect.right() - size(1), rect.top(), size(1), 90);
    arc(rect.right() - size(2), rect.bottom() - size(2), size(2), 0);
    arc(rect.left(), rect.bottom() - size(3), size(3), 270);
    path.closeSubpath();
    return path;
}

} // namespace chartdraw
