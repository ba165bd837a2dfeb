// Round meters by the pixels of their zones, rings, ticks, labels and pointers, worked out by hand.

#include "tests/engine/chart/round.h"

#include <QColor>
#include <cmath>
#include <limits>

namespace {

constexpr unsigned kWhite = 0xffffff;
constexpr int kRed = 0xff0000, kGreen = 0x00ff00, kBlue = 0x0000ff;
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
    QImage picture() { return pictures::of(chart); }
};

unsigned at(const QImage& image, double degrees, double distance) {
    return pictures::roundAt(image, kCentre, degrees, distance);
}

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
    EXPECT_EQ(at(image, -90, 50), static_cast<unsigned>(kRed));
    EXPECT_EQ(at(image, 90, 50), static_cast<unsigned>(kBlue));
    EXPECT_EQ(at(image, 90, 3), static_cast<unsigned>(kBlue)) << "the later one on top, both over the text";
    EXPECT_TRUE(pictures::boundsOf(image, kGreen).isEmpty());
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
        const bool ink = QColor(image.pixel(pictures::roundPoint(kCentre, degrees, distance))).lightness() < 200;
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
    const QImage image = pictures::of(m.chart, false);
    EXPECT_EQ(runsAt(image, 98.5), 41);
    EXPECT_EQ(runsAt(image, 96.4), 21);
    EXPECT_EQ(runsAt(image, 94), 11);
    EXPECT_EQ(runsAt(image, 91), 0);

    CBaseMeter_setLineWidth(m.base, 0, 5, 0, -3);
    const QImage wide = pictures::of(m.chart, false);
    EXPECT_EQ(runsAt(wide, 98), 11) << "a width of 0 or below draws none";
    EXPECT_EQ(pictures::at(wide, 152, 52), 0u) << "5 pixels wide";
    EXPECT_EQ(pictures::at(wide, 154, 52), kWhite);

    CBaseMeter_setLineWidth(m.base, 4, 0, 0, 0);
    CBaseMeter_setLabelStyle(m.base, nullptr, 8, kRed, 0);
    const QImage line = m.picture();
    EXPECT_EQ(at(line, 30, 102), static_cast<unsigned>(kRed)) << "the axis line in the colour of the labels";
    EXPECT_EQ(at(line, 30, 98), kWhite);
    EXPECT_EQ(at(line, 135, 102), kWhite) << "along the scale only";
}

struct LabelCase {
    const char* what;
    double start, end;
    int radius;
    double lower, upper, major;
    double fontSize;
};

/// Labels as boxes of one colour, apart from each other because patches of them are full rectangles.
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
        Meter m(row.start, row.end, false);
        CAngularMeter_setMeter(m.meter, kCentre.x(), kCentre.y(), row.radius, row.start, row.end);
        CBaseMeter_setLineWidth(m.base, 0, 0, 0, 0);
        CBaseMeter_setScale(m.base, row.lower, row.upper, row.major, 0, 0);
        TextBox* style = CBaseMeter_setLabelStyle(m.base, nullptr, row.fontSize, 0xff0000, 0);
        CBox_setBackground(TextBox2Box(style), 0xff0000, CHART_TRANSPARENT, 0);
        const QImage image = m.picture();
        const auto boxes = pictures::patches(image, kWhite);
        EXPECT_GE(boxes.size(), 4u) << row.what;
        for (const QRect& box : boxes) {
            EXPECT_GE(pictures::nearestOf(box, kCentre), row.radius + 1) << row.what << ' ' << box;
            EXPECT_LE(pictures::nearestOf(box, kCentre), row.radius + 6) << row.what << ' ' << box;
            EXPECT_TRUE(QRect(2, 2, 296, 296).contains(box)) << row.what << ' ' << box;
            EXPECT_EQ(pictures::inked(image.copy(box), kWhite), box.width() * box.height())
                << row.what << ' ' << box << " is two labels in one";
        }
    }
}

TEST(AngularMeter, MovesLabelsBeyondARingThatEndsAmongThem) {
    Meter m(-90, 90, false);
    CBaseMeter_setLineWidth(m.base, 0, 0, 0, 0);
    TextBox* style = CBaseMeter_setLabelStyle(m.base, nullptr, 8, kRed, 0);
    CBox_setBackground(TextBox2Box(style), kRed, CHART_TRANSPARENT, 0);
    CAngularMeter_addRing(m.meter, 0, 110, kWhite, -1);
    for (const QRect& box : pictures::patches(pictures::of(m.chart, false), kWhite))
        EXPECT_GE(pictures::nearestOf(box, kCentre), 111) << box;
    // Within a wide rim there is room right beside the scale. Where a rim leaves none on either side, all of
    // them go inside the ticks.
    for (const int ring : {140, 142}) {
        Meter other(-90, 90, false);
        CBaseMeter_setLineWidth(other.base, 0, 0, 0, 0);
        style = CBaseMeter_setLabelStyle(other.base, nullptr, ring == 140 ? 8 : 16, kRed, 0);
        CBox_setBackground(TextBox2Box(style), kRed, CHART_TRANSPARENT, 0);
        CAngularMeter_addRing(other.meter, 0, ring, kWhite, -1);
        const auto boxes = pictures::patches(other.picture(), kWhite);
        EXPECT_GE(boxes.size(), 3u);
        for (const QRect& box : boxes) {
            if (ring == 140) {
                EXPECT_GE(pictures::nearestOf(box, kCentre), 101) << box;
                EXPECT_LE(pictures::nearestOf(box, kCentre), 106) << box;
            } else {
                EXPECT_LT(std::hypot(box.center().x() - 150, box.center().y() - 150), 93) << box;
            }
        }
    }
    CBaseChart_destroy(m.chart);
}

TEST(AngularMeter, PutsLabelsInsideAScaleThatFillsThePicture) {
    Meter m(-135, 135, false);
    CAngularMeter_setMeter(m.meter, 150, 150, 147, -135, 135);
    CBaseMeter_setLineWidth(m.base, 0, 0, 0, 0);
    TextBox* style = CBaseMeter_setLabelStyle(m.base, nullptr, 8, kRed, 0);
    CBox_setBackground(TextBox2Box(style), kRed, CHART_TRANSPARENT, 0);
    const auto boxes = pictures::patches(m.picture(), kWhite);
    EXPECT_EQ(boxes.size(), 11u);
    for (const QRect& box : boxes)
        for (const QPoint& corner : {box.topLeft(), box.topRight(), box.bottomLeft(), box.bottomRight()})
            EXPECT_LT(std::hypot(corner.x() - 150, corner.y() - 150), 147 - 10) << box;
}

/// Scales that no meter can show as asked still give one that can be read, at once.
TEST(AngularMeter, ShowsAReadableScaleWhateverTheIncrements) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const struct {
        double lower, upper, major, minor, micro;
    } rows[] = {
        {0, 100, 1e-6, 1e-7, 1e-8}, {0, 100, 0, 0, 0},          {0, 100, -1, -1, -1},      {0, 100, nan, nan, nan},
        {0, 100, 1e300, 1, 0.1},    {1e300, -1e300, 1, 1, 1},   {0, 1e-300, 1, 1e-310, 0}, {5, 5, 1e-9, 1e-9, 1e-9},
        {nan, INFINITY, 10, 5, 1},  {1e9, 1e9 + 1e-6, 1, 1, 1},
    };
    for (const auto& row : rows) {
        Meter m(-90, 90, false);
        CBaseMeter_setScale(m.base, row.lower, row.upper, row.major, row.minor, row.micro);
        CBaseMeter_addPointer(m.base, (row.lower + row.upper) / 2, kRed, -1);
        const QImage image = m.picture();
        EXPECT_GE(runsAt(image, 98), 1) << row.lower << " to " << row.upper << " by " << row.major;
        EXPECT_LE(runsAt(image, 98), 160) << "a tick for every two pixels at most";
    }
}

} // namespace
