// Boxes, candles, price bars and areas by their pixels, worked out by hand from layers.h: a row has 50
// pixels, of which a box takes 25 by default, about its middle.

#include "tests/engine/xy/layers.h"

namespace {
using namespace layers;

constexpr int kBlack = 0x000000;

struct Prices {
    std::vector<double> high, low, open, close;
};

CandleStickLayer* candles(Chart& chart, const Prices& p, int rise = kGreen, int fall = kRed, int edge = kBlack) {
    return CXYChart_addCandleStickLayer(chart.xy, p.high.data(), size(p.high), p.low.data(), size(p.low), p.open.data(),
                                        size(p.open), p.close.data(), size(p.close), rise, fall, edge);
}

HLOCLayer* priceBars(Chart& chart, const Prices& p, int colour = kBlue) {
    return CXYChart_addHLOCLayer(chart.xy, p.high.data(), size(p.high), p.low.data(), size(p.low), p.open.data(),
                                 size(p.open), p.close.data(), size(p.close), colour);
}

const std::vector<double> kSixHigh(6, 60), kSixLow(6, 10), kSixOpen(6, 50);

TEST(CandleStickLayer, BodyWickAndColoursTellThePrices) {
    Chart chart;
    CandleStickLayer* layer = candles(
        chart,
        {{50, 60, 50, kGap, 50, 40}, {10, 20, 10, 10, 10, 40}, {20, 45, kGap, 20, 30, 40}, {40, 30, 40, 30, 30, 40}});
    CBaseBoxLayer_setDataGap(CandleStickLayer2BaseBoxLayer(layer), 0.5);
    const QImage image = chart.picture();
    EXPECT_EQ(boundsOf(image, kGreen), QRect(64, 151, 23, 39)); // the first row's body within its edge
    shows(image, {{63, 170, 0}, {87, 170, 0}, {88, 170, kWhite}});
    EXPECT_EQ(boundsOf(image, kRed), QRect(114, 141, 23, 29)); // 45 down to 30
    shows(image, {{{75, 0, 1, 150}, 0, {0, 130, 1, 20}, "wick from high to body"},
                  {{75, 190, 1, 110}, 0, {0, 0, 1, 21}, "and from body to low"},
                  {{160, 0, 31, 300}, 0, {15, 130, 1, 81}, "no open: wick alone"},
                  {{205, 0, 45, 300}, 0, {}, "no high: a gap"},
                  {{250, 170, 50, 1}, 0, {13, 0, 25, 1}, "unchanged: a line"}});
    EXPECT_EQ(inked(image.copy(205, 0, 45, 300), kWhite), 0);
    EXPECT_EQ(inked(image.copy(300, 0, 50, 300), kWhite), 25); // all equal: nothing else
    Chart edgeless;
    candles(edgeless, {{50, kGap, kGap, kGap, kGap, kGap}, {10}, {20}, {40}}, kGreen, kRed, CHART_TRANSPARENT);
    shows(edgeless.picture(), {{{75, 0, 1, 300}, kGreen, {0, 130, 1, 81}, "the wick without an edge"}});
}

TEST(HLOCLayer, TicksOfNeighboursStayApart) {
    Chart chart;
    HLOCLayer* layer = priceBars(chart, {kSixHigh, kSixLow, kSixOpen, kSixOpen});
    CBaseBoxLayer_setDataGap(HLOCLayer2BaseBoxLayer(layer), 0);
    // Two thirds of 50 pixels.
    EXPECT_EQ(boundsOf(chart.picture().copy(100, 130, 50, 1), kBlue), QRect(9, 0, 33, 1));
}

TEST(HLOCLayer, TicksStandAtOpenAndCloseAndColoursComeFromTheCloseBefore) {
    const struct {
        double lead;
        int first;
    } rows[] = {{-1.7E+308, kGreen}, {25, kRed}, {20, kGreen}, {NAN, kGreen}};
    for (const auto& row : rows) {
        Chart chart;
        HLOCLayer* layer = priceBars(chart, {kSixHigh, kSixLow, kSixOpen, {20, 30, 25, 25, kGap, 24}});
        CHLOCLayer_setColorMethod(layer, CHART_UP_DOWN, kGreen, kRed, row.lead);
        const QImage image = chart.picture();
        const int colours[] = {row.first, kGreen, kRed, kGreen, kGreen, kRed};
        for (int i = 0; i < 6; ++i) EXPECT_EQ(at(image, 75 + 50 * i, 120), colours[i]) << row.lead << ", row " << i;
        shows(image, {{{75, 0, 1, 300}, row.first, {0, 110, 1, 101}},
                      {{50, 130, 50, 1}, row.first, {13, 0, 13, 1}, "open, to the left"},
                      {{50, 190, 50, 1}, row.first, {25, 0, 13, 1}, "close, to the right"}});
    }
}

TEST(HLOCLayer, TrimmedRowsStillTellTheCloseBefore) {
    Chart chart;
    HLOCLayer* layer = priceBars(chart, {{60, 60}, {10, 10}, {}, {40, 30}});
    CHLOCLayer_setColorMethod(layer, CHART_UP_DOWN, kGreen, kRed, -1.7E+308);
    CXYChart_setTrimData(chart.xy, 1, 100);
    EXPECT_EQ(at(chart.picture(), 200, 120), kRed);
}

/// Thousands of rows in 300 pixels, many in a column, all in colours of one transparency.
QImage crowdedPicture(bool areCandles, int transparency) {
    Chart chart;
    Prices p;
    unsigned seed = 7;
    const auto random = [&] {
        seed = seed * 1664525u + 1013904223u;
        return static_cast<double>(seed >> 16) / 655.36;
    };
    for (int row = 0; row < 2500; ++row) {
        const double price = random() * 0.2 + 40 + 30 * std::sin(row * 0.005);
        p.open.push_back(row % 17 == 0 ? kGap : price + random() * 0.1);
        p.close.push_back(row % 13 == 0 ? p.open.back() : price + random() * 0.1);
        p.high.push_back(row % 29 == 0 ? kGap : price + random() * 0.2);
        p.low.push_back(price - random() * 0.2);
    }
    const auto colour = [&](int plain) { return transparency << 24 | plain; };
    if (areCandles)
        candles(chart, p, colour(kGreen), colour(kRed), colour(kBlack));
    else
        CHLOCLayer_setColorMethod(priceBars(chart, p, colour(kBlue)), CHART_UP_DOWN, colour(kGreen), colour(kRed),
                                  -1.7E+308);
    return chart.picture();
}

TEST(PriceLayers, ManyRowsInAColumnLookAsIfDrawnOneByOne) {
    for (const bool areCandles : {true, false}) {
        const QImage together = crowdedPicture(areCandles, 0);
        const QImage each = crowdedPicture(areCandles, 1); // hardly transparent, so every row is drawn
        int differences = 0;
        for (int y = 0; y < together.height(); ++y)
            for (int x = 0; x < together.width(); ++x) {
                const QColor a(together.pixel(x, y)), b(each.pixel(x, y));
                differences +=
                    std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) + std::abs(a.blue() - b.blue()) > 12;
            }
        EXPECT_EQ(differences, 0) << areCandles;
        EXPECT_GT(inked(together, kWhite), 5000);
    }
}

TEST(BoxWhiskerLayer, DrawsWhatIsThere) {
    Chart chart;
    const std::vector<double> top = {40, 20, kGap}, bottom = {20, 40, kGap, 30, kGap, kGap}, most = {60, kGap, 60},
                              least = {10, 5, 20}, middle = {30};
    CXYChart_addBoxWhiskerLayer(chart.xy, top.data(), 3, bottom.data(), 6, most.data(), 3, least.data(), 3,
                                middle.data(), 1, kGreen, kBlue, kBlack);
    const QImage image = chart.picture();
    shows(image, {{{63, 0, 25, 300}, kGreen, {1, 151, 23, 39}},
                  {{113, 0, 25, 300}, kGreen, {1, 151, 23, 39}, "top and bottom may change places"},
                  {{50, 0, 50, 150}, kBlue, {19, 110, 13, 40}, "with its end of 13"},
                  {{75, 191, 1, 109}, kBlue, {0, 0, 1, 20}},
                  {{63, 170, 25, 1}, kBlue, {0, 0, 25, 1}},
                  {{175, 0, 1, 300}, kBlue, {0, 110, 1, 81}, "no box: from end to end"}});
    EXPECT_EQ(inked(image.copy(200, 0, 200, 300), kWhite), 0);
}

TEST(AreaLayer, StacksFromTheBaseLineAndBreaksAtGaps) {
    Chart chart;
    Layer* layer = AreaLayer2Layer(CXYChart_addAreaLayer2(chart.xy, CHART_COMBINE_STACK, 0));
    const std::vector<double> a = {20, 20, kGap, 20}, b = {30, 30, 30, 30};
    CLayer_addDataSet(layer, a.data(), 4, kRed, nullptr);
    CLayer_addDataSet(layer, b.data(), 4, kGreen, nullptr);
    const QImage image = chart.picture();
    shows(image, {{{60, 0, 1, 300}, kRed, {0, 191, 1, 39}, "from the middle of row 190"},
                  {{60, 0, 1, 300}, kGreen, {0, 131, 1, 60}},
                  {{250, 0, 1, 300}, kRed, {}, "the gap"}});
    EXPECT_EQ(boundsOf(image.copy(250, 0, 1, 300), kGreen).bottom(), 229);
    EXPECT_EQ(boundsOf(image, kRed).right(), 150); // up to the row before the gap
}

TEST(CandleStickLayer, WicksShowInDepthToo) {
    // From the middle of the top face upwards, and none of the lower one above the body's own end.
    Chart chart;
    BaseBoxLayer* box =
        CandleStickLayer2BaseBoxLayer(candles(chart, {{80, kGap, kGap, kGap, kGap, kGap}, {20}, {40}, {60}}));
    CLayer_set3D(BaseBoxLayer2Layer(box), 20, 0);
    const QImage image = chart.picture();
    const int middle = (120 + 100) / 2 - 10; // half up the top face, whose back edge is on row 90
    shows(image, {{75 + 10, 230 - 2 * 80 - 10 + 5, 0}, {75 + 10, middle - 5, 0}});
}

TEST(BoxLayer, LabelStandsAtTheEndThatItTells) {
    const auto labelRows = [](double top, double bottom) {
        Chart chart;
        const std::vector<double> tops = {top, kGap, kGap}, bottoms = {bottom, kGap, kGap};
        Layer* layer = BaseBoxLayer2Layer(BoxWhiskerLayer2BaseBoxLayer(
            CXYChart_addBoxLayer(chart.xy, tops.data(), 3, bottoms.data(), 3, kGreen, nullptr)));
        TextBox* label = CLayer_setDataLabelStyle(layer, nullptr, 8, kNone, 0);
        CBox_setBackground(TextBox2Box(label), kRed, kRed, 0);
        return boundsOf(chart.picture(), kRed);
    };
    EXPECT_LT(labelRows(60, 30).bottom(), 230 - 2 * 60);
    EXPECT_GT(labelRows(60, 30).top(), 80);
    EXPECT_GT(labelRows(30, 60).top(), 230 - 2 * 30);
}

TEST(Rows, HaveTheirRoomBesidePoints) {
    // Six bars and three points on one axis that finds its own limits: the first bar is as wide as the others.
    Chart chart;
    bars(chart, CHART_COMBINE_SIDE, {{50, 50, 50, 50, 50, 50}});
    const double x[] = {0, 1, 5}, y[] = {90, 90, 90};
    CXYChart_addScatterLayer(chart.xy, x, 3, y, 3, nullptr, CHART_SQUARE_SYMBOL, 5, kBlue, kBlue);
    const QImage image = chart.picture();
    std::vector<int> widths;
    for (int column = 0, run = 0; column < 400; ++column) {
        const bool inked = at(image, column, 200) == kRed;
        run = inked ? run + 1 : 0;
        if (inked && at(image, column + 1, 200) != kRed) widths.push_back(run);
    }
    ASSERT_EQ(widths.size(), 6u);
    for (const int width : widths) EXPECT_NEAR(width, widths[2], 1);
}
} // namespace
