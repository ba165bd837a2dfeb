#pragma once
// The layers of an XY chart, of all kinds.

#include "render/xy_axes.h"
#include "render/xy_source.h"
#include <charteditors/chart_layout.h>

/// What layers are drawn with.
struct XYLayerScene {
    const XYAxes& axes;
    const CXYChart& look;
    const CChartLayout& layout;

    XYChart* Chart() const { return axes.chart; }
    BaseChart* Base() const { return axes.base; }
};

/// Adds a layer of the kind that `layer` is, with its data, and all that the models say of it.
void DrawXYLayer(const XYLayerScene& scene, const CXYChartLayer& layer, CXYLayerSource& data);

/// Text and box of data labels; `textBox` is what a label style operation is to return.
using XYLabelStyle = TextBox* (*)(Layer*, const char*, double, int, double);
/// Gives the labels of a layer the layout's looks.
void DressXYLabels(const XYLayerScene& scene, Layer* layer, XYLabelStyle setStyle);

/// The kinds of one body a row: boxes, prices, and the bars of plans.
Layer* AddBoxWhiskers(const XYLayerScene& scene, const CXYBoxWhiskerLayer& look, CXYLayerSource& data);
Layer* AddBoxes(const XYLayerScene& scene, const CXYBoxLayer& look, CXYLayerSource& data);
Layer* AddPriceBars(const XYLayerScene& scene, const CXYHLOCLayer& look, CXYLayerSource& data);
Layer* AddTasks(const XYLayerScene& scene, const CXYGanttLayer& look, CXYLayerSource& data);
Layer* AddCandles(const XYLayerScene& scene, const CXYCandleStickLayer& look, CXYLayerSource& data);
