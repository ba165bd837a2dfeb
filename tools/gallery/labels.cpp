// Labels and other texts where they would come into each other's way: pies, meters, polar charts, values.

#include "tools/gallery/gallery.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

using gallery::Chart;
using gallery::points;

constexpr int kClear = CHART_TRANSPARENT;

BaseChart* pieOf(const std::vector<double>& values, const std::vector<const char*>& names, bool side,
                 double startAngle = 0) {
    PieChart* pie = CPieChart_create(400, 300, CHART_BACKGROUND_COLOR, kClear, 0);
    CPieChart_setPieSize(pie, 180, 150, 80);
    CPieChart_setData(pie, values.data(), static_cast<int>(values.size()), names.data(),
                      static_cast<int>(names.size()));
    CPieChart_setLabelStyle(pie, nullptr, points(8), -1);
    CPieChart_setLabelFormat(pie, "{label} ({value})");
    CPieChart_setStartAngle(pie, startAngle, true);
    if (side)
        CPieChart_setLabelLayout(pie, CHART_SIDE_LAYOUT, -1, -1, -1);
    return PieChart2BaseChart(pie);
}

BaseChart* smallSectors(bool side) {
    std::vector<double> values{40, 35};
    std::vector<const char*> names{"Large", "Larger"};
    for (int i = 0; i < 12; ++i) {
        values.push_back(1);
        names.push_back("Small");
    }
    return pieOf(values, names, side);
}

BaseChart* sixtySectors() {
    return pieOf(std::vector<double>(60, 1), std::vector<const char*>(60, "Part"), true, 60);
}

BaseChart* pieWithTitles() {
    BaseChart* chart = pieOf({30, 20, 20, 15, 10, 5},
                             {"Northern Territories", "South", "West", "East", "Islands", "Others"}, false);
    CBaseChart_addTitle(chart, "Two lines of a title\nover a pie", "bold", points(12), -1, kClear, kClear);
    CBaseChart_addTitle2(chart, CHART_BOTTOM, "Source: our own", nullptr, points(8), -1, 0xf0f0f0, kClear);
    CBaseChart_addLegend(chart, 300, 60, true, nullptr, points(8));
    return chart;
}

BaseChart* longPieNames() {
    return pieOf({30, 20, 25},
                 {"Unbreakablenameofaplacefaraway", "A name of several words that is broken", "West"}, true);
}

BaseChart* meterOf(double top, bool round) {
    const auto finish = [&](BaseMeter* meter) {
        CBaseMeter_setScale(meter, 0, top, 0, 0, 0);
        CBaseMeter_setLabelStyle(meter, nullptr, points(8), -1, 0);
        CBaseMeter_addPointer(meter, top * 0.7, 0xcc3333, -1);
        CBaseChart_addTitle(BaseMeter2BaseChart(meter), "Load", "bold", points(10), -1, kClear, kClear);
        return BaseMeter2BaseChart(meter);
    };
    if (round) {
        AngularMeter* meter = CAngularMeter_create(200, 200, CHART_BACKGROUND_COLOR, kClear, 0);
        CAngularMeter_setMeter(meter, 100, 110, 70, -135, 135);
        return finish(AngularMeter2BaseMeter(meter));
    }
    LinearMeter* meter = CLinearMeter_create(120, 200, CHART_BACKGROUND_COLOR, kClear, 0);
    CLinearMeter_setMeter(meter, 50, 30, 20, 150, CHART_LEFT, false);
    CLinearMeter_addZone(meter, 0, top / 2, 0x99dd99, "Unremarkable");
    return finish(LinearMeter2BaseMeter(meter));
}

BaseChart* radar() {
    PolarChart* polar = CPolarChart_create(300, 260, CHART_BACKGROUND_COLOR, kClear, 0);
    CPolarChart_setPlotArea(polar, 150, 135, 80, kClear, CHART_LINE_COLOR, 1);
    CPolarChart_setGridStyle(polar, true, true);
    const double data[] = {60, 95, 40, 70, 55, 80};
    PolarLineLayer* line = CPolarChart_addLineLayer(polar, data, 6, -1, nullptr);
    CPolarLayer_setDataLabelStyle(PolarLineLayer2PolarLayer(line), nullptr, points(8), -1, 0);
    const char* const names[] = {
        "Speed", "Unbreakablecustomersatisfaction", "Price", "Reach", "Weight", "Quality of service"};
    CAngularAxis_setLabels(CPolarChart_angularAxis(polar), names, 6);
    CAngularAxis_setLabelStyle(CPolarChart_angularAxis(polar), nullptr, points(8), -1, 0);
    CAxis_setLabelStyle(CPolarChart_radialAxis(polar), nullptr, points(8), -1, 0);
    CBaseChart_addTitle(PolarChart2BaseChart(polar), "Comparison", "bold", points(10), -1, kClear, kClear);
    return PolarChart2BaseChart(polar);
}

BaseChart* barsOf(int combine) {
    const Chart chart;
    const double a[] = {25, 18, 31, 3}, b[] = {12, 27.25, 19, 0.5}, c[] = {8, 15, 23, 1.125};
    Layer* layer = BarLayer2Layer(CXYChart_addBarLayer2(chart.xy, combine, 0));
    CLayer_addDataSet(layer, a, 4, 0x1f3a6d, nullptr);
    CLayer_addDataSet(layer, b, 4, 0xf2d06b, nullptr);
    CLayer_addDataSet(layer, c, 4, 0x8b1a1a, nullptr);
    chart.label(layer);
    return chart.base;
}

BaseChart* narrowBars() {
    const Chart chart;
    std::vector<double> data;
    for (int i = 0; i < 60; ++i)
        data.push_back(40 + i * 37 % 60);
    BarLayer* layer = CXYChart_addBarLayer(chart.xy, data.data(), 60, -1, nullptr, 0);
    Chart::label(BarLayer2Layer(layer));
    return chart.base;
}

BaseChart* hugeBars() {
    const Chart chart;
    const double data[] = {2614880000000, 847840000000, 3e12, 1e12, 1955000000000, 9e11};
    CAxis_setLinearScale(chart.y, 0, 3e12, 1e12, 0);
    Chart::label(BarLayer2Layer(CXYChart_addBarLayer(chart.xy, data, 6, -1, nullptr, 0)));
    return chart.base;
}

BaseChart* brokenNames() {
    const Chart chart;
    chart.addBars({25, 18, 31, 22, 28});
    const double rows[] = {0, 1, 2, 3, 4};
    CAxis_setLabels2(chart.x, rows, 5,
                     "{value|\tNorthern Territories\tSouth\tIslands and reefs\tUnbreakablelongname\tWest}");
    return chart.base;
}

BaseChart* stepLabels() {
    const Chart chart;
    const double data[] = {10, 30, 20, 20, 45, 5};
    StepLineLayer* steps = CXYChart_addStepLineLayer(chart.xy, data, 6, -1, nullptr);
    chart.label(LineLayer2Layer(StepLineLayer2LineLayer(steps)));
    return chart.base;
}

BaseChart* valueAxis(const std::vector<double>& data, int left) {
    const Chart chart(left);
    CXYChart_addLineLayer(chart.xy, data.data(), static_cast<int>(data.size()), -1, nullptr, 0);
    return chart.base;
}

BaseChart* upsideDown() {
    const Chart chart;
    const double top[] = {10, 30, 12}, bottom[] = {25, 15, 35};
    BoxWhiskerLayer* boxes = CXYChart_addBoxLayer(chart.xy, top, 3, bottom, 3, 0x88bbee, nullptr);
    chart.label(BaseBoxLayer2Layer(BoxWhiskerLayer2BaseBoxLayer(boxes)));
    return chart.base;
}

BaseChart* datesUpright() {
    const Chart chart(36);
    const double from = CChart_chartTime(2004, 12, 1, 0, 0, 0);
    const double x[] = {1, 2, 3, 4};
    const double y[] = {from, from + 20 * 86400.0, from + 9 * 86400.0, from + 28 * 86400.0};
    CXYChart_addScatterLayer(chart.xy, x, 4, y, 4, nullptr, CHART_CIRCLE_SYMBOL, 7, -1, -1);
    CAxis_setDateScale(chart.y, from, from + 30 * 86400.0, 0, 0);
    return chart.base;
}

BaseChart* logAxis(double top) {
    const Chart chart;
    const double data[] = {3, top / 5, top, top / 2};
    CXYChart_addLineLayer(chart.xy, data, 4, -1, nullptr, 0);
    CAxis_setLogScale3(chart.y, nullptr);
    return chart.base;
}

BaseChart* candles() {
    XYChart* chart = CXYChart_create(550, 260, CHART_BACKGROUND_COLOR, kClear, 0);
    CXYChart_setPlotArea(chart, 50, 20, 480, 200, -1, -1, -1, -1, -1);
    std::vector<double> high, low, open, close;
    for (int i = 0; i < 100; ++i) {
        const double middle = 100 + 12 * std::sin(i * 0.13) + 4 * std::sin(i * 1.7);
        open.push_back(middle);
        close.push_back(100 + 12 * std::sin((i + 1) * 0.13) + 4 * std::sin((i + 1) * 1.7));
        high.push_back(std::max(open.back(), close.back()) + 2);
        low.push_back(std::min(open.back(), close.back()) - 2);
    }
    CXYChart_addCandleStickLayer(chart, high.data(), 100, low.data(), 100, open.data(), 100, close.data(),
                                 100, 0x33aa33, 0xcc3333, -1);
    return XYChart2BaseChart(chart);
}

BaseChart* longKeys() {
    const Chart chart;
    const double data[] = {25, 18, 31};
    for (const char* name : {"A key of so many words that they have to stand on several lines of the legend",
                             "Unbreakablenameofaplacethatisfartoolongforthiswholepictureorany", "Short"})
        CXYChart_addLineLayer(chart.xy, data, 3, -1, name, 0);
    CBaseChart_addLegend(chart.base, 150, 10, true, nullptr, points(8));
    return chart.base;
}

const gallery::Family
    family("labels", {{"Small sectors beside each other, side", [] { return smallSectors(true); }},
                      {"The same around the circle", [] { return smallSectors(false); }},
                      {"Sixty sectors from 60 degrees", sixtySectors},
                      {"A pie between titles and a legend", pieWithTitles},
                      {"Long names beside a pie", longPieNames},
                      {"A meter to five billion", [] { return meterOf(5e9, true); }},
                      {"A linear one, a long zone", [] { return meterOf(5e9, false); }},
                      {"A long word beside a radar, data to the corners", radar},
                      {"Labels read on their bars", [] { return barsOf(CHART_COMBINE_STACK); }},
                      {"Bars that others hide have none", [] { return barsOf(CHART_COMBINE_OVERLAY); }},
                      {"Labels of narrow bars keep off the others", narrowBars},
                      {"Large values in one unit", hugeBars},
                      {"Names are broken or shortened", brokenNames},
                      {"Labels beside the risers of steps", stepLabels},
                      {"Boxes upside down", upsideDown},
                      {"A power of ten, once",
                       [] {
                           return valueAxis({1.2e18, 2.15e18, 1.7e18, 2.3e18}, 34);
                       }},
                      {"Thousands apart",
                       [] {
                           return valueAxis({1.2e6, 2.1e6, 1.7e6, 3.3e6}, 66);
                       }},
                      {"Lines need no zero",
                       [] {
                           return valueAxis({80, 120, 95, 165}, 50);
                       }},
                      {"Dates on a narrow upright axis", datesUpright},
                      {"A log axis", [] { return logAxis(20000); }},
                      {"A log axis of less than two decades", [] { return logAxis(60); }},
                      {"A hundred days", candles},
                      {"Long keys", longKeys}});

} // namespace
