// Every field of an XY chart shows: a row edits one field, and the picture is to change, and only where the
// row says. What a field changes as a whole is the calls' business; here it must not be lost behind them.

#include "tests/render/xy_calls.h"
#include <QImage>
#include <gtest/gtest.h>

namespace {

constexpr QRect kPlot(51, 76, 399, 399); // inside the lines of the default plot area
constexpr QRect kPicture(0, 0, 500, 550);
constexpr QRect kBelow(0, 476, 500, 34), kLeft(0, 60, 50, 430);
constexpr QRect kAbove(0, 40, 500, 35), kRight(451, 60, 49, 430);
constexpr QRect kSampleLine(0, 505, 500, 12);

struct Case {
    const char* name;
    int layer; ///< -1 none
    void (*edit)(CXYChart& chart, CXYChartLayer* layer);
    QRect inside;                                                   ///< where the picture changes
    void (*setUp)(CXYChart& chart, CXYChartLayer* layer) = nullptr; ///< what the field needs to be read
    QRect outside = {};                                             ///< where it does not
};

class XYEffects : public testing::TestWithParam<Case> {};

QImage drawnWith(const Case& test, bool edited) {
    XYPreview view;
    view.Layout().m_showLegend = view.Layout().m_showLabel = false;
    CXYChartLayer* layer = test.layer < 0 ? nullptr : &view.AddLayer(test.layer);
    if (test.setUp)
        test.setUp(view.Chart(), layer);
    if (edited)
        test.edit(view.Chart(), layer);
    DrawXYChart(view);
    const auto& bytes = view.m_picture.Bytes();
    return QImage::fromData(QByteArray(bytes.data(), std::ssize(bytes)), "BMP");
}

TEST_P(XYEffects, ShowWhereTheyShould) {
    const QImage before = drawnWith(GetParam(), false), after = drawnWith(GetParam(), true);
    ASSERT_FALSE(after.isNull());
    EXPECT_NE(before.copy(GetParam().inside), after.copy(GetParam().inside));
    const QRect outside = GetParam().outside;
    EXPECT_TRUE(outside.isNull() || before.copy(outside) == after.copy(outside));
}

#define EDIT(code)                                                                                           \
    [](CXYChart& chart, CXYChartLayer* layer) {                                                              \
        (void)layer, (void)chart;                                                                            \
        code;                                                                                                \
    }
#define AS(Kind) static_cast<Kind&>(*layer)

const Case frame[] = {
    {"MajorHGridColor", 1, EDIT(chart.m_majorHGridColor.m_color = 0xff0000), kPlot, nullptr, kBelow},
    {"MajorVGridColor", 1, EDIT(chart.m_majorVGridColor.m_color = 0xff0000), kPlot, nullptr, kLeft},
    {"MajorHGridWidth", 1, EDIT(chart.m_majorHGridWidth = 3), kPlot},
    {"MajorVGridWidth", 1, EDIT(chart.m_majorVGridWidth = 3), kPlot,
     EDIT(chart.m_majorVGridColor.m_color = 1)},
    {"MinorHGridColor", 1, EDIT(chart.m_minorHGridColor.m_color = 0xff0000), kPlot,
     EDIT(chart.m_yAxis.m_minorSpacing = 5)},
    {"MinorHGridWidth", 1, EDIT(chart.m_minorHGridWidth = 3), kPlot, EDIT(chart.m_yAxis.m_minorSpacing = 5)},
    {"MinorVGridColor", 2, EDIT(chart.m_minorVGridColor.m_color = 0xff0000), kPlot,
     EDIT(chart.m_xAxis.m_minorSpacing = 5)},
    {"MinorVGridWidth", 2, EDIT(chart.m_minorVGridWidth = 3), kPlot,
     EDIT(chart.m_minorVGridColor.m_color = 1; chart.m_xAxis.m_minorSpacing = 5)},
    {"LineColor", 1, EDIT(chart.m_lineColor.m_color = 0xff0000), kSampleLine, nullptr, kPlot},
    {"LineWidth", 1, EDIT(chart.m_lineWidth = 4), kSampleLine, nullptr, kPlot},
    {"BackColor", 1, EDIT(chart.m_backColor.m_color = 0xffff00), kPlot, EDIT(chart.m_useBackground = true),
     kBelow},
    {"AltColor", 1, EDIT(chart.m_altColor.m_color = 0xffff00), kPlot, EDIT(chart.m_useBackground = true)},
    {"EdgeColor", 1, EDIT(chart.m_edgeColor.m_color = 0xff0000), kPicture,
     EDIT(chart.m_useBackground = true)},
    {"Quadrants", 1, EDIT(chart.m_q1Color.m_color = 0xff0000), QRect(260, 80, 180, 180),
     EDIT(chart.m_useBackground = true; chart.m_backgroundType = 2), QRect(60, 300, 180, 170)},
    {"SwapXY", 0, EDIT(chart.m_swapXY = true), kPlot},
    {"UseX2Axis", 1, EDIT(chart.m_useX2Axis = true), kAbove, nullptr, kPlot},
    {"UseY2Axis", 1, EDIT(chart.m_useY2Axis = true), kRight, nullptr, kPlot},
    {"Depth", 0, EDIT(chart.m_depth = 15), kPlot, EDIT(chart.m_show3D = true)},
    {"ZGap", 1, EDIT(chart.m_zGap = 20), kPicture,
     EDIT(chart.m_show3D = true; chart.m_depth = 5;
          chart.m_layers.AddLayer(CXYChartLayerMgr::CloneLayer(layer)))},
};

const Case axes[] = {
    {"Reverse", 1, EDIT(chart.m_yAxis.m_reverse = true), kPlot},
    {"Width", 1, EDIT(chart.m_yAxis.m_width = 4), kLeft, nullptr, kRight},
    {"Color", 1, EDIT(chart.m_yAxis.m_color.m_color = 0xff0000), kLeft, nullptr, kRight},
    {"MarginTop", 1, EDIT(chart.m_yAxis.m_marginTop = 40), kPlot},
    {"MarginBottom", 1, EDIT(chart.m_yAxis.m_marginBottom = 40), kPlot},
    {"MajorStep", 1, EDIT(chart.m_xAxis.m_majorStep = 2), kBelow, nullptr, kLeft},
    {"MinorStep", 1, EDIT(chart.m_xAxis.m_minorStep = 1), kBelow,
     EDIT(chart.m_xAxis.m_majorStep = 2; chart.m_xAxis.m_minorLength = 4)},
    {"MajorOffset", 1, EDIT(chart.m_xAxis.m_majorOffset = 1), kBelow, EDIT(chart.m_xAxis.m_majorStep = 2)},
    {"MinorOffset", 1, EDIT(chart.m_xAxis.m_minorOffset = 2), kBelow,
     EDIT(chart.m_xAxis.m_majorStep = 3; chart.m_xAxis.m_minorStep = 3; chart.m_xAxis.m_minorLength = 4)},
    {"MajorLength", 1, EDIT(chart.m_yAxis.m_majorLength = 12), kLeft},
    {"MinorLength", 1, EDIT(chart.m_yAxis.m_minorLength = 6), kLeft, EDIT(chart.m_yAxis.m_minorSpacing = 5)},
    {"MajorSpacing", 1, EDIT(chart.m_yAxis.m_majorSpacing = 120), kLeft},
    {"TopExtension", 1, EDIT(chart.m_yAxis.m_topExtension = 0.5), kLeft},
    {"BottomExtension", 4, EDIT(chart.m_yAxis.m_bottomExtension = 0.5), kLeft},
    {"ZeroAffinity", 4, EDIT(chart.m_yAxis.m_zeroAffinity = 1), kLeft},
    {"LowerLimit", -1, EDIT(chart.m_yAxis.m_lowerLimit = 5), kLeft,
     EDIT(chart.m_yAxis.m_scaleType = 2; chart.m_yAxis.m_upperLimit = 10)},
    {"UpperLimit", -1, EDIT(chart.m_yAxis.m_upperLimit = 20), kLeft,
     EDIT(chart.m_yAxis.m_scaleType = 2; chart.m_yAxis.m_upperLimit = 10)},
    {"MajorTickInc", -1, EDIT(chart.m_yAxis.m_majorTickInc = 5), kLeft,
     EDIT(chart.m_yAxis.m_scaleType = 2; chart.m_yAxis.m_upperLimit = 10)},
    {"MinorTickInc", -1, EDIT(chart.m_yAxis.m_minorTickInc = 1), kLeft,
     EDIT(chart.m_yAxis.m_scaleType = 2; chart.m_yAxis.m_upperLimit = 10; chart.m_yAxis.m_majorTickInc = 5;
          chart.m_yAxis.m_minorLength = 3)},
    {"DateLowerLimit", -1, EDIT(chart.m_xAxis.m_dateLowerLimit = 5), kBelow,
     EDIT(chart.m_xAxis.m_scaleType = 3)},
    {"DateUpperLimit", -1, EDIT(chart.m_xAxis.m_dateUpperLimit = 9e9), kBelow,
     EDIT(chart.m_xAxis.m_scaleType = 3)},
    {"DateMajorTickInc", -1, EDIT(chart.m_xAxis.m_dateMajorTickInc = 500), kBelow,
     EDIT(chart.m_xAxis.m_scaleType = 3)},
    {"Title", 1, EDIT(chart.m_xAxis.m_title.m_show = true; chart.m_xAxis.m_title.m_text = "Title"), kPicture,
     nullptr, kPlot},
    {"TitlePosition", 1,
     EDIT(chart.m_xAxis.m_title.m_usePosition = true; chart.m_xAxis.m_title.m_alignment = 9), kPicture,
     EDIT(chart.m_xAxis.m_title.m_show = true; chart.m_xAxis.m_title.m_text = "Title"), kPlot},
    {"TitleAngle", 1, EDIT(chart.m_yAxis.m_title.m_useAngle = true; chart.m_yAxis.m_title.m_angle = 30),
     kLeft, EDIT(chart.m_yAxis.m_title.m_show = true; chart.m_yAxis.m_title.m_text = "Ti")},
    {"TitleBackground", 1, EDIT(chart.m_xAxis.m_title.m_backColor.m_color = 0xffff00), kPicture,
     EDIT(chart.m_xAxis.m_title.m_show = true; chart.m_xAxis.m_title.m_text = "Title"), kPlot},
    {"LabelFormat", 1, EDIT(chart.m_yAxis.m_labelFormat = "<{value}>"), kLeft, nullptr, kPlot},
    {"LabelFont", 1, EDIT(chart.m_yAxis.m_labelFont.m_size = 7), kLeft},
    {"LabelFontColor", 1, EDIT(chart.m_yAxis.m_labelFontColor.m_color = 0xff0000), kLeft, nullptr, kPlot},
    {"LabelBackColor", 1, EDIT(chart.m_yAxis.m_labelBackColor.m_color = 0xffff00), kLeft, nullptr, kPlot},
    {"LabelEdgeColor", 1, EDIT(chart.m_yAxis.m_labelEdgeColor.m_color = 0xff0000), kLeft, nullptr, kPlot},
    {"LabelEffect", 1, EDIT(chart.m_yAxis.m_labelEffect.m_value = 3), kLeft,
     EDIT(chart.m_yAxis.m_labelBackColor.m_color = 0xcccccc)},
    {"LabelAngle", 1, EDIT(chart.m_xAxis.m_labelAngle = 45), kBelow, nullptr, kPlot},
    {"LabelVertical", 1, EDIT(chart.m_yAxis.m_labelVertical = true), kLeft},
    {"Format1", 1, EDIT(chart.m_xAxis.m_format1 = "{value|mmm}"; chart.m_xAxis.m_filter1 = 6), kBelow,
     EDIT(chart.m_xAxis.m_scaleType = 3; chart.m_xAxis.m_dateLowerLimit = 6.2e10;
          chart.m_xAxis.m_dateUpperLimit = 6.21e10)},
    {"SyncSlope", 1, EDIT(chart.m_y2Axis.m_syncSlope = 2), kRight, EDIT(chart.m_useY2Axis = true), kPlot},
    {"SyncKind", 1, EDIT(chart.m_y2Axis.m_syncKind = 16; chart.m_y2Axis.m_syncAxis = chart.m_axes.GetAxis(0)),
     kRight,
     EDIT(chart.m_useY2Axis = true; CXYChartAxis* own = CXYChartAxisMgr::CreateAxis(); own->m_scaleType = 2;
          own->m_offset = 400; own->m_upperLimit = 7; chart.m_axes.AddAxis(own))},
    {"Location", 1, EDIT(chart.m_axes.GetAxis(0)->m_location = 6), kRight,
     EDIT(chart.m_axes.AddAxis(CXYChartAxisMgr::CreateAxis()))},
    {"Offset", 1, EDIT(chart.m_axes.GetAxis(0)->m_offset = 20), kRight,
     EDIT(chart.m_axes.AddAxis(CXYChartAxisMgr::CreateAxis()); chart.m_axes.GetAxis(0)->m_location = 6)},
};

const Case layers[] = {
    {"BarShape", 0, EDIT(AS(CXYBarLayer).m_shape = 7), kPlot, nullptr, kLeft},
    {"BarCombineMethod", 0, EDIT(AS(CXYBarLayer).m_combineMethod = 1), kPlot},
    {"BarOverlapRatio", 0, EDIT(AS(CXYBarLayer).m_overlapRatio = 0.1), kPlot, nullptr, kLeft},
    {"BarFirstOnTop", 0, EDIT(AS(CXYBarLayer).m_firstOnTop = false), kPlot, nullptr, kLeft},
    {"BarGap", 0, EDIT(AS(CXYBarLayer).m_barGap = 0.6), kPlot, EDIT(AS(CXYBarLayer).m_useOverlap = false)},
    {"BarSubGap", 0, EDIT(AS(CXYBarLayer).m_subBarGap = 0.4), kPlot,
     EDIT(AS(CXYBarLayer).m_useOverlap = false)},
    {"BarBorder", 0,
     EDIT(AS(CXYBarLayer).m_useBorderColor = true; AS(CXYBarLayer).m_edgeColor.m_color = 0xff0000), kPlot,
     nullptr, kLeft},
    {"BarEffect", 0, EDIT(AS(CXYBarLayer).m_effect.m_effectType = 3), kPlot,
     EDIT(AS(CXYBarLayer).m_useBorderColor = true)},
    {"BarColors", 0, EDIT(AS(CXYBarLayer).m_dataSetColors.push_back(CChartColor())), kPlot},
    {"LineType", 1, EDIT(AS(CXYLineLayer).m_lineType = 1), kPlot, nullptr, kLeft},
    {"LineSteps", 1, EDIT(AS(CXYLineLayer).m_lineType = 2), kPlot, nullptr, kLeft},
    {"LineLayerColor", 1, EDIT(AS(CXYLineLayer).m_color.m_color = 0xff0000), kPlot, nullptr, kLeft},
    {"LineLayerWidth", 1, EDIT(AS(CXYLineLayer).m_lineWidth = 4), kPlot},
    {"LineSymbolType", 1, EDIT(AS(CXYLineLayer).m_symbolType = 7), kPlot, nullptr, kAbove},
    {"LineSymbolSize", 1, EDIT(AS(CXYLineLayer).m_symbolSize = 20), kPlot,
     EDIT(AS(CXYLineLayer).m_symbolType = 7)},
    {"LineFillColor", 1, EDIT(AS(CXYLineLayer).m_fillColor.m_color = 1), kPlot,
     EDIT(AS(CXYLineLayer).m_symbolType = 7)},
    {"LineEdgeColor", 1, EDIT(AS(CXYLineLayer).m_edgeColor.m_color = 0xff), kPlot,
     EDIT(AS(CXYLineLayer).m_symbolType = 7)},
    {"ScatterSymbolType", 2, EDIT(AS(CXYScatterLayer).m_symbolType = 8), kPlot},
    {"ScatterBubble", 2, EDIT(AS(CXYScatterLayer).m_bubble = true), kPlot},
    {"ScatterSymbolSize", 2, EDIT(AS(CXYScatterLayer).m_symbolSize = 25), kPlot,
     EDIT(AS(CXYScatterLayer).m_useSymbolColor = true)},
    {"ScatterSymbolColor", 2, EDIT(AS(CXYScatterLayer).m_symbolColor.m_color = 0xff), kPlot,
     EDIT(AS(CXYScatterLayer).m_useSymbolColor = true)},
    {"AreaCombineMethod", 3, EDIT(AS(CXYAreaLayer).m_combineMethod = 4), kPlot},
    {"AreaColor", 3, EDIT(AS(CXYAreaLayer).m_areaColor.m_color = 0xff), kPlot,
     EDIT(AS(CXYAreaLayer).m_useAreaColor = true), kLeft},
    {"BoxWhiskerFill", 4, EDIT(AS(CXYBoxWhiskerLayer).m_fillColor.m_color = 1), kPlot, nullptr, kLeft},
    {"BoxWhiskerWhisker", 4, EDIT(AS(CXYBoxWhiskerLayer).m_whiskerColor.m_color = 1), kPlot, nullptr, kLeft},
    {"BoxColor", 5, EDIT(AS(CXYBoxLayer).m_group.m_color.m_color = 1), kPlot, nullptr, kLeft},
    {"UpColor", 6, EDIT(AS(CXYHLOCLayer).m_upColor.m_color = 1), kPlot, nullptr, kLeft},
    {"DownColor", 6, EDIT(AS(CXYHLOCLayer).m_downColor.m_color = 1), kPlot, nullptr, kLeft},
    {"Groups", 7, EDIT(AS(CXYGanttLayer).m_groups.push_back(CBoxGroup())), kPlot},
    {"RiseColor", 8, EDIT(AS(CXYCandleStickLayer).m_riseColor.m_color = 1), kPlot, nullptr, kLeft},
    {"FallColor", 8, EDIT(AS(CXYCandleStickLayer).m_fallColor.m_color = 1), kPlot, nullptr, kLeft},
    {"YAxisKind", 1, EDIT(layer->m_yAxisKind = 8), kRight},
    {"Seed", 1, EDIT(layer->m_seed = 8), kPlot},
};

constexpr auto kName = [](const auto& test) { return test.param.name; };
INSTANTIATE_TEST_SUITE_P(Frame, XYEffects, testing::ValuesIn(frame), kName);
INSTANTIATE_TEST_SUITE_P(Axes, XYEffects, testing::ValuesIn(axes), kName);
INSTANTIATE_TEST_SUITE_P(Layers, XYEffects, testing::ValuesIn(layers), kName);

} // namespace
