#include "engine/paint/lighting.h"
#include "engine/paint/picture_layer.h"

#include <QLinearGradient>
#include <QRadialGradient>
#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <utility>

namespace chartdraw {

namespace {

constexpr double kBevelLight = 0.6;
constexpr double kBevelShade = -0.35;

/// Light (above 0) or shade (below 0) of the given strength.
QColor tone(double strength) {
    return strength > 0 ? QColor::fromRgbF(1, 1, 1, static_cast<float>(strength))
                        : QColor::fromRgbF(0, 0, 0, static_cast<float>(-strength));
}

/// The way of the light across a shape.
struct Beam {
    QPointF from; ///< The middle of the side of the light.
    QPointF to;   ///< The middle of the side opposite.
    double length;
    double across;

    Beam(const QRectF& bounds, int direction) {
        const bool level = direction == 4 || direction == 6;
        const QPointF centre = bounds.center();
        from = level ? QPointF(bounds.left(), centre.y()) : QPointF(centre.x(), bounds.top());
        to = level ? QPointF(bounds.right(), centre.y()) : QPointF(centre.x(), bounds.bottom());
        if (direction == 6 || direction == 2)
            std::swap(from, to);
        length = level ? bounds.width() : bounds.height();
        across = level ? bounds.height() : bounds.width();
    }
};

struct Stop {
    double position; ///< Pixels from where the gradient starts.
    double strength;
};

QBrush withStops(QGradient gradient, double length, std::initializer_list<Stop> stops) {
    for (const Stop& stop : stops)
        gradient.setColorAt(std::clamp(stop.position / length, 0.0, 1.0), tone(stop.strength));
    return gradient;
}

/// A cushion: bright close to the light, dark at the far side, level between two rims.
QBrush softBrush(const QRectF& bounds, const Effect& effect) {
    const Beam beam(bounds, effect.direction);
    const double length = beam.length;
    const double rim = effect.size > 0 ? std::min<double>(effect.size, length / 2) : length / 2;
    return withStops(QLinearGradient(beam.from, beam.to), length,
                     {{0, 0.28},
                      {rim * 0.3, 0.62},
                      {rim * 0.7, 0.35},
                      {rim, 0.1},
                      {length - rim * 0.95, 0.08},
                      {length - rim * 0.5, -0.1},
                      {length, -0.42}});
}

/// Darkest below the glare, and bright again where light gathers at the far side.
QBrush glassBody(const QRectF& bounds, const Effect& effect) {
    const Beam beam(bounds, effect.direction);
    const bool reduced = effect.glare == 2;
    return withStops(QLinearGradient(beam.from, beam.to), beam.length,
                     {{0, -0.12},
                      {beam.length * (reduced ? 0.25 : 0.45), reduced ? -0.1 : -0.22},
                      {beam.length * 0.78, reduced ? 0 : -0.14},
                      {beam.length, reduced ? 0.2 : 0.3}});
}

/// The mirrored sky: brightest at the side of the light, ending at a horizon that bends away from it.
QBrush glassGlare(const QRectF& bounds, const Effect& effect) {
    const Beam beam(bounds, effect.direction);
    const bool reduced = effect.glare == 2;
    const double horizon = beam.length * (reduced ? 0.27 : 0.52);
    const double bend = std::min(horizon * 0.35, beam.across * 0.2);
    const double radius = std::max(horizon, beam.across * beam.across / (8 * bend) + bend / 2);
    const QPointF step = (beam.to - beam.from) / beam.length;
    const QPointF centre = beam.from + step * (horizon - radius);
    QRadialGradient sky(centre, radius + 1, centre, radius - horizon);
    const double span = horizon + 1;
    return withStops(sky, span, {{0, reduced ? 0.6 : 0.85}, {horizon, reduced ? 0.15 : 0.25}, {span, 0}});
}

/// The border of a rectangle: one frame of pixels after the other, so that the mitres are exact.
void bevelRect(QPainter& painter, const QRect& rect, int size) {
    const QColor topLeft = tone(size > 0 ? kBevelLight : kBevelShade);
    const QColor bottomRight = tone(size > 0 ? kBevelShade : kBevelLight);
    const int width = std::min({std::abs(size), rect.width() / 2, rect.height() / 2});
    for (int i = 0; i < width; ++i) {
        const QRect ring = rect.adjusted(i, i, -i, -i);
        painter.fillRect(QRect(ring.left(), ring.top(), ring.width() - 1, 1), topLeft);
        painter.fillRect(QRect(ring.left(), ring.top() + 1, 1, ring.height() - 2), topLeft);
        painter.fillRect(QRect(ring.left(), ring.bottom(), ring.width(), 1), bottomRight);
        painter.fillRect(QRect(ring.right(), ring.top(), 1, ring.height() - 1), bottomRight);
    }
}

/// The border of any outline: the shape less itself moved away from the light, and less itself moved into it.
/// So inner outlines are lit from the right side too.
void bevelPath(QPainter& painter, const QPainterPath& path, int size) {
    const QRectF bounds = path.boundingRect();
    const QRectF shown = painter.combinedTransform().inverted().mapRect(QRectF(painter.window()));
    const QRect area = (shown & bounds).toAlignedRect();
    if (area.isEmpty())
        return;
    const double width = std::min(std::abs(size) * 1.0, std::min(bounds.width(), bounds.height()) / 2);
    // In steps, so that it fades inwards: light and shade cross on thin shapes without a hard patch.
    const int steps = std::clamp(static_cast<int>(width), 1, 6);
    PictureLayer layer(painter, area);
    for (int step = 2 * steps; step > 0; --step) {
        const double shift = (step % 2 == 0 ? width : -width) * ((step + 1) / 2) / steps;
        layer.image().fill(Qt::transparent);
        QPainter on(&layer.image());
        on.setRenderHints(painter.renderHints());
        on.setWorldTransform(layer.transform());
        on.fillPath(path,
                    tone(((shift > 0) == (size > 0) ? kBevelLight : kBevelShade) * 1.5 / (steps + 0.5)));
        on.setCompositionMode(QPainter::CompositionMode_DestinationOut);
        on.fillPath(path.translated(shift, shift), Qt::black);
        on.end();
        layer.drawOn(painter);
    }
}

} // namespace

void lightBox(QPainter& painter, const QRect& rect, const Corners& corners, const Effect& effect) {
    if (effect.type == Effect::Type::Border && isSquare(corners)) {
        bevelRect(painter, rect, effect.size);
    } else if (effect.type == Effect::Type::Glass) {
        // The glare keeps away from the sides, which then look like the thickness of the glass.
        const int least = std::min(rect.width(), rect.height());
        const int rim = std::min(effect.size > 0 ? effect.size : std::clamp(least / 16, 1, 4), least / 4);
        const QRect inner = rect.adjusted(rim, rim, -rim, -rim);
        painter.fillPath(roundedRect(rect, corners), glassBody(rect, effect));
        painter.fillPath(roundedRect(inner, insetCorners(corners, rim)), glassGlare(inner, effect));
    } else if (effect.type != Effect::Type::Flat) {
        lightPath(painter, roundedRect(rect, corners), effect);
    }
}

void lightPath(QPainter& painter, const QPainterPath& path, const Effect& effect) {
    const QRectF bounds = path.boundingRect();
    if (bounds.isEmpty())
        return;
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
