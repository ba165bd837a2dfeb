// What the picture of a pie shows, by pixels whose place is worked out by hand.

#include "tests/engine/chart/round.h"
#include <QColor>
#include <functional>

namespace {
using namespace pictures;

constexpr int kColours[] = {kRed, kGreen, kBlue};

/// A pie of 200 x 200 about (100, 100) with radius 80, without edges and labels: red, green, blue.
struct Pie {
    PieChart* pie = CPieChart_create(200, 200, kWhite, CHART_TRANSPARENT, 0);
    BaseChart* chart = PieChart2BaseChart(pie);

    explicit Pie(const std::vector<double>& values) {
        const char* const names[] = {"one", "two", "three"};
        CPieChart_setPieSize(pie, 100, 100, 80);
        CPieChart_setData(pie, values.data(), static_cast<int>(values.size()), names, 3);
        CPieChart_setLabelFormat(pie, " ");
        CPieChart_setLineColor(pie, CHART_TRANSPARENT, CHART_TRANSPARENT);
        for (int i = 0; i < 3; ++i) CSector_setColor(CPieChart_sector(pie, i), kColours[i], -1, -1);
    }
    QImage picture() { return of(chart); }
};

void around(const QImage& image, std::initializer_list<RoundPixel> pixels) {
    showsAround(image, QPoint(100, 100), pixels);
}

TEST(PiePicture, ShowsEachSectorAtItsAngles) {
    const struct {
        const char* what;
        std::vector<double> values;
        double start;
        bool clockwise;
        double middles[3]; // degrees; of values 1, 1, 2: quarter, quarter, half
    } rows[] = {
        {"clockwise from the top", {1, 1, 2}, 0, true, {45, 135, 270}},
        {"from 30 degrees", {1, 1, 2}, 30, true, {75, 165, 300}},
        {"anticlockwise", {1, 1, 2}, 0, false, {315, 225, 90}},
        {"beyond a turn", {1, 1, 2}, 360 + 90, true, {135, 225, 0}},
    };
    for (const auto& row : rows) {
        Pie pie(row.values);
        CPieChart_setStartAngle(pie.pie, row.start, row.clockwise);
        const QImage image = pie.picture();
        for (int i = 0; i < 3; ++i) {
            const double half = i < 2 ? 45 : 90;
            for (const double off : {-half + 3, 0.0, half - 3})
                for (const double distance : {40.0, 77.0})
                    around(image, {{row.middles[i] + off, distance, kColours[i], row.what}});
            around(image, {{row.middles[i], 83, kWhite, row.what}});
        }
    }
}

TEST(PiePicture, LetsNoBackgroundThroughBetweenNeighbours) {
    for (const bool solid : {false, true}) {
        Pie pie({3, 4, 5});
        for (int i = 0; i < 3; ++i) CSector_setColor(CPieChart_sector(pie.pie, i), kRed, -1, -1);
        if (solid) CPieChart_set3D(pie.pie, 20, 45, false);
        const QImage image = pie.picture();
        for (int y = 0; y < 200; ++y) {
            for (int x = 0; x < 200; ++x) {
                const double away = std::hypot(x + 0.5 - 100, (y + 0.5 - 100) * (solid ? std::numbers::sqrt2 : 1));
                if (away < 77) {
                    ASSERT_EQ(at(image, x, y), kRed) << x << ", " << y;
                } else if (solid && away < 82 && y > 120) {
                    // Where the face meets its wall: red, more or less dark.
                    ASSERT_LT(qGreen(image.pixel(x, y)), 16) << x << ", " << y;
                }
            }
        }
    }
}

TEST(PiePicture, TakesHardValues) {
    const double none = CHART_NO_VALUE;
    // colour to the left and right of the centre
    const std::tuple<const char*, std::vector<double>, int, int> rows[] = {
        {"one value alone", {5}, kRed, kRed},
        {"zeros take no room", {0, 7, 0}, kGreen, kGreen},
        {"negative and missing ones neither", {-3, 7, none}, kGreen, kGreen},
        {"no numbers neither", {NAN, 7, INFINITY}, kGreen, kGreen},
        {"huge ones", {1.6e308, 1.6e308}, kGreen, kRed},
        {"sum zero is an outline", {0, 0}, kWhite, kWhite},
        {"only negative is an outline", {-1, -2}, kWhite, kWhite},
    };
    for (const auto& [what, values, left, right] : rows) {
        Pie pie(values);
        const QImage image = pie.picture();
        around(image, {{270, 40, left, what}, {90, 40, right, what}});
        // Something stands at the rim, be it an outline.
        const QRect ink = boundsOf(image, kWhite);
        EXPECT_EQ(ink, image.rect());
        EXPECT_NE(at(image, 180, 100) & at(image, 179, 100), kWhite) << what;
    }
}

TEST(PiePicture, StandsOnItsWallsInThreeDimensions) {
    Pie tilted({1});
    CPieChart_set3D(tilted.pie, 20, 60, false); // the face is half as high as wide
    QImage image = tilted.picture();
    shows(image, {{100, 63, kRed, "face"}, {100, 137, kRed, "face"}});
    const QColor wall(image.pixel(100, 150));
    EXPECT_EQ(wall.green(), 0) << "the wall has the sector's hue";
    EXPECT_LT(wall.red(), 240) << "and is darker";
    EXPECT_NE(at(image, 100, 158), kWhite);
    shows(image, {{100, 162, kWhite, "20 pixels below the face it ends"}, {100, 57, kWhite, "no wall above"}});

    Pie oblique({1});
    CPieChart_set3D(oblique.pie, 20, 45, true); // the face stays round, the body lies 14, 14 aside
    image = oblique.picture();
    around(image, {{0, 77, kRed}, {315, 77, kRed}});
    EXPECT_NE(roundAt(image, QPoint(100, 100), 135, 97), kWhite);
    EXPECT_NE(roundAt(image, QPoint(100, 100), 135, 97), kRed);
    around(image, {{135, 104, kWhite}, {315, 83, kWhite}});

    Pie plain({1});
    CPieChart_set3D(plain.pie, -1, -1, false); // both automatic: tilted and deep enough to be seen
    image = plain.picture();
    EXPECT_EQ(at(image, 100, 25), kWhite);
    EXPECT_NE(at(image, 100, 100 + 57 + 6), kWhite);
    EXPECT_LT(QColor(image.pixel(100, 100 + 57 + 6)).red(), 240);
}

TEST(PiePicture, ShowsInnerAndCutWalls) {
    Pie donut({1});
    CPieChart_setDonutSize(donut.pie, 100, 100, 50, 80);
    CPieChart_set3D(donut.pie, 15, 60, false);
    QImage image = donut.picture();
    // The hole reaches from row 75 to 125; the inner wall hangs 15 pixels from its far edge.
    EXPECT_LT(QColor(image.pixel(100, 82)).red(), 240);
    EXPECT_EQ(qGreen(image.pixel(100, 82)), 0);
    shows(image, {{100, 95, kWhite}, {100, 122, kWhite, "the near edge hides its wall"}});

    // Halves pulled apart, one in front: the rear one shows its cut, the front one not.
    Pie halves({1, 1});
    CPieChart_setStartAngle(halves.pie, 90, true); // red in front
    CPieChart_set3D(halves.pie, 12, 45, false);
    CSector_setExplode(CPieChart_sector(halves.pie, 0), 40);
    image = halves.picture();
    EXPECT_EQ(qRed(image.pixel(100, 106)), 0);
    EXPECT_LT(QColor(image.pixel(100, 106)).green(), 240);
    shows(image, {{100, 118, kWhite}, {100, 131, kRed, "the near one begins with its face"}});
}
} // namespace
