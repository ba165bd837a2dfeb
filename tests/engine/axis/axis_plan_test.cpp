// What axes show: limits, ticks and label texts.

#include "engine/data/chart_time.h"
#include "engine/data/label_filter.h"
#include "tests/engine/axis/axis_fixture.h"
#include <cmath>

namespace chartdraw {
namespace {
using Texts = std::vector<std::string>;
using Pixels = std::vector<int>;
using Type = ScaleSettings::Type;

class AxisPlanTest : public testing::Test {
protected:
    BareChart chart;
    Axis x{chart, Direction::X};
    Axis y{chart, Direction::Y};
};

TEST_F(AxisPlanTest, GivenLimitsAndIncrementsStandAsTheyAre) {
    y.setLimits(Type::Linear, 0, 100, {25, 12.5, 0});
    AxisLayout layout = layoutAt(y, Left);
    EXPECT_EQ(textsOf(layout), (Texts{"0", "25", "50", "75", "100"}));
    EXPECT_EQ(majorPixels(layout), (Pixels{250, 200, 150, 100, 50}));
    Pixels minor;
    for (const AxisLayout::Tick& tick : layout.ticks)
        if (!tick.major) minor.push_back(tick.pixel);
    EXPECT_EQ(minor, (Pixels{225, 175, 125, 75}));

    y.setReverse(true);
    EXPECT_EQ(majorPixels(layoutAt(y, Left)), (Pixels{50, 100, 150, 200, 250}));

    y.setReverse(false);
    y.setLimits(Type::Linear, 100, 0, {50, 0, 0}); // exchanged
    EXPECT_EQ(textsOf(layoutAt(y, Left)), (Texts{"0", "50", "100"}));
    y.setLimits(Type::Linear, 5, 5, {}); // none: from the data
    EXPECT_EQ(textsOf(layoutAt(y, Left, ofData({0, 90}))).front(), "0");
}

TEST_F(AxisPlanTest, LimitsComeFromTheData) {
    // of an axis of 200 pixels, where steps are 1, 2 or 5 times a power of ten
    using Row = std::tuple<std::vector<double>, double, bool, bool, double, double>;
    const Row rows[] = {
        {{12, 44}, 0.8, false, false, 0, 50}, // 44 and a tenth of the axis: 50
        {{92, 98}, 0, false, false, 90, 100}, // in steps of 2, at least a tenth free at both ends
        {{92, 98}, 0, true, false, 0, 120},   // bars stand on zero
        {{-4, 3}, 0.8, false, true, -6, 6},   // -5 would leave less than a tenth
        {{}, 0.8, false, false, 0, 1},        //
    };
    for (const auto& [data, affinity, zero, symmetric, lower, upper] : rows) {
        y.setAutoScale(0.1, 0.1, affinity);
        AxisRequest request = ofData(data);
        request.includeZero = zero;
        request.symmetric = symmetric;
        const AxisLayout layout = layoutAt(y, Left, request);
        EXPECT_DOUBLE_EQ(layout.map.lower(), lower);
        EXPECT_DOUBLE_EQ(layout.map.upper(), upper);
    }
}

TEST_F(AxisPlanTest, RowsShowTheirNumbersWhereTheirItemsStand) {
    const AxisLayout tight = layoutAt(x, BottomCenter, ofRows(5));
    EXPECT_EQ(textsOf(tight), (Texts{"0", "1", "2", "3", "4"}));
    EXPECT_EQ(majorPixels(tight), (Pixels{50, 125, 200, 275, 350})); // 300 pixels in 4 parts

    AxisRequest bars = ofRows(5);
    bars.indent = true;
    EXPECT_EQ(majorPixels(layoutAt(x, BottomCenter, bars)), (Pixels{80, 140, 200, 260, 320})); // in 5, halves
    x.setIndent(false);
    EXPECT_EQ(majorPixels(layoutAt(x, BottomCenter, bars)).front(), 50);
    x.setIndent(true);
    EXPECT_EQ(majorPixels(layoutAt(x, BottomCenter, ofRows(5))).front(), 80);
    EXPECT_EQ(majorPixels(layoutAt(x, BottomCenter, ofRows(1))), Pixels{200});
}

TEST_F(AxisPlanTest, LabelStepsCountShownRows) {
    x.setLabels({10, 11, 12, 13, 14, 15, 16, 17}, "#{value}");
    x.setLabelStep(3, 1, 1, 0);
    const AxisLayout layout = layoutAt(x, BottomCenter, ofRows(6, 2)); // 12 to 17
    EXPECT_EQS((textsOf(layout), (Texts{"#13", "#16"})), (majorPixels(layout), (Pixels{110, 290})));
    EXPECT_EQ(layout.ticks.size(), 6u); // every row has a tick, four of them minor
    x.setLabelStep(0, -1, -4, 0);
    EXPECT_EQ(textsOf(layoutAt(x, BottomCenter, ofRows(6, 2))).size(), 6u);
    x.setLabelStep(2147483647, 2147483647, 2147483647, 2147483647);
    EXPECT_TRUE(layoutAt(x, BottomCenter, ofRows(6, 2)).labels.empty());
}

TEST_F(AxisPlanTest, RulesChooseDateLabels) {
    // The first of each month from October 2002 to March 2003 (15 October is the first row shown).
    std::vector<double> days;
    for (int day = 0; day < 160; ++day) days.push_back(chartTime(2002, 10, 15 + day));
    x.setLabels(days, "");
    x.setRules(
        {{encodeFilter(5, 1, 0.05), "{value|mmm yy}", 1, true}, {encodeFilter(4, 1, 0.05), "{value|mmm}", 1, false}});
    const AxisRequest shown = ofRows(160);
    EXPECT_EQ(textsOf(layoutAt(x, BottomCenter, shown)), (Texts{"Nov 02", "Dec", "Jan 03", "Feb", "Mar"}));

    x.setRules({{encodeFilter(5, 1, 0), "{value|yyyy}", 1, false}});
    x.addRule({encodeFilter(4, 1, 0), "-", 1, false});
    const AxisLayout marked = layoutAt(x, BottomCenter, shown);
    EXPECT_EQ(textsOf(marked), (Texts{"2003"}));
    EXPECT_EQ(marked.ticks.size(), 5u); // the other months have ticks alone

    x.setRules({{encodeFilter(8, 1, 0), "", 1, true},
                {encodeFilter(8, 1, 0), "", 1, false}}); // rules that pass nothing change nothing
    EXPECT_EQ(textsOf(layoutAt(x, BottomCenter, shown)).front(), "2002-10-15");

    Axis dates(chart, Direction::X);
    dates.setLimits(Type::Date, chartTime(2004, 1, 1), chartTime(2004, 7, 1), {});
    dates.setRules({{encodeFilter(5, 1, 0), "{value|yyyy}", 1, false}, {encodeFilter(4, 1, 0), "{value|m}", 1, false}});
    EXPECT_EQ(textsOf(layoutAt(dates, BottomCenter)), (Texts{"2004", "2", "3", "4", "5", "6", "7"}));
}

TEST_F(AxisPlanTest, TicksStandWiderApartBeforeLabelsAreLeftOut) {
    x.setLabelFormat("a value of {value}");
    for (const AxisRequest& request : {ofData({0, 100}), ofRows(200)}) {
        const AxisLayout layout = layoutAt(x, BottomCenter, request);
        EXPECT_GE(layout.labels.size(), 3u);
        EXPECT_EQ(layout.labels.size(), layout.ticks.size());
    }
    x.setLimits(Type::Linear, 0, 100, {10, 0, 0}); // given: the ticks stay, labels go
    EXPECT_EQ(layoutAt(x, BottomCenter).ticks.size(), 11u);
    EXPECT_LT(layoutAt(x, BottomCenter).labels.size(), 6u);
}

TEST_F(AxisPlanTest, RowTextsTellDatesFromNumbers) {
    const std::vector<double> numbers{1.5, 2, kNoValue};
    EXPECT_EQS((RowTexts(numbers).text(0), "1.5"), (RowTexts(numbers).text(2), ""), (RowTexts(numbers).text(9), ""));
    const std::vector<double> days{chartTime(2004, 2, 28), chartTime(2004, 2, 29)};
    EXPECT_EQ(RowTexts(days).text(1), "2004-02-29");
    const std::vector<double> mixed{chartTime(2004, 2, 28), 7};
    EXPECT_EQS((RowTexts(mixed).text(1), "7"), (RowTexts({}).text(3), "3"), (RowTexts({}).value(3), 3));
}

TEST_F(AxisPlanTest, AFormatOfLabelsDressesWhatTheRowsAreCalled) {
    x.setLabels({0, 1}, "{value|\tJan\tFeb}");
    EXPECT_EQ(textsOf(layoutAt(x, BottomCenter, ofRows(2))), (std::vector<std::string>{"Jan", "Feb"}));
    x.setLabelFormat("{value}/{label}/{value|1}");
    EXPECT_EQ(textsOf(layoutAt(x, BottomCenter, ofRows(2))), (std::vector<std::string>{"Jan/Jan/0.0", "Feb/Feb/1.0"}));
    x.setLabels({0, 1}, "{value|2}"); // the rows' own format is the last word
    EXPECT_EQ(textsOf(layoutAt(x, BottomCenter, ofRows(2))), (std::vector<std::string>{"0.00", "1.00"}));
}

TEST_F(AxisPlanTest, TiedAxisShowsItsOwnRoundNumbers) {
    AxisRequest request;
    request.root = &x;
    request.rootScale = Scale::linear(0, 100);
    request.slope = 1.8;
    request.intercept = 32;
    const AxisLayout layout = layoutAt(y, Right, request);
    EXPECT_EQ(textsOf(layout), (Texts{"50", "100", "150", "200"}));
    EXPECT_EQ(majorPixels(layout), (Pixels{230, 174, 119, 63})); // 250 - (value - 32) / 1.8 * 2
    EXPECT_EQ(layout.map.wholePixel(122), 150);                  // 50 degrees of the other scale

    // One to one it shows what the root shows, in its own format where it has one.
    x.setLabels({7, 8, 9}, "<{value}>");
    request.slope = 1;
    request.intercept = 0;
    request.rowCount = 3;
    request.rootScale = Scale::items(3, true);
    EXPECT_EQ(textsOf(layoutAt(y, Right, request)), (Texts{"<7>", "<8>", "<9>"}));
    y.setLabelFormat("{value}!");
    EXPECT_EQ(textsOf(layoutAt(y, Right, request)), (Texts{"<7>!", "<8>!", "<9>!"}));
}

TEST_F(AxisPlanTest, RingsOfTiesAreIgnored) {
    Axis a(chart, Direction::Y), b(chart, Direction::Y), c(chart, Direction::Y);
    a.syncTo(&b, 2, 0);
    b.syncTo(&c, 2, 0);
    c.syncTo(&a, 2, 0); // would close the ring
    EXPECT_EQ(c.syncedTo(), nullptr);
    a.syncTo(&a, 2, 0);
    EXPECT_EQ(a.syncedTo(), &b);
    a.syncTo(&c, 0, 0);
    a.syncTo(&c, NAN, 0);
    a.syncTo(&c, 1, INFINITY);
    EXPECT_EQ(a.syncedTo(), &b);
    BareChart other;
    Axis far(other, Direction::Y);
    a.syncTo(&far, 1, 0);
    EXPECT_EQ(a.syncedTo(), &b);
    far.copyFrom(a); // a tie does not reach across charts
    EXPECT_EQ(far.syncedTo(), nullptr);
}

TEST_F(AxisPlanTest, HostileNumbersGiveAPlanAtOnce) {
    const double numbers[] = {0, -1, 1e300, -1e300, 1e-300, NAN, INFINITY, -INFINITY, kNoValue, 63e9, 1};
    for (const Type type : {Type::Automatic, Type::Linear, Type::Log, Type::Date}) {
        for (const double lower : numbers) {
            for (const double upper : numbers) {
                for (const double step : {0.0, 1e-300, std::nan(""), 1e300}) {
                    y.setLimits(type, lower, upper, {step, step, 0});
                    const AxisLayout layout = layoutAt(y, Left, ofData({lower, upper}));
                    EXPECT_LE(layout.ticks.size(), 201u); // no more than every second pixel of each sort
                    for (const AxisLayout::Tick& tick : layout.ticks) {
                        EXPECT_GE(tick.pixel, 50);
                        EXPECT_LE(tick.pixel, 250);
                    }
                }
            }
        }
    }
}
} // namespace
} // namespace chartdraw
