#include "engine/paint/picture_layer.h"

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

void drawPixels(QPainter& painter, QPoint place, const QImage& image) {
    const QTransform before = painter.worldTransform();
    painter.resetTransform();
    painter.drawImage(place, image);
    painter.setWorldTransform(before);
}

} // namespace chartdraw
