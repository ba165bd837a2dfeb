// Straight meters by the pixels of their zones, ticks, labels and pointers, worked out by hand.

#include "tests/engine/chart/round.h"
#include <QColor>
#include <limits>

namespace {
using namespace pictures;

bool isUpright(int side) { return side == CHART_LEFT || side == CHART_RIGHT; }

/// A meter of 300 x 300 whose bar is 200 long and 40 across, without labels, ticks and axis line.
struct Meter {
    LinearMeter* meter = CLinearMeter_create(300, 300, kWhite, CHART_TRANSPARENT, 0);
    BaseMeter* base = LinearMeter2BaseMeter(meter);
    BaseChart* chart = BaseMeter2BaseChart(base);

    explicit Meter(int side, bool reverse = false) {
        if (isUpright(side))
            CLinearMeter_setMeter(meter, 130, 50, 40, 200, side, reverse);
        else
            CLinearMeter_setMeter(meter, 50, 130, 200, 40, side, reverse);
        CBaseMeter_setScale(base, 0, 100, 10, 5, 1);
        CBaseMeter_setLabelStyle(base, nullptr, 8, CHART_TRANSPARENT, 0);
        CBaseMeter_setLineWidth(base, 0, 0, 0, 0);
    }
    QImage picture() { return of(chart); }
};

TEST(LinearMeter, StandsTicksOnTheScalesSide) {
    // Major ticks are 5 pixels long, minor ones 3, micro ones 2; the axis line takes 2 pixels beside the bar.
    const std::tuple<int, QRect, QRect> rows[] = {
        {CHART_LEFT, {128, 50, 2, 200}, {123, 50, 7, 200}},
        {CHART_RIGHT, {170, 50, 2, 200}, {170, 50, 7, 200}},
        {CHART_TOP, {50, 128, 200, 2}, {50, 123, 200, 7}},
        {CHART_BOTTOM, {50, 170, 200, 2}, {50, 170, 200, 7}},
    };
    for (const auto& [side, line, ticks] : rows) {
        Meter m(side);
        CBaseMeter_setLabelStyle(m.base, nullptr, 8, kBlue, 0);
        CBaseMeter_setLineWidth(m.base, 2, 1, 1, 1);
        CBaseMeter_setScale(m.base, 0, 100, 20, 10, 5);
        const QImage image = m.picture();
        EXPECT_EQ(inked(image.copy(line), kWhite), 400) << side;
        // 6 major, 5 minor and 10 micro ticks of 5, 3 and 2 pixels; the labels stand farther out.
        EXPECT_EQ(inked(image.copy(ticks), kWhite), 400 + 6 * 5 + 5 * 3 + 10 * 2) << side;
    }
    Meter ends(CHART_BOTTOM);
    CBaseMeter_setLabelStyle(ends.base, nullptr, 8, kBlue, 0);
    CBaseMeter_setLineWidth(ends.base, 0, 1, 0, 0);
    CBaseMeter_setScale(ends.base, 0, 100, 25, 0, 0);
    const QImage image = ends.picture();
    for (const int x : {50, 100, 150, 200, 249}) EXPECT_EQ(at(image, x, 172), kBlue) << x;
}

TEST(LinearMeter, FitsPointersToTheBarWithTheTipAtTheScale) {
    for (int shape = CHART_DIAMOND_POINTER; shape <= CHART_PENCIL_POINTER; ++shape) {
        for (const double ratio : {0.5, 1.0, 1.5}) {
            const int length = static_cast<int>(40 * ratio);
            for (const int side : {CHART_LEFT, CHART_RIGHT, CHART_TOP, CHART_BOTTOM}) {
                SCOPED_TRACE(testing::Message() << shape << ", side " << side);
                Meter m(side);
                CMeterPointer_setShape(CBaseMeter_addPointer(m.base, 25, kRed, -1), shape, ratio, 1);
                const auto inks = patches(m.picture(), kWhite);
                ASSERT_EQ(inks.size(), 1u);
                const QRect ink = isUpright(side) // as if on an upright bar
                                      ? inks[0]
                                      : QRect(QPoint(inks[0].top(), inks[0].left()), inks[0].size().transposed());
                const int from = side == CHART_LEFT || side == CHART_TOP ? 130 : 170 - length;
                // A point that narrows to nothing may leave its last pixel or two white.
                EXPECT_NEAR(ink.left(), from, 2);
                EXPECT_NEAR(ink.right(), from + length - 1, 2);
                EXPECT_NEAR(ink.top() + ink.height() / 2.0, isUpright(side) ? 200 : 100, 0.6);
                EXPECT_LE(ink.height(), 14);
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
    EXPECT_EQS((at(image, 150, 50), kRed), (boundsOf(image, kBlue).isEmpty(), true));
}

TEST(LinearMeter, PutsTheLabelOfAZoneInItOrBesideTheBar) {
    Meter m(CHART_LEFT);
    boxed(CLinearMeter_addZone(m.meter, 0, 50, kGreen, "low"), kBlue); // rows 150 to 249
    QRect label = boundsOf(of(m.chart, false), kBlue);
    EXPECT_TRUE(QRect(130, 150, 40, 100).contains(label)) << label;
    EXPECT_NEAR(label.center().y(), 200, 2);
    EXPECT_NEAR(label.center().x(), 150, 2);

    CBaseMeter_addPointer(m.base, 25, kRed, -1); // in the middle of the zone
    label = boundsOf(of(m.chart), kBlue);
    EXPECT_TRUE(QRect(130, 150, 40, 100).contains(label)) << label;
    EXPECT_TRUE(label.bottom() < 194 || label.top() > 206) << "off the pointer: " << label;

    for (const int side : {CHART_LEFT, CHART_RIGHT, CHART_TOP, CHART_BOTTOM}) {
        Meter narrow(side);
        for (int i = 0; i < 8; ++i) // each too thin, all together wider than the zones
            boxed(CLinearMeter_addZone(narrow.meter, 50 + i, 51 + i, kGreen, isUpright(side) ? "A long text" : "Z"),
                  kBlue);
        QImage image = narrow.picture();
        const QRect bar = isUpright(side) ? QRect(130, 50, 40, 200) : QRect(50, 130, 200, 40);
        for (int y = bar.top(); y <= bar.bottom(); ++y)
            for (int x = bar.left(); x <= bar.right(); ++x) image.setPixel(x, y, kWhite);
        const auto boxes = patches(image, kWhite);
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
    const std::tuple<double, double, double, double> rows[] = {
        {0, 100, 10, 8}, {0, 1e6, 0, 8}, {0, 100, 1, 12}, {0, 100, 1e-7, 8}, {-5, 5, 0.5, 10}};
    for (const auto& [lower, upper, major, fontSize] : rows) {
        for (const int side : {CHART_LEFT, CHART_RIGHT, CHART_TOP, CHART_BOTTOM}) {
            Meter m(side);
            CBaseMeter_setScale(m.base, lower, upper, major, 0, 0);
            boxed(CBaseMeter_setLabelStyle(m.base, nullptr, fontSize, kRed, 0));
            const auto boxes = boxesApart(m.picture(), std::to_string(side));
            EXPECT_GE(boxes.size(), 2u) << side;
            const QRect bar = isUpright(side) ? QRect(130, 50, 40, 200) : QRect(50, 130, 200, 40);
            for (const QRect& box : boxes) EXPECT_FALSE(box.intersects(bar)) << side << ' ' << box;
        }
    }
}
} // namespace
