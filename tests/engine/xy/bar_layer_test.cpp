// Bars by their pixels. Expected places are worked out by hand from layers.h: a row has 50 pixels, of which
// its bars take 40 by default, from 20 left of its middle on.

#include "tests/engine/xy/layers.h"
#include <functional>

namespace {
using namespace layers;

constexpr double kRest = 0; // fills up to six rows without a bar

std::vector<double> six(double first) { return {first, kGap, NAN, kRest, INFINITY, kGap}; }

TEST(BarLayer, StandsOnTheBaseLineAndEndsAtItsValue) {
    constexpr int kSide = CHART_COMBINE_SIDE, kStack = CHART_COMBINE_STACK, kShare = CHART_COMBINE_PERCENTAGE,
                  kOver = CHART_COMBINE_OVERLAY;
    const struct {
        const char* what;
        int combine;
        double lower, upper;
        std::vector<double> values; // of the first row, a data set each
        std::vector<QRect> places;  // of red, green, blue
    } rows[] = {
        {"one", kSide, 0, 100, {25}, {{55, 180, 40, 50}}},
        {"side by side", kSide, 0, 100, {25, 50}, {{55, 180, 20, 50}, {75, 130, 20, 100}}},
        {"stack", kStack, 0, 100, {25, 12}, {{55, 180, 40, 50}, {55, 156, 40, 24}}},
        {"a gap in a stack", kStack, 0, 100, {25, kGap, 12}, {{55, 180, 40, 50}, {}, {55, 156, 40, 24}}},
        {"overlay", kOver, 0, 100, {50, 25}, {{55, 130, 40, 50}, {55, 180, 40, 50}}},
        {"percentage", kShare, 0, 200, {1, 3}, {{55, 205, 40, 25}, {55, 130, 40, 75}}},
        {"negative", kSide, -50, 50, {-20}, {{55, 131, 40, 40}}},
        {"down and up", kStack, -50, 50, {20, -10, -15}, {{55, 90, 40, 40}, {55, 131, 40, 20}, {55, 151, 40, 30}}},
        {"parts of the sizes", kShare, -100, 100, {30, -10}, {{55, 55, 40, 75}, {55, 131, 40, 25}}},
        {"zero out of sight", kSide, 20, 70, {45}, {{55, 130, 40, 100}}},
        {"past the axis", kSide, 0, 100, {300}, {{55, 31, 40, 199}}},
        {"however low", kSide, 0, 100, {0.01}, {{55, 229, 40, 1}}},
    };
    for (const auto& row : rows) {
        Chart chart(row.lower, row.upper);
        std::vector<std::vector<double>> sets;
        for (const double value : row.values) sets.push_back(six(value));
        bars(chart, row.combine, sets);
        const QImage image = chart.picture();
        const int colours[] = {kRed, kGreen, kBlue};
        for (std::size_t i = 0; i < row.places.size(); ++i)
            EXPECT_EQ(boundsOf(image, colours[i]), row.places[i]) << row.what << ", set " << i;
        EXPECT_EQ(inked(image.copy(96, 0, 250, 300), kWhite), 0) << row.what << ": other rows";
    }
}

TEST(BarLayer, BarsOfOneColumnAreOneBarThatReachesAsFar) {
    std::vector<double> values(5000), x(5000);
    unsigned noise = 1;
    for (std::size_t i = 0; i < values.size(); ++i) {
        noise = noise * 1664525u + 1013904223u;
        values[i] = i % 700 < 20
                        ? kGap
                        : static_cast<double>(noise >> 16) / 500 - 60 * std::sin(static_cast<double>(i) * 1e-3) - 40;
        x[i] = static_cast<double>(i % 1000) + 1e-3 * static_cast<double>(noise >> 24);
    }
    std::vector<double> reversed(values.rbegin(), values.rend());
    for (const int sets : {1, 2}) {
        for (const int combine : {CHART_COMBINE_SIDE, CHART_COMBINE_STACK}) {
            for (const bool given : {false, true}) { // x values, and the axes exchanged
                const auto drawn = [&](bool oneByOne) {
                    Chart chart(-200, 200);
                    CXYChart_swapXY(chart.xy, given);
                    BarLayer* bar = CXYChart_addBarLayer2(chart.xy, combine, 0);
                    CLayer_addDataSet(BarLayer2Layer(bar), values.data(), size(values), kRed, nullptr);
                    if (sets > 1) CLayer_addDataSet(BarLayer2Layer(bar), reversed.data(), size(x), kBlue, nullptr);
                    if (given) CLayer_setXData(BarLayer2Layer(bar), x.data(), size(x));
                    if (oneByOne) // whose shape is asked for is drawn by itself
                        CBarLayer_setBarShape(bar, CHART_SQUARE_SHAPE, -1, -1);
                    return chart.picture();
                };
                EXPECT_EQ(drawn(false), drawn(true)) << sets << combine << given;
            }
        }
    }
}

TEST(BarLayer, TakesXValuesInAnyOrder) {
    // The nearest two are 1 apart: on 0 to 10 by 30 pixels a unit, bars take 24 pixels.
    Chart chart;
    CAxis_setLinearScale(CXYChart_xAxis(chart.xy), 0, 10, 0, 0);
    Layer* layer = bars(chart, CHART_COMBINE_SIDE, {{50, 25, 100, 75}});
    const double x[] = {8, 2, NAN, 7};
    CLayer_setXData(layer, x, 4);
    const QImage image = chart.picture();
    EXPECT_EQ(boundsOf(image.copy(0, 0, 200, 300), kRed), QRect(98, 180, 24, 50)); // 2: column 110
    EXPECT_EQ(boundsOf(image.copy(248, 0, 24, 300), kRed), QRect(0, 80, 24, 150));
    EXPECT_EQ(boundsOf(image.copy(278, 0, 60, 300), kRed), QRect(0, 130, 24, 100));
}

TEST(BarLayer, ShapesKeepWithinTheBarAndPointToTheTip) {
    struct Expected {
        int shape;
        bool topLeft, topMiddle, bottomLeft, bottomMiddle, leftMiddle, rightMiddle; // inside the shape
    };
    const Expected rows[] = {
        {CHART_NO_SHAPE, true, true, true, true, true, true},
        {CHART_DIAMOND_SHAPE, false, true, false, true, true, true},
        {CHART_TRIANGLE_SHAPE, false, true, true, true, false, false},
        {CHART_INVERTED_TRIANGLE_SHAPE, true, true, false, true, false, false},
        {CHART_RIGHT_TRIANGLE_SHAPE, true, false, true, false, true, true},
        {CHART_LEFT_TRIANGLE_SHAPE, false, false, false, false, true, true},
        {CHART_CIRCLE_SHAPE, false, true, false, true, true, true},
        {CHART_CIRCLE_SHAPE_NO_SHADING, false, true, false, true, true, true},
        {8, true, true, true, true, true, true}, // no code of a shape
    };
    for (const Expected& row : rows) {
        for (const bool negative : {false, true}) {
            Chart chart(-100, 100);
            BarLayer* bar = CXYChart_addBarLayer(chart.xy, six(negative ? -80 : 80).data(), 6, kRed, nullptr, 0);
            CBarLayer_setBarShape(bar, row.shape, -1, -1);
            const QImage image = chart.picture();
            // Rows 50 to 129 up, 131 to 210 down; columns 55 to 94.
            const bool mirrored =
                negative && (row.shape == CHART_TRIANGLE_SHAPE || row.shape == CHART_INVERTED_TRIANGLE_SHAPE);
            const int top = negative ? 132 : 51, bottom = negative ? 209 : 128, middle = (top + bottom) / 2;
            const int head = mirrored ? bottom : top, foot = mirrored ? top : bottom;
            const auto inside = [&](int x, int y) { return at(image, x, y) != kWhite; };
            EXPECT_EQ(inside(56, head), row.topLeft) << row.shape << negative;
            EXPECT_EQ(inside(56, foot), row.bottomLeft) << row.shape << negative;
            EXPECT_EQ(inside(74, head), row.topMiddle) << row.shape << negative;
            EXPECT_EQ(inside(74, foot), row.bottomMiddle) << row.shape << negative;
            EXPECT_EQ(inside(57, middle), row.leftMiddle) << row.shape << negative;
            EXPECT_EQ(inside(92, middle), row.rightMiddle || row.shape == CHART_LEFT_TRIANGLE_SHAPE)
                << row.shape << negative;
            EXPECT_EQ(inked(image.copy(0, 0, 55, 300), kWhite), 0) << row.shape;
            EXPECT_EQ(inked(image.copy(95, 0, 40, 300), kWhite), 0) << row.shape;
        }
    }
}

TEST(BarLayer, ShadesOnlyTheCylinderThatHasShading) {
    for (const int shape : {CHART_CIRCLE_SHAPE, CHART_CIRCLE_SHAPE_NO_SHADING}) {
        Chart chart;
        BarLayer* bar = CXYChart_addBarLayer(chart.xy, six(90).data(), 6, 0x4080c0, nullptr, 0);
        CBarLayer_setBarShape(bar, shape, 0, 0);
        const QImage image = chart.picture();
        const bool shaded = shape == CHART_CIRCLE_SHAPE;
        EXPECT_EQ(at(image, 92, 150) < at(image, 70, 150), shaded);
        EXPECT_EQ(at(image, 92, 150) == 0x4080c0, !shaded);
    }
}

TEST(BarLayer, EdgesLieWithinTheBarAndStacksShareThem) {
    Chart chart;
    Layer* layer = bars(chart, CHART_COMBINE_STACK, {six(25), six(25)});
    CLayer_setBorderColor(layer, 0x123456, 0);
    const QImage image = chart.picture();
    for (const int y : {130, 180, 229}) // the upper end, the line between, the foot
        EXPECT_EQ(at(image, 75, y), 0x123456) << y;
    shows(image, {{75, 131, kGreen},
                  {75, 179, kGreen},
                  {75, 181, kRed},
                  {55, 150, 0x123456},
                  {94, 150, 0x123456},
                  {95, 150, kWhite}});
}

TEST(BarLayer, BodiesReachBackByTheirDepthAndAreDarkerAtTheSides) {
    Chart chart;
    bars(chart, CHART_COMBINE_SIDE, {six(50)}, 10);
    const QImage image = chart.picture();
    const QRect front = boundsOf(image, kRed);
    EXPECT_EQ(front.top(), 130);
    const auto red = [&](QPoint p) { return qRed(image.pixel(p)); };
    const QPoint top(front.center().x() + 5, front.top() - 5), side(front.right() + 5, front.center().y() - 5);
    EXPECT_LT(red(top), 255);
    EXPECT_LT(red(side), red(top)); // light falls from above
    EXPECT_EQ(qGreen(image.pixel(side)), 0);
    shows(image, {{front.right() + 12, front.center().y(), kWhite}, {front.center().x(), front.top() - 12, kWhite}});
}
} // namespace
