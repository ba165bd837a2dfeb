#include "engine/xy/bar_shapes.h"

#include "engine/chart/data_symbol.h"
#include "engine/xy/depth.h"

#include <QLinearGradient>
#include <algorithm>
#include <cmath>
#include <numbers>

namespace chartdraw {

namespace {

constexpr double kFlatCap = 0.3; // height of a cylinder's end as part of its width, where there is no depth

/// The outline of a shape whose upper side is at the tip.
QPolygonF outline(const QRectF& box, int shape, int tip) {
    // Drawn for a bar that points up in a box of that size, then turned.
    const bool lying = tip == 4 || tip == 6;
    const QSizeF size = lying ? box.size().transposed() : box.size();
    QTransform turn;
    turn.translate(box.center().x(), box.center().y());
    turn.scale(tip == 4 ? -1 : 1, tip == 2 ? -1 : 1);
    turn.rotate(lying ? 90 : 0);
    turn.translate(-size.width() / 2, -size.height() / 2);
    const QPainterPath path = symbolOutline(shape, QRectF(QPointF(), size));
    QPolygonF polygon = turn.map(path).toFillPolygon();
    polygon.removeLast();
    return polygon;
}

QPainterPath closed(const QPolygonF& polygon) {
    QPainterPath path;
    path.addPolygon(polygon);
    path.closeSubpath();
    return path;
}

/// A cylinder between two ends, both ellipses of the same form. The near end is the one that is seen.
class Cylinder {
public:
    Cylinder(const QRectF& box, bool lying, int depth) {
        // Half axes of the ends: across the bar, and along the line of sight.
        const QPointF half(depth / 2.0, -depth / 2.0);
        const double width = lying ? box.height() : box.width();
        const double length = lying ? box.width() : box.height();
        const double cap = depth > 0 ? 0 : std::min(width * kFlatCap, length) / 2;
        m_across = lying ? QPointF(0, width / 2) : QPointF(width / 2, 0);
        m_lean = depth > 0 ? half : lying ? QPointF(cap, 0) : QPointF(0, cap);
        const QPointF back = depth > 0 ? half : QPointF();
        const QPointF along = lying ? QPointF(length / 2 - cap, 0) : QPointF(0, cap - length / 2);
        m_near = box.center() + along + back;
        m_far = box.center() - along + back;
        // The points of an end that are farthest across the bar.
        m_widest = lying ? std::atan2(m_lean.y(), m_across.y()) : std::atan2(m_lean.x(), m_across.x());
    }

    QPainterPath nearEnd() const { return closed(arc(m_near, 0, 2 * std::numbers::pi)); }

    QPainterPath outline() const {
        const double pi = std::numbers::pi;
        const QPointF middle = point(m_near, m_widest + pi / 2) - m_near;
        const bool outward = QPointF::dotProduct(middle, m_near - m_far) > 0;
        QPolygonF polygon = arc(m_near, m_widest + (outward ? 0 : pi), pi);
        polygon += arc(m_far, m_widest + (outward ? pi : 2 * pi), pi);
        return closed(polygon);
    }

    /// Light from the upper left along the curved side.
    QBrush shading() const {
        // Straight across, or the light would change along the bar.
        const QPointF rim = point(m_near, m_widest + std::numbers::pi) - m_near;
        const QPointF reach = m_across.x() != 0 ? QPointF(rim.x(), 0) : QPointF(0, rim.y());
        QLinearGradient gradient(m_near + reach, m_near - reach);
        gradient.setColorAt(0, QColor(0, 0, 0, 70));
        gradient.setColorAt(0.12, QColor(0, 0, 0, 0));
        gradient.setColorAt(0.35, QColor(255, 255, 255, 120));
        gradient.setColorAt(0.6, QColor(255, 255, 255, 0));
        gradient.setColorAt(1, QColor(0, 0, 0, 110));
        return gradient;
    }

private:
    QPointF point(QPointF centre, double angle) const {
        return centre + m_across * std::cos(angle) + m_lean * std::sin(angle);
    }
    QPolygonF arc(QPointF centre, double from, double sweep) const {
        constexpr int kPieces = 48;
        QPolygonF polygon;
        for (int i = 0; i <= kPieces; ++i)
            polygon << point(centre, from + sweep * i / kPieces);
        return polygon;
    }

    QPointF m_across, m_lean, m_near, m_far;
    double m_widest = 0;
};

void drawCylinder(Canvas& canvas, const QRect& pixels, bool lying, bool shaded, const BarLook& look) {
    const Cylinder cylinder(pixels, lying, look.depth);
    const QPainterPath outline = cylinder.outline();
    canvas.shape(outline, look.fill, kTransparent, look.effect);
    if (shaded)
        canvas.painter().fillPath(outline, cylinder.shading());
    const QPainterPath end = cylinder.nearEnd();
    canvas.fillPath(end, chartdraw::shaded(canvas.colours(), look.fill, 0.25));
    canvas.strokePath(outline, look.edge, look.edgeWidth);
    canvas.strokePath(end, look.edge, look.edgeWidth);
}

} // namespace

void drawBar(Canvas& canvas, const QRect& pixels, int shape, int tip, const BarLook& look) {
    if (pixels.isEmpty())
        return;
    if (shape == CircleShape || shape == CircleShapeNoShading) {
        drawCylinder(canvas, pixels, tip == 4 || tip == 6, shape == CircleShape, look);
        return;
    }
    const bool plain = shape < DiamondShape || shape > InvertedTriangleShape;
    if (plain && look.depth <= 0) {
        canvas.box(pixels, look.fill, look.edge, look.effect, {}, look.edgeWidth);
        return;
    }
    const QPolygonF front = outline(pixels, plain ? SquareShape : shape, plain ? 8 : tip);
    if (look.depth > 0)
        drawSides(canvas, front, look.depth, look.side, look.sideEdge);
    if (plain)
        canvas.box(pixels, look.fill, look.edge, look.effect, {}, look.edgeWidth);
    else
        canvas.shape(closed(front), look.fill, look.edge, look.effect, look.edgeWidth);
}

} // namespace chartdraw
