#pragma once
// A part of the picture that is drawn by itself first.

#include <QImage>
#include <QPainter>
#include <QTransform>

namespace chartdraw {

/// A transparent image over a part of the picture, of the same pixels as what `painter` draws on: in a
/// picture that is drawn larger it is as fine as the rest. The painter may only be scaled and moved.
class PictureLayer {
public:
    PictureLayer(const QPainter& painter, const QRect& area);

    bool isNull() const { return m_image.isNull(); }
    QImage& image() { return m_image; }
    /// For a painter on the image: it then draws in the coordinates of the picture.
    const QTransform& transform() const { return m_transform; }
    /// The same for what has its origin at a place of the picture.
    QTransform transformFrom(QPoint place) const {
        return QTransform::fromTranslate(place.x(), place.y()) * m_transform;
    }
    /// Pixel on pixel.
    void drawOn(QPainter& painter) const;

private:
    QImage m_image;
    QTransform m_transform;
    QPoint m_place; ///< on the image that is drawn on
};

/// Draws an image in its own pixels, those of the image that is drawn on, whatever the painter's scale.
void drawPixels(QPainter& painter, QPoint place, const QImage& image);

} // namespace chartdraw
