// Operations of XY charts and their plot area; the layers have a file of their own.

#include "engine/api/call.h"
#include "engine/api/convert.h"
#include "engine/xy/xy_chart.h"
#include <chartdraw/surface.h>

using chartdraw::createChart;
using chartdraw::edit;
using chartdraw::handle;
using chartdraw::read;
using chartdraw::toColour;
using Engine = chartdraw::XYChart;

extern "C" {

XYChart* CXYChart_create(int width, int height, int background, int edge, int raisedEffect) {
    return createChart<Engine, XYChart>(width, height, background, edge, raisedEffect);
}

PlotArea* CXYChart_setPlotArea(XYChart* chart, int x, int y, int width, int height, int background,
                               int alternate, int edge, int horizontalGrid, int verticalGrid) {
    return edit(
        chart,
        [&](Engine& target) {
            chartdraw::PlotArea* area = target.setPlotArea(x, y, width, height);
            area->setBackground(toColour(background), toColour(alternate), toColour(edge));
            area->setFirstGrid(toColour(horizontalGrid), toColour(verticalGrid));
            return handle<PlotArea>(area);
        });
}

Axis* CXYChart_xAxis(XYChart* chart) {
    return read(
        chart, [&](const Engine& target) { return handle<Axis>(target.xAxis()); });
}

Axis* CXYChart_yAxis(XYChart* chart) {
    return read(
        chart, [&](const Engine& target) { return handle<Axis>(target.yAxis()); });
}

Axis* CXYChart_xAxis2(XYChart* chart) {
    return edit(
        chart, [&](Engine& target) { return handle<Axis>(target.xAxis2()); });
}

Axis* CXYChart_yAxis2(XYChart* chart) {
    return edit(
        chart, [&](Engine& target) { return handle<Axis>(target.yAxis2()); });
}

Axis* CXYChart_addAxis(XYChart* chart, int alignment, int offset) {
    return edit(
        chart, [&](Engine& target) { return handle<Axis>(target.addAxis(alignment, offset)); });
}

void CXYChart_swapXY(XYChart* chart, bool swap) {
    return edit(
        chart, [&](Engine& target) { target.swapXY(swap); });
}

void CXYChart_setAxisAtOrigin(XYChart* chart, int originMode, int flags) {
    return edit(
        chart, [&](Engine& target) { target.setAxisAtOrigin(originMode, flags); });
}

void CXYChart_setYAxisOnRight(XYChart* chart, bool right) {
    return edit(
        chart, [&](Engine& target) { target.setYAxisOnRight(right); });
}

void CXYChart_setTrimData(XYChart* chart, int start, int length) {
    return edit(
        chart, [&](Engine& target) { target.setTrimData(start, length); });
}

void CPlotArea_setBackground(PlotArea* area, int background, int alternate, int edge) {
    return edit(
        area,
        [&](chartdraw::PlotArea& target) {
            target.setBackground(toColour(background), toColour(alternate), toColour(edge));
        });
}

void CPlotArea_setBackground2(PlotArea* area, const char* imageFile, int alignment) {
    return edit(
        area, [&](chartdraw::PlotArea& target) { target.setImage(chartdraw::toText(imageFile), alignment); });
}

void CPlotArea_set4QBgColor(PlotArea* area, int q1, int q2, int q3, int q4, int edge) {
    return edit(
        area,
        [&](chartdraw::PlotArea& target) {
            target.setQuadrants({toColour(q1), toColour(q2), toColour(q3), toColour(q4)}, toColour(edge));
        });
}

void CPlotArea_setGridColor(PlotArea* area, int majorHorizontal, int majorVertical, int minorHorizontal,
                            int minorVertical) {
    return edit(
        area,
        [&](chartdraw::PlotArea& target) {
            target.setGridColours({toColour(majorHorizontal), toColour(majorVertical),
                                   toColour(minorHorizontal), toColour(minorVertical)});
        });
}

void CPlotArea_setGridWidth(PlotArea* area, int majorHorizontal, int majorVertical, int minorHorizontal,
                            int minorVertical) {
    return edit(
        area,
        [&](chartdraw::PlotArea& target) {
            target.setGridWidths({majorHorizontal, majorVertical, minorHorizontal, minorVertical});
        });
}

} // extern "C"
