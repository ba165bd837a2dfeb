// What the frame finds before it draws: axes by their layers, ties, sides, rows, depth.

#include "engine/data/chart_time.h"
#include "engine/data/label_filter.h"
#include "engine/text/alignment.h"
#include "engine/xy/area_layer.h"
#include "engine/xy/bar_layer.h"
#include "engine/xy/frame_layout.h"
#include "tests/engine/xy/probe.h"
#include "tests/expect.h"
#include <limits>

namespace chartdraw {
namespace {
using Type = ScaleSettings::Type;
using Form = Probe::Form;

/// A chart of 400 x 300 whose plot area has its lines on columns 50 and 350, rows 30 and 230.
class FrameLayoutTest : public testing::Test {
protected:
    FrameLayoutTest() { chart.setPlotArea(50, 30, 300, 200); }

    FrameLayout layout() const { return layoutFrame(chart); }
    Probe* add(std::vector<double> data, Form form = Form::Polyline) {
        return chart.addLayer<Probe>(form, std::move(data));
    }
    AxisLayout of(const Axis* axis) const {
        FrameLayout all = layout();
        for (std::size_t i = 0; i < chart.axes().size(); ++i)
            if (chart.axes()[i].axis == axis) return std::move(all.axes[i]);
        throw std::logic_error("no axis of the chart");
    }
    static std::vector<int> pixels(const AxisLayout& axis) {
        std::vector<int> result;
        for (const AxisLayout::Tick& tick : axis.ticks) result.push_back(tick.pixel);
        return result;
    }

    XYChart chart{400, 300, 0xffffff, kTransparent, 0};
};

TEST_F(FrameLayoutTest, FrameLinesAreTheEndsOfTheScales) {
    chart.xAxis()->setLimits(Type::Linear, 0, 6, {2, 0, 0});
    chart.yAxis()->setLimits(Type::Linear, 0, 100, {25, 0, 0});
    EXPECT_EQ(pixels(of(chart.xAxis())), (std::vector<int>{50, 150, 250, 350}));
    EXPECT_EQ(pixels(of(chart.yAxis())), (std::vector<int>{230, 180, 130, 80, 30}));
    add({1, 2});
    const PlotFrame frame = layout().layers.at(0);
    EXPECT_EQS((frame.point(3, 50), QPointF(200, 130)), (frame.baseLine(), 230),
               (frame.plot, QRect(QPoint(50, 30), QPoint(350, 230))),
               (frame.inner(), QRect(QPoint(51, 31), QPoint(349, 229))));
}

TEST_F(FrameLayoutTest, BaseLineIsZeroOrTheNearestEnd) {
    using Row = std::tuple<double, double, double>;
    for (const auto& [lower, upper, base] : {Row{-50, 50, 130}, Row{10, 20, 230}, Row{-20, -10, 30}}) {
        chart.yAxis()->setLimits(Type::Linear, lower, upper, {});
        add({1});
        EXPECT_DOUBLE_EQ(layout().layers.back().baseLine(), base);
    }
    chart.yAxis()->setScaleFromData(Type::Log, "");
    EXPECT_DOUBLE_EQ(layout().layers.back().baseLine(), 230);
}

TEST_F(FrameLayoutTest, AxesTakeTheirLimitsFromTheLayersBoundToThem) {
    add({10, 40});
    Probe* other = add({3000, 1000, 2000}, Form::Blocks);
    other->setYAxis(chart.yAxis2());
    EXPECT_LE(of(chart.yAxis()).map.upper(), 60);
    EXPECT_EQ(of(chart.yAxis2()).map.lower(), 0); // blocks stand on zero
    EXPECT_GE(of(chart.yAxis2()).map.upper(), 3000);
    const FrameLayout all = layout();
    EXPECT_EQS((all.layers[0].y.upper(), of(chart.yAxis()).map.upper()),
               (all.layers[1].y.upper(), of(chart.yAxis2()).map.upper()),
               (all.layers[0].x.pixel(0), all.layers[1].x.pixel(0)));
    EXPECT_EQ(all.layers[0].x.pixel(0), 100); // three rows, half a row free: 300 / 3 / 2

    XYChart stranger(100, 100, 0, 0, 0);
    for (Axis* axis : {stranger.yAxis(), chart.xAxis(), static_cast<Axis*>(nullptr)}) {
        other->setYAxis(axis);
        EXPECT_EQ(&other->yAxis(), chart.yAxis2());
    }
}

TEST_F(FrameLayoutTest, PercentagesFillTheirAxis) {
    const std::tuple<std::vector<double>, std::vector<double>, std::vector<double>, std::pair<double, double>> rows[] =
        {
            {{1, 2, 3}, {7, 5, 6}, {}, {0, 100}},    {{1, -2}, {3, -5}, {}, {-100, 100}},
            {{-1, -2}, {-3, -5}, {}, {-100, 0}},     {{1, 2}, {7, 5}, {10, 95}, {0, 100}},
            {{1, 2}, {7, 5}, {10, 130}, {0, 150}},   // 130 / 0.9 = 144, and steps of at least 26 pixels
            {{1, 2}, {7, 5}, {-20, 50}, {-40, 100}}, // 100 - 120 / 0.9 = -33
        };
    for (const auto& [first, second, beside, limits] : rows) {
        for (const bool bars : {true, false}) {
            XYChart tried(400, 300, 0xffffff, kTransparent, 0);
            tried.setPlotArea(50, 30, 300, 200);
            Layer* layer = bars ? static_cast<Layer*>(tried.addLayer<BarLayer>(BarLayer::Combine::Percentage, 0))
                                : tried.addLayer<AreaLayer>(true, 0);
            layer->addDataSet(first, kDefaultColour, {});
            layer->addDataSet(second, kDefaultColour, {});
            if (!beside.empty()) tried.addLayer<Probe>(Form::Polyline, beside);
            const AxisMap y = layoutFrame(tried).layers.at(0).y;
            EXPECT_EQ(y.value(230), limits.first) << bars << limits.first;
            EXPECT_EQ(y.value(30), limits.second) << bars << limits.second;
        }
    }
}

TEST_F(FrameLayoutTest, SecondAxesRepeatTheFirstUntilTheyHaveTheirOwn) {
    add({10, 40});
    EXPECT_EQ(chart.axes().size(), 2u);
    Axis* y2 = chart.yAxis2();
    EXPECT_EQ(chart.yAxis2(), y2);
    Axis* x2 = chart.xAxis2();
    EXPECT_EQS((chart.axes().size(), 4u), (pixels(of(y2)), pixels(of(chart.yAxis()))),
               (pixels(of(x2)), pixels(of(chart.xAxis()))), (of(y2).place.side, Right), (of(x2).place.across, 30));
    y2->setLimits(Type::Linear, 0, 1, {});
    EXPECT_EQ(of(y2).map.upper(), 1);
    // The first axis follows the second, which must not follow back.
    chart.yAxis()->syncTo(y2, 100, 0);
    EXPECT_EQ(of(chart.yAxis()).map.upper(), 100);
    y2->setScaleFromData(Type::Automatic, "");
    EXPECT_GE(of(chart.yAxis()).map.upper(), 40);
    EXPECT_NEAR(of(chart.yAxis()).map.upper(), 100 * of(y2).map.upper(), 1e-9);
}

TEST_F(FrameLayoutTest, TiesHoldInAnyOrderOfCallsAndThroughChains) {
    Axis* far = chart.addAxis(Left, 40);
    Axis* near = chart.addAxis(Right, 30);
    far->syncTo(near, 2, 1);           // to an axis that is tied later
    near->syncTo(chart.yAxis(), 3, 5); // far = 2 * (3 y + 5) + 1
    chart.yAxis()->setLimits(Type::Linear, 0, 10, {});
    EXPECT_DOUBLE_EQ(of(far).map.lower(), 11);
    EXPECT_DOUBLE_EQ(of(far).map.upper(), 71);
    EXPECT_EQS((of(far).place.across, 10), (of(near).place.across, 380));
    chart.yAxis()->setMargin(20, 0);
    chart.yAxis()->setReverse(true);
    EXPECT_EQ(of(far).map.wholePixel(11), of(chart.yAxis()).map.wholePixel(0)); // margins and way go along

    // Data on a tied axis count for the axis at the end of the chain.
    chart.yAxis()->setAutoScale(0, 0, 1);
    add({11, 611})->setYAxis(far); // 0 to 100 there
    EXPECT_EQS((of(chart.yAxis()).map.lower(), 0), (of(chart.yAxis()).map.upper(), 100));
}

TEST_F(FrameLayoutTest, SidesFollowSwapAndRight) {
    Axis* x2 = chart.xAxis2();
    Axis* y2 = chart.yAxis2();
    Axis* further = chart.addAxis(Left, 10);
    struct Row {
        bool swap, right;
        int x, y, x2, y2, further;
    };
    const Row rows[] = {
        {false, false, BottomCenter, Left, TopCenter, Right, Left},
        {false, true, BottomCenter, Right, TopCenter, Left, Left},
        {true, false, Left, BottomCenter, Right, TopCenter, BottomCenter},
        {true, true, Left, TopCenter, Right, BottomCenter, BottomCenter},
    };
    for (const Row& row : rows) {
        chart.swapXY(row.swap);
        chart.setYAxisOnRight(row.right);
        EXPECT_EQS((of(chart.xAxis()).place.side, row.x), (of(chart.yAxis()).place.side, row.y),
                   (of(x2).place.side, row.x2), (of(y2).place.side, row.y2), (of(further).place.side, row.further));
    }
    EXPECT_EQ(of(further).place.across, 240); // 10 below the plot area
    EXPECT_EQ(chart.addAxis(99, 0)->direction(), Direction::Y);
}

TEST_F(FrameLayoutTest, SwappedLayersSeeXUpwards) {
    chart.swapXY(true);
    chart.yAxis()->setLimits(Type::Linear, 0, 100, {});
    add({1, 2, 3});
    const PlotFrame frame = layout().layers.at(0);
    EXPECT_EQS((frame.point(0, 0), QPointF(50, 230)), (frame.point(2, 100), QPointF(350, 30)),
               (frame.point(1, 50), QPointF(200, 130)));
}

TEST_F(FrameLayoutTest, AxesMoveToTheOriginOfTheOther) {
    chart.xAxis()->setLimits(Type::Linear, -6, 6, {2, 0, 0});
    chart.yAxis()->setLimits(Type::Linear, -100, 100, {50, 0, 0});
    // row of the x axis, column of the y axis
    using Row = std::tuple<int, int, int>;
    for (const auto& [mode, x, y] : {Row{0, 230, 50}, Row{1, 130, 50}, Row{2, 230, 200}, Row{3, 130, 200}}) {
        chart.setAxisAtOrigin(mode, 0);
        EXPECT_EQ(of(chart.xAxis()).place.across, x) << mode;
        EXPECT_EQ(of(chart.yAxis()).place.across, y) << mode;
    }
    // Nothing is written across the crossing lines.
    for (const Axis* axis : {chart.xAxis(), chart.yAxis()})
        for (const AxisLayout::Label& label : of(axis).labels) EXPECT_NE(label.value, 0);
    chart.yAxis()->setLimits(Type::Linear, 10, 20, {}); // no zero: the end nearest to it
    EXPECT_EQ(of(chart.xAxis()).place.across, 230);
    chart.setAxisAtOrigin(3, 5);
    add({3, -2})->setXData({-4, 1});
    chart.xAxis()->setAutoScale(0.1, 0.1, 0.8);
    chart.yAxis()->setAutoScale(0.1, 0.1, 0.8);
    EXPECT_EQ(of(chart.xAxis()).map.lower(), -of(chart.xAxis()).map.upper());
    EXPECT_EQ(of(chart.yAxis()).map.lower(), -of(chart.yAxis()).map.upper());
}

TEST_F(FrameLayoutTest, TrimmingShowsTheRowsFromStartOn) {
    using Row = std::tuple<int, int, std::size_t, std::size_t>;
    Probe* layer = add({9, 9, 1, 2, 3});
    std::vector<double> days;
    for (int i = 0; i < 5; ++i) days.push_back(chartTime(2004, 1, 1 + i));
    chart.xAxis()->setLabels(days, "{value|d}");
    const Row rows[] = {{0, 0x7fffffff, 0, 5}, {2, 0x7fffffff, 2, 5}, {2, 2, 2, 4},
                        {-3, 2, 0, 2},         {9, 1, 5, 5},          {1, -1, 1, 1}};
    for (const auto& [start, length, begin, end] : rows) {
        chart.setTrimData(start, length);
        EXPECT_EQS((layer->rows().begin, begin), (layer->rows().end, end));
        const AxisLayout x = of(chart.xAxis());
        ASSERT_EQ(x.labels.size(), end - begin);
        if (!x.labels.empty()) EXPECT_EQ(x.labels[0].text, std::to_string(begin + 1));
    }
    chart.setTrimData(2, 0x7fffffff);
    EXPECT_EQ(layout().layers[0].x.pixel(layer->xValue(2)), 50); // the first row shown
    EXPECT_EQS((layer->yRange().max, 3), (chart.rowTexts().text(2), "3"));
}

TEST_F(FrameLayoutTest, XValuesOfItsOwnMakeANumericAxis) {
    Probe* layer = add({1, 2, 3});
    add({4, 5});
    EXPECT_EQ(of(chart.xAxis()).map.scale().kind(), ScaleKind::Enumerated);
    layer->setXData({0.5, kNoValue, 3.5});
    EXPECT_EQ(of(chart.xAxis()).map.scale().kind(), ScaleKind::Linear);
    EXPECT_LE(of(chart.xAxis()).map.lower(), 0); // the rows 0 and 1 of the other layer
    EXPECT_GE(of(chart.xAxis()).map.upper(), 3.5);
    EXPECT_EQS((layer->xValue(1), kNoValue), (layer->xValue(7), kNoValue));
}

TEST_F(FrameLayoutTest, LayersStandBehindEachOther) {
    Probe* back = add({1});
    Probe* front = add({2});
    back->set3D(10, 0);
    front->set3D(8, 5);
    FrameLayout all = layout();
    EXPECT_EQ(all.layers[1].depthOffset, QPoint(0, 0));
    EXPECT_EQ(all.layers[0].depthOffset, QPoint(13, -13)); // behind 8 of depth and a gap of 5
    EXPECT_EQS((all.depth, 23), (all.layers[0].plot.topLeft(), QPoint(63, 17)));
    front->set3D(-1, 0);
    EXPECT_GT(front->depth(), 0);
    back->set3D(std::numeric_limits<int>::max(), std::numeric_limits<int>::max());
    front->set3D(std::numeric_limits<int>::max(), std::numeric_limits<int>::max());
    EXPECT_LE(layout().depth, 16384);
}

TEST_F(FrameLayoutTest, PanesThatCopyAnAxisAgreeToThePixel) {
    std::vector<double> days, values;
    for (int i = 0; i < 130; ++i) {
        days.push_back(chartTime(2002, 9, 4 + i * 7 / 5));
        values.push_back(100 + i % 7);
    }
    add(values, Form::Blocks);
    chart.setTrimData(30, 0x7fffffff);
    chart.xAxis()->setLabels(days, "");
    chart.xAxis()->setRules(
        {{encodeFilter(5, 1, 0.05), "{value|yyyy}", 1, true}, {encodeFilter(4, 1, 0.05), "{value|mmm}", 1, false}});
    chart.xAxis()->setIndent(true);
    chart.xAxis()->setColours(kLineColour, kTransparent, kDefaultColour, kDefaultColour);
    XYChart lower(400, 300, 0, 0, 0);
    lower.setPlotArea(50, 100, 300, 60);
    lower.setTrimData(30, 0x7fffffff);
    lower.xAxis()->copyFrom(*chart.xAxis());
    lower.xAxis()->setLabelStyle("", 8, kTextColour, 0);
    lower.addLayer<Probe>(Form::Polyline, values);
    const FrameLayout other = layoutFrame(lower);
    const FrameLayout all = layout();
    EXPECT_EQS((all.axes[0].labels.empty(), true), (other.axes[0].labels.empty(), false),
               (pixels(all.axes[0]), pixels(other.axes[0])), (all.layers[0].x.pixel(77), other.layers[0].x.pixel(77)));
}

TEST_F(FrameLayoutTest, DataSetsTakeTheNextColourWhereTheyHaveNone) {
    Probe* layer = add({1});
    EXPECT_EQ(layer->dataSet(0)->colour(), kDataColour);
    layer->addDataSet({}, 0x123456, "named");
    DataSet* third = layer->addDataSet({}, kDefaultColour, "");
    EXPECT_EQS((third->colour(), seriesColour(1)), (third->edge(), kTransparent), (third->edge(0x111111), 0x111111u));
    third->setColours(kDefaultColour, 0x222222, kDefaultColour, kDefaultColour);
    EXPECT_EQS((third->colour(), seriesColour(1)), (third->edge(0x111111), 0x222222u), (layer->dataSet(3), nullptr),
               (layer->dataSet(-1), nullptr));
    std::vector<LegendKey> keys;
    chart.collectKeys(keys);
    EXPECT_EQ(keys.size(), 1u); // only the named one
}
} // namespace
} // namespace chartdraw
