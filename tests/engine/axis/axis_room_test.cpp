// What an axis does where its labels, marks or title have little room: all stay in the picture, and none lies
// over another.

#include "engine/text/alignment.h"
#include "tests/engine/axis/axis_fixture.h"

namespace chartdraw {
namespace {
class AxisRoomTest : public testing::Test {
protected:
    /// An axis at the left of the picture with this many pixels for its labels.
    AxisLayout narrow(Axis& axis, int pixels, const AxisRequest& request) const {
        AxisPlace place = placeAt(Left);
        place.across = pixels + 8; // ticks and the gap behind them
        return layoutAt(axis, place, request);
    }
    static void expectInside(const std::vector<AxisLayout::Label>& labels) {
        for (const AxisLayout::Label& label : labels) {
            EXPECT_TRUE(QRectF(-0.5, 0, 400.5, 300).contains(label.box())) << label.text << " " << label.box();
            for (const AxisLayout::Label& other : labels)
                EXPECT_TRUE(&other == &label || !other.box().intersects(label.box())) << label.text;
        }
    }

    BareChart chart;
    Axis x{chart, Direction::X}, y{chart, Direction::Y};
};

TEST_F(AxisRoomTest, NumbersTakeAShorterFormTogether) {
    const std::vector<double> ranges[] = {{1e9, 2e9}, {0, 3.3e12}, {0, 45000}, {0, 2.5e-7}};
    for (const std::vector<double>& range : ranges) {
        const AxisLayout layout = narrow(y, 34, ofData(range));
        expectInside(layout.labels);
        EXPECT_GE(layout.labels.size(), 3u);
    }
    EXPECT_EQ(textsOf(narrow(y, 26, ofData({0, 45000}))).back(), "60k");
    EXPECT_EQ(textsOf(narrow(y, 80, ofData({0, 45000}))).back(), "60,000"); // it has room
    EXPECT_FALSE(narrow(y, 80, ofData({1.2e18, 2.3e18})).factor);
    const AxisLayout powers = narrow(y, 26, ofData({1.2e18, 2.3e18}));
    ASSERT_TRUE(powers.factor);
    EXPECT_EQ(powers.factor->text, "\u00d710\u00b9\u2078");
    EXPECT_LE(powers.factor->box().bottom(), powers.labels.back().box().top()) << "above the uppermost";
    EXPECT_EQ(powers.labels.front().text.find('e'), std::string::npos);
}

TEST_F(AxisRoomTest, NamesAreWrappedOrEndInAnEllipsis) {
    y.setLabels({0, 1}, "{value|\tNorth and South\tUnbreakablelongname}");
    const AxisLayout layout = narrow(y, 50, ofRows(2));
    expectInside(layout.labels);
    ASSERT_EQ(layout.labels.size(), 2u);
    EXPECT_EQ(layout.labels[0].text, "North and South"); // on two lines
    EXPECT_TRUE(layout.labels[1].text.ends_with("\u2026")) << layout.labels[1].text;

    x.setLabels({0, 1}, "{value|\tA name that is much too long for it\tB}");
    x.setLabelStyle({}, 8, kDefaultColour, 90);
    x.setTitle("Title", {}, 8, kDefaultColour);
    const AxisLayout turned = layoutAt(x, BottomCenter, ofRows(2));
    expectInside(turned.labels);
    ASSERT_TRUE(turned.title);
    EXPECT_LE(turned.title->box().bottom(), 300);
    EXPECT_GE(turned.title->box().top(), turned.labels[0].box().bottom());
}

TEST_F(AxisRoomTest, MarksSpreadAroundTheirValues) {
    for (const double value : {20.0, 20.5, 21.0, 35.0})
        y.addMark(value, kLineColour, "Mark at " + std::to_string(value).substr(0, 4), {});
    y.setLimits(ScaleSettings::Type::Linear, 0, 35, {});
    const AxisLayout layout = layoutAt(y, Right);
    ASSERT_EQ(layout.marks.size(), 4u);
    expectInside(layout.marks);
    const int at = layout.map.wholePixel(20.5);
    EXPECT_NEAR(layout.marks[1].box().center().y(), at, 2); // the middle of three stays
    for (int i = 0; i < 60; ++i) y.addMark(10, kLineColour, "many", {});
    expectInside(layoutAt(y, Right).marks);
}

TEST_F(AxisRoomTest, ALongTitleIsBrokenBesideTheAxis) {
    std::string words;
    for (int i = 0; i < 40; ++i) words += "word ";
    x.setTitle(words, {}, 8, kDefaultColour);
    y.setTitle(words, {}, 8, kDefaultColour);
    const AxisLayout below = layoutAt(x, BottomCenter, ofRows(3)), beside = layoutAt(y, Right);
    EXPECT_LE(below.title->box().width(), 301);
    EXPECT_LE(beside.title->box().height(), 201);
}
} // namespace
} // namespace chartdraw
