// Where the texts of pictures stand whose room is scarce, kind by kind.

#include "engine/xy/frame_layout.h"
#include "engine/xy/xy_chart.h"
#include "tests/engine/chart/picture.h"
#include "tests/engine/room/overlap.h"

namespace {
using namespace pictures;

using overlap::textsOf;

constexpr int kClear = CHART_TRANSPARENT;

/// The texts are apart and in the picture, and there are so many of them. Ends the chart.
std::vector<QRectF> placed(BaseChart* chart, std::size_t count) {
    std::size_t texts = 0;
    EXPECT_EQS((overlap::faultOf(chart, texts), ""), (texts, count));
    std::vector<QRectF> boxes;
    for (const QPolygonF& text : textsOf(chart)) boxes.push_back(text.boundingRect());
    CBaseChart_destroy(chart);
    return boxes;
}

int countOf(const QImage& image, const QRect& area, int colour) {
    return area.width() * area.height() - inked(image.copy(area), colour);
}

/// How many pixels are that bright.
int greys(const QImage& image, const QRect& area, int least, int most) {
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            count += qGray(image.pixel(x, y)) >= least && qGray(image.pixel(x, y)) <= most ? 1 : 0;
    return count;
}

/// Nearest distance of a box from a point.
double distance(const QRectF& box, QPointF from) {
    return std::hypot(std::clamp(from.x(), box.left(), box.right()) - from.x(),
                      std::clamp(from.y(), box.top(), box.bottom()) - from.y());
}

/// A plot area from (50, 20) to (349, 219) in 360 x 260 pixels.
struct Chart {
    XYChart* xy = CXYChart_create(360, 260, 0xffffff, kClear, 0);
    BaseChart* base = XYChart2BaseChart(xy);
    Axis* y = CXYChart_yAxis(xy);

    explicit Chart(int left = 50) {
        CXYChart_setPlotArea(xy, left, 20, 350 - left, 200, 0xffffff, -1, -1, kClear, kClear);
        CAxis_setLabelStyle(CXYChart_xAxis(xy), nullptr, 8, kClear, 0);
    }
    void hideLabels() const { CAxis_setLabelStyle(y, nullptr, 8, kClear, 0); }
    Layer* line(const std::vector<double>& data, int colour = 0xff0000) const {
        const int count = static_cast<int>(data.size());
        return LineLayer2Layer(CXYChart_addLineLayer(xy, data.data(), count, colour, nullptr, 0));
    }
    Layer* bars(int combine, const std::vector<std::vector<double>>& sets, const std::vector<int>& colours) const {
        Layer* layer = BarLayer2Layer(CXYChart_addBarLayer2(xy, combine, 0));
        for (std::size_t i = 0; i < sets.size(); ++i)
            CLayer_addDataSet(layer, sets[i].data(), static_cast<int>(sets[i].size()), colours[i], nullptr);
        CLayer_setDataLabelStyle(layer, nullptr, 8, -1, 0);
        return layer;
    }
};

TEST(Placement, LabelsOfAPieEndAtTitlesAndLegend) {
    PieChart* pie = CPieChart_create(400, 300, 0xffffff, kClear, 0);
    BaseChart* chart = PieChart2BaseChart(pie);
    const double values[] = {30, 20, 20, 15, 10, 5};
    const char* const names[] = {"Northern Territories", "South", "West", "East", "Islands", "Others"};
    CPieChart_setPieSize(pie, 180, 150, 80);
    CPieChart_setData(pie, values, 6, names, 6);
    CPieChart_setLabelStyle(pie, nullptr, 8, -1);
    CBaseChart_addTitle(chart, "Two lines of a title\nover a pie", "bold", 14, -1, kClear, kClear);
    CBaseChart_addTitle2(chart, CHART_BOTTOM, "Source", nullptr, 8, -1, kClear, kClear);
    CBaseChart_addLegend(chart, 300, 60, true, nullptr, 8);
    const std::vector<QRectF> boxes = placed(chart, 6 + 2 + 6);
    for (const QRectF& box : boxes) EXPECT_GT(distance(box, QPointF(180, 150)), 80) << box.left() << ", " << box.top();
}

TEST(Placement, MetersShortenManyDigitsAndKeepTheirMiddleFree) {
    AngularMeter* meter = CAngularMeter_create(200, 200, 0xffffff, kClear, 0);
    CAngularMeter_setMeter(meter, 100, 100, 70, -135, 135);
    CBaseMeter_setScale(AngularMeter2BaseMeter(meter), 0, 5e9, 1e9, 0, 0);
    CBaseMeter_setLabelStyle(AngularMeter2BaseMeter(meter), nullptr, 8, -1, 0);
    for (const QRectF& box : placed(BaseMeter2BaseChart(AngularMeter2BaseMeter(meter)), 6)) {
        EXPECT_GT(distance(box, QPointF(100, 100)), 70);
        EXPECT_LT(box.width(), 20); // "5G"
    }
}

TEST(Placement, ALongWordBesideARadarIsCutOffBeforeTheData) {
    PolarChart* polar = CPolarChart_create(300, 260, 0xffffff, kClear, 0);
    CPolarChart_setPlotArea(polar, 150, 130, 80, kClear, CHART_LINE_COLOR, 1);
    CAxis_setLabelStyle(CPolarChart_radialAxis(polar), nullptr, 8, kClear, 0);
    const char* const names[] = {"Up", "Unbreakablecustomersatisfactionofall", "Down", "Left"};
    CAngularAxis_setLabels(CPolarChart_angularAxis(polar), names, 4);
    CAngularAxis_setLabelStyle(CPolarChart_angularAxis(polar), nullptr, 8, -1, 0);
    int around = 0;
    std::size_t texts = 0;
    BaseChart* chart = PolarChart2BaseChart(polar);
    EXPECT_EQ(overlap::faultOf(chart, texts), "");
    for (const QPolygonF& text : textsOf(chart))
        around += distance(text.boundingRect(), QPointF(150, 130)) >= 80 ? 1 : 0;
    CBaseChart_destroy(chart);
    EXPECT_EQ(around, 4);
}

TEST(Placement, LegendsWrapLongKeysAndStandInColumns) {
    PieChart* pie = CPieChart_create(240, 200, 0xffffff, kClear, 0);
    BaseChart* chart = PieChart2BaseChart(pie);
    LegendBox* legend = CBaseChart_addLegend(chart, 20, 10, false, nullptr, 8);
    for (const char* text : {"One", "Two and more", "Three", "Four", "A fifth", "Six"})
        CLegendBox_addKey(legend, text, 0xff0000, 0, nullptr);
    CPieChart_setPieSize(pie, 0, 0, 0);
    const std::vector<QRectF> boxes = placed(chart, 6);
    const auto below =
        std::find_if(boxes.begin() + 1, boxes.end(), [&](const QRectF& box) { return box.top() > boxes[0].top(); });
    ASSERT_NE(below, boxes.end()) << "there is no room for one row";
    const auto columns = static_cast<std::size_t>(below - boxes.begin());
    for (std::size_t i = columns; i < boxes.size(); ++i) EXPECT_EQ(boxes[i].left(), boxes[i - columns].left()) << i;

    pie = CPieChart_create(240, 200, 0xffffff, kClear, 0);
    legend = CBaseChart_addLegend(PieChart2BaseChart(pie), 120, 10, true, nullptr, 8);
    CPieChart_setPieSize(pie, 0, 0, 0);
    CLegendBox_addKey(legend, "A key of so many words that they stand on several lines", 0, 0, nullptr);
    CLegendBox_addKey(legend, "Unbreakablenameofaplacethatisfartoolong", 0, 0, nullptr);
    const std::vector<QRectF> keys = placed(PieChart2BaseChart(pie), 2);
    EXPECT_GT(keys[0].height(), 2 * keys[1].height());
}

TEST(Placement, LabelsInBarsAreReadOnThemOrLeftOut) {
    const Chart chart;
    chart.hideLabels();
    chart.bars(CHART_COMBINE_STACK, {{50, 99}, {50, 1}}, {0x000080, 0xffff80});
    const QImage image = of(chart.base);
    // Of the axis to 120 50 is at row 136, 100 at 53.
    EXPECT_GT(greys(image, QRect(80, 145, 90, 60), 161, 255), 0) << "white on the dark bar";
    EXPECT_GT(greys(image, QRect(80, 60, 90, 60), 0, 99), 0) << "black on the light one";
    EXPECT_EQ(greys(image, QRect(220, 40, 110, 12), 0, 99), 0) << "none in the low one";
    const Chart full;
    full.hideLabels();
    CAxis_setLinearScale(full.y, 0, 100, 0, 0);
    full.bars(CHART_COMBINE_SIDE, {{100}}, {0x000080});
    EXPECT_GT(greys(of(full.base), QRect(190, 22, 20, 16), 160, 255), 0) << "white below the tip";
}

TEST(Placement, BarsThatOthersHideHaveNoLabels) {
    const auto labels = [](int combine) {
        const Chart chart;
        chart.hideLabels();
        chart.bars(combine, {{20, 30}, {40, 10}}, {0xff0000, 0x00ff00});
        const std::size_t count = textsOf(chart.base).size();
        CBaseChart_destroy(chart.base);
        return count;
    };
    EXPECT_EQ(labels(CHART_COMBINE_SIDE), 4u);
    EXPECT_EQ(labels(CHART_COMBINE_OVERLAY), 3u); // 20 stands behind 40
}

TEST(Placement, LabelsOfValuesHaveTheDigitsOfTheirAxisAndTwoMore) {
    const auto picture = [](const char* format) {
        const Chart chart;
        Layer* layer = chart.bars(CHART_COMBINE_SIDE, {{2.0 / 3, 1}}, {0xff0000});
        CLayer_setDataLabelFormat(layer, format);
        return of(chart.base).copy(60, 20, 130, 200);
    };
    EXPECT_EQ(picture("{value}"), picture("0.667"));
}

TEST(Placement, LabelsOfStepsStandBesideTheRisers) {
    const Chart chart;
    chart.hideLabels();
    const double data[] = {10, 40, 10, 40};
    StepLineLayer* steps = CXYChart_addStepLineLayer(chart.xy, data, 4, -1, nullptr);
    CLayer_setDataLabelStyle(LineLayer2Layer(StepLineLayer2LineLayer(steps)), nullptr, 8, -1, 0);
    const std::vector<QRectF> boxes = placed(chart.base, 4);
    const double middle = (boxes[1].center().y() + boxes[2].center().y()) / 2;
    EXPECT_LT(boxes[1].bottom(), middle - 40) << "above the upper end of its riser";
    EXPECT_GT(boxes[2].top(), middle + 40) << "below the lower end";
}

TEST(Placement, LinesAreTwoPixelsWideWhereTheyHaveRoom) {
    const auto width = [](std::size_t points) {
        const Chart chart;
        const int result = chartdraw::object<chartdraw::Layer>(chart.line(std::vector<double>(points, 5)))->lineWidth();
        CBaseChart_destroy(chart.base);
        return result;
    };
    EXPECT_EQS((width(10), 2), (width(1000), 1));
    const Chart chart;
    chart.line(std::vector<double>(10, 5));
    EXPECT_EQ(countOf(of(chart.base), QRect(200, 25, 1, 190), 0xff0000), 2);
}

TEST(Placement, NarrowCandlesShowTheirColours) {
    XYChart* xy = CXYChart_create(550, 260, 0xffffff, kClear, 0);
    CXYChart_setPlotArea(xy, 50, 20, 480, 200, 0xffffff, -1, -1, kClear, kClear);
    std::vector<double> high, low, open, close;
    for (int i = 0; i < 100; ++i) {
        open.push_back(i % 2 == 0 ? 40 : 60);
        close.push_back(100 - open.back());
        high.push_back(70);
        low.push_back(30);
    }
    CXYChart_addCandleStickLayer(xy, high.data(), 100, low.data(), 100, open.data(), 100, close.data(), 100, 0x00ff00,
                                 0xff0000, -1);
    const QImage image = of(XYChart2BaseChart(xy));
    const QRect plot(55, 25, 470, 190);
    EXPECT_EQ(countOf(image, plot, 0x000000), 0);
    EXPECT_GT(countOf(image, plot, 0x00ff00), 1000);
    EXPECT_GT(countOf(image, plot, 0xff0000), 1000);
}

TEST(Placement, OnlyBarsAndAreasNeedZero) {
    const auto lowest = [](const Chart& chart) {
        const auto frame = chartdraw::layoutFrame(*chartdraw::object<chartdraw::XYChart>(chart.xy));
        CBaseChart_destroy(chart.base);
        return frame.axes[1].map.lower();
    };
    const Chart line, bars, asked;
    line.line({80, 165});
    bars.bars(CHART_COMBINE_SIDE, {{80, 165}}, {0xff0000});
    asked.line({80, 165});
    CAxis_setAutoScale(asked.y, 0.1, 0.1, 0.8);
    EXPECT_GE(lowest(line), 60);
    EXPECT_EQS((lowest(bars), 0), (lowest(asked), 0));
}

TEST(Placement, LogAxesHaveMinorTicksAndFewDecadesMoreLabels) {
    const auto layout = [](double least, double most, bool plain) {
        const Chart chart;
        chart.line({least, most});
        CAxis_setLogScale3(chart.y, nullptr);
        if (plain) CAxis_setTickDensity(chart.y, -1, -1);
        auto frame = chartdraw::layoutFrame(*chartdraw::object<chartdraw::XYChart>(chart.xy));
        CBaseChart_destroy(chart.base);
        return std::pair(frame.axes[1].labels.size(),
                         std::count_if(frame.axes[1].ticks.begin(), frame.axes[1].ticks.end(),
                                       [](const auto& tick) { return !tick.major; }));
    };
    EXPECT_EQ(layout(3, 60, false).first, 6u) << "2, 5, 10, 20, 50, 100";
    EXPECT_GT(layout(1, 20000, false).second, 10);
    EXPECT_EQ(layout(1, 20000, true).second, 0) << "none where none are asked for";
}

TEST(Placement, TitlesKeepFromTheBorder) {
    const Chart chart;
    chart.hideLabels();
    chart.line({1, 2});
    CAxis_setTitle(CXYChart_xAxis(chart.xy), "A title\nof two lines", nullptr, 8, -1);
    CBaseChart_addTitle(chart.base, "Title", nullptr, 12, -1, kClear, kClear);
    for (const QRectF& box : placed(chart.base, 2))
        EXPECT_TRUE(QRectF(3, 2, 354, 255).contains(box)) << box.top() << " to " << box.bottom();
}

TEST(Placement, SymbolsOfASeriesAreAlikeAndOfOneArea) {
    double square = 0;
    for (const int shape :
         {CHART_SQUARE_SYMBOL, CHART_DIAMOND_SYMBOL, CHART_TRIANGLE_SYMBOL, CHART_LEFT_TRIANGLE_SYMBOL,
          CHART_RIGHT_TRIANGLE_SYMBOL, CHART_INVERTED_TRIANGLE_SYMBOL, CHART_CIRCLE_SYMBOL}) {
        const Chart chart;
        const double x[] = {1, 2.37, 3.61}, y[] = {10, 13.33, 11.87};
        CXYChart_addScatterLayer(chart.xy, x, 3, y, 3, nullptr, shape, 15, 0x0000ff, 0x0000ff);
        const chartdraw::PlotFrame frame =
            chartdraw::layoutFrame(*chartdraw::object<chartdraw::XYChart>(chart.xy)).layers[0];
        const QImage image = of(chart.base);
        std::vector<QImage> each;
        for (int i = 0; i < 3; ++i)
            each.push_back(image.copy(QRect(frame.x.wholePixel(x[i]) - 12, frame.y.wholePixel(y[i]) - 12, 25, 25)));
        EXPECT_TRUE(each[0] == each[1] && each[0] == each[2]) << shape;
        double area = 0;
        for (int at = 0; at < 25 * 25; ++at) area += 1 - qRed(each[0].pixel(at % 25, at / 25)) / 255.0;
        square = shape == CHART_SQUARE_SYMBOL ? area : square;
        if (shape != CHART_CIRCLE_SYMBOL) EXPECT_NEAR(area, square, 0.05 * square) << shape;
    }
}

TEST(Placement, SmallSymbolsHaveAnEdgeOfTheirOwnColour) {
    const auto dark = [](int size) {
        const Chart chart;
        const double x[] = {1, 2}, y[] = {10, 13};
        CXYChart_addScatterLayer(chart.xy, x, 2, y, 2, nullptr, CHART_SQUARE_SYMBOL, size, 0xff8080, -1);
        return countOf(of(chart.base), QRect(55, 25, 290, 190), 0x000000);
    };
    EXPECT_EQ(dark(7), 0);
    EXPECT_GT(dark(9), 0);
}

TEST(Placement, BubblesEndAtThePlotArea) {
    const Chart chart;
    chart.hideLabels();
    const double x[] = {0, 2}, y[] = {0, 10}, sizes[] = {80, 80};
    CLineLayer_setSymbolScale(
        CXYChart_addScatterLayer(chart.xy, x, 2, y, 2, nullptr, CHART_CIRCLE_SYMBOL, 9, 0xff0000, 0xff0000), sizes, 2,
        CHART_SCALE_PIXELS, nullptr, 0, CHART_SCALE_PIXELS);
    CAxis_setLinearScale(chart.y, 0, 10, 0, 0);
    CAxis_setLinearScale(CXYChart_xAxis(chart.xy), 0, 2, 0, 0);
    const QImage image = of(chart.base);
    EXPECT_EQ(countOf(image, image.rect(), 0xff0000), countOf(image, QRect(50, 20, 301, 201), 0xff0000));
    EXPECT_GT(countOf(image, image.rect(), 0xff0000), 1000);
}

TEST(Placement, GridLinesRunBetweenLyingBars) {
    const Chart chart;
    CXYChart_setPlotArea(chart.xy, 50, 20, 300, 200, 0xffffff, -1, -1, 0x00ff00, kClear);
    CXYChart_swapXY(chart.xy, true);
    chart.bars(CHART_COMBINE_SIDE, {{20, 30, 25, 10}}, {0xff0000});
    const QImage image = of(chart.base);
    std::vector<int> lines;
    for (int y = 21; y < 220; ++y)
        if (at(image, 345, y) == 0x00ff00) lines.push_back(y);
    EXPECT_EQ(lines, (std::vector{70, 120, 170})); // the rows stand at 45, 95...
}

TEST(Placement, TheBackWallStaysOffTheLegend) {
    const auto dark = [](int depth) {
        XYChart* xy = CXYChart_create(360, 260, 0xffffff, kClear, 0);
        CXYChart_setPlotArea(xy, 50, 40, 280, 180, 0xffffff, -1, 0x000000, kClear, kClear);
        const double data[] = {20, 30};
        CLayer_set3D(BarLayer2Layer(CXYChart_addBarLayer(xy, data, 2, 0xff0000, "A name", 0)), depth, 0);
        LegendBox* legend = CBaseChart_addLegend(XYChart2BaseChart(xy), 80, 10, false, nullptr, 8);
        CBox_setBackground(TextBox2Box(LegendBox2TextBox(legend)), kClear, kClear, 0);
        return greys(of(XYChart2BaseChart(xy)), QRect(82, 12, 60, 14), 0, 100);
    };
    EXPECT_GT(dark(0), 0) << "the text";
    EXPECT_NEAR(dark(20), dark(0), 10); // the wall's upper edge is in row 20
}

TEST(Placement, LabelsOfNarrowBarsKeepOffTheirNeighbours) {
    const auto picture = [](int colour) {
        const Chart chart;
        chart.hideLabels();
        std::vector<double> data;
        for (int i = 0; i < 60; ++i) data.push_back(40 + i * 37 % 60);
        Layer* layer = chart.bars(CHART_COMBINE_SIDE, {data}, {0xff0000});
        CLayer_setDataLabelStyle(layer, nullptr, 8, colour, 0);
        return of(chart.base);
    };
    const QImage bare = picture(kClear), labelled = picture(0x0000ff);
    int ink = 0;
    for (int y = 0; y < bare.height(); ++y) {
        for (int x = 0; x < bare.width(); ++x) {
            if (bare.pixel(x, y) == labelled.pixel(x, y)) continue;
            ++ink;
            EXPECT_NE(at(bare, x, y), 0xff0000) << x << ", " << y;
        }
    }
    EXPECT_GT(ink, 100) << "peaks have their labels";
}

TEST(Placement, ALabelWithoutRoomBelowTheFrameStandsAboveIt) {
    const Chart chart;
    chart.hideLabels();
    CAxis_setLinearScale(chart.y, 0, 100, 0, 0);
    std::vector<double> data(30, CHART_NO_VALUE); // the bars are narrower than their labels
    data[10] = 100;
    chart.bars(CHART_COMBINE_SIDE, {data}, {0x000080});
    const std::vector<QRectF> boxes = placed(chart.base, 1);
    EXPECT_LE(boxes[0].bottom(), 20);
}

TEST(Placement, LargeValuesHaveTheUnitOfTheirLayer) {
    const auto picture = [](const std::vector<double>& data, const char* format) {
        const Chart chart;
        chart.hideLabels();
        CAxis_setLinearScale(chart.y, 0, 4e12, 1e12, 0);
        CLayer_setDataLabelFormat(chart.bars(CHART_COMBINE_SIDE, {data}, {0xff0000}), format);
        return of(chart.base).copy(51, 21, 150, 190);
    };
    const std::vector<double> rows = {2614880000000, 847840000000, 3e12, 1e12, 2e12, 9e11, 1e12};
    EXPECT_EQ(picture({rows.begin(), rows.begin() + 1}, "{value}"),
              picture({rows.begin(), rows.begin() + 1}, "{value|0}"));
    EXPECT_NE(picture(rows, "{value}"), picture(rows, "{value|0}")) << "13 digits have no room";
}

TEST(Placement, NamesBelowBarsAreBrokenBeforeTheyGo) {
    const Chart chart;
    chart.hideLabels();
    chart.line({20, 30, 10, 20, 30});
    const double rows[] = {0, 1, 2, 3, 4};
    Axis* x = CXYChart_xAxis(chart.xy);
    CAxis_setLabels2(x, rows, 5, "{value|\tNorthern Territories\tSouth\tIslands\tUnbreakablelongname\tWest}");
    CAxis_setLabelStyle(x, nullptr, 8, 0, 0);
    const std::vector<QRectF> boxes = placed(chart.base, 5);
    EXPECT_GT(boxes[0].height(), 1.5 * boxes[1].height()) << "two lines";
    EXPECT_LT(boxes[3].width(), 60) << "an ellipsis";
}

TEST(Placement, LabelsOfTwoAxesMeetAtTheirCorner) {
    const Chart chart;
    CXYChart_setPlotArea(chart.xy, 50, 20, 300, 60, 0xffffff, -1, -1, kClear, kClear);
    chart.line({0, 30, 40});
    const double rows[] = {0, 1, 2};
    CAxis_setLabels2(CXYChart_xAxis(chart.xy), rows, 3, "{value|\tNorthern\tSouthern\tIslands}");
    CAxis_setLinearScale(chart.y, 0, 40, 20, 0);
    for (Axis* axis : {CXYChart_xAxis(chart.xy), chart.y}) CAxis_setLabelStyle(axis, nullptr, 8, 0, 0);
    placed(chart.base, 6);
}

TEST(Placement, ALongTitleLeavesTheLabelsTheirLine) {
    const Chart chart;
    chart.hideLabels();
    chart.line({0, 30, 40});
    CAxis_setLabelStyle(CXYChart_xAxis(chart.xy), nullptr, 8, 0, 0);
    const char* const title =
        "A title of so many words that it wants several lines for itself below the axis of a chart";
    CAxis_setTitle(CXYChart_xAxis(chart.xy), title, nullptr, 12, -1);
    placed(chart.base, 3 + 1);
}

TEST(Placement, DatesOnANarrowUprightAxisAreReadWhole) {
    const Chart chart(36);
    const double from = CChart_chartTime(2004, 12, 1, 0, 0, 0), day = 86400;
    CAxis_setDateScale(chart.y, from, from + 30 * day, 0, 0);
    CAxis_setLabelStyle(chart.y, nullptr, 8, 0, 0);
    placed(chart.base, 4); // of 6, 13, 20 and 27 December
}

TEST(Placement, GridLinesLeaveGapsForLabelsThatStandOnThem) {
    PolarChart* polar = CPolarChart_create(300, 300, 0xffffff, kClear, 0);
    CPolarChart_setPlotArea(polar, 150, 150, 100, kClear, 0xff0000, 1);
    CPolarChart_setGridColor(polar, 0xff0000, 1, 0xff0000, 1);
    CAxis_setLinearScale(CPolarChart_radialAxis(polar), 0, 100, 25, 0);
    CAxis_setLabelStyle(CPolarChart_radialAxis(polar), nullptr, 8, 0, 0);
    const Chart xy;
    CXYChart_setPlotArea(xy.xy, 50, 20, 300, 200, 0xffffff, -1, -1, 0xff0000, 0xff0000);
    CXYChart_setAxisAtOrigin(xy.xy, CHART_ORIGIN_XY, 0);
    CAxis_setLinearScale(xy.y, -20, 20, 10, 0);
    CAxis_setLinearScale(CXYChart_xAxis(xy.xy), -20, 20, 10, 0);
    CAxis_setLabelStyle(xy.y, nullptr, 8, 0, 0);
    for (BaseChart* chart : {PolarChart2BaseChart(polar), xy.base}) {
        const QImage image = of(chart, false);
        int red = 0;
        for (const QPolygonF& text : textsOf(chart)) red += countOf(image, text.boundingRect().toRect(), 0xff0000);
        EXPECT_EQ(red, 0);
        EXPECT_GT(countOf(image, image.rect(), 0xff0000), 200);
        CBaseChart_destroy(chart);
    }
}
} // namespace

TEST(Placement, TitlesStayInsideBelowTurnedNames) {
    const Chart chart;
    chart.bars(CHART_COMBINE_SIDE, {{20, 30}}, {0xff0000});
    const double rows[] = {0, 1};
    CAxis_setLabels2(CXYChart_xAxis(chart.xy), rows, 2, "{value|\tA name that is longer than the room\tAnother}");
    CAxis_setLabelStyle(CXYChart_xAxis(chart.xy), nullptr, 8, -1, 90);
    CAxis_setTitle(CXYChart_xAxis(chart.xy), "Title", nullptr, 8, -1);
    std::size_t texts = 0;
    EXPECT_EQ(overlap::faultOf(chart.base, texts), "");
    const std::vector<QPolygonF> all = textsOf(chart.base);
    EXPECT_TRUE(std::any_of(all.begin(), all.end(), [](const QPolygonF& text) {
        return text.boundingRect().top() > 230 && std::abs(text.boundingRect().center().x() - 200) < 3;
    }));
    CBaseChart_destroy(chart.base);
}
