// What lies beyond a picture or a scale: limited, or a gap, never a mark of something else.

#include "tests/engine/chart/picture.h"

#include <vector>

namespace {

struct Chart {
    XYChart* xy = CXYChart_create(300, 200, 0xffffff, CHART_TRANSPARENT, 0);
    BaseChart* chart = XYChart2BaseChart(xy);

    Chart() {
        CXYChart_setPlotArea(xy, 50, 20, 200, 150, 0xffffff, -1, CHART_TRANSPARENT, CHART_TRANSPARENT,
                             CHART_TRANSPARENT);
    }
    ~Chart() { CBaseChart_destroy(chart); }
    Chart(const Chart&) = delete;
    Chart& operator=(const Chart&) = delete;
    QImage picture() { return pictures::of(chart, false); }
};

TEST(Limits, DepthBeyondThePictureChangesNothing) {
    const double values[] = {20, 60, 40};
    const auto drawn = [&](int depth) {
        Chart c;
        CXYChart_addLineLayer(c.xy, values, 3, 0x4080c0, nullptr, depth);
        CXYChart_addBarLayer(c.xy, values, 3, 0x4080c0, nullptr, depth);
        return c.picture();
    };
    EXPECT_EQ(drawn(65535), drawn(300));
    EXPECT_NE(drawn(300), drawn(30));
}

TEST(Limits, OfALogScaleMakeGapsOfLines) {
    const double values[] = {1, 10, 0, 10, 100, -5, 10};
    for (const bool smooth : {false, true}) {
        Chart c;
        CAxis_setLogScale3(CXYChart_yAxis(c.xy), nullptr);
        if (smooth)
            CXYChart_addSplineLayer(c.xy, values, 7, 0xff0000, nullptr);
        else
            CXYChart_addLineLayer(c.xy, values, 7, 0xff0000, nullptr, 0);
        const QImage image = c.picture();
        for (const int row : {2, 5}) { // rows stand 200 / 6 pixels apart
            const QImage column = image.copy(50 + row * 200 / 6 - 5, 22, 11, 140);
            EXPECT_EQ(pictures::inked(column, 0xffffff), 0) << row;
        }
        EXPECT_GT(pictures::inked(image.copy(52, 22, 30, 140), 0xffffff), 20);
    }
}

TEST(Limits, OfTickDensityHoldOnDateAxes) {
    for (const int density : {1, 16384, 100000, 0x7fffffff}) {
        Chart c;
        CAxis_setDateScale(CXYChart_xAxis(c.xy), CChart_chartTime(1, 1, 1, 0, 0, 0),
                           CChart_chartTime(9999, 12, 31, 0, 0, 0), 0, 0);
        CAxis_setTickDensity(CXYChart_xAxis(c.xy), density, density);
        EXPECT_EQ(c.picture().size(), QSize(300, 200));
    }
}

TEST(Limits, APolygonGridCutsNothingOffInsideTheScale) {
    PolarChart* polar = CPolarChart_create(300, 200, 0xffffff, CHART_TRANSPARENT, 0);
    CPolarChart_setPlotArea(polar, 150, 100, 80, 0xffffff, CHART_TRANSPARENT, 1);
    CPolarChart_setGridColor(polar, CHART_TRANSPARENT, 1, CHART_TRANSPARENT, 1);
    CPolarChart_setGridStyle(polar, true, true);
    CAngularAxis_setLinearScale(CPolarChart_angularAxis(polar), 0, 360, 90, 0);
    CAxis_setLinearScale(CPolarChart_radialAxis(polar), 0, 100, 50, 0);
    const double radii[] = {10, 95, CHART_NO_VALUE, 150}, angles[] = {45, 45, 45, 200};
    PolarLayer* layer = PolarLineLayer2PolarLayer(CPolarChart_addLineLayer(polar, radii, 4, 0xff0000, nullptr));
    CPolarLayer_setAngles(layer, angles, 4);
    CPolarLayer_setLineWidth(layer, 3);
    const QImage image = pictures::of(PolarChart2BaseChart(polar));
    // At 45 degrees the polygon is 57 pixels out, the point 76.
    EXPECT_EQ(pictures::at(image, 150 + 50, 100 - 50), 0xff0000u);
}

} // namespace
