#pragma once
// One premultiplied pixel over another.

#include <QRgb>

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

} // namespace chartdraw
