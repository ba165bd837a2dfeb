#pragma once
// Looking at round charts: pixels by angle and distance, and patches of ink as boxes.

#include "tests/engine/chart/picture.h"
#include <cmath>
#include <numbers>
#include <string>
#include <vector>

namespace pictures {
/// The pixel at an angle (degrees clockwise from the top) and a distance from the middle of a pixel.
inline QPoint roundPoint(QPoint centre, double degrees, double distance) {
    const double angle = degrees * std::numbers::pi / 180;
    return {static_cast<int>(std::lround(centre.x() + distance * std::sin(angle))),
            static_cast<int>(std::lround(centre.y() - distance * std::cos(angle)))};
}

inline int roundAt(const QImage& image, QPoint centre, double degrees, double distance) {
    const QPoint point = roundPoint(centre, degrees, distance);
    return at(image, point.x(), point.y());
}

struct RoundPixel {
    double degrees, distance;
    int colour;
    const char* what = "";
};

inline void showsAround(const QImage& image, QPoint centre, std::initializer_list<RoundPixel> pixels) {
    for (const auto& [degrees, distance, colour, what] : pixels)
        EXPECT_EQ(roundAt(image, centre, degrees, distance), colour) << degrees << ", " << distance << ": " << what;
}

/// The bounds of each connected patch of pixels unlike `background`.
inline std::vector<QRect> patches(QImage image, int background) {
    std::vector<QRect> found;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (at(image, x, y) == background) continue;
            QRect bounds(x, y, 1, 1);
            std::vector<QPoint> open = {{x, y}};
            image.setPixel(x, y, static_cast<QRgb>(background));
            while (!open.empty()) {
                const QPoint point = open.back();
                open.pop_back();
                bounds |= QRect(point, QSize(1, 1));
                for (const QPoint& step : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)}) {
                    const QPoint next = point + step;
                    if (image.rect().contains(next) && at(image, next.x(), next.y()) != background) {
                        image.setPixel(next, static_cast<QRgb>(background));
                        open.push_back(next);
                    }
                }
            }
            found.push_back(bounds);
        }
    }
    return found;
}

inline double nearestOf(const QRect& rect, QPoint point) {
    const int dx = std::max({0, rect.left() - point.x(), point.x() - rect.right()});
    const int dy = std::max({0, rect.top() - point.y(), point.y() - rect.bottom()});
    return std::hypot(dx, dy);
}

/// Gives texts of that style a ground of their colour, so that each is a box.
inline TextBox* boxed(TextBox* style, int colour = kRed) {
    CBox_setBackground(TextBox2Box(style), colour, kNone, 0);
    return style;
}

/// Texts as boxes of one colour on white: in the picture, and apart from each other, because patches of them are full
/// rectangles.
inline std::vector<QRect> boxesApart(const QImage& image, const std::string& what = {}) {
    const std::vector<QRect> boxes = patches(image, kWhite);
    for (const QRect& box : boxes) {
        EXPECT_TRUE(image.rect().adjusted(2, 2, -2, -2).contains(box)) << what << ' ' << box;
        EXPECT_EQ(inked(image.copy(box), kWhite), box.width() * box.height()) << what << ' ' << box << ": two in one";
    }
    return boxes;
}
} // namespace pictures
