// Where the labels of values stand: how far from their points, never on them, and on which side.

#include "tests/engine/chart/picture.h"

namespace {

constexpr int kGreen = 0x00ff00, kRed = 0xff0000, kBlue = 0x0000ff;

/// Pixels of a value on the y axis of 0 to 100.
constexpr int yOf(int value) { return 170 - value * 3 / 2; }

struct Labels {
    XYChart* xy = CXYChart_create(300, 200, 0xffffff, CHART_TRANSPARENT, 0);
    BaseChart* chart = XYChart2BaseChart(xy);
    Axis* y = CXYChart_yAxis(xy);

    Labels() {
        CXYChart_setPlotArea(xy, 50, 20, 200, 150, 0xffffff, -1, CHART_TRANSPARENT, CHART_TRANSPARENT,
                             CHART_TRANSPARENT);
        CAxis_setLinearScale(y, 0, 100, 20, 0);
    }
    ~Labels() { CBaseChart_destroy(chart); }
    Labels(const Labels&) = delete;
    Labels& operator=(const Labels&) = delete;

    /// Gives the labels of a layer a blue ground, which shows where they stand.
    static void ground(TextBox* style) { CBox_setBackground(TextBox2Box(style), kBlue, CHART_TRANSPARENT, 0); }

    /// The ground of the labels within columns of the picture.
    QRect box(int left = 0, int right = 300) {
        const QImage image = pictures::of(chart, false);
        return pictures::boundsOf(image.copy(left, 0, right - left, image.height()), kBlue).translated(left, 0);
    }
};

Layer* addBars(Labels& labels, std::vector<double> values) {
    return BarLayer2Layer(
        CXYChart_addBarLayer(labels.xy, values.data(), static_cast<int>(values.size()), kGreen, nullptr, 0));
}

Layer* addLine(Labels& labels, std::vector<double> values, int symbol) {
    LineLayer* line =
        CXYChart_addLineLayer(labels.xy, values.data(), static_cast<int>(values.size()), kGreen, nullptr, 0);
    CDataSet_setDataSymbol(CLayer_getDataSet(LineLayer2Layer(line), 0), CHART_SQUARE_SYMBOL, symbol, kRed, kRed, 1);
    return LineLayer2Layer(line);
}

TEST(DataLabels, KeepAPixelFromABarAndFromASymbol) {
    Labels bars;
    Labels::ground(CLayer_setDataLabelStyle(addBars(bars, {40}), nullptr, 8, 0, 0));
    EXPECT_EQ(yOf(40) - bars.box().bottom() - 1, 1);
    Labels line;
    Labels::ground(CLayer_setDataLabelStyle(addLine(line, {40, 40}, 11), nullptr, 8, 0, 0));
    EXPECT_EQ(yOf(40) - 5 - line.box().bottom() - 1, 1); // five pixels of the symbol stand above its middle
}

TEST(DataLabels, GoBelowRatherThanOntoTheirPoint) {
    Labels high;
    Labels::ground(CLayer_setDataLabelStyle(addLine(high, {98, 98, 98}, 9), nullptr, 8, 0, 0));
    EXPECT_GT(high.box().top(), yOf(98) + 4);
    Labels low; // and above, where there is none below
    CAxis_setLinearScale(low.y, 0, 100, 20, 0);
    Labels::ground(CLayer_setDataLabelStyle(addLine(low, {50, 2, 50}, 9), nullptr, 8, 0, 0));
    EXPECT_LT(low.box(130, 170).bottom(), yOf(2) - 4);
}

TEST(DataLabels, OfValleysStandBelowAndOfPeaksAbove) {
    Labels labels;
    Labels::ground(CLayer_setDataLabelStyle(addLine(labels, {50, 30, 70, 30, 50}, 5), nullptr, 8, 0, 0));
    EXPECT_GT(labels.box(85, 115).top(), yOf(30));
    EXPECT_LT(labels.box(135, 165).bottom(), yOf(70));
    EXPECT_GT(labels.box(185, 215).top(), yOf(30));
}

TEST(DataLabels, OfFallingSumsStandBelowTheirStack) {
    Labels labels;
    CAxis_setLinearScale(labels.y, -100, 100, 50, 0);
    Layer* layer = BarLayer2Layer(CXYChart_addBarLayer2(labels.xy, CHART_COMBINE_STACK, 0));
    const double first[] = {-20, 30, 30}, second[] = {-30, 20, -60};
    CLayer_addDataSet(layer, first, 3, kGreen, nullptr);
    CLayer_addDataSet(layer, second, 3, kRed, nullptr);
    Labels::ground(CLayer_setAggregateLabelStyle(layer, nullptr, 8, 0, 0));
    const auto pixel = [](int value) { return 95 - value * 3 / 4; };
    EXPECT_EQ(labels.box(55, 110).top() - pixel(-50), 3);
    EXPECT_EQ(pixel(50) - labels.box(125, 175).bottom() - 1, 2);
    EXPECT_EQ(labels.box(190, 245).top() - pixel(-60),
              3); // its sum is below 0, however high a part of it stands
}

} // namespace
