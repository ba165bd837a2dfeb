// Price bars and candles.

#include "engine/data/no_value.h"
#include "engine/xy/bar_shapes.h"
#include "engine/xy/box_layer.h"
#include "engine/xy/covered_column.h"
#include "engine/xy/row_room.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace chartdraw {

namespace {

constexpr double kCandleGap = 0.2; // of a row
constexpr int kLeastEdged = 5;     // pixels of a body that has an edge

/// A line over the pixels between two places along the axes.
void drawAlong(Canvas& canvas, const QRect& pixels, Colour colour, int width) {
    canvas.line(pixels.topLeft(), pixels.bottomRight(), colour, width);
}

} // namespace

bool PriceLayer::shows(std::size_t row) const {
    return isValue(at(High, row)) && isValue(at(Low, row));
}

bool PriceLayer::joinsColumns(const Canvas& canvas, const PlotFrame& frame) const {
    const std::vector<Colour> used = colours();
    const auto covers = [&](Colour colour) {
        const QBrush brush = canvas.colours().brush(colour, QRectF(0, 0, 1, 1));
        return brush.style() == Qt::SolidPattern && brush.isOpaque();
    };
    return frame.depth == 0 && lineWidth() == 1 && borderEffect() == 0 &&
           std::all_of(used.begin(), used.end(), covers);
}

void PriceLayer::drawColumn(Canvas& canvas, const PlotFrame& frame, int x, std::size_t begin,
                            std::size_t end) const {
    CoveredColumn column;
    DataRange hidden{kNoValue, -kNoValue}; // values that are painted, with all between them
    const auto isHidden = [&](double value) { return value >= hidden.min && value <= hidden.max; };
    const auto hidesRows = [&](const DataSet* set, std::size_t from, std::size_t to) {
        const DataRange range = set->range(from, to);
        return range.empty || (isHidden(range.min) && isHidden(range.max));
    };
    std::array<std::span<const double>, kSeries> series;
    std::transform(dataSets().begin(), dataSets().begin() + kSeries, series.begin(),
                   [](const DataSet* set) { return std::span<const double>(set->data()); });
    for (std::size_t row = end; row > begin;) {
        const std::size_t block = row - std::min(Numbers::kBlock, row - begin);
        if (row % Numbers::kBlock == 0 &&
            std::ranges::all_of(dataSets(), [&](const DataSet* set) { return hidesRows(set, block, row); })) {
            row = block;
            continue;
        }
        --row;
        if (std::ranges::all_of(
                series,
                [&](std::span<const double> data) { return row < data.size() && isHidden(data[row]); }) ||
            !shows(row))
            continue;
        paintRow(column, frame, row);
        DataRange painted = hidden;
        for (const std::span<const double> data : series)
            painted.add(row < data.size() ? data[row] : kNoValue);
        if (column.covers(pixel(frame, painted.min), pixel(frame, painted.max)))
            hidden = painted;
    }
    column.finish(
        [&](int from, int to, Colour colour) { canvas.fillRect(pixelRect(frame, x, x, from, to), colour); });
}

bool PriceLayer::labelOf(std::size_t row, double& value,
                         std::vector<std::pair<std::string_view, double>>& fields) const {
    fields = {
        {"high", at(High, row)}, {"low", at(Low, row)}, {"open", at(Open, row)}, {"close", at(Close, row)}};
    value = isValue(at(Close, row)) ? at(Close, row) : at(High, row);
    return shows(row);
}

HLOCLayer::HLOCLayer(XYChart& chart, std::vector<Numbers> series, Colour colour)
    : PriceLayer(Kind::HLOCLayer, chart, std::move(series), colour, {}), m_leadValue(kNoValue) {}

void HLOCLayer::setColourMethod(bool byClose, Colour rise, Colour fall, double leadValue) {
    m_byClose = byClose;
    m_rise = rise;
    m_fall = fall;
    m_leadValue = leadValue;
}

std::vector<bool> HLOCLayer::falls() const {
    std::vector<bool> result(rowCount());
    double before = isValue(m_leadValue) && m_leadValue != -kNoValue ? m_leadValue : kNoValue;
    for (std::size_t row = 0; row < result.size(); ++row) {
        const double close = at(Close, row);
        if (isValue(close)) {
            result[row] = isValue(before) && close < before;
            before = close;
        }
    }
    return result;
}

Colour HLOCLayer::colourOf(std::size_t row) const {
    return m_byClose ? orDefault(m_falls[row] ? m_fall : m_rise, set().colour()) : set().colour();
}

void HLOCLayer::draw(Canvas& canvas, const PlotFrame& frame) {
    if (m_byClose)
        m_falls = falls();
    PriceLayer::draw(canvas, frame);
}

void HLOCLayer::drawRow(Canvas& canvas, const PlotFrame& frame, const Place& place) const {
    if (!shows(place.row) || lineWidth() < 1)
        return;
    const Colour colour = colourOf(place.row);
    const auto line = [&](int x0, int x1, int y0, int y1) {
        drawAlong(canvas, pixelRect(frame, x0, x1, y0, y1), colour, lineWidth());
    };
    line(place.middle, place.middle, pixel(frame, at(High, place.row)), pixel(frame, at(Low, place.row)));
    const bool mirrored = (frame.x.lowerPixel() > frame.x.upperPixel()) != frame.swapped;
    const auto tick = [&](double value, bool left) {
        if (isValue(value)) {
            const int y = pixel(frame, value);
            line(place.middle, left != mirrored ? place.first : place.last, y, y);
        }
    };
    tick(at(Open, place.row), !frame.swapped);
    tick(at(Close, place.row), frame.swapped);
}

std::vector<Colour> HLOCLayer::colours() const {
    if (!m_byClose)
        return {set().colour()};
    return {orDefault(m_rise, set().colour()), orDefault(m_fall, set().colour())};
}

void HLOCLayer::paintRow(CoveredColumn& column, const PlotFrame& frame, std::size_t row) const {
    const Colour colour = colourOf(row);
    for (const Series tick : {Open, Close}) {
        if (isValue(at(tick, row))) {
            const int y = pixel(frame, at(tick, row));
            column.paint(y, y, colour);
        }
    }
    column.paint(pixel(frame, at(High, row)), pixel(frame, at(Low, row)), colour);
}

void HLOCLayer::drawKey(Canvas& canvas, const QRect& area) const {
    canvas.box(area, m_byClose ? orDefault(m_rise, set().colour()) : set().colour(), kTransparent, 0);
}

CandleStickLayer::CandleStickLayer(XYChart& chart, std::vector<Numbers> series, Colour rise, Colour fall,
                                   Colour edge)
    : PriceLayer(Kind::CandleStickLayer, chart, std::move(series), orDefault(rise, 0xffffff), {}),
      m_fall(orDefault(fall, 0x000000)) {
    setBorder(edge, 0);
    setDataGap(kCandleGap);
}

bool CandleStickLayer::hasOwnEdge() const {
    return borderColour() != kDefaultColour || set().edge() != kTransparent;
}

Colour CandleStickLayer::edgeColour() const {
    return set().edge(orDefault(borderColour(), kLineColour));
}

void CandleStickLayer::drawRow(Canvas& canvas, const PlotFrame& frame, const Place& place) const {
    if (!shows(place.row))
        return;
    const double open = at(Open, place.row), close = at(Close, place.row);
    const Colour edge = edgeColour();
    const int high = pixel(frame, at(High, place.row)), low = pixel(frame, at(Low, place.row));
    const QPoint middle(frame.depth / 2, -frame.depth / 2);
    const bool narrow = place.last - place.first + 1 < kLeastEdged;
    const bool bare = canvas.colours().invisible(edge) || (narrow && !hasOwnEdge());
    const auto wick = [&](int from, int to) {
        const Colour colour = bare && isValue(open) && isValue(close) ? fillOf(open, close, false) : edge;
        drawAlong(canvas, pixelRect(frame, place.middle, place.middle, from, to).translated(middle), colour,
                  lineWidth());
    };
    if (!isValue(open) || !isValue(close)) {
        wick(high, low);
        return;
    }
    const double top = std::max(open, close), bottom = std::min(open, close);
    const int from = pixel(frame, top), to = pixel(frame, bottom);
    const std::pair<double, double> wicks[] = {{top, at(High, place.row)}, {bottom, at(Low, place.row)}};
    const auto drawWicks = [&](bool onBody) {
        for (const auto& [root, end] : wicks)
            if (standsOnBody(frame, root, end) == onBody)
                wick(pixel(frame, end), pixel(frame, root));
    };
    drawWicks(false);
    BarLook look;
    look.fill = fillOf(open, close, !bare);
    look.edge = edge;
    look.side = orDefault(set().shadow(), look.fill);
    look.sideEdge = orDefault(set().shadowEdge(), edge);
    look.effect = borderEffect();
    look.edgeWidth = narrow ? 0 : edgeWidth(place.last - place.first + 1, std::abs(to - from) + 1);
    look.depth = frame.depth;
    drawBar(canvas, pixelRect(frame, place.first, place.last, from, to), SquareShape, 8, look);
    drawWicks(true);
}

Colour CandleStickLayer::fillOf(double open, double close, bool hasEdge) const {
    if (close == open && hasEdge)
        return edgeColour();
    return close >= open ? set().colour() : m_fall;
}

std::vector<Colour> CandleStickLayer::colours() const {
    return {edgeColour(), set().colour(), m_fall};
}

void CandleStickLayer::paintRow(CoveredColumn& column, const PlotFrame& frame, std::size_t row) const {
    const double open = at(Open, row), close = at(Close, row);
    const Colour edge = edgeColour();
    const int high = pixel(frame, at(High, row)), low = pixel(frame, at(Low, row));
    if (!isValue(open) || !isValue(close)) {
        column.paint(high, low, edge);
        return;
    }
    const int top = pixel(frame, std::max(open, close)), bottom = pixel(frame, std::min(open, close));
    const Colour wick = hasOwnEdge() ? edge : fillOf(open, close, false);
    column.paint(top, bottom, fillOf(open, close, hasOwnEdge()));
    column.paint(low, bottom, wick);
    column.paint(high, top, wick);
}

void CandleStickLayer::drawKey(Canvas& canvas, const QRect& area) const {
    const Colour edge = edgeColour();
    const int middle = area.center().x();
    const int wing = std::max(1, area.height() / 4);
    canvas.line(QPoint(middle, area.top()), QPoint(middle, area.bottom()), edge, 1);
    canvas.box(QRect(QPoint(middle - wing, area.top() + 2), QPoint(middle + wing, area.bottom() - 2)),
               set().colour(), edge, 0);
}

} // namespace chartdraw
