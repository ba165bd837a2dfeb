#include "engine/paint/canvas.h"
#include "engine/paint/clip.h"
#include "engine/paint/pen_mask.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace chartdraw {

namespace {

constexpr std::size_t kPiece = 512; // segments in one call, the fastest number of those measured
constexpr double kFarthest = 1e9;   // pixels; beyond it slopes are no longer told apart

/// From the middle of pixels, which the callers name, to pixel borders. An even width is centred on a border.
double penOffset(double width) {
    return std::lround(width) % 2 == 0 ? 1.0 : 0.5;
}

QPointF limited(QPointF point, double offset) {
    return {std::clamp(point.x(), -kFarthest, kFarthest) + offset,
            std::clamp(point.y(), -kFarthest, kFarthest) + offset};
}

bool isGap(QPointF point) {
    return std::isnan(point.x()) || std::isnan(point.y());
}

/// Hands the segments of the runs of points between gaps, cut to the limits, and lone points, as segments
/// without length, to `draw`.
template <typename Draw>
void forEachSegment(std::span<const QPointF> points, double offset, const QRectF& limits, const Draw& draw) {
    const auto clipped = [&](QPointF from, QPointF to) {
        if (clipSegment(from, to, limits))
            draw(from, to);
    };
    for (std::size_t i = 0; i < points.size();) {
        if (isGap(points[i])) {
            ++i;
            continue;
        }
        QPointF last = limited(points[i], offset);
        bool moved = false;
        for (++i; i < points.size() && !isGap(points[i]); ++i) {
            const QPointF next = limited(points[i], offset);
            if (next != last) {
                clipped(last, next);
                moved = true;
            }
            last = next;
        }
        if (!moved)
            clipped(last, last);
    }
}

/// A line one pixel wide in an opaque colour, by the raster engine, which has its fastest way for it.
void drawThin(QPainter& painter, std::span<const QPointF> points, double offset, const QRectF& limits) {
    std::vector<QPointF> piece;
    piece.reserve(kPiece + 1);
    const auto flush = [&] {
        if (piece.size() > 1)
            painter.drawPolyline(piece.data(), static_cast<int>(piece.size()));
        piece.clear();
    };
    forEachSegment(points, offset, limits, [&](QPointF from, QPointF to) {
        if (from == to) {
            painter.fillRect(QRectF(from - QPointF(0.5, 0.5), QSizeF(1, 1)), painter.pen().brush());
            return;
        }
        if (piece.size() > kPiece || piece.empty() || piece.back() != from) {
            flush();
            piece.push_back(from);
        }
        piece.push_back(to);
    });
    flush();
}

QRectF boundsOf(std::span<const QPointF> points) {
    QPointF low(kFarthest, kFarthest);
    QPointF high = -low;
    for (const QPointF& given : points) {
        if (!isGap(given)) {
            const QPointF point = limited(given, 0);
            low = {std::min(low.x(), point.x()), std::min(low.y(), point.y())};
            high = {std::max(high.x(), point.x()), std::max(high.y(), point.y())};
        }
    }
    return {low, high};
}

} // namespace

void Canvas::line(QPointF from, QPointF to, Colour colour, double width) {
    if (!(width > 0) || isGap(from) || isGap(to) || m_colours.invisible(colour))
        return;
    width = std::min(width, kFarthest);
    const auto whole = [](double value) {
        return std::floor(std::clamp(value, -kFarthest, kFarthest) + 0.5);
    };
    if (from.x() == to.x() || from.y() == to.y()) {
        const double thickness = std::max(1.0, std::round(width));
        const double before = std::floor((thickness - 1) / 2);
        const bool upright = from.x() == to.x() && from.y() != to.y();
        const double low = whole(upright ? std::min(from.y(), to.y()) : std::min(from.x(), to.x()));
        const double high = whole(upright ? std::max(from.y(), to.y()) : std::max(from.x(), to.x())) + 1;
        const double side = whole(upright ? from.x() : from.y()) - before;
        const QRectF covered =
            upright ? QRectF(side, low, thickness, high - low) : QRectF(low, side, high - low, thickness);
        if (scale() == 1) {
            fillRect(covered, colour);
        } else if (const QRectF seen = covered & visible(thickness + 1); !seen.isEmpty()) {
            // Lines of one width are to look alike, wherever they fall between the pixels of the image.
            QRect pixels = onImage(seen);
            upright ? pixels.setWidth(onImage(thickness)) : pixels.setHeight(onImage(thickness));
            fillImage(pixels, colour, covered);
        }
        return;
    }
    const double offset = penOffset(width);
    QPointF a = limited(from, offset);
    QPointF b = limited(to, offset);
    const QRectF extent = QRectF(a, b).normalized();
    if (clipSegment(a, b, visible(std::min(width, 1e5) + 2))) {
        m_painter.setPen(
            QPen(m_colours.brush(colour, extent), std::min(width, 1e5), Qt::SolidLine, Qt::FlatCap));
        m_painter.drawLine(a, b);
    }
}

void Canvas::polyline(std::span<const QPointF> points, Colour colour, double width) {
    if (!(width > 0) || points.empty() || m_colours.invisible(colour))
        return;
    width = std::clamp(width, 1.0, 1e5);
    const double offset = penOffset(width);
    const QRectF limits = visible(width + 2);
    const QRectF extent = boundsOf(points);
    const QBrush brush = m_colours.brush(colour, extent);
    const QTransform& toImage = m_painter.worldTransform();
    const double onImage = std::max(1.0, width * scale());
    if (onImage == 1 && brush.isOpaque()) {
        QPen pen(brush, 1, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin);
        pen.setCosmetic(scale() != 1);
        m_painter.setPen(pen);
        drawThin(m_painter, points, offset, limits);
        return;
    }
    const double reach = width / 2 + 2;
    QRectF shown = extent.adjusted(-reach, -reach, reach, reach) & visible(1);
    if (m_painter.hasClipping())
        shown &= m_painter.clipBoundingRect();
    const QRect area = toImage.mapRect(shown).toAlignedRect();
    if (area.isEmpty())
        return;
    PenMask mask(area, onImage);
    forEachSegment(points, offset, limits,
                   [&](QPointF from, QPointF to) { mask.segment(toImage.map(from), toImage.map(to)); });
    mask.paint(m_painter, brush);
}

} // namespace chartdraw
