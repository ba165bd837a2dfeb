#include "engine/xy/area_layer.h"

#include "engine/data/no_value.h"
#include "engine/xy/curves.h"
#include "engine/xy/data_labels.h"
#include "engine/xy/depth.h"
#include "engine/xy/line_reduction.h"
#include "engine/xy/row_room.h"

#include <algorithm>
#include <cmath>

namespace chartdraw {

namespace {

/// A stretch without gaps: the upper border from its first row to its last, and the lower one.
struct Stretch {
    std::vector<QPointF> upper, lower;

    /// The outline on the picture, in pixel borders. The ends and the base line stand on whole pixels.
    QPolygonF outline(const PlotFrame& frame, double sink) const {
        QPolygonF polygon;
        const double sign = upper.back().x() < upper.front().x() ? -0.5 : 0.5;
        const double first = std::floor(upper.front().x() + 0.5) - sign;
        const double last = std::floor(upper.back().x() + 0.5) + sign;
        const auto add = [&](double x, double y) { polygon << frame.at(x, y) + QPointF(0.5, 0.5); };
        add(first, upper.front().y());
        for (std::size_t i = 1; i + 1 < upper.size(); ++i)
            add(upper[i].x(), upper[i].y());
        add(last, upper.back().y());
        add(last, lower.back().y() + sink);
        for (std::size_t i = lower.size() - 1; i-- > 1;)
            add(lower[i].x(), lower[i].y() + sink);
        add(first, lower.front().y() + sink);
        return polygon;
    }
};

std::vector<std::vector<QPointF>> runsOf(std::span<const QPointF> points) {
    std::vector<std::vector<QPointF>> runs;
    forEachRun(points, [&](std::span<const QPointF> run) { runs.emplace_back(run.begin(), run.end()); });
    return runs;
}

} // namespace

AreaLayer::AreaLayer(XYChart& chart, bool percentage, int depth)
    : Layer(Kind::AreaLayer, chart, depth), m_percentage(percentage) {}

std::vector<double> AreaLayer::rowScales() const {
    std::vector<double> scales;
    if (m_percentage) {
        scales.resize(rowCount());
        for (const DataSet* set : dataSets())
            for (std::size_t row = 0; row < set->data().size(); ++row)
                scales[row] += isValue(set->data()[row]) ? std::abs(set->data()[row]) : 0;
        for (double& scale : scales)
            scale = scale > 0 ? 100 / scale : 0;
    }
    return scales;
}

std::vector<std::vector<double>> AreaLayer::borders() const {
    const std::vector<double> scales = rowScales();
    std::vector<double> sums(rowCount(), 0.0);
    std::vector<std::vector<double>> result;
    for (const DataSet* set : dataSets()) {
        std::vector<double>& border = result.emplace_back(sums.size(), kNoValue);
        for (std::size_t row = 0; row < set->data().size(); ++row) {
            if (isValue(set->data()[row])) {
                sums[row] += set->data()[row] * (m_percentage ? scales[row] : 1);
                border[row] = sums[row];
            }
        }
    }
    return result;
}

DataRange AreaLayer::yRange() const {
    DataRange range;
    for (const std::vector<double>& border : borders()) {
        const std::size_t end = std::min(rows().end, border.size());
        range.add(std::span(border).subspan(std::min(rows().begin, end), end - std::min(rows().begin, end)));
    }
    return m_percentage ? percentRange(range) : range;
}

void AreaLayer::drawArea(Canvas& canvas, const PlotFrame& frame, const DataSet& set,
                         const std::vector<double>& upper, const std::vector<double>* lower) const {
    std::vector<std::vector<QPointF>> uppers = runsOf(reducedPoints(*this, upper, frame));
    std::vector<std::vector<QPointF>> lowers;
    double sink = 0;
    if (lower != nullptr) {
        lowers = runsOf(reducedPoints(*this, *lower, frame));
        // Neighbours overlap by a pixel, or the background would shine through between them.
        if (frame.depth == 0 && set.colour() <= 0xffffff)
            sink = frame.y.upperPixel() < frame.y.lowerPixel() ? 1 : -1;
    }
    const double base = std::floor(frame.baseLine() + 0.5) - 0.5;
    const Colour edge = set.edge(borderColour());
    for (std::size_t i = 0; i < uppers.size(); ++i) {
        Stretch stretch{std::move(uppers[i]), {}};
        stretch.lower = i < lowers.size() ? std::move(lowers[i])
                                          : std::vector<QPointF>{{stretch.upper.front().x(), base},
                                                                 {stretch.upper.back().x(), base}};
        const QPolygonF outline = stretch.outline(frame, sink);
        if (frame.depth > 0) {
            std::vector<QPointF> top;
            for (const QPointF& point : stretch.upper)
                top.push_back(frame.at(point.x(), point.y()));
            const Colour side = orDefault(set.shadow(), set.colour());
            drawRibbon(canvas, top, frame.depth, side);
            const QPointF end = top.back();
            const QPointF foot = frame.at(stretch.upper.back().x(), stretch.lower.back().y());
            drawRibbon(canvas, std::vector{end, foot}, frame.depth, side);
        }
        QPainterPath path;
        path.addPolygon(outline);
        path.closeSubpath();
        canvas.shape(path, set.colour(), edge, borderEffect(), lineWidth());
    }
}

void AreaLayer::draw(Canvas& canvas, const PlotFrame& frame) {
    const std::vector<std::vector<double>> borders = this->borders();
    const auto drawSet = [&](std::size_t i) {
        const DataSet& set = *dataSets()[i];
        std::vector<double> lower;
        if (i > 0) {
            // The sums below this set, where it has values itself.
            lower.assign(borders[i].size(), kNoValue);
            for (std::size_t row = 0; row < lower.size(); ++row) {
                if (isValue(borders[i][row])) {
                    lower[row] = 0;
                    for (std::size_t k = i; k-- > 0;) {
                        if (isValue(borders[k][row])) {
                            lower[row] = borders[k][row];
                            break;
                        }
                    }
                }
            }
        }
        drawArea(canvas, frame, set, borders[i], i > 0 ? &lower : nullptr);
    };
    const QRect inner = frame.inner();
    const ClipScope clip(canvas, inner.adjusted(0, -frame.depth, frame.depth, 0));
    for (std::size_t i = 0; i < borders.size(); ++i) {
        // Bodies hide what is behind them; flat areas are laid over the lower borders of those above.
        drawSet(frame.depth > 0 ? i : borders.size() - 1 - i);
    }
}

void AreaLayer::drawLabels(Canvas& canvas, const PlotFrame& frame) {
    const std::vector<std::vector<double>> borders = this->borders();
    const std::vector<double> scales = rowScales();
    const auto label = [&](DataLabels& labels, const DataSet* set, std::size_t row, double value, double from,
                           double to, bool inside) {
        const double x = xValue(row);
        if (isValue(x)) {
            const double tip = alongY(frame, to);
            const double percent = m_percentage ? std::abs(value) * scales[row] : kNoValue;
            labels.draw({row, set, value, isValue(percent) ? percent : NAN},
                        {.alongX = frame.x.pixel(x),
                         .alongY = inside ? (tip + alongY(frame, from)) / 2 : tip,
                         .side = inside    ? LabelSide::Inside
                                 : to >= 0 ? LabelSide::Above
                                           : LabelSide::Below,
                         .body = inside ? std::max(1.0, std::abs(tip - alongY(frame, from))) : 0,
                         .ground = set != nullptr ? set->colour() : kTransparent});
        }
    };
    if (aggregateLabels() != nullptr) {
        DataLabels labels(canvas, *this, frame, *aggregateLabels(), aggregateLabelFormat());
        for (std::size_t row = rows().begin; row < rows().end; ++row) {
            double sum = 0, top = 0;
            for (std::size_t i = 0; i < borders.size(); ++i) {
                if (isValue(borders[i][row])) {
                    sum += dataSets()[i]->data()[row];
                    top = borders[i][row];
                }
            }
            label(labels, nullptr, row, sum, 0, top, false);
        }
    }
    if (dataLabels() != nullptr) {
        DataLabels labels(canvas, *this, frame, *dataLabels(), dataLabelFormat());
        const bool inside = borders.size() > 1 || aggregateLabels() != nullptr;
        for (std::size_t i = 0; i < borders.size(); ++i) {
            const std::span<const double> data = dataSets()[i]->data();
            for (std::size_t row = rows().begin; row < std::min(rows().end, data.size()); ++row) {
                if (isValue(data[row])) {
                    const double to = borders[i][row];
                    label(labels, dataSets()[i], row, data[row],
                          to - data[row] * (m_percentage ? scales[row] : 1), to, inside);
                }
            }
        }
    }
}

} // namespace chartdraw
