#include "engine/axis/round_labels.h"

#include <algorithm>
#include <cmath>

namespace chartdraw {

namespace {

QRectF boxAbout(QPointF middle, QSizeF size) {
    return {middle - QPointF(size.width() / 2, size.height() / 2), size};
}

/// The larger root of the distance at which the box's corner named by `sign` stands on the circle: the near
/// corner for -1, the far one for 1.
double cornerDistance(QPointF way, QSizeF half, double radius, double sign) {
    const double b = sign * (way.x() * half.width() + way.y() * half.height());
    const double c = half.width() * half.width() + half.height() * half.height() - radius * radius;
    return -b + std::sqrt(std::max(0.0, b * b - c));
}

} // namespace

QPointF roundDirection(double angle) {
    return {std::sin(angle), -std::cos(angle)};
}

QRectF boxOutside(QPointF centre, double radius, double angle, QSizeF size) {
    const QPointF out = roundDirection(angle);
    const QPointF way(std::abs(out.x()), std::abs(out.y()));
    const QSizeF half = size / 2;
    // The circle is touched by an upright side, by a level one, or by a corner.
    double distance = way.x() > 0 ? (radius + half.width()) / way.x() : 0;
    if (way.x() <= 0 || distance * way.y() > half.height()) {
        distance = way.y() > 0 ? (radius + half.height()) / way.y() : 0;
        if (way.y() <= 0 || distance * way.x() > half.width())
            distance = cornerDistance(way, half, radius, -1);
    }
    return boxAbout(centre + out * distance, size);
}

QRectF boxInside(QPointF centre, double radius, double angle, QSizeF size) {
    const QPointF out = roundDirection(angle);
    const double distance = cornerDistance({std::abs(out.x()), std::abs(out.y())}, size / 2, radius, 1);
    return boxAbout(centre + out * std::max(0.0, distance), size);
}

bool reachesInto(const QRectF& box, QPointF centre, double radius) {
    const QPointF nearest(std::clamp(centre.x(), box.left(), box.right()),
                          std::clamp(centre.y(), box.top(), box.bottom()));
    constexpr double kRounding = 1; // boxes stand on whole pixels
    return std::hypot(nearest.x() - centre.x(), nearest.y() - centre.y()) < radius - kRounding;
}

QRectF movedInto(QRectF box, const QRectF& room) {
    box.moveLeft(std::max(room.left(), std::min(box.left(), room.right() - box.width())));
    box.moveTop(std::max(room.top(), std::min(box.top(), room.bottom() - box.height())));
    return box;
}

std::vector<bool> thinAround(std::span<const QRectF> boxes, double gap) {
    const auto apart = [&](std::size_t a, std::size_t b) {
        return !boxes[a].adjusted(-gap, -gap, gap, gap).intersects(boxes[b]);
    };
    const auto fits = [&](std::size_t step) {
        for (std::size_t i = step; i < boxes.size(); i += step) {
            if (!apart(i - step, i)) {
                return false;
            }
        }
        return true;
    };
    std::size_t step = 1;
    while (step < boxes.size() && !fits(step))
        ++step;
    for (std::size_t wider = step; wider <= 2 * step && wider < boxes.size(); ++wider) {
        if ((boxes.size() - 1) % wider == 0 && fits(wider)) {
            step = wider;
            break;
        }
    }
    std::vector<bool> kept(boxes.size(), false);
    std::vector<std::size_t> placed;
    for (std::size_t i = 0; i < boxes.size(); i += step) {
        // Around a full turn the last ones come upon the first.
        if (std::all_of(placed.begin(), placed.end(), [&](std::size_t before) { return apart(before, i); })) {
            kept[i] = true;
            placed.push_back(i);
        }
    }
    return kept;
}

} // namespace chartdraw
