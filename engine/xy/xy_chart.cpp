#include "engine/xy/xy_chart.h"

#include "engine/text/alignment.h"
#include "engine/xy/frame_painter.h"

#include <algorithm>

namespace chartdraw {

namespace {

constexpr int kMaxOffset = 16384; // pixels

Direction directionOf(int side) {
    return side == TopCenter || side == BottomCenter ? Direction::X : Direction::Y;
}

} // namespace

XYChart::XYChart(int width, int height, Colour background, Colour edge, int effect)
    : Chart(Kind::XYChart, width, height, background, edge, effect) {
    makeAxis(BottomCenter, 0, false);
    makeAxis(Left, 0, false);
}

Axis* XYChart::makeAxis(int side, int offset, bool further) {
    m_axes.push_back({own<Axis>(*this, directionOf(side)), side, offset, further});
    return m_axes.back().axis;
}

PlotArea* XYChart::setPlotArea(int x, int y, int width, int height) {
    if (m_plotArea == nullptr)
        m_plotArea = own<PlotArea>(*this);
    m_plotArea->setRect(x, y, width, height);
    return m_plotArea;
}

Axis* XYChart::xAxis2() {
    return m_xAxis2 = m_xAxis2 != nullptr ? m_xAxis2 : makeAxis(TopCenter, 0, false);
}

Axis* XYChart::yAxis2() {
    return m_yAxis2 = m_yAxis2 != nullptr ? m_yAxis2 : makeAxis(Right, 0, false);
}

Axis* XYChart::addAxis(int side, int offset) {
    const bool known = side == Left || side == Right || side == TopCenter || side == BottomCenter;
    return makeAxis(known ? side : Left, std::clamp(offset, -kMaxOffset, kMaxOffset), true);
}

bool XYChart::owns(const Axis* axis) const {
    return std::any_of(
        m_axes.begin(), m_axes.end(), [=](const ChartAxis& own) { return own.axis == axis; });
}

void XYChart::swapXY(bool swap) {
    m_swapped = swap;
}

void XYChart::setAxisAtOrigin(int mode, int flags) {
    m_originMode = mode;
    m_symmetry = flags;
}

void XYChart::setYAxisOnRight(bool right) {
    m_yOnRight = right;
}

void XYChart::setTrimData(int start, int length) {
    m_trimStart = static_cast<std::size_t>(std::max(start, 0));
    m_trimLength = static_cast<std::size_t>(std::max(length, 0));
}

RowRange XYChart::rows(std::size_t count) const {
    const std::size_t begin = std::min(m_trimStart, count);
    return {begin, begin + std::min(m_trimLength, count - begin)};
}

RowTexts XYChart::rowTexts() const {
    const ScaleSettings& scale = xAxis()->scale();
    return scale.type == ScaleSettings::Type::Labels ? RowTexts(scale.labels, scale.rowFormat) : RowTexts({});
}

void XYChart::collectKeys(std::vector<LegendKey>& keys) const {
    for (const Layer* layer : m_layers)
        layer->collectKeys(keys);
}

bool XYChart::hasDataIn(const QRect& box) const {
    if (m_plotArea == nullptr)
        return false;
    int depth = 0;
    for (const Layer* layer : m_layers)
        depth =
            std::min(kMaxOffset, depth + layer->depth() + (layer != m_layers.front() ? layer->zGap() : 0));
    return m_plotArea->frame().adjusted(0, -depth, depth, 0).intersects(box);
}

void XYChart::drawBody(Canvas& canvas) {
    if (m_plotArea != nullptr)
        drawFrame(canvas, *this);
}

} // namespace chartdraw
