// What holds for all kinds of layers: fills between lines, labels, axes, order, and data of every sort.

#include "engine/xy/data_labels.h"
#include "engine/xy/inter_line_layer.h"
#include "tests/engine/xy/layers.h"

#include <functional>
#include <limits>
#include <random>
#include <string>

namespace {

using namespace layers;
using pictures::at;
using pictures::boundsOf;

TEST(InterLineLayer, CutsExactlyWhereTheLinesCross) {
    const std::vector<QPointF> rising = {{0, 0}, {10, 10}}, falling = {{0, 10}, {5, 5}, {10, 0}},
                               level = {{-5, 4}, {20, 4}},
                               broken = {{0, 2}, {4, 2}, {NAN, NAN}, {6, 2}, {8, 2}},
                               step = {{0, 0}, {5, 0}, {5, 8}, {10, 8}};
    const struct {
        const char* what;
        std::vector<QPointF> first, second;
        std::vector<chartdraw::BetweenPiece> pieces;
    } rows[] = {
        {"a crossing between points",
         rising,
         level,
         {{true, {{0, 0}, {4, 4}, {4, 4}, {0, 4}}}, {false, {{4, 4}, {10, 10}, {10, 4}, {4, 4}}}}},
        {"at a point",
         rising,
         falling,
         {{true, {{0, 0}, {5, 5}, {5, 5}, {0, 10}}}, {false, {{5, 5}, {10, 10}, {10, 0}, {5, 5}}}}},
        {"gaps",
         broken,
         level,
         {{true, {{0, 2}, {4, 2}, {4, 4}, {0, 4}}}, {true, {{6, 2}, {8, 2}, {8, 4}, {6, 4}}}}},
        {"a step",
         step,
         level,
         {{true, {{0, 0}, {5, 0}, {5, 4}, {0, 4}}}, {false, {{5, 8}, {10, 8}, {10, 4}, {5, 4}}}}},
        {"the same line", rising, rising, {}},
        {"side by side", {{0, 0}, {1, 1}}, {{2, 0}, {3, 1}}, {}},
        {"nothing", {}, level, {}},
        {"a point", {{3, 3}}, level, {}},
    };
    for (const auto& row : rows) {
        const auto pieces = chartdraw::piecesBetween(row.first, row.second, true);
        ASSERT_EQ(pieces.size(), row.pieces.size()) << row.what;
        for (std::size_t i = 0; i < pieces.size(); ++i) {
            EXPECT_EQ(pieces[i].firstAbove, row.pieces[i].firstAbove) << row.what << i;
            EXPECT_EQ(pieces[i].outline, row.pieces[i].outline) << row.what << i;
        }
    }
}

TEST(InterLineLayer, FillsBetweenALineAndAMark) {
    for (const bool reversed : {false, true}) {
        Chart chart;
        LineLayer* layer = line(chart, {0, 100}, kNone);
        Mark* mark = CAxis_addMark(CXYChart_yAxis(chart.xy), 50, kNone, nullptr, nullptr, 8);
        ASSERT_NE(CXYChart_addInterLineLayer(chart.xy, CLineLayer_getLine(layer, 0), CMark_getLine(mark),
                                             kRed, kBlue),
                  nullptr);
        CAxis_setReverse(CXYChart_yAxis(chart.xy), reversed);
        const QImage image = chart.picture();
        const auto pixel = [&](int x, int y) { return at(image, x, reversed ? 260 - y : y); };
        EXPECT_EQ(pixel(340, 120), static_cast<unsigned>(kRed)); // the line is at 97: between it and 50
        EXPECT_EQ(pixel(60, 140), static_cast<unsigned>(kBlue));
        EXPECT_EQ(pixel(340, 140), kWhite);
        EXPECT_EQ(pixel(60, 120), kWhite);
    }
}

TEST(InterLineLayer, RefusesLinesThatAreNone) {
    Chart chart, other;
    Line* own = CLineLayer_getLine(line(chart, {1, 2}), 0);
    EXPECT_EQ(CLineLayer_getLine(line(chart, {1, 2}), 1), nullptr);
    Line* plain = CBaseChart_addLine(chart.base, 0, 0, 10, 10, 0, 1);
    Line* upright = CMark_getLine(CAxis_addMark(CXYChart_xAxis(chart.xy), 1, 0, nullptr, nullptr, 8));
    for (Line* line : {plain, upright, CLineLayer_getLine(layers::line(other, {1, 2}), 0), (Line*)nullptr}) {
        EXPECT_EQ(CXYChart_addInterLineLayer(chart.xy, own, line, 0, 0), nullptr);
        EXPECT_EQ(CXYChart_addInterLineLayer(chart.xy, line, own, 0, 0), nullptr);
    }
    CBaseChart_destroy(chart.base);
    CBaseChart_destroy(other.base);
}

void showLabels(Layer* layer, const char* format = nullptr) {
    CLayer_setDataLabelStyle(layer, nullptr, 8, 0x00ffff, 0);
    CLayer_setDataLabelFormat(layer, format);
}

/// Where the text of labels is, its smoothed edges included: all pixels that are neither of the colours.
QRect textOf(const QImage& image, std::initializer_list<unsigned> others) {
    QRect bounds;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            if (std::find(others.begin(), others.end(), at(image, x, y)) == others.end())
                bounds |= QRect(x, y, 1, 1);
    }
    return bounds;
}

TEST(DataLabels, StandWhereTheyRead) {
    const struct {
        const char* what;
        int combine;
        std::vector<double> values;
        int fromRow, toRow; // of the picture, which hold the text
    } rows[] = {
        {"above", CHART_COMBINE_SIDE, {20}, 70, 89},
        {"below", CHART_COMBINE_SIDE, {-20}, 171, 190},
        {"inside", CHART_COMBINE_STACK, {40}, 60, 120},
        {"no room above: inside", CHART_COMBINE_SIDE, {50}, 31, 60},
        {"no room below: inside", CHART_COMBINE_SIDE, {-50}, 200, 229},
    };
    for (const auto& row : rows) {
        Chart chart(-50, 50);
        showLabels(bars(chart, row.combine, {{row.values[0], kGap, kGap, kGap, kGap, kGap}}));
        const QRect text = textOf(chart.picture(), {kWhite, kRed});
        ASSERT_FALSE(text.isEmpty()) << row.what;
        EXPECT_GE(text.top(), row.fromRow) << row.what;
        EXPECT_LE(text.bottom(), row.toRow) << row.what;
        EXPECT_NEAR(text.center().x(), 75, 3) << row.what;
    }
}

TEST(DataLabels, SumsStandBeyondTheStackAndValuesWithin) {
    Chart chart;
    Layer* layer = bars(chart, CHART_COMBINE_STACK, {{30, kGap, kGap}, {30, kGap, kGap}});
    showLabels(layer, " ");
    CLayer_setAggregateLabelStyle(layer, nullptr, 8, 0, 0);
    CLayer_setAggregateLabelFormat(layer, "|||{value}|||");
    const QRect text = textOf(chart.picture(), {kWhite, kRed, kGreen});
    EXPECT_LT(text.bottom(), 110);
    EXPECT_GT(text.top(), 80);
}

TEST(DataLabels, FieldsTellRowNameAndValues) {
    const auto inkOf = [](const char* format) {
        Chart chart;
        Layer* layer = bars(chart, CHART_COMBINE_PERCENTAGE, {{10, 10, 10}, {30, 30, 30}});
        CDataSet_setDataName(CLayer_getDataSet(layer, 0), "North");
        CDataSet_setDataName(CLayer_getDataSet(layer, 1), "North");
        showLabels(layer, format);
        return chart.picture();
    };
    const struct {
        const char* format;
        const char* same; // a text that looks alike in the first row's lower bar
    } rows[] = {{"{value}", "10"},     {"{dataSetName}", "North"}, {"{percent}", "25"},
                {"{xLabel}", "0"},     {"{x|2}", "0.00"},          {"{value|2}/{percent|1}", "10.00/25.0"},
                {"{other}", "{other}"}};
    const QRect lower(55, 185, 90, 40); // rows 180 to 229, the first of three rows of 100 pixels
    for (const auto& row : rows)
        EXPECT_EQ(inkOf(row.format).copy(lower), inkOf(row.same).copy(lower)) << row.format;
}

TEST(DataLabels, KeepInsideThePlotAndOffOneAnother) {
    chartdraw::LabelRoom room(QSize(100, 50));
    EXPECT_TRUE(room.isFree(QRectF(-500, 0, 2000, 50)));
    room.take(QRectF(10, 10, 20, 10));
    const struct {
        QRectF box;
        bool free;
    } boxes[] = {{QRectF(10, 10, 20, 10), false}, {QRectF(29, 19, 5, 5), false},
                 {QRectF(30, 10, 5, 5), true},    {QRectF(10, 20, 20, 5), true},
                 {QRectF(0, 0, 10, 50), true},    {QRectF(0, 0, 100, 50), false},
                 {QRectF(90, 40, 500, 500), true}};
    for (const auto& row : boxes)
        EXPECT_EQ(room.isFree(row.box), row.free) << row.box.x() << ", " << row.box.y();
    Chart chart;
    std::vector<double> data;
    for (int i = 0; i < 200; ++i)
        data.push_back(i % 100);
    showLabels(LineLayer2Layer(line(chart, data, kNone)), "{value|3}");
    showLabels(LineLayer2Layer(line(chart, data, kNone)), "{value|3}");
    const QRect text = textOf(chart.picture(), {kWhite});
    EXPECT_TRUE(QRect(51, 31, 299, 199).contains(text)) << text;
}

TEST(Layer, LaterOnesLieOverEarlierOnesAndEachHasItsAxis) {
    Chart chart;
    const double data[] = {50, 50, 50};
    CXYChart_addBarLayer(chart.xy, data, 3, kRed, nullptr, 0);
    BarLayer* second = CXYChart_addBarLayer(chart.xy, data, 3, kBlue, nullptr, 0);
    Axis* axis = CXYChart_yAxis2(chart.xy);
    CAxis_setLinearScale(axis, 0, 200, 0, 0);
    CLayer_setUseYAxis2(BarLayer2Layer(second), true);
    const QImage image = chart.picture();
    EXPECT_EQ(at(image, 100, 150), static_cast<unsigned>(kRed)); // 50 of 100 begins at row 130
    EXPECT_EQ(at(image, 100, 179), static_cast<unsigned>(kRed));
    EXPECT_EQ(at(image, 100, 180), static_cast<unsigned>(kBlue)); // 50 of 200
}

TEST(Layer, ColoursOfTheirOwnComeFromTheSeriesPalette) {
    Chart chart;
    const double data[] = {50, 50};
    BarLayer* layer = CXYChart_addBarLayer(chart.xy, data, 2, -1, nullptr, 0);
    CLayer_addDataSet(BarLayer2Layer(layer), data, 2, kRed, nullptr); // takes none
    CLayer_addDataSet(BarLayer2Layer(layer), data, 2, -1, nullptr);
    Chart same;
    BarLayer* given = CXYChart_addBarLayer(same.xy, data, 2, CHART_DATA_COLOR, nullptr, 0);
    CLayer_addDataSet(BarLayer2Layer(given), data, 2, kRed, nullptr);
    CLayer_addDataSet(BarLayer2Layer(given), data, 2, CHART_DATA_COLOR + 1, nullptr);
    EXPECT_EQ(chart.picture(), same.picture());
}

using Adder = std::function<Layer*(XYChart*, const double*, int, const double*, int)>;

const std::pair<const char*, Adder> kKinds[] = {
    {"bars", [](XYChart* c, auto* a, int n, auto*,
                int) { return BarLayer2Layer(CXYChart_addBarLayer(c, a, n, -1, "n", 0)); }},
    {"line", [](XYChart* c, auto* a, int n, auto*,
                int) { return LineLayer2Layer(CXYChart_addLineLayer(c, a, n, -1, "n", 0)); }},
    {"spline",
     [](XYChart* c, auto* a, int n, auto*, int) {
         return LineLayer2Layer(SplineLayer2LineLayer(CXYChart_addSplineLayer(c, a, n, -1, "n")));
     }},
    {"step",
     [](XYChart* c, auto* a, int n, auto*, int) {
         return LineLayer2Layer(StepLineLayer2LineLayer(CXYChart_addStepLineLayer(c, a, n, -1, "n")));
     }},
    {"area",
     [](XYChart* c, auto* a, int n, auto*, int) {
         Layer* layer = AreaLayer2Layer(CXYChart_addAreaLayer2(c, CHART_COMBINE_STACK, 0));
         CLayer_addDataSet(layer, a, n, -1, "n");
         return layer;
     }},
    {"scatter",
     [](XYChart* c, auto* a, int n, auto* b, int m) {
         return LineLayer2Layer(
             CXYChart_addScatterLayer(c, b, m, a, n, "n", CHART_DIAMOND_SYMBOL, 9, -1, -1));
     }},
    {"box",
     [](XYChart* c, auto* a, int n, auto* b, int m) {
         return BaseBoxLayer2Layer(BoxWhiskerLayer2BaseBoxLayer(
             CXYChart_addBoxWhiskerLayer(c, a, n, b, m, a, n, b, m, a, n, -1, -1, -1)));
     }},
    {"price bars",
     [](XYChart* c, auto* a, int n, auto* b, int m) {
         return BaseBoxLayer2Layer(
             HLOCLayer2BaseBoxLayer(CXYChart_addHLOCLayer(c, a, n, b, m, b, m, a, n, -1)));
     }},
    {"candles",
     [](XYChart* c, auto* a, int n, auto* b, int m) {
         return BaseBoxLayer2Layer(CandleStickLayer2BaseBoxLayer(
             CXYChart_addCandleStickLayer(c, a, n, b, m, b, m, a, n, -1, -1, -1)));
     }},
};

TEST(Layer, EveryKindDrawsOneRowAndNothingForNoneOrGaps) {
    const double none[] = {kGap, NAN, INFINITY, -INFINITY}, one[] = {50}, other[] = {20};
    for (const auto& [what, add] : kKinds) {
        for (const bool swapped : {false, true}) {
            for (const int count : {0, 1, 4}) {
                Chart chart;
                CXYChart_swapXY(chart.xy, swapped);
                add(chart.xy, count == 1 ? one : none, count, count == 1 ? other : none, count);
                EXPECT_EQ(pictures::inked(chart.picture(), kWhite) > 0, count == 1)
                    << what << ", " << count << ", " << swapped;
            }
        }
    }
}

TEST(Layer, NullHandlesAreIgnored) {
    const double one[] = {1};
    for (const auto& [what, add] : kKinds)
        EXPECT_EQ(add(nullptr, one, 1, one, 1), nullptr) << what;
    CLayer_set3D(nullptr, 1, 1);
    CLayer_setXData(nullptr, one, 1);
    CBarLayer_setBarShape(nullptr, 1, 1, 1);
    EXPECT_EQ(CLayer_getDataSet(nullptr, 0), nullptr);
    EXPECT_EQ(CLayer_setDataLabelStyle(nullptr, nullptr, 8, 0, 0), nullptr);
}

/// Charts of anything at all, drawn: what must hold is that nothing goes wrong.
TEST(Layer, RandomChartsAreDrawn) {
    std::mt19937 random(11);
    const auto pick = [&](int from, int to) { return std::uniform_int_distribution<int>(from, to)(random); };
    const double odd[] = {0,   -1,       1e-300,    1e300, -1e300, kGap, -kGap,
                          NAN, INFINITY, -INFINITY, 6e10,  0.5,    1e8,  3};
    const auto number = [&] {
        return pick(0, 2) == 0 ? odd[pick(0, static_cast<int>(std::size(odd)) - 1)] : pick(-100, 100) / 3.0;
    };
    const auto numbers = [&] {
        std::vector<double> values(static_cast<std::size_t>(pick(0, 4) == 0 ? pick(0, 3000) : pick(0, 12)));
        std::generate(values.begin(), values.end(), number);
        return values;
    };
    const int extremes[] = {-1,
                            0,
                            1,
                            2,
                            3,
                            7,
                            10,
                            40,
                            -5,
                            100000,
                            std::numeric_limits<int>::max(),
                            std::numeric_limits<int>::min()};
    const auto whole = [&] { return extremes[pick(0, static_cast<int>(std::size(extremes)) - 1)]; };
    for (int round = 0; round < 250; ++round) {
        Chart chart;
        if (pick(0, 1) == 0)
            CAxis_setLinearScale3(CXYChart_yAxis(chart.xy), nullptr);
        if (pick(0, 5) == 0) {
            CAxis_setLogScale3(pick(0, 1) == 0 ? CXYChart_yAxis(chart.xy) : CXYChart_xAxis(chart.xy),
                               nullptr);
        }
        CXYChart_swapXY(chart.xy, pick(0, 2) == 0);
        CAxis_setReverse(CXYChart_xAxis(chart.xy), pick(0, 3) == 0);
        CAxis_setReverse(CXYChart_yAxis(chart.xy), pick(0, 3) == 0);
        LineLayer* first = line(chart, numbers(), -1, pick(0, 4));
        for (int layers = pick(1, 4); layers > 0; --layers) {
            const auto a = numbers(), b = numbers(), x = numbers();
            Layer* layer = kKinds[pick(0, static_cast<int>(std::size(kKinds)) - 1)].second(
                chart.xy, a.data(), size(a), b.data(), size(b));
            if (pick(0, 1) == 0)
                CLayer_addDataSet(layer, b.data(), size(b), whole(), "more");
            if (pick(0, 2) == 0)
                CLayer_setXData(layer, x.data(), size(x));
            if (pick(0, 2) == 0)
                CLayer_set3D(layer, std::min(whole(), 60), std::min(whole(), 60));
            CLayer_setBorderColor(layer, whole(), std::min(whole(), 12));
            CLayer_setLineWidth(layer, pick(0, 9));
            if (pick(0, 1) == 0) {
                showLabels(layer,
                           pick(0, 1) == 0 ? nullptr : "{xLabel} {value} {percent} {high} {dataSetName}");
                CLayer_setAggregateLabelStyle(layer, nullptr, 8, 0, number());
            }
            CDataSet_setDataSymbol(CLayer_getDataSet(layer, 0), pick(-1, 11), std::min(whole(), 300), whole(),
                                   whole(), std::min(whole(), 50));
            if (pick(0, 3) == 0) {
                CXYChart_addInterLineLayer(
                    chart.xy, CLineLayer_getLine(first, 0),
                    CMark_getLine(CAxis_addMark(CXYChart_yAxis(chart.xy), number(), 0, "m", nullptr, 8)),
                    kRed, kBlue);
            }
        }
        BarLayer* bar = CXYChart_addBarLayer2(chart.xy, pick(-1, 5), pick(0, 20));
        const auto a = numbers(), b = numbers();
        CLayer_addDataSet(BarLayer2Layer(bar), a.data(), size(a), -1, nullptr);
        CLayer_addDataSet(BarLayer2Layer(bar), b.data(), size(b), -1, nullptr);
        CBarLayer_setBarShape(bar, pick(-1, 11), whole(), whole());
        CBarLayer_setBarGap(bar, number(), number());
        if (pick(0, 1) == 0)
            CBarLayer_setOverlapRatio(bar, number(), pick(0, 1) == 0);
        CXYChart_setTrimData(chart.xy, pick(0, 3) == 0 ? whole() : 0, pick(0, 3) == 0 ? whole() : 0x7fffffff);
        CBaseChart_addLegend(chart.base, 5, 5, false, nullptr, 8);
        EXPECT_FALSE(chart.picture().isNull()) << round;
    }
}

} // namespace
