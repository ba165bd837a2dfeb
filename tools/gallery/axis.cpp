// Axes and the frame of XY charts: scales, ticks, labels, titles, further axes, marks, zones, grids, areas.

#include "tools/gallery/gallery.h"

#include <cmath>
#include <vector>

namespace {

using gallery::points;

const double kSales[] = {12, 35, 28, 44, 19, 38};
const double kCosts[] = {3000, 2000, 2500, 1000, 500, 900};

double day(int year, int month, int dayOfMonth) {
    return CChart_chartTime(year, month, dayOfMonth, 0, 0, 0);
}

std::vector<double> times(int count, int monthStep, int dayStep) {
    std::vector<double> result;
    for (int i = 0; i < count; ++i)
        result.push_back(day(2004, 1 + i * monthStep, 1 + i * dayStep));
    return result;
}

std::vector<double> wave(int count, double middle, double height) {
    std::vector<double> result;
    for (int i = 0; i < count; ++i)
        result.push_back(middle + height * std::sin(i * 0.1));
    return result;
}

/// A chart of 380 x 240 with room for labels on all sides.
struct Frame {
    XYChart* chart = CXYChart_create(380, 240, 0xffffff, CHART_TRANSPARENT, 0);
    BaseChart* base = XYChart2BaseChart(chart);
    PlotArea* area;
    Axis* x = CXYChart_xAxis(chart);
    Axis* y = CXYChart_yAxis(chart);

    explicit Frame(int left = 60, int top = 25, int right = 45, int bottom = 50)
        : area(CXYChart_setPlotArea(chart, left, top, 380 - left - right, 240 - top - bottom, 0xffffff, -1,
                                    -1, 0xc0c0c0, CHART_TRANSPARENT)) {
        look(x);
        look(y);
    }
    static Axis* look(Axis* axis) {
        CAxis_setLabelStyle(axis, nullptr, points(8), -1, 0);
        return axis;
    }
    static TextBox* title(Axis* axis, const char* text) {
        return CAxis_setTitle(axis, text, nullptr, points(9), -1);
    }
    LineLayer* line(const std::vector<double>& data) {
        return CXYChart_addLineLayer(chart, data.data(), static_cast<int>(data.size()), -1, nullptr, 0);
    }
    BarLayer* bars(const std::vector<double>& data) {
        return CXYChart_addBarLayer(chart, data.data(), static_cast<int>(data.size()), -1, nullptr, 0);
    }
    void sales() { CXYChart_addLineLayer(chart, kSales, 6, -1, nullptr, 0); }
    void labels(const std::vector<double>& values, const char* format) {
        CAxis_setLabels2(x, values.data(), static_cast<int>(values.size()), format);
    }
};

/// A line of values, its y axis left to itself.
BaseChart* automatic(const std::vector<double>& data) {
    Frame f;
    f.line(data);
    return f.base;
}

BaseChart* logarithmic(const std::vector<double>& data, int minorSpacing) {
    Frame f;
    f.line(data);
    CAxis_setLogScale3(f.y, nullptr);
    CAxis_setTickDensity(f.y, -1, minorSpacing);
    return f.base;
}

BaseChart* dates(double days, const char* format = nullptr, double majorDays = 0, double minorDays = 0) {
    Frame f;
    CAxis_setDateScale(f.x, day(2004, 1, 1), day(2004, 1, 1) + days * 86400, majorDays * 86400,
                       minorDays * 86400);
    CAxis_setLabelFormat(f.x, format);
    return f.base;
}

BaseChart* turned(double angle, bool vertical) {
    Frame f(60, 15, 45, 90);
    f.bars({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12});
    f.labels(times(12, 1, 0), vertical ? "{value|mmm}" : "{value|mmm yyyy}");
    TextBox* style = CAxis_setLabelStyle(f.x, nullptr, points(8), -1, 0);
    CTextBox_setFontAngle(style, angle, vertical);
    return f.base;
}

BaseChart* titled() {
    Frame f;
    f.bars({kSales, kSales + 6});
    Frame::title(f.x, "Month");
    Frame::title(f.y, "Units sold");
    return f.base;
}

BaseChart* boxedTitle() {
    Frame f(75);
    f.sales();
    TextBox* box = Frame::title(f.y, "Units");
    CTextBox_setFontAngle(box, 0, false);
    CTextBox_setMargin(box, 4);
    CBox_setBackground(TextBox2Box(box), 0xfff4d6, 0xc9a227, 1);
    CAxis_setTitlePos(f.y, CHART_TOP_LEFT, 4);
    Frame::title(f.x, "Row");
    CAxis_setTitlePos(f.x, CHART_RIGHT, 4);
    return f.base;
}

BaseChart* minorGrid() {
    Frame f;
    f.sales();
    CPlotArea_setGridColor(f.area, 0xb0b0b0, 0xb0b0b0, 0xe8e8e8, 0xe8e8e8);
    CAxis_setTickDensity(f.y, -1, 8);
    return f.base;
}

BaseChart* wideGrid() {
    Frame f;
    f.sales();
    CPlotArea_setGridColor(f.area, 0xd5e3f0, 0xf0d5d5, -1, -1);
    CPlotArea_setGridWidth(f.area, 3, 5, 0, 0);
    CAxis_setWidth(f.x, 3);
    CAxis_setWidth(f.y, 3);
    CAxis_setTickLength2(f.y, 8, 4);
    return f.base;
}

BaseChart* bands() {
    Frame f;
    f.sales();
    CPlotArea_setBackground(f.area, 0xffffff, 0xeef2fa, 0x8899aa);
    CPlotArea_setGridColor(f.area, CHART_TRANSPARENT, CHART_TRANSPARENT, -1, -1);
    CAxis_setReverse(f.y, true);
    return f.base;
}

BaseChart* wallpaper() {
    Frame f;
    f.sales();
    CPlotArea_setBackground2(f.area, gallery::sampleImage(), CHART_CENTER);
    return f.base;
}

BaseChart* quadrants() {
    Frame f(30, 15, 30, 15);
    CPlotArea_set4QBgColor(f.area, 0xffffdd, 0xddffdd, 0xddddff, 0xffdddd, -1);
    CXYChart_setAxisAtOrigin(f.chart, CHART_ORIGIN_XY, CHART_SYMMETRIC_XY);
    CAxis_setLinearScale(f.x, -6, 6, 1, 0);
    CAxis_setLinearScale(f.y, -100, 100, 20, 0);
    return f.base;
}

BaseChart* origin() {
    Frame f(30, 30, 40, 20);
    const double xs[] = {-4, -1, 0.5, 3}, ys[] = {3, 1, -2, 1};
    CXYChart_addScatterLayer(f.chart, xs, 4, ys, 4, nullptr, CHART_DIAMOND_SYMBOL, 9, -1, -1);
    CXYChart_setAxisAtOrigin(f.chart, CHART_ORIGIN_XY, CHART_SYMMETRIC_XY);
    Frame::title(f.x, "x");
    CAxis_setTitlePos(f.x, CHART_RIGHT, 6);
    Frame::title(f.y, "y");
    CAxis_setTitlePos(f.y, CHART_TOP, 4);
    return f.base;
}

BaseChart* swapped() {
    Frame f;
    f.bars({kSales, kSales + 6});
    CXYChart_swapXY(f.chart, true);
    Frame::title(f.x, "Month");
    Frame::title(f.y, "Units sold");
    CAxis_addMark(f.y, 30, 0xcc0000, "Goal", nullptr, points(8));
    CAxis_addZone(f.x, 1.5, 3.5, 0xfff0d8);
    return f.base;
}

BaseChart* marksAndZones() {
    Frame f;
    f.sales();
    CAxis_addZone(f.y, 20, 30, 0xddf5dd);
    CAxis_addZone(f.x, 3, 99, static_cast<int>(0x80ffcccc));
    CAxis_addMark(f.y, 33, 0xcc0000, "Limit", nullptr, points(8));
    CAxis_addMark(f.y, 30, 0x0000cc, "Goal", nullptr, points(8));
    CAxis_addMark(f.x, 2.5, 0x008800, "Mid", "bold", points(8));
    return f.base;
}

BaseChart* manyAxes() {
    Frame f(130, 30, 80, 40);
    f.sales();
    LineLayer* costs = CXYChart_addLineLayer(f.chart, kCosts, 6, -1, nullptr, 0);
    Axis* y2 = Frame::look(CXYChart_yAxis2(f.chart));
    CLayer_setUseYAxis2(LineLayer2Layer(costs), true);
    CAxis_setLabelFormat(y2, "${value|0,}");
    Frame::title(y2, "Price");
    Frame::title(f.y, "Units");
    Axis* ratio = Frame::look(CXYChart_addAxis(f.chart, CHART_LEFT, 60));
    CAxis_setLinearScale(ratio, 0, 1, 0, 0);
    CAxis_setColors(ratio, 0xcc3333, 0xcc3333, 0xcc3333, -1);
    Frame::title(ratio, "Ratio");
    Frame::look(CXYChart_xAxis2(f.chart));
    return f.base;
}

BaseChart* synced() {
    Frame f;
    f.line({5, 12, 21, 17, 30, 26});
    Axis* fahrenheit = Frame::look(CXYChart_yAxis2(f.chart));
    CAxis_syncAxis(fahrenheit, f.y, 1.8, 32);
    CAxis_setLabelFormat(f.y, "{value}\xc2\xb0"
                              "C");
    CAxis_setLabelFormat(fahrenheit, "{value}\xc2\xb0"
                                     "F");
    CXYChart_setYAxisOnRight(f.chart, true);
    return f.base;
}

BaseChart* prices() {
    Frame f;
    std::vector<double> stamps;
    for (int i = 0; i < 130; ++i)
        stamps.push_back(day(2002, 9, 4 + i * 7 / 5));
    f.line(wave(130, 100, 10));
    CXYChart_setTrimData(f.chart, 30, 0x7fffffff);
    f.labels(stamps, nullptr);
    const int year = CChart_encodeFilter(CHART_START_OF_YEAR, 1, 0.05);
    const int month = CChart_encodeFilter(CHART_START_OF_MONTH, 1, 0.05);
    CAxis_setMultiFormat(f.x, year, "<*font=bold*>{value|mmm yy}", month, "{value|mmm}", 1, true);
    CAxis_setMultiFormat2(f.x, month, "-", 1, false);
    CAxis_setIndent(f.x, true);
    CAxis_setTickLength2(f.x, 2, 0);
    CAxis_setTickLength2(f.y, -4, -2);
    CAxis_setMargin(f.y, 26, 0);
    CAxis_setAutoScale(f.y, 0, 0.05, 0);
    CXYChart_setYAxisOnRight(f.chart, true);
    return f.base;
}

BaseChart* everyDay() {
    Frame f;
    f.line(wave(60, 10, 3));
    f.labels(times(60, 0, 1), nullptr);
    CAxis_setMultiFormat(f.x, CChart_encodeFilter(CHART_START_OF_MONTH, 1, 0.05),
                         "<*font=bold*>{value|d mmm}", CChart_encodeFilter(CHART_START_OF_DAY, 1, 0),
                         "{value|d}", 5, true);
    return f.base;
}

BaseChart* bareDates() {
    Frame f;
    f.bars({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11});
    f.labels(times(11, 1, 0), nullptr);
    return f.base;
}

BaseChart* steps() {
    Frame f;
    f.bars({10, 20, 30, 40, 50, 60, 70, 80, 90, 100, 110, 120});
    CAxis_setLabelStep(f.x, 3, 1, 1, 0);
    return f.base;
}

BaseChart* margins() {
    Frame f;
    f.sales();
    CAxis_setMargin(f.y, 30, 20);
    CAxis_setMargin(f.x, 20, 40);
    CPlotArea_setGridColor(f.area, 0xc0c0c0, 0xc0c0c0, -1, -1);
    return f.base;
}

BaseChart* hidden() {
    Frame f;
    f.sales();
    CAxis_setColors(f.x, CHART_TRANSPARENT, CHART_TRANSPARENT, -1, -1);
    CAxis_setColors(f.y, CHART_TRANSPARENT, -1, -1, -1);
    TextBox* style = CAxis_setLabelStyle(f.y, "bold", points(8), 0x334488, 0);
    CTextBox_setMargin2(style, 4, 4, 1, 1);
    CBox_setBackground(TextBox2Box(style), 0xeef0ff, 0x99a0dd, 0);
    return f.base;
}

BaseChart* walls() {
    Frame f(60, 40, 60, 40);
    CPlotArea_setBackground(f.area, 0xf0f0ff, -1, 0x666688);
    CPlotArea_setGridColor(f.area, 0xb8b8d0, 0xb8b8d0, -1, -1);
    CLayer_set3D(BarLayer2Layer(f.bars({kSales, kSales + 6})), 14, 0);
    return f.base;
}

BaseChart* crowded() {
    Frame f;
    f.line(wave(1000, 50, 40));
    CAxis_setLabelFormat(f.x, "row {value}");
    CAxis_setLinearScale(f.y, 0, 100, 2, 1);
    return f.base;
}

const gallery::Family
    family("axis", {
                       {"titles", titled},
                       {"title in a box, title beyond the end", boxedTitle},
                       {"minor ticks and grids", minorGrid},
                       {"widths and tick lengths", wideGrid},
                       {"alternating bands, reversed", bands},
                       {"wallpaper", wallpaper},
                       {"four quadrants", quadrants},
                       {"symmetric about the origin", origin},
                       {"swapped, mark and zone", swapped},
                       {"marks and zones", marksAndZones},
                       {"second and further axes", manyAxes},
                       {"tied axes, y on the right", synced},
                       {"log",
                        [] {
                            return logarithmic({1, 10, 100, 1000, 20000}, -1);
                        }},
                       {"log, minor ticks",
                        [] {
                            return logarithmic({3, 40, 90, 700}, 4);
                        }},
                       {"log, less than a decade",
                        [] {
                            return logarithmic({22, 35, 48}, -1);
                        }},
                       {"ten years", [] { return dates(3653); }},
                       {"two years", [] { return dates(731); }},
                       {"fifty days, every ten", [] { return dates(50, "{value|yyyy/mm/dd}", 10, 1); }},
                       {"three days", [] { return dates(3); }},
                       {"two hours", [] { return dates(1.0 / 12); }},
                       {"daily prices, trimmed", prices},
                       {"days of a month", everyDay},
                       {"months without a format", bareDates},
                       {"45 degrees", [] { return turned(45, false); }},
                       {"-30 degrees", [] { return turned(-30, false); }},
                       {"90 degrees", [] { return turned(90, false); }},
                       {"stacked letters", [] { return turned(0, true); }},
                       {"every third row from row 1", steps},
                       {"margins", margins},
                       {"hidden lines, boxed labels", hidden},
                       {"walls of 3D", walls},
                       {"crowded", crowded},
                       {"millions", [] { return automatic(wave(137, 1e6, 3e5)); }},
                       {"millionths",
                        [] {
                            return automatic({0, 1e-6, 5e-6, 2e-6});
                        }},
                       {"both sides of zero",
                        [] {
                            return automatic({-5, 10, -15, 20});
                        }},
                       {"far from zero",
                        [] {
                            return automatic({20000.1, 20000.2, 20000.15});
                        }},
                       {"all the same",
                        [] {
                            return automatic({5, 5, 5});
                        }},
                       {"one point", [] { return automatic({7}); }},
                       {"1e300",
                        [] {
                            return automatic({1e300, 2e300, 5e299});
                        }},
                       {"no data", [] { return automatic({}); }},
                   });

} // namespace
