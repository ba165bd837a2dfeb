#include "engine/xy/row_room.h"

#include "engine/data/no_value.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>
#include <vector>

namespace chartdraw {

namespace {

constexpr double kNone = std::numeric_limits<double>::infinity();

/// The smallest distance of neighbours in ascending values; kNone where they all are one.
double smallestGap(std::span<const double> ascending) {
    double least = kNone;
    for (std::size_t i = 1; i < ascending.size(); ++i) {
        const double step = ascending[i] - ascending[i - 1];
        least = step > 0 ? std::min(least, step) : least;
    }
    return least;
}

std::span<const double> shownXData(const Layer& layer) {
    const RowRange rows = layer.rows();
    const std::span<const double> all = layer.xData();
    const std::size_t end = std::min(rows.end, all.size());
    const std::size_t begin = std::min(rows.begin, end);
    return all.subspan(begin, end - begin);
}

/// The pixels along the layer's x direction, and along y.
std::pair<int, int> extent(const PlotFrame& frame, bool alongX) {
    const QRect plot = frame.plot.translated(-frame.depthOffset);
    return alongX != frame.swapped ? std::pair(plot.left(), plot.right())
                                   : std::pair(plot.top(), plot.bottom());
}

} // namespace

double smallestStep(std::span<const double> values) {
    std::vector<double> sorted;
    if (!std::all_of(values.begin(), values.end(), isValue) ||
        !std::is_sorted(values.begin(), values.end())) {
        std::copy_if(values.begin(), values.end(), std::back_inserter(sorted), isValue);
        std::sort(sorted.begin(), sorted.end());
        values = sorted;
    }
    const double gap = smallestGap(values);
    return std::isfinite(gap) ? gap : 0;
}

double rowRoom(const Layer& layer, const PlotFrame& frame) {
    double room = 0;
    const std::optional<AxisMap::Affine> affine = frame.x.affine();
    if (affine) {
        room = std::abs(affine->factor) * (layer.hasXData() ? smallestStep(shownXData(layer)) : 1);
    } else {
        std::vector<double> positions;
        const RowRange rows = layer.rows();
        for (std::size_t row = rows.begin; row < rows.end; ++row) {
            const double position = frame.x.pixel(layer.xValue(row));
            if (showsX(frame, position))
                positions.push_back(position);
        }
        room = smallestStep(positions);
    }
    const auto [low, high] = extent(frame, true);
    const double length = std::max(1, high - low);
    return room > 0 ? std::min(room, length) : length / 3; // a lone row is no wall
}

DataRange widenedXRange(const Layer& layer, const DataRange& range) {
    if (range.empty || !layer.hasXData())
        return range; // rows have their room by the axis's indent
    const double half = smallestStep(shownXData(layer)) / 2;
    DataRange widened = range;
    widened.add(range.max + half);
    if (range.min <= 0 || range.min - half > 0) // not off the end of a log axis
        widened.add(range.min - half);
    return widened;
}

QRect pixelRect(const PlotFrame& frame, int x0, int x1, int y0, int y1) {
    const auto [left, right] = std::minmax(x0, x1);
    const auto [top, bottom] = std::minmax(y0, y1);
    const QRect rect = frame.swapped ? QRect(QPoint(top, left), QPoint(bottom, right))
                                     : QRect(QPoint(left, top), QPoint(right, bottom));
    return rect.translated(frame.depthOffset);
}

double alongY(const PlotFrame& frame, double value) {
    const auto [low, high] = extent(frame, false);
    // A body cannot be cut to the plot area at its back, so it ends there.
    const double beyond = frame.depth > 0 ? 0 : 50;
    return std::clamp(value == 0 ? frame.baseLine() : frame.y.pixel(value), low - beyond, high + beyond);
}

bool showsX(const PlotFrame& frame, double position, double reach) {
    const auto [low, high] = extent(frame, true);
    return position >= low - reach && position <= high + reach;
}

} // namespace chartdraw
