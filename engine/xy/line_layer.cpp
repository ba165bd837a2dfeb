#include "engine/xy/line_layer.h"

#include "engine/chart/symbol_cloud.h"
#include "engine/data/no_value.h"
#include "engine/xy/curves.h"
#include "engine/xy/data_labels.h"
#include "engine/xy/depth.h"
#include "engine/xy/line_reduction.h"
#include "engine/xy/row_room.h"
#include "engine/xy/xy_chart.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <optional>
#include <utility>

namespace chartdraw {

namespace {

constexpr std::size_t kPiece = 1 << 14;      // points in hand at a time
constexpr int kLargestWhole = 20;            // pixels of symbols that are not cut at the plot area
constexpr std::size_t kCloudPiece = 1 << 12; // these are all in a near cache

Kind kindOf(LineLayer::Form form) {
    switch (form) {
    case LineLayer::Form::Smooth:
        return Kind::SplineLayer;
    case LineLayer::Form::Steps:
        return Kind::StepLineLayer;
    default:
        return Kind::LineLayer;
    }
}

void toPicture(std::vector<QPointF>& points, const PlotFrame& frame) {
    for (QPointF& point : points)
        point = frame.at(point.x(), point.y());
}

/// A thin line of level and upright pieces, without the smoothing that blurs its corners.
void drawUpright(Canvas& canvas, std::span<const QPointF> points, Colour colour) {
    forEachRun(
        points,
        [&](std::span<const QPointF> run) {
            canvas.line(run.front(), run.front(), colour, 1);
            for (std::size_t i = 1; i < run.size(); ++i)
                canvas.line(run[i - 1], run[i], colour, 1);
        });
}

/// A missing size is none; sizes are limited to what a data set's symbol may have.
int wholeSize(std::span<const double> sizes, std::size_t row) {
    const double size = row < sizes.size() && isValue(sizes[row]) ? sizes[row] : 0;
    return static_cast<int>(std::lround(std::clamp<double>(size, 0, kMaxSymbolSize)));
}

/// Values up to this one have no place on the scale.
double notShown(const PlotFrame& frame) {
    const bool log = frame.y.scale().kind() == ScaleKind::Log;
    return log ? 0 : -std::numeric_limits<double>::infinity();
}

/// The map without its limits, where gaps lie far out by their size and no digit is lost.
std::optional<AxisMap::Affine> plainMap(const AxisMap& map) {
    const std::optional<AxisMap::Affine> affine = map.affine();
    const bool safe = affine && std::abs(affine->offset) < 1e9 && std::abs(affine->factor) > 1e-280;
    return safe ? affine : std::nullopt;
}

} // namespace

LineLayer::LineLayer(XYChart& chart, Form form, int depth)
    : Layer(kindOf(form), chart, depth), m_form(form) {}

/// A line with more points than columns is a band of its noise: there a broad pen would only hide the form.
int LineLayer::automaticLineWidth() const {
    return rows().size() <= static_cast<std::size_t>(std::max(0, chart().width())) ? 2 : 1;
}

Line* LineLayer::line(int index) {
    DataSet* set = dataSet(index);
    if (set == nullptr)
        return nullptr;
    m_lines.resize(dataSets().size());
    SeriesLine*& line = m_lines[static_cast<std::size_t>(index)];
    if (line == nullptr)
        line = chart().own<SeriesLine>(chart(), *this, *set);
    return line;
}

void LineLayer::setSymbolSizes(std::vector<double> widths, std::vector<double> heights) {
    m_widths = std::move(widths);
    m_heights = std::move(heights);
}

std::vector<QPointF> LineLayer::curve(const DataSet& set, const PlotFrame& frame) const {
    std::vector<QPointF> points = reducedPoints(*this, set.data(), frame, notShown(frame));
    switch (m_form) {
    case Form::Smooth:
        return smoothCurve(points);
    case Form::Steps:
        return steps(points);
    default:
        snapLevels(points);
        return points;
    }
}

void LineLayer::drawLongLine(Canvas& canvas, const DataSet& set) const {
    LineReduction reduction(*this, set.data(), m_frame, notShown(m_frame));
    std::vector<QPointF> points;
    for (; reduction.more(points, kPiece); points.clear()) {
        snapLevels(points);
        toPicture(points, m_frame);
        canvas.polyline(points, set.colour(), lineWidth());
    }
    if (lineWidth() == 1) {
        for (const CoveredStretch& covered : reduction.covered()) {
            canvas.fillRect(pixelRect(m_frame, covered.column, covered.column, covered.from, covered.to),
                            set.colour());
        }
    }
}

void LineLayer::drawLine(Canvas& canvas, const DataSet& set) const {
    if (lineWidth() < 1 || canvas.colours().invisible(set.colour()))
        return;
    if (m_form == Form::Straight && m_frame.depth == 0 && set.colour() <= 0xffffff) {
        drawLongLine(canvas, set); // the colour is opaque, so the line may be drawn in parts
        return;
    }
    std::vector<QPointF> points = curve(set, m_frame);
    toPicture(points, m_frame);
    if (m_frame.depth > 0)
        drawRibbon(canvas, points, m_frame.depth, orDefault(set.shadow(), set.colour()));
    if (m_form == Form::Steps && lineWidth() == 1 && set.colour() <= 0xffffff)
        drawUpright(canvas, points, set.colour());
    else
        canvas.polyline(points, set.colour(), lineWidth());
}

QSize LineLayer::symbolSize(const DataSet& set, std::size_t row) const {
    if (m_widths.empty() && m_heights.empty())
        return {set.symbol().size, set.symbol().size};
    return {wholeSize(m_widths.empty() ? m_heights : m_widths, row),
            wholeSize(m_heights.empty() ? m_widths : m_heights, row)};
}

void LineLayer::drawSymbols(Canvas& canvas, const DataSet& set) const {
    const DataSymbol symbol = set.symbol().resolved(set.colour());
    const bool scaled = !m_widths.empty() || !m_heights.empty();
    // Large ones end at the plot area, or they would lie on the labels of the axes.
    const int beyond = scaled || symbol.size > kLargestWhole ? 0 : kMaxSymbolSize;
    const ClipScope clip(canvas, m_frame.plot.adjusted(-beyond, -beyond, beyond, beyond));
    SymbolPainter symbols(canvas, symbol);
    if (!symbols.visible())
        return;
    const QRectF plot = QRectF(m_frame.plot).adjusted(-0.5, -0.5, -0.5, -0.5);
    const std::size_t begin = rows().begin, end = std::min(rows().end, set.data().size());
    if (!scaled && begin < end && SymbolCloud::pays(canvas, symbol, m_frame.plot, end - begin)) {
        drawCloud(canvas, set, symbol);
        return;
    }
    for (std::size_t row = begin; row < end; ++row) {
        const double x = xValue(row);
        if (!isValue(set.data()[row]) || !isValue(x))
            continue;
        const QPointF centre = m_frame.point(x, set.data()[row]);
        if (!(centre.x() >= plot.left() && centre.x() <= plot.right() && centre.y() >= plot.top() &&
              centre.y() <= plot.bottom()))
            continue;
        if (scaled)
            symbols.draw(centre, symbolSize(set, row));
        else
            symbols.draw(centre);
    }
}

/// In pieces, the last one first.
void LineLayer::drawCloud(Canvas& canvas, const DataSet& set, const DataSymbol& symbol) const {
    const std::span<const double> data = set.data(), given = xData();
    const std::size_t begin = rows().begin;
    SymbolCloud cloud(canvas, symbol, m_frame.plot.translated(-m_frame.depthOffset));
    std::vector<double> rowNumbers, along[2];
    const auto places = [](const AxisMap& map, std::span<const double> values, std::vector<double>& pixels) {
        if (const std::optional<AxisMap::Affine> plain = plainMap(map))
            return SymbolCloud::Places{values, plain->offset, plain->factor};
        pixels.resize(values.size());
        map.pixels(values, pixels.data());
        return SymbolCloud::Places{pixels};
    };
    std::size_t end = std::min({rows().end, data.size(), hasXData() ? given.size() : data.size()});
    for (std::size_t first = end; end > begin; end = first) {
        first = end - std::min(kCloudPiece, end - begin);
        if (!hasXData()) {
            rowNumbers.resize(end - first);
            std::iota(rowNumbers.begin(), rowNumbers.end(), static_cast<double>(first - begin));
        }
        const auto x =
            places(m_frame.x, hasXData() ? given.subspan(first, end - first) : rowNumbers, along[0]);
        const auto y = places(m_frame.y, data.subspan(first, end - first), along[1]);
        cloud.drawBehind(m_frame.swapped ? y : x, m_frame.swapped ? x : y);
    }
    cloud.finish(m_frame.depthOffset);
}

void LineLayer::draw(Canvas& canvas, const PlotFrame& frame) {
    m_frame = frame;
    {
        // Lines on the frame keep their whole width.
        const int reach = std::max(0, lineWidth() / 2);
        const QRect plot = frame.plot.adjusted(-reach, -reach - frame.depth, reach + frame.depth, reach);
        const ClipScope clip(canvas, plot);
        for (const DataSet* set : dataSets())
            drawLine(canvas, *set);
    }
    for (const DataSet* set : dataSets())
        drawSymbols(canvas, *set);
}

void LineLayer::drawLabels(Canvas& canvas, const PlotFrame& frame) {
    if (dataLabels() == nullptr)
        return;
    DataLabels labels(canvas, *this, frame, *dataLabels(), dataLabelFormat());
    for (const DataSet* set : dataSets()) {
        const std::span<const double> data = set->data();
        const auto lower = [&](std::size_t row, std::size_t other) {
            return other >= data.size() || !isValue(data[other]) || data[row] < data[other];
        };
        const std::size_t end = std::min(rows().end, data.size());
        for (std::size_t row = rows().begin; row < end; ++row) {
            const double x = xValue(row);
            if (!isValue(data[row]) || !isValue(x))
                continue;
            // In a valley the line leaves room below.
            const bool valley =
                lower(row, row - 1) && lower(row, row + 1) && data.size() > 1 && lineWidth() > 0;
            const QSize size = symbolSize(*set, row);
            const int side = frame.swapped ? size.width() : size.height();
            const int shape = set->symbol().shape;
            const int symbol = shape > 0 ? static_cast<int>(symbolReach(shape, side)) : lineWidth();
            // A riser stands on one side of its point.
            const bool riser = m_form == Form::Steps && row > 0 && isValue(data[row - 1]) &&
                               lineWidth() > 0 && data[row - 1] != data[row];
            const bool below = riser ? data[row - 1] > data[row] : valley;
            labels.draw({row, set, data[row]}, {.alongX = frame.x.pixel(x),
                                                .alongY = frame.y.pixel(data[row]),
                                                .side = below ? LabelSide::Below : LabelSide::Above,
                                                .gap = symbol / 2 + 2,
                                                .beside = lineWidth() == 0,
                                                .oneSided = riser});
        }
    }
}

void LineLayer::collectKeys(std::vector<LegendKey>& keys) const {
    for (const DataSet* set : dataSets()) {
        if (set->name().empty())
            continue;
        const auto mark = [set](Canvas& canvas, QPointF centre, double room) {
            const DataSymbol symbol = set->symbol().resolved(set->colour());
            SymbolPainter(canvas, symbol.within(static_cast<int>(room))).draw(centre);
        };
        if (lineWidth() > 0) {
            keys.push_back(lineKey(
                set->name(), set->colour(), lineWidth(),
                [mark](Canvas& canvas, QPointF centre) { mark(canvas, centre, 11); }));
        } else {
            LegendKey key;
            key.fields = nameOnly(set->name());
            key.drawSymbol = [mark](Canvas& canvas, const QRectF& area) {
                mark(canvas, {std::floor(area.center().x()), std::floor(area.center().y())}, area.height());
            };
            keys.push_back(std::move(key));
        }
    }
}

} // namespace chartdraw
