// The calls of the preview, in order and value: those of an empty main pane, and what each flag adds to them,
// with a number of its own in each field.

#include "render/finance/draw_finance.h"
#include "tests/model/models.h"
#include "tests/render/calls.h"
#include <gmock/gmock.h>

namespace {
constexpr bool CFinanceChart::*kFlags[] = {
    &CFinanceChart::m_showSma,     &CFinanceChart::m_showHloc,        &CFinanceChart::m_showBollingerBand,
    &CFinanceChart::m_showVolBars, &CFinanceChart::m_showCandleStick, &CFinanceChart::m_showDonchianChannel,
    &CFinanceChart::m_showRsi,     &CFinanceChart::m_showMomentum,    &CFinanceChart::m_showSlowStochastic,
    &CFinanceChart::m_showMacd};

TEST_P(Calls, FollowFromTheModel) {
    PreviewFake view;
    GetParam().edit(view);
    expectCalls(callsOf(GetParam().routine, view), GetParam().calls, GetParam().absent);
}

/// A number in each field, and one flag that is on; without one, all as it is by default.
template <auto flag = nullptr> CFinanceChart& only(PreviewFake& view) {
    CFinanceChart& look = view.m_ownFinanceChart;
    if constexpr (flag != nullptr) {
        models::Number numbers;
        models::Each(look, numbers);
        look.m_mainHeight = 200;
    }
    for (const auto each : kFlags) look.*each = each == flag;
    return look;
}

const CallCase cases[] = {
    {"EmptyMainPane", DrawFinanceChart, EDIT(only(view)), R"-(
CMultiChart_create(500, 1, 0xffff0000, 0xff000000, 0)
CBaseChart_setBackground(BaseChart#1...CLegendBox_addKey(LegendBox#1, "Legend", -1, 0, null)
CRanTable_create(9, 6, 130); CChart_chartTime(2002, 9, 4, 0, 0, 0)
CRanTable_setDateCol(RanTable#1, 0, 63166694400, 86400, true)
CRanTable_setHLOCCols(RanTable#1, 1, 100, -5, 5, 0, 1e+308); CRanTable_setCol(RanTable#1, 5, 5e+07, 2.5e+08)
CXYChart_create(500, 265, 0xff000000, 0xff000000, 0); CXYChart_setTrimData(XYChart#1, 30, 0x7fffffff)
CAxis_setLabels2(Axis#1, [130], null); CChart_encodeFilter(5, 1, 0.05); CChart_encodeFilter(4, 1, 0.05)
CAxis_setMultiFormat(Axis#1, 0x540041f4, "<*font=bold*>{value|mmm yy}", 0x500041f4, "{value|mmm}", 1, true)
CChart_encodeFilter(4, 1, 0.05); CAxis_setMultiFormat2(Axis#1, 0x500041f4, "-", 1, false)
CMultiChart_addChart(MultiChart#1, 0, 0, BaseChart#2); CBaseChart_setSize(BaseChart#1, 500, 266)
CXYChart_setPlotArea(XYChart#1, 40, 30, 420, 200, 0x00fffff0, -1, -1, 0x00c0c0c0, 0xff000000)
CPlotArea_setGridColor(PlotArea#1, 0x00dddddd, 0x00dddddd, 0x00dddddd, 0x00dddddd)
CBaseChart_setAntiAlias(BaseChart#2, true, 2); CBaseChart_addLegend(BaseChart#2, 40, 30, false, "normal", 8)
CBox_setBackground(Box#2, 0x80ccccff, -1, 0); CTextBox_setMargin2(TextBox#3, 5, 0, 2, 0); CBox_setSize(Box#2, 420, 0)
CAxis_setIndent(Axis#1, true); CAxis_setTickLength2(Axis#1, 2, 0); CAxis_setLabelStyle(Axis#1, "normal", 8, -65534, 0)
CXYChart_setYAxisOnRight(XYChart#1, true); CAxis_setAutoScale(Axis#2, 0, 0.05, 0); CAxis_setMargin(Axis#2, 13, 0)
CAxis_setLabelStyle(Axis#2, "normal", 8, -65534, 0); CAxis_setTickLength2(Axis#2, -4, -2)
CMultiChart_setMainChart(MultiChart#1, BaseChart#2); CAxis_setMargin(Axis#2, 26, 0)
CAxis_setLinearScale3(Axis#2, null); CBaseChart_makeChart2(BaseChart#1, 4); CRanTable_destroy(RanTable#1)
CBaseChart_destroy(BaseChart#2); CBaseChart_destroy(BaseChart#1))-"},
    {"Sma", DrawFinanceChart, EDIT(only<&CFinanceChart::m_showSma>(view)),
     R"-(CXYChart_addLineLayer(XYChart#1, [130], 3, "SMA (2): 122.723", 0))-"},
    {"Hloc", DrawFinanceChart, EDIT(only<&CFinanceChart::m_showHloc>(view)), R"-(
CLegendBox_addKey(LegendBox#2, "Op:123.423, Hi:124.351, Lo:119.893, Cl:122.024", 5, 0, null)
CXYChart_addHLOCLayer(XYChart#1, [130], [130], [130], [130], -1)
CHLOCLayer_setColorMethod(HLOCLayer#1, 2, 4, 5, -1.7e+308)
CLayer_setHTMLImageMap(Layer#1, "", "", "title='[{xLabel|mmm d, yyyy}] Op:{open|G}, Hi:{high|G}, Lo:{low|G}, Cl:{close|G}'")
CBaseBoxLayer_setDataGap(BaseBoxLayer#1, 0))-"},
    {"Candles", DrawFinanceChart, EDIT(only<&CFinanceChart::m_showCandleStick>(view)), R"-(
CLegendBox_addKey(LegendBox#2, "Op:123.423, Hi:124.351, Lo:119.893, Cl:122.024", 15, 0, null)
CXYChart_addCandleStickLayer(XYChart#1, [130], [130], [130], [130], 14, 15, -65535)
CLayer_setHTMLImageMap(Layer#1, "", "", "title='[{xLabel|mmm d, yyyy}] Op:{open|G}, Hi:{high|G}, Lo:{low|G}, Cl:{close|G}'")
CBaseBoxLayer_setDataGap(BaseBoxLayer#1, 0); CBaseBoxLayer_setDataWidth(BaseBoxLayer#1, 5))-"},
    {"Bollinger", DrawFinanceChart, EDIT(only<&CFinanceChart::m_showBollingerBand>(view)), R"-(
CXYChart_addLineLayer(XYChart#1, [130], 9, "Bollinger (6, 7.5): 89.9764 - 148.619", 0)
CXYChart_addLineLayer(XYChart#1, [130], 9, null, 0); CXYChart_addInterLineLayer(XYChart#1, Line#1, Line#2, 8, -1))-"},
    {"BollingerLongerThanTheData", DrawFinanceChart,
     EDIT(only<&CFinanceChart::m_showBollingerBand>(view).m_bbPeriod = 200),
     R"-(CXYChart_addLineLayer(XYChart#1, [130], 9, "Bollinger (200, 7.5)", 0))-"},
    {"Donchian", DrawFinanceChart, EDIT(only<&CFinanceChart::m_showDonchianChannel>(view)), R"-(
CXYChart_addLineLayer(XYChart#1, [130], 18, "Donchian (16): 106.097 - 128.438", 0)
CXYChart_addLineLayer(XYChart#1, [130], 18, null, 0); CXYChart_addInterLineLayer(XYChart#1, Line#1, Line#2, 17, -1))-"},
    {"VolBars", DrawFinanceChart, EDIT(only<&CFinanceChart::m_showVolBars>(view)), R"-(
CXYChart_addBarLayer(XYChart#1, [130], 11, "", 0); CLayer_setBorderColor(Layer#1, 0xff000000, 0)
CXYChart_addBarLayer(XYChart#1, [130], 12, "", 0); CLayer_setBorderColor(Layer#2, 0xff000000, 0)
CXYChart_addBarLayer(XYChart#1, [130], 13, "", 0); CLayer_setBorderColor(Layer#3, 0xff000000, 0)
CXYChart_yAxis2(XYChart#1); CAxis_setAutoScale(Axis#3, 0, 0.05, 0); CAxis_setTickDensity(Axis#3, 15, -1)
CAxis_setMargin(Axis#3, 13, 0); CAxis_setLabelStyle(Axis#3, "normal", 8, -65534, 0)
CAxis_setTickLength2(Axis#3, -4, -2); CAxis_setMargin(Axis#3, 203, 0); CLayer_setUseYAxis2(Layer#1, true)
CLayer_setUseYAxis2(Layer#2, true); CLayer_setUseYAxis2(Layer#3, true); CXYChart_yAxis2(XYChart#1)
CAxis_setLabelFormat(Axis#3, "{value}M"); CDataSet_setDataName(DataSet#2, "Vol: 55.0941M"))-"},
    {"VolBarsHigherThanThePane", DrawFinanceChart,
     EDIT(only<&CFinanceChart::m_showVolBars>(view).m_volBarsHeight = 220), "CAxis_setMargin(Axis#3, 0, 0)"},
    {"Rsi", DrawFinanceChart, EDIT(only<&CFinanceChart::m_showRsi>(view)), R"-(
CXYChart_create(500, 84, 0xff000000, 0xff000000, 0); CXYChart_setTrimData(XYChart#2, 30, 0x7fffffff)
CAxis_setColors(Axis#1, -65535, 0xff000000, -1, -1); CAxis_copyAxis(Axis#3, Axis#1)
CMultiChart_addChart(MultiChart#1, 0, 201, BaseChart#3); CBaseChart_setSize(BaseChart#1, 500, 286)
CXYChart_setPlotArea(XYChart#2, 40, 30, 420, 19, 0x00fffff0, -1, -1, 0x00c0c0c0, 0xff000000)
CPlotArea_setGridColor(PlotArea#2, 0x00dddddd, 0x00dddddd, 0x00dddddd, 0x00dddddd)
CBaseChart_setAntiAlias(BaseChart#3, true, 2); CBaseChart_addLegend(BaseChart#3, 40, 30, false, "normal", 8)
CBox_setBackground(Box#3, 0x80ccccff, -1, 0); CTextBox_setMargin2(TextBox#5, 5, 0, 2, 0); CBox_setSize(Box#3, 420, 0)
CAxis_setIndent(Axis#3, true); CAxis_setTickLength2(Axis#3, 2, 0); CAxis_setLabelStyle(Axis#3, "normal", 8, -65534, 0)
CXYChart_setYAxisOnRight(XYChart#2, true); CAxis_setAutoScale(Axis#4, 0, 0.05, 0)
CAxis_setTickDensity(Axis#4, 15, -1); CAxis_setMargin(Axis#4, 13, 0)
CAxis_setLabelStyle(Axis#4, "normal", 8, -65534, 0); CAxis_setTickLength2(Axis#4, -4, -2)
CXYChart_addLineLayer(XYChart#2, [130], 22, "RSI (20): 47.4105", 0); CAxis_addMark(Axis#4, 71.5, 23, "71.5", null, 8)
CAxis_addMark(Axis#4, 28.5, 24, "28.5", null, 8)
CXYChart_addInterLineLayer(XYChart#2, Line#1, Line#2, 23, 0xff000000)
CXYChart_addInterLineLayer(XYChart#2, Line#1, Line#3, 0xff000000, 24); CAxis_setLinearScale(Axis#4, 0, 100, 0, 0))-"},
    {"RsiWithoutRange", DrawFinanceChart, EDIT(only<&CFinanceChart::m_showRsi>(view).m_rsiRange = 0),
     "CAxis_setLinearScale(Axis#4, 0, 100, 0, 0)", "CAxis_addMark"},
    {"RsiOfTheWholeRange", DrawFinanceChart, EDIT(only<&CFinanceChart::m_showRsi>(view).m_rsiRange = 50),
     "CAxis_setLinearScale(Axis#4, 0, 100, 0, 0)", "CAxis_addMark"},
    {"Momentum", DrawFinanceChart, EDIT(only<&CFinanceChart::m_showMomentum>(view)), R"-(
CXYChart_setPlotArea(XYChart#2, 40, 30, 420, 25...CXYChart_addLineLayer(XYChart#2, [130], 27, "Momentum (26): 1.54572", 0))-"},
    {"SlowStochastic", DrawFinanceChart, EDIT(only<&CFinanceChart::m_showSlowStochastic>(view)), R"-(
CXYChart_setPlotArea(XYChart#2, 40, 30, 420, 28...CXYChart_addLineLayer(XYChart#2, [130], 31, "Slow Stochastic %K (29): 72.4823", 0)
CXYChart_addLineLayer(XYChart#2, [130], 32, "%D (30): 67.3109", 0); CAxis_setLinearScale(Axis#4, 0, 100, 0, 0))-"},
    {"Macd", DrawFinanceChart, EDIT(only<&CFinanceChart::m_showMacd>(view)), R"-(
CXYChart_setPlotArea(XYChart#2, 40, 30, 420, 33...CXYChart_addLineLayer(XYChart#2, [130], 37, "MACD (34, 35): -0.121063", 0)
CXYChart_addLineLayer(XYChart#2, [130], 38, "EXP (36): -0.166127", 0)
CXYChart_addBarLayer(XYChart#2, [130], 39, "Divergence: 0.0450644", 0); CLayer_setBorderColor(Layer#1, 0xff000000, 0))-"},
};

INSTANTIATE_TEST_SUITE_P(Finance, Calls, testing::ValuesIn(cases), kNameOfCase);
} // namespace
