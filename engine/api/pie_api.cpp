// Operations of pie charts and their sectors.

#include "engine/api/convert.h"
#include "engine/pie/pie_chart.h"
#include <chartdraw/surface.h>

#include <algorithm>

using chartdraw::edit;
using chartdraw::handle;
using chartdraw::toColour;

extern "C" {

PieChart* CPieChart_create(int width, int height, int background, int edge, int effect) {
    return handle<PieChart>(new chartdraw::PieChart(
        width, height, chartdraw::orDefault(toColour(background), chartdraw::kBackgroundColour),
        chartdraw::orDefault(toColour(edge), chartdraw::kTransparent), effect));
}

void CPieChart_setPieSize(PieChart* chart, int x, int y, int radius) {
    if (auto* pie = edit<chartdraw::PieChart>(chart))
        pie->setSize({x, y}, radius, 0);
}

void CPieChart_setDonutSize(PieChart* chart, int x, int y, int r, int r2) {
    if (auto* pie = edit<chartdraw::PieChart>(chart))
        pie->setSize({x, y}, std::max(r, r2), std::min(r, r2));
}

void CPieChart_setData(PieChart* chart, const double* values, int count, const char* const* labels,
                       int labelCount) {
    if (auto* pie = edit<chartdraw::PieChart>(chart))
        pie->setData(chartdraw::toDoubles(values, count), chartdraw::toTexts(labels, labelCount));
}

void CPieChart_setLabelFormat(PieChart* chart, const char* format) {
    if (auto* pie = edit<chartdraw::PieChart>(chart))
        pie->setLabelFormat(chartdraw::toText(format));
}

TextBox* CPieChart_setLabelStyle(PieChart* chart, const char* font, double size, int color) {
    auto* pie = edit<chartdraw::PieChart>(chart);
    return pie != nullptr ? handle<TextBox>(pie->setLabelStyle(chartdraw::toLook(font, size, color)))
                          : nullptr;
}

void CPieChart_setLabelLayout(PieChart* chart, int layout, int position, int top, int bottom) {
    if (auto* pie = edit<chartdraw::PieChart>(chart))
        pie->setLabelLayout(layout == CHART_SIDE_LAYOUT, position, top, bottom);
}

void CPieChart_setLineColor(PieChart* chart, int edge, int joinLine) {
    if (auto* pie = edit<chartdraw::PieChart>(chart))
        pie->setLineColour(toColour(edge), toColour(joinLine));
}

void CPieChart_setStartAngle(PieChart* chart, double angle, bool clockwise) {
    if (auto* pie = edit<chartdraw::PieChart>(chart))
        pie->setStartAngle(angle, clockwise);
}

void CPieChart_set3D(PieChart* chart, int depth, double angle, bool shadowMode) {
    if (auto* pie = edit<chartdraw::PieChart>(chart))
        pie->set3D(depth, angle, shadowMode);
}

Sector* CPieChart_sector(PieChart* chart, int index) {
    auto* pie = edit<chartdraw::PieChart>(chart);
    return pie != nullptr ? handle<Sector>(pie->sector(index)) : nullptr;
}

void CSector_setColor(Sector* sector, int fill, int edge, int joinLine) {
    if (auto* target = edit<chartdraw::Sector>(sector))
        target->setColour(toColour(fill), toColour(edge), toColour(joinLine));
}

void CSector_setExplode(Sector* sector, int distance) {
    if (auto* target = edit<chartdraw::Sector>(sector))
        target->setExplode(distance);
}

} // extern "C"
