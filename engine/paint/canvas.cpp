#include "engine/paint/canvas.h"

#include "engine/paint/blend.h"
#include "engine/paint/clip.h"
#include "engine/paint/lighting.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace chartdraw {

namespace {

constexpr double kSafeCoordinate = 30000; // the raster engine's own limit is 2 to the 15th
constexpr int kFar = 1'000'000;           // pixels; boxes are cut to it, so that no sum of theirs overflows

/// Whether the raster engine can take the coordinates as they are.
bool isSafe(const QPainter& painter, const QRectF& rect) {
    const QRectF bounds = painter.worldTransform().mapRect(rect);
    return bounds.left() > -kSafeCoordinate && bounds.right() < kSafeCoordinate &&
           bounds.top() > -kSafeCoordinate && bounds.bottom() < kSafeCoordinate;
}

/// The whole pixels that a rectangle stands for, within `limits`; empty for one that is not a number.
QRect wholePixels(const QRectF& rect, const QRectF& limits) {
    const auto side = [](double value, double low, double high) {
        return static_cast<int>(std::floor(std::clamp(value, low, high) + 0.5));
    };
    const QRectF upright = rect.normalized();
    if (std::isnan(upright.left() + upright.right() + upright.top() + upright.bottom()))
        return {};
    const QPoint topLeft(side(upright.left(), limits.left(), limits.right()),
                         side(upright.top(), limits.top(), limits.bottom()));
    const QPoint behind(side(upright.right(), limits.left(), limits.right()),
                        side(upright.bottom(), limits.top(), limits.bottom()));
    return {topLeft, QSize(behind.x() - topLeft.x(), behind.y() - topLeft.y())};
}

/// The rectangle that a path of four upright sides is.
std::optional<QRectF> asRect(const QPainterPath& path) {
    if (path.elementCount() != 5 && path.elementCount() != 4)
        return std::nullopt;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPointF from = path.elementAt(i);
        const QPointF to = path.elementAt((i + 1) % path.elementCount());
        if (path.elementAt(i).isCurveTo() || (i > 0 && path.elementAt(i).isMoveTo()) ||
            (from.x() != to.x() && from.y() != to.y()))
            return std::nullopt;
    }
    return path.boundingRect();
}

} // namespace

Canvas::Canvas(QImage& image, const ColourTable& colours, bool antiAlias, const QTransform& transform)
    : m_image(image), m_painter(&image), m_colours(colours), m_scale(transform.m11()) {
    m_painter.setWorldTransform(transform);
    m_painter.setRenderHint(QPainter::Antialiasing, antiAlias);
    m_painter.setRenderHint(QPainter::SmoothPixmapTransform);
}

int Canvas::width() const {
    return static_cast<int>(std::ceil(m_painter.device()->width() / scale() - 1e-6));
}
int Canvas::height() const {
    return static_cast<int>(std::ceil(m_painter.device()->height() / scale() - 1e-6));
}

QRectF Canvas::visible(double margin) const {
    const QRectF image(0, 0, m_painter.device()->width(), m_painter.device()->height());
    const QTransform& transform = m_painter.worldTransform();
    const QRectF shown = transform.isIdentity() ? image : transform.inverted().mapRect(image);
    return shown.adjusted(-margin, -margin, margin, margin);
}

void Canvas::fillRect(const QRectF& rect, Colour colour) {
    const QRect pixels = wholePixels(rect, visible(1));
    if (!pixels.isEmpty())
        fillPixels(pixels, colour, rect);
}

QRect Canvas::onImage(const QRectF& box) const {
    const QRectF place = m_painter.worldTransform().mapRect(box);
    const auto border = [](double at) { return static_cast<int>(std::floor(at + 0.5)); };
    const QPoint corner(border(place.left()), border(place.top()));
    return {corner, QSize(std::max(1, border(place.right()) - corner.x()),
                          std::max(1, border(place.bottom()) - corner.y()))};
}

int Canvas::onImage(double width) const {
    return std::max(1, static_cast<int>(std::lround(std::min(width, double{kFar}) * scale())));
}

void Canvas::fillImage(const QRect& pixels, Colour colour, const QRectF& extent) {
    if (m_colours.invisible(colour))
        return;
    QBrush brush = m_colours.brush(colour, extent);
    const QTransform before = m_painter.worldTransform();
    brush.setTransform(brush.transform() * before);
    m_painter.resetTransform();
    m_painter.fillRect(pixels, brush);
    m_painter.setWorldTransform(before);
}

void Canvas::pushClip(const QRect& rect) {
    const QRect pixels = m_painter.worldTransform().mapRect(QRectF(rect)).toAlignedRect();
    m_clips.push_back(pixels & (m_clips.empty() ? m_image.rect() : m_clips.back()));
    m_painter.save();
    m_painter.setClipRect(rect, Qt::IntersectClip);
}

void Canvas::popClip() {
    m_painter.restore();
    m_clips.pop_back();
}

Canvas::Pixels Canvas::pixels() const {
    const QTransform& transform = m_painter.worldTransform();
    const QPoint origin(static_cast<int>(transform.dx()), static_cast<int>(transform.dy()));
    if (transform.type() > QTransform::TxTranslate || origin.x() != transform.dx() ||
        origin.y() != transform.dy() || m_painter.hasClipping() == m_clips.empty() ||
        m_painter.opacity() != 1 || m_painter.compositionMode() != QPainter::CompositionMode_SourceOver)
        return {};
    return {&m_image, origin, m_clips.empty() ? m_image.rect() : m_clips.back()};
}

/// The painter hands the rows of a colour that shows through to other threads, and waits for these.
bool Canvas::fillStraight(const QRect& pixels, const QColor& colour) const {
    const Pixels open = this->pixels();
    if (open.image == nullptr)
        return false;
    const QRect place = pixels.translated(open.origin) & open.limits;
    if (place.isEmpty())
        return true;
    const PixelRows<QRgb> rows{reinterpret_cast<QRgb*>(open.image->scanLine(place.top())) + place.left(),
                               static_cast<std::size_t>(open.image->bytesPerLine()) / sizeof(QRgb)};
    const auto width = static_cast<std::size_t>(place.width()),
               height = static_cast<std::size_t>(place.height());
    const QRgb premultiplied = colour.rgba64().premultiplied().toArgb32();
    if (colour.alpha() < 255)
        blendColour(rows, premultiplied, width, height);
    else
        for (std::size_t y = 0; y < height; ++y)
            std::fill_n(rows.first + y * rows.stride, width, premultiplied);
    return true;
}

void Canvas::fillPixels(const QRect& pixels, Colour colour, const QRectF& extent) {
    if (scale() != 1)
        fillImage(onImage(pixels), colour, extent);
    else if (colour < kTransparent && fillStraight(pixels, m_colours.solid(colour)))
        return;
    else if (colour < kTransparent)
        m_painter.fillRect(pixels, m_colours.solid(colour));
    else if (!m_colours.invisible(colour))
        m_painter.fillRect(pixels, m_colours.brush(colour, extent));
}

void Canvas::fillPath(const QPainterPath& path, Colour colour, const QRectF* extent) {
    if (m_colours.invisible(colour))
        return;
    const QBrush brush = m_colours.brush(colour, extent != nullptr ? *extent : path.boundingRect());
    if (isSafe(m_painter, path.controlPointRect()))
        m_painter.fillPath(path, brush);
    else
        m_painter.fillPath(clipPath(path, visible(2)), brush);
}

void Canvas::strokePath(const QPainterPath& path, Colour colour, double width) {
    if (!(width > 0) || m_colours.invisible(colour))
        return;
    const QRectF bounds = path.controlPointRect();
    const double penWidth = std::min(width, kSafeCoordinate);
    QPen pen(m_colours.brush(colour, bounds), penWidth, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
    if (isSafe(m_painter, bounds)) {
        m_painter.strokePath(path, pen);
        return;
    }
    const QRectF limits = visible(penWidth + 2);
    const QList<QPolygonF> polygons = path.toSubpathPolygons();
    m_painter.setPen(pen);
    for (const QPolygonF& polygon : polygons) {
        for (qsizetype i = 1; i < polygon.size(); ++i) {
            QPointF from = polygon[i - 1];
            QPointF to = polygon[i];
            if (clipSegment(from, to, limits))
                m_painter.drawLine(from, to);
        }
    }
}

void Canvas::frame(const QRect& rect, Colour colour, const Corners& corners, int width) {
    const int inner = std::min({width, (rect.width() + 1) / 2, (rect.height() + 1) / 2});
    if (inner <= 0 || m_colours.invisible(colour))
        return;
    if (!isSquare(corners)) {
        QPainterPath outline = roundedRect(rect, corners);
        const QRect inside = rect.adjusted(inner, inner, -inner, -inner);
        if (!inside.isEmpty())
            outline.addPath(roundedRect(inside, insetCorners(corners, inner)));
        fillPath(outline, colour);
        return;
    }
    const bool scaled = scale() != 1;
    const QRect all = scaled ? onImage(wholePixels(rect, visible(width + 1))) : rect;
    const int side = scaled ? std::min({onImage(inner), all.width(), all.height()}) : inner;
    // The far sides take what the near ones leave, so that a thick edge never covers itself.
    const int right = std::min(side, all.width() - side);
    const int bottom = std::min(side, all.height() - side);
    const int between = all.height() - side - bottom;
    const QRectF limits = visible(1);
    const QRect sides[] = {{all.left(), all.top(), all.width(), side},
                           {all.left(), all.top() + side, side, between},
                           {all.right() + 1 - right, all.top() + side, right, between},
                           {all.left(), all.bottom() + 1 - bottom, all.width(), bottom}};
    for (const QRect& part : sides) {
        const QRect pixels = scaled ? part : wholePixels(part, limits);
        if (pixels.isEmpty())
            continue;
        if (scaled)
            fillImage(pixels, colour, rect);
        else
            fillPixels(pixels, colour, rect);
    }
}

void Canvas::box(const QRect& whole, Colour fillColour, Colour edge, int effect, const Corners& corners,
                 int edgeWidth) {
    if (whole.isEmpty())
        return;
    const QRect rect = whole & QRect(QPoint(-kFar, -kFar), QPoint(kFar, kFar));
    if (rect.isEmpty())
        return;
    if (isSquare(corners))
        fillRect(rect, fillColour);
    else
        fillPath(roundedRect(rect, corners), fillColour);
    const QRect lit = isSafe(m_painter, rect) ? rect : wholePixels(rect, visible(kMaxEffectSize));
    if (!lit.isEmpty())
        lightBox(m_painter, lit, corners, Effect::decode(effect));
    if (edge != kDefaultColour)
        frame(rect, edge, corners, edgeWidth);
}

void Canvas::shape(const QPainterPath& path, Colour fillColour, Colour edge, int effect, double edgeWidth) {
    if (const std::optional<QRectF> rect = asRect(path)) {
        const QRect pixels = wholePixels(*rect, QRectF(-kFar, -kFar, 2.0 * kFar, 2.0 * kFar));
        // However thin, a bar is there.
        const QSize size(rect->width() > 0 ? std::max(1, pixels.width()) : 0,
                         rect->height() > 0 ? std::max(1, pixels.height()) : 0);
        box(QRect(pixels.topLeft(), size), fillColour, edge, effect, {},
            static_cast<int>(std::lround(std::clamp<double>(edgeWidth, 0, kFar))));
        return;
    }
    fillPath(path, fillColour);
    if (isSafe(m_painter, path.controlPointRect()))
        lightPath(m_painter, path, Effect::decode(effect));
    if (edge != kDefaultColour)
        strokePath(path, edge, edgeWidth);
}

void drawImage(Canvas& canvas, const QImage& image, const QRect& area, int alignment) {
    const int code = alignment >= 1 && alignment <= 9 ? alignment - 1 : 4;
    const QSize room = area.size() - image.size();
    const QRect target(area.left() + room.width() * (code % 3) / 2,
                       area.top() + room.height() * (2 - code / 3) / 2, image.width(), image.height());
    const QRect shown = target & area;
    if (!image.isNull() && !shown.isEmpty())
        canvas.painter().drawImage(shown.topLeft(), image, shown.translated(-target.topLeft()));
}

} // namespace chartdraw
