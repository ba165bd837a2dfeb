// The layers of XY charts: every kind with the looks and the data that it can have.

#include "tools/gallery/gallery.h"

#include <cmath>
#include <cstdio>
#include <iterator>
#include <vector>

namespace {

using gallery::points;

const double kA[] = {25, 18, 31, 22, 38, 29};
const double kB[] = {12, 27, 19, 33, 24, 16};
const double kC[] = {8, 15, 23, 11, 17, 26};
const double kMixed[] = {25, -18, 31, CHART_NO_VALUE, -12, 0};
const double kMixed2[] = {12, 14, -19, 21, -24, 9};
constexpr int kRows = 6;
constexpr int kClear = CHART_TRANSPARENT;

/// A chart with a plot area and a legend above it.
struct Chart {
    XYChart* xy;
    BaseChart* base;

    explicit Chart(int width = 360, int height = 260, int depth = 0)
        : xy(CXYChart_create(width, height, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0)),
          base(XYChart2BaseChart(xy)) {
        CXYChart_setPlotArea(xy, 50, 35 + depth, width - 75 - depth, height - 70 - depth, -1, -1, -1, -1, -1);
        LegendBox* legend = CBaseChart_addLegend(base, 50, 8, false, nullptr, points(8));
        CBox_setBackground(TextBox2Box(LegendBox2TextBox(legend)), kClear, kClear, 0);
        for (Axis* axis : {CXYChart_xAxis(xy), CXYChart_yAxis(xy)})
            CAxis_setLabelStyle(axis, nullptr, points(8), -1, 0);
    }
};

Layer* threeSets(Layer* layer) {
    CLayer_addDataSet(layer, kA, kRows, -1, "North");
    CLayer_addDataSet(layer, kB, kRows, -1, "South");
    CLayer_addDataSet(layer, kC, kRows, -1, "West");
    return layer;
}

Layer* twoMixedSets(Layer* layer) {
    CLayer_addDataSet(layer, kMixed, kRows, -1, "Gap in row 3");
    CLayer_addDataSet(layer, kMixed2, kRows, -1, "Other");
    return layer;
}

TextBox* label(Layer* layer, const char* format = nullptr) {
    TextBox* style = CLayer_setDataLabelStyle(layer, nullptr, points(8), -1, 0);
    CLayer_setDataLabelFormat(layer, format);
    return style;
}

template <int combine, int depth = 0>
BaseChart* bars() {
    Chart chart(360, 260, depth);
    Layer* layer = threeSets(BarLayer2Layer(CXYChart_addBarLayer2(chart.xy, combine, depth)));
    label(layer, combine == CHART_COMBINE_PERCENTAGE ? "{percent|0}%" : nullptr);
    return chart.base;
}

template <int combine, int depth = 0>
BaseChart* mixedBars() {
    Chart chart(360, 260, depth);
    label(twoMixedSets(BarLayer2Layer(CXYChart_addBarLayer2(chart.xy, combine, depth))));
    return chart.base;
}

BaseChart* stackedSums() {
    Chart chart;
    Layer* layer = threeSets(BarLayer2Layer(CXYChart_addBarLayer2(chart.xy, CHART_COMBINE_STACK, 0)));
    label(layer);
    CLayer_setAggregateLabelStyle(layer, "bold", points(8), -1, 0);
    return chart.base;
}

BaseChart* sideSums() {
    Chart chart(480);
    Layer* layer = threeSets(BarLayer2Layer(CXYChart_addBarLayer2(chart.xy, CHART_COMBINE_SIDE, 0)));
    label(layer);
    TextBox* sums = CLayer_setAggregateLabelStyle(layer, "bold", points(8), -1, 0);
    CBox_setBackground(TextBox2Box(sums), 0xffffcc, 0x808080, 0);
    return chart.base;
}

template <int depth = 0>
BaseChart* lyingBars() {
    Chart chart(360, 260, depth);
    CXYChart_swapXY(chart.xy, true);
    label(twoMixedSets(BarLayer2Layer(CXYChart_addBarLayer2(chart.xy, CHART_COMBINE_SIDE, depth))));
    return chart.base;
}

BaseChart* lyingStack() {
    Chart chart(360, 260, 12);
    CXYChart_swapXY(chart.xy, true);
    Layer* layer = threeSets(BarLayer2Layer(CXYChart_addBarLayer2(chart.xy, CHART_COMBINE_STACK, 12)));
    label(layer);
    CLayer_setAggregateLabelStyle(layer, "bold", points(8), -1, 0);
    return chart.base;
}

template <bool firstOnTop>
BaseChart* overlap() {
    Chart chart;
    BarLayer* bar = CXYChart_addBarLayer2(chart.xy, CHART_COMBINE_SIDE, 0);
    CLayer_setBorderColor(threeSets(BarLayer2Layer(bar)), 0x404040, 0);
    CBarLayer_setOverlapRatio(bar, 0.5, firstOnTop);
    return chart.base;
}

BaseChart* gaps() {
    Chart chart;
    BarLayer* bar = CXYChart_addBarLayer2(chart.xy, CHART_COMBINE_SIDE, 0);
    threeSets(BarLayer2Layer(bar));
    CBarLayer_setBarGap(bar, 0.4, 0.3);
    return chart.base;
}

BaseChart* histogram() {
    Chart chart;
    const double data[] = {1, 3, 8, 15, 24, 31, 33, 28, 21, 13, 7, 2, 1};
    BarLayer* bar = CXYChart_addBarLayer(chart.xy, data, 13, -1, "No gap, with a border", 0);
    CBarLayer_setBarGap(bar, 0, 0);
    CLayer_setBorderColor(BarLayer2Layer(bar), 0x303030, 0);
    return chart.base;
}

template <int depth, bool lying = false>
BaseChart* shapes() {
    Chart chart(520, 260, depth);
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
    Chart chart;
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
    Chart chart;
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
    Chart chart;
    const double data[] = {3, 45, 700, 12, 5600, 90};
    CAxis_setLogScale3(CXYChart_yAxis(chart.xy), nullptr);
    label(BarLayer2Layer(CXYChart_addBarLayer(chart.xy, data, kRows, -1, "Log", 0)));
    return chart.base;
}

BaseChart* symbolLines() {
    Chart chart(560, 320);
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
    Chart chart(460);
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
    Chart chart;
    LineLayer* line = CXYChart_addLineLayer(chart.xy, kA, kRows, -1, "Labelled", 0);
    CDataSet_setDataSymbol(CLayer_getDataSet(LineLayer2Layer(line), 0), CHART_CIRCLE_SYMBOL, 9, -1, -1, 1);
    CLayer_setLineWidth(LineLayer2Layer(line), 2);
    TextBox* style = label(LineLayer2Layer(line), "{xLabel}: {value|1}");
    CBox_setBackground(TextBox2Box(style), 0xf0f4ff, 0x8899bb, 0);
    return chart.base;
}

BaseChart* crowdedLabels() {
    Chart chart;
    std::vector<double> data;
    for (int i = 0; i < 80; ++i)
        data.push_back(50 + 30 * std::sin(i * 0.17) + 6 * std::sin(i * 1.9));
    label(LineLayer2Layer(CXYChart_addLineLayer(chart.xy, data.data(), 80, -1, "80 labels", 0)), "{value|1}");
    label(LineLayer2Layer(CXYChart_addLineLayer(chart.xy, data.data() + 20, 60, -1, "60 more", 0)),
          "{value|1}");
    return chart.base;
}

BaseChart* edges() {
    Chart chart;
    const double data[] = {0, 100, 0, 50, 130, -30, 100, 100};
    LineLayer* line = CXYChart_addLineLayer(chart.xy, data, 8, -1, "Width 5 at and past the limits", 0);
    CLayer_setLineWidth(LineLayer2Layer(line), 5);
    CDataSet_setDataSymbol(CLayer_getDataSet(LineLayer2Layer(line), 0), CHART_CIRCLE_SYMBOL, 13, 0xffffff,
                           0x204060, 2);
    CAxis_setLinearScale(CXYChart_yAxis(chart.xy), 0, 100, 0, 0);
    return chart.base;
}

BaseChart* noise() {
    Chart chart;
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
    Chart chart;
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
    Chart chart;
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
    Chart chart(360, 260, depth);
    label(threeSets(AreaLayer2Layer(CXYChart_addAreaLayer2(chart.xy, combine, depth))),
          combine == CHART_COMBINE_PERCENTAGE ? "{percent|0}%" : nullptr);
    return chart.base;
}

BaseChart* areaGaps() {
    Chart chart;
    const double data[] = {10, 14, CHART_NO_VALUE, 12, CHART_NO_VALUE, 8, -9, -4, 6};
    Layer* layer = AreaLayer2Layer(CXYChart_addAreaLayer2(chart.xy, CHART_COMBINE_STACK, 0));
    CLayer_addDataSet(layer, data, 9, static_cast<int>(0x404479bbu), "Gaps, a lone point, negative");
    CLayer_setBorderColor(layer, 0x203050, 0);
    return chart.base;
}

BaseChart* between() {
    Chart chart(460);
    const double a[] = {10, 22, 18, 30, 20, 26, 15, 20}, b[] = {16, 15, 24, 20, 20, 30, 22, 12};
    LineLayer* first = CXYChart_addLineLayer(chart.xy, a, 8, 0x0000cc, "First", 0);
    SplineLayer* second = CXYChart_addSplineLayer(chart.xy, b, 8, 0xcc0000, "Second");
    CXYChart_addInterLineLayer(chart.xy, CLineLayer_getLine(first, 0),
                               CLineLayer_getLine(SplineLayer2LineLayer(second), 0),
                               static_cast<int>(0x800000ffu), static_cast<int>(0x80ff0000u));
    return chart.base;
}

BaseChart* thresholds() {
    Chart chart(460);
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

template <int rows, int depth = 0>
BaseChart* candles() {
    Chart chart(460, 260, depth);
    const Prices prices(rows);
    CandleStickLayer* layer = CXYChart_addCandleStickLayer(chart.xy, prices.column[0], rows, prices.column[1],
                                                           rows, prices.column[2], rows, prices.column[3],
                                                           rows, 0x33aa55, 0xcc3333, CHART_LINE_COLOR);
    BaseBoxLayer* box = CandleStickLayer2BaseBoxLayer(layer);
    CBaseBoxLayer_setDataGap(box, 0.4);
    CLayer_set3D(BaseBoxLayer2Layer(box), depth, 0);
    CDataSet_setDataName(CLayer_getDataSet(BaseBoxLayer2Layer(box), 0), "Candles");
    return chart.base;
}

BaseChart* priceBars() {
    Chart chart(460);
    const Prices prices(50);
    HLOCLayer* layer = CXYChart_addHLOCLayer(chart.xy, prices.column[0], 50, prices.column[1], 50,
                                             prices.column[2], 50, prices.column[3], 50, -1);
    CHLOCLayer_setColorMethod(layer, CHART_UP_DOWN, 0x008000, 0xff0000, -1.7E+308);
    CBaseBoxLayer_setDataGap(HLOCLayer2BaseBoxLayer(layer), 0);
    CDataSet_setDataName(CLayer_getDataSet(BaseBoxLayer2Layer(HLOCLayer2BaseBoxLayer(layer)), 0), "Prices");
    return chart.base;
}

BaseChart* priceLabels() {
    Chart chart(460);
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
    Chart chart(360, 260, depth);
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
    Chart chart(460);
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
    Chart chart(560, 300);
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

BaseChart* deepLines() {
    Chart chart(460, 260, 48);
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
    Chart chart(460, 260, 32);
    CLayer_set3D(BarLayer2Layer(CXYChart_addBarLayer(chart.xy, kA, kRows, -1, "Bars behind", 0)), 12, 8);
    Layer* areas = AreaLayer2Layer(CXYChart_addAreaLayer2(chart.xy, CHART_COMBINE_STACK, 12));
    CLayer_addDataSet(areas, kC, kRows, -1, "Area in front");
    CLayer_set3D(areas, 12, 8);
    return chart.base;
}

BaseChart* onePoint() {
    Chart chart;
    const double one[] = {20};
    CXYChart_addBarLayer(chart.xy, one, 1, -1, "One bar", 0);
    CDataSet_setDataSymbol(
        CLayer_getDataSet(LineLayer2Layer(CXYChart_addLineLayer(chart.xy, one, 1, 0x000000, "One point", 0)),
                          0),
        CHART_DIAMOND_SYMBOL, 11, 0xffffff, 0x000000, 1);
    return chart.base;
}

const gallery::Family kFamily("layers",
                              {{"Bars side by side, labelled", bars<CHART_COMBINE_SIDE>},
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
                               {"Symbols, filled and hollow", symbolLines},
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
                               {"Candles", candles<30>},
                               {"Many candles", candles<110>},
                               {"Candles with depth", candles<12, 10>},
                               {"Price bars by the close before", priceBars},
                               {"Thick price bars, labelled", priceLabels},
                               {"Boxes and whiskers", whiskers<>},
                               {"Boxes with depth", whiskers<12>},
                               {"Times of tasks", gantt},
                               {"Prices, average and volumes", finance},
                               {"Lines with depth and gaps between", deepLines},
                               {"Bars behind an area", deepMix},
                               {"One row", onePoint}});

} // namespace
