// The calls of XY charts, in order and value, as those of the other kinds.

#include "render/xy_frame.h"
#include "tests/model/models.h"
#include "tests/render/calls.h"

namespace {
CXYChartAxis& addAxis(CXYChart& chart) {
    CXYChartAxis* axis = CXYChartAxisMgr::CreateAxis();
    chart.m_axes.AddAxis(axis);
    return *axis;
}

template <class Kind> Kind& add(CXYChart& chart, int type, const char* name = "n") {
    CXYChartLayer* layer = CXYChartLayerMgr::CreateLayer(type);
    chart.m_layers.AddLayer(layer);
    layer->m_seed = 7;
    layer->m_name = name;
    return static_cast<Kind&>(*layer);
}

/// A layer with a number in each field, alone in a chart.
template <class Kind> Kind& numbered(CXYChart& chart, int type) {
    Kind& layer = add<Kind>(chart, type);
    models::Number numbers;
    models::Each(layer, numbers);
    layer.m_seed = 7;
    return layer;
}

const CallCase cases[] = {
    {"Empty", DrawXYChart, EDIT(), R"(
CXYChart_create(500, 550, 0xffff0000, 0xff000000, 0)
CXYChart_setPlotArea(XYChart#1, 50, 75, 400, 400, 0xff000000, -1, -1, 0x00c0c0c0, 0xff000000)
CBaseChart_setBackground(BaseChart#1, 0x00ffffff, 0x33808080, 0)
CBaseChart_setDefaultFonts(BaseChart#1, "gulim.ttc", "gulim.ttc", "gulim.ttc", "gulim.ttc")
CBaseChart_addLegend(BaseChart#1, 320, 12, false, "gulim.ttc", 12); CTextBox_setFontColor(TextBox#1, 0)
CBox_setBackground(Box#1, -1, 0, 0); CTextBox_setText(TextBox#1, "{dataSetName}")
CLegendBox_addKey(LegendBox#1, "Legend", -1, 0, null)
CPlotArea_setGridColor(PlotArea#1, 0x00c0c0c0, 0xff000000, 0x00c0c0c0, 0xff000000)
CPlotArea_setGridWidth(PlotArea#1, 1, 1, 1, 1); CBaseChart_addLine(BaseChart#1, 50, 511, 450, 511, 0, 1)
CBaseChart_addText(BaseChart#1, 50, 517, "Sample Line", null, 8, -65534, 7, 0, false)
CAxis_setLinearScale(Axis#1, 0, 6, 1, 0); CAxis_setLinearScale(Axis#2, 0, 100, 10, 0); CAxis_setWidth(Axis#1, 1)
CAxis_setColors(Axis#1, 0, -65534, -1, -1); CAxis_setMargin(Axis#1, 0, 0); CAxis_setLabelStep(Axis#1, 0, 0, 0, 0)
CAxis_setTickLength2(Axis#1, 5, 0); CAxis_setTickDensity(Axis#1, 0, -1); CAxis_setAutoScale(Axis#1, 0, 0, 0)
CAxis_setLabelStyle(Axis#1, "gulim.ttc", 12, 0, 0); CTextBox_setFontAngle(TextBox#3, 0, false)
CBox_setBackground(Box#2, -1, -1, 0); CAxis_setLabelFormat(Axis#1, "{value}")
CAxis_setMultiFormat(Axis#1, 0x60004000, "", 0x60004000, "", 1, true); CAxis_setWidth(Axis#2, 1)
CAxis_setColors(Axis#2, 0, -65534, -1, -1); CAxis_setMargin(Axis#2, 0, 0); CAxis_setLabelStep(Axis#2, 0, 0, 0, 0)
CAxis_setTickLength2(Axis#2, 5, 0); CAxis_setTickDensity(Axis#2, 0, -1); CAxis_setAutoScale(Axis#2, 0, 0, 0)
CAxis_setLabelStyle(Axis#2, "gulim.ttc", 12, 0, 0); CTextBox_setFontAngle(TextBox#4, 0, false)
CBox_setBackground(Box#3, -1, -1, 0); CAxis_setLabelFormat(Axis#2, "{value}")
CAxis_setMultiFormat(Axis#2, 0x60004000, "", 0x60004000, "", 1, true); CBaseChart_makeChart2(BaseChart#1, 4)
CBaseChart_destroy(BaseChart#1))"},
    {"Everything", DrawXYChart, // on one axis of each pair
     [](PreviewFake& view) {
         CXYChart& chart = view.m_ownXYChart;
         models::Number numbers;
         models::Each(view.m_ownLayout, numbers);
         models::Each(chart, numbers);
         view.m_ownLayout.m_titles.erase(0);
         chart.m_yAxis = chart.m_x2Axis = chart.m_y2Axis = CXYChartAxis();
         chart.m_useX2Axis = chart.m_useY2Axis = false;
         chart.m_xAxis.m_title.m_vertical = false;
     },
     R"(
CXYChart_create(1, 2, 0xffff0000, 0xff000000, 0)
CXYChart_setPlotArea(XYChart#1, 12, 13, 14, 15, 0xff000000, -1, -1, 0x00c0c0c0, 0xff000000)
CBaseChart_setBackground(BaseChart#1, 4...CBaseChart_addTitle2(BaseChart#1, 45...CBox_setPos(Box#1, 55, 56)
CBaseChart_addLegend(BaseChart#1, 74...CLegendBox_addKey(LegendBox#1, "Legend", -1, 0, null)
CPlotArea_setGridColor(PlotArea#1, 76, 77, 78, 79); CPlotArea_setGridWidth(PlotArea#1, 80, 81, 82, 83)
CBaseChart_addLine(BaseChart#1, 0, 1, 1, 1, 84, 85)
CBaseChart_addText(BaseChart#1, 0, 1, "Sample Line", null, 8, -65534, 7, 0, false)
CAxis_setLinearScale(Axis#1, 0, 6, 1, 0); CAxis_setLinearScale(Axis#2, 0, 100, 10, 0)
CPlotArea_setBackground(PlotArea#1, 87, 88, 86); CAxis_setReverse(Axis#1, true); CAxis_setWidth(Axis#1, 96)
CAxis_setColors(Axis#1, 97, -65534, -1, -1); CAxis_setMargin(Axis#1, 98, 99)
CAxis_setLabelStep(Axis#1, 100, 101, 102, 103); CAxis_setTickLength2(Axis#1, 104, 105)
CAxis_setTickDensity(Axis#1, 106, 107); CAxis_setAutoScale(Axis#1, 108.5, 109.5, 110.5)
CAxis_setTitle(Axis#1, "t119", "t121", 122.5, 123); CAxis_setTitlePos(Axis#1, 128, 129)
CTextBox_setFontAngle(TextBox#4, 127.5, false); CBox_setBackground(Box#3, 124, 125, 126)
CAxis_setLabelStyle(Axis#1, "t132", 133.5, 134, 0); CTextBox_setFontAngle(TextBox#5, 138.5, true)
CBox_setBackground(Box#4, 135, 136, 137); CAxis_setLabelFormat(Axis#1, "t130")
CAxis_setMultiFormat(Axis#1, 139, "t140", 141, "t142", 1, true); CAxis_setWidth(Axis#2, 1)
...CXYChart_swapXY(XYChart#1, true); CBaseChart_makeChart2()"},
    {"OneNameIsNoSampleKey", DrawXYChart, EDIT(add<CXYLineLayer>(chart, 1, ""), add<CXYLineLayer>(chart, 1, "x")),
     R"(CTextBox_setText(TextBox#1, "{dataSetName}"); CPlotArea_setGridColor()",
     "CLegendBox_addKey CAxis_setLinearScale"},
    {"BackgroundImage", DrawXYChart,
     EDIT(chart.m_useBackground = true, chart.m_backgroundType = 1, chart.m_backImage = "\xc3\xa9.png"),
     "CPlotArea_setBackground2(PlotArea#1, \"\xc3\xa9.png\", 5)", "CPlotArea_setBackground("},
    {"Quadrants", DrawXYChart,
     [](PreviewFake& view) {
         CXYChart& chart = view.m_ownXYChart;
         models::Number numbers;
         for (CChartColor* color : {&chart.m_q1Color, &chart.m_q2Color, &chart.m_q3Color, &chart.m_q4Color})
             models::Each(*color, numbers);
         chart.m_useBackground = true;
         chart.m_backgroundType = 2;
         chart.m_xAxis.m_scaleType = 0;
         add<CXYLineLayer>(chart, 1);
     },
     R"(
CPlotArea_set4QBgColor(PlotArea#1, 1, 2, 3, 4, -1); CXYChart_setAxisAtOrigin(XYChart#1, 3, 5)
CAxis_setLinearScale(Axis#1, -6, 6, 1, 0); CAxis_setLinearScale(Axis#2, -100, 100, 10, 0); CAxis_setWidth(Axis#1, 1))",
     "CAxis_setAutoScale(Axis#1"},
    {"UnknownBackgroundAndScale", DrawXYChart,
     EDIT(chart.m_useBackground = true, chart.m_backgroundType = 3, chart.m_yAxis.m_scaleType = 4),
     R"(CAxis_setLinearScale(Axis#2, 0, 100, 10, 0); CAxis_setWidth(Axis#1, 1))", "CAxis_setAutoScale(Axis#2"},

    {"LinearScale", DrawXYChart,
     [](PreviewFake& view) {
         CXYChart& chart = view.m_ownXYChart;
         models::Number numbers;
         models::Each(chart.m_yAxis, numbers);
         chart.m_yAxis.m_scaleType = 2;
         chart.m_yAxis.m_title.m_useAngle = chart.m_yAxis.m_title.m_usePosition = false;
     },
     R"(
CAxis_setReverse(Axis#2, true); CAxis_setWidth(Axis#2, 3)
...CAxis_setTickDensity(Axis#2, 13, 14); CAxis_setLinearScale(Axis#2, 18.5, 19.5, 20.5, 21.5)
CAxis_setTitle(Axis#2, "t26", "t28", 29.5, 30); CBox_setBackground(Box#3, 31, 32, 33))",
     "CAxis_setReverse(Axis#1 CAxis_setTitlePos"},
    {"DateScale", DrawXYChart,
     EDIT(chart.m_xAxis.m_scaleType = 3, chart.m_xAxis.m_dateMajorTickInc = 86400,
          chart.m_xAxis.m_dateMinorTickInc = 3600),
     "CAxis_setDateScale(Axis#1, 1000, 2000, 86400, 3600)"},
    {"SecondAxes", DrawXYChart, // each follows at once; one of its own scale does not
     EDIT(chart.m_useX2Axis = chart.m_useY2Axis = true, chart.m_x2Axis.m_syncSlope = 2, chart.m_y2Axis.m_scaleType = 1),
     R"(
CAxis_setMultiFormat(Axis#3, 0x60004000, "", 0x60004000, "", 1, true); CAxis_syncAxis(Axis#3, Axis#1, 2, 0)
CXYChart_yAxis2(XYChart#1); CAxis_setWidth(Axis#4, 1))",
     "CAxis_syncAxis(Axis#4"},
    {"TiesOfAdditionalAxes", DrawXYChart, // come last, so that the first can follow the third
     [](PreviewFake& view) {
         CXYChart& chart = view.m_ownXYChart;
         CXYChartAxis gone;
         CXYChartAxis &first = addAxis(chart), &second = addAxis(chart), &third = addAxis(chart),
                      &fourth = addAxis(chart);
         first.m_location = 6;
         first.m_offset = 40;
         first.m_syncKind = 16;
         first.m_syncAxis = &third;
         second.m_syncKind = 8; // there is no second y axis
         third.m_syncKind = 2;
         third.m_syncSlope = -0.5;
         fourth.m_syncKind = 16;
         fourth.m_syncAxis = &gone;
     },
     R"(
CAxis_setMultiFormat(Axis#6, 0x60004000, "", 0x60004000, "", 1, true); CAxis_syncAxis(Axis#3, Axis#5, 1, 0)
CAxis_syncAxis(Axis#5, Axis#2, -0.5, 0); CBaseChart_makeChart2(BaseChart#1, 4))",
     "CXYChart_yAxis2"},
    {"Places", DrawXYChart, EDIT(addAxis(chart).m_location = 6, chart.m_axes.GetAxis(0)->m_offset = 40),
     R"(CXYChart_addAxis(XYChart#1, 6, 40); CAxis_setWidth(Axis#3, 1))"},
    {"TiesToSecondAxes", DrawXYChart,
     EDIT(chart.m_useX2Axis = chart.m_useY2Axis = true, addAxis(chart).m_syncKind = 4, addAxis(chart).m_syncKind = 8,
          addAxis(chart).m_syncKind = 3),
     R"(
CXYChart_xAxis2(XYChart#1); CAxis_syncAxis(Axis#3, Axis#6, 1, 0); CXYChart_yAxis2(XYChart#1)
CAxis_syncAxis(Axis#4, Axis#7, 1, 0); CBaseChart_makeChart2(BaseChart#1, 4))"},

    {"Bars", DrawXYChart, EDIT(add<CXYBarLayer>(chart, 0).m_combineMethod = 1),
     R"(
CRanTable_create(9, 7, 6); CRanTable_setCol(RanTable#1, 5, 8, 39); CXYChart_addBarLayer2(XYChart#1, 1, 0)
CRanTable_create(7, 3, 6); CRanTable_setCol(RanTable#2, 0, 0, 50)
CLayer_addDataSet(Layer#1, [48, 44, 45, 3, 36, 8], -65500, "n"); CRanTable_setCol(RanTable#2, 1, 0, 50)
CLayer_addDataSet(Layer#1, [26, 0, 1, 11, 41, 21], -65522, "n"); CRanTable_setCol(RanTable#2, 2, 0, 50)
CLayer_addDataSet(Layer#1, [2, 20, 4, 1, 45, 42], -65505, "n"); CBarLayer_setBarShape(BarLayer#1, 0, -1, -1)
CLayer_setAggregateLabelStyle(Layer#1, "gulim.ttc", 12, 0, 0); CBox_setBackground(Box#4, -1, -1, 0)
CTextBox_setFontAngle(TextBox#5, 0, false); CBarLayer_setOverlapRatio(BarLayer#1, 0.5, true)
CRanTable_destroy(RanTable#2); CLayer_setUseYAxis(Layer#1, Axis#2)
CLayer_setDataLabelStyle(Layer#1, "gulim.ttc", 12, 0, 0); CBox_setBackground(Box#5, -1, -1, 0)
CTextBox_setFontAngle(TextBox#6, 0, false); CLayer_setDataLabelFormat(Layer#1, "{value}")
CRanTable_destroy(RanTable#1); CBaseChart_makeChart2()",
     "CBarLayer_setBarGap CLayer_setBorderColor CLayer_set3D CLayer_setXData"},
    {"BarsOfEverything", DrawXYChart,
     [](PreviewFake& view) {
         CXYChart& chart = view.m_ownXYChart;
         auto& bars = numbered<CXYBarLayer>(chart, 0);
         bars.m_aggregateLabel = bars.m_useOverlap = false;
     },
     R"(
CXYChart_addBarLayer2(XYChart#1, 4, 0); CRanTable_create(7, 2, 6)
...CLayer_addDataSet(Layer#1, [48, 44, 45, 3, 36, 8], 10, "t2")
...CLayer_addDataSet(Layer#1, [26, 0, 1, 11, 41, 21], 11, "t2"); CBarLayer_setBarShape(BarLayer#1, 3, -1, -1)
CBarLayer_setBarGap(BarLayer#1, 6.5, 7.5); CLayer_setBorderColor(Layer#1, 8, 9); CRanTable_destroy(RanTable#2)
CLayer_setUseYAxis(Layer#1, Axis#2))",
     "CLayer_setAggregateLabel"},
    {"BarsThatOverlap", DrawXYChart,
     [](PreviewFake& view) {
         CXYChart& chart = view.m_ownXYChart;
         auto& bars = numbered<CXYBarLayer>(chart, 0);
         bars.m_firstOnTop = bars.m_labelForEachSeg = false;
     },
     R"(CTextBox_setFontAngle(TextBox#5, 0, false); CBarLayer_setOverlapRatio(BarLayer#1, 5.5, false))",
     "CLayer_setDataLabel"},
    {"BarsWithoutLabels", DrawXYChart, EDIT(add<CXYBarLayer>(chart, 0), view.m_ownLayout.m_showLabel = false),
     R"(CLayer_setUseYAxis(Layer#1, Axis#2); CRanTable_destroy(RanTable#1))",
     "CLayer_setAggregateLabel CLayer_setDataLabel"},
    {"Line", DrawXYChart, EDIT(numbered<CXYLineLayer>(chart, 1)), R"(
CRanTable_setCol(RanTable#1, 0, 0, 50); CXYChart_addLineLayer(XYChart#1, [11, 44, 16, 12, 31, 0], 3, "t2", 0)
CDataSet_setDataSymbol(DataSet#1, 5, 6, 7, 8, 1); CLayer_setLineWidth(Layer#1, 4); CLayer_setUseYAxis(Layer#1, Axis#2))"},
    {"Spline", DrawXYChart, EDIT(add<CXYLineLayer>(chart, 1).m_lineType = 1),
     R"(CXYChart_addSplineLayer(XYChart#1, [11, 44, 16, 12, 31, 0], 0, "n"))"},
    {"Steps", DrawXYChart, EDIT(add<CXYLineLayer>(chart, 1).m_lineType = 2),
     R"(CXYChart_addStepLineLayer(XYChart#1, [11, 44, 16, 12, 31, 0], 0, "n"))"},
    {"Points", DrawXYChart, EDIT(add<CXYScatterLayer>(chart, 2).m_symbolSize = 30), R"(
CRanTable_setCol(RanTable#1, 0, 0, 6); CRanTable_setCol(RanTable#1, 1, 0, 50); CRanTable_setCol(RanTable#1, 2, 10, 40)
CXYChart_addScatterLayer(XYChart#1, [1, 5, 2, 1, 4, 0], [11, 8, 47, 50, 50, 27], "n", 1, 5, -65500, -1)
CLayer_setUseYAxis(Layer#1, Axis#2))"},
    {"Bubbles", DrawXYChart, EDIT(numbered<CXYScatterLayer>(chart, 2)), R"(
CRanTable_setCol(RanTable#1, 0, 0, 6); CRanTable_setCol(RanTable#1, 1, 0, 50); CRanTable_setCol(RanTable#1, 2, 10, 40)
CXYChart_addScatterLayer(XYChart#1, [1, 5, 2, 1, 4, 0], [11, 8, 47, 50, 50, 27], "t2", 3, 4, 5, -1)
CLineLayer_setSymbolScale(LineLayer#1, [36, 15, 29, 35, 38, 18], 0, [], 0); CLayer_setUseYAxis(Layer#1, Axis#2))"},
    {"Areas", DrawXYChart, EDIT(add<CXYAreaLayer>(chart, 3).m_combineMethod = 4), R"(
CXYChart_addAreaLayer2(XYChart#1, 4, 0); CLayer_addDataSet(Layer#1, [11, 44, 16, 12, 31, 0], -65500, "n")
CLayer_addDataSet(Layer#1, [11, 8, 47, 50, 50, 27], -65522, "n")
CLayer_addDataSet(Layer#1, [44, 9, 31, 42, 46, 13], -65505, "n"); CLayer_setUseYAxis(Layer#1, Axis#2))"},
    {"AreasOfOneColor", DrawXYChart, EDIT(numbered<CXYAreaLayer>(chart, 3)), R"(
CXYChart_addAreaLayer2(XYChart#1, 3, 0); CLayer_addDataSet(Layer#1, [11, 44, 16, 12, 31, 0], 4, "t2")
CLayer_addDataSet(Layer#1, [11, 8, 47, 50, 50, 27], 4, "t2")
CLayer_addDataSet(Layer#1, [44, 9, 31, 42, 46, 13], 4, "t2"))"},
    {"WhiskerBoxes", DrawXYChart, EDIT(numbered<CXYBoxWhiskerLayer>(chart, 4)), R"(
CRanTable_setHLOCCols(RanTable#1, 0, 25, -5, 5, 0, 50)
CXYChart_addBoxWhiskerLayer(XYChart#1, [25, 22, 20, 24, 23, 19], [22, 20, 24, 23, 19, 17], [27, 24, 26, 26, 25, 20], [20, 17, 19, 22, 19, 16], [], 3, 4, -1)
CDataSet_setDataName(DataSet#1, "t2"); CLayer_setUseYAxis(Layer#1, Axis#2))"},
    {"Boxes", DrawXYChart, EDIT(numbered<CXYBoxLayer>(chart, 5)), R"(
CRanTable_setCol(RanTable#1, 0, 0, 50); CRanTable_setCol(RanTable#1, 1, 0, 50)
CXYChart_addBoxLayer(XYChart#1, [11, 44, 16, 12, 31, 0], [11, 8, 47, 50, 50, 27], 4, "t2")
CLayer_setUseYAxis(Layer#1, Axis#2))"},
    {"PriceBars", DrawXYChart, EDIT(numbered<CXYHLOCLayer>(chart, 6)), R"(
CRanTable_setHLOCCols(RanTable#1, 0, 25, -5, 5, 0, 50)
CXYChart_addHLOCLayer(XYChart#1, [27, 24, 26, 26, 25, 20], [20, 17, 19, 22, 19, 16], [25, 22, 20, 24, 23, 19], [22, 20, 24, 23, 19, 17], -1)
CHLOCLayer_setColorMethod(HLOCLayer#1, 2, 3, 4, -1.7e+308); CDataSet_setDataColor(DataSet#1, -65500, -1, -1, -1)
CDataSet_setDataName(DataSet#1, "t2"); CLayer_setUseYAxis(Layer#1, Axis#2))"},
    {"Tasks", DrawXYChart, EDIT(add<CXYGanttLayer>(chart, 7)), R"(
CXYChart_swapXY(XYChart#1, true); CRanTable_setHLOCCols(RanTable#1, 0, 25, -5, 5, 0, 50)
CXYChart_addBoxWhiskerLayer(XYChart#1, [27, 24, 26, 26, 25, 20], [20, 17, 19, 22, 19, 16], [], [], [], -1, -65535, -1)
CDataSet_setDataColor(DataSet#1, -65500, -1, -1, -1); CDataSet_setDataName(DataSet#1, "n")
CLayer_setUseYAxis(Layer#1, Axis#2))",
     "CBoxWhiskerLayer_setBoxColors CRanTable_create(7"},
    {"TasksOfUnnamedGroups", DrawXYChart,
     [](PreviewFake& view) {
         CXYChart& chart = view.m_ownXYChart;
         auto& tasks = add<CXYGanttLayer>(chart, 7);
         tasks.m_groups.push_back({});
         tasks.m_groups.push_back({});
     },
     R"(
CXYChart_swapXY(XYChart#1, true); CRanTable_create(7, 5, 2); CRanTable_setHLOCCols(RanTable#2, 0, 25, -5, 5, 0, 50)
CXYChart_addBoxWhiskerLayer(XYChart#1, [32, 31], [25, 23], [], [], [], -1, -65535, -1)
CBoxWhiskerLayer_setBoxColors(BoxWhiskerLayer#1, [65280, 65280], ["n", ""]); CRanTable_destroy(RanTable#2)
CDataSet_setDataColor(DataSet#1, -65500, -1, -1, -1); CDataSet_setDataName(DataSet#1, "n")
CLayer_setUseYAxis(Layer#1, Axis#2))"},
    {"TasksOfNamedGroups", DrawXYChart, EDIT(numbered<CXYGanttLayer>(chart, 7)),
     R"(CBoxWhiskerLayer_setBoxColors(BoxWhiskerLayer#1, [4, 6], ["t3", "t5"]))"},
    {"Candles", DrawXYChart, EDIT(numbered<CXYCandleStickLayer>(chart, 8)), R"(
CRanTable_setHLOCCols(RanTable#1, 0, 25, -5, 5, 0, 50)
CXYChart_addCandleStickLayer(XYChart#1, [27, 24, 26, 26, 25, 20], [20, 17, 19, 22, 19, 16], [25, 22, 20, 24, 23, 19], [22, 20, 24, 23, 19, 17], 3, 4, -65535)
CDataSet_setDataName(DataSet#1, "t2"); CLayer_setUseYAxis(Layer#1, Axis#2))"},
    {"NoKind", DrawXYChart,
     EDIT(add<CXYLineLayer>(chart, 1).m_type = 9, add<CXYLineLayer>(chart, 1).m_lineType = 3,
          add<CXYLineLayer>(chart, 1).m_type = 2),
     "CRanTable_destroy(RanTable#3)\nCBaseChart_makeChart2(BaseChart#1, 4)", "CLayer_"},
    {"SampleRangeOfALinearAxis", DrawXYChart,
     [](PreviewFake& view) {
         CXYChart& chart = view.m_ownXYChart;
         chart.m_yAxis.m_scaleType = 2;
         chart.m_yAxis.m_lowerLimit = 100;
         chart.m_yAxis.m_upperLimit = 200;
         add<CXYLineLayer>(chart, 1).m_yAxisKind = 8; // by the first y axis, whichever is used
         add<CXYCandleStickLayer>(chart, 8);
     },
     R"(
CRanTable_setCol(RanTable#1, 0, 100, 200); ...CRanTable_setHLOCCols(RanTable#2, 0, 50, -172800, 172800, 100, 200))"},
    {"Dates", DrawXYChart,
     EDIT(chart.m_xAxis.m_scaleType = chart.m_yAxis.m_scaleType = 3, chart.m_show3D = true, chart.m_depth = 11,
          chart.m_zGap = 12, add<CXYBarLayer>(chart, 0)),
     R"(
CLayer_setAggregateLabelFormat(Layer#1, "{value|yyyy/mm/dd}")
...CRanTable_setDateCol(RanTable#1, 6, 1000, 864000, false); CLayer_setXData(Layer#1, [6])
CLayer_set3D(Layer#1, 11, 12); CLayer_setUseYAxis(Layer#1, Axis#2)
CLayer_setDataLabelStyle(Layer#1, "gulim.ttc", 12, 0, 0); CBox_setBackground(Box#5, -1, -1, 0)
CTextBox_setFontAngle(TextBox#6, 0, false); CLayer_setDataLabelFormat(Layer#1, "{value|yyyy/mm/dd}")
CRanTable_destroy(RanTable#1))"},
    {"AxesOfLayers", DrawXYChart,
     [](PreviewFake& view) {
         CXYChart& chart = view.m_ownXYChart;
         addAxis(chart);
         add<CXYLineLayer>(chart, 1).m_yAxisKind = 8; // shown though the chart does not use it
         auto& second = add<CXYLineLayer>(chart, 1);
         second.m_yAxisKind = 16;
         second.m_yAxis = chart.m_axes.GetAxis(0);
         add<CXYLineLayer>(chart, 1).m_yAxisKind = 16; // of no axis
         add<CXYLineLayer>(chart, 1).m_yAxisKind = 3;
     },
     R"(
CXYChart_yAxis2(XYChart#1); CLayer_setUseYAxis(Layer#1, Axis#4); ...CLayer_setUseYAxis(Layer#2, Axis#3))",
     "CLayer_setUseYAxis(Layer#3 CLayer_setUseYAxis(Layer#4"},
    {"SingleLayer", DrawXYChart,
     EDIT(add<CXYBarLayer>(chart, 0, "named"), view.m_singleLayerMode = true,
          view.m_previewLayer = &add<CXYLineLayer>(chart, 1, "")),
     "CLegendBox_addKey(LegendBox#1, \"Legend\", -1, 0, null)", "CXYChart_addBarLayer2 CAxis_setLinearScale"},
};

INSTANTIATE_TEST_SUITE_P(XY, Calls, testing::ValuesIn(cases), kNameOfCase);
} // namespace
