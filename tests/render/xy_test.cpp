// The calls of XY charts, in order and value, in every branch. A row tells an edit and a run of calls that
// follow from it one upon another; what must not be called stands behind.

#include "tests/render/xy_calls.h"
#include <functional>
#include <gtest/gtest.h>

namespace {

struct Case {
    const char* name;
    std::function<void(XYPreview&)> edit;
    Lines calls;
    Lines absent = {}; ///< beginnings of calls
};

class XYCalls : public testing::TestWithParam<Case> {};

TEST_P(XYCalls, FollowFromTheModel) {
    XYPreview view;
    GetParam().edit(view);
    const Lines lines = drawnCalls(view);
    const Lines& calls = GetParam().calls;
    EXPECT_NE(std::search(lines.begin(), lines.end(), calls.begin(), calls.end()), lines.end())
        << testing::PrintToString(lines);
    for (const std::string& absent : GetParam().absent)
        EXPECT_TRUE(std::none_of(lines.begin(), lines.end(), [&](const std::string& line) {
            return line.starts_with(absent);
        })) << absent;
}

constexpr auto kNothing = [](XYPreview&) {};

template <class Kind>
auto layer(int type, void (*edit)(Kind&), const char* name = "n") {
    return [=](XYPreview& view) { edit(view.Add<Kind>(type, name)); };
}

const Case frame[] = {
    {"Empty",
     kNothing,
     {"CXYChart_create(500, 550, 0xffff0000, 0xff000000, 0)",
      "CXYChart_setPlotArea(XYChart#1, 50, 75, 400, 400, 0xff000000, -1, -1, 0x00c0c0c0, 0xff000000)",
      "CBaseChart_setBackground(BaseChart#1, 0x00ffffff, 0x33808080, 0)",
      R"(CBaseChart_setDefaultFonts(BaseChart#1, "gulim.ttc", "gulim.ttc", "gulim.ttc", "gulim.ttc"))",
      R"(CBaseChart_addLegend(BaseChart#1, 320, 12, false, "gulim.ttc", 12))",
      "CTextBox_setFontColor(TextBox#1, 0)",
      "CBox_setBackground(Box#1, -1, 0, 0)",
      R"(CTextBox_setText(TextBox#1, "{dataSetName}"))",
      R"(CLegendBox_addKey(LegendBox#1, "Legend", -1, 0, null))",
      "CPlotArea_setGridColor(PlotArea#1, 0x00c0c0c0, 0xff000000, 0x00c0c0c0, 0xff000000)",
      "CPlotArea_setGridWidth(PlotArea#1, 1, 1, 1, 1)",
      "CBaseChart_addLine(BaseChart#1, 50, 511, 450, 511, 0, 1)",
      R"(CBaseChart_addText(BaseChart#1, 50, 517, "Sample Line", null, 8, -65534, 7, 0, false))",
      "CXYChart_xAxis(XYChart#1)",
      "CAxis_setLinearScale(Axis#1, 0, 6, 1, 0)",
      "CXYChart_yAxis(XYChart#1)",
      "CAxis_setLinearScale(Axis#2, 0, 100, 10, 0)",
      "CXYChart_xAxis(XYChart#1)",
      "CAxis_setWidth(Axis#1, 1)",
      "CAxis_setColors(Axis#1, 0, -65534, -1, -1)",
      "CAxis_setMargin(Axis#1, 0, 0)",
      "CAxis_setLabelStep(Axis#1, 0, 0, 0, 0)",
      "CAxis_setTickLength2(Axis#1, 5, 0)",
      "CAxis_setTickDensity(Axis#1, 0, -1)",
      "CAxis_setAutoScale(Axis#1, 0, 0, 0)",
      R"(CAxis_setLabelStyle(Axis#1, "gulim.ttc", 12, 0, 0))",
      "CTextBox_setFontAngle(TextBox#3, 0, false)",
      "CBox_setBackground(Box#2, -1, -1, 0)",
      R"(CAxis_setLabelFormat(Axis#1, "{value}"))",
      R"(CAxis_setMultiFormat(Axis#1, 0x60004000, "", 0x60004000, "", 1, true))",
      "CXYChart_yAxis(XYChart#1)",
      "CAxis_setWidth(Axis#2, 1)"},
     {"CXYChart_xAxis2", "CXYChart_yAxis2", "CAxis_setReverse", "CXYChart_swapXY", "CPlotArea_setBackground",
      "CRanTable_", "CAxis_syncAxis", "CAxis_setTitle", "CXYChart_setAxisAtOrigin"}},
    {"LastCalls",
     kNothing,
     {R"(CAxis_setMultiFormat(Axis#2, 0x60004000, "", 0x60004000, "", 1, true))",
      "CBaseChart_makeChart2(BaseChart#1, 4)", "CBaseChart_getDrawArea(BaseChart#1)",
      "CDrawArea_getWidth(DrawArea#1)", "CDrawArea_getHeight(DrawArea#1)",
      "CBaseChart_destroy(BaseChart#1)"}},
    {"SampleLineRoundsDown", // 0.1 * 199 = 19.9, 0.93 * 99 = 92.07, 0.94 * 99 = 93.06
     [](XYPreview& view) {
         view.Layout().m_width = 199;
         view.Layout().m_height = 99;
         view.Chart().m_lineWidth = 3;
         view.Chart().m_lineColor.m_color = 0x123456;
     },
     {"CBaseChart_addLine(BaseChart#1, 19, 92, 180, 92, 0x00123456, 3)",
      R"(CBaseChart_addText(BaseChart#1, 19, 93, "Sample Line", null, 8, -65534, 7, 0, false))"}},
    {"OneNameIsNoSampleKey",
     [](XYPreview& view) {
         view.AddLayer(1);
         view.AddLayer(1, "x");
     },
     {R"(CTextBox_setText(TextBox#1, "{dataSetName}"))",
      "CPlotArea_setGridColor(PlotArea#1, 0x00c0c0c0, 0xff000000, 0x00c0c0c0, 0xff000000)"},
     {"CLegendBox_addKey", "CAxis_setLinearScale"}},
    {"Background",
     [](XYPreview& view) {
         view.Chart().m_useBackground = true;
         view.Chart().m_backColor.m_color = 0x111111;
         view.Chart().m_altColor.m_color = 0x222222;
         view.Chart().m_edgeColor.m_color = 0x333333;
     },
     {"CAxis_setLinearScale(Axis#2, 0, 100, 10, 0)",
      "CPlotArea_setBackground(PlotArea#1, 0x00111111, 0x00222222, 0x00333333)"}},
    {"BackgroundImage",
     [](XYPreview& view) {
         view.Chart().m_useBackground = true;
         view.Chart().m_backgroundType = 1;
         view.Chart().m_backImage = "\xc3\xa9.png";
     },
     {"CPlotArea_setBackground2(PlotArea#1, \"\xc3\xa9.png\", 5)"},
     {"CPlotArea_setBackground("}},
    {"Quadrants",
     [](XYPreview& view) {
         view.Chart().m_useBackground = view.Chart().m_swapXY = true;
         view.Chart().m_backgroundType = 2;
         view.Chart().m_q2Color.m_color = 0x222222;
         view.Chart().m_xAxis.m_scaleType = 0;
         view.AddLayer(1);
     },
     {"CPlotArea_set4QBgColor(PlotArea#1, 0x00ffffff, 0x00222222, 0x00ffffff, 0x00ffffff, -1)",
      "CXYChart_setAxisAtOrigin(XYChart#1, 3, 5)", "CXYChart_xAxis(XYChart#1)",
      "CAxis_setLinearScale(Axis#1, -6, 6, 1, 0)", "CXYChart_yAxis(XYChart#1)",
      "CAxis_setLinearScale(Axis#2, -100, 100, 10, 0)", "CXYChart_xAxis(XYChart#1)",
      "CAxis_setWidth(Axis#1, 1)"},
     {"CAxis_setAutoScale(Axis#1"}},
    {"UnknownBackground",
     [](XYPreview& view) {
         view.Chart().m_useBackground = true;
         view.Chart().m_backgroundType = 3;
     },
     {"CAxis_setLinearScale(Axis#2, 0, 100, 10, 0)", "CXYChart_xAxis(XYChart#1)"}},
};

const Case axes[] = {
    {"EachField",
     [](XYPreview& view) {
         CXYChartAxis& axis = view.Chart().m_xAxis;
         axis.m_reverse = axis.m_labelVertical = true;
         axis.m_width = 2;
         axis.m_color.m_color = 3;
         axis.m_marginTop = 4;
         axis.m_marginBottom = 5;
         axis.m_majorStep = 6;
         axis.m_minorStep = 7;
         axis.m_majorOffset = 8;
         axis.m_minorOffset = 9;
         axis.m_majorLength = 10;
         axis.m_minorLength = 11;
         axis.m_majorSpacing = 12;
         axis.m_minorSpacing = 13;
         axis.m_topExtension = 14;
         axis.m_bottomExtension = 15;
         axis.m_zeroAffinity = 16;
         axis.m_labelFont.m_fileName = "a.ttf";
         axis.m_labelFont.m_size = 17;
         axis.m_labelFontColor.m_color = 18;
         axis.m_labelAngle = 19;
         axis.m_labelBackColor.m_color = 20;
         axis.m_labelEdgeColor.m_color = 21;
         axis.m_labelEffect.m_value = 22;
         axis.m_labelFormat = "f";
         axis.m_filter1 = 23;
         axis.m_format1 = "1";
         axis.m_filter2 = 24;
         axis.m_format2 = "2";
     },
     {"CAxis_setReverse(Axis#1, true)", "CAxis_setWidth(Axis#1, 2)",
      "CAxis_setColors(Axis#1, 3, -65534, -1, -1)", "CAxis_setMargin(Axis#1, 4, 5)",
      "CAxis_setLabelStep(Axis#1, 6, 7, 8, 9)", "CAxis_setTickLength2(Axis#1, 10, 11)",
      "CAxis_setTickDensity(Axis#1, 12, 13)", "CAxis_setAutoScale(Axis#1, 14, 15, 16)",
      R"(CAxis_setLabelStyle(Axis#1, "a.ttf", 17, 18, 0))", "CTextBox_setFontAngle(TextBox#3, 19, true)",
      "CBox_setBackground(Box#2, 20, 21, 22)", R"(CAxis_setLabelFormat(Axis#1, "f"))",
      R"(CAxis_setMultiFormat(Axis#1, 23, "1", 24, "2", 1, true))"},
     {"CAxis_setReverse(Axis#2"}},
    {"LinearScale",
     [](XYPreview& view) {
         CXYChartAxis& axis = view.Chart().m_xAxis;
         axis.m_scaleType = 2;
         axis.m_lowerLimit = -1;
         axis.m_upperLimit = 2.5;
         axis.m_majorTickInc = 0.5;
         axis.m_minorTickInc = 0.25;
     },
     {"CAxis_setTickDensity(Axis#1, 0, -1)", "CAxis_setLinearScale(Axis#1, -1, 2.5, 0.5, 0.25)",
      R"(CAxis_setLabelStyle(Axis#1, "gulim.ttc", 12, 0, 0))"}},
    {"DateScale",
     [](XYPreview& view) {
         view.Chart().m_xAxis.m_scaleType = 3;
         view.Chart().m_xAxis.m_dateMajorTickInc = 86400;
         view.Chart().m_xAxis.m_dateMinorTickInc = 3600;
     },
     {"CAxis_setDateScale(Axis#1, 1000, 2000, 86400, 3600)"}},
    {"UnknownScale",
     [](XYPreview& view) { view.Chart().m_xAxis.m_scaleType = 4; },
     {"CAxis_setTickDensity(Axis#1, 0, -1)", R"(CAxis_setLabelStyle(Axis#1, "gulim.ttc", 12, 0, 0))"}},
    {"Title",
     [](XYPreview& view) {
         CXYChartAxisTitle& title = view.Chart().m_yAxis.m_title;
         title.m_show = title.m_useAngle = title.m_vertical = title.m_usePosition = true;
         title.m_text = "t";
         title.m_font.m_fileName = "b.ttf";
         title.m_font.m_size = 9.5;
         title.m_fontColor.m_color = 1;
         title.m_angle = 30;
         title.m_alignment = 9;
         title.m_gap = -4;
         title.m_backColor.m_color = 2;
         title.m_edgeColor.m_color = 3;
         title.m_effect.m_value = 5;
     },
     {"CAxis_setAutoScale(Axis#2, 0, 0, 0)", R"(CAxis_setTitle(Axis#2, "t", "b.ttf", 9.5, 1))",
      "CAxis_setTitlePos(Axis#2, 9, -4)", "CTextBox_setFontAngle(TextBox#4, 30, true)",
      "CBox_setBackground(Box#3, 2, 3, 5)", R"(CAxis_setLabelStyle(Axis#2, "gulim.ttc", 12, 0, 0))"}},
    {"PlainTitle",
     [](XYPreview& view) { view.Chart().m_yAxis.m_title.m_show = true; },
     {R"(CAxis_setTitle(Axis#2, "", "gulim.ttc", 12, 0))", "CBox_setBackground(Box#3, -1, -1, 0)"}},
    {"SecondAxes", // each follows at once; one of its own scale does not
     [](XYPreview& view) {
         view.Chart().m_useX2Axis = view.Chart().m_useY2Axis = true;
         view.Chart().m_x2Axis.m_syncSlope = 2;
         view.Chart().m_y2Axis.m_scaleType = 1;
     },
     {R"(CAxis_setMultiFormat(Axis#3, 0x60004000, "", 0x60004000, "", 1, true))", "CXYChart_xAxis(XYChart#1)",
      "CAxis_syncAxis(Axis#3, Axis#1, 2, 0)", "CXYChart_yAxis2(XYChart#1)", "CAxis_setWidth(Axis#4, 1)"},
     {"CAxis_syncAxis(Axis#4"}},
    {"AdditionalAxes", // ties come last, so that the first can follow the second
     [](XYPreview& view) {
         CXYChartAxis& first = view.AddAxis();
         first.m_location = 6;
         first.m_offset = 40;
         first.m_syncKind = 16;
         first.m_syncAxis = &view.AddAxis();
     },
     {"CXYChart_addAxis(XYChart#1, 6, 40)", "CAxis_setWidth(Axis#3, 1)"}},
    {"TiesOfAdditionalAxes",
     [](XYPreview& view) {
         CXYChartAxis gone;
         CXYChartAxis& first = view.AddAxis();
         CXYChartAxis& second = view.AddAxis();
         CXYChartAxis& third = view.AddAxis();
         CXYChartAxis& fourth = view.AddAxis();
         first.m_syncKind = 16;
         first.m_syncAxis = &third;
         second.m_syncKind = 8; // there is no second y axis
         third.m_syncKind = 2;
         third.m_syncSlope = -0.5;
         fourth.m_syncKind = 16;
         fourth.m_syncAxis = &gone;
     },
     {R"(CAxis_setMultiFormat(Axis#6, 0x60004000, "", 0x60004000, "", 1, true))",
      "CAxis_syncAxis(Axis#3, Axis#5, 1, 0)", "CXYChart_yAxis(XYChart#1)",
      "CAxis_syncAxis(Axis#5, Axis#2, -0.5, 0)", "CBaseChart_makeChart2(BaseChart#1, 4)"},
     {"CXYChart_yAxis2"}},
    {"TiesToSecondAxes",
     [](XYPreview& view) {
         view.Chart().m_useX2Axis = view.Chart().m_useY2Axis = true;
         view.AddAxis().m_syncKind = 4;
         view.AddAxis().m_syncKind = 8;
         view.AddAxis().m_syncKind = 3;
     },
     {"CXYChart_xAxis2(XYChart#1)", "CAxis_syncAxis(Axis#3, Axis#6, 1, 0)", "CXYChart_yAxis2(XYChart#1)",
      "CAxis_syncAxis(Axis#4, Axis#7, 1, 0)", "CBaseChart_makeChart2(BaseChart#1, 4)"}},
};

// The table of a layer is seeded with 7 + 2; the palette entries are those of its column 5.
const std::string kTable[] = {"CRanTable_create(9, 7, 6)", "CRanTable_setCol(RanTable#1, 5, 8, 39)",
                              "CRanTable_getCol(RanTable#1, 5)"};
const std::string kPrices = "CRanTable_setHLOCCols(RanTable#1, 0, 25, -5, 5, 0, 50)";

std::string columnRead(int column, int table = 1) {
    return "CRanTable_getCol(RanTable#" + std::to_string(table) + ", " + std::to_string(column) + ")";
}

std::string columnMade(int column, int table = 1) {
    return "CRanTable_setCol(RanTable#" + std::to_string(table) + ", " + std::to_string(column) + ", 0, 50)";
}

const Case layers[] = {
    {"Bars",
     layer<CXYBarLayer>(
         0, [](CXYBarLayer& bars) { bars.m_combineMethod = 1; }),
     {kTable[0],
      kTable[1],
      kTable[2],
      "CXYChart_addBarLayer2(XYChart#1, 1, 0)",
      "CRanTable_create(7, 3, 6)",
      columnMade(0, 2),
      columnRead(0, 2),
      R"(CLayer_addDataSet(Layer#1, 6 numbers, -65500, "n"))",
      columnMade(1, 2),
      columnRead(1, 2),
      R"(CLayer_addDataSet(Layer#1, 6 numbers, -65522, "n"))",
      columnMade(2, 2),
      columnRead(2, 2),
      R"(CLayer_addDataSet(Layer#1, 6 numbers, -65505, "n"))",
      "CBarLayer_setBarShape(BarLayer#1, 0, -1, -1)",
      R"(CLayer_setAggregateLabelStyle(Layer#1, "gulim.ttc", 12, 0, 0))",
      "CBox_setBackground(Box#4, -1, -1, 0)",
      "CTextBox_setFontAngle(TextBox#5, 0, false)",
      "CBarLayer_setOverlapRatio(BarLayer#1, 0.5, true)",
      "CRanTable_destroy(RanTable#2)",
      "CXYChart_yAxis(XYChart#1)",
      "CLayer_setUseYAxis(Layer#1, Axis#2)",
      R"(CLayer_setDataLabelStyle(Layer#1, "gulim.ttc", 12, 0, 0))",
      "CBox_setBackground(Box#5, -1, -1, 0)",
      "CTextBox_setFontAngle(TextBox#6, 0, false)",
      R"(CLayer_setDataLabelFormat(Layer#1, "{value}"))",
      "CRanTable_destroy(RanTable#1)",
      "CBaseChart_makeChart2(BaseChart#1, 4)"},
     {"CBarLayer_setBarGap", "CLayer_setBorderColor", "CLayer_set3D", "CLayer_setXData"}},
    {"BarsOfTheModelsColors",
     layer<CXYBarLayer>(
         0,
         [](CXYBarLayer& bars) {
             for (const std::uint32_t color : {11U, 22U}) {
                 CChartColor choice;
                 choice.m_color = color;
                 bars.m_dataSetColors.push_back(choice);
             }
             bars.m_aggregateLabel = bars.m_useOverlap = false;
             bars.m_shape = 7;
             bars.m_barGap = 0.25;
             bars.m_subBarGap = -0.5;
             bars.m_useBorderColor = true;
             bars.m_edgeColor.m_color = 33;
             bars.m_effect.m_value = 4;
         }),
     {"CRanTable_create(7, 2, 6)", columnMade(0, 2), columnRead(0, 2),
      R"(CLayer_addDataSet(Layer#1, 6 numbers, 11, "n"))", columnMade(1, 2), columnRead(1, 2),
      R"(CLayer_addDataSet(Layer#1, 6 numbers, 22, "n"))", "CBarLayer_setBarShape(BarLayer#1, 7, -1, -1)",
      "CBarLayer_setBarGap(BarLayer#1, 0.25, -0.5)", "CLayer_setBorderColor(Layer#1, 33, 4)",
      "CRanTable_destroy(RanTable#2)"},
     {"CBarLayer_setOverlapRatio", "CLayer_setAggregateLabel"}},
    {"BarsWithoutLabels",
     [](XYPreview& view) {
         view.AddLayer(0);
         view.Layout().m_showLabel = false;
     },
     {"CLayer_setUseYAxis(Layer#1, Axis#2)", "CRanTable_destroy(RanTable#1)"},
     {"CLayer_setAggregateLabel", "CLayer_setDataLabel"}},
    {"BarsWithLabelsOfTheWhole",
     layer<CXYBarLayer>(
         0, [](CXYBarLayer& bars) { bars.m_labelForEachSeg = false; }),
     {R"(CLayer_setAggregateLabelStyle(Layer#1, "gulim.ttc", 12, 0, 0))"},
     {"CLayer_setDataLabel"}},
    {"Line",
     layer<CXYLineLayer>(
         1,
         [](CXYLineLayer& line) {
             line.m_color.m_color = 1;
             line.m_lineWidth = 2;
             line.m_symbolType = 3;
             line.m_symbolSize = 4;
             line.m_fillColor.m_color = 5;
             line.m_edgeColor.m_color = 6;
         }),
     {kTable[2], columnMade(0), columnRead(0), R"(CXYChart_addLineLayer(XYChart#1, 6 numbers, 1, "n", 0))",
      "CLayer_getDataSet(Layer#1, 0)", "CDataSet_setDataSymbol(DataSet#1, 3, 4, 5, 6, 1)",
      "CLayer_setLineWidth(Layer#1, 2)", "CXYChart_yAxis(XYChart#1)"}},
    {"Spline",
     layer<CXYLineLayer>(
         1, [](CXYLineLayer& line) { line.m_lineType = 1; }),
     {columnRead(0), R"(CXYChart_addSplineLayer(XYChart#1, 6 numbers, 0, "n"))"}},
    {"Steps",
     layer<CXYLineLayer>(
         1, [](CXYLineLayer& line) { line.m_lineType = 2; }),
     {columnRead(0), R"(CXYChart_addStepLineLayer(XYChart#1, 6 numbers, 0, "n"))"}},
    {"Points",
     layer<CXYScatterLayer>(
         2, [](CXYScatterLayer& points) { points.m_symbolSize = 30; }),
     {kTable[2], "CRanTable_setCol(RanTable#1, 0, 0, 6)", columnMade(1),
      "CRanTable_setCol(RanTable#1, 2, 10, 40)", columnRead(0), columnRead(1), columnRead(2),
      R"(CXYChart_addScatterLayer(XYChart#1, 6 numbers, 6 numbers, "n", 1, 5, -65500, -1))",
      "CXYChart_yAxis(XYChart#1)"}},
    {"Bubbles",
     layer<CXYScatterLayer>(
         2,
         [](CXYScatterLayer& points) {
             points.m_bubble = points.m_useSymbolColor = true;
             points.m_symbolType = 7;
             points.m_symbolSize = 30;
             points.m_symbolColor.m_color = 9;
         }),
     {R"(CXYChart_addScatterLayer(XYChart#1, 6 numbers, 6 numbers, "n", 7, 30, 9, -1))",
      "CLineLayer_setSymbolScale(LineLayer#1, 6 numbers, 0, [], 0)", "CXYChart_yAxis(XYChart#1)"}},
    {"Areas",
     layer<CXYAreaLayer>(
         3, [](CXYAreaLayer& areas) { areas.m_combineMethod = 4; }),
     {kTable[2], columnMade(0), columnMade(1), columnMade(2), columnRead(0), columnRead(1), columnRead(2),
      "CXYChart_addAreaLayer2(XYChart#1, 4, 0)", R"(CLayer_addDataSet(Layer#1, 6 numbers, -65500, "n"))",
      R"(CLayer_addDataSet(Layer#1, 6 numbers, -65522, "n"))",
      R"(CLayer_addDataSet(Layer#1, 6 numbers, -65505, "n"))", "CXYChart_yAxis(XYChart#1)"}},
    {"AreasOfOneColor",
     layer<CXYAreaLayer>(
         3, [](CXYAreaLayer& areas) { areas.m_useAreaColor = true; }),
     {R"(CLayer_addDataSet(Layer#1, 6 numbers, 0x00ff3333, "n"))",
      R"(CLayer_addDataSet(Layer#1, 6 numbers, 0x00ff3333, "n"))",
      R"(CLayer_addDataSet(Layer#1, 6 numbers, 0x00ff3333, "n"))"}},
    {"WhiskerBoxes",
     layer<CXYBoxWhiskerLayer>(
         4, [](CXYBoxWhiskerLayer&) {}),
     {kTable[2], kPrices, columnRead(0), columnRead(1), columnRead(2), columnRead(3),
      "CXYChart_addBoxWhiskerLayer(XYChart#1, 6 numbers, 6 numbers, 6 numbers, 6 numbers, [], 0x009999ff, "
      "204, -1)",
      "CLayer_getDataSet(Layer#1, 0)", R"(CDataSet_setDataName(DataSet#1, "n"))",
      "CXYChart_yAxis(XYChart#1)"}},
    {"Boxes",
     layer<CXYBoxLayer>(
         5,
         [](CXYBoxLayer& boxes) {
             boxes.m_group.m_name = "not shown";
             boxes.m_group.m_color.m_color = 7;
         }),
     {kTable[2], columnMade(0), columnMade(1), columnRead(0), columnRead(1),
      R"(CXYChart_addBoxLayer(XYChart#1, 6 numbers, 6 numbers, 7, "n"))", "CXYChart_yAxis(XYChart#1)"}},
    {"PriceBars",
     layer<CXYHLOCLayer>(
         6, [](CXYHLOCLayer&) {}),
     {kTable[2], kPrices, columnRead(0), columnRead(1), columnRead(2), columnRead(3),
      "CXYChart_addHLOCLayer(XYChart#1, 6 numbers, 6 numbers, 6 numbers, 6 numbers, -1)",
      "CHLOCLayer_setColorMethod(HLOCLayer#1, 2, 32768, 0x00ff0000, -1.7e+308)",
      "CLayer_getDataSet(Layer#1, 0)", "CDataSet_setDataColor(DataSet#1, -65500, -1, -1, -1)",
      R"(CDataSet_setDataName(DataSet#1, "n"))", "CXYChart_yAxis(XYChart#1)"}},
    {"Tasks",
     layer<CXYGanttLayer>(
         7, [](CXYGanttLayer&) {}),
     {kTable[2], "CXYChart_swapXY(XYChart#1, true)", kPrices, columnRead(0), columnRead(1),
      "CXYChart_addBoxWhiskerLayer(XYChart#1, 6 numbers, 6 numbers, [], [], [], -1, -65535, -1)",
      "CLayer_getDataSet(Layer#1, 0)", "CDataSet_setDataColor(DataSet#1, -65500, -1, -1, -1)",
      R"(CDataSet_setDataName(DataSet#1, "n"))", "CXYChart_yAxis(XYChart#1)"},
     {"CBoxWhiskerLayer_setBoxColors", "CRanTable_create(7"}},
    {"TasksOfUnnamedGroups",
     layer<CXYGanttLayer>(
         7,
         [](CXYGanttLayer& tasks) {
             tasks.m_groups.push_back(CBoxGroup());
             tasks.m_groups.push_back(CBoxGroup());
         }),
     {"CXYChart_swapXY(XYChart#1, true)", "CRanTable_create(7, 5, 2)",
      "CRanTable_setHLOCCols(RanTable#2, 0, 25, -5, 5, 0, 50)", columnRead(0, 2), columnRead(1, 2),
      "CXYChart_addBoxWhiskerLayer(XYChart#1, 2 numbers, 2 numbers, [], [], [], -1, -65535, -1)",
      R"(CBoxWhiskerLayer_setBoxColors(BoxWhiskerLayer#1, 2 numbers, ["n", ""]))",
      "CRanTable_destroy(RanTable#2)", "CLayer_getDataSet(Layer#1, 0)"}},
    {"TasksOfANamedGroup",
     layer<CXYGanttLayer>(
         7,
         [](CXYGanttLayer& tasks) {
             tasks.m_groups.push_back(CBoxGroup());
             tasks.m_groups.push_back(CBoxGroup());
             tasks.m_groups[1].m_name = "b";
         }),
     {R"(CBoxWhiskerLayer_setBoxColors(BoxWhiskerLayer#1, 2 numbers, ["", "b"]))"}},
    {"Candles",
     layer<CXYCandleStickLayer>(
         8, [](CXYCandleStickLayer&) {}),
     {kTable[2], kPrices, columnRead(0), columnRead(1), columnRead(2), columnRead(3),
      "CXYChart_addCandleStickLayer(XYChart#1, 6 numbers, 6 numbers, 6 numbers, 6 numbers, 65280, "
      "0x00ff0000, -65535)",
      "CLayer_getDataSet(Layer#1, 0)", R"(CDataSet_setDataName(DataSet#1, "n"))",
      "CXYChart_yAxis(XYChart#1)"}},
    {"NoKind",
     layer<CXYLineLayer>(
         1, [](CXYLineLayer& line) { line.m_type = 9; }),
     {kTable[0], kTable[1], kTable[2], "CRanTable_destroy(RanTable#1)",
      "CBaseChart_makeChart2(BaseChart#1, 4)"},
     {"CLayer_"}},
    {"SampleRangeOfALinearAxis",
     [](XYPreview& view) {
         view.Chart().m_yAxis.m_scaleType = 2;
         view.Chart().m_yAxis.m_lowerLimit = 100;
         view.Chart().m_yAxis.m_upperLimit = 200;
         view.AddLayer(1).m_yAxisKind = 8; // by the first y axis, whichever is used
         view.AddLayer(8);
     },
     {"CRanTable_setHLOCCols(RanTable#2, 0, 50, -172800, 172800, 100, 200)"},
     {columnMade(0)}},
    {"Dates",
     [](XYPreview& view) {
         view.Chart().m_xAxis.m_scaleType = view.Chart().m_yAxis.m_scaleType = 3;
         view.Chart().m_show3D = true;
         view.Chart().m_depth = 11;
         view.Chart().m_zGap = 12;
         view.AddLayer(0);
     },
     {R"(CLayer_setAggregateLabelFormat(Layer#1, "{value|yyyy/mm/dd}"))",
      "CBarLayer_setOverlapRatio(BarLayer#1, 0.5, true)", "CRanTable_destroy(RanTable#2)",
      "CRanTable_setDateCol(RanTable#1, 6, 1000, 864000, false)", columnRead(6),
      "CLayer_setXData(Layer#1, 6 numbers)", "CLayer_set3D(Layer#1, 11, 12)", "CXYChart_yAxis(XYChart#1)",
      "CLayer_setUseYAxis(Layer#1, Axis#2)", R"(CLayer_setDataLabelStyle(Layer#1, "gulim.ttc", 12, 0, 0))",
      "CBox_setBackground(Box#5, -1, -1, 0)", "CTextBox_setFontAngle(TextBox#6, 0, false)",
      R"(CLayer_setDataLabelFormat(Layer#1, "{value|yyyy/mm/dd}"))", "CRanTable_destroy(RanTable#1)"}},
    {"AxesOfLayers",
     [](XYPreview& view) {
         view.AddAxis();
         view.AddLayer(1).m_yAxisKind = 8; // shown though the chart does not use it
         CXYChartLayer& second = view.AddLayer(1);
         second.m_yAxisKind = 16;
         second.m_yAxis = view.Chart().m_axes.GetAxis(0);
         view.AddLayer(1).m_yAxisKind = 16; // of no axis
         view.AddLayer(1).m_yAxisKind = 3;
     },
     {"CXYChart_yAxis2(XYChart#1)", "CLayer_setUseYAxis(Layer#1, Axis#4)"},
     {"CLayer_setUseYAxis(Layer#3", "CLayer_setUseYAxis(Layer#4"}},
    {"SingleLayer",
     [](XYPreview& view) {
         view.AddLayer(0, "named");
         view.AddLayer(0);
         view.m_singleLayerMode = true;
         view.m_previewLayer = &view.AddLayer(1);
     },
     {R"(CLegendBox_addKey(LegendBox#1, "Legend", -1, 0, null))"},
     {"CXYChart_addBarLayer2", "CAxis_setLinearScale"}},
};

constexpr auto kName = [](const auto& test) { return test.param.name; };
INSTANTIATE_TEST_SUITE_P(Frame, XYCalls, testing::ValuesIn(frame), kName);
INSTANTIATE_TEST_SUITE_P(Axes, XYCalls, testing::ValuesIn(axes), kName);
INSTANTIATE_TEST_SUITE_P(Layers, XYCalls, testing::ValuesIn(layers), kName);

TEST(XYSamples, AreWholeNumbersInTheAxisRangeThatStayTheSame) {
    XYPreview view;
    view.Chart().m_yAxis.m_scaleType = 2;
    view.Chart().m_yAxis.m_lowerLimit = 100;
    view.Chart().m_yAxis.m_upperLimit = 200;
    for (int type = 0; type < 9; ++type)
        view.AddLayer(type);
    const recorder::Recording recording;
    DrawXYChart(view);
    const Lines first = recording.Lines();
    static const std::regex whole("1[0-9][0-9]|200");
    for (const std::string& line : first) {
        if (line.starts_with("CXYChart_addLineLayer") || line.starts_with("CLayer_addDataSet")) {
            std::string list = line.substr(line.find('[') + 1, line.find(']') - line.find('[') - 1);
            std::replace(list.begin(), list.end(), ',', ' ');
            std::istringstream values(list);
            int count = 0;
            for (std::string value; values >> value; ++count)
                EXPECT_TRUE(std::regex_match(value, whole)) << line;
            EXPECT_EQ(count, 6);
        }
    }
    const recorder::Recording again;
    DrawXYChart(view);
    EXPECT_EQ(again.Lines(), first);
}

} // namespace
