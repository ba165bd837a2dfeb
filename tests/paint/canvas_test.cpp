#include "engine/paint/canvas.h"

#include <gtest/gtest.h>

namespace chartdraw {
TEST(Line, CoversWholePixels) {
    QImage image(32, 16, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    const ColourTable colours;
    Canvas(image, colours).line({10, 5}, {20, 5}, 0x123456, 1);
    EXPECT_EQ(image.pixel(10, 5), 0xff123456);
}
} // namespace chartdraw
