#include "engine/data/label_filter.h"
#include "tests/engine/axis/axis_fixture.h"
#include <algorithm>
#include <cmath>

namespace chartdraw {
namespace {
using Type = ScaleSettings::Type;

class AxisLayoutTest : public testing::Test {
protected:
    BareChart chart;
    Axis axis{chart, Direction::Y};
};

/// Pixels from the axis line to the box, outwards.
double distance(const AxisLayout& layout, const QRectF& box) {
    switch (layout.place.side) {
    case Left: return layout.place.across - box.right();
    case Right: return box.left() - (layout.place.across + 1);
    case TopCenter: return layout.place.across - box.bottom();
    default: return box.top() - (layout.place.across + 1);
    }
}

TEST_F(AxisLayoutTest, LabelsStandOutsideTheTicks) {
    using Row = std::tuple<int, int, int>;
    const Row rows[] = {{1, 4, 7}, {1, -4, 3}, {1, 0, 3}, {3, 4, 9}, {0, 4, 7}};
    axis.setLimits(Type::Linear, 0, 100, {50, 0, 0});
    for (const int side : {Left, Right, TopCenter, BottomCenter}) {
        for (const auto& [width, major, expected] : rows) {
            axis.setWidth(width);
            axis.setTickLength(major, 0);
            const AxisLayout layout = layoutAt(axis, side);
            ASSERT_EQ(layout.labels.size(), 3u);
            for (const AxisLayout::Label& label : layout.labels)
                EXPECT_DOUBLE_EQ(distance(layout, label.box()), expected) << side << ' ' << major;
            const QRectF middle = layout.labels[1].box();
            const double along = layout.place.upright() ? middle.center().y() : middle.center().x();
            EXPECT_NEAR(along, (layout.place.upright() ? 150 : 200) + 0.5, 0.5);
        }
    }
}

TEST_F(AxisLayoutTest, SlantedLabelsEndAtTheirTicks) {
    axis.setLabelFormat("a label of some length {value}");
    axis.setLimits(Type::Linear, 0, 100, {50, 0, 0});
    // the text ends at the tick, else it begins there
    using Row = std::tuple<int, double, bool>;
    const Row rows[] = {{BottomCenter, 45, true}, {BottomCenter, -45, false}, {TopCenter, 45, false},
                        {TopCenter, -45, true},   {Left, 30, true},           {Right, 30, false}};
    for (const auto& [side, angle, ends] : rows) {
        axis.setLabelStyle("", 8, kTextColour, angle);
        const AxisLayout layout = layoutAt(axis, side);
        ASSERT_GE(layout.labels.size(), 2u);
        const AxisLayout::Label& label = layout.labels[1];
        EXPECT_TRUE(label.pivot);
        EXPECT_EQ(label.alignment, ends ? Right : Left) << side << ' ' << angle;
        EXPECT_NEAR(distance(layout, label.box()), 7, 1) << side << ' ' << angle;
    }
}

QPolygonF outline(const AxisLayout::Label& label) {
    if (!label.pivot) return QPolygonF(label.box().adjusted(0.5, 0.5, -0.5, -0.5));
    const QPolygonF full = label.block.pivotOutlineAt(label.anchor, label.alignment);
    QPolygonF smaller;
    for (const QPointF& corner : full) smaller << corner + (full.boundingRect().center() - corner) * 0.05;
    return smaller;
}

struct Crowd {
    const char* name;
    void (*apply)(Axis&);
    AxisRequest request;
};

const Crowd kCrowds[] = {
    {"data", [](Axis&) {}, ofData({-3, 1234567})},
    {"tiny", [](Axis&) {}, ofData({1e-7, 2.5e-6})},
    {"dense increments",
     [](Axis& a) {
         a.setLimits(Type::Linear, 0, 1000, {1, 0, 0});
     },
     {}},
    {"log", [](Axis& a) { a.setScaleFromData(Type::Log, "{value|2,} units"); }, ofData({0.02, 9e7})},
    {"dates", [](Axis& a) { a.setLimits(Type::Date, 6.3e10, 6.31e10, {}); }, {}},
    {"rows", [](Axis& a) { a.setScaleFromData(Type::Automatic, "number {value}"); }, ofRows(97)},
    {"labels",
     [](Axis& a) {
         std::vector<double> values;
         for (int i = 0; i < 500; ++i) values.push_back(std::pow(-1.7, i % 40));
         a.setLabels(values, "");
     },
     ofRows(500)},
    {"rules",
     [](Axis& a) {
         std::vector<double> days;
         for (int i = 0; i < 700; ++i) days.push_back(63e9 + i * 86400.0);
         a.setLabels(days, "");
         a.setRules({{encodeFilter(5, 1, 0), "<*font=bold*>{value|mmmm yyyy}", 1, true},
                     {encodeFilter(4, 1, 0), "{value|mmm}", 1, false}});
         a.addRule({encodeFilter(7, 1, 0), "{value|d}", 1, false});
     },
     ofRows(700)},
};

void expectReadable(const AxisLayout& layout, bool level) {
    for (std::size_t i = 1; i < layout.labels.size(); ++i) {
        EXPECT_FALSE(outline(layout.labels[i - 1]).intersects(outline(layout.labels[i])))
            << layout.labels[i - 1].text << " / " << layout.labels[i].text;
    }
    for (const AxisLayout::Label& label : layout.labels)
        EXPECT_TRUE(!level || QRectF(layout.place.picture).contains(label.box())) << label.text << ' ' << label.box();
}

TEST_F(AxisLayoutTest, LabelsNeverLieOverEachOtherNorLeaveThePicture) {
    for (const Crowd& crowd : kCrowds) {
        for (const int side : {BottomCenter, Left}) {
            for (const double size : {8.0, 12.0}) {
                for (const double angle : {0.0, 20.0, 45.0, 90.0, -60.0}) {
                    SCOPED_TRACE(testing::Message() << crowd.name << ' ' << side << ' ' << size << ' ' << angle);
                    Axis tried(chart, Direction::X);
                    crowd.apply(tried);
                    tried.setLabelStyle("", size, kTextColour, angle);
                    AxisPlace place = placeAt(side);
                    place.across = place.upright() ? 250 : 100; // room for the longest label
                    const AxisLayout layout = layoutAt(tried, place, crowd.request);
                    EXPECT_GE(layout.labels.size(), angle == 0 ? 2u : 1u);
                    expectReadable(layout, angle == 0 || angle == 90);
                }
            }
        }
    }
}

TEST_F(AxisLayoutTest, MarksTakeTheRoomOfTickLabels) {
    axis.setLimits(Type::Linear, 0, 100, {25, 0, 0});
    axis.addMark(51, 0xff0000, "Half", {});
    axis.addMark(52, 0x0000ff, "More", {});
    axis.addMark(150, 0x0000ff, "Out of sight", {});
    axis.addMark(NAN, 0x0000ff, "Nowhere", {});
    const AxisLayout layout = layoutAt(axis, Left);
    EXPECT_EQ(textsOf(layout), (std::vector<std::string>{"0", "25", "75", "100"}));
    ASSERT_EQ(layout.marks.size(), 2u);
    const double middle = (layout.marks[0].box().center().y() + layout.marks[1].box().center().y()) / 2;
    EXPECT_NEAR(middle, 147.5, 1); // 250 - 2 * 51.5: the two share the way
    EXPECT_LE(layout.marks[1].box().bottom(), layout.marks[0].box().top());
}

TEST_F(AxisLayoutTest, TitlesStandBesideTheLabelsOrBeyondTheEnds) {
    axis.setLimits(Type::Linear, 0, 100, {50, 0, 0});
    axis.setTitle("Title", "", 8, kDefaultColour);
    // of the box's middle; -1 untold
    using Row = std::tuple<int, int, double, double, bool>;
    const Row rows[] = {
        {Left, Center, -1, 150.5, true},          {Right, Center, -1, 150.5, true},
        {BottomCenter, Center, 200.5, -1, false}, {TopCenter, BottomCenter, 200.5, -1, false},
        {Left, TopCenter, 100.5, -1, false}, // above the line's end
        {BottomCenter, Right, -1, 200.5, false},
    };
    for (const auto& [side, alignment, x, y, tall] : rows) {
        axis.setTitlePos(alignment, 6);
        const AxisLayout layout = layoutAt(axis, side);
        ASSERT_TRUE(layout.title);
        const QRectF box = layout.title->box();
        EXPECT_EQ(box.height() > box.width(), tall) << side << ' ' << alignment;
        if (x >= 0) EXPECT_NEAR(box.center().x(), x, 0.5) << side << ' ' << alignment;
        if (y >= 0) EXPECT_NEAR(box.center().y(), y, 0.5) << side << ' ' << alignment;
        for (const AxisLayout::Label& label : layout.labels) EXPECT_FALSE(box.intersects(label.box()));
        if (alignment == Center) EXPECT_NEAR(distance(layout, box), layout.reach + 6, 0.01);
    }
    axis.setTitlePos(TopLeft, 6);
    EXPECT_NEAR(layoutAt(axis, Left).title->box().top(), 50, 0.5);
    axis.setTitlePos(Center, 500); // the picture's edge is as far as it goes
    EXPECT_GE(layoutAt(axis, Left).title->box().left(), 0);
}

TEST_F(AxisLayoutTest, LinesGrowOutwardsAndTicksCoverTheirPixels) {
    QImage image(400, 300, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    axis.setLimits(Type::Linear, 0, 100, {50, 0, 0});
    axis.setWidth(2);
    axis.setColours(0xff0000, kDefaultColour, kDefaultColour, 0x0000ff);
    {
        Canvas canvas(image, chart.colours());
        drawAxisLine(canvas, axis, layoutAt(axis, Left));
    }
    const auto at = [&](int x, int y) { return image.pixel(x, y) & 0xffffff; };
    for (const int y : {50, 150, 250}) {
        EXPECT_EQS((at(100, y), 0xff0000u), (at(99, y), 0xff0000u));
        EXPECT_EQ(at(98, y), 0x0000ffu); // the tick's 4 pixels
        EXPECT_EQS((at(95, y), 0x0000ffu), (at(94, y), 0xffffffu));
    }
    EXPECT_EQS((at(101, 150), 0xffffffu), (at(100, 49), 0xffffffu), (at(100, 251), 0xffffffu),
               (at(98, 100), 0xffffffu));
}
} // namespace
} // namespace chartdraw
