#include "engine/paint/blend.h"

#include "engine/data/fast_loop.h"

namespace chartdraw {

namespace {

CHART_FAST_LOOP void blend(QRgb* __restrict to, std::size_t toStride, const QRgb* __restrict from,
                           std::size_t fromStride, std::size_t width, std::size_t rows) {
    const std::size_t whole = width / kLanes * kLanes;
    for (; rows > 0; --rows, to += toStride, from += fromStride) {
        for (std::size_t x = 0; x < whole; x += kLanes) {
#pragma GCC unroll 1 // only what stays a loop is turned into operations on many pixels
            for (std::size_t k = x; k < x + kLanes; ++k)
                to[k] = over(from[k], to[k]);
        }
        for (std::size_t x = whole; x < width; ++x)
            to[x] = over(from[x], to[x]);
    }
}

CHART_FAST_LOOP void tint(QRgb* to, std::size_t stride, QRgb colour, std::size_t width, std::size_t rows) {
    for (; rows > 0; --rows, to += stride)
        for (std::size_t x = 0; x < width; ++x)
            to[x] = over(colour, to[x]);
}

} // namespace

void blendRows(PixelRows<QRgb> to, PixelRows<const QRgb> from, std::size_t width, std::size_t rows) {
    blend(to.first, to.stride, from.first, from.stride, width, rows);
}

void blendColour(PixelRows<QRgb> to, QRgb colour, std::size_t width, std::size_t rows) {
    tint(to.first, to.stride, colour, width, rows);
}

} // namespace chartdraw
