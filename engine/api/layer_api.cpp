// Operations of the layers of XY charts and of their data sets.

#include "engine/api/call.h"
#include "engine/api/convert.h"
#include "engine/data/no_value.h"
#include "engine/xy/area_layer.h"
#include "engine/xy/bar_layer.h"
#include "engine/xy/box_layer.h"
#include "engine/xy/inter_line_layer.h"
#include "engine/xy/line_layer.h"
#include "engine/xy/xy_chart.h"
#include <chartdraw/surface.h>

#include <algorithm>
#include <utility>

using chartdraw::edit;
using chartdraw::handle;
using chartdraw::Numbers;
using chartdraw::object;
using chartdraw::read;
using chartdraw::toColour;
using chartdraw::toSpan;
using chartdraw::toText;
using Chart = chartdraw::XYChart;
using Combine = chartdraw::BarLayer::Combine;
using Form = chartdraw::LineLayer::Form;

namespace {

std::vector<Numbers> allNumbers(std::initializer_list<std::span<const double>> arrays) {
    return {arrays.begin(), arrays.end()};
}

Combine toCombine(int code) {
    switch (code) {
    case CHART_COMBINE_OVERLAY:
        return Combine::Overlay;
    case CHART_COMBINE_STACK:
        return Combine::Stack;
    case CHART_COMBINE_PERCENTAGE:
        return Combine::Percentage;
    default:
        return Combine::Side;
    }
}

bool isBarShape(int shape) {
    return (shape >= CHART_SQUARE_SHAPE && shape <= CHART_CIRCLE_SHAPE) ||
           shape == CHART_CIRCLE_SHAPE_NO_SHADING;
}

/// Handle: the kind of line layer that is handed out.
template <class Handle>
Handle* addLine(XYChart* chart, Form form, const double* data, int count, int color, const char* name,
                int depth) {
    return edit(
        chart,
        [&](Chart& target) {
            auto* layer = target.addLayer<chartdraw::LineLayer>(form, depth);
            layer->addDataSet(toSpan(data, count), toColour(color), toText(name));
            return handle<Handle>(layer);
        });
}

} // namespace

extern "C" {

BarLayer* CXYChart_addBarLayer(XYChart* chart, const double* data, int count, int color, const char* name,
                               int depth) {
    BarLayer* layer = CXYChart_addBarLayer2(chart, CHART_COMBINE_SIDE, depth);
    CLayer_addDataSet(BarLayer2Layer(layer), data, count, color, name);
    return layer;
}

BarLayer* CXYChart_addBarLayer2(XYChart* chart, int combine, int depth) {
    return edit(
        chart,
        [&](Chart& target) {
            return handle<BarLayer>(target.addLayer<chartdraw::BarLayer>(toCombine(combine), depth));
        });
}

LineLayer* CXYChart_addLineLayer(XYChart* chart, const double* data, int count, int color, const char* name,
                                 int depth) {
    return addLine<LineLayer>(chart, Form::Straight, data, count, color, name, depth);
}

SplineLayer* CXYChart_addSplineLayer(XYChart* chart, const double* data, int count, int color,
                                     const char* name) {
    return addLine<SplineLayer>(chart, Form::Smooth, data, count, color, name, 0);
}

StepLineLayer* CXYChart_addStepLineLayer(XYChart* chart, const double* data, int count, int color,
                                         const char* name) {
    return addLine<StepLineLayer>(chart, Form::Steps, data, count, color, name, 0);
}

AreaLayer* CXYChart_addAreaLayer2(XYChart* chart, int combine, int depth) {
    return edit(
        chart,
        [&](Chart& target) {
            return handle<AreaLayer>(
                target.addLayer<chartdraw::AreaLayer>(combine == CHART_COMBINE_PERCENTAGE, depth));
        });
}

LineLayer* CXYChart_addScatterLayer(XYChart* chart, const double* x, int xCount, const double* y, int yCount,
                                    const char* name, int symbol, int size, int fill, int edge) {
    return edit(
        chart,
        [&](Chart& target) {
            const int count = std::min(x != nullptr ? xCount : 0, y != nullptr ? yCount : 0);
            auto* layer = target.addLayer<chartdraw::LineLayer>(Form::Straight, 0);
            layer->setLineWidth(0);
            layer->setXData(toSpan(x, count));
            constexpr int kLeastLined = 9; // pixels; a smaller symbol would be little else than its edge
            layer->addDataSet(toSpan(y, count), toColour(fill), toText(name))
                ->setSymbol({symbol, size, chartdraw::kDefaultColour,
                             chartdraw::orDefault(toColour(edge), chartdraw::kLineColour), 1,
                             edge == -1 && size < kLeastLined});
            return handle<LineLayer>(layer);
        });
}

BoxWhiskerLayer* CXYChart_addBoxWhiskerLayer(XYChart* chart, const double* top, int topCount,
                                             const double* bottom, int bottomCount, const double* maximum,
                                             int maximumCount, const double* minimum, int minimumCount,
                                             const double* middle, int middleCount, int fill, int whisker,
                                             int edge) {
    return edit(
        chart,
        [&](Chart& target) {
            return handle<BoxWhiskerLayer>(target.addLayer<chartdraw::BoxWhiskerLayer>(
                allNumbers({toSpan(top, topCount), toSpan(bottom, bottomCount), toSpan(maximum, maximumCount),
                            toSpan(minimum, minimumCount), toSpan(middle, middleCount)}),
                toColour(fill), toColour(whisker), toColour(edge), std::string()));
        });
}

BoxWhiskerLayer* CXYChart_addBoxLayer(XYChart* chart, const double* top, int topCount, const double* bottom,
                                      int bottomCount, int color, const char* name) {
    BoxWhiskerLayer* layer = CXYChart_addBoxWhiskerLayer(chart, top, topCount, bottom, bottomCount, nullptr,
                                                         0, nullptr, 0, nullptr, 0, color, -1, -1);
    CDataSet_setDataName(CLayer_getDataSet(BaseBoxLayer2Layer(BoxWhiskerLayer2BaseBoxLayer(layer)), 0), name);
    return layer;
}

HLOCLayer* CXYChart_addHLOCLayer(XYChart* chart, const double* high, int highCount, const double* low,
                                 int lowCount, const double* open, int openCount, const double* close,
                                 int closeCount, int color) {
    return edit(
        chart,
        [&](Chart& target) {
            std::vector<Numbers> series = allNumbers({toSpan(high, highCount), toSpan(low, lowCount),
                                                      toSpan(open, openCount), toSpan(close, closeCount)});
            return handle<HLOCLayer>(
                target.addLayer<chartdraw::HLOCLayer>(std::move(series), toColour(color)));
        });
}

CandleStickLayer* CXYChart_addCandleStickLayer(XYChart* chart, const double* high, int highCount,
                                               const double* low, int lowCount, const double* open,
                                               int openCount, const double* close, int closeCount, int rise,
                                               int fall, int edge) {
    return edit(
        chart,
        [&](Chart& target) {
            std::vector<Numbers> series = allNumbers({toSpan(high, highCount), toSpan(low, lowCount),
                                                      toSpan(open, openCount), toSpan(close, closeCount)});
            return handle<CandleStickLayer>(target.addLayer<chartdraw::CandleStickLayer>(
                std::move(series), toColour(rise), toColour(fall), toColour(edge)));
        });
}

InterLineLayer* CXYChart_addInterLineLayer(XYChart* chart, Line* first, Line* second, int above, int below) {
    return edit(
        chart,
        [&](Chart& target) {
            return handle<InterLineLayer>(chartdraw::InterLineLayer::add(
                target, object<chartdraw::Line>(first), object<chartdraw::Line>(second), toColour(above),
                toColour(below)));
        });
}

DataSet* CLayer_addDataSet(Layer* layer, const double* data, int count, int color, const char* name) {
    return edit(
        layer,
        [&](chartdraw::Layer& target) {
            return handle<DataSet>(target.addDataSet(toSpan(data, count), toColour(color), toText(name)));
        });
}

DataSet* CLayer_getDataSet(Layer* layer, int index) {
    return read(
        layer, [&](const chartdraw::Layer& target) { return handle<DataSet>(target.dataSet(index)); });
}

void CLayer_set3D(Layer* layer, int depth, int zGap) {
    return edit(
        layer, [&](chartdraw::Layer& target) { target.set3D(depth, zGap); });
}

void CLayer_setLineWidth(Layer* layer, int width) {
    return edit(
        layer, [&](chartdraw::Layer& target) { target.setLineWidth(width); });
}

void CLayer_setBorderColor(Layer* layer, int color, int effect) {
    return edit(
        layer, [&](chartdraw::Layer& target) { target.setBorder(toColour(color), effect); });
}

void CLayer_setXData(Layer* layer, const double* data, int count) {
    return edit(
        layer, [&](chartdraw::Layer& target) { target.setXData(toSpan(data, count)); });
}

void CLayer_setUseYAxis(Layer* layer, Axis* axis) {
    return edit(
        layer,
        [&](chartdraw::Layer& target) {
            if (auto* wanted = object<chartdraw::Axis>(axis))
                target.setYAxis(wanted);
        });
}

void CLayer_setUseYAxis2(Layer* layer, bool second) {
    return edit(
        layer,
        [&](chartdraw::Layer& target) {
            target.setYAxis(second ? target.chart().yAxis2() : target.chart().yAxis());
        });
}

TextBox* CLayer_setDataLabelStyle(Layer* layer, const char* font, double size, int color, double angle) {
    return edit(
        layer,
        [&](chartdraw::Layer& target) {
            return handle<TextBox>(target.setDataLabelStyle(chartdraw::toLook(font, size, color, angle)));
        });
}

void CLayer_setDataLabelFormat(Layer* layer, const char* format) {
    return edit(
        layer, [&](chartdraw::Layer& target) { target.setDataLabelFormat(toText(format)); });
}

TextBox* CLayer_setAggregateLabelStyle(Layer* layer, const char* font, double size, int color, double angle) {
    return edit(
        layer,
        [&](chartdraw::Layer& target) {
            return handle<TextBox>(
                target.setAggregateLabelStyle(chartdraw::toLook(font, size, color, angle)));
        });
}

void CLayer_setAggregateLabelFormat(Layer* layer, const char* format) {
    return edit(
        layer, [&](chartdraw::Layer& target) { target.setAggregateLabelFormat(toText(format)); });
}

void CLayer_setHTMLImageMap(Layer* /*layer*/, const char* /*url*/, const char* /*query*/,
                            const char* /*extraAttributes*/) {} // a picture shows none of it

void CDataSet_setDataName(DataSet* dataSet, const char* name) {
    return edit(
        dataSet, [&](chartdraw::DataSet& target) { target.setName(toText(name)); });
}

void CDataSet_setDataColor(DataSet* dataSet, int data, int edge, int shadow, int shadowEdge) {
    return edit(
        dataSet,
        [&](chartdraw::DataSet& target) {
            target.setColours(toColour(data), toColour(edge), toColour(shadow), toColour(shadowEdge));
        });
}

void CDataSet_setDataSymbol(DataSet* dataSet, int symbol, int size, int fill, int edge, int lineWidth) {
    return edit(
        dataSet,
        [&](chartdraw::DataSet& target) {
            target.setSymbol({symbol, size, toColour(fill), toColour(edge), lineWidth});
        });
}

void CBarLayer_setBarShape(BarLayer* layer, int shape, int dataGroup, int dataItem) {
    return edit(
        layer,
        [&](chartdraw::BarLayer& target) {
            target.setShape(isBarShape(shape) ? shape : CHART_NO_SHAPE, dataGroup, dataItem);
        });
}

void CBarLayer_setOverlapRatio(BarLayer* layer, double ratio, bool firstOnTop) {
    return edit(
        layer, [&](chartdraw::BarLayer& target) { target.setOverlap(ratio, firstOnTop); });
}

void CBarLayer_setBarGap(BarLayer* layer, double gap, double subGap) {
    return edit(
        layer, [&](chartdraw::BarLayer& target) { target.setGap(gap, subGap); });
}

Line* CLineLayer_getLine(LineLayer* layer, int dataSet) {
    return edit(
        layer, [&](chartdraw::LineLayer& target) { return handle<Line>(target.line(dataSet)); });
}

void CLineLayer_setSymbolScale(LineLayer* layer, const double* xScale, int xCount, int /*xScaleType*/,
                               const double* yScale, int yCount, int /*yScaleType*/) {
    return edit(
        layer,
        [&](chartdraw::LineLayer& target) {
            target.setSymbolSizes(chartdraw::toDoubles(xScale, xCount), chartdraw::toDoubles(yScale, yCount));
        });
}

void CBaseBoxLayer_setDataGap(BaseBoxLayer* layer, double gap) {
    return edit(
        layer, [&](chartdraw::BaseBoxLayer& target) { target.setDataGap(gap); });
}

void CBaseBoxLayer_setDataWidth(BaseBoxLayer* layer, int width) {
    return edit(
        layer, [&](chartdraw::BaseBoxLayer& target) { target.setDataWidth(width); });
}

void CBoxWhiskerLayer_setBoxColors(BoxWhiskerLayer* layer, const int* colors, int colorCount,
                                   const char* const* names, int nameCount) {
    return edit(
        layer,
        [&](chartdraw::BoxWhiskerLayer& target) {
            target.setBoxColours(chartdraw::toColours(colors, colorCount),
                                 chartdraw::toTexts(names, nameCount));
        });
}

void CHLOCLayer_setColorMethod(HLOCLayer* layer, int method, int rise, int fall, double leadValue) {
    return edit(
        layer,
        [&](chartdraw::HLOCLayer& target) {
            target.setColourMethod(method == CHART_UP_DOWN, toColour(rise), toColour(fall), leadValue);
        });
}

} // extern "C"
