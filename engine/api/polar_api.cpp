// Operations of polar charts, their angular axis and their layers.

#include "engine/api/convert.h"
#include "engine/polar/polar_chart.h"
#include <chartdraw/surface.h>

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
    auto* target = edit<chartdraw::PolarChart>(chart);
    return target != nullptr
               ? handle<Handle>(target->addLayer(kind, toDoubles(data, count), toColour(color), toText(name)))
               : nullptr;
}

} // namespace

extern "C" {

PolarChart* CPolarChart_create(int width, int height, int background, int edge, int effect) {
    return handle<PolarChart>(new chartdraw::PolarChart(
        width, height, chartdraw::orDefault(toColour(background), chartdraw::kBackgroundColour),
        chartdraw::orDefault(toColour(edge), chartdraw::kTransparent), effect));
}

void CPolarChart_setPlotArea(PolarChart* chart, int x, int y, int radius, int background, int edge,
                             int edgeWidth) {
    if (auto* target = edit<chartdraw::PolarChart>(chart))
        target->setPlotArea({x, y}, radius, toColour(background), toColour(edge), edgeWidth);
}

void CPolarChart_setPlotAreaBg(PolarChart* chart, int first, int second, bool alternateRings) {
    if (auto* target = edit<chartdraw::PolarChart>(chart))
        target->setAlternatingColours(toColour(first), toColour(second), alternateRings);
}

void CPolarChart_setGridColor(PolarChart* chart, int radial, int radialWidth, int angular, int angularWidth) {
    if (auto* target = edit<chartdraw::PolarChart>(chart))
        target->setGrid(toColour(radial), radialWidth, toColour(angular), angularWidth);
}

void CPolarChart_setGridStyle(PolarChart* chart, bool polygon, bool onTop) {
    if (auto* target = edit<chartdraw::PolarChart>(chart))
        target->setGridStyle(polygon, onTop);
}

AngularAxis* CPolarChart_angularAxis(PolarChart* chart) {
    const auto* target = read<chartdraw::PolarChart>(chart);
    return target != nullptr ? handle<AngularAxis>(target->angularAxis()) : nullptr;
}

Axis* CPolarChart_radialAxis(PolarChart* chart) {
    const auto* target = read<chartdraw::PolarChart>(chart);
    return target != nullptr ? handle<Axis>(target->radialAxis()) : nullptr;
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
    if (auto* target = edit<chartdraw::PolarLayer>(layer))
        target->setAngles(toDoubles(angles, count));
}

TextBox* CPolarLayer_setDataLabelStyle(PolarLayer* layer, const char* font, double size, int color,
                                       double angle) {
    auto* target = edit<chartdraw::PolarLayer>(layer);
    return target != nullptr
               ? handle<TextBox>(target->setDataLabelStyle(chartdraw::toLook(font, size, color, angle)))
               : nullptr;
}

void CPolarLayer_setDataLabelFormat(PolarLayer* layer, const char* format) {
    if (auto* target = edit<chartdraw::PolarLayer>(layer))
        target->setDataLabelFormat(toText(format));
}

void CPolarLayer_setDataSymbol(PolarLayer* layer, int symbol, int size, int fill, int edge, int lineWidth) {
    if (auto* target = edit<chartdraw::PolarLayer>(layer))
        target->setSymbol({symbol, size, toColour(fill), toColour(edge), lineWidth});
}

void CPolarLayer_setLineWidth(PolarLayer* layer, int width) {
    if (auto* target = edit<chartdraw::PolarLayer>(layer))
        target->setLineWidth(width);
}

void CPolarLayer_setSymbolScale(PolarLayer* layer, const double* scale, int count, int /*scaleType*/) {
    if (auto* target = edit<chartdraw::PolarLayer>(layer))
        target->setSymbolScale(toDoubles(scale, count));
}

void CPolarLineLayer_setCloseLoop(PolarLineLayer* layer, bool close) {
    if (auto* target = edit<chartdraw::PolarLineLayer>(layer))
        target->setCloseLoop(close);
}

void CAngularAxis_setLinearScale(AngularAxis* axis, double lower, double upper, double majorIncrement,
                                 double minorIncrement) {
    if (auto* target = edit<chartdraw::AngularAxis>(axis))
        target->setLinearScale(lower, upper, {majorIncrement, minorIncrement, 0});
}

void CAngularAxis_setLabels(AngularAxis* axis, const char* const* labels, int count) {
    if (auto* target = edit<chartdraw::AngularAxis>(axis))
        target->setLabels(chartdraw::toTexts(labels, count));
}

TextBox* CAngularAxis_setLabelStyle(AngularAxis* axis, const char* font, double size, int color,
                                    double angle) {
    auto* target = edit<chartdraw::AngularAxis>(axis);
    return target != nullptr
               ? handle<TextBox>(target->setLabelStyle(chartdraw::toLook(font, size, color, angle)))
               : nullptr;
}

void CAngularAxis_addZone2(AngularAxis* axis, double start, double end, int fill, int edge) {
    if (auto* target = edit<chartdraw::AngularAxis>(axis))
        target->addZone(start, end, toColour(fill), toColour(edge));
}

} // extern "C"
