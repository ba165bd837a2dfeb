// Legends: which keys, in which order, with which texts, and how they flow.

#include "engine/pie/pie_chart.h"
#include "tests/engine/chart/picture.h"
#include <gmock/gmock.h>
#include <vector>

namespace {
using namespace pictures;

constexpr int kEdge = 0x123456;
const int kKeys[] = {0xff0000, 0x00ff00, 0x0000ff, 0xff00ff};

/// A chart of 300 x 200 without a pie, and a legend with an edge at (20, 10).
struct Chart {
    PieChart* pie = CPieChart_create(300, 200, kWhite, CHART_TRANSPARENT, 0);
    BaseChart* chart = PieChart2BaseChart(pie);
    LegendBox* legend;

    explicit Chart(bool vertical) {
        CPieChart_setPieSize(pie, 0, 0, 0);
        legend = CBaseChart_addLegend(chart, 20, 10, vertical, nullptr, 8);
        CBox_setBackground(TextBox2Box(LegendBox2TextBox(legend)), CHART_TRANSPARENT, kEdge, 0);
    }
    void addKeys(int count, const char* text, int lineWidth = 0) {
        for (int i = 0; i < count; ++i) CLegendBox_addKey(legend, text, static_cast<int>(kKeys[i]), lineWidth, nullptr);
    }
    QImage picture() { return of(chart, false); }
    ~Chart() { CBaseChart_destroy(chart); }
};

TEST(Legend, FlowsInARow) {
    Chart chart(false);
    chart.addKeys(3, "Key");
    const QImage image = chart.picture();
    const QRect box = boundsOf(image, kEdge);
    EXPECT_EQ(box.topLeft(), QPoint(20, 10));
    QRect before;
    for (int i = 0; i < 3; ++i) {
        const QRect key = boundsOf(image, kKeys[i]);
        EXPECT_TRUE(box.contains(key)) << i;
        EXPECT_EQ(key.width(), key.height()) << "a square";
        EXPECT_GE(key.width(), 6);
        if (i > 0) {
            EXPECT_EQ(key.top(), before.top());
            EXPECT_GT(key.left(), before.right() + 15) << "room for the text of the one before";
        }
        before = key;
    }
}

TEST(Legend, WrapsInsideTheChartAndTheBox) {
    Chart chart(false);
    chart.addKeys(4, "A longish text in a key"); // each over 100 pixels: two a row in the 280 that there are
    QImage image = chart.picture();
    EXPECT_LE(boundsOf(image, kEdge).right(), 299);
    EXPECT_EQ(boundsOf(image, kEdge).height(), CBox_getHeight(TextBox2Box(LegendBox2TextBox(chart.legend))));
    EXPECT_EQ(boundsOf(image, kKeys[1]).top(), boundsOf(image, kKeys[0]).top());
    EXPECT_GT(boundsOf(image, kKeys[2]).top(), boundsOf(image, kKeys[0]).bottom());
    EXPECT_EQ(boundsOf(image, kKeys[2]).left(), boundsOf(image, kKeys[0]).left());
    const int rows = boundsOf(image, kEdge).height();

    CBox_setSize(TextBox2Box(LegendBox2TextBox(chart.legend)), 150, 0); // room for one a row
    image = chart.picture();
    EXPECT_EQ(boundsOf(image, kEdge).width(), 150);
    EXPECT_GT(boundsOf(image, kEdge).height(), rows);
    EXPECT_GT(boundsOf(image, kKeys[1]).top(), boundsOf(image, kKeys[0]).bottom());
}

TEST(Legend, DrawsLineKeysAsLinesAndNothingWithoutKeys) {
    Chart chart(false);
    EXPECT_EQ(inked(chart.picture(), kWhite), 0) << "no box around nothing";
    EXPECT_EQ(CBox_getHeight(TextBox2Box(LegendBox2TextBox(chart.legend))), 0);
    chart.addKeys(1, "Line", 2);
    const QRect line = boundsOf(chart.picture(), kKeys[0]);
    EXPECT_EQ(line.height(), 2);
    EXPECT_GT(line.width(), 12);
}

TEST(Legend, GivesKeysWithoutAColourTheNextOfTheSeries) {
    Chart chart(true);
    chart.addKeys(1, "first");
    CLegendBox_addKey(chart.legend, "second", -1, 0, nullptr);
    const QImage image = chart.picture();
    const QRect first = boundsOf(image, kKeys[0]);
    // What entry 9 of the palette, the second series colour, looks like in a box of its own.
    TextBox* sample = CBaseChart_addText(chart.chart, 200, 150, "", nullptr, 8, 0, CHART_TOP_LEFT, 0, false);
    CBox_setSize(TextBox2Box(sample), 10, 10);
    CBox_setBackground(TextBox2Box(sample), CHART_DATA_COLOR + 1, CHART_TRANSPARENT, 0);
    const int expected = at(chart.picture(), 205, 155);
    EXPECT_EQ(boundsOf(image, expected).size(), first.size());
}

TEST(Legend, TakesThePieceOfAPieAsItsFields) {
    chartdraw::PieChart pie(100, 100, chartdraw::kBackgroundColour, chartdraw::kTransparent, 0);
    pie.setData({1, 3, 4}, {"one", "", "four"});
    std::vector<chartdraw::LegendKey> keys;
    pie.collectKeys(keys);
    ASSERT_EQ(keys.size(), 2u) << "a sector without a name has no key";
    const chartdraw::Format format("{dataSetName} {label} {value} {percent|1} {sector} {other}");
    EXPECT_EQ(format.apply(*keys[0].fields), "one one 1 12.5 0 {other}");
    EXPECT_EQ(format.apply(*keys[1].fields), "four four 4 50.0 2 {other}");
}

TEST(Legend, HasAGroundOfItsOwnOnData) {
    for (const bool inside : {false, true}) {
        Chart chart(true);
        chart.addKeys(1, "Key");
        CPieChart_setPieSize(chart.pie, 30, 20, 20); // under the corner of the legend
        const double one[] = {1};
        CPieChart_setData(chart.pie, one, 1, nullptr, 0);
        MultiChart* multi = CMultiChart_create(300, 200, kWhite, CHART_TRANSPARENT, 0);
        LegendBox* own = CBaseChart_addLegend(MultiChart2BaseChart(multi), 20, 10, true, nullptr, 8);
        CBox_setBackground(TextBox2Box(LegendBox2TextBox(own)), CHART_TRANSPARENT, kEdge, 0);
        CLegendBox_addKey(own, "Key", kKeys[0], 0, nullptr);
        PieChart* child = CPieChart_create(300, 200, CHART_TRANSPARENT, CHART_TRANSPARENT, 0);
        CPieChart_setPieSize(child, 30, 20, 20);
        CPieChart_setData(child, one, 1, nullptr, 0);
        CMultiChart_addChart(multi, 0, 0, PieChart2BaseChart(child));
        const QImage image = inside ? of(MultiChart2BaseChart(multi), false) : chart.picture();
        EXPECT_LT(qGray(image.pixel(18, 14)), 160) << "the pie";
        EXPECT_GT(qGray(image.pixel(22, 12)), 200) << "the legend on it";
        CBaseChart_destroy(MultiChart2BaseChart(multi));
        CBaseChart_destroy(PieChart2BaseChart(child));
    }
}
} // namespace
