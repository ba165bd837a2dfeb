// What holds for all kinds of layers: fills between lines, labels, axes, order, and data of every sort.

#include "engine/xy/data_labels.h"
#include "engine/xy/inter_line_layer.h"
#include "tests/engine/xy/layers.h"
#include <string>

namespace {
using namespace layers;

TEST(InterLineLayer, CutsExactlyWhereTheLinesCross) {
    const std::vector<QPointF> rising = {{0, 0}, {10, 10}}, falling = {{0, 10}, {5, 5}, {10, 0}},
                               level = {{-5, 4}, {20, 4}}, broken = {{0, 2}, {4, 2}, {NAN, NAN}, {6, 2}, {8, 2}},
                               step = {{0, 0}, {5, 0}, {5, 8}, {10, 8}};
    using Points = std::vector<QPointF>;
    // what is crossed by what, and the pieces: whether the first is above, and their outlines
    const std::tuple<const char*, Points, Points, std::vector<chartdraw::BetweenPiece>> rows[] = {
        {"between points",
         rising,
         level,
         {{true, {{0, 0}, {4, 4}, {4, 4}, {0, 4}}}, {false, {{4, 4}, {10, 10}, {10, 4}, {4, 4}}}}},
        {"at a point",
         rising,
         falling,
         {{true, {{0, 0}, {5, 5}, {5, 5}, {0, 10}}}, {false, {{5, 5}, {10, 10}, {10, 0}, {5, 5}}}}},
        {"gaps", broken, level, {{true, {{0, 2}, {4, 2}, {4, 4}, {0, 4}}}, {true, {{6, 2}, {8, 2}, {8, 4}, {6, 4}}}}},
        {"a step",
         step,
         level,
         {{true, {{0, 0}, {5, 0}, {5, 4}, {0, 4}}}, {false, {{5, 8}, {10, 8}, {10, 4}, {5, 4}}}}},
        {"the same line", rising, rising, {}},
        {"side by side", {{0, 0}, {1, 1}}, {{2, 0}, {3, 1}}, {}},
        {"nothing", {}, level, {}},
        {"a point", {{3, 3}}, level, {}},
    };
    for (const auto& [what, first, second, expected] : rows) {
        const auto pieces = chartdraw::piecesBetween(first, second, true);
        ASSERT_EQ(pieces.size(), expected.size()) << what;
        for (std::size_t i = 0; i < pieces.size(); ++i) {
            EXPECT_EQ(pieces[i].firstAbove, expected[i].firstAbove) << what << i;
            EXPECT_EQ(pieces[i].outline, expected[i].outline) << what << i;
        }
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
QRect textOf(const QImage& image, std::initializer_list<int> others) {
    QRect bounds;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            if (std::find(others.begin(), others.end(), at(image, x, y)) == others.end()) bounds |= QRect(x, y, 1, 1);
    }
    return bounds;
}

TEST(DataLabels, StandWhereTheyRead) {
    // of the picture, which hold the text
    const std::tuple<const char*, int, std::vector<double>, int, int> rows[] = {
        {"above", CHART_COMBINE_SIDE, {20}, 70, 89},
        {"below", CHART_COMBINE_SIDE, {-20}, 171, 190},
        {"inside", CHART_COMBINE_STACK, {40}, 60, 120},
        {"no room above: inside", CHART_COMBINE_SIDE, {50}, 31, 60},
        {"no room below: inside", CHART_COMBINE_SIDE, {-50}, 200, 229},
    };
    for (const auto& [what, combine, values, fromRow, toRow] : rows) {
        Chart chart(-50, 50);
        showLabels(bars(chart, combine, {{values[0], kGap, kGap, kGap, kGap, kGap}}));
        const QRect text = textOf(chart.picture(), {kWhite, kRed});
        ASSERT_FALSE(text.isEmpty()) << what;
        EXPECT_GE(text.top(), fromRow) << what;
        EXPECT_LE(text.bottom(), toRow) << what;
        EXPECT_NEAR(text.center().x(), 75, 3) << what;
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

TEST(DataLabels, OfStackedAreasStandInTheirOwnBand) {
    Chart chart;
    Layer* layer = AreaLayer2Layer(CXYChart_addAreaLayer2(chart.xy, CHART_COMBINE_STACK, 0));
    const double data[] = {30, 30, 30};
    for (const int colour : {kRed, kGreen}) CLayer_addDataSet(layer, data, 3, colour, nullptr);
    showLabels(layer);
    EXPECT_GT(textOf(chart.picture(), {kWhite, kRed, kGreen}).top(), 108); // 60 is row 110
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
    for (const auto& row : rows) EXPECT_EQ(inkOf(row.format).copy(lower), inkOf(row.same).copy(lower)) << row.format;
}

TEST(DataLabels, KeepInsideThePlotAndOffOneAnother) {
    chartdraw::TextRoom room(QSize(100, 50));
    EXPECT_TRUE(room.isFree(QRectF(-500, 0, 2000, 50)));
    room.take(QRectF(10, 10, 20, 10));
    const std::tuple<QRectF, bool> boxes[] = {{QRectF(10, 10, 20, 10), false}, {QRectF(29, 19, 5, 5), false},
                                              {QRectF(30, 10, 5, 5), true},    {QRectF(10, 20, 20, 5), true},
                                              {QRectF(0, 0, 10, 50), true},    {QRectF(0, 0, 100, 50), false},
                                              {QRectF(90, 40, 500, 500), true}};
    for (const auto& [box, free] : boxes) EXPECT_EQ(room.isFree(box), free) << box.x() << ", " << box.y();
    Chart chart;
    std::vector<double> data;
    for (int i = 0; i < 200; ++i) data.push_back(i % 100);
    showLabels(LineLayer2Layer(line(chart, data, kNone)), "{value|3}");
    showLabels(LineLayer2Layer(line(chart, data, kNone)), "{value|3}");
    const QRect text = textOf(chart.picture(), {kWhite});
    EXPECT_TRUE(QRect(51, 31, 299, 199).contains(text)) << text;
}

/// The picture with a blue ground under the labels of that style.
QImage grounded(const Chart& chart, TextBox* style) {
    CBox_setBackground(TextBox2Box(style), kBlue, kNone, 0);
    return chart.picture();
}
QImage labelled(const Chart& chart, Layer* layer) {
    return grounded(chart, CLayer_setDataLabelStyle(layer, nullptr, 8, 0, 0));
}
Layer* marked(Chart& chart, const std::vector<double>& data, int symbol) {
    Layer* layer = LineLayer2Layer(line(chart, data, kGreen));
    CDataSet_setDataSymbol(CLayer_getDataSet(layer, 0), CHART_SQUARE_SYMBOL, symbol, kRed, kRed, 1);
    return layer;
}
/// The ground of the labels within columns of the picture.
QRect ground(const QImage& image, int left = 0, int right = 400) {
    return boundsOf(image.copy(left, 0, right - left, 300), kBlue);
}
constexpr int rowOf(int value) { return 230 - 2 * value; }

TEST(DataLabels, KeepAPixelFromABarAndFromASymbol) {
    Chart withBar, withLine;
    EXPECT_EQ(rowOf(40) - ground(labelled(withBar, bars(withBar, CHART_COMBINE_SIDE, {{40}}))).bottom() - 1, 1);
    const QImage image = labelled(withLine, marked(withLine, {40, 40}, 11));
    EXPECT_EQ(rowOf(40) - 5 - ground(image).bottom() - 1, 1); // five pixels of the symbol stand above its middle
}

TEST(DataLabels, StandAwayFromTheirLineAndOnNoSymbol) {
    Chart high, low, both;
    EXPECT_GT(ground(labelled(high, marked(high, {98, 98, 98}, 9))).top(), rowOf(98) + 4);
    EXPECT_LT(ground(labelled(low, marked(low, {50, 2, 50}, 9)), 180, 220).bottom(), rowOf(2) - 4);
    const QImage image = labelled(both, marked(both, {50, 30, 70, 30, 50}, 5));
    EXPECT_GT(ground(image, 110, 140).top(), rowOf(30)); // below valleys
    EXPECT_LT(ground(image, 185, 215).bottom(), rowOf(70));
    EXPECT_GT(ground(image, 260, 290).top(), rowOf(30));
}

TEST(DataLabels, OfFallingSumsStandBelowTheirStack) {
    Chart chart(-100, 100);
    Layer* layer = bars(chart, CHART_COMBINE_STACK, {{-20, 30, 30}, {-30, 20, -60}});
    const QImage image = grounded(chart, CLayer_setAggregateLabelStyle(layer, nullptr, 8, 0, 0));
    EXPECT_EQ(ground(image, 55, 145).top() - 180, 3); // -50
    EXPECT_EQ(80 - ground(image, 155, 245).bottom() - 1, 1);
    EXPECT_EQ(ground(image, 255, 345).top() - 190, 3); // -60, its sum is below 0, however high a part of it stands
}

TEST(Limits, DepthBeyondThePictureChangesNothing) {
    const auto drawn = [](int depth) {
        Chart chart;
        const double values[] = {20, 60, 40};
        CXYChart_addLineLayer(chart.xy, values, 3, kBlue, nullptr, depth);
        CXYChart_addBarLayer(chart.xy, values, 3, kBlue, nullptr, depth);
        return chart.picture();
    };
    EXPECT_EQ(drawn(65535), drawn(400));
    EXPECT_NE(drawn(400), drawn(30));
}

TEST(Limits, OfALogScaleMakeGapsOfLines) {
    const double values[] = {1, 10, 0, 10, 100, -5, 10};
    for (const bool smooth : {false, true}) {
        Chart chart;
        CAxis_setLogScale3(CXYChart_yAxis(chart.xy), nullptr);
        if (smooth)
            CXYChart_addSplineLayer(chart.xy, values, 7, kRed, nullptr);
        else
            CXYChart_addLineLayer(chart.xy, values, 7, kRed, nullptr, 0);
        const QImage image = chart.picture();
        for (const int row : {2, 5}) EXPECT_EQ(inked(image.copy(45 + 50 * row, 32, 11, 190), kWhite), 0) << row;
        EXPECT_GT(inked(image.copy(52, 32, 30, 190), kWhite), 20);
    }
}

TEST(Limits, OfTickDensityHoldOnDateAxes) {
    for (const int density : {1, 16384, 100000, 0x7fffffff}) {
        Chart chart;
        CAxis_setDateScale(CXYChart_xAxis(chart.xy), CChart_chartTime(1, 1, 1, 0, 0, 0),
                           CChart_chartTime(9999, 12, 31, 0, 0, 0), 0, 0);
        CAxis_setTickDensity(CXYChart_xAxis(chart.xy), density, density);
        EXPECT_EQ(chart.picture().size(), QSize(400, 300));
    }
}
} // namespace
