#pragma once
// A chart's picture for tests: made through the flat surface, looked at by pixel and by colour.

#include <chartdraw/surface.h>

#include <QImage>
#include <QRect>
#include <gtest/gtest.h>
#include <ostream>

inline std::ostream& operator<<(std::ostream& out, const QRect& rect) {
    return out << "QRect(" << rect.x() << ", " << rect.y() << ", " << rect.width() << ", " << rect.height() << ")";
}

namespace pictures {

/// Makes the picture and, unless told otherwise, ends the chart.
inline QImage of(BaseChart* chart, bool destroy = true) {
    const char* bytes = nullptr;
    int length = 0;
    EXPECT_TRUE(CBaseChart_makeChart2(chart, CHART_FORMAT_BMP, &bytes, &length));
    QImage image =
        QImage::fromData(reinterpret_cast<const uchar*>(bytes), length, "BMP").convertToFormat(QImage::Format_RGB32);
    if (destroy)
        CBaseChart_destroy(chart);
    return image;
}

inline unsigned at(const QImage& image, int x, int y) { return image.pixel(x, y) & 0xffffffu; }

/// The smallest rectangle that holds all pixels of exactly this colour.
inline QRect boundsOf(const QImage& image, unsigned colour) {
    QRect bounds;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            if (at(image, x, y) == colour)
                bounds |= QRect(x, y, 1, 1);
    }
    return bounds;
}

/// How many pixels are unlike `background`.
inline int inked(const QImage& image, unsigned background) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += at(image, x, y) != background ? 1 : 0;
    return count;
}

} // namespace pictures
