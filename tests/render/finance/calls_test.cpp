// The calls of the preview, in order and value: those of new models, and what each flag adds to them.

#include "render/finance/draw_finance.h"
#include "tests/render/finance/finance_lines.h"
#include "tests/render/preview_fake.h"
#include <functional>
#include <gmock/gmock.h>

namespace {

using testing::ElementsAreArray;

const Lines dressing = {
    "CMultiChart_create(500, 1, 0xffff0000, 0xff000000, 0)",
    "CBaseChart_setBackground(BaseChart#1, 0x00ffffff, 0x33808080, 0)",
    R"(CBaseChart_setDefaultFonts(BaseChart#1, "gulim.ttc", "gulim.ttc", "gulim.ttc", "gulim.ttc"))",
    R"(CBaseChart_addLegend(BaseChart#1, 320, 12, false, "gulim.ttc", 12))",
    "CTextBox_setFontColor(TextBox#1, 0)",
    "CBox_setBackground(Box#1, -1, 0, 0)",
    R"(CTextBox_setText(TextBox#1, "{dataSetName}"))",
    R"(CLegendBox_addKey(LegendBox#1, "Legend", -1, 0, null))",
};
const Lines samplePrices = {
    "CRanTable_create(9, 6, 130)",
    "CChart_chartTime(2002, 9, 4, 0, 0, 0)",
    "CRanTable_setDateCol(RanTable#1, 0, 63166694400, 86400, true)",
    "CRanTable_setHLOCCols(RanTable#1, 1, 100, -5, 5, 0, 1e+308)",
    "CRanTable_setCol(RanTable#1, 5, 5e+07, 2.5e+08)",
};
const Lines mainPane = {
    "CXYChart_create(500, 265, 0xff000000, 0xff000000, 0)",
    "CXYChart_setTrimData(XYChart#1, 30, 0x7fffffff)",
    "CAxis_setLabels2(Axis#1, [130], null)",
    "CChart_encodeFilter(5, 1, 0.05)",
    "CChart_encodeFilter(4, 1, 0.05)",
    R"(CAxis_setMultiFormat(Axis#1, 0x540041f4, "<*font=bold*>{value|mmm yy}", 0x500041f4, "{value|mmm}", 1, true))",
    "CChart_encodeFilter(4, 1, 0.05)",
    R"(CAxis_setMultiFormat2(Axis#1, 0x500041f4, "-", 1, false))",
    "CMultiChart_addChart(MultiChart#1, 0, 0, BaseChart#2)",
    "CBaseChart_setSize(BaseChart#1, 500, 266)",
    "CXYChart_setPlotArea(XYChart#1, 40, 30, 420, 200, 0x00fffff0, -1, -1, 0x00c0c0c0, 0xff000000)",
    "CPlotArea_setGridColor(PlotArea#1, 0x00dddddd, 0x00dddddd, 0x00dddddd, 0x00dddddd)",
    "CBaseChart_setAntiAlias(BaseChart#2, true, 2)",
    R"(CBaseChart_addLegend(BaseChart#2, 40, 30, false, "normal", 8))",
    "CBox_setBackground(Box#2, 0x80ccccff, -1, 0)",
    "CTextBox_setMargin2(TextBox#3, 5, 0, 2, 0)",
    "CBox_setSize(Box#2, 420, 0)",
    "CAxis_setIndent(Axis#1, true)",
    "CAxis_setTickLength2(Axis#1, 2, 0)",
    R"(CAxis_setLabelStyle(Axis#1, "normal", 8, -65534, 0))",
    "CXYChart_setYAxisOnRight(XYChart#1, true)",
    "CAxis_setAutoScale(Axis#2, 0, 0.05, 0)",
    "CAxis_setMargin(Axis#2, 13, 0)",
    R"(CAxis_setLabelStyle(Axis#2, "normal", 8, -65534, 0))",
    "CAxis_setTickLength2(Axis#2, -4, -2)",
    "CMultiChart_setMainChart(MultiChart#1, BaseChart#2)",
    "CAxis_setMargin(Axis#2, 26, 0)",
    "CAxis_setLinearScale3(Axis#2, null)",
};

/// A pane of 60 pixels under the empty main pane.
Lines lowerPane() {
    return {
        "CXYChart_create(500, 125, 0xff000000, 0xff000000, 0)",
        "CXYChart_setTrimData(XYChart#2, 30, 0x7fffffff)",
        "CAxis_setColors(Axis#1, -65535, 0xff000000, -1, -1)",
        "CAxis_copyAxis(Axis#3, Axis#1)",
        "CMultiChart_addChart(MultiChart#1, 0, 201, BaseChart#3)",
        "CBaseChart_setSize(BaseChart#1, 500, 327)",
        "CXYChart_setPlotArea(XYChart#2, 40, 30, 420, 60, 0x00fffff0, -1, -1, 0x00c0c0c0, 0xff000000)",
        "CPlotArea_setGridColor(PlotArea#2, 0x00dddddd, 0x00dddddd, 0x00dddddd, 0x00dddddd)",
        "CBaseChart_setAntiAlias(BaseChart#3, true, 2)",
        R"(CBaseChart_addLegend(BaseChart#3, 40, 30, false, "normal", 8))",
        "CBox_setBackground(Box#3, 0x80ccccff, -1, 0)",
        "CTextBox_setMargin2(TextBox#5, 5, 0, 2, 0)",
        "CBox_setSize(Box#3, 420, 0)",
        "CAxis_setIndent(Axis#3, true)",
        "CAxis_setTickLength2(Axis#3, 2, 0)",
        R"(CAxis_setLabelStyle(Axis#3, "normal", 8, -65534, 0))",
        "CXYChart_setYAxisOnRight(XYChart#2, true)",
        "CAxis_setAutoScale(Axis#4, 0, 0.05, 0)",
        "CAxis_setTickDensity(Axis#4, 15, -1)",
        "CAxis_setMargin(Axis#4, 13, 0)",
        R"(CAxis_setLabelStyle(Axis#4, "normal", 8, -65534, 0))",
        "CAxis_setTickLength2(Axis#4, -4, -2)",
    };
}

Lines operator+(Lines first, const Lines& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

struct Case {
    const char* name;
    std::function<void(CFinanceChart&)> edit; // of a model with an empty main pane
    Lines added;
};

class FinanceFlags : public testing::TestWithParam<Case> {};

TEST_P(FinanceFlags, MakeTheCallsInOrder) {
    PreviewFake view;
    view.m_ownFinanceChart.m_showHloc = false;
    GetParam().edit(view.m_ownFinanceChart);
    const recorder::Recording recording;
    DrawFinanceChart(view);
    Lines end = {"CBaseChart_makeChart2(BaseChart#1, 4)", "CRanTable_destroy(RanTable#1)"};
    for (int pane = 0; pane < recording.Count("CXYChart_create"); ++pane)
        end.push_back("CBaseChart_destroy(BaseChart#" + std::to_string(pane + 2) + ")");
    end.push_back("CBaseChart_destroy(BaseChart#1)");
    EXPECT_THAT(MakingCalls(recording),
                ElementsAreArray(dressing + samplePrices + mainPane + GetParam().added + end));
}

const char* const tip =
    R"("title='[{xLabel|mmm d, yyyy}] Op:{open|G}, Hi:{high|G}, Lo:{low|G}, Cl:{close|G}'")";
const char* const lastPrices = R"("Op:123.423, Hi:124.351, Lo:119.893, Cl:122.024")";

Lines volBars(const char* margin) {
    return {
        R"(CXYChart_addBarLayer(XYChart#1, [130], 0x0099ff99, "", 0))",
        "CLayer_setBorderColor(Layer#1, 0xff000000, 0)",
        R"(CXYChart_addBarLayer(XYChart#1, [130], 0x00ff9999, "", 0))",
        "CLayer_setBorderColor(Layer#2, 0xff000000, 0)",
        R"(CXYChart_addBarLayer(XYChart#1, [130], 0x00808080, "", 0))",
        "CLayer_setBorderColor(Layer#3, 0xff000000, 0)",
        "CAxis_setAutoScale(Axis#3, 0, 0.05, 0)",
        "CAxis_setTickDensity(Axis#3, 15, -1)",
        "CAxis_setMargin(Axis#3, 13, 0)",
        R"(CAxis_setLabelStyle(Axis#3, "normal", 8, -65534, 0))",
        "CAxis_setTickLength2(Axis#3, -4, -2)",
        std::string("CAxis_setMargin(Axis#3, ") + margin + ", 0)",
        "CLayer_setUseYAxis2(Layer#1, true)",
        "CLayer_setUseYAxis2(Layer#2, true)",
        "CLayer_setUseYAxis2(Layer#3, true)",
        R"(CAxis_setLabelFormat(Axis#3, "{value}M"))",
        R"(CDataSet_setDataName(DataSet#2, "Vol: 55.0941M"))",
    };
}

Lines band(const char* name, const char* line, const char* fill) {
    const std::string call = "CXYChart_addLineLayer(XYChart#1, [130], " + std::string(line) + ", ";
    return {call + '"' + name + "\", 0)", call + "null, 0)",
            "CXYChart_addInterLineLayer(XYChart#1, Line#1, Line#2, " + std::string(fill) + ", -1)"};
}

void showRsi(CFinanceChart& look) {
    look.m_showRsi = true;
    look.m_rsiHeight = 60;
}

const Lines rsiLine = {R"(CXYChart_addLineLayer(XYChart#2, [130], 0x00800080, "RSI (14): 43.1095", 0))"};
const Lines percents = {"CAxis_setLinearScale(Axis#4, 0, 100, 0, 0)"};

const Case cases[] = {
    {"EmptyMainPane", [](CFinanceChart&) {}, {}},
    {"Sma",
     [](CFinanceChart& look) { look.m_showSma = true; },
     {R"(CXYChart_addLineLayer(XYChart#1, [130], 0x00663300, "SMA (5): 120.65", 0))"}},
    {"Hloc",
     [](CFinanceChart& look) { look.m_showHloc = true; },
     {std::string("CLegendBox_addKey(LegendBox#2, ") + lastPrices + ", 0x00ff0000, 0, null)",
      "CXYChart_addHLOCLayer(XYChart#1, [130], [130], [130], [130], -1)",
      "CHLOCLayer_setColorMethod(HLOCLayer#1, 2, 32768, 0x00ff0000, -1.7e+308)",
      std::string("CLayer_setHTMLImageMap(Layer#1, \"\", \"\", ") + tip + ")",
      "CBaseBoxLayer_setDataGap(BaseBoxLayer#1, 0)"}},
    {"Candles",
     [](CFinanceChart& look) { look.m_showCandleStick = true; },
     {std::string("CLegendBox_addKey(LegendBox#2, ") + lastPrices + ", 0x00ff0000, 0, null)",
      "CXYChart_addCandleStickLayer(XYChart#1, [130], [130], [130], [130], 65280, 0x00ff0000, -65535)",
      std::string("CLayer_setHTMLImageMap(Layer#1, \"\", \"\", ") + tip + ")",
      "CBaseBoxLayer_setDataGap(BaseBoxLayer#1, 0)", "CBaseBoxLayer_setDataWidth(BaseBoxLayer#1, 5)"}},
    {"Bollinger", [](CFinanceChart& look) { look.m_showBollingerBand = true; },
     band("Bollinger (20, 2): 107.542 - 129.401", "0x009999ff", "0xc06666ff")},
    {"BollingerOfHalfAStep",
     [](CFinanceChart& look) {
         look.m_showBollingerBand = true;
         look.m_bbPeriod = 200; // longer than the data
         look.m_bbBandWidth = 2.5;
     },
     band("Bollinger (200, 2.5)", "0x009999ff", "0xc06666ff")},
    {"Donchian",
     [](CFinanceChart& look) {
         look.m_showDonchianChannel = true;
         look.m_dcLineColor.m_color = 0x112233;
         look.m_dcFillColor.m_color = 0x80445566;
     },
     band("Donchian (20): 106.097 - 128.438", "0x00112233", "0x80445566")},
    {"VolBars", [](CFinanceChart& look) { look.m_showVolBars = true; }, volBars("143")}, // 200 - 70 + 13
    {"VolBarsHigherThanThePane",
     [](CFinanceChart& look) {
         look.m_showVolBars = true;
         look.m_volBarsHeight = 220;
     },
     [] {
         Lines lines = volBars("0");
         std::erase(lines, "CAxis_setTickDensity(Axis#3, 15, -1)");
         return lines;
     }()},
    {"Rsi", showRsi,
     lowerPane() + rsiLine +
         Lines{R"(CAxis_addMark(Axis#4, 70, 0x00ff0000, "70", null, 8))",
               R"(CAxis_addMark(Axis#4, 30, 255, "30", null, 8))",
               "CXYChart_addInterLineLayer(XYChart#2, Line#1, Line#2, 0x00ff0000, 0xff000000)",
               "CXYChart_addInterLineLayer(XYChart#2, Line#1, Line#3, 0xff000000, 255)"} +
         percents},
    {"RsiWithoutRange",
     [](CFinanceChart& look) {
         showRsi(look);
         look.m_rsiRange = 0;
     },
     lowerPane() + rsiLine + percents},
    {"RsiOfTheWholeRange",
     [](CFinanceChart& look) {
         showRsi(look);
         look.m_rsiRange = 50;
     },
     lowerPane() + rsiLine + percents},
    {"Momentum",
     [](CFinanceChart& look) {
         look.m_showMomentum = true;
         look.m_momentumHeight = 60;
     },
     lowerPane() + Lines{R"(CXYChart_addLineLayer(XYChart#2, [130], 255, "Momentum (12): 2.17947", 0))"}},
    {"SlowStochastic",
     [](CFinanceChart& look) {
         look.m_showSlowStochastic = true;
         look.m_ssHeight = 60;
     },
     lowerPane() +
         Lines{R"(CXYChart_addLineLayer(XYChart#2, [130], 24672, "Slow Stochastic %K (14): 73.6267", 0))",
               R"(CXYChart_addLineLayer(XYChart#2, [130], 0x00606000, "%D (3): 67.6753", 0))"} +
         percents},
    {"Macd",
     [](CFinanceChart& look) {
         look.m_showMacd = true;
         look.m_macdHeight = 60;
     },
     lowerPane() + Lines{R"(CXYChart_addLineLayer(XYChart#2, [130], 255, "MACD (26, 12): 0.708824", 0))",
                         R"(CXYChart_addLineLayer(XYChart#2, [130], 0x00ff00ff, "EXP (9): 0.207592", 0))",
                         R"(CXYChart_addBarLayer(XYChart#2, [130], 32768, "Divergence: 0.501232", 0))",
                         "CLayer_setBorderColor(Layer#1, 0xff000000, 0)"}},
};

INSTANTIATE_TEST_SUITE_P(Finance, FinanceFlags, testing::ValuesIn(cases),
                         [](const auto& test) { return test.param.name; });

TEST(FinanceOrder, StacksThePanesAndSkipsWhatIsNone) {
    PreviewFake view;
    CFinanceChart& look = view.m_ownFinanceChart;
    look.m_showRsi = look.m_showMacd = true;
    look.m_mainHeight = 150;
    look.m_rsiHeight = 40;
    look.m_macdHeight = 30;
    const std::int32_t order[] = {4, 7, 0, -1, 1};
    std::copy(std::begin(order), std::end(order), look.m_order);
    const recorder::Recording recording;
    DrawFinanceChart(view);
    Lines places;
    for (const std::string& line : MakingCalls(recording))
        if (line.starts_with("CMultiChart_") || line.starts_with("CAxis_copyAxis"))
            places.push_back(line);
    EXPECT_THAT(places, testing::ElementsAre("CMultiChart_create(500, 1, 0xffff0000, 0xff000000, 0)",
                                             "CMultiChart_addChart(MultiChart#1, 0, 0, BaseChart#2)",
                                             "CAxis_copyAxis(Axis#3, Axis#1)",
                                             "CMultiChart_addChart(MultiChart#1, 0, 31, BaseChart#3)",
                                             "CMultiChart_setMainChart(MultiChart#1, BaseChart#3)",
                                             "CAxis_copyAxis(Axis#5, Axis#3)",
                                             "CMultiChart_addChart(MultiChart#1, 0, 182, BaseChart#4)"));
    EXPECT_EQ(view.m_pictureHeight, 31 + 151 + 41 + 65);
}

} // namespace
