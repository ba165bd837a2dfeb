// The frame by its pixels, through the flat surface.

#include "tests/engine/chart/picture.h"
#include "tests/engine/xy/probe.h"
#include <initializer_list>

namespace {
using namespace pictures;

constexpr int kGrid = 0xcccccc, kEdge = 0x111111, kPaper = 0xeeeeff;

/// 400 x 300, frame lines on columns 50 and 350, rows 30 and 230; 0 to 6 in steps of 2, 0 to 100 by 25; no
/// labels, so that every pixel is known.
struct Frame {
    XYChart* xy = CXYChart_create(400, 300, kWhite, kNone, 0);
    BaseChart* base = XYChart2BaseChart(xy);
    PlotArea* area = CXYChart_setPlotArea(xy, 50, 30, 300, 200, kPaper, -1, kEdge, kGrid, kNone);
    Axis* x = CXYChart_xAxis(xy);
    Axis* y = CXYChart_yAxis(xy);

    Frame() {
        CAxis_setLinearScale(x, 0, 6, 2, 1);
        CAxis_setLinearScale(y, 0, 100, 25, 5);
        for (Axis* axis : {x, y}) CAxis_setColors(axis, 0, kNone, -1, -1);
    }
    QImage picture() const { return of(base); }
};

TEST(FramePicture, NothingIsDrawnBeforeThereIsAPlotArea) {
    XYChart* xy = CXYChart_create(100, 80, kWhite, kNone, 0);
    const double data[] = {1, 2, 3};
    CAxis_setTitle(CXYChart_xAxis2(xy), "Title", nullptr, 10, 0);
    CAxis_setLabels2(CXYChart_xAxis(xy), data, 3, nullptr);
    EXPECT_EQ(inked(of(XYChart2BaseChart(xy)), kWhite), 0);
}

TEST(FramePicture, LinesAndGridLieOnWholePixels) {
    const QImage image = Frame().picture();
    for (const int y : {30, 80, 130, 180, 230})
        shows(image, {{50, y, 0, "axis line"}, {46, y, 0, "tick of 4 pixels"}, {45, y, kWhite}, {46, y + 1, kWhite}});
    shows(image, {{48, 220, 0, "minor tick of 2 pixels at 5"}, {47, 220, kWhite}});
    for (const int y : {80, 130, 180}) shows(image, {{200, y, kGrid}, {200, y - 1, kPaper}, {200, y + 1, kPaper}});
    shows(image, {{150, 100, kPaper, "no vertical grid"},
                  {350, 100, kEdge, "the frame's far lines"},
                  {200, 30, kEdge},
                  {351, 100, kWhite},
                  {200, 29, kWhite},
                  {150, 234, 0, "tick of the x axis"},
                  {150, 235, kWhite}});
}

TEST(FramePicture, ZonesLieUnderTheGridAndTurnWithTheAxes) {
    Frame frame;
    CAxis_addZone(frame.y, 75, 25, 0x99ff99); // in either order
    CAxis_addZone(frame.x, 4, 1e308, 0xff9999);
    CAxis_addZone(frame.x, 0, std::nan(""), 0xff0000);
    QImage image = frame.picture();
    shows(image, {{100, 81, 0x99ff99},
                  {100, 179, 0x99ff99},
                  {100, 181, kPaper},
                  {100, 79, kPaper},
                  {100, 130, kGrid},
                  {349, 100, 0x99ff99, "axes in their order: x, then y"},
                  {349, 200, 0xff9999},
                  {249, 200, kPaper},
                  {250, 200, 0xff9999}});

    Frame turned;
    CXYChart_swapXY(turned.xy, true);
    CAxis_addZone(turned.y, 25, 75, 0x99ff99);
    image = turned.picture();
    shows(image, {{200, 100, 0x99ff99}, {100, 100, kPaper}});
}

TEST(FramePicture, LayersAreDrawnOverTheAxesInTheirOrder) {
    Frame frame;
    auto* chart = chartdraw::object<chartdraw::XYChart>(frame.xy);
    for (const int colour : {0xff0000, 0x00ff00}) {
        auto* layer = chart->addLayer<chartdraw::Probe>(chartdraw::Probe::Form::Polyline, std::vector<double>{0, 0, 0});
        layer->dataSet(0)->setColours(colour, colour, colour, colour);
    }
    const QImage image = frame.picture();
    shows(image, {{100, 230, 0x00ff00, "on the axis line, the last one on top"},
                  {100, 229, kPaper, "2 pixels wide: this row and the one below"},
                  {300, 230, 0, "rows 0 to 2 of an axis to 6"}});
}

TEST(FramePicture, WallsStandBehindAFrontThatKeepsItsPlace) {
    Frame frame;
    auto* chart = chartdraw::object<chartdraw::XYChart>(frame.xy);
    chart->addLayer<chartdraw::Probe>(chartdraw::Probe::Form::Polyline, std::vector<double>{})->set3D(20, 0);
    const QImage image = frame.picture();
    shows(image, {{370, 100, kEdge, "the back wall's right line, 20 to the right"},
                  {220, 160, kGrid, "the grid of 25 on the back wall, 20 up"},
                  {220, 10, kEdge},
                  {50, 100, 0, "the axis in front"}});
    EXPECT_NE(at(image, 58, 200), kPaper); // the side wall is a shade darker
    EXPECT_NE(at(image, 58, 200), kWhite);
}
} // namespace
