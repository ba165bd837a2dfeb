#include "engine/xy/layer.h"

#include "engine/axis/axis.h"
#include "engine/xy/xy_chart.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace chartdraw {

namespace {

constexpr int kMaxDepth = 4096; // pixels

} // namespace

double PlotFrame::baseLine() const {
    return y.scale().kind() == ScaleKind::Log ? y.lowerPixel() : y.pixel(y.clamp(0));
}

Layer::Layer(Kind kind, XYChart& chart, int depth)
    : Part(kind, chart), m_chart(chart), m_yAxis(chart.yAxis()) {
    set3D(depth, 0);
}

DataSet* Layer::addDataSet(Numbers data, Colour colour, std::string name) {
    const Colour resolved = colour == kDefaultColour ? m_chart.nextSeriesColour() : colour;
    auto* set = m_chart.own<DataSet>(m_chart, std::move(data), resolved, std::move(name));
    m_dataSets.push_back(set);
    return set;
}

DataSet* Layer::dataSet(int index) const {
    return index >= 0 && index < std::ssize(m_dataSets) ? m_dataSets[static_cast<std::size_t>(index)]
                                                        : nullptr;
}

void Layer::setXData(Numbers data) {
    m_xData = std::move(data);
}

double Layer::xValue(std::size_t row) const {
    if (hasXData())
        return row < m_xData.size() ? m_xData[row] : kNoValue;
    return static_cast<double>(row) - static_cast<double>(rows().begin);
}

std::size_t Layer::rowCount() const {
    std::size_t count = 0;
    for (const DataSet* set : m_dataSets)
        count = std::max(count, set->data().size());
    return count;
}

RowRange Layer::rows() const {
    return m_chart.rows(rowCount());
}

int Layer::depth() const {
    return m_depth < 0 ? automaticDepth() : std::min(m_depth, std::max(m_chart.width(), m_chart.height()));
}

void Layer::set3D(int depth, int zGap) {
    m_depth = std::clamp(depth, -1, kMaxDepth);
    m_zGap = std::clamp(zGap, 0, kMaxDepth);
}

void Layer::setLineWidth(int width) {
    m_lineWidth = std::clamp(width, 0, kMaxDepth);
}

void Layer::setBorder(Colour colour, int effect) {
    m_borderColour = orDefault(colour, m_borderColour);
    m_borderEffect = effect;
}

void Layer::setYAxis(Axis* axis) {
    if (m_chart.owns(axis) && axis->direction() == Direction::Y)
        m_yAxis = axis;
}

TextBox* Layer::labelStyle(TextBox*& box, const TextLook& look) {
    if (box == nullptr)
        box = m_chart.own<TextBox>(m_chart);
    box->look() = look;
    return box;
}

TextBox* Layer::setDataLabelStyle(const TextLook& look) {
    return labelStyle(m_dataLabels, look);
}

TextBox* Layer::setAggregateLabelStyle(const TextLook& look) {
    return labelStyle(m_aggregateLabels, look);
}

void Layer::setDataLabelFormat(std::string format) {
    m_dataLabelFormat = format.empty() ? "{value}" : std::move(format);
}

void Layer::setAggregateLabelFormat(std::string format) {
    m_aggregateLabelFormat = format.empty() ? "{value}" : std::move(format);
}

DataRange Layer::xRange() const {
    DataRange range;
    const RowRange rows = this->rows();
    if (hasXData()) {
        range = m_xData.range(rows.begin, rows.end);
    } else if (rows.size() > 0) {
        range.add(0);
        range.add(static_cast<double>(rows.size() - 1));
    }
    return range;
}

DataRange Layer::yRange() const {
    DataRange range;
    const RowRange rows = this->rows();
    for (const DataSet* set : m_dataSets)
        range.add(set->range(rows.begin, rows.end));
    return range;
}

DataRange Layer::percentRange(const DataRange& range) {
    DataRange whole;
    if (!range.empty) {
        whole.add(range.minPositive); // log scales begin there; 0 where there is none
        whole.add(range.max > 0 ? 100 : 0);
        whole.add(range.min < 0 ? -100 : 0);
    }
    return whole;
}

void Layer::drawLabels(Canvas& /*canvas*/, const PlotFrame& /*frame*/) {}

void Layer::collectKeys(std::vector<LegendKey>& keys) const {
    for (const DataSet* set : m_dataSets)
        if (!set->name().empty())
            keys.push_back(boxKey(set->name(), set->colour(), set->edge(m_borderColour)));
}

} // namespace chartdraw
