// What holds for all kinds of layers: fills between lines, labels, axes, order, and data of every sort.

#include "engine/xy/data_labels.h"
#include "engine/xy/inter_line_layer.h"
#include "tests/engine/xy/layers.h"

#include <string>

namespace {

using namespace layers;
using pictures::at;
using pictures::boundsOf;

TEST(InterLineLayer, CutsExactlyWhereTheLinesCross) {
    const std::vector<QPointF> rising = {{0, 0}, {10, 10}}, falling = {{0, 10}, {5, 5}, {10, 0}},
                               level = {{-5, 4}, {20, 4}}, broken = {{0, 2}, {4, 2}, {NAN, NAN}, {6, 2}, {8, 2}},
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
    for (const auto& row : rows) {
        const auto pieces = chartdraw::piecesBetween(row.first, row.second, true);
        ASSERT_EQ(pieces.size(), row.pieces.size()) << row.what;
        for (std::size_t i = 0; i < pieces.size(); ++i) {
            EXPECT_EQ(pieces[i].firstAbove, row.pieces[i].firstAbove) << row.what << i;
            EXPECT_EQ(pieces[i].outline, row.pieces[i].outline) << row.what << i;
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

TEST(DataLabels, OfStackedAreasStandInTheirOwnBand) {
    Chart chart;
    Layer* layer = AreaLayer2Layer(CXYChart_addAreaLayer2(chart.xy, CHART_COMBINE_STACK, 0));
    const double data[] = {30, 30, 30};
    for (const int colour : {kRed, kGreen})
        CLayer_addDataSet(layer, data, 3, colour, nullptr);
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
    for (const auto& row : rows)
        EXPECT_EQ(inkOf(row.format).copy(lower), inkOf(row.same).copy(lower)) << row.format;
}

TEST(DataLabels, KeepInsideThePlotAndOffOneAnother) {
    chartdraw::TextRoom room(QSize(100, 50));
    EXPECT_TRUE(room.isFree(QRectF(-500, 0, 2000, 50)));
    room.take(QRectF(10, 10, 20, 10));
    const struct {
        QRectF box;
        bool free;
    } boxes[] = {{QRectF(10, 10, 20, 10), false}, {QRectF(29, 19, 5, 5), false}, {QRectF(30, 10, 5, 5), true},
                 {QRectF(10, 20, 20, 5), true},   {QRectF(0, 0, 10, 50), true},  {QRectF(0, 0, 100, 50), false},
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

} // namespace
