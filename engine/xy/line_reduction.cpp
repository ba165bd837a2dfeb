#include "engine/xy/line_reduction.h"

#include "engine/data/no_value.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace chartdraw {

namespace {

constexpr double kGap = std::numeric_limits<double>::quiet_NaN();
constexpr std::size_t kKeptWhole = 4; // so few points in a column are all kept
constexpr std::size_t kDense = 8;     // from so many on, a line that goes up and down covers the column

constexpr std::size_t kLook = 48; // rows that are looked at together

int toWhole(double position) {
    return static_cast<int>(std::floor(std::clamp(position, -1e6, 1e6) + 0.5));
}

} // namespace

/// Rows that follow each other in one half of a column. Halves, because a line that merely climbs through a
/// column has no rows of pixels that both halves reach.
struct LineReduction::Run {
    std::size_t begin = 0, end = 0;      ///< rows
    std::size_t lowest = 0, highest = 0; ///< rows of the extreme values
};

LineReduction::LineReduction(const Layer& layer, NumberView values, const PlotFrame& frame, double above)
    : m_frame(frame), m_x(layer.xData()), m_y(values), m_above(above), m_affine(frame.x.affine()) {
    const RowRange rows = layer.rows();
    m_end = std::min(rows.end, values.values.size());
    if (layer.hasXData())
        m_end = std::min(m_end, m_x.values.size());
    m_begin = std::min(rows.begin, m_end);
    if (m_affine && !std::isfinite(m_affine->offset + m_affine->factor * 1e9))
        m_affine.reset();
    m_next = m_begin;
}

bool LineReduction::isGap(std::size_t row) const {
    return !isShown(m_y.values[row]) || (!m_x.values.empty() && !isValue(m_x.values[row]));
}

/// The first row from `row` on that has the value.
std::size_t LineReduction::rowOf(double value, std::size_t row) const {
    while (m_y.values[row] != value)
        ++row;
    return row;
}

LineReduction::Run LineReduction::scan(std::size_t row, double half) const {
    // The x values between the borders of the half column.
    double low = m_frame.x.value((half - 1) / 2);
    double high = m_frame.x.value(half / 2);
    if (low > high)
        std::swap(low, high);
    Run run{row, row + 1, row, row};
    const std::span<const double> x = m_x.values, y = m_y.values;
    double least = y[row], most = least;
    std::size_t stop = m_end;
    if (x.empty() && high - xOf(row) < static_cast<double>(m_end - row))
        stop = std::min(m_end, m_begin + static_cast<std::size_t>(std::max(0.0, std::ceil(high))));
    std::size_t next = row + 1;
    // Blocks, as long as all rows of one are shown and within the half; which row of a block was the extreme
    // one is looked for at the end.
    std::size_t lowBlock = row, highBlock = row;
    const auto take = [&](std::size_t count) {
        if (next + count > stop)
            return false;
        if (!x.empty()) {
            const DataRange places = m_x.range(next, next + count);
            if (places.gaps || places.min < low || places.max >= high)
                return false;
        }
        const DataRange range = m_y.range(next, next + count);
        if (range.gaps || range.min <= m_above)
            return false;
        if (range.min < least) {
            least = range.min;
            lowBlock = next;
        }
        if (range.max > most) {
            most = range.max;
            highBlock = next;
        }
        next += count;
        return true;
    };
    while (next < stop) {
        const std::size_t toBlock = Numbers::kBlock - next % Numbers::kBlock;
        if (!(toBlock == Numbers::kBlock && take(toBlock)) && !take(std::min({kLook, toBlock, stop - next})))
            break;
    }
    run.lowest = rowOf(least, lowBlock);
    run.highest = rowOf(most, highBlock);
    for (; next < stop; ++next) {
        if (!x.empty() && !(x[next] >= low && x[next] < high))
            break;
        const double value = y[next];
        if (!isShown(value))
            break;
        if (value < least) {
            least = value;
            run.lowest = next;
        } else if (value > most) {
            most = value;
            run.highest = next;
        }
    }
    run.end = next;
    return run;
}

void LineReduction::append(std::vector<QPointF>& points, std::size_t row) const {
    points.emplace_back(pixelOf(row), m_frame.y.pixel(m_y.values[row]));
}

void LineReduction::appendColumn(std::vector<QPointF>& points) {
    const double half = std::floor(2 * pixelOf(m_next) + 1);
    const double column = std::floor(half / 2);
    const double otherHalf = 4 * column + 1 - half;
    const auto halfAt = [this](std::size_t row) { return std::floor(2 * pixelOf(row) + 1); };

    const Run first = scan(m_next, half);
    Run second{first.end, first.end, first.end, first.end};
    if (first.end < m_end && !isGap(first.end) && halfAt(first.end) == otherHalf)
        second = scan(first.end, otherHalf);
    Run whole{first.begin, second.end, first.lowest, first.highest};
    if (second.end > second.begin) {
        whole.lowest = m_y.values[second.lowest] < m_y.values[first.lowest] ? second.lowest : first.lowest;
        whole.highest =
            m_y.values[second.highest] > m_y.values[first.highest] ? second.highest : first.highest;
    }
    m_next = whole.end;
    m_joined = true;
    if (whole.end - whole.begin <= kKeptWhole) {
        for (std::size_t row = whole.begin; row < whole.end; ++row)
            append(points, row);
        return;
    }
    const auto [early, late] = std::minmax(whole.lowest, whole.highest);
    const std::size_t last = whole.end - 1;
    append(points, whole.begin);
    for (const std::size_t row : {early, late})
        if (row != whole.begin && row != last)
            append(points, row);
    append(points, last);
    if (whole.end - whole.begin >= kDense && second.end > second.begin) {
        const double bottom = std::max(m_y.values[first.lowest], m_y.values[second.lowest]);
        const double top = std::min(m_y.values[first.highest], m_y.values[second.highest]);
        if (bottom < top) {
            const auto [from, to] =
                std::minmax({toWhole(m_frame.y.pixel(bottom)), toWhole(m_frame.y.pixel(top))});
            m_covered.push_back({toWhole(column), from, to});
        }
    }
}

bool LineReduction::more(std::vector<QPointF>& points, std::size_t most) {
    const std::size_t before = points.size();
    if (m_joined && m_next < m_end && !isGap(m_next))
        append(points, m_next - 1);
    while (m_next < m_end) {
        if (isGap(m_next)) {
            if (m_joined)
                points.emplace_back(kGap, kGap);
            m_joined = false;
            ++m_next;
            continue;
        }
        appendColumn(points);
        // Not cut before a gap: what is left over would be a point by itself.
        if (points.size() - before >= most && m_next < m_end && !isGap(m_next))
            break;
    }
    return points.size() > before;
}

std::vector<QPointF> reducedPoints(const Layer& layer, NumberView values, const PlotFrame& frame,
                                   double above) {
    std::vector<QPointF> points;
    LineReduction(layer, values, frame, above).more(points, std::numeric_limits<std::size_t>::max());
    return points;
}

} // namespace chartdraw
