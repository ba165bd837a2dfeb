// The calls of the drawing routines, in order and value. "Everything" has a number of its own in each field,
// so that a field that is lost, or lands in another's place, shows; the other rows are branches: runs of
// calls that follow one upon another, and beginnings of calls that must not be made.

#include "render/angular_meter.h"
#include "render/layout_sample.h"
#include "render/linear_meter.h"
#include "render/pie.h"
#include "render/polar.h"
#include "tests/model/models.h"
#include "tests/render/calls.h"
#include <gmock/gmock.h>

namespace {
TEST_P(Calls, FollowFromTheModel) {
    PreviewFake view;
    for (CXYChartAxis* axis : {&view.m_ownXYChart.m_xAxis, &view.m_ownXYChart.m_yAxis}) {
        axis->m_dateLowerLimit = 1000;
        axis->m_dateUpperLimit = 2000;
    }
    GetParam().edit(view);
    expectCalls(callsOf(GetParam().routine, view), GetParam().calls, GetParam().absent);
}

void number(PreviewFake& view, auto& model) {
    models::Number numbers;
    models::Each(view.m_ownLayout, numbers);
    models::Each(model, numbers);
}

void addLayers(PreviewFake& view, std::initializer_list<int> types) {
    for (const int type : types) view.m_ownPolarChart.m_layers.AddLayer(CPolarLayerMgr::CreateLayer(type));
    for (int i = 0; i < view.m_ownPolarChart.m_layers.GetLayerCount(); ++i)
        view.m_ownPolarChart.m_layers.GetLayer(i)->m_seed = 40 + i;
}

const CallCase cases[] = {
    {"Pie", DrawPieChart, EDIT(), R"(
CPieChart_create(500, 550, 0xffff0000, 0xff000000, 0); CPieChart_setPieSize(PieChart#1, 250, 275, 160)
CBaseChart_setBackground(BaseChart#1, 0x00ffffff, 0x33808080, 0)
CBaseChart_setDefaultFonts(BaseChart#1, "gulim.ttc", "gulim.ttc", "gulim.ttc", "gulim.ttc"); CRanTable_create(0, 2, 5)
CRanTable_setCol(RanTable#1, 0, 10, 100)
CPieChart_setData(PieChart#1, [40, 34, 34, 53, 64], ["Sector 1", "Sector 2", "Sector 3", "Sector 4", "Sector 5"])
CPieChart_setLabelStyle(PieChart#1, "gulim.ttc", 12, 0); CBox_setBackground(Box#1, -1, -1, 0)
CTextBox_setFontAngle(TextBox#1, 0, false); CPieChart_setLabelFormat(PieChart#1, "{value}")
CTextBox_setAlignment(TextBox#1, 5); CBaseChart_addLegend(BaseChart#1, 320, 12, false, "gulim.ttc", 12)
CTextBox_setFontColor(TextBox#2, 0); CBox_setBackground(Box#2, -1, 0, 0); CTextBox_setText(TextBox#2, "{dataSetName}")
CPieChart_setLabelLayout(PieChart#1, 1, -1, -1, -1); CPieChart_setStartAngle(PieChart#1, 0, true)
CPieChart_setLineColor(PieChart#1, 0xff000000, 0); CBaseChart_makeChart2(BaseChart#1, 4)
CRanTable_destroy(RanTable#1); CBaseChart_destroy(BaseChart#1))"},
    {"PieOfEverything", DrawPieChart,
     [](PreviewFake& view) {
         number(view, view.m_ownPieChart);
         view.m_ownPieChart.m_sectors.push_back({});
         view.m_ownPieChart.m_sectors[1].m_useDistance = false;
         view.m_ownPieChart.m_sectors[2].m_useDistance = true; // not read: the sector is not moved
         view.m_ownPieChart.m_donutInnerRadius = 33;           // of 160: 52.8, rounded down
         view.m_ownLayout.m_piePlotArea.m_radius = 160;
         view.m_ownLayout.m_titles[1].m_usePosition = view.m_ownLayout.m_titles[1].m_vertical = false;
         view.m_ownLayout.m_titles.push_back({}); // not shown
     },
     R"(
CPieChart_create(1, 2, 0xffff0000, 0xff000000, 0); CPieChart_setPieSize(PieChart#1, 16, 17, 160)
CBaseChart_setBackground(BaseChart#1, 4, 5, 10); CBaseChart_setBgImage(BaseChart#1, "t6", 5)
CBaseChart_setRoundedFrame(BaseChart#1, 0x00ffffff, 10, -1, -1, -1)
CBaseChart_setDefaultFonts(BaseChart#1, "t8", "t8", "t8", "t8")
CBaseChart_addTitle2(BaseChart#1, 33, "t34", "t36", 37.5, 38, 0xff000000, 0xff000000)
CBox_setBackground(Box#1, 39, 40, 41); CTextBox_setFontAngle(TextBox#1, 42.5, true); CBox_setPos(Box#1, 43, 44)
CBaseChart_addTitle2(BaseChart#1, 45, "t46", "t48", 49.5, 50, 0xff000000, 0xff000000)
CBox_setBackground(Box#2, 51, 52, 53); CTextBox_setFontAngle(TextBox#2, 54.5, false); CRanTable_create(0, 2, 3)
CRanTable_setCol(RanTable#1, 0, 10, 100); CPieChart_setData(PieChart#1, [40, 34, 34], ["t85", "t88", ""])
CPieChart_setLabelStyle(PieChart#1, "t59", 60.5, 61); CBox_setBackground(Box#3, 62, 63, 64)
CTextBox_setFontAngle(TextBox#3, 65.5, true); CPieChart_setLabelFormat(PieChart#1, "t57")
CTextBox_setAlignment(TextBox#3, 79); CBaseChart_addLegend(BaseChart#1, 74, 75, true, "t68", 69.5)
CTextBox_setFontColor(TextBox#4, 70); CBox_setBackground(Box#4, 71, 72, 73); CTextBox_setText(TextBox#4, "t66")
CPieChart_set3D(PieChart#1, 80, 81.5, true); CPieChart_setLabelLayout(PieChart#1, 77, 78, -1, -1)
CPieChart_setStartAngle(PieChart#1, 76.5, true); CPieChart_setDonutSize(PieChart#1, 16, 17, 52, 160)
CPieChart_sector(PieChart#1, 0); CSector_setColor(Sector#1, 84, -1, -1); CSector_setExplode(Sector#1, 83)
CPieChart_sector(PieChart#1, 1); CSector_setColor(Sector#2, 87, -1, -1); CSector_setExplode(Sector#2, -1)
CPieChart_sector(PieChart#1, 2); CSector_setColor(Sector#3, 0, -1, -1); CPieChart_setLineColor(PieChart#1, 89, 90)
CBaseChart_makeChart2(BaseChart#1, 4); CRanTable_destroy(RanTable#1); CBaseChart_destroy(BaseChart#1))"},
    {"PieWithoutLabels", DrawPieChart, [](PreviewFake& view) { view.m_ownLayout.m_showLabel = false; },
     R"(CPieChart_setLabelFormat(PieChart#1, " "); CBaseChart_addLegend()", "setLabelStyle"},
    {"AngularMeter", DrawAngularMeter, EDIT(), R"(
CAngularMeter_create(500, 550, 0xffff0000, 0xff000000, 0)
CAngularMeter_setMeter(AngularMeter#1, 250, 275, 200, -90, 90)
CBaseChart_setBackground(BaseChart#1...CBaseChart_addLegend(BaseChart#1, 320...CLegendBox_addKey(LegendBox#1, "Legend", -1, 0, null)
CBaseMeter_setLineWidth(BaseMeter#1, 0, 1, 1, 1); CBaseMeter_setScale(BaseMeter#1, 0, 100, 10, 5, 1)
CBaseChart_makeChart2(BaseChart#1, 4); CBaseChart_destroy(BaseChart#1))"},
    {"AngularMeterOfEverything", DrawAngularMeter,
     EDIT(number(view, view.m_ownAngularMeter), view.m_ownLayout.m_titles.erase(0),
          view.m_ownLayout.m_showLegend = false),
     R"(
CAngularMeter_create(1, 2, 0xffff0000, 0xff000000, 0); CAngularMeter_setMeter(AngularMeter#1, 22, 23, 24, 25.5, 26.5)
CBaseChart_setBackground(BaseChart#1, 4...CBaseChart_addTitle2(BaseChart#1, 45...CBox_setPos(Box#1, 55, 56)
CBaseMeter_setLineWidth(BaseMeter#1, 76, 77, 78, 79); CBaseMeter_setScale(BaseMeter#1, 80.5, 81.5, 82.5, 83.5, 84.5)
CAngularMeter_addRing(AngularMeter#1, 129, 130, 131, 132); CAngularMeter_addRing(AngularMeter#1, 133, 134, 135, 136)
CAngularMeter_addZone2(AngularMeter#1, 85.5, 86.5, 87, 88); CAngularMeter_addZone2(AngularMeter#1, 89.5, 90.5, 91, 92)
CBaseChart_addText(BaseChart#1, 94, 95, "t93", "t99", 100.5, 101, 97, 0, false)
CBox_setBackground(Box#2, 102, 103, 104); CTextBox_setFontAngle(TextBox#2, 96.5, true)
CBaseChart_addText(BaseChart#1, 106, 107, "t105", "t111", 112.5, 113, 109, 0, false)
CBox_setBackground(Box#3, 114, 115, 116); CTextBox_setFontAngle(TextBox#3, 108.5, true)
CBaseMeter_addPointer(BaseMeter#1, 117.5, 118, 119); CMeterPointer_setShape(MeterPointer#1, 120, 121.5, 122.5)
CBaseMeter_addPointer(BaseMeter#1, 123.5, 124, 125); CMeterPointer_setShape(MeterPointer#2, 126, 127.5, 128.5)
CBaseMeter_setLabelStyle(BaseMeter#1, "t138", 139.5, 140, 0); CBox_setBackground(Box#4, 141, 142, 143)
CTextBox_setFontAngle(TextBox#4, 144.5, true); CBaseChart_makeChart2()"},
    {"LinearMeter", DrawLinearMeter, EDIT(), R"(
CLinearMeter_create(500, 550, 0xffff0000, 0xff000000, 0)
CLinearMeter_setMeter(LinearMeter#1, 225, 75, 50, 400, 4, false)
CBaseChart_setBackground(BaseChart#1...CBaseChart_addLegend(BaseChart#1, 320...CLegendBox_addKey(LegendBox#1, "Legend", -1, 0, null)
CBaseMeter_setLineWidth(BaseMeter#1, 0, 1, 1, 1); CBaseMeter_setScale(BaseMeter#1, 0, 100, 10, 5, 1)
CBaseChart_makeChart2()"},
    {"LinearMeterOfEverything", DrawLinearMeter,
     [](PreviewFake& view) {
         number(view, view.m_ownLinearMeter);
         view.m_ownLayout.m_titles.erase(0);
         view.m_ownLayout.m_showLegend = false;
         view.m_ownLinearMeter.m_labelStyle.m_backColor.m_type = 1; // a pattern, made by a call of its own
         view.m_ownLinearMeter.m_labelStyle.m_backColor.m_patternFile = "\xc3\xa4.png";
     },
     R"(
CLinearMeter_create(1, 2, 0xffff0000, 0xff000000, 0); CLinearMeter_setMeter(LinearMeter#1, 27, 28, 29, 30, 31, true)
CBaseChart_setBackground(BaseChart#1, 4...CBaseChart_addTitle2(BaseChart#1, 45...CBox_setPos(Box#1, 55, 56)
CBaseMeter_setLineWidth(BaseMeter#1, 76, 77, 78, 79); CBaseMeter_setScale(BaseMeter#1, 80.5, 81.5, 82.5, 83.5, 84.5)
CLinearMeter_addZone(LinearMeter#1, 85.5, 86.5, 92, "t87"); CBox_setBackground(Box#2, 92, 93, 94)
CTextBox_setFontAngle(TextBox#2, 96.5, true); CTextBox_setFontStyle(TextBox#2, "t89", 0)
CTextBox_setFontSize(TextBox#2, 90.5, 0); CTextBox_setFontColor(TextBox#2, 91)
CLinearMeter_addZone(LinearMeter#1, 97.5, 98.5, 104, "t99"); CBox_setBackground(Box#3, 104, 105, 106)
CTextBox_setFontAngle(TextBox#3, 108.5, true); CTextBox_setFontStyle(TextBox#3, "t101", 0)
CTextBox_setFontSize(TextBox#3, 102.5, 0); CTextBox_setFontColor(TextBox#3, 103)
CBaseChart_addText(BaseChart#1, 110, 111, "t109", "t115", 116.5, 117, 113, 0, false)
CBox_setBackground(Box#4, 118, 119, 120); CTextBox_setFontAngle(TextBox#4, 112.5, true)
CBaseChart_addText(BaseChart#1, 122, 123, "t121", "t127", 128.5, 129, 125, 0, false)
CBox_setBackground(Box#5, 130, 131, 132); CTextBox_setFontAngle(TextBox#5, 124.5, true)
CBaseMeter_addPointer(BaseMeter#1, 133.5, 134, 135); CMeterPointer_setShape(MeterPointer#1, 136, 137.5, 138.5)
CBaseMeter_addPointer(BaseMeter#1, 139.5, 140, 141); CMeterPointer_setShape(MeterPointer#2, 142, 143.5, 144.5)
CBaseMeter_setLabelStyle(BaseMeter#1, "t146", 147.5, 148, 0); CBaseChart_patternColor2(BaseChart#1, "ä.png", 0, 0)
CBox_setBackground(Box#6, 0xff000000, 150, 151); CTextBox_setFontAngle(TextBox#6, 152.5, true); CBaseChart_makeChart2()"},
    {"Polar", DrawPolarChart, EDIT(), R"(
CPolarChart_create(500, 550, 0xffff0000, 0xff000000, 0)
CPolarChart_setPlotArea(PolarChart#1, 250, 275, 200, 0xff000000, 0xff000000, 1)
CBaseChart_setBackground(BaseChart#1...CPolarChart_setGridStyle(PolarChart#1, false, true)
CPolarChart_setGridColor(PolarChart#1, 0x80000000, 1, 0x80000000, 1); CAxis_setLinearScale(Axis#1, 0, 100, 10, 0)
CBaseChart_addLegend(BaseChart#1, 320...CLegendBox_addKey(LegendBox#1, "Legend", -1, 0, null)
CBaseChart_makeChart2(BaseChart#1, 4); CBaseChart_destroy(BaseChart#1))"},
    {"PolarOfEverything", DrawPolarChart,
     EDIT(addLayers(view, {0}), number(view, view.m_ownPolarChart),
          view.m_ownPolarChart.m_gridOnTop = view.m_ownPolarChart.m_radialLabelStyle.m_vertical = false,
          view.m_ownLayout.m_titles.erase(0)),
     R"(
CPolarChart_create(1, 2, 0xffff0000, 0xff000000, 0); CPolarChart_setPlotArea(PolarChart#1, 19, 20, 21, 84, 86, 85)
CBaseChart_setBackground(BaseChart#1, 4...CBaseChart_addTitle2(BaseChart#1, 45...CBox_setPos(Box#1, 55, 56)
CPolarChart_setGridStyle(PolarChart#1, true, false); CPolarChart_setGridColor(PolarChart#1, 77, 76, 79, 78)
CAngularAxis_setLinearScale(AngularAxis#1, 80.5, 81.5, 82.5, 83.5); CRanTable_create(131, 3, 9)
CRanTable_setCol(RanTable#1, 0, 0, 100); CRanTable_setCol(RanTable#1, 1, 0, 360)
CRanTable_setCol(RanTable#1, 2, 0, 30)
CPolarChart_addLineLayer(PolarChart#1, [95, 24, 78, 24, 86, 50, 87, 41, 34], 124, "t125")
CPolarLineLayer_setCloseLoop(PolarLineLayer#1, true); CPolarLayer_setAngles(PolarLayer#1, [9])
CPolarLayer_setLineWidth(PolarLayer#1, 126); CPolarLayer_setDataSymbol(PolarLayer#1, 127, 128, 129, 130, 1)
CPolarLayer_setSymbolScale(PolarLayer#1, [18, 2, 18, 8, 8, 24, 22, 25, 16], 0)
CPolarLayer_setDataLabelStyle(PolarLayer#1, "t59", 60.5, 61, 0); CBox_setBackground(Box#2, 62, 63, 64)
CTextBox_setFontAngle(TextBox#2, 65.5, true); CPolarLayer_setDataLabelFormat(PolarLayer#1, "t57")
CRanTable_destroy(RanTable#1)
CBaseChart_addLegend(BaseChart#1, 74...CAngularAxis_setLabels(AngularAxis#1, ["t98", "t99"])
CAngularAxis_setLabelStyle(AngularAxis#1, "t90", 91.5, 92, 0); CBox_setBackground(Box#4, 93, 94, 95)
CTextBox_setFontAngle(TextBox#4, 97.5, true); CAxis_setLabelStyle(Axis#1, "t101", 102.5, 103, 0)
CBox_setBackground(Box#5, 104, 105, 106); CTextBox_setFontAngle(TextBox#5, 107.5, false)
CAngularAxis_addZone2(AngularAxis#1, 108.5, 109.5, 110, 111)
CAngularAxis_addZone2(AngularAxis#1, 112.5, 113.5, 114, 115); CAxis_addZone(Axis#1, 116.5, 117.5, 118)
CAxis_addZone(Axis#1, 120.5, 121.5, 122); CPolarChart_setPlotAreaBg(PolarChart#1, 87, 88, true)
CBaseChart_makeChart2()"},
    {"PolarLayersOfEachKind", DrawPolarChart,
     [](PreviewFake& view) {
         addLayers(view, {1, 2, 3});
         view.m_ownPolarChart.m_layers.GetLayer(1)->m_name = "a"; // so there is no sample key
         static_cast<CPolarLineLayer*>(view.m_ownPolarChart.m_layers.GetLayer(0))->m_closeLoop = true;
         view.m_ownLayout.m_showLabel = false;
     },
     R"(
CPolarChart_addSplineLineLayer(PolarChart#1, [76, 45, 87, 12, 13, 73, 91, 46, 50], 0x0033ff33, "")
...CPolarLineLayer_setCloseLoop(PolarLineLayer#1, true)
...CPolarChart_addAreaLayer(PolarChart#1, [17, 82, 40, 50, 74, 22, 60, 89, 16], 0x0033ff33, "a")
...CPolarChart_addSplineAreaLayer(PolarChart#1, [77, 38, 71, 60, 2, 91, 52, 18, 95], 0x0033ff33, ""))",
     "addKey"},
    {"PolarSingleLayer", DrawPolarChart,
     EDIT(addLayers(view, {2, 0}), view.m_polarLayer = view.m_ownPolarChart.m_layers.GetLayer(1),
          view.m_singleLayerMode = true),
     R"(CRanTable_create(41, 3, 9))", "addAreaLayer"},
    {"LayoutOfPies", DrawLayoutSample, [](PreviewFake& view) { view.m_ownLayout.m_chartType = 0; }, R"(
CPieChart_create(500, 550, 0xffff0000, 0xff000000, 0); CPieChart_setPieSize(PieChart#1, 250, 275, 160)
CBaseChart_setBackground(BaseChart#1...CPieChart_setData(PieChart#1, [55, 18, 15, 22, 8, 15, 10], ["Sector 1", "Sector 2", "Sector 3", "Sector 4", "Sector 5", "Sector 6", "Sector 7"])
CPieChart_setLabelStyle(PieChart#1, "gulim.ttc", 12, 0); CBox_setBackground(Box#1, -1, -1, 0)
CTextBox_setFontAngle(TextBox#1, 0, false); CPieChart_setLabelFormat(PieChart#1, "{value}")
CBaseChart_addLegend(BaseChart#1, 320...CBaseChart_makeChart2()"},
    {"LayoutOfXYCharts", DrawLayoutSample, [](PreviewFake& view) { view.m_ownLayout.m_chartType = 1; }, R"(
CXYChart_create(500, 550, 0xffff0000, 0xff000000, 0)
CXYChart_setPlotArea(XYChart#1, 50, 75, 400, 400, 0xff000000, -1, -1, 0x00c0c0c0, 0xff000000)
CBaseChart_setBackground(BaseChart#1...CXYChart_addBarLayer2(XYChart#1, 3, 4)
CLayer_addDataSet(Layer#1, [85, 156, 179.5, 211, 123], 0x00ffff00, "Bar"); CAxis_setAutoScale(Axis#1, 0.1, 0.1, 0.8)
CLayer_setDataLabelStyle(Layer#1, "gulim.ttc", 12, 0, 0); CBox_setBackground(Box#1, -1, -1, 0)
CTextBox_setFontAngle(TextBox#1, 0, false); CLayer_setDataLabelFormat(Layer#1, "{value}")
CBaseChart_addLegend(BaseChart#1, 320...CBaseChart_makeChart2()"},
    {"LayoutOfPolarCharts", DrawLayoutSample, [](PreviewFake& view) { view.m_ownLayout.m_chartType = 3; }, R"(
CPolarChart_create(500, 550, 0xffff0000, 0xff000000, 0)
CPolarChart_setPlotArea(PolarChart#1, 250, 275, 200, 0xff000000, 0xff000000, 1)
CBaseChart_setBackground(BaseChart#1...CPolarChart_addLineLayer(PolarChart#1, [90, 25, 40, 55, 68, 44, 79, 85, 50], 255, null)
CPolarLayer_setAngles(PolarLayer#1, [9]); CPolarLayer_setDataLabelStyle(PolarLayer#1, "gulim.ttc", 12, 0, 0)
CBox_setBackground(Box#1, -1, -1, 0); CTextBox_setFontAngle(TextBox#1, 0, false)
CPolarLayer_setDataLabelFormat(PolarLayer#1, "{value}")
CBaseChart_addLegend(BaseChart#1, 320...CLegendBox_addKey(LegendBox#1, "Legend", -1, 0, null); CBaseChart_makeChart2()"},
    {"LayoutOfAngularMeters", DrawLayoutSample, [](PreviewFake& view) { view.m_ownLayout.m_chartType = 4; },
     R"(
CAngularMeter_create(500, 550, 0xffff0000, 0xff000000, 0)
CAngularMeter_setMeter(AngularMeter#1, 250, 275, 200, -90, 90)
CBaseChart_setBackground(BaseChart#1...CBaseChart_addLegend(BaseChart#1, 320...CLegendBox_addKey(LegendBox#1, "Legend", -1, 0, null)
CBaseMeter_setScale(BaseMeter#1, 0, 100, 10, 5, 1); CChart_metalColor(0x009999dd, 90)
CAngularMeter_addRing(AngularMeter#1, 0, 220, ..., -1)
CAngularMeter_addRing(AngularMeter#1, 210, 220, 0x006666ff, -1)
CBaseMeter_addPointer(BaseMeter#1, 45.17, 0x40333399, -1); CBaseChart_makeChart2()"},
    {"LayoutOfLinearMeters", DrawLayoutSample, [](PreviewFake& view) { view.m_ownLayout.m_chartType = 5; },
     R"(
CLinearMeter_create(500, 550, 0xffff0000, 0xff000000, 0)
CLinearMeter_setMeter(LinearMeter#1, 225, 75, 50, 400, 4, false)
CBaseChart_setBackground(BaseChart#1...CBaseChart_addLegend(BaseChart#1, 320...CLegendBox_addKey(LegendBox#1, "Legend", -1, 0, null)
CBaseMeter_setScale(BaseMeter#1, 0, 100, 10, 0, 0); CLinearMeter_addZone(LinearMeter#1, 0, 50, 0x0099ff99, null)
CLinearMeter_addZone(LinearMeter#1, 50, 80, 0x00ffff66, null)
CLinearMeter_addZone(LinearMeter#1, 80, 100, 0x00ffcccc, null); CBaseMeter_addPointer(BaseMeter#1, 75.35, 204, -1)
CBaseChart_makeChart2()"},
};

INSTANTIATE_TEST_SUITE_P(Render, Calls, testing::ValuesIn(cases), kNameOfCase);

TEST(LayoutSample, HasNoLabelsWhereNoneAreShownAndIsNoneOfNoKind) {
    for (const int type : {-1, 0, 1, 3, 6}) {
        PreviewFake view;
        view.m_ownLayout.m_chartType = type;
        view.m_ownLayout.m_showLabel = false;
        EXPECT_THAT(callsOf(DrawLayoutSample, view), testing::Not(testing::HasSubstr("LabelStyle")));
        EXPECT_EQ(view.m_picture.Empty(), type < 0 || type > 5);
    }
}

TEST(LayoutSample, OfPricesIsAsWideAsTheLayoutSays) {
    PreviewFake view;
    view.m_ownLayout.m_chartType = 2;
    view.m_ownLayout.m_financeWidth = 321;
    std::istringstream calls(callsOf(DrawLayoutSample, view));
    static const std::regex shown("CXYChart_add.*|CHLOCLayer.*|CLegendBox_addKey.LegendBox#1.*"), value(": [^\"]*\"");
    std::string found;
    for (std::string line; std::getline(calls, line);)
        if (std::regex_match(line, shown)) found += (found.empty() ? "" : "\n") + std::regex_replace(line, value, "\"");
    const std::string wanted = R"-(
CLegendBox_addKey(LegendBox#1, "Legend", -1, 0, null)
CXYChart_addLineLayer(XYChart#1, [130], 0x00663300, "SMA (5)", 0)
CXYChart_addLineLayer(XYChart#1, [130], 0x009900ff, "SMA (20)", 0)
CXYChart_addHLOCLayer(XYChart#1, [130], [130], [130], [130], -1)
CHLOCLayer_setColorMethod(HLOCLayer#1, 2, 32768, 0x00cc0000, -1.7e+308)
CXYChart_addLineLayer(XYChart#1, [130], 0x009999ff, "Bollinger (20, 2)", 0)
CXYChart_addLineLayer(XYChart#1, [130], 0x009999ff, null, 0)
CXYChart_addInterLineLayer(XYChart#1, Line#1, Line#2, 0xc06666ff, -1)
CXYChart_addBarLayer(XYChart#1, [130], 0x0099ff99, "", 0); CXYChart_addBarLayer(XYChart#1, [130], 0x00ff9999, "", 0)
CXYChart_addBarLayer(XYChart#1, [130], 0x00808080, "", 0)
CXYChart_addLineLayer(XYChart#2, [130], 0x00800080, "RSI (14)", 0)
CXYChart_addInterLineLayer(XYChart#2, Line#3, Line#4, 0x00ff0000, 0xff000000)
CXYChart_addInterLineLayer(XYChart#2, Line#3, Line#5, 0xff000000, 255)
CXYChart_addLineLayer(XYChart#3, [130], 255, "Momentum (12)", 0))-";
    EXPECT_EQ(found, std::regex_replace(wanted.substr(1), std::regex("; "), "\n"));
    EXPECT_EQS((view.m_pictureWidth, 321), (view.m_pictureHeight, 65 + 211 + 71 + 71));
}
} // namespace
