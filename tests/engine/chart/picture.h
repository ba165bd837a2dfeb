#pragma once
// A chart's picture for tests: made through the flat surface, looked at by pixel and by colour.

#include "tests/expect.h"
#include <QImage>
#include <QRect>
#include <chartdraw/surface.h>
#include <ostream>

inline std::ostream& operator<<(std::ostream& out, const QRect& rect) {
    return out << "QRect(" << rect.x() << ", " << rect.y() << ", " << rect.width() << ", " << rect.height() << ")";
}

namespace pictures {
constexpr int kNone = CHART_TRANSPARENT;
constexpr int kWhite = 0xffffff, kRed = 0xff0000, kGreen = 0x00ff00, kBlue = 0x0000ff;

/// Makes the picture and, unless told otherwise, ends the chart.
inline QImage of(BaseChart* chart, bool destroy = true) {
    const char* bytes = nullptr;
    int length = 0;
    EXPECT_TRUE(CBaseChart_makeChart2(chart, CHART_FORMAT_BMP, &bytes, &length));
    QImage image =
        QImage::fromData(reinterpret_cast<const uchar*>(bytes), length, "BMP").convertToFormat(QImage::Format_RGB32);
    if (destroy) CBaseChart_destroy(chart);
    return image;
}

inline int at(const QImage& image, int x, int y) { return static_cast<int>(image.pixel(x, y) & 0xffffff); }

/// A place of a picture and the colour that it shows, for `what` reason.
struct Pixel {
    int x, y, colour;
    const char* what = "";
};

inline void shows(const QImage& image, std::initializer_list<Pixel> pixels) {
    for (const Pixel& pixel : pixels)
        EXPECT_EQ(at(image, pixel.x, pixel.y), pixel.colour) << pixel.x << ", " << pixel.y << ": " << pixel.what;
}

/// The smallest rectangle that holds all pixels of exactly this colour.
inline QRect boundsOf(const QImage& image, int colour) {
    QRect bounds;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (at(image, x, y) == colour) bounds |= QRect(x, y, 1, 1);
    return bounds;
}

/// The bounds of all pixels of a colour within a part of the picture, from the part's corner.
struct Bounds {
    QRect part;
    int colour;
    QRect bounds;
    const char* what = "";
};

inline void shows(const QImage& image, std::initializer_list<Bounds> all) {
    for (const Bounds& one : all)
        EXPECT_EQ(boundsOf(image.copy(one.part), one.colour), one.bounds) << one.part << ": " << one.what;
}

inline int inked(const QImage& image, int background) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) count += at(image, x, y) != background ? 1 : 0;
    return count;
}
} // namespace pictures
