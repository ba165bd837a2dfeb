// Operations of polar charts, their angular axis and their layers.

#include "engine/api/call.h"
#include "engine/api/convert.h"
#include "engine/polar/polar_chart.h"
#include <chartdraw/surface.h>

using chartdraw::createChart;
using chartdraw::edit;
using chartdraw::handle;
using chartdraw::Kind;
using chartdraw::read;
using chartdraw::toColour;
using chartdraw::toDoubles;
using chartdraw::toText;

namespace {

template <class Handle>
Handle* addLayer(PolarChart* chart, Kind kind, const double* data, int count, int color, const char* name) {
    return edit(
        chart,
        [&](chartdraw::PolarChart& target) {
            return handle<Handle>(
                target.addLayer(kind, toDoubles(data, count), toColour(color), toText(name)));
        });
}

} // namespace

extern "C" {

PolarChart* CPolarChart_create(int width, int height, int background, int edge, int effect) {
    return createChart<chartdraw::PolarChart, PolarChart>(width, height, background, edge, effect);
}

void CPolarChart_setPlotArea(PolarChart* chart, int x, int y, int radius, int background, int edge,
                             int edgeWidth) {
    return edit(
        chart,
        [&](chartdraw::PolarChart& target) {
            target.setPlotArea({x, y}, radius, toColour(background), toColour(edge), edgeWidth);
        });
}

void CPolarChart_setPlotAreaBg(PolarChart* chart, int first, int second, bool alternateRings) {
    return edit(
        chart,
        [&](chartdraw::PolarChart& target) {
            target.setAlternatingColours(toColour(first), toColour(second), alternateRings);
        });
}

void CPolarChart_setGridColor(PolarChart* chart, int radial, int radialWidth, int angular, int angularWidth) {
    return edit(
        chart,
        [&](chartdraw::PolarChart& target) {
            target.setGrid(toColour(radial), radialWidth, toColour(angular), angularWidth);
        });
}

void CPolarChart_setGridStyle(PolarChart* chart, bool polygon, bool onTop) {
    return edit(
        chart, [&](chartdraw::PolarChart& target) { target.setGridStyle(polygon, onTop); });
}

AngularAxis* CPolarChart_angularAxis(PolarChart* chart) {
    return read(
        chart,
        [&](const chartdraw::PolarChart& target) { return handle<AngularAxis>(target.angularAxis()); });
}

Axis* CPolarChart_radialAxis(PolarChart* chart) {
    return read(
        chart, [&](const chartdraw::PolarChart& target) { return handle<Axis>(target.radialAxis()); });
}

PolarLineLayer* CPolarChart_addLineLayer(PolarChart* chart, const double* data, int count, int color,
                                         const char* name) {
    return addLayer<PolarLineLayer>(chart, Kind::PolarLineLayer, data, count, color, name);
}

PolarSplineLineLayer* CPolarChart_addSplineLineLayer(PolarChart* chart, const double* data, int count,
                                                     int color, const char* name) {
    return addLayer<PolarSplineLineLayer>(chart, Kind::PolarSplineLineLayer, data, count, color, name);
}

PolarAreaLayer* CPolarChart_addAreaLayer(PolarChart* chart, const double* data, int count, int color,
                                         const char* name) {
    return addLayer<PolarAreaLayer>(chart, Kind::PolarAreaLayer, data, count, color, name);
}

PolarSplineAreaLayer* CPolarChart_addSplineAreaLayer(PolarChart* chart, const double* data, int count,
                                                     int color, const char* name) {
    return addLayer<PolarSplineAreaLayer>(chart, Kind::PolarSplineAreaLayer, data, count, color, name);
}

void CPolarLayer_setAngles(PolarLayer* layer, const double* angles, int count) {
    return edit(
        layer, [&](chartdraw::PolarLayer& target) { target.setAngles(toDoubles(angles, count)); });
}

TextBox* CPolarLayer_setDataLabelStyle(PolarLayer* layer, const char* font, double size, int color,
                                       double angle) {
    return edit(
        layer,
        [&](chartdraw::PolarLayer& target) {
            return handle<TextBox>(target.setDataLabelStyle(chartdraw::toLook(font, size, color, angle)));
        });
}

void CPolarLayer_setDataLabelFormat(PolarLayer* layer, const char* format) {
    return edit(
        layer, [&](chartdraw::PolarLayer& target) { target.setDataLabelFormat(toText(format)); });
}

void CPolarLayer_setDataSymbol(PolarLayer* layer, int symbol, int size, int fill, int edge, int lineWidth) {
    return edit(
        layer,
        [&](chartdraw::PolarLayer& target) {
            target.setSymbol({symbol, size, toColour(fill), toColour(edge), lineWidth});
        });
}

void CPolarLayer_setLineWidth(PolarLayer* layer, int width) {
    return edit(
        layer, [&](chartdraw::PolarLayer& target) { target.setLineWidth(width); });
}

void CPolarLayer_setSymbolScale(PolarLayer* layer, const double* scale, int count, int /*scaleType*/) {
    return edit(
        layer, [&](chartdraw::PolarLayer& target) { target.setSymbolScale(toDoubles(scale, count)); });
}

void CPolarLineLayer_setCloseLoop(PolarLineLayer* layer, bool close) {
    return edit(
        layer, [&](chartdraw::PolarLineLayer& target) { target.setCloseLoop(close); });
}

void CAngularAxis_setLinearScale(AngularAxis* axis, double lower, double upper, double majorIncrement,
                                 double minorIncrement) {
    return edit(
        axis,
        [&](chartdraw::AngularAxis& target) {
            target.setLinearScale(lower, upper, {majorIncrement, minorIncrement, 0});
        });
}

void CAngularAxis_setLabels(AngularAxis* axis, const char* const* labels, int count) {
    return edit(
        axis, [&](chartdraw::AngularAxis& target) { target.setLabels(chartdraw::toTexts(labels, count)); });
}

TextBox* CAngularAxis_setLabelStyle(AngularAxis* axis, const char* font, double size, int color,
                                    double angle) {
    return edit(
        axis,
        [&](chartdraw::AngularAxis& target) {
            return handle<TextBox>(target.setLabelStyle(chartdraw::toLook(font, size, color, angle)));
        });
}

void CAngularAxis_addZone2(AngularAxis* axis, double start, double end, int fill, int edge) {
    return edit(
        axis,
        [&](chartdraw::AngularAxis& target) { target.addZone(start, end, toColour(fill), toColour(edge)); });
}

} // extern "C"
