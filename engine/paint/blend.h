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

/// Pixels in memory; the stride from row to row is in pixels too.
template <class Pixel>
struct PixelRows {
    Pixel* first;
    std::size_t stride;
};

/// Lays pixels over others.
void blendRows(PixelRows<QRgb> to, PixelRows<const QRgb> from, std::size_t width, std::size_t rows);
/// Lays one colour over pixels.
void blendColour(PixelRows<QRgb> to, QRgb colour, std::size_t width, std::size_t rows);

} // namespace chartdraw
