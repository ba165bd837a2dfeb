#pragma once

#include "engine/paint/canvas.h"
#include "tests/expect.h"
#include <QImage>
#include <cstdlib>
#include <functional>

namespace chartdraw {
constexpr QRgb kWhite = 0xffffffff;

/// What `draw` leaves on a picture of one colour.
inline QImage drawn(int width, int height, const std::function<void(Canvas&)>& draw, QRgb paper = kWhite,
                    const ColourTable& colours = {}) {
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor::fromRgba(paper));
    Canvas canvas(image, colours);
    draw(canvas);
    return image;
}

/// The smallest rectangle that holds every pixel other than `paper`.
inline QRect inked(const QImage& image, QRgb paper = kWhite) {
    QRect area;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) != paper) area |= QRect(x, y, 1, 1);
    }
    return area;
}

inline int count(const QImage& image, QRgb colour) {
    int found = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) found += image.pixel(x, y) == colour ? 1 : 0;
    return found;
}

inline int difference(const QImage& a, const QImage& b) {
    int most = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            most = std::max(
                {most, std::abs(qRed(p) - qRed(q)), std::abs(qGreen(p) - qGreen(q)), std::abs(qBlue(p) - qBlue(q))});
        }
    }
    return most;
}
} // namespace chartdraw
