// Prices, boxes and what stands beside them.

#include "tools/gallery/layer_chart.h"

#include <cmath>
#include <utility>
#include <vector>

namespace {

using namespace gallery;

/// Prices that walk: high, low, open, close.
struct Prices {
    RanTable* table;
    const double* column[4];
    int rows;

    explicit Prices(int count) : table(CRanTable_create(9, 5, count)), column(), rows(count) {
        CRanTable_setHLOCCols(table, 0, 50, -4, 4, 0, 1E+308);
        for (int i = 0; i < 4; ++i)
            CRanTable_getCol(table, i, &column[i], &rows);
    }
    ~Prices() { CRanTable_destroy(table); }
    Prices(const Prices&) = delete;
    Prices& operator=(const Prices&) = delete;
};

template <int rows, int depth = 0, int edge = CHART_LINE_COLOR>
BaseChart* candles() {
    LayerChart chart(460, 260, depth);
    const Prices prices(rows);
    CandleStickLayer* layer = CXYChart_addCandleStickLayer(chart.xy, prices.column[0], rows, prices.column[1],
                                                           rows, prices.column[2], rows, prices.column[3],
                                                           rows, 0x33aa55, 0xcc3333, edge);
    BaseBoxLayer* box = CandleStickLayer2BaseBoxLayer(layer);
    CBaseBoxLayer_setDataGap(box, 0.4);
    CLayer_set3D(BaseBoxLayer2Layer(box), depth, 0);
    CDataSet_setDataName(CLayer_getDataSet(BaseBoxLayer2Layer(box), 0), "Candles");
    return chart.base;
}

BaseChart* priceBars() {
    LayerChart chart(460);
    const Prices prices(50);
    HLOCLayer* layer = CXYChart_addHLOCLayer(chart.xy, prices.column[0], 50, prices.column[1], 50,
                                             prices.column[2], 50, prices.column[3], 50, -1);
    CHLOCLayer_setColorMethod(layer, CHART_UP_DOWN, 0x008000, 0xff0000, -1.7E+308);
    CBaseBoxLayer_setDataGap(HLOCLayer2BaseBoxLayer(layer), 0);
    CDataSet_setDataName(CLayer_getDataSet(BaseBoxLayer2Layer(HLOCLayer2BaseBoxLayer(layer)), 0), "Prices");
    return chart.base;
}

BaseChart* priceLabels() {
    LayerChart chart(460);
    const Prices prices(8);
    HLOCLayer* layer = CXYChart_addHLOCLayer(chart.xy, prices.column[0], 8, prices.column[1], 8,
                                             prices.column[2], 8, prices.column[3], 8, -1);
    Layer* base = BaseBoxLayer2Layer(HLOCLayer2BaseBoxLayer(layer));
    CLayer_setLineWidth(base, 3);
    label(base, "{open|1} to {close|1}");
    return chart.base;
}

template <int depth = 0>
BaseChart* whiskers() {
    LayerChart chart(360, 260, depth);
    const double top[] = {40, 45, 55, CHART_NO_VALUE, 61, 50}, bottom[] = {25, 30, 38, 33, 40, 28};
    const double most[] = {52, 60, 66, 58, 72, CHART_NO_VALUE}, least[] = {12, 20, 22, 21, 30, 15};
    const double middle[] = {33, 36, 49, 44, 52, 41};
    BoxWhiskerLayer* box = CXYChart_addBoxWhiskerLayer(chart.xy, top, kRows, bottom, kRows, most, kRows,
                                                       least, kRows, middle, kRows, 0x9999ff, 0x0000cc, -1);
    Layer* layer = BaseBoxLayer2Layer(BoxWhiskerLayer2BaseBoxLayer(box));
    CLayer_set3D(layer, depth, 0);
    CDataSet_setDataName(CLayer_getDataSet(layer, 0), "Spread");
    label(layer, "{med}");
    return chart.base;
}

BaseChart* gantt() {
    LayerChart chart(460);
    const double from[] = {1, 4, 6, 9, 13}, to[] = {5, 8, 12, 14, 18};
    const int colours[] = {0x4479bb, 0xd46a10, 0x63b474, 0xb95189, 0x8c81f7};
    const char* const names[] = {"Plan", "Dig", "Build", "Paint", "Move"};
    CXYChart_swapXY(chart.xy, true);
    CAxis_setReverse(CXYChart_xAxis(chart.xy), true);
    BoxWhiskerLayer* box = CXYChart_addBoxWhiskerLayer(chart.xy, to, 5, from, 5, nullptr, 0, nullptr, 0,
                                                       nullptr, 0, -1, CHART_LINE_COLOR, -1);
    CBoxWhiskerLayer_setBoxColors(box, colours, 5, names, 5);
    Layer* layer = BaseBoxLayer2Layer(BoxWhiskerLayer2BaseBoxLayer(box));
    CLayer_setBorderColor(layer, kClear, CChart_softLighting(CHART_TOP, 0));
    label(layer, "{bottom} to {top}");
    return chart.base;
}

BaseChart* finance() {
    LayerChart chart(560, 300);
    const int rows = 100;
    const Prices prices(rows);
    Axis* volumes = CXYChart_yAxis2(chart.xy);
    CAxis_setMargin(volumes, 160, 0);
    CAxis_setLabelStyle(volumes, nullptr, points(8), -1, 0);
    std::vector<double> up(rows), down(rows);
    for (int i = 0; i < rows; ++i) {
        const bool rises = prices.column[3][i] >= prices.column[2][i];
        (rises ? up : down)[static_cast<std::size_t>(i)] = 20 + 15 * std::sin(i * 0.7) + i % 7;
    }
    for (const auto& [data, colour] : {std::pair(&up, 0x99cc99), std::pair(&down, 0xdd9999)}) {
        BarLayer* bar = CXYChart_addBarLayer(chart.xy, data->data(), rows, colour, nullptr, 0);
        CLayer_setBorderColor(BarLayer2Layer(bar), kClear, 0);
        CLayer_setUseYAxis2(BarLayer2Layer(bar), true);
    }
    CXYChart_addCandleStickLayer(chart.xy, prices.column[0], rows, prices.column[1], rows, prices.column[2],
                                 rows, prices.column[3], rows, 0x33aa55, 0xcc3333, CHART_LINE_COLOR);
    ArrayMath* average = CArrayMath_create(prices.column[3], rows);
    CArrayMath_movAvg(average, 10);
    const double* data = nullptr;
    int count = 0;
    CArrayMath_result(average, &data, &count);
    CXYChart_addLineLayer(chart.xy, data, count, 0x663399, "SMA (10)", 0);
    CArrayMath_destroy(average);
    return chart.base;
}

const Family kFamily("prices", {{"Candles", candles<30>},
                                {"Many candles", candles<110>},
                                {"Candles with depth", candles<12, 10>},
                                {"Wicks where the edge is transparent", candles<30, 0, kClear>},
                                {"Price bars by the close before", priceBars},
                                {"Thick price bars, labelled", priceLabels},
                                {"Boxes and whiskers", whiskers<>},
                                {"Boxes with depth", whiskers<12>},
                                {"Times of tasks", gantt},
                                {"Prices, average and volumes", finance}});

} // namespace
