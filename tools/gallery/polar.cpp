// Polar charts: layers, grids, labels around the circle, zones, and data that is hard to show.

#include "tools/gallery/gallery.h"

#include <cmath>

namespace {

using gallery::points;

const double kRadii[] = {90, 25, 40, 55, 68, 44, 79, 85, 50};
const double kAngles[] = {15, 60, 110, 180, 230, 260, 260, 310, 340};
const char* const kMonths[] = {"January", "February", "March",     "April",   "May",      "June",
                               "July",    "August",   "September", "October", "November", "December"};
const double kMonthly[] = {42, 49, 61, 58, 73, 88, 92, 84, 70, 66, 51, 45};
const double kOther[] = {22, 31, 44, 62, 55, 47, 60, 71, 79, 52, 38, 25};

struct Polar {
    PolarChart* polar;
    BaseChart* chart;

    Polar(int width, int height, int radius)
        : polar(CPolarChart_create(width, height, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0)),
          chart(PolarChart2BaseChart(polar)) {
        CPolarChart_setPlotArea(polar, width / 2, height / 2, radius, CHART_TRANSPARENT, 0x888888, 1);
        CAngularAxis_setLabelStyle(CPolarChart_angularAxis(polar), nullptr, points(8), -1, 0);
        CAxis_setLabelStyle(CPolarChart_radialAxis(polar), nullptr, points(8), -1, 0);
    }
    Polar() : Polar(340, 320, 120) {}

    Polar& months() {
        CAngularAxis_setLabels(CPolarChart_angularAxis(polar), kMonths, 12);
        return *this;
    }
    PolarLayer* line(const double* data, int count, const double* angles, int color = -1,
                     const char* name = nullptr) {
        PolarLineLayer* layer = CPolarChart_addLineLayer(polar, data, count, color, name);
        PolarLayer* base = PolarLineLayer2PolarLayer(layer);
        CPolarLayer_setAngles(base, angles, angles != nullptr ? count : 0);
        CPolarLayer_setLineWidth(base, 2);
        return base;
    }
};

BaseChart* layoutSample() {
    PolarChart* polar = CPolarChart_create(500, 550, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
    CPolarChart_setPlotArea(polar, 250, 275, 200, CHART_TRANSPARENT, CHART_TRANSPARENT, 1);
    PolarLayer* layer = PolarLineLayer2PolarLayer(CPolarChart_addLineLayer(polar, kRadii, 9, 0xff, nullptr));
    CPolarLayer_setAngles(layer, kAngles, 9);
    CPolarLayer_setDataLabelStyle(layer, nullptr, points(8), -1, 0);
    CPolarLayer_setDataLabelFormat(layer, "{value}");
    return PolarChart2BaseChart(polar);
}

/// As a new model comes out: translucent black grid, one layer with random angles.
BaseChart* modelDefault() {
    Polar p(500, 550, 200);
    CPolarChart_setPlotArea(p.polar, 250, 275, 200, CHART_TRANSPARENT, CHART_TRANSPARENT, 1);
    CPolarChart_setGridStyle(p.polar, false, true);
    CPolarChart_setGridColor(p.polar, static_cast<int>(0x80000000), 1, static_cast<int>(0x80000000), 1);
    const double angles[] = {351, 322, 288, 207, 176, 122, 101, 58, 9};
    PolarLineLayer* layer = CPolarChart_addLineLayer(p.polar, kRadii, 9, 0x33ff33, nullptr);
    CPolarLayer_setAngles(PolarLineLayer2PolarLayer(layer), angles, 9);
    CPolarLayer_setLineWidth(PolarLineLayer2PolarLayer(layer), 2);
    CPolarLineLayer_setCloseLoop(layer, false);
    return p.chart;
}

BaseChart* empty() {
    Polar p;
    CAxis_setLinearScale(CPolarChart_radialAxis(p.polar), 0, 100, 10, 0);
    return p.chart;
}

BaseChart* evenLine() {
    Polar p;
    p.months().line(kMonthly, 12, nullptr, -1, "2024");
    CPolarLayer_setDataSymbol(p.line(kOther, 12, nullptr, -1, "2025"), CHART_CIRCLE_SYMBOL, 7, -1, 0xffffff,
                              1);
    CBaseChart_addLegend(p.chart, 8, 6, true, nullptr, points(8));
    return p.chart;
}

BaseChart* spline() {
    Polar p;
    p.months();
    PolarSplineLineLayer* layer = CPolarChart_addSplineLineLayer(p.polar, kMonthly, 12, 0xcc3366, "Smooth");
    PolarLayer* base = PolarLineLayer2PolarLayer(PolarSplineLineLayer2PolarLineLayer(layer));
    CPolarLayer_setLineWidth(base, 3);
    CPolarLayer_setDataSymbol(base, CHART_DIAMOND_SYMBOL, 9, 0xffffff, 0xcc3366, 2);
    CBaseChart_addLegend(p.chart, 8, 6, true, nullptr, points(8));
    return p.chart;
}

BaseChart* areas() {
    Polar p;
    p.months();
    CPolarChart_setGridStyle(p.polar, true, true);
    CPolarChart_addAreaLayer(p.polar, kMonthly, 12, static_cast<int>(0x803366cc), "Plan");
    CPolarChart_addAreaLayer(p.polar, kOther, 12, static_cast<int>(0x80cc6633), "Real");
    CBaseChart_addLegend(p.chart, 8, 6, true, nullptr, points(8));
    return p.chart;
}

/// Inside the circle all is seen, the polygon of the grid cuts nothing off.
BaseChart* beyondPolygon() {
    Polar p;
    const double data[] = {95, 90, 150, 92}, angles[] = {45, 135, 225, 315};
    CPolarChart_setGridStyle(p.polar, true, false);
    CAxis_setLinearScale(CPolarChart_radialAxis(p.polar), 0, 100, 25, 0);
    CAngularAxis_setLinearScale(CPolarChart_angularAxis(p.polar), 0, 360, 90, 0);
    p.line(data, 4, angles);
    PolarSplineLineLayer* spline = CPolarChart_addSplineLineLayer(p.polar, data, 4, 0xcc3366, nullptr);
    CPolarLayer_setAngles(PolarLineLayer2PolarLayer(PolarSplineLineLayer2PolarLineLayer(spline)), angles, 4);
    return p.chart;
}

BaseChart* fineSectors() {
    Polar p(340, 320, 8000);
    CPolarChart_setPlotAreaBg(p.polar, 0xf4f8ff, 0xa0b8d8, false);
    CPolarChart_setGridColor(p.polar, CHART_TRANSPARENT, 0, CHART_TRANSPARENT, 0);
    CAngularAxis_setLinearScale(CPolarChart_angularAxis(p.polar), 0, 360, 0.05, 0);
    p.line(kRadii, 9, kAngles);
    return p.chart;
}

BaseChart* splineArea() {
    Polar p;
    p.months();
    PolarSplineAreaLayer* layer =
        CPolarChart_addSplineAreaLayer(p.polar, kMonthly, 12, static_cast<int>(0x6033aa66), "Smooth");
    CPolarLayer_setLineWidth(PolarAreaLayer2PolarLayer(PolarSplineAreaLayer2PolarAreaLayer(layer)), 2);
    CPolarChart_setGridStyle(p.polar, false, false);
    return p.chart;
}

BaseChart* openLoop() {
    Polar p;
    const double angles[] = {340, 310, 275, 250, 190, 150, 110, 60, 15};
    PolarSplineLineLayer* layer = CPolarChart_addSplineLineLayer(p.polar, kRadii, 9, 0x336699, nullptr);
    PolarLineLayer* line = PolarSplineLineLayer2PolarLineLayer(layer);
    CPolarLineLayer_setCloseLoop(line, false);
    CPolarLayer_setAngles(PolarLineLayer2PolarLayer(line), angles, 9);
    CPolarLayer_setLineWidth(PolarLineLayer2PolarLayer(line), 2);
    return p.chart;
}

BaseChart* rings() {
    Polar p;
    CPolarChart_setPlotAreaBg(p.polar, 0xdddddd, 0xeeeeee, true);
    p.line(kRadii, 9, kAngles, 0x993333);
    return p.chart;
}

BaseChart* sectors() {
    Polar p;
    CPolarChart_setPlotAreaBg(p.polar, 0xe4ecf7, 0xf7f9fc, false);
    p.line(kRadii, 9, kAngles, 0x993333);
    return p.chart;
}

BaseChart* polygonRings() {
    Polar p;
    p.months();
    CPolarChart_setGridStyle(p.polar, true, true);
    CPolarChart_setPlotAreaBg(p.polar, 0xe8f0e8, 0xf6faf6, true);
    p.line(kMonthly, 12, nullptr, 0x226633);
    return p.chart;
}

BaseChart* zones() {
    Polar p;
    CAxis_addZone(CPolarChart_radialAxis(p.polar), 60, 80, static_cast<int>(0x60ffcc66));
    CAxis_addZone(CPolarChart_radialAxis(p.polar), 80, 100, static_cast<int>(0x60ff8866));
    CAngularAxis_addZone2(CPolarChart_angularAxis(p.polar), 30, 75, static_cast<int>(0x8066aaff), 0x3366aa);
    CAngularAxis_addZone2(CPolarChart_angularAxis(p.polar), 345, 15, static_cast<int>(0x80aaff66), -1);
    p.line(kRadii, 9, kAngles, 0x222222);
    return p.chart;
}

BaseChart* scatter() {
    Polar p;
    for (int shape = CHART_SQUARE_SYMBOL; shape <= CHART_CROSS2_SYMBOL; ++shape) {
        double data[6], angles[6];
        for (int i = 0; i < 6; ++i) {
            data[i] = 15 + 14 * i;
            angles[i] = shape * 40 + i * 9;
        }
        PolarLayer* layer = p.line(data, 6, angles);
        CPolarLayer_setLineWidth(layer, 0);
        CPolarLayer_setDataSymbol(layer, shape, 11, -1, 0x333333, 1);
    }
    return p.chart;
}

BaseChart* bubbles() {
    Polar p;
    PolarLayer* layer = p.line(kRadii, 9, kAngles);
    const double sizes[] = {12, 25, 8, 30, 17, 22, 5, 14, 28};
    CPolarLayer_setLineWidth(layer, 0);
    CPolarLayer_setDataSymbol(layer, CHART_CIRCLE_SYMBOL, 11, static_cast<int>(0x60ff3333), 0x992222, 1);
    CPolarLayer_setSymbolScale(layer, sizes, 9, CHART_SCALE_PIXELS);
    return p.chart;
}

BaseChart* dataLabels() {
    Polar p;
    PolarLayer* layer = p.line(kRadii, 9, kAngles, 0x336699);
    CPolarLayer_setDataSymbol(layer, CHART_SQUARE_SYMBOL, 7, -1, -1, 1);
    TextBox* style = CPolarLayer_setDataLabelStyle(layer, "bold", points(8), 0x333333, 0);
    CBox_setBackground(TextBox2Box(style), 0xffffe8, 0xaaaaaa, 0);
    CPolarLayer_setDataLabelFormat(layer, "{angle}°: {value}");
    return p.chart;
}

BaseChart* hardData() {
    Polar p;
    CAxis_setLinearScale(CPolarChart_radialAxis(p.polar), 0, 100, 20, 0);
    const double data[] = {50, -40, 130, CHART_NO_VALUE, 70, NAN, 60, 60, 90};
    const double angles[] = {0, 40, 90, 120, 160, 200, -90, 660, 720};
    PolarLayer* layer = p.line(data, 9, angles, 0xaa3377);
    CPolarLayer_setDataSymbol(layer, CHART_CIRCLE_SYMBOL, 8, -1, -1, 1);
    CPolarLayer_setDataLabelStyle(layer, nullptr, points(8), -1, 0);
    return p.chart;
}

BaseChart* negative() {
    Polar p;
    const double data[] = {-40, -10, 20, 35, 10, -25, -45, -5};
    p.line(data, 8, nullptr, 0xaa3377);
    return p.chart;
}

BaseChart* clockScale() {
    Polar p;
    AngularAxis* axis = CPolarChart_angularAxis(p.polar);
    CAngularAxis_setLinearScale(axis, 0, 24, 3, 1);
    double data[48], angles[48];
    for (int i = 0; i < 48; ++i) {
        angles[i] = i / 2.0;
        data[i] = 55 + 30 * std::sin(i * 0.27) + 8 * std::sin(i * 1.3);
    }
    p.line(data, 48, angles, 0x226688);
    return p.chart;
}

BaseChart* longLabels() {
    Polar p(340, 300, 90);
    const char* const labels[] = {"Customer satisfaction", "Quality of service",
                                  "Speed of delivery",     "Price",
                                  "Reliability over time", "Environmental footprint"};
    const double data[] = {4, 3.5, 4.5, 2, 3, 4.2};
    CAngularAxis_setLabels(CPolarChart_angularAxis(p.polar), labels, 6);
    CPolarChart_setGridStyle(p.polar, true, false);
    CPolarChart_addAreaLayer(p.polar, data, 6, static_cast<int>(0x703388cc), nullptr);
    return p.chart;
}

BaseChart* manyLabels() {
    Polar p;
    const char* labels[60];
    double data[60];
    for (int i = 0; i < 60; ++i) {
        labels[i] = kMonths[i % 12];
        data[i] = 40 + i * 37 % 41;
    }
    CAngularAxis_setLabels(CPolarChart_angularAxis(p.polar), labels, 60);
    p.line(data, 60, nullptr);
    return p.chart;
}

BaseChart* styledAxis() {
    Polar p;
    Axis* axis = CPolarChart_radialAxis(p.polar);
    CAxis_setLinearScale(axis, 0, 100, 25, 5);
    CAxis_setColors(axis, 0x884422, 0x884422, 0x884422, 0x884422);
    CAxis_setWidth(axis, 2);
    TextBox* style = CAxis_setLabelStyle(axis, "bold", points(8), 0x884422, 0);
    CBox_setBackground(TextBox2Box(style), 0xfff4e8, 0xddaa88, 0);
    CAxis_setTitle(axis, "Gain (dB)", "italic", points(8), 0x884422);
    CAxis_addMark(axis, 60, 0xcc0000, "limit", nullptr, points(8));
    CPolarChart_setGridColor(p.polar, 0xddaa88, 1, 0x88aadd, 2);
    TextBox* angular =
        CAngularAxis_setLabelStyle(CPolarChart_angularAxis(p.polar), "bold", points(8), 0x335577, 0);
    CBox_setBackground(TextBox2Box(angular), 0xe8f0fa, 0x88aadd, 0);
    p.line(kRadii, 9, kAngles, 0x335577);
    return p.chart;
}

BaseChart* logScale() {
    Polar p;
    Axis* axis = CPolarChart_radialAxis(p.polar);
    const double data[] = {1, 10, 100, 1000, 10000, 300, 20, 3};
    CAxis_setLogScale3(axis, nullptr);
    p.line(data, 8, nullptr, 0x664499);
    return p.chart;
}

BaseChart* anticlockwise() {
    Polar p;
    CAngularAxis_setLinearScale(CPolarChart_angularAxis(p.polar), 360, 0, 45, 15);
    CAxis_setReverse(CPolarChart_radialAxis(p.polar), true);
    p.line(kRadii, 9, kAngles, 0x664499);
    return p.chart;
}

const gallery::Family family("polar", {
                                          {"layout sample", layoutSample},
                                          {"a new model with one layer", modelDefault},
                                          {"no layers", empty},
                                          {"lines at even angles", evenLine},
                                          {"spline", spline},
                                          {"areas, polygon grid", areas},
                                          {"values beyond polygon and scale", beyondPolygon},
                                          {"spline area, grid below", splineArea},
                                          {"open spline", openLoop},
                                          {"alternating rings", rings},
                                          {"alternating sectors", sectors},
                                          {"sectors beyond count", fineSectors},
                                          {"alternating polygons", polygonRings},
                                          {"zones", zones},
                                          {"symbols only", scatter},
                                          {"bubbles", bubbles},
                                          {"data labels", dataLabels},
                                          {"hard data", hardData},
                                          {"negative radii", negative},
                                          {"24 hours, minor ticks", clockScale},
                                          {"long labels", longLabels},
                                          {"60 labels", manyLabels},
                                          {"styled axes, mark, title", styledAxis},
                                          {"log scale", logScale},
                                          {"anticlockwise, reversed", anticlockwise},
                                      });

} // namespace
