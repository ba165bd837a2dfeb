#include "engine/paint/canvas.h"
#include "engine/paint/clip.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace chartdraw {

namespace {

// The raster engine's work on a wide pen grows with the square of what one outline covers twice; thin lines
// are drawn one by one whatever their number. Both figures are the fastest of those measured.
constexpr std::size_t kWidePiece = 12;
constexpr std::size_t kThinPiece = 512;
constexpr double kFarthest = 1e9; // pixels; beyond it slopes are no longer told apart

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

/// Draws the runs of points between gaps, each in pieces of a bounded number of segments.
class PieceDrawer {
public:
    PieceDrawer(QPainter& painter, const QRectF& limits)
        : m_painter(painter), m_limits(limits),
          m_segments(painter.pen().widthF() > 1 ? kWidePiece : kThinPiece) {
        m_piece.reserve(m_segments + 1);
    }

    void draw(std::span<const QPointF> points, double offset) {
        for (std::size_t i = 0; i < points.size();) {
            if (isGap(points[i])) {
                ++i;
                continue;
            }
            QPointF last = limited(points[i], offset);
            const QPointF first = last;
            bool moved = false;
            for (++i; i < points.size() && !isGap(points[i]); ++i) {
                const QPointF next = limited(points[i], offset);
                if (next != last) {
                    segment(last, next);
                    moved = true;
                }
                last = next;
            }
            flush();
            if (!moved && m_limits.contains(first)) {
                dot(first);
            }
        }
    }

private:
    void segment(QPointF from, QPointF to) {
        if (!clipSegment(from, to, m_limits)) {
            return;
        }
        if (m_piece.size() > m_segments || m_piece.empty() || m_piece.back() != from) {
            flush();
            m_piece.push_back(from);
        }
        m_piece.push_back(to);
    }

    void dot(QPointF centre) {
        const double width = std::max(1.0, m_painter.pen().widthF());
        const QRectF bounds(centre - QPointF(width, width) / 2, QSizeF(width, width));
        QPainterPath path;
        if (width > 1) {
            path.addEllipse(bounds);
        } else {
            path.addRect(bounds);
        }
        m_painter.fillPath(path, m_painter.pen().brush());
    }

    void flush() {
        if (m_piece.size() > 1) {
            m_painter.drawPolyline(m_piece.data(), static_cast<int>(m_piece.size()));
        }
        m_piece.clear();
    }

    QPainter& m_painter;
    QRectF m_limits;
    std::size_t m_segments;
    std::vector<QPointF> m_piece;
};

QPen roundPen(const QBrush& brush, double width) {
    // A round join of a narrow pen looks no other and takes twice the time.
    return {brush, width, Qt::SolidLine, width > 1 ? Qt::RoundCap : Qt::SquareCap,
            width < 3 ? Qt::MiterJoin : Qt::RoundJoin};
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
    if (!(width > 0) || isGap(from) || isGap(to) || m_colours.invisible(colour)) {
        return;
    }
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
        fillRect(upright ? QRectF(side, low, thickness, high - low)
                         : QRectF(low, side, high - low, thickness),
                 colour);
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
    if (!(width > 0) || points.empty() || m_colours.invisible(colour)) {
        return;
    }
    width = std::min(width, 1e5);
    const double offset = penOffset(width);
    const QRectF limits = visible(width + 2);
    const QRectF extent = boundsOf(points);
    const QBrush brush = m_colours.brush(colour, extent);
    if (brush.isOpaque() || points.size() < 3 || m_painter.transform().type() > QTransform::TxTranslate) {
        m_painter.setPen(roundPen(brush, width));
        PieceDrawer(m_painter, limits).draw(points, offset);
        return;
    }
    // The pieces overlap: drawn opaque on a layer and coloured there, they show no joints.
    const double reach = width + 2;
    const QRect area = (extent.adjusted(-reach, -reach, reach, reach) & visible(1)).toAlignedRect();
    if (area.isEmpty()) {
        return;
    }
    QImage layer(area.size(), QImage::Format_ARGB32_Premultiplied);
    layer.fill(Qt::transparent);
    {
        QPainter painter(&layer);
        painter.setRenderHints(m_painter.renderHints());
        painter.translate(-area.topLeft());
        painter.setPen(roundPen(Qt::black, width));
        PieceDrawer(painter, limits).draw(points, offset);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(area, brush);
    }
    m_painter.drawImage(area.topLeft(), layer);
}

} // namespace chartdraw
