#include "engine/paint/canvas.h"
#include "engine/text/text_block.h"
#include <cstddef>
#include <cstdint>

// Two bytes pick how the text is set; the rest is the text. It is measured and drawn.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2) return 0;
    chartdraw::TextLook look;
    look.angle = (data[0] & 3) * 22.5;
    look.vertical = (data[0] & 4) != 0;
    look.wrapWidth = (data[0] & 8) != 0 ? data[1] : 0;
    look.size = 1 + data[1] % 40;
    const std::string_view text(reinterpret_cast<const char*>(data) + 2, size - 2);
    const chartdraw::TextBlock block(look, text, chartdraw::FontSet());
    if (block.size().width() < 0 || block.size().height() < 0) __builtin_trap();
    QImage image(100, 100, QImage::Format_ARGB32_Premultiplied);
    image.fill(0);
    const chartdraw::ColourTable colours;
    chartdraw::Canvas canvas(image, colours);
    block.drawAt(canvas, {50, 50}, chartdraw::Center);
    return 0;
}
