// Lines, symbols and areas: every look and all data that they can have.

#include "tools/gallery/layer_chart.h"

#include <cmath>
#include <cstdio>
#include <vector>

namespace {

using namespace gallery;

BaseChart* symbolLines() {
    LayerChart chart(560, 320);
    for (int symbol = 1; symbol <= 9; ++symbol) {
        double data[kRows];
        for (int i = 0; i < kRows; ++i)
            data[i] = symbol * 10 + std::sin(symbol + i * 1.3) * 4;
        char name[16];
        std::snprintf(name, sizeof name, "%d", symbol);
        LineLayer* line = CXYChart_addLineLayer(chart.xy, data, kRows, -1, name, 0);
        CLayer_setLineWidth(LineLayer2Layer(line), symbol % 3 + 1);
        CDataSet_setDataSymbol(CLayer_getDataSet(LineLayer2Layer(line), 0), symbol, 9,
                               symbol % 2 ? -1 : 0xffffff, symbol % 2 ? 0x000000 : 0x802020, 1);
    }
    return chart.base;
}

BaseChart* threeForms() {
    LayerChart chart(460);
    const double data[] = {10, 10, 32, 15, 15, CHART_NO_VALUE, 28, 22, 30, NAN, 12, CHART_NO_VALUE, 20};
    Layer* layers[] = {LineLayer2Layer(CXYChart_addLineLayer(chart.xy, data, 13, 0xaaaaaa, "Line", 0)),
                       LineLayer2Layer(SplineLayer2LineLayer(
                           CXYChart_addSplineLayer(chart.xy, data, 13, 0xcc3300, "Spline"))),
                       LineLayer2Layer(StepLineLayer2LineLayer(
                           CXYChart_addStepLineLayer(chart.xy, data, 13, 0x0066cc, "Step line")))};
    for (Layer* layer : layers)
        CLayer_setLineWidth(layer, 2);
    CDataSet_setDataSymbol(CLayer_getDataSet(layers[1], 0), CHART_CIRCLE_SYMBOL, 7, 0xffffff, 0xcc3300, 2);
    return chart.base;
}

BaseChart* lineLabels() {
    LayerChart chart;
    LineLayer* line = CXYChart_addLineLayer(chart.xy, kA, kRows, -1, "Labelled", 0);
    CDataSet_setDataSymbol(CLayer_getDataSet(LineLayer2Layer(line), 0), CHART_CIRCLE_SYMBOL, 9, -1, -1, 1);
    CLayer_setLineWidth(LineLayer2Layer(line), 2);
    TextBox* style = label(LineLayer2Layer(line), "{xLabel}: {value|1}");
    CBox_setBackground(TextBox2Box(style), 0xf0f4ff, 0x8899bb, 0);
    return chart.base;
}

BaseChart* crowdedLabels() {
    LayerChart chart;
    std::vector<double> data;
    for (int i = 0; i < 80; ++i)
        data.push_back(50 + 30 * std::sin(i * 0.17) + 6 * std::sin(i * 1.9));
    label(LineLayer2Layer(CXYChart_addLineLayer(chart.xy, data.data(), 80, -1, "80 labels", 0)), "{value|1}");
    label(LineLayer2Layer(CXYChart_addLineLayer(chart.xy, data.data() + 20, 60, -1, "60 more", 0)),
          "{value|1}");
    return chart.base;
}

BaseChart* edges() {
    LayerChart chart;
    const double data[] = {0, 100, 0, 50, 130, -30, 100, 100};
    LineLayer* line = CXYChart_addLineLayer(chart.xy, data, 8, -1, "Width 5 at and past the limits", 0);
    CLayer_setLineWidth(LineLayer2Layer(line), 5);
    CDataSet_setDataSymbol(CLayer_getDataSet(LineLayer2Layer(line), 0), CHART_CIRCLE_SYMBOL, 13, 0xffffff,
                           0x204060, 2);
    CAxis_setLinearScale(CXYChart_yAxis(chart.xy), 0, 100, 0, 0);
    return chart.base;
}

BaseChart* noise() {
    LayerChart chart;
    std::vector<double> data(200000);
    unsigned seed = 1;
    for (std::size_t i = 0; i < data.size(); ++i) {
        seed = seed * 1664525u + 1013904223u;
        data[i] =
            std::sin(static_cast<double>(i) * 5e-5) * 100 + static_cast<double>(seed >> 16) / 65536 * 40;
    }
    CXYChart_addLineLayer(chart.xy, data.data(), static_cast<int>(data.size()), -1, "200 000 points", 0);
    return chart.base;
}

BaseChart* scatter() {
    LayerChart chart;
    std::vector<double> x, y;
    unsigned seed = 7;
    const auto random = [&] {
        seed = seed * 1664525u + 1013904223u;
        return static_cast<double>(seed >> 8) / (1 << 24);
    };
    for (int i = 0; i < 3000; ++i) {
        const double radius = random() * random() * 50, angle = random() * 6.2832;
        x.push_back(50 + radius * std::cos(angle));
        y.push_back(50 + radius * std::sin(angle));
    }
    CXYChart_addScatterLayer(chart.xy, x.data(), 3000, y.data(), 3000, "Half transparent",
                             CHART_CIRCLE_SYMBOL, 7, static_cast<int>(0x804479bbu), kClear);
    return chart.base;
}

BaseChart* bubbles() {
    LayerChart chart;
    const double x[] = {1, 2, 3.5, 4, 5, 6};
    const double sizes[] = {12, 40, 25, 60, 18, 33};
    LineLayer* layer = CXYChart_addScatterLayer(chart.xy, x, kRows, kA, kRows, "Bubbles", CHART_CIRCLE_SYMBOL,
                                                9, static_cast<int>(0x60d46a10u), -1);
    CLineLayer_setSymbolScale(layer, sizes, kRows, CHART_SCALE_PIXELS, nullptr, 0, CHART_SCALE_PIXELS);
    label(LineLayer2Layer(layer));
    return chart.base;
}

template <int combine, int depth = 0>
BaseChart* areas() {
    LayerChart chart(360, 260, depth);
    label(threeSets(AreaLayer2Layer(CXYChart_addAreaLayer2(chart.xy, combine, depth))),
          combine == CHART_COMBINE_PERCENTAGE ? "{percent|0}%" : nullptr);
    return chart.base;
}

BaseChart* areaGaps() {
    LayerChart chart;
    const double data[] = {10, 14, CHART_NO_VALUE, 12, CHART_NO_VALUE, 8, -9, -4, 6};
    Layer* layer = AreaLayer2Layer(CXYChart_addAreaLayer2(chart.xy, CHART_COMBINE_STACK, 0));
    CLayer_addDataSet(layer, data, 9, static_cast<int>(0x404479bbu), "Gaps, a lone point, negative");
    CLayer_setBorderColor(layer, 0x203050, 0);
    return chart.base;
}

BaseChart* between() {
    LayerChart chart(460);
    const double a[] = {10, 22, 18, 30, 20, 26, 15, 20}, b[] = {16, 15, 24, 20, 20, 30, 22, 12};
    LineLayer* first = CXYChart_addLineLayer(chart.xy, a, 8, 0x0000cc, "First", 0);
    SplineLayer* second = CXYChart_addSplineLayer(chart.xy, b, 8, 0xcc0000, "Second");
    CXYChart_addInterLineLayer(chart.xy, CLineLayer_getLine(first, 0),
                               CLineLayer_getLine(SplineLayer2LineLayer(second), 0),
                               static_cast<int>(0x800000ffu), static_cast<int>(0x80ff0000u));
    return chart.base;
}

BaseChart* thresholds() {
    LayerChart chart(460);
    std::vector<double> data;
    for (int i = 0; i < 100; ++i)
        data.push_back(50 + 32 * std::sin(i * 0.15) + 10 * std::sin(i * 0.9));
    Axis* y = CXYChart_yAxis(chart.xy);
    LineLayer* line = CXYChart_addLineLayer(chart.xy, data.data(), 100, 0x800080, "RSI (14)", 0);
    Mark* top = CAxis_addMark(y, 70, 0xff6666, "70", nullptr, points(8));
    Mark* bottom = CAxis_addMark(y, 30, 0x6666ff, "30", nullptr, points(8));
    CXYChart_addInterLineLayer(chart.xy, CLineLayer_getLine(line, 0), CMark_getLine(top), 0xff6666, kClear);
    CXYChart_addInterLineLayer(chart.xy, CLineLayer_getLine(line, 0), CMark_getLine(bottom), kClear,
                               0x6666ff);
    CAxis_setLinearScale(y, 0, 100, 0, 0);
    return chart.base;
}

BaseChart* deepLines() {
    LayerChart chart(460, 260, 48);
    for (const double* data : {kC, kB, kA}) {
        LineLayer* line = CXYChart_addLineLayer(chart.xy, data, kRows, -1,
                                                data == kA   ? "A"
                                                : data == kB ? "B"
                                                             : "C",
                                                12);
        CLayer_set3D(LineLayer2Layer(line), 12, 6);
    }
    return chart.base;
}

BaseChart* deepMix() {
    LayerChart chart(460, 260, 32);
    CLayer_set3D(BarLayer2Layer(CXYChart_addBarLayer(chart.xy, kA, kRows, -1, "Bars behind", 0)), 12, 8);
    Layer* areas = AreaLayer2Layer(CXYChart_addAreaLayer2(chart.xy, CHART_COMBINE_STACK, 12));
    CLayer_addDataSet(areas, kC, kRows, -1, "Area in front");
    CLayer_set3D(areas, 12, 8);
    return chart.base;
}

const Family kFamily("lines", {{"Symbols, filled and hollow", symbolLines},
                               {"Line, spline, step; gaps", threeForms},
                               {"Labels with boxes", lineLabels},
                               {"More labels than room", crowdedLabels},
                               {"Lines and symbols at the limits", edges},
                               {"A long line", noise},
                               {"A cloud of points", scatter},
                               {"Bubbles", bubbles},
                               {"Stacked areas", areas<CHART_COMBINE_STACK>},
                               {"Areas of a hundred", areas<CHART_COMBINE_PERCENTAGE>},
                               {"Areas with depth", areas<CHART_COMBINE_STACK, 15>},
                               {"Area with gaps", areaGaps},
                               {"Between a line and a curve", between},
                               {"Beyond marks", thresholds},
                               {"Lines with depth and gaps between", deepLines},
                               {"Bars behind an area", deepMix}});

} // namespace
