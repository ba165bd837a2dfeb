// XY charts whose texts have too little room: what gives way, and how.

#include "tools/gallery/gallery.h"

#include <vector>

namespace {

using gallery::Chart;
using gallery::points;

constexpr int kClear = CHART_TRANSPARENT;
const char kLong[] = "A title of many words that has no place on a single line of this small picture";

BaseChart* largeNumbers() {
    const Chart chart(40);
    chart.addLine({1.2e12, 2.1e12, 1.7e12, 3.3e12});
    return chart.base;
}

BaseChart* marks() {
    const Chart chart;
    chart.addLine({12, 35, 22, 28});
    for (const double value : {20.0, 20.5, 21.0})
        CAxis_addMark(chart.y, value, 0xcc0000,
                      value == 20   ? "least"
                      : value == 21 ? "most"
                                    : "usual",
                      nullptr, points(8));
    return chart.base;
}

BaseChart* wicksInDepth() {
    const Chart chart;
    const double high[] = {40, 55, 48}, low[] = {10, 22, 18}, open[] = {20, 30, 40}, close[] = {30, 42, 25};
    CandleStickLayer* candles =
        CXYChart_addCandleStickLayer(chart.xy, high, 3, low, 3, open, 3, close, 3, 0x33aa33, 0xcc3333, -1);
    CLayer_set3D(BaseBoxLayer2Layer(CandleStickLayer2BaseBoxLayer(candles)), 16, 0);
    return chart.base;
}

BaseChart* barsAndPoints() {
    const Chart chart;
    chart.addBars({25, 18, 31, 22, 38, 29});
    const double x[] = {0, 1, 5}, y[] = {35, 28, 40};
    CXYChart_addScatterLayer(chart.xy, x, 3, y, 3, nullptr, CHART_CIRCLE_SYMBOL, 9, 0xcc0000, -1);
    return chart.base;
}

BaseChart* gapsOfALog() {
    const Chart chart;
    CAxis_setLogScale3(chart.y, nullptr);
    chart.addLine({10, 120, 0, 300, 40, -5, 900});
    return chart.base;
}

BaseChart* longTitles() {
    const Chart chart(70);
    chart.addBars({25, 18, 31});
    CBaseChart_addTitle(chart.base, kLong, "bold", points(9), -1, kClear, kClear);
    CAxis_setTitle(chart.x, kLong, nullptr, points(8), -1);
    CAxis_setTitle(chart.y, kLong, nullptr, points(8), -1);
    return chart.base;
}

BaseChart* longNames() {
    const Chart chart;
    CXYChart_setPlotArea(chart.xy, 50, 35, 295, 130, -1, -1, -1, -1, -1);
    chart.addBars({25, 18, 31});
    const double rows[] = {0, 1, 2};
    CAxis_setLabels2(chart.x, rows, 3, "{value|\tNorthern Territories\tSouth\tUnincorporated areas}");
    CAxis_setLabelStyle(chart.x, nullptr, points(8), -1, 60);
    CAxis_setTitle(chart.x, "Region", nullptr, points(8), -1);
    return chart.base;
}

BaseChart* namesBesideLyingBars() {
    const Chart chart(80);
    chart.addBars({25, 18, 31});
    CXYChart_swapXY(chart.xy, true);
    const double rows[] = {0, 1, 2};
    CAxis_setLabels2(chart.x, rows, 3, "{value|\tNorthern Territories\tSouth\tUnincorporatedareas}");
    return chart.base;
}

BaseChart* legendOnData() {
    const Chart chart;
    for (const char* name : {"North", "A longer name", "West", "East and beyond", "South"})
        chart.addBars({25, 18, 31}, name);
    LegendBox* legend = CBaseChart_addLegend(chart.base, 150, 60, false, nullptr, points(8));
    CBox_setBackground(TextBox2Box(LegendBox2TextBox(legend)), kClear, kClear, 0);
    return chart.base;
}

BaseChart* noise() {
    const Chart chart;
    chart.addBars({0.1 + 0.2, 1.0 / 3, 0.7, 2.0 / 3});
    const double data[] = {0.1 + 0.2, 1.0 / 3, 0.02, 2.0 / 3};
    Layer* layer = BarLayer2Layer(CXYChart_addBarLayer2(chart.xy, CHART_COMBINE_STACK, 0));
    CLayer_addDataSet(layer, data, 4, 0x88bbee, nullptr);
    CLayer_addDataSet(layer, data, 4, 0xeebb88, nullptr);
    CLayer_setDataLabelStyle(layer, nullptr, points(8), -1, 0);
    return chart.base;
}

BaseChart* symbols() {
    const Chart chart;
    for (int shape = CHART_SQUARE_SYMBOL; shape <= CHART_CROSS2_SYMBOL; ++shape) {
        std::vector<double> x, y;
        for (int i = 0; i < 9; ++i) {
            x.push_back(i + 0.13 * shape);
            y.push_back(shape + 0.07 * i);
        }
        CXYChart_addScatterLayer(chart.xy, x.data(), 9, y.data(), 9, nullptr, shape, shape % 2 == 0 ? 6 : 9,
                                 -1, -1);
    }
    return chart.base;
}

BaseChart* bubbles() {
    const Chart chart;
    const double x[] = {0, 2, 4}, y[] = {0, 5, 10}, sizes[] = {70, 40, 90};
    LineLayer* layer =
        CXYChart_addScatterLayer(chart.xy, x, 3, y, 3, nullptr, CHART_CIRCLE_SYMBOL, 9, 0x60d46a10, -1);
    CLineLayer_setSymbolScale(layer, sizes, 3, CHART_SCALE_PIXELS, nullptr, 0, CHART_SCALE_PIXELS);
    CAxis_setLinearScale(chart.y, 0, 10, 0, 0);
    CAxis_setLinearScale(chart.x, 0, 4, 0, 0);
    return chart.base;
}

BaseChart* wallBehindLegend() {
    const Chart chart;
    const double data[] = {25, 18, 31};
    CXYChart_addBarLayer(chart.xy, data, 3, -1, "Bars with depth", 25);
    CXYChart_setPlotArea(chart.xy, 50, 45, 260, 170, 0xffffff, -1, -1, -1, -1);
    LegendBox* legend = CBaseChart_addLegend(chart.base, 70, 12, false, nullptr, points(8));
    CBox_setBackground(TextBox2Box(LegendBox2TextBox(legend)), kClear, kClear, 0);
    return chart.base;
}

BaseChart* twelveMonths() {
    const Chart chart;
    std::vector<double> times, values;
    for (int month = 1; month <= 12; ++month) {
        times.push_back(CChart_chartTime(2024, month, 1, 0, 0, 0));
        values.push_back(10 + month % 5);
    }
    chart.addBars(values);
    CAxis_setLabels2(chart.x, times.data(), 12, "{value|mmm yyyy}");
    return chart.base;
}

const gallery::Family family("room",
                             {{"Numbers too long for the edge take a shorter form", largeNumbers},
                              {"Labels of close marks spread", marks},
                              {"Wicks rise from the top faces", wicksInDepth},
                              {"Bars keep their room beside points", barsAndPoints},
                              {"A log axis: gaps where nothing is above 0", gapsOfALog},
                              {"Long titles are broken", longTitles},
                              {"Turned names end before the title", longNames},
                              {"Names beside lying bars are wrapped or shortened", namesBesideLyingBars},
                              {"A legend on data: columns on a ground", legendOnData},
                              {"Values without noise, where they fit their bars", noise},
                              {"Symbols of one area, small ones with a dark edge", symbols},
                              {"Bubbles end at the plot area", bubbles},
                              {"A back wall behind a legend", wallBehindLegend},
                              {"Twelve months with even gaps", twelveMonths}});

} // namespace
