#include "engine/chart/blend.h"

#include "engine/data/fast_loop.h"

namespace chartdraw {

namespace {

CHART_FAST_LOOP void blend(QRgb* __restrict to, std::size_t stride, const QRgb* __restrict from,
                           std::size_t width, std::size_t rows) {
    for (; rows > 0; --rows, to += stride, from += width) {
        for (std::size_t x = 0; x < width; x += kLanes) {
#pragma GCC unroll 1 // only what stays a loop is turned into operations on many pixels
            for (std::size_t k = x; k < x + kLanes; ++k)
                to[k] = over(from[k], to[k]);
        }
    }
}

} // namespace

void blendRows(QRgb* to, std::size_t stride, const QRgb* from, std::size_t width, std::size_t rows) {
    blend(to, stride, from, width, rows);
}

} // namespace chartdraw
