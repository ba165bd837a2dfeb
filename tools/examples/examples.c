/* The charts of docs/gallery.md, whose code this is: "## " begins a chart, or a chapter where no code
 * follows. */

#include "tools/examples/examples.h"

#include <chartdraw/surface.h>
#include <stddef.h>

static const double north[] = {25, 18, 31, 22, 38, 29}, south[] = {12, 27, 19, 33, 24, 16};
static const double rows[] = {0, 1, 2, 3, 4, 5};
static const char* const months = "{value|\tJan\tFeb\tMar\tApr\tMay\tJun}";

/* # Bars */

/* ## Side by side
 * Every data set has a colour of the palette; the names of the rows are labels of the x axis. */
static BaseChart* bars(void) {
    XYChart* chart = CXYChart_create(320, 220, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
    CXYChart_setPlotArea(chart, 40, 34, 265, 158, -1, -1, -1, -1, -1);
    CBaseChart_addLegend(XYChart2BaseChart(chart), 40, 4, false, NULL, 8);
    Layer* layer = BarLayer2Layer(CXYChart_addBarLayer2(chart, CHART_COMBINE_SIDE, 0));
    CLayer_addDataSet(layer, north, 6, -1, "North");
    CLayer_addDataSet(layer, south, 6, -1, "South");
    CAxis_setLabels2(CXYChart_xAxis(chart), rows, 6, months);
    return XYChart2BaseChart(chart);
}

/* ## Stacked, with depth and labels
 * A label for each segment and one for the sum. */
static BaseChart* stackedBars(void) {
    XYChart* chart = CXYChart_create(320, 220, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
    CXYChart_setPlotArea(chart, 40, 24, 255, 168, -1, -1, -1, -1, -1);
    Layer* layer = BarLayer2Layer(CXYChart_addBarLayer2(chart, CHART_COMBINE_STACK, 8));
    CLayer_addDataSet(layer, north, 6, 0x5B8DB8, "North");
    CLayer_addDataSet(layer, south, 6, 0xE3A857, "South");
    CLayer_setDataLabelStyle(layer, NULL, 8, -1, 0);
    CLayer_setAggregateLabelStyle(layer, "bold", 8, -1, 0);
    CAxis_setLabels2(CXYChart_xAxis(chart), rows, 6, months);
    return XYChart2BaseChart(chart);
}

/* ## Lying, as parts of a whole */
static BaseChart* percentBars(void) {
    XYChart* chart = CXYChart_create(320, 220, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
    CXYChart_setPlotArea(chart, 40, 34, 265, 158, -1, -1, -1, -1, -1);
    CXYChart_swapXY(chart, true);
    CBaseChart_addLegend(XYChart2BaseChart(chart), 40, 4, false, NULL, 8);
    Layer* layer = BarLayer2Layer(CXYChart_addBarLayer2(chart, CHART_COMBINE_PERCENTAGE, 0));
    CLayer_addDataSet(layer, north, 6, 0x5B8DB8, "North");
    CLayer_addDataSet(layer, south, 6, 0xE3A857, "South");
    CAxis_setLabels2(CXYChart_xAxis(chart), rows, 6, months);
    CAxis_setLabelFormat(CXYChart_yAxis(chart), "{value}%");
    return XYChart2BaseChart(chart);
}

/* ## Soft light, round shapes, one colour a bar
 * A single data set becomes coloured by its rows when each bar is a data set of its own. */
static BaseChart* softBars(void) {
    XYChart* chart = CXYChart_create(320, 220, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
    CXYChart_setPlotArea(chart, 40, 14, 265, 178, -1, -1, -1, -1, -1);
    BarLayer* bar = CXYChart_addBarLayer(chart, north, 6, 0x6AA84F, "North", 0);
    CBarLayer_setBarShape(bar, CHART_CIRCLE_SYMBOL, 0, -1);
    CBarLayer_setBarGap(bar, 0.3, 0);
    CLayer_setBorderColor(BarLayer2Layer(bar), CHART_TRANSPARENT, CChart_softLighting(CHART_LEFT, 0));
    CAxis_setLabels2(CXYChart_xAxis(chart), rows, 6, months);
    return XYChart2BaseChart(chart);
}

/* # Lines and areas */

/* ## Lines with symbols, a gap and a mark */
static BaseChart* lines(void) {
    const double values[] = {25, 18, CHART_NO_VALUE, 22, 38, 29};
    XYChart* chart = CXYChart_create(320, 220, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
    CXYChart_setPlotArea(chart, 40, 34, 265, 158, -1, -1, -1, -1, -1);
    CBaseChart_addLegend(XYChart2BaseChart(chart), 40, 4, false, NULL, 8);
    Layer* layer = LineLayer2Layer(CXYChart_addLineLayer(chart, values, 6, 0xCC3333, "North", 0));
    CDataSet_setDataSymbol(CLayer_getDataSet(layer, 0), CHART_CIRCLE_SYMBOL, 7, -1, -1, 1);
    CDataSet_setDataSymbol(CLayer_addDataSet(layer, south, 6, 0x3366CC, "South"), CHART_DIAMOND_SYMBOL, 8, -1,
                           -1, 1);
    CAxis_addMark(CXYChart_yAxis(chart), 30, 0x888888, "Plan", NULL, 8);
    CAxis_setLabels2(CXYChart_xAxis(chart), rows, 6, months);
    return XYChart2BaseChart(chart);
}

/* ## Smooth, in steps, and the area between */
static BaseChart* curves(void) {
    XYChart* chart = CXYChart_create(320, 220, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
    CXYChart_setPlotArea(chart, 40, 34, 265, 158, -1, -1, -1, -1, -1);
    CBaseChart_addLegend(XYChart2BaseChart(chart), 40, 4, false, NULL, 8);
    LineLayer* first = SplineLayer2LineLayer(CXYChart_addSplineLayer(chart, north, 6, 0x2E7D32, "Smooth"));
    LineLayer* second = SplineLayer2LineLayer(CXYChart_addSplineLayer(chart, south, 6, 0xC62828, "Other"));
    CXYChart_addStepLineLayer(chart, south, 6, 0x777777, "Steps");
    CXYChart_addInterLineLayer(chart, CLineLayer_getLine(first, 0), CLineLayer_getLine(second, 0), 0x702E7D32,
                               0x70C62828);
    CAxis_setLabels2(CXYChart_xAxis(chart), rows, 6, months);
    return XYChart2BaseChart(chart);
}

/* ## Stacked areas */
static BaseChart* areas(void) {
    XYChart* chart = CXYChart_create(320, 220, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
    CXYChart_setPlotArea(chart, 40, 34, 265, 158, -1, -1, -1, -1, -1);
    CBaseChart_addLegend(XYChart2BaseChart(chart), 40, 4, false, NULL, 8);
    Layer* layer = AreaLayer2Layer(CXYChart_addAreaLayer2(chart, CHART_COMBINE_STACK, 0));
    CLayer_addDataSet(layer, north, 6, 0x5B8DB8, "North");
    CLayer_addDataSet(layer, south, 6, 0xE3A857, "South");
    CAxis_setLabels2(CXYChart_xAxis(chart), rows, 6, months);
    return XYChart2BaseChart(chart);
}

/* # Points, boxes and plans */

/* ## Points of two measures, with zones */
static BaseChart* points(void) {
    const double x[] = {10, 25, 32, 41, 56, 63, 78, 90}, y[] = {12, 30, 24, 45, 41, 66, 58, 80};
    XYChart* chart = CXYChart_create(320, 220, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
    CXYChart_setPlotArea(chart, 45, 14, 260, 162, -1, -1, -1, 0xDDDDDD, 0xDDDDDD);
    CXYChart_addScatterLayer(chart, x, 8, y, 8, "Trial", CHART_DIAMOND_SYMBOL, 9, 0x7E57C2, -1);
    CAxis_addZone(CXYChart_yAxis(chart), 60, 100, 0xE8F5E9);
    CAxis_setTitle(CXYChart_xAxis(chart), "Temperature", NULL, 8, -1);
    CAxis_setTitle(CXYChart_yAxis(chart), "Yield", NULL, 8, -1);
    return XYChart2BaseChart(chart);
}

/* ## Bubbles */
static BaseChart* bubbles(void) {
    const double x[] = {15, 30, 48, 66, 84}, y[] = {20, 55, 35, 72, 50}, widths[] = {12, 30, 22, 42, 16};
    XYChart* chart = CXYChart_create(320, 220, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
    CXYChart_setPlotArea(chart, 40, 14, 265, 178, -1, -1, -1, 0xDDDDDD, 0xDDDDDD);
    LineLayer* layer =
        CXYChart_addScatterLayer(chart, x, 5, y, 5, "Towns", CHART_CIRCLE_SYMBOL, 9, 0x6626A69A, 0x00796B);
    CLineLayer_setSymbolScale(layer, widths, 5, CHART_SCALE_PIXELS, NULL, 0, CHART_SCALE_PIXELS);
    CAxis_setLinearScale(CXYChart_xAxis(chart), 0, 100, 20, 0);
    CAxis_setLinearScale(CXYChart_yAxis(chart), 0, 100, 20, 0);
    return XYChart2BaseChart(chart);
}

/* ## Boxes with whiskers */
static BaseChart* boxes(void) {
    const double top[] = {55, 62, 48, 70}, bottom[] = {35, 40, 30, 52}, most[] = {70, 78, 60, 85},
                 least[] = {22, 28, 18, 40}, middle[] = {45, 52, 41, 60};
    XYChart* chart = CXYChart_create(320, 220, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
    CXYChart_setPlotArea(chart, 40, 14, 265, 178, -1, -1, -1, -1, -1);
    CXYChart_addBoxWhiskerLayer(chart, top, 4, bottom, 4, most, 4, least, 4, middle, 4, 0x90CAF9, 0x0D47A1,
                                0x0D47A1);
    CAxis_setLabels2(CXYChart_xAxis(chart), rows, 4, "{value|\tA\tB\tC\tD}");
    return XYChart2BaseChart(chart);
}

/* ## A plan
 * Boxes from a start to an end, on a chart whose axes are swapped. */
static BaseChart* plan(void) {
    const double start[] = {CChart_chartTime(2024, 1, 8, 0, 0, 0), CChart_chartTime(2024, 2, 5, 0, 0, 0),
                            CChart_chartTime(2024, 3, 4, 0, 0, 0)};
    const double end[] = {CChart_chartTime(2024, 2, 9, 0, 0, 0), CChart_chartTime(2024, 3, 15, 0, 0, 0),
                          CChart_chartTime(2024, 4, 12, 0, 0, 0)};
    const int colors[] = {0x66BB6A, 0x42A5F5, 0xFFA726};
    XYChart* chart = CXYChart_create(320, 180, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
    CXYChart_setPlotArea(chart, 60, 12, 245, 126, -1, -1, -1, CHART_TRANSPARENT, 0xDDDDDD);
    CXYChart_swapXY(chart, true);
    BoxWhiskerLayer* layer = CXYChart_addBoxLayer(chart, end, 3, start, 3, -1, "Tasks");
    CBoxWhiskerLayer_setBoxColors(layer, colors, 3, NULL, 0);
    CAxis_setReverse(CXYChart_xAxis(chart), true);
    CAxis_setLabels2(CXYChart_xAxis(chart), rows, 3, "{value|\tDesign\tBuild\tTry}");
    CAxis_setDateScale(CXYChart_yAxis(chart), CChart_chartTime(2024, 1, 1, 0, 0, 0),
                       CChart_chartTime(2024, 5, 1, 0, 0, 0), 0, 0);
    return XYChart2BaseChart(chart);
}

/* # Prices */

/* ## Candles with an average, over made-up days */
static BaseChart* candles(void) {
    const double *high, *low, *open, *close, *days, *average;
    int count;
    RanTable* table = CRanTable_create(7, 5, 60);
    CRanTable_setDateCol(table, 0, CChart_chartTime(2024, 1, 2, 0, 0, 0), 86400, true);
    CRanTable_setHLOCCols(table, 1, 100, -3, 3, 60, 140);
    CRanTable_getCol(table, 0, &days, &count);
    CRanTable_getCol(table, 1, &high, &count);
    CRanTable_getCol(table, 2, &low, &count);
    CRanTable_getCol(table, 3, &open, &count);
    CRanTable_getCol(table, 4, &close, &count);
    ArrayMath* math = CArrayMath_create(close, count);
    CArrayMath_movAvg(math, 10);
    CArrayMath_result(math, &average, &count);

    XYChart* chart = CXYChart_create(420, 220, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
    CXYChart_setPlotArea(chart, 40, 14, 365, 178, -1, -1, -1, -1, 0xE0E0E0);
    CXYChart_addLineLayer(chart, average, count, 0x3366CC, "10 days", 0);
    CXYChart_addCandleStickLayer(chart, high, count, low, count, open, count, close, count, 0x26A69A,
                                 0xEF5350, CHART_LINE_COLOR);
    CAxis_setLabels2(CXYChart_xAxis(chart), days, count, NULL);
    CAxis_setMultiFormat(CXYChart_xAxis(chart), CHART_START_OF_MONTH - 1, "{value|mmm yyyy}",
                         CHART_NONE_PASS - 1, NULL, 1, false);
    CArrayMath_destroy(math);
    CRanTable_destroy(table);
    return XYChart2BaseChart(chart);
}

/* ## Price bars */
static BaseChart* priceBars(void) {
    const double high[] = {108, 112, 110, 118, 121, 117}, low[] = {99, 104, 101, 108, 112, 109},
                 open[] = {100, 106, 109, 109, 117, 116}, close[] = {106, 109, 103, 117, 114, 112};
    XYChart* chart = CXYChart_create(320, 220, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
    CXYChart_setPlotArea(chart, 40, 14, 265, 178, -1, -1, -1, -1, -1);
    HLOCLayer* layer = CXYChart_addHLOCLayer(chart, high, 6, low, 6, open, 6, close, 6, CHART_LINE_COLOR);
    CHLOCLayer_setColorMethod(layer, CHART_UP_DOWN, 0x00897B, 0xD81B60, 100);
    CLayer_setLineWidth(BaseBoxLayer2Layer(HLOCLayer2BaseBoxLayer(layer)), 2);
    CAxis_setLabels2(CXYChart_xAxis(chart), rows, 6, months);
    return XYChart2BaseChart(chart);
}

/* # Axes */

/* ## Two scales and titles */
static BaseChart* twoScales(void) {
    XYChart* chart = CXYChart_create(320, 220, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
    const double rate[] = {0.4, 0.8, 0.6, 1.4, 1.1, 1.9};
    CBaseChart_addTitle(XYChart2BaseChart(chart), "Sales and rate", "bold", 10, -1, CHART_TRANSPARENT,
                        CHART_TRANSPARENT);
    CXYChart_setPlotArea(chart, 52, 28, 212, 164, -1, -1, -1, -1, -1);
    CXYChart_addBarLayer(chart, north, 6, 0x90A4AE, "Sales", 0);
    Layer* line = LineLayer2Layer(CXYChart_addLineLayer(chart, rate, 6, 0xD84315, "Rate", 0));
    CLayer_setUseYAxis2(line, true);
    CAxis_setTitle(CXYChart_yAxis(chart), "Sales", NULL, 8, 0x546E7A);
    CAxis_setTitle(CXYChart_yAxis2(chart), "Rate", NULL, 8, 0xD84315);
    CAxis_setLabelFormat(CXYChart_yAxis2(chart), "{value|1}%");
    CAxis_setLabels2(CXYChart_xAxis(chart), rows, 6, months);
    return XYChart2BaseChart(chart);
}

/* ## A logarithmic scale, both grids */
static BaseChart* logScale(void) {
    const double values[] = {3, 14, 70, 420, 1900, 8800};
    XYChart* chart = CXYChart_create(320, 220, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
    PlotArea* area = CXYChart_setPlotArea(chart, 50, 14, 255, 178, -1, -1, -1, 0xBBBBBB, 0xBBBBBB);
    CPlotArea_setGridColor(area, 0xBBBBBB, 0xBBBBBB, 0xEEEEEE, 0xEEEEEE);
    CXYChart_addLineLayer(chart, values, 6, 0xAD1457, "Growth", 0);
    CAxis_setLogScale3(CXYChart_yAxis(chart), NULL);
    CAxis_setLabels2(CXYChart_xAxis(chart), rows, 6, months);
    return XYChart2BaseChart(chart);
}

/* ## Axes through the origin, quadrants */
static BaseChart* quadrants(void) {
    const double x[] = {-4, -2, 1, 3, 4}, y[] = {30, -40, 55, -20, 70};
    XYChart* chart = CXYChart_create(320, 220, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
    PlotArea* area = CXYChart_setPlotArea(chart, 20, 14, 280, 190, -1, -1, -1, CHART_TRANSPARENT, -1);
    CPlotArea_set4QBgColor(area, 0xE8F5E9, 0xE3F2FD, 0xFFF3E0, 0xFCE4EC, -1);
    CXYChart_setAxisAtOrigin(chart, CHART_ORIGIN_XY, CHART_SYMMETRIC_XY);
    CXYChart_addScatterLayer(chart, x, 5, y, 5, "", CHART_CIRCLE_SYMBOL, 9, 0x37474F, -1);
    return XYChart2BaseChart(chart);
}

/* # Pies */

/* ## Labels around the pie, a sector drawn out */
static BaseChart* pie(void) {
    const double values[] = {38, 24, 17, 12, 9};
    const char* names[] = {"Rent", "Wages", "Flour", "Energy", "Other"};
    PieChart* chart = CPieChart_create(320, 220, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
    CPieChart_setPieSize(chart, 160, 112, 72);
    CPieChart_setData(chart, values, 5, names, 5);
    CPieChart_setLabelFormat(chart, "{label} {percent|0}%");
    CPieChart_setLabelLayout(chart, CHART_CIRCLE_LAYOUT, -1, -1, -1);
    CSector_setExplode(CPieChart_sector(chart, 0), 10);
    return PieChart2BaseChart(chart);
}

/* ## With depth, labels in two columns */
static BaseChart* deepPie(void) {
    const double values[] = {38, 24, 17, 12, 9};
    const char* names[] = {"Rent", "Wages", "Flour", "Energy", "Other"};
    PieChart* chart = CPieChart_create(320, 220, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
    CPieChart_setPieSize(chart, 160, 105, 80);
    CPieChart_setData(chart, values, 5, names, 5);
    CPieChart_set3D(chart, 16, 50, false);
    CPieChart_setLabelLayout(chart, CHART_SIDE_LAYOUT, -1, -1, -1);
    CPieChart_setLineColor(chart, CHART_TRANSPARENT, 0x888888);
    return PieChart2BaseChart(chart);
}

/* ## A donut with a legend */
static BaseChart* donut(void) {
    const double values[] = {38, 24, 17, 12};
    const char* names[] = {"Rent", "Wages", "Flour", "Energy"};
    PieChart* chart = CPieChart_create(320, 220, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
    CPieChart_setDonutSize(chart, 110, 110, 90, 52);
    CPieChart_setData(chart, values, 4, names, 4);
    CPieChart_setLabelFormat(chart, "{percent|0}%");
    CPieChart_setLabelLayout(chart, CHART_CIRCLE_LAYOUT, -18, -1, -1);
    CBaseChart_addLegend(PieChart2BaseChart(chart), 220, 60, true, NULL, 8);
    return PieChart2BaseChart(chart);
}

/* # Polar charts */

/* ## A radar of two areas */
static BaseChart* radar(void) {
    const double first[] = {90, 60, 85, 75, 55}, second[] = {60, 80, 70, 65, 85};
    const char* names[] = {"Speed", "Price", "Comfort", "Safety", "Range"};
    PolarChart* chart = CPolarChart_create(320, 240, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
    CPolarChart_setPlotArea(chart, 160, 128, 85, 0xF8F8F8, -1, 1);
    CPolarChart_setGridStyle(chart, true, true);
    CPolarChart_addAreaLayer(chart, first, 5, 0x7042A5F5, "A");
    CPolarChart_addAreaLayer(chart, second, 5, 0x70EF5350, "B");
    CAngularAxis_setLabels(CPolarChart_angularAxis(chart), names, 5);
    CBaseChart_addLegend(PolarChart2BaseChart(chart), 6, 6, true, NULL, 8);
    return PolarChart2BaseChart(chart);
}

/* ## A closed curve by angle */
static BaseChart* rose(void) {
    const double angles[] = {0, 45, 90, 135, 180, 225, 270, 315}, radii[] = {40, 70, 55, 30, 60, 85, 50, 65};
    PolarChart* chart = CPolarChart_create(320, 240, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
    CPolarChart_setPlotArea(chart, 160, 120, 95, -1, -1, 1);
    CPolarChart_setPlotAreaBg(chart, 0xEEF4FB, 0xFFFFFF, true);
    CAngularAxis_setLinearScale(CPolarChart_angularAxis(chart), 0, 360, 45, 0);
    PolarLineLayer* line = PolarSplineLineLayer2PolarLineLayer(
        CPolarChart_addSplineLineLayer(chart, radii, 8, 0xC62828, "Wind"));
    PolarLayer* layer = PolarLineLayer2PolarLayer(line);
    CPolarLayer_setAngles(layer, angles, 8);
    CPolarLayer_setDataSymbol(layer, CHART_CIRCLE_SYMBOL, 7, -1, -1, 1);
    CPolarLineLayer_setCloseLoop(line, true);
    return PolarChart2BaseChart(chart);
}

/* # Meters */

/* ## Round */
static BaseChart* roundMeter(void) {
    AngularMeter* meter = CAngularMeter_create(220, 220, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
    BaseMeter* base = AngularMeter2BaseMeter(meter);
    CAngularMeter_setMeter(meter, 110, 115, 90, -135, 135);
    CBaseMeter_setScale(base, 0, 100, 10, 5, 1);
    CAngularMeter_addZone2(meter, 0, 60, 0xA5D6A7, CHART_TRANSPARENT);
    CAngularMeter_addZone2(meter, 60, 80, 0xFFE082, CHART_TRANSPARENT);
    CAngularMeter_addZone2(meter, 80, 100, 0xEF9A9A, CHART_TRANSPARENT);
    CMeterPointer_setShape(CBaseMeter_addPointer(base, 64, 0x37474F, -1), CHART_TRIANGULAR_POINTER, 0.9, 1);
    CBaseChart_addText(BaseMeter2BaseChart(base), 110, 165, "km/h", "bold", 9, -1, CHART_CENTER, 0, false);
    return BaseMeter2BaseChart(base);
}

/* ## Straight, two of them on one picture */
static BaseChart* straightMeters(void) {
    MultiChart* both = CMultiChart_create(320, 150, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
    for (int i = 0; i < 2; ++i) {
        LinearMeter* meter = CLinearMeter_create(310, 70, CHART_TRANSPARENT, CHART_TRANSPARENT, 0);
        BaseMeter* base = LinearMeter2BaseMeter(meter);
        CLinearMeter_setMeter(meter, 20, 28, 270, 18, CHART_BOTTOM, false);
        CBaseMeter_setScale(base, -20, 40, 10, 5, 0);
        CLinearMeter_addZone(meter, 30, 40, 0xEF9A9A, "Hot");
        CLinearMeter_addZone(meter, -20, 0, 0x90CAF9, "Frost");
        CBaseMeter_addPointer(base, i == 0 ? 12 : 27, 0x455A64, -1);
        CMultiChart_addChart(both, 5, 5 + 72 * i, BaseMeter2BaseChart(base));
    }
    return MultiChart2BaseChart(both);
}

/* # Frames */

/* ## Rounded, with a title bar, metal and a wrapped title */
static BaseChart* framed(void) {
    XYChart* chart = CXYChart_create(320, 220, CChart_metalColor(0xCFD8DC, 90), CHART_TRANSPARENT, 0);
    BaseChart* base = XYChart2BaseChart(chart);
    CBaseChart_setRoundedFrame(base, 0xFFFFFF, 14, -1, -1, -1);
    CBaseChart_addTitle(base, "A title of two lines,<*br*><*size=8,color=555555*>the second one small",
                        "bold", 11, -1, CHART_TRANSPARENT, CHART_TRANSPARENT);
    CXYChart_setPlotArea(chart, 45, 48, 255, 140, 0xFFFFFF, 0xF4F6F7, -1, -1, -1);
    CXYChart_addAreaLayer2(chart, CHART_COMBINE_OVERLAY, 0);
    CXYChart_addBarLayer(chart, south, 6, 0x5C6BC0, "South", 0);
    CAxis_setLabels2(CXYChart_xAxis(chart), rows, 6, months);
    return base;
}

const struct Example examples[] = {
    {"bars", bars},
    {"stackedBars", stackedBars},
    {"percentBars", percentBars},
    {"softBars", softBars},
    {"lines", lines},
    {"curves", curves},
    {"areas", areas},
    {"points", points},
    {"bubbles", bubbles},
    {"boxes", boxes},
    {"plan", plan},
    {"candles", candles},
    {"priceBars", priceBars},
    {"twoScales", twoScales},
    {"logScale", logScale},
    {"quadrants", quadrants},
    {"pie", pie},
    {"deepPie", deepPie},
    {"donut", donut},
    {"radar", radar},
    {"rose", rose},
    {"roundMeter", roundMeter},
    {"straightMeters", straightMeters},
    {"framed", framed},
};
const int exampleCount = (int)(sizeof(examples) / sizeof(examples[0]));
