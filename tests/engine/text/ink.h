#pragma once

#include "engine/text/application.h"
#include "engine/text/text_block.h"
#include "tests/expect.h"

namespace chartdraw {
inline QImage whitePicture(int width = 300, int height = 200) {
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    return image;
}

/// Draws black on white unless the look has another colour, the anchor in the middle of the picture.
inline QImage drawn(TextLook look, std::string_view text, int anchorAlignment = Center, bool pivot = false,
                    const FontSet& fonts = {}) {
    if (look.colour == kTextColour) look.colour = 0x000000;
    ensureApplication(); // Before the first painter, as each chart does.
    QImage image = whitePicture();
    ColourTable colours;
    {
        Canvas canvas(image, colours);
        const TextBlock block(look, text, fonts);
        const QPointF anchor(image.width() / 2, image.height() / 2);
        pivot ? block.drawPivotAt(canvas, anchor, anchorAlignment) : block.drawAt(canvas, anchor, anchorAlignment);
    }
    return image;
}

/// The smallest rectangle around all pixels that are not white.
inline QRect ink(const QImage& image) {
    QRect bounds;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) != 0xffffffff) bounds |= QRect(x, y, 1, 1);
    }
    return bounds;
}

inline double darkness(const QImage& image) {
    double sum = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) sum += (255 - qGray(image.pixel(x, y))) / 255.0;
    return sum;
}
} // namespace chartdraw
