// Several charts on one picture: beside each other, over each other, and within one another.

#include "tools/gallery/gallery.h"

namespace {

using gallery::points;

// The gallery ends the chart that it is given; those on it end with the program.

PieChart* pie(int side, int background) {
    const double values[] = {40, 25, 20, 15};
    const char* const names[] = {"North", "East", "South", "West"};
    PieChart* chart = CPieChart_create(side, side, background, CHART_TRANSPARENT, 0);
    CPieChart_setPieSize(chart, side / 2, side / 2, side / 3);
    CPieChart_setData(chart, values, 4, names, 4);
    CPieChart_setLabelFormat(chart, " ");
    return chart;
}

BaseChart* meter(int side, double value, int background) {
    AngularMeter* chart = CAngularMeter_create(side, side, background, CHART_TRANSPARENT, 0);
    BaseMeter* base = AngularMeter2BaseMeter(chart);
    CAngularMeter_setMeter(chart, side / 2, side / 2, side * 2 / 5 - 10, -135, 135);
    CAngularMeter_addRing(chart, 0, side / 2 - 4, CChart_metalColor(0xc8ccd4, 60), 0x666666);
    CBaseMeter_setLabelStyle(base, nullptr, points(8), -1, 0);
    CBaseMeter_setScale(base, 0, 100, 20, 10, 2);
    CBaseMeter_addPointer(base, value, 0xcc3333, -1);
    return BaseMeter2BaseChart(base);
}

BaseChart* dashboard() {
    MultiChart* multi = CMultiChart_create(520, 260, 0xe8ebef, 0x888888, 0);
    BaseChart* base = MultiChart2BaseChart(multi);
    CBaseChart_addTitle(base, "Dashboard", "bold", points(12), -1, 0xd0d6de, CHART_TRANSPARENT);
    CMultiChart_addChart(multi, 10, 40, meter(160, 35, CHART_TRANSPARENT));
    CMultiChart_addChart(multi, 180, 40, meter(160, 80, CHART_TRANSPARENT));
    BaseChart* chart = PieChart2BaseChart(pie(160, CHART_TRANSPARENT));
    CMultiChart_addChart(multi, 350, 40, chart);
    CMultiChart_setMainChart(multi, chart);
    CBaseChart_addLegend(base, 20, 220, false, nullptr, points(8));
    return base;
}

BaseChart* blended() {
    MultiChart* multi = CMultiChart_create(260, 260, CHART_BACKGROUND_COLOR, 0x888888, 0);
    CBaseChart_setBgImage(MultiChart2BaseChart(multi), gallery::sampleImage(), CHART_CENTER);
    CMultiChart_addChart(multi, 10, 10, PieChart2BaseChart(pie(160, static_cast<int>(0x60ffdddd))));
    CMultiChart_addChart(multi, 90, 90, PieChart2BaseChart(pie(160, static_cast<int>(0x60ddddff))));
    return MultiChart2BaseChart(multi);
}

BaseChart* inset() {
    MultiChart* inner = CMultiChart_create(170, 90, 0xffffff, 0x444444, 0);
    CMultiChart_addChart(inner, 0, 5, meter(80, 20, CHART_TRANSPARENT));
    CMultiChart_addChart(inner, 85, 5, meter(80, 60, CHART_TRANSPARENT));
    MultiChart* outer = CMultiChart_create(280, 260, CHART_BACKGROUND_COLOR, 0x888888, 0);
    CMultiChart_addChart(outer, 0, 0, PieChart2BaseChart(pie(230, CHART_TRANSPARENT)));
    CMultiChart_addChart(outer, 100, 160, MultiChart2BaseChart(inner));
    return MultiChart2BaseChart(outer);
}

BaseChart* cutOff() {
    MultiChart* multi = CMultiChart_create(200, 260, CHART_BACKGROUND_COLOR, 0x888888, 0);
    CMultiChart_addChart(multi, -80, -60, meter(200, 70, CHART_TRANSPARENT));
    CMultiChart_addChart(multi, 100, 140, PieChart2BaseChart(pie(200, CHART_TRANSPARENT)));
    return MultiChart2BaseChart(multi);
}

const gallery::Family family("multi", {
                                          {"dashboard, legend of the main chart", dashboard},
                                          {"translucent backgrounds in order", blended},
                                          {"multi-chart in a multi-chart", inset},
                                          {"cut off at the sides", cutOff},
                                      });

} // namespace
