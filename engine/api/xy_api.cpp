// Operations of XY charts and their plot area; the layers have a file of their own.

#include "engine/api/convert.h"
#include "engine/xy/xy_chart.h"
#include <chartdraw/surface.h>

using chartdraw::edit;
using chartdraw::handle;
using chartdraw::read;
using chartdraw::toColour;
using Engine = chartdraw::XYChart;

extern "C" {

XYChart* CXYChart_create(int width, int height, int background, int edge, int raisedEffect) {
    return handle<XYChart>(
        new Engine(width, height, chartdraw::orDefault(toColour(background), chartdraw::kBackgroundColour),
                   chartdraw::orDefault(toColour(edge), chartdraw::kTransparent), raisedEffect));
}

PlotArea* CXYChart_setPlotArea(XYChart* chart, int x, int y, int width, int height, int background,
                               int alternate, int edge, int horizontalGrid, int verticalGrid) {
    auto* target = edit<Engine>(chart);
    if (target == nullptr)
        return nullptr;
    chartdraw::PlotArea* area = target->setPlotArea(x, y, width, height);
    area->setBackground(toColour(background), toColour(alternate), toColour(edge));
    area->setFirstGrid(toColour(horizontalGrid), toColour(verticalGrid));
    return handle<PlotArea>(area);
}

Axis* CXYChart_xAxis(XYChart* chart) {
    const auto* target = read<Engine>(chart);
    return target != nullptr ? handle<Axis>(target->xAxis()) : nullptr;
}

Axis* CXYChart_yAxis(XYChart* chart) {
    const auto* target = read<Engine>(chart);
    return target != nullptr ? handle<Axis>(target->yAxis()) : nullptr;
}

Axis* CXYChart_xAxis2(XYChart* chart) {
    auto* target = edit<Engine>(chart);
    return target != nullptr ? handle<Axis>(target->xAxis2()) : nullptr;
}

Axis* CXYChart_yAxis2(XYChart* chart) {
    auto* target = edit<Engine>(chart);
    return target != nullptr ? handle<Axis>(target->yAxis2()) : nullptr;
}

Axis* CXYChart_addAxis(XYChart* chart, int alignment, int offset) {
    auto* target = edit<Engine>(chart);
    return target != nullptr ? handle<Axis>(target->addAxis(alignment, offset)) : nullptr;
}

void CXYChart_swapXY(XYChart* chart, bool swap) {
    if (auto* target = edit<Engine>(chart))
        target->swapXY(swap);
}

void CXYChart_setAxisAtOrigin(XYChart* chart, int originMode, int flags) {
    if (auto* target = edit<Engine>(chart))
        target->setAxisAtOrigin(originMode, flags);
}

void CXYChart_setYAxisOnRight(XYChart* chart, bool right) {
    if (auto* target = edit<Engine>(chart))
        target->setYAxisOnRight(right);
}

void CXYChart_setTrimData(XYChart* chart, int start, int length) {
    if (auto* target = edit<Engine>(chart))
        target->setTrimData(start, length);
}

void CPlotArea_setBackground(PlotArea* area, int background, int alternate, int edge) {
    if (auto* target = edit<chartdraw::PlotArea>(area))
        target->setBackground(toColour(background), toColour(alternate), toColour(edge));
}

void CPlotArea_setBackground2(PlotArea* area, const char* imageFile, int alignment) {
    if (auto* target = edit<chartdraw::PlotArea>(area))
        target->setImage(chartdraw::toText(imageFile), alignment);
}

void CPlotArea_set4QBgColor(PlotArea* area, int q1, int q2, int q3, int q4, int edge) {
    if (auto* target = edit<chartdraw::PlotArea>(area))
        target->setQuadrants({toColour(q1), toColour(q2), toColour(q3), toColour(q4)}, toColour(edge));
}

void CPlotArea_setGridColor(PlotArea* area, int majorHorizontal, int majorVertical, int minorHorizontal,
                            int minorVertical) {
    if (auto* target = edit<chartdraw::PlotArea>(area)) {
        target->setGridColours({toColour(majorHorizontal), toColour(majorVertical), toColour(minorHorizontal),
                                toColour(minorVertical)});
    }
}

void CPlotArea_setGridWidth(PlotArea* area, int majorHorizontal, int majorVertical, int minorHorizontal,
                            int minorVertical) {
    if (auto* target = edit<chartdraw::PlotArea>(area))
        target->setGridWidths({majorHorizontal, majorVertical, minorHorizontal, minorVertical});
}

} // extern "C"
