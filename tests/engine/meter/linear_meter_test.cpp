// Straight meters by the pixels of their zones, ticks, labels and pointers, worked out by hand.

#include "tests/engine/chart/round.h"

#include <QColor>
#include <limits>

namespace {

constexpr unsigned kWhite = 0xffffff;
constexpr int kRed = 0xff0000, kGreen = 0x00ff00, kBlue = 0x0000ff;

/// A meter of 300 x 300 whose bar is 200 long and 40 across, without labels, ticks and axis line.
struct Meter {
    LinearMeter* meter = CLinearMeter_create(300, 300, kWhite, CHART_TRANSPARENT, 0);
    BaseMeter* base = LinearMeter2BaseMeter(meter);
    BaseChart* chart = BaseMeter2BaseChart(base);

    explicit Meter(int side, bool reverse = false) {
        if (side == CHART_LEFT || side == CHART_RIGHT)
            CLinearMeter_setMeter(meter, 130, 50, 40, 200, side, reverse);
        else
            CLinearMeter_setMeter(meter, 50, 130, 200, 40, side, reverse);
        CBaseMeter_setScale(base, 0, 100, 10, 5, 1);
        CBaseMeter_setLabelStyle(base, nullptr, 8, CHART_TRANSPARENT, 0);
        CBaseMeter_setLineWidth(base, 0, 0, 0, 0);
    }
    QImage picture() { return pictures::of(chart); }
};

TEST(LinearMeter, StandsTicksOnTheScalesSide) {
    // Major ticks are 5 pixels long, minor ones 3, micro ones 2; the axis line takes 2 pixels beside the bar.
    const struct {
        int side;
        QRect line, ticks;
    } rows[] = {
        {CHART_LEFT, {128, 50, 2, 200}, {123, 50, 7, 200}},
        {CHART_RIGHT, {170, 50, 2, 200}, {170, 50, 7, 200}},
        {CHART_TOP, {50, 128, 200, 2}, {50, 123, 200, 7}},
        {CHART_BOTTOM, {50, 170, 200, 2}, {50, 170, 200, 7}},
    };
    for (const auto& row : rows) {
        Meter m(row.side);
        CBaseMeter_setLabelStyle(m.base, nullptr, 8, kBlue, 0);
        CBaseMeter_setLineWidth(m.base, 2, 1, 1, 1);
        CBaseMeter_setScale(m.base, 0, 100, 20, 10, 5);
        const QImage image = m.picture();
        EXPECT_EQ(pictures::inked(image.copy(row.line), kWhite), 400) << row.side;
        // 6 major, 5 minor and 10 micro ticks of 5, 3 and 2 pixels; the labels stand farther out.
        EXPECT_EQ(pictures::inked(image.copy(row.ticks), kWhite), 400 + 6 * 5 + 5 * 3 + 10 * 2) << row.side;
    }
    Meter ends(CHART_BOTTOM);
    CBaseMeter_setLabelStyle(ends.base, nullptr, 8, kBlue, 0);
    CBaseMeter_setLineWidth(ends.base, 0, 1, 0, 0);
    CBaseMeter_setScale(ends.base, 0, 100, 25, 0, 0);
    const QImage image = ends.picture();
    for (const int x : {50, 100, 150, 200, 249})
        EXPECT_EQ(pictures::at(image, x, 172), static_cast<unsigned>(kBlue)) << x;
}

TEST(LinearMeter, FitsPointersToTheBarWithTheTipAtTheScale) {
    for (int shape = CHART_DIAMOND_POINTER; shape <= CHART_PENCIL_POINTER; ++shape) {
        for (const double ratio : {0.5, 1.0, 1.5}) {
            const int length = static_cast<int>(40 * ratio);
            const struct {
                int side;
                QRect across; // from the tip to the other end
            } rows[] = {
                {CHART_LEFT, {130, 200, length, 1}},
                {CHART_RIGHT, {170 - length, 200, length, 1}},
                {CHART_TOP, {100, 130, 1, length}},
                {CHART_BOTTOM, {100, 170 - length, 1, length}},
            };
            for (const auto& row : rows) {
                Meter m(row.side);
                CMeterPointer_setShape(CBaseMeter_addPointer(m.base, 25, kRed, -1), shape, ratio, 1);
                const auto patches = pictures::patches(m.picture(), kWhite);
                ASSERT_EQ(patches.size(), 1u) << shape << ", side " << row.side;
                const QRect ink = patches[0];
                const bool upright = row.side == CHART_LEFT || row.side == CHART_RIGHT;
                // A point that narrows to nothing may leave its last pixel or two white.
                EXPECT_NEAR(upright ? ink.left() : ink.top(), upright ? row.across.left() : row.across.top(), 2)
                    << shape << ", side " << row.side;
                EXPECT_NEAR(upright ? ink.right() : ink.bottom(), upright ? row.across.right() : row.across.bottom(), 2)
                    << shape << ", side " << row.side;
                const double middle = upright ? ink.top() + ink.height() / 2.0 : ink.left() + ink.width() / 2.0;
                EXPECT_NEAR(middle, upright ? 200 : 100, 0.6) << shape << ", side " << row.side;
                const int breadth = upright ? ink.height() : ink.width();
                EXPECT_LE(breadth, 14) << shape;
            }
        }
    }
}

TEST(LinearMeter, LimitsPointersAndLaysThemOverTexts) {
    Meter m(CHART_LEFT);
    CMeterPointer_setShape(CBaseMeter_addPointer(m.base, 1e9, kRed, -1), CHART_LINE_POINTER, 1, 5);
    CMeterPointer_setShape(CBaseMeter_addPointer(m.base, NAN, kBlue, -1), CHART_LINE_POINTER, 1, 5);
    TextBox* text = CBaseChart_addText(m.chart, 150, 50, "X", nullptr, 8, -1, CHART_CENTER, 0, false);
    CBox_setBackground(TextBox2Box(text), 0xffff00, -1, 0);
    const QImage image = m.picture();
    EXPECT_EQ(pictures::at(image, 150, 50), static_cast<unsigned>(kRed));
    EXPECT_TRUE(pictures::boundsOf(image, kBlue).isEmpty());
}

TEST(LinearMeter, PutsTheLabelOfAZoneInItOrBesideTheBar) {
    const auto dress = [](TextBox* label) { CBox_setBackground(TextBox2Box(label), kBlue, CHART_TRANSPARENT, 0); };
    Meter m(CHART_LEFT);
    dress(CLinearMeter_addZone(m.meter, 0, 50, kGreen, "low")); // rows 150 to 249
    QRect label = pictures::boundsOf(pictures::of(m.chart, false), kBlue);
    EXPECT_TRUE(QRect(130, 150, 40, 100).contains(label)) << label;
    EXPECT_NEAR(label.center().y(), 200, 2);
    EXPECT_NEAR(label.center().x(), 150, 2);

    CBaseMeter_addPointer(m.base, 25, kRed, -1); // in the middle of the zone
    label = pictures::boundsOf(pictures::of(m.chart), kBlue);
    EXPECT_TRUE(QRect(130, 150, 40, 100).contains(label)) << label;
    EXPECT_TRUE(label.bottom() < 194 || label.top() > 206) << "off the pointer: " << label;

    for (const int side : {CHART_LEFT, CHART_RIGHT, CHART_TOP, CHART_BOTTOM}) {
        Meter narrow(side);
        const bool upright = side == CHART_LEFT || side == CHART_RIGHT;
        for (int i = 0; i < 8; ++i) { // each too thin, all together wider than the zones
            TextBox* box = CLinearMeter_addZone(narrow.meter, 50 + i, 51 + i, kGreen, upright ? "A long text" : "Z");
            dress(box);
        }
        QImage image = narrow.picture();
        const QRect bar = upright ? QRect(130, 50, 40, 200) : QRect(50, 130, 200, 40);
        for (int y = bar.top(); y <= bar.bottom(); ++y)
            for (int x = bar.left(); x <= bar.right(); ++x)
                image.setPixel(x, y, kWhite);
        const auto boxes = pictures::patches(image, kWhite);
        EXPECT_EQ(boxes.size(), 8u) << side;
        for (const QRect& box : boxes) {
            const bool beyond = side == CHART_LEFT    ? box.left() >= 172
                                : side == CHART_RIGHT ? box.right() < 128
                                : side == CHART_TOP   ? box.top() >= 172
                                                      : box.bottom() < 128;
            EXPECT_TRUE(beyond) << side << ' ' << box;
        }
    }
}

TEST(LinearMeter, KeepsLabelsOutsideTheScaleInsideThePictureAndApart) {
    const struct {
        double lower, upper, major, fontSize;
    } rows[] = {{0, 100, 10, 8}, {0, 1e6, 0, 8}, {0, 100, 1, 12}, {0, 100, 1e-7, 8}, {-5, 5, 0.5, 10}};
    for (const auto& row : rows) {
        for (const int side : {CHART_LEFT, CHART_RIGHT, CHART_TOP, CHART_BOTTOM}) {
            Meter m(side);
            CBaseMeter_setScale(m.base, row.lower, row.upper, row.major, 0, 0);
            TextBox* style = CBaseMeter_setLabelStyle(m.base, nullptr, row.fontSize, kRed, 0);
            CBox_setBackground(TextBox2Box(style), kRed, CHART_TRANSPARENT, 0);
            const QImage image = m.picture();
            const auto boxes = pictures::patches(image, kWhite);
            EXPECT_GE(boxes.size(), 2u) << side;
            const QRect bar =
                side == CHART_LEFT || side == CHART_RIGHT ? QRect(130, 50, 40, 200) : QRect(50, 130, 200, 40);
            for (const QRect& box : boxes) {
                EXPECT_FALSE(box.intersects(bar)) << side << ' ' << box;
                EXPECT_TRUE(QRect(2, 2, 296, 296).contains(box)) << side << ' ' << box;
                EXPECT_EQ(pictures::inked(image.copy(box), kWhite), box.width() * box.height())
                    << side << ' ' << box << " is two labels in one";
            }
        }
    }
}

} // namespace
