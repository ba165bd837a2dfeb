// Symbols that are written straight into the image, beside the painter's.

#include "engine/chart/data_symbol.h"
#include <QColor>
#include <gtest/gtest.h>
#include <random>

namespace chartdraw {
namespace {
QImage drawn(const DataSymbol& symbol, bool straight) {
    QImage image(80, 60, QImage::Format_ARGB32_Premultiplied);
    std::mt19937 random(static_cast<unsigned>(symbol.shape));
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixelColor(x, y, QColor::fromRgba(static_cast<QRgb>(random())));
    const ColourTable colours;
    Canvas canvas(image, colours, true, QTransform::fromTranslate(3, -2));
    if (!straight) canvas.painter().setClipRect(QRect(-10, -10, 100, 100)); // the canvas does not know of it
    EXPECT_EQ(canvas.pixels().image != nullptr, straight);
    SymbolPainter symbols(canvas, symbol.resolved(0));
    std::uniform_real_distribution<double> along(-10, 90);
    for (int i = 0; i < 200; ++i) symbols.draw({along(random), along(random)});
    canvas.painter().end();
    return image;
}

TEST(Symbols, AreTheSamePixelsWithAndWithoutThePainter) {
    for (int shape = 1; shape <= 9; ++shape) {
        for (const int size : {1, 5, 8, 21})
            EXPECT_EQ(drawn({shape, size, 0x804479bb, 0x20000000, 1}, true),
                      drawn({shape, size, 0x804479bb, 0x20000000, 1}, false))
                << shape << ", " << size;
    }
}
} // namespace
} // namespace chartdraw
