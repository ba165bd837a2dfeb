// Round meters by the pixels of their zones, rings, ticks, labels and pointers, worked out by hand.

#include "tests/engine/chart/round.h"
#include <QColor>
#include <limits>

namespace {
using namespace pictures;

const QPoint kCentre(150, 150);

/// A meter of 300 x 300 about (150, 150), radius 100, without labels, ticks and axis line.
struct Meter {
    AngularMeter* meter = CAngularMeter_create(300, 300, kWhite, CHART_TRANSPARENT, 0);
    BaseMeter* base = AngularMeter2BaseMeter(meter);
    BaseChart* chart = BaseMeter2BaseChart(base);

    explicit Meter(double start = -90, double end = 90, bool bare = true) {
        CAngularMeter_setMeter(meter, kCentre.x(), kCentre.y(), 100, start, end);
        CBaseMeter_setScale(base, 0, 100, 10, 5, 1);
        if (bare) {
            CBaseMeter_setLabelStyle(base, nullptr, 8, CHART_TRANSPARENT, 0);
            CBaseMeter_setLineWidth(base, 0, 0, 0, 0);
        }
    }
    QImage picture() { return of(chart); }
};

void around(const QImage& image, std::initializer_list<RoundPixel> pixels) { showsAround(image, kCentre, pixels); }

TEST(AngularMeter, LimitsPointersToTheScaleAndLaysThemOverAll) {
    Meter m;
    CBaseMeter_addPointer(m.base, -50, kRed, -1);
    CBaseMeter_addPointer(m.base, INFINITY, kBlue, -1);
    CBaseMeter_addPointer(m.base, NAN, kGreen, -1);
    CBaseMeter_addPointer(m.base, CHART_NO_VALUE, kGreen, -1);
    TextBox* text = CBaseChart_addText(m.chart, 150, 150, "X", nullptr, 8, -1, CHART_CENTER, 0, false);
    CBox_setBackground(TextBox2Box(text), 0xffff00, -1, 0);
    CBox_setSize(TextBox2Box(text), 60, 60);
    const QImage image = m.picture();
    around(image, {{-90, 50, kRed}, {90, 50, kBlue}, {90, 3, kBlue, "the later one on top, both over the text"}});
    EXPECT_TRUE(boundsOf(image, kGreen).isEmpty());
}

TEST(AngularMeter, LaysATranslucentPointerOnOnce) {
    Meter m;
    CBaseMeter_addPointer(m.base, 50, static_cast<int>(0x80000000), -1);
    const QImage image = m.picture();
    EXPECT_NEAR(qRed(image.pixel(150, 150)), 127, 2) << "hub and blade";
    EXPECT_NEAR(qRed(image.pixel(150, 100)), 127, 2) << "blade";
}

/// Degrees clockwise from -91 to 91, in runs of ink at a distance from the centre.
int runsAt(const QImage& image, double distance) {
    int runs = 0;
    bool before = false;
    for (double degrees = -91; degrees < 91; degrees += 0.1) {
        const bool ink = QColor(image.pixel(roundPoint(kCentre, degrees, distance))).lightness() < 200;
        runs += ink && !before ? 1 : 0;
        before = ink;
    }
    return runs;
}

TEST(AngularMeter, DrawsTicksOfThreeLengthsInsideTheScale) {
    Meter m(-90, 90, false);
    CBaseMeter_setLabelStyle(m.base, nullptr, 8, 0, 0);
    CBaseMeter_setLineWidth(m.base, 0, 1, 1, 1);
    CBaseMeter_setScale(m.base, 0, 100, 10, 5, 2.5);
    // Major ticks are 7 pixels long, minor ones 4.55, micro ones 2.8.
    const QImage image = of(m.chart, false);
    EXPECT_EQS((runsAt(image, 98.5), 41), (runsAt(image, 96.4), 21), (runsAt(image, 94), 11), (runsAt(image, 91), 0));

    CBaseMeter_setLineWidth(m.base, 0, 5, 0, -3);
    const QImage wide = of(m.chart, false);
    EXPECT_EQ(runsAt(wide, 98), 11) << "a width of 0 or below draws none";
    shows(wide, {{152, 52, 0, "5 pixels wide"}, {154, 52, kWhite}});

    CBaseMeter_setLineWidth(m.base, 4, 0, 0, 0);
    CBaseMeter_setLabelStyle(m.base, nullptr, 8, kRed, 0);
    const QImage line = m.picture();
    around(line, {{30, 102, kRed, "the axis line in the colour of the labels"},
                  {30, 98, kWhite},
                  {135, 102, kWhite, "along the scale only"}});
}

struct LabelCase {
    const char* what;
    double start, end;
    int radius;
    double lower, upper, major;
    double fontSize;
};

/// A meter of labels alone, each a red box.
struct LabelMeter : Meter {
    LabelMeter(double start, double end, int radius = 100, double fontSize = 8) : Meter(start, end) {
        CAngularMeter_setMeter(meter, 150, 150, radius, start, end);
        boxed(CBaseMeter_setLabelStyle(base, nullptr, fontSize, kRed, 0));
    }
};

TEST(AngularMeter, KeepsLabelsOutsideTheScaleInsideThePictureAndApart) {
    const LabelCase rows[] = {
        {"default", -90, 90, 100, 0, 100, 10, 8},
        {"three quarters", -135, 135, 100, 0, 1000, 100, 8},
        {"full turn", 0, 360, 100, 0, 360, 30, 8},
        {"odd start", 17, 377, 100, 0, 12, 1, 10},
        {"anticlockwise", 100, -200, 100, -50, 50, 10, 9},
        {"large font", -135, 135, 90, 0, 100, 10, 14},
        {"many", -135, 135, 100, 0, 100, 1, 8},
        {"automatic", -135, 135, 100, 0, 123456, 0, 8},
        {"far too fine", -135, 135, 100, 0, 100, 1e-6, 8},
    };
    for (const LabelCase& row : rows) {
        LabelMeter m(row.start, row.end, row.radius, row.fontSize);
        CBaseMeter_setScale(m.base, row.lower, row.upper, row.major, 0, 0);
        const auto boxes = boxesApart(m.picture(), row.what);
        EXPECT_GE(boxes.size(), 4u) << row.what;
        for (const QRect& box : boxes) {
            EXPECT_GE(nearestOf(box, kCentre), row.radius + 1) << row.what << ' ' << box;
            EXPECT_LE(nearestOf(box, kCentre), row.radius + 6) << row.what << ' ' << box;
        }
    }
}

TEST(AngularMeter, PutsLabelsBeyondARingOrInsideTheScale) {
    LabelMeter ringed(-90, 90), rimmed(-90, 90), full(-90, 90, 100, 16), large(-135, 135, 147);
    CAngularMeter_addRing(ringed.meter, 0, 110, kWhite, -1); // which ends among them
    for (const QRect& box : patches(ringed.picture(), kWhite)) EXPECT_GE(nearestOf(box, kCentre), 111) << box;
    CAngularMeter_addRing(rimmed.meter, 0, 140, kWhite, -1); // a wide rim, with room right beside the scale
    const auto besides = patches(rimmed.picture(), kWhite);
    EXPECT_GE(besides.size(), 3u);
    for (const QRect& box : besides)
        EXPECT_TRUE(nearestOf(box, kCentre) >= 101 && nearestOf(box, kCentre) <= 106) << box;
    CAngularMeter_addRing(full.meter, 0, 142, kWhite,
                          -1); // one that leaves none on either side: all go inside the ticks
    const auto within = patches(full.picture(), kWhite);
    EXPECT_GE(within.size(), 3u);
    for (const QRect& box : within) EXPECT_LT(std::hypot(box.center().x() - 150, box.center().y() - 150), 93) << box;
    const auto boxes = patches(large.picture(), kWhite); // of a scale that fills the picture
    EXPECT_EQ(boxes.size(), 11u);
    for (const QRect& box : boxes)
        for (const QPoint& corner : {box.topLeft(), box.topRight(), box.bottomLeft(), box.bottomRight()})
            EXPECT_LT(std::hypot(corner.x() - 150, corner.y() - 150), 147 - 10) << box;
}

/// Scales that no meter can show as asked still give one that can be read, at once.
TEST(AngularMeter, ShowsAReadableScaleWhateverTheIncrements) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const std::tuple<double, double, double, double, double> rows[] = {
        {0, 100, 1e-6, 1e-7, 1e-8}, {0, 100, 0, 0, 0},          {0, 100, -1, -1, -1},      {0, 100, nan, nan, nan},
        {0, 100, 1e300, 1, 0.1},    {1e300, -1e300, 1, 1, 1},   {0, 1e-300, 1, 1e-310, 0}, {5, 5, 1e-9, 1e-9, 1e-9},
        {nan, INFINITY, 10, 5, 1},  {1e9, 1e9 + 1e-6, 1, 1, 1},
    };
    for (const auto& [lower, upper, major, minor, micro] : rows) {
        Meter m(-90, 90, false);
        CBaseMeter_setScale(m.base, lower, upper, major, minor, micro);
        CBaseMeter_addPointer(m.base, (lower + upper) / 2, kRed, -1);
        const QImage image = m.picture();
        EXPECT_GE(runsAt(image, 98), 1) << lower << " to " << upper << " by " << major;
        EXPECT_LE(runsAt(image, 98), 160) << "a tick for every two pixels at most";
    }
}
} // namespace
