#include "render/linear_meter.h"
#include "render/dressing.h"
#include "render/meter_parts.h"
#include "render/utf8_text.h"

LinearMeterHolder BeginLinearMeter(const CChartLayout& layout, bool addSampleKey) {
    LinearMeter* linear =
        CLinearMeter_create(layout.m_width, layout.m_height, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
    BaseMeter* meter = LinearMeter2BaseMeter(linear);
    LinearMeterHolder holder{linear, meter, CChartHolder(BaseMeter2BaseChart(meter))};
    const CLinearMeterPA& area = layout.m_linearPlotArea;
    CLinearMeter_setMeter(linear, area.m_left, area.m_top, area.m_width, area.m_height, area.m_axisPos,
                          area.m_reverse);
    DrawChartBackground(holder.chart.Get(), layout);
    DrawChartTitles(holder.chart.Get(), layout);
    DrawChartLegend(holder.chart.Get(), layout, addSampleKey);
    return holder;
}

/// The zone's fill is also the background of its label. Where the label stands is the library's choice.
static void DrawZone(const LinearMeterHolder& holder, const CMeterZoneLinear& zone) {
    BaseChart* chart = holder.chart.Get();
    TextBox* label = CLinearMeter_addZone(holder.linear, zone.m_startValue, zone.m_endValue,
                                          zone.m_backColor.GetChartColor(chart), CUtf8Text(zone.m_text));
    DressTextBox(chart, label, zone);
    CTextBox_setFontStyle(label, CUtf8Text(zone.m_font.m_fileName), 0);
    CTextBox_setFontSize(label, zone.m_font.m_size, 0.0);
    CTextBox_setFontColor(label, zone.m_fontColor.GetChartColor(chart));
}

void FinishLinearMeter(const LinearMeterHolder& holder, const CLinearMeter& look,
                       std::span<const double> values) {
    DrawMeterScale(holder.meter, look);
    for (int i = 0; i < look.m_zones.size(); ++i)
        DrawZone(holder, look.m_zones[i]);
    DrawMeterFront(holder.meter, holder.chart.Get(), look, values);
}

void DrawLinearMeter(CChartPreview& view) {
    const LinearMeterHolder holder = BeginLinearMeter(*view.m_layout, true);
    FinishLinearMeter(holder, view.m_ownLinearMeter, {});
    StorePicture(&view, holder.chart.Get());
}
