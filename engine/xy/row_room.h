#pragma once
// How much room along x each row of a layer has, which is what the widths of bars and boxes come from, and
// helpers to go from positions along the axes to pixels.

#include "engine/xy/layer.h"

#include <cmath>
#include <span>

namespace chartdraw {

/// The smallest distance above 0 between two of the values, gaps left out; 0 where there is none. Any order.
double smallestStep(std::span<const double> values);

/// Pixels from one row of the layer to the next: between the nearest two where they stand unevenly.
double rowRoom(const Layer& layer, const PlotFrame& frame);

/// The x range of a layer whose rows take up room: half a row more at both ends.
DataRange widenedXRange(const Layer& layer, const DataRange& range);

/// The nearest whole position, limited to +-1e9; the lowest for NaN.
inline int whole(double position) {
    constexpr int kFarthest = 1'000'000'000;
    const double at = std::floor(position + 0.5);
    return at > -kFarthest && at < kFarthest ? static_cast<int>(at) : at > 0 ? kFarthest : -kFarthest;
}

/// The pixels between whole positions along x and along y, ends included and in either order.
QRect pixelRect(const PlotFrame& frame, int x0, int x1, int y0, int y1);

/// The position along y of a value, 0 standing on the base line, limited to a little beyond the plot area.
double alongY(const PlotFrame& frame, double value);

/// Whether a position along x is within the plot area, give or take `reach` pixels. False for NaN.
bool showsX(const PlotFrame& frame, double alongX, double reach = 0.5);

/// The end of the rows from `row` on that are of one kind: `same(r)` for each of them and not for the next,
/// or `end`. Where they are in `ascending` order, so that none of another kind lies between two of one, not
/// every row is asked.
template <class Same>
std::size_t endOfRun(std::size_t row, std::size_t end, bool ascending, const Same& same) {
    std::size_t next = row + 1, step = 1;
    while (next + step <= end && same(next + step - 1)) {
        next += step;
        step = ascending ? 2 * step : 1;
    }
    for (; ascending && step > 0; step /= 2)
        next += next + step <= end && same(next + step - 1) ? step : 0;
    return next;
}

/// Limits drawing to a rectangle for the life of the object.
class ClipScope {
public:
    ClipScope(Canvas& canvas, const QRect& rect) : m_canvas(canvas) { canvas.pushClip(rect); }
    ~ClipScope() { m_canvas.popClip(); }
    ClipScope(const ClipScope&) = delete;
    ClipScope& operator=(const ClipScope&) = delete;

private:
    Canvas& m_canvas;
};

} // namespace chartdraw
