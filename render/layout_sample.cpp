#include "render/layout_sample.h"
#include "render/angular_meter.h"
#include "render/dressing.h"
#include "render/finance/draw_finance.h"
#include "render/linear_meter.h"
#include "render/pie.h"
#include "render/polar.h"
#include "render/sample_data.h"
#include "render/utf8_text.h"
#include "resources/string_table.h"
#include <algorithm>
#include <cmath>
#include <limits>

namespace {

void DrawPieSample(CChartPreview& view) {
    static constexpr double kValues[] = {55, 18, 15, 22, 8, 15, 10};
    const CChartLayout& layout = *view.m_layout;
    const PieHolder holder = BeginPieChart(layout);
    std::vector<std::string> labels;
    for (int i = 1; i <= std::ssize(kValues); ++i)
        labels.push_back(FormatChartString(ChartText::SampleSector, i));
    const std::vector<const char*> pointers = TextPointers(labels);
    SetPieData(holder.pie, {kValues, pointers});
    DrawPieLabels(holder, layout);
    DrawChartLegend(holder.chart.Get(), layout, false);
    StorePicture(&view, holder.chart.Get());
}

void DrawXYSample(CChartPreview& view) {
    static constexpr double kValues[] = {85, 156, 179.5, 211, 123};
    const CChartLayout& layout = *view.m_layout;
    XYChart* xy =
        CXYChart_create(layout.m_width, layout.m_height, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
    const CChartHolder holder(XYChart2BaseChart(xy));
    BaseChart* chart = holder.Get();
    const CXYChartPA& area = layout.m_xyPlotArea;
    CXYChart_setPlotArea(xy, area.m_left, area.m_top, area.m_width, area.m_height, CHART_TRANSPARENT,
                         CHART_DEFAULT_COLOR, CHART_DEFAULT_COLOR, 0xc0c0c0, CHART_TRANSPARENT);
    DrawChartBackground(chart, layout);
    DrawChartTitles(chart, layout);
    Layer* layer = BarLayer2Layer(CXYChart_addBarLayer2(xy, CHART_COMBINE_SIDE, 4));
    CLayer_addDataSet(layer, kValues, static_cast<int>(std::size(kValues)), 0xffff00,
                      LoadChartString(ChartText::BarKind));
    CAxis_setAutoScale(CXYChart_xAxis(xy), 0.1, 0.1, 0.8);
    if (layout.m_showLabel) {
        TextBox* label = CLayer_setDataLabelStyle(layer, CUtf8Text(layout.m_labelFont.m_fileName),
                                                  layout.m_labelFont.m_size,
                                                  layout.m_labelFontColor.GetChartColor(chart), 0.0);
        DressLabelBox(chart, layout, label);
        CLayer_setDataLabelFormat(layer, CUtf8Text(layout.m_labelFormat));
    }
    DrawChartLegend(chart, layout, false);
    StorePicture(&view, chart);
}

void DrawFinanceSample(CChartPreview& view) {
    const CChartLayout& layout = *view.m_layout;
    FinanceChart chart(layout.m_financeWidth);
    DressFinanceChart(chart, layout, true);
    const CSamplePrices prices;
    chart.setData(prices.Rows(), CSamplePrices::extraPoints);
    chart.addMainChart(210);
    chart.addSimpleMovingAvg(5, 0x663300);
    chart.addSimpleMovingAvg(20, 0x9900ff);
    chart.addHLOC(0x8000, 0xcc0000);
    chart.addBollingerBand(20, 2.0, 0x9999ff, static_cast<int>(0xc06666ff));
    chart.addVolBars(70, 0x99ff99, 0xff9999, 0x808080);
    chart.addRSI(70, 14, 0x800080, 20.0, 0xff0000, 0xff);
    chart.addMomentum(70, 12, 0xff);
    StorePicture(&view, chart.Chart());
}

void DrawPolarSample(CChartPreview& view) {
    static constexpr double kRadii[] = {90, 25, 40, 55, 68, 44, 79, 85, 50};
    static constexpr double kAngles[] = {15, 60, 110, 180, 230, 260, 260, 310, 340};
    const CChartLayout& layout = *view.m_layout;
    const PolarHolder holder = CreatePolarChart(layout);
    BaseChart* chart = holder.chart.Get();
    const CPieChartPA& area = layout.m_polarPlotArea;
    CPolarChart_setPlotArea(holder.polar, area.m_centerX, area.m_centerY, area.m_radius, CHART_TRANSPARENT,
                            CHART_TRANSPARENT, 1);
    DrawChartBackground(chart, layout);
    DrawChartTitles(chart, layout);
    PolarLayer* layer = PolarLineLayer2PolarLayer(
        CPolarChart_addLineLayer(holder.polar, kRadii, static_cast<int>(std::size(kRadii)), 0xff, nullptr));
    CPolarLayer_setAngles(layer, kAngles, static_cast<int>(std::size(kAngles)));
    DrawPolarDataLabels(chart, layer, layout);
    DrawChartLegend(chart, layout, true);
    StorePicture(&view, chart);
}

/// A part of a radius in whole pixels, downwards.
int Scaled(int radius, double ratio) {
    return static_cast<int>(std::min<double>(radius * ratio, std::numeric_limits<int>::max()));
}

void DrawAngularSample(CChartPreview& view) {
    const CChartLayout& layout = *view.m_layout;
    const AngularMeterHolder holder = BeginAngularMeter(layout, true);
    CBaseMeter_setScale(holder.meter, 0.0, 100.0, 10.0, 5.0, 1.0);
    const int radius = layout.m_angularPlotArea.m_radius;
    const int rim = Scaled(radius, 1.1);
    CAngularMeter_addRing(holder.angular, 0, rim, CChart_metalColor(0x9999dd, 90), CHART_DEFAULT_COLOR);
    CAngularMeter_addRing(holder.angular, Scaled(radius, 1.05), rim, 0x6666ff, CHART_DEFAULT_COLOR);
    CBaseMeter_addPointer(holder.meter, 45.17, 0x40333399, CHART_DEFAULT_COLOR);
    StorePicture(&view, holder.chart.Get());
}

void DrawLinearSample(CChartPreview& view) {
    const LinearMeterHolder holder = BeginLinearMeter(*view.m_layout, true);
    CBaseMeter_setScale(holder.meter, 0.0, 100.0, 10.0, 0.0, 0.0);
    CLinearMeter_addZone(holder.linear, 0, 50, 0x99ff99, nullptr);
    CLinearMeter_addZone(holder.linear, 50, 80, 0xffff66, nullptr);
    CLinearMeter_addZone(holder.linear, 80, 100, 0xffcccc, nullptr);
    CBaseMeter_addPointer(holder.meter, 75.35, 0xcc, CHART_DEFAULT_COLOR);
    StorePicture(&view, holder.chart.Get());
}

} // namespace

void DrawLayoutSample(CChartPreview& view) {
    static constexpr void (*kSamples[])(CChartPreview&) = {
        DrawPieSample, DrawXYSample, DrawFinanceSample, DrawPolarSample, DrawAngularSample, DrawLinearSample,
    };
    const int kind = view.m_layout->m_chartType;
    if (kind >= 0 && kind < std::ssize(kSamples))
        kSamples[kind](view);
}
