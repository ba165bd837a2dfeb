// Bars: every look and all data that they can have.

#include "tools/gallery/layer_chart.h"

namespace {

using namespace gallery;

template <int combine, int depth = 0>
BaseChart* bars() {
    LayerChart chart(360, 260, depth);
    Layer* layer = threeSets(BarLayer2Layer(CXYChart_addBarLayer2(chart.xy, combine, depth)));
    label(layer, combine == CHART_COMBINE_PERCENTAGE ? "{percent|0}%" : nullptr);
    return chart.base;
}

template <int combine, int depth = 0>
BaseChart* mixedBars() {
    LayerChart chart(360, 260, depth);
    label(twoMixedSets(BarLayer2Layer(CXYChart_addBarLayer2(chart.xy, combine, depth))));
    return chart.base;
}

BaseChart* stackedSums() {
    LayerChart chart;
    Layer* layer = threeSets(BarLayer2Layer(CXYChart_addBarLayer2(chart.xy, CHART_COMBINE_STACK, 0)));
    label(layer);
    CLayer_setAggregateLabelStyle(layer, "bold", points(8), -1, 0);
    return chart.base;
}

BaseChart* sideSums() {
    LayerChart chart(480);
    Layer* layer = threeSets(BarLayer2Layer(CXYChart_addBarLayer2(chart.xy, CHART_COMBINE_SIDE, 0)));
    label(layer);
    TextBox* sums = CLayer_setAggregateLabelStyle(layer, "bold", points(8), -1, 0);
    CBox_setBackground(TextBox2Box(sums), 0xffffcc, 0x808080, 0);
    return chart.base;
}

template <int depth = 0>
BaseChart* lyingBars() {
    LayerChart chart(360, 260, depth);
    CXYChart_swapXY(chart.xy, true);
    label(twoMixedSets(BarLayer2Layer(CXYChart_addBarLayer2(chart.xy, CHART_COMBINE_SIDE, depth))));
    return chart.base;
}

BaseChart* lyingStack() {
    LayerChart chart(360, 260, 12);
    CXYChart_swapXY(chart.xy, true);
    Layer* layer = threeSets(BarLayer2Layer(CXYChart_addBarLayer2(chart.xy, CHART_COMBINE_STACK, 12)));
    label(layer);
    CLayer_setAggregateLabelStyle(layer, "bold", points(8), -1, 0);
    return chart.base;
}

template <bool firstOnTop>
BaseChart* overlap() {
    LayerChart chart;
    BarLayer* bar = CXYChart_addBarLayer2(chart.xy, CHART_COMBINE_SIDE, 0);
    CLayer_setBorderColor(threeSets(BarLayer2Layer(bar)), 0x404040, 0);
    CBarLayer_setOverlapRatio(bar, 0.5, firstOnTop);
    return chart.base;
}

BaseChart* gaps() {
    LayerChart chart;
    BarLayer* bar = CXYChart_addBarLayer2(chart.xy, CHART_COMBINE_SIDE, 0);
    threeSets(BarLayer2Layer(bar));
    CBarLayer_setBarGap(bar, 0.4, 0.3);
    return chart.base;
}

BaseChart* histogram() {
    LayerChart chart;
    const double data[] = {1, 3, 8, 15, 24, 31, 33, 28, 21, 13, 7, 2, 1};
    BarLayer* bar = CXYChart_addBarLayer(chart.xy, data, 13, -1, "No gap, with a border", 0);
    CBarLayer_setBarGap(bar, 0, 0);
    CLayer_setBorderColor(BarLayer2Layer(bar), 0x303030, 0);
    return chart.base;
}

template <int depth, bool lying = false>
BaseChart* shapes() {
    LayerChart chart(520, 260, depth);
    const double data[] = {30, 34, 38, 30, 34, -20, -24, 30, 34};
    const int codes[] = {0, 2, 3, 4, 5, 6, 3, 7, 10};
    CXYChart_swapXY(chart.xy, lying);
    BarLayer* bar = CXYChart_addBarLayer(chart.xy, data, 9, -1, "Shapes", depth);
    for (int i = 0; i < 9; ++i)
        CBarLayer_setBarShape(bar, codes[i], -1, i);
    CLayer_setBorderColor(BarLayer2Layer(bar), 0x203040, 0);
    return chart.base;
}

template <int effect>
BaseChart* effects() {
    LayerChart chart;
    const int value = effect == 1   ? 2
                      : effect == 2 ? -2
                      : effect == 3 ? CChart_softLighting(CHART_LEFT, 0)
                                    : CChart_glassEffect(CHART_GLARE_NORMAL, CHART_LEFT, 0);
    BarLayer* bar = CXYChart_addBarLayer2(chart.xy, CHART_COMBINE_SIDE, 0);
    CLayer_setBorderColor(threeSets(BarLayer2Layer(bar)), kClear, value);
    CBarLayer_setBarGap(bar, 0.2, 0.1);
    CBarLayer_setBarShape(bar, CHART_DIAMOND_SHAPE, 2, -1);
    return chart.base;
}

BaseChart* barsByDate() {
    LayerChart chart;
    double dates[kRows];
    const int days[] = {1, 4, 5, 9, 15, 16};
    for (int i = 0; i < kRows; ++i)
        dates[kRows - 1 - i] = CChart_chartTime(2024, 3, days[i], 0, 0, 0);
    BarLayer* bar = CXYChart_addBarLayer(chart.xy, kMixed, kRows, -1, "Uneven dates, backwards", 0);
    CLayer_setXData(BarLayer2Layer(bar), dates, kRows);
    CAxis_setDateScale(CXYChart_xAxis(chart.xy), CChart_chartTime(2024, 3, 1, 0, 0, 0) - 43200,
                       CChart_chartTime(2024, 3, 17, 0, 0, 0) - 43200, 0, 0);
    label(BarLayer2Layer(bar), "{x|d mmm}: {value}");
    return chart.base;
}

BaseChart* logBars() {
    LayerChart chart;
    const double data[] = {3, 45, 700, 12, 5600, 90};
    CAxis_setLogScale3(CXYChart_yAxis(chart.xy), nullptr);
    label(BarLayer2Layer(CXYChart_addBarLayer(chart.xy, data, kRows, -1, "Log", 0)));
    return chart.base;
}

BaseChart* onePoint() {
    LayerChart chart;
    const double one[] = {20};
    CXYChart_addBarLayer(chart.xy, one, 1, -1, "One bar", 0);
    CDataSet_setDataSymbol(
        CLayer_getDataSet(LineLayer2Layer(CXYChart_addLineLayer(chart.xy, one, 1, 0x000000, "One point", 0)),
                          0),
        CHART_DIAMOND_SYMBOL, 11, 0xffffff, 0x000000, 1);
    return chart.base;
}

const Family kFamily("bars", {{"Bars side by side, labelled", bars<CHART_COMBINE_SIDE>},
                              {"Stacked, values inside", bars<CHART_COMBINE_STACK>},
                              {"Parts of a hundred", bars<CHART_COMBINE_PERCENTAGE>},
                              {"Over each other", bars<CHART_COMBINE_OVERLAY>},
                              {"Stacked with sums", stackedSums},
                              {"Side by side with sums in boxes", sideSums},
                              {"Negative values and gaps, side by side", mixedBars<CHART_COMBINE_SIDE>},
                              {"Negative values stack downward", mixedBars<CHART_COMBINE_STACK>},
                              {"Negative values, parts of a hundred", mixedBars<CHART_COMBINE_PERCENTAGE>},
                              {"Axes exchanged", lyingBars<>},
                              {"Overlap a half", overlap<false>},
                              {"Overlap, first on top", overlap<true>},
                              {"Gap 0.4, gap within 0.3", gaps},
                              {"Histogram", histogram},
                              {"Shapes", shapes<0>},
                              {"Shapes with depth", shapes<15>},
                              {"Shapes lying", shapes<0, true>},
                              {"Shapes lying, with depth", shapes<12, true>},
                              {"Raised", effects<1>},
                              {"Depressed", effects<2>},
                              {"Soft lighting", effects<3>},
                              {"Glass", effects<4>},
                              {"Bars with depth", bars<CHART_COMBINE_SIDE, 12>},
                              {"Stack with depth", bars<CHART_COMBINE_STACK, 20>},
                              {"Negative stack with depth", mixedBars<CHART_COMBINE_STACK, 12>},
                              {"Lying bars with depth", lyingBars<10>},
                              {"Lying stack with depth and sums", lyingStack},
                              {"Bars at dates", barsByDate},
                              {"Log scale", logBars},
                              {"One row", onePoint}});

} // namespace
