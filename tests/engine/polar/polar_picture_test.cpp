// Polar charts by their pixels: plot area, grid, zones, layers and labels, at places worked out by hand.

#include "tests/engine/chart/round.h"
#include <QColor>
#include <limits>

namespace {
using namespace pictures;

const QPoint kCentre(150, 150);

/// A chart of 300 x 300, radius 100 for 0 to 100 about (150, 150), without grid, axis and labels.
struct Polar {
    PolarChart* polar = CPolarChart_create(300, 300, kWhite, CHART_TRANSPARENT, 0);
    BaseChart* chart = PolarChart2BaseChart(polar);
    Axis* radial = CPolarChart_radialAxis(polar);
    AngularAxis* angular = CPolarChart_angularAxis(polar);

    Polar() {
        CPolarChart_setPlotArea(polar, kCentre.x(), kCentre.y(), 100, -1, -1, 1);
        CPolarChart_setGridColor(polar, CHART_TRANSPARENT, 0, CHART_TRANSPARENT, 0);
        CAxis_setLinearScale(radial, 0, 100, 25, 0);
        CAxis_setColors(radial, CHART_TRANSPARENT, CHART_TRANSPARENT, -1, -1);
        CAngularAxis_setLabelStyle(angular, nullptr, 8, CHART_TRANSPARENT, 0);
    }
    PolarLineLayer* line(const std::vector<double>& data, const std::vector<double>& angles, int colour,
                         int width = 3) {
        PolarLineLayer* layer =
            CPolarChart_addLineLayer(polar, data.data(), static_cast<int>(data.size()), colour, "line");
        CPolarLayer_setAngles(PolarLineLayer2PolarLayer(layer), angles.data(), static_cast<int>(angles.size()));
        CPolarLayer_setLineWidth(PolarLineLayer2PolarLayer(layer), width);
        return layer;
    }
    QImage picture() { return of(chart); }
};

void around(const QImage& image, std::initializer_list<RoundPixel> pixels) { showsAround(image, kCentre, pixels); }

bool dark(const QImage& image, double degrees, double distance) {
    return QColor(image.pixel(roundPoint(kCentre, degrees, distance))).lightness() < 200;
}

TEST(PolarChart, DrawsRingsAndSpokesAboveOrBelowTheLayers) {
    Polar p;
    CPolarChart_setGridColor(p.polar, kRed, 1, kBlue, 3);
    CAngularAxis_setLinearScale(p.angular, 0, 360, 45, 15);
    const QImage image = of(p.chart, false);
    for (const double distance : {25.0, 50.0, 75.0, 100.0}) {
        EXPECT_TRUE(dark(image, 20, distance)) << distance;
        EXPECT_FALSE(dark(image, 20, distance - 4)) << distance;
    }
    for (int i = 0; i < 8; ++i) {
        around(image, {{i * 45.0, 60, kBlue},
                       {i * 45.0 + 20, 60, kWhite},
                       {i * 45.0 + 15, 97, kBlue, "minor mark"},
                       {i * 45.0 + 15, 90, kWhite, "minor mark"}});
    }
    const double ones[] = {100, 100, 100, 100, 100, 100, 100, 100};
    CPolarChart_addAreaLayer(p.polar, ones, 8, kGreen, nullptr);
    around(of(p.chart, false), {{45, 60, kBlue, "on top by default"}});
    CPolarChart_setGridStyle(p.polar, false, false);
    around(p.picture(), {{45, 60, kGreen}});
}

TEST(PolarChart, LaysATranslucentGridOnOnce) {
    Polar p;
    const int half = static_cast<int>(0x80000000);
    CPolarChart_setGridColor(p.polar, half, 3, half, 3);
    const QImage image = p.picture();
    EXPECT_NEAR(qRed(image.pixel(150, 150)), 127, 2) << "where all spokes meet";
    for (const double degrees : {0.0, 90.0, 180.0, 270.0}) {
        for (const double distance : {40.0, 50.0}) { // on a spoke, and where it meets a ring
            const QPoint point = roundPoint(kCentre, degrees, distance);
            EXPECT_NEAR(qRed(image.pixel(point)), 127, 2) << degrees << ", " << distance;
        }
    }
    EXPECT_NEAR(qRed(image.pixel(roundPoint(kCentre, 45, 50))), 127, 2) << "on a ring";
}

TEST(PolarChart, CutsDataOffAtTheCircleAndNotAtThePolygon) {
    const auto picture = [](bool curved, const std::vector<double>& data, const std::vector<double>& angles) {
        Polar p;
        CPolarChart_setGridStyle(p.polar, true, true);
        CAngularAxis_setLinearScale(p.angular, 0, 360, 90, 0);
        const int count = static_cast<int>(data.size());
        if (!curved) {
            p.line(data, angles, kRed);
        } else {
            PolarSplineLineLayer* spline = CPolarChart_addSplineLineLayer(p.polar, data.data(), count, kRed, nullptr);
            PolarLayer* layer = PolarLineLayer2PolarLayer(PolarSplineLineLayer2PolarLineLayer(spline));
            CPolarLayer_setAngles(layer, angles.data(), count);
            CPolarLayer_setLineWidth(layer, 3);
        }
        return p.picture();
    };
    around(picture(false, {10, 95, CHART_NO_VALUE, 150}, {45, 45, 45, 200}),
           {{45, 85, kRed, "the polygon ends at 71"}, {200, 110, kWhite}});
    for (const bool curved : {false, true}) {
        const QImage image = picture(curved, {90, 92, 150, 90}, {45, 135, 225, 315});
        around(image, {{45, 90, kRed}, {135, 92, kRed}, {315, 90, kRed}, {225, 95, kWhite, "above the scale"}});
        for (int degrees = 0; degrees < 360; ++degrees)
            around(image, {{static_cast<double>(degrees), 104, kWhite, "beyond the circle"}});
    }
}

TEST(PolarChart, TakesSectorsBeyondCount) {
    Polar p;
    CPolarChart_setPlotArea(p.polar, 150, 150, 8000, -1, -1, 1);
    CPolarChart_setPlotAreaBg(p.polar, kGreen, kBlue, false);
    CAngularAxis_setLinearScale(p.angular, 0, 360, 0.05, 0); // sectors of a tenth of a pixel
    const QImage image = p.picture();
    EXPECT_EQ(inked(image, kWhite), 300 * 300);
    EXPECT_NEAR(qGreen(image.pixel(250, 80)), 127, 60) << "one sector as good as the other";
}

TEST(PolarChart, DrawsLinesThroughTheirPoints) {
    Polar p;
    PolarLineLayer* layer = p.line({80, 80, 80}, {0, 90, 180}, kRed);
    QImage image = of(p.chart, false);
    // Straight from point to point: half way between two at a right angle the line is 56.6 from the centre.
    around(image, {{45, 56.6, kRed}, {135, 56.6, kRed}, {0, 40, kRed, "closed by default"}});
    CPolarLineLayer_setCloseLoop(layer, false);
    image = of(p.chart, false);
    around(image, {{0, 40, kWhite}, {45, 56.6, kRed}});
    CPolarLayer_setLineWidth(PolarLineLayer2PolarLayer(layer), 0);
    EXPECT_EQ(inked(p.picture(), kWhite), 0);
}

TEST(PolarChart, SpreadsRowsEvenlyWithoutAngles) {
    Polar p;
    p.line({80, 40, 80, 40}, {}, kRed);
    const QImage image = of(p.chart, false);
    around(image, {{0, 80, kRed}, {90, 40, kRed}, {180, 80, kRed}, {270, 40, kRed}});
    // With labels, a row a label: four rows of eight fill half a turn.
    const char* const labels[] = {"1", "2", "3", "4", "5", "6", "7", "8"};
    CAngularAxis_setLabels(p.angular, labels, 8);
    const QImage half = p.picture();
    around(half, {{90, 80, kRed}, {135, 40, kRed}, {200, 40, kWhite}});
}

TEST(PolarChart, TakesGapsRepeatedAnglesAndValuesBeyondTheScale) {
    Polar p;
    const double gap = CHART_NO_VALUE;
    PolarLineLayer* layer = p.line({80, 80, gap, 80, 80}, {0, 45, 90, 135, 180}, kRed);
    QImage image = of(p.chart, false);
    around(image, {{22.5, 73.9, kRed},
                   {157.5, 73.9, kRed},
                   {90, 56.6, kWhite, "broken at the gap"},
                   {0, 40, kRed, "closed nevertheless"}});
    CPolarLayer_setLineWidth(PolarLineLayer2PolarLayer(layer), 0);

    // A negative radius is at the centre, one beyond the scale is cut off, an angle goes on round, and one
    // angle twice is a line along it. Rows without an angle are left out.
    p.line({-500, 50, 1000, 30, 60, 99}, {30, 60 + 720, 60 - 360, 240, 240}, kBlue);
    image = p.picture();
    around(
        image,
        {{60, 25, kBlue, "from the centre"}, {60, 97, kBlue}, {60, 105, kWhite}, {240, 45, kBlue}, {240, 70, kWhite}});
}

TEST(PolarChart, PutsNegativeRadiiOnAScaleOfTheirOwn) {
    Polar p;
    CAxis_setAutoScale(p.radial, 0, 0, 0);
    p.line({-100, 0, 100, 0}, {0, 90, 180, 270}, kRed);
    const QImage image = p.picture();
    around(image, {{180, 99, kRed, "the largest is at the rim"},
                   {90, 50, kRed, "zero halfway"},
                   {0, 1, kRed, "the smallest at the centre"}});
}

TEST(PolarChart, KeepsMarginsFreeAtTheRimAndTheCentre) {
    Polar p;
    CAxis_setMargin(p.radial, 20, 10);
    p.line({100, 0}, {45, 135}, kRed);
    const QImage image = p.picture();
    around(image, {{45, 80, kRed}, {45, 84, kWhite}, {135, 10, kRed}});
}

TEST(PolarChart, FillsAreasAndSmoothsCurves) {
    Polar p;
    const double data[] = {80, 80, CHART_NO_VALUE, 80, 80};
    PolarAreaLayer* area = CPolarChart_addAreaLayer(p.polar, data, 5, kGreen, nullptr);
    const double angles[] = {0, 90, 100, 180, 270};
    CPolarLayer_setAngles(PolarAreaLayer2PolarLayer(area), angles, 5);
    QImage image = of(p.chart, false);
    around(image, {{45, 54, kGreen},
                   {45, 60, kWhite, "straight from point to point"},
                   {135, 54, kGreen, "a gap is passed over"}});

    PolarSplineAreaLayer* smooth = CPolarChart_addSplineAreaLayer(p.polar, data, 5, kRed, nullptr);
    CPolarLayer_setAngles(PolarAreaLayer2PolarLayer(PolarSplineAreaLayer2PolarAreaLayer(smooth)), angles, 5);
    image = of(p.chart, false);
    for (const double degrees : {45.0, 135.0, 225.0, 315.0})
        around(image, {{degrees, 70, kRed, "nearly a circle"}, {degrees, 85, kWhite}});
    const double even[] = {80, 80, 80, 80};
    PolarLineLayer* line =
        PolarSplineLineLayer2PolarLineLayer(CPolarChart_addSplineLineLayer(p.polar, even, 4, kBlue, nullptr));
    CPolarLayer_setLineWidth(PolarLineLayer2PolarLayer(line), 9);
    around(of(p.chart, false), {{315, 71, kBlue}});
    CPolarLineLayer_setCloseLoop(line, false);
    image = p.picture();
    EXPECT_NE(roundAt(image, kCentre, 315, 71), kBlue);
    around(image, {{135, 71, kBlue}});
}

TEST(PolarChart, KeepsAngularLabelsOutsideThePlotInsideThePictureAndApart) {
    for (const int count : {3, 8, 12, 24, 60, 500}) {
        for (const double size : {8.0, 12.0}) {
            Polar p;
            std::vector<std::string> texts;
            std::vector<const char*> labels;
            for (int i = 0; i < count; ++i) texts.push_back("No. " + std::to_string(i));
            for (const std::string& text : texts) labels.push_back(text.c_str());
            CAngularAxis_setLabels(p.angular, labels.data(), count);
            boxed(CAngularAxis_setLabelStyle(p.angular, nullptr, size, kRed, 0));
            const auto boxes = boxesApart(p.picture(), std::to_string(count));
            EXPECT_GE(boxes.size(), static_cast<std::size_t>(std::min(count, 8)));
            for (const QRect& box : boxes) EXPECT_GE(nearestOf(box, kCentre), 101) << count << ' ' << box;
        }
    }
}

TEST(PolarChart, ShowsTheRadialAxisUpwardsFromTheCentre) {
    Polar p;
    CAxis_setColors(p.radial, kBlue, CHART_TRANSPARENT, -1, kRed);
    QImage image = of(p.chart, false);
    EXPECT_EQ(boundsOf(image, kBlue), QRect(150, 50, 1, 101));
    EXPECT_EQ(boundsOf(image, kRed).left(), 146) << "ticks of 4 pixels on the left";
    boxed(CAxis_setLabelStyle(p.radial, nullptr, 8, kGreen, 0), kGreen);
    image = of(p.chart, false);
    const QRect labels = boundsOf(image, kGreen);
    EXPECT_LT(labels.right(), 146);
    EXPECT_NEAR(labels.top(), 44, 2) << "the outermost is level with its tick, where there is room";
    EXPECT_NEAR(labels.bottom(), 156, 4);
    CAxis_addMark(p.radial, 60, 0x123456, "limit", nullptr, 8);
    CAxis_addMark(p.radial, 600, kRed, "unseen", nullptr, 8);
    CAxis_setReverse(p.radial, true);
    image = p.picture();
    EXPECT_LT(QColor(image.pixel(roundPoint(kCentre, 135, 40))).lightness(), 160)
        << "reversed, 60 is 40 from the centre";
}

TEST(PolarChart, PlacesDataLabelsBesideTheirPointsAndApart) {
    Polar p;
    std::vector<double> data, angles;
    for (int i = 0; i < 40; ++i) {
        data.push_back(20 + i * 37 % 80);
        angles.push_back(i * 360.0 / 40);
    }
    PolarLayer* layer = PolarLineLayer2PolarLayer(p.line(data, angles, kRed, 0));
    boxed(CPolarLayer_setDataLabelStyle(layer, nullptr, 8, kBlue, 0), kBlue);
    CPolarLayer_setDataLabelFormat(layer, "{value}");
    const QImage image = p.picture();
    const auto boxes = patches(image, kWhite);
    EXPECT_GE(boxes.size(), 20u);
    int together = 0;
    for (const QRect& box : boxes) {
        EXPECT_TRUE(image.rect().contains(box)) << box;
        together += box.height() > 20 || box.width() > 45 ? 1 : 0; // two that touch are one patch
        double nearest = 1000;
        for (std::size_t i = 0; i < data.size(); ++i)
            nearest = std::min(nearest, nearestOf(box, roundPoint(kCentre, angles[i], data[i])));
        EXPECT_LE(nearest, 4) << box;
    }
    EXPECT_LE(together, 6);

    Polar format;
    layer = PolarLineLayer2PolarLayer(format.line({60}, {90}, kRed, 0));
    CPolarLayer_setDataLabelStyle(layer, nullptr, 8, kBlue, 0);
    CPolarLayer_setDataLabelFormat(layer, " ");
    EXPECT_EQ(inked(format.picture(), kWhite), 0);
}
} // namespace
