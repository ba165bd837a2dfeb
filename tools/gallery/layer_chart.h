#pragma once
// What the cases of the layers of XY charts share.

#include "tools/gallery/gallery.h"

namespace gallery {

inline const double kA[] = {25, 18, 31, 22, 38, 29};
inline const double kB[] = {12, 27, 19, 33, 24, 16};
inline const double kC[] = {8, 15, 23, 11, 17, 26};
inline const double kMixed[] = {25, -18, 31, CHART_NO_VALUE, -12, 0};
inline const double kMixed2[] = {12, 14, -19, 21, -24, 9};
constexpr int kRows = 6;
constexpr int kClear = CHART_TRANSPARENT;

/// A chart with a plot area and a legend above it.
struct LayerChart {
    XYChart* xy;
    BaseChart* base;

    explicit LayerChart(int width = 360, int height = 260, int depth = 0)
        : xy(CXYChart_create(width, height, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0)),
          base(XYChart2BaseChart(xy)) {
        CXYChart_setPlotArea(xy, 50, 35 + depth, width - 75 - depth, height - 70 - depth, -1, -1, -1, -1, -1);
        LegendBox* legend = CBaseChart_addLegend(base, 50, 8, false, nullptr, points(8));
        CBox_setBackground(TextBox2Box(LegendBox2TextBox(legend)), kClear, kClear, 0);
        for (Axis* axis : {CXYChart_xAxis(xy), CXYChart_yAxis(xy)})
            CAxis_setLabelStyle(axis, nullptr, points(8), -1, 0);
    }
};

inline Layer* threeSets(Layer* layer) {
    CLayer_addDataSet(layer, kA, kRows, -1, "North");
    CLayer_addDataSet(layer, kB, kRows, -1, "South");
    CLayer_addDataSet(layer, kC, kRows, -1, "West");
    return layer;
}

inline Layer* twoMixedSets(Layer* layer) {
    CLayer_addDataSet(layer, kMixed, kRows, -1, "Gap in row 3");
    CLayer_addDataSet(layer, kMixed2, kRows, -1, "Other");
    return layer;
}

inline TextBox* label(Layer* layer, const char* format = nullptr) {
    TextBox* style = CLayer_setDataLabelStyle(layer, nullptr, points(8), -1, 0);
    CLayer_setDataLabelFormat(layer, format);
    return style;
}

} // namespace gallery
