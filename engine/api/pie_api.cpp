// Operations of pie charts and their sectors.

#include "engine/api/call.h"
#include "engine/api/convert.h"
#include "engine/pie/pie_chart.h"
#include <chartdraw/surface.h>

#include <algorithm>

using chartdraw::createChart;
using chartdraw::edit;
using chartdraw::handle;
using chartdraw::toColour;

extern "C" {

PieChart* CPieChart_create(int width, int height, int background, int edge, int effect) {
    return createChart<chartdraw::PieChart, PieChart>(width, height, background, edge, effect);
}

void CPieChart_setPieSize(PieChart* chart, int x, int y, int radius) {
    return edit(
        chart,
        [&](chartdraw::PieChart& pie) {
            pie.setSize({x, y}, radius, 0);
        });
}

void CPieChart_setDonutSize(PieChart* chart, int x, int y, int r, int r2) {
    return edit(
        chart,
        [&](chartdraw::PieChart& pie) {
            pie.setSize({x, y}, std::max(r, r2), std::min(r, r2));
        });
}

void CPieChart_setData(PieChart* chart, const double* values, int count, const char* const* labels,
                       int labelCount) {
    return edit(
        chart,
        [&](chartdraw::PieChart& pie) {
            pie.setData(chartdraw::toDoubles(values, count), chartdraw::toTexts(labels, labelCount));
        });
}

void CPieChart_setLabelFormat(PieChart* chart, const char* format) {
    return edit(
        chart, [&](chartdraw::PieChart& pie) { pie.setLabelFormat(chartdraw::toText(format)); });
}

TextBox* CPieChart_setLabelStyle(PieChart* chart, const char* font, double size, int color) {
    return edit(
        chart,
        [&](chartdraw::PieChart& pie) {
            return handle<TextBox>(pie.setLabelStyle(chartdraw::toLook(font, size, color)));
        });
}

void CPieChart_setLabelLayout(PieChart* chart, int layout, int position, int top, int bottom) {
    return edit(
        chart,
        [&](chartdraw::PieChart& pie) {
            pie.setLabelLayout(layout == CHART_SIDE_LAYOUT, position, top, bottom);
        });
}

void CPieChart_setLineColor(PieChart* chart, int edge, int joinLine) {
    return edit(
        chart, [&](chartdraw::PieChart& pie) { pie.setLineColour(toColour(edge), toColour(joinLine)); });
}

void CPieChart_setStartAngle(PieChart* chart, double angle, bool clockwise) {
    return edit(
        chart, [&](chartdraw::PieChart& pie) { pie.setStartAngle(angle, clockwise); });
}

void CPieChart_set3D(PieChart* chart, int depth, double angle, bool shadowMode) {
    return edit(
        chart, [&](chartdraw::PieChart& pie) { pie.set3D(depth, angle, shadowMode); });
}

Sector* CPieChart_sector(PieChart* chart, int index) {
    return edit(
        chart, [&](chartdraw::PieChart& pie) { return handle<Sector>(pie.sector(index)); });
}

void CSector_setColor(Sector* sector, int fill, int edge, int joinLine) {
    return edit(
        sector,
        [&](chartdraw::Sector& target) {
            target.setColour(toColour(fill), toColour(edge), toColour(joinLine));
        });
}

void CSector_setExplode(Sector* sector, int distance) {
    return edit(
        sector, [&](chartdraw::Sector& target) { target.setExplode(distance); });
}

} // extern "C"
