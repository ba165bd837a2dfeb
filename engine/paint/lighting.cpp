#include "engine/paint/lighting.h"

#include <QLinearGradient>
#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace chartdraw {

namespace {

/// Light (above 0) or shade (below 0) of the given strength.
QColor tone(double strength) {
    return strength > 0 ? QColor::fromRgbF(1, 1, 1, static_cast<float>(strength))
                        : QColor::fromRgbF(0, 0, 0, static_cast<float>(-strength));
}

struct Stop {
    double position; ///< Pixels from the side of the light.
    double strength;
};

/// A gradient that starts at the side of the light.
QBrush lightFrom(const QRectF& bounds, int direction, std::initializer_list<Stop> stops) {
    QPointF from = bounds.topLeft();
    QPointF to = bounds.bottomLeft();
    if (direction == 4 || direction == 6) {
        to = bounds.topRight();
    }
    if (direction == 6 || direction == 2) {
        std::swap(from, to);
    }
    const double length = QLineF(from, to).length();
    QLinearGradient gradient(from, to);
    for (const Stop& stop : stops) {
        gradient.setColorAt(std::clamp(stop.position / length, 0.0, 1.0), tone(stop.strength));
    }
    return gradient;
}

double lengthAlong(const QRectF& bounds, int direction) {
    return direction == 4 || direction == 6 ? bounds.width() : bounds.height();
}

QBrush softBrush(const QRectF& bounds, const Effect& effect) {
    const double length = lengthAlong(bounds, effect.direction);
    const double rim = effect.size > 0 ? std::min<double>(effect.size, length / 2) : length / 2;
    return lightFrom(bounds, effect.direction,
                     {{0, 0.15},
                      {rim * 0.3, 0.6},
                      {rim * 0.7, 0.35},
                      {rim, 0.12},
                      {length - rim * 0.95, 0.1},
                      {length - rim * 0.5, -0.08},
                      {length, -0.38}});
}

QBrush glassBody(const QRectF& bounds, const Effect& effect) {
    const double length = lengthAlong(bounds, effect.direction);
    return lightFrom(bounds, effect.direction,
                     {{0, -0.1}, {length * 0.5, -0.12}, {length * 0.52, -0.02}, {length, 0.35}});
}

QBrush glassGlare(const QRectF& bounds, const Effect& effect) {
    const double length = lengthAlong(bounds, effect.direction);
    const bool reduced = effect.glare == 2;
    const double horizon = length * (reduced ? 0.3 : 0.5);
    return lightFrom(bounds, effect.direction,
                     {{0, reduced ? 0.6 : 0.8}, {horizon - 0.5, reduced ? 0.12 : 0.25}, {horizon + 0.5, 0}});
}

/// The border of a rectangle: one frame of pixels after the other, so that the mitres are exact.
void bevelRect(QPainter& painter, const QRect& rect, int size) {
    const QColor lit = tone(0.6);
    const QColor shaded = tone(-0.35);
    const QColor& topLeft = size > 0 ? lit : shaded;
    const QColor& bottomRight = size > 0 ? shaded : lit;
    const int width = std::min({std::abs(size), rect.width() / 2, rect.height() / 2});
    for (int i = 0; i < width; ++i) {
        const QRect ring = rect.adjusted(i, i, -i, -i);
        painter.fillRect(QRect(ring.left(), ring.top(), ring.width() - 1, 1), topLeft);
        painter.fillRect(QRect(ring.left(), ring.top() + 1, 1, ring.height() - 2), topLeft);
        painter.fillRect(QRect(ring.left(), ring.bottom(), ring.width(), 1), bottomRight);
        painter.fillRect(QRect(ring.right(), ring.top(), 1, ring.height() - 1), bottomRight);
    }
}

/// The border of any outline: a pen lit from the top left, of which the inner half is kept.
void bevelPath(QPainter& painter, const QPainterPath& path, int size) {
    const QRectF bounds = path.boundingRect();
    QLinearGradient light(bounds.topLeft(), bounds.bottomRight());
    const double sign = size > 0 ? 1 : -1;
    light.setColorAt(0, tone(sign > 0 ? 0.7 : -0.45));
    light.setColorAt(0.5, tone(sign > 0 ? 0.05 : -0.05));
    light.setColorAt(1, tone(sign > 0 ? -0.45 : 0.7));
    const double width = std::min(std::min(bounds.width(), bounds.height()) / 2, std::abs(size) * 1.0);
    QPen pen(light, 2 * width);
    pen.setJoinStyle(Qt::MiterJoin);

    const QRect area = bounds.toAlignedRect() & painter.window();
    if (area.isEmpty()) {
        return;
    }
    const auto layer = [&](const auto& draw) {
        QImage image(area.size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter on(&image);
        on.setRenderHints(painter.renderHints());
        on.translate(-area.topLeft());
        draw(on);
        return image;
    };
    const QImage inside = layer([&](QPainter& on) { on.fillPath(path, Qt::black); });
    const QImage border = layer([&](QPainter& on) {
        on.strokePath(path, pen);
        on.setCompositionMode(QPainter::CompositionMode_DestinationIn);
        on.drawImage(area.topLeft(), inside);
    });
    painter.drawImage(area.topLeft(), border);
}

} // namespace

void lightRect(QPainter& painter, const QRect& rect, const Effect& effect) {
    switch (effect.type) {
    case Effect::Type::Flat:
        break;
    case Effect::Type::Border:
        bevelRect(painter, rect, effect.size);
        break;
    case Effect::Type::SoftLighting:
        painter.fillRect(rect, softBrush(rect, effect));
        break;
    case Effect::Type::Glass:
        painter.fillRect(rect, glassBody(rect, effect));
        painter.fillRect(rect, glassGlare(rect, effect));
        break;
    }
}

void lightPath(QPainter& painter, const QPainterPath& path, const Effect& effect) {
    const QRectF bounds = path.boundingRect();
    if (bounds.isEmpty()) {
        return;
    }
    switch (effect.type) {
    case Effect::Type::Flat:
        break;
    case Effect::Type::Border:
        bevelPath(painter, path, effect.size);
        break;
    case Effect::Type::SoftLighting:
        painter.fillPath(path, softBrush(bounds, effect));
        break;
    case Effect::Type::Glass:
        painter.fillPath(path, glassBody(bounds, effect));
        painter.fillPath(path, glassGlare(bounds, effect));
        break;
    }
}

} // namespace chartdraw
