#pragma once
// Premultiplied pixels over others.

#include <QRgb>
#include <cstddef>

namespace chartdraw {

constexpr int kLanes = 8; ///< pixels that are blended together

/// As the raster engine does it, to the last bit.
inline QRgb over(QRgb above, QRgb below) {
    constexpr QRgb pair = 0xff00ff; // every second channel
    const QRgb part = 255 - (above >> 24);
    QRgb even = (below & pair) * part, odd = (below >> 8 & pair) * part;
    even = (even + (even >> 8 & pair) + 0x800080) >> 8 & pair;
    odd = (odd + (odd >> 8 & pair) + 0x800080) & ~pair;
    return above + (even | odd);
}

/// Lays rows over others. `width` is a multiple of the lanes, and the rows of `from` have no more; `stride`
/// in pixels.
void blendRows(QRgb* to, std::size_t stride, const QRgb* from, std::size_t width, std::size_t rows);

} // namespace chartdraw
