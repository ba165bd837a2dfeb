#include "engine/paint/picture_layer.h"

#include "engine/paint/blend.h"

namespace chartdraw {

PictureLayer::PictureLayer(const QPainter& painter, const QRect& area) {
    const QTransform& transform = painter.worldTransform();
    const QRect pixels = transform.mapRect(QRectF(area)).toAlignedRect();
    m_place = pixels.topLeft();
    m_transform = transform * QTransform::fromTranslate(-m_place.x(), -m_place.y());
    m_image = QImage(pixels.size(), QImage::Format_ARGB32_Premultiplied);
    m_image.fill(Qt::transparent);
}

void PictureLayer::drawOn(QPainter& painter) const {
    drawPixels(painter, m_place, m_image);
}

namespace {

std::size_t strideOf(const QImage& image) {
    return static_cast<std::size_t>(image.bytesPerLine()) / sizeof(QRgb);
}

/// Straight into the image that is painted on, where that may be written to: the painter takes any image for
/// a texture, whose rows it hands to other threads, and waits for these.
bool layPixels(const QPainter& painter, QPoint place, const QImage& image) {
    if (painter.device()->devType() != QInternal::Image || painter.opacity() != 1 ||
        painter.compositionMode() != QPainter::CompositionMode_SourceOver ||
        image.format() != QImage::Format_ARGB32_Premultiplied)
        return false;
    auto& target = *static_cast<QImage*>(painter.device());
    if (target.format() != QImage::Format_ARGB32_Premultiplied)
        return false;
    QRect limits = target.rect();
    if (painter.hasClipping()) {
        const QTransform& transform = painter.worldTransform();
        const QRegion clip = painter.clipRegion();
        const QPoint origin = transform.map(QPoint());
        if (transform.type() > QTransform::TxTranslate || transform.map(QPointF()) != origin ||
            clip.rectCount() != 1)
            return false;
        limits &= clip.boundingRect().translated(origin);
    }
    const QRect shown = QRect(place, image.size()) & limits;
    if (shown.isEmpty())
        return true;
    const QPoint from = shown.topLeft() - place;
    blendRows({reinterpret_cast<QRgb*>(target.scanLine(shown.top())) + shown.left(), strideOf(target)},
              {reinterpret_cast<const QRgb*>(image.constScanLine(from.y())) + from.x(), strideOf(image)},
              static_cast<std::size_t>(shown.width()), static_cast<std::size_t>(shown.height()));
    return true;
}

} // namespace

void drawPixels(QPainter& painter, QPoint place, const QImage& image) {
    if (layPixels(painter, place, image))
        return;
    const QTransform before = painter.worldTransform();
    painter.resetTransform();
    painter.drawImage(place, image);
    painter.setWorldTransform(before);
}

} // namespace chartdraw
