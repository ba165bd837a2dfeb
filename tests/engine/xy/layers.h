#pragma once
// A chart whose every pixel is known, for tests of layers: 400 x 300, frame lines on columns 50 and 350 and
// rows 30 and 230, no labels, no grid. With y from 0 to 100 a value v stands on row 230 - 2 v; with six rows
// of bars or boxes row i has its middle on column 75 + 50 i.

#include "tests/engine/chart/picture.h"
#include <cmath>
#include <vector>

namespace layers {
using namespace pictures;

constexpr double kGap = CHART_NO_VALUE;

struct Chart {
    XYChart* xy = CXYChart_create(400, 300, kWhite, kNone, 0);
    BaseChart* base = XYChart2BaseChart(xy);

    explicit Chart(double lower = 0, double upper = 100) {
        CXYChart_setPlotArea(xy, 50, 30, 300, 200, kNone, -1, kNone, kNone, kNone);
        CAxis_setLinearScale(CXYChart_yAxis(xy), lower, upper, 0, 0);
        for (Axis* axis : {CXYChart_xAxis(xy), CXYChart_yAxis(xy)}) CAxis_setColors(axis, kNone, kNone, kNone, kNone);
    }
    QImage picture() const { return of(base); }
};

inline int size(const std::vector<double>& data) { return static_cast<int>(data.size()); }

inline Layer* bars(Chart& chart, int combine, const std::vector<std::vector<double>>& sets, int depth = 0) {
    const int colours[] = {kRed, kGreen, kBlue};
    Layer* layer = BarLayer2Layer(CXYChart_addBarLayer2(chart.xy, combine, depth));
    for (std::size_t i = 0; i < sets.size(); ++i)
        CLayer_addDataSet(layer, sets[i].data(), size(sets[i]), colours[i % 3], nullptr);
    return layer;
}

inline LineLayer* line(Chart& chart, const std::vector<double>& data, int colour = kRed, int width = 1) {
    LineLayer* layer = CXYChart_addLineLayer(chart.xy, data.data(), size(data), colour, nullptr, 0);
    CLayer_setLineWidth(LineLayer2Layer(layer), width);
    return layer;
}
} // namespace layers
