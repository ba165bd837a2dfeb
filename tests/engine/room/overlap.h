#pragma once
// Where the texts of a picture stand, and which of them lie over one another or leave the picture.

#include "engine/chart/chart.h"
#include <QImage>
#include <algorithm>
#include <chartdraw/surface.h>
#include <cmath>
#include <sstream>
#include <string>
#include <vector>

namespace overlap {
constexpr double kTolerance = 2; // pixels

inline std::vector<QPolygonF> textsOf(BaseChart* chart) {
    auto* drawn = chartdraw::object<chartdraw::Chart>(chart);
    QImage image(std::max(1, drawn->width()), std::max(1, drawn->height()), QImage::Format_ARGB32_Premultiplied);
    std::vector<QPolygonF> texts;
    chartdraw::Canvas canvas(image, drawn->colours());
    canvas.recordTexts(&texts);
    drawn->draw(canvas);
    return texts;
}

/// The outline less a margin on all sides; outlines are rectangles at any angle.
inline QPolygonF shrunk(const QPolygonF& outline, double by) {
    const QPointF a = outline[1] - outline[0], b = outline[3] - outline[0];
    const double width = std::hypot(a.x(), a.y()), height = std::hypot(b.x(), b.y());
    const QPointF x = a * (std::min(by, width / 2) / std::max(1e-9, width));
    const QPointF y = b * (std::min(by, height / 2) / std::max(1e-9, height));
    return {{outline[0] + x + y, outline[1] - x + y, outline[2] - x - y, outline[3] + x - y, outline[0] + x + y}};
}

inline std::string place(const QPolygonF& text) {
    const QRectF box = text.boundingRect();
    std::ostringstream out;
    out << box.left() << "," << box.top() << " " << box.width() << "x" << box.height();
    return out.str();
}

/// What is wrong with the texts of a chart; empty: nothing. Counts them.
inline std::string faultOf(BaseChart* chart, std::size_t& count) {
    const auto* drawn = chartdraw::object<chartdraw::Chart>(chart);
    const QRectF picture(0, 0, drawn->width(), drawn->height());
    std::vector<QPolygonF> texts;
    for (const QPolygonF& text : textsOf(chart)) {
        ++count;
        if (!picture.contains(shrunk(text, kTolerance).boundingRect())) return "leaves the picture: " + place(text);
        texts.push_back(shrunk(text, kTolerance / 2));
    }
    for (std::size_t i = 0; i < texts.size(); ++i)
        for (std::size_t k = 0; k < i; ++k)
            if (texts[i].boundingRect().intersects(texts[k].boundingRect()) && texts[i].intersects(texts[k]) &&
                !texts[i].intersected(texts[k]).isEmpty())
                return "overlap: " + place(texts[k]) + " and " + place(texts[i]);
    return {};
}
} // namespace overlap
