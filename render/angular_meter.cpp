#include "render/angular_meter.h"
#include "render/dressing.h"
#include "render/meter_parts.h"

AngularMeterHolder BeginAngularMeter(const CChartLayout& layout, bool addSampleKey) {
    AngularMeter* angular =
        CAngularMeter_create(layout.m_width, layout.m_height, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
    BaseMeter* meter = AngularMeter2BaseMeter(angular);
    AngularMeterHolder holder{angular, meter, CChartHolder(BaseMeter2BaseChart(meter))};
    const CAngularMeterPA& area = layout.m_angularPlotArea;
    CAngularMeter_setMeter(angular, area.m_centerX, area.m_centerY, area.m_radius, area.m_startAngle,
                           area.m_endAngle);
    DrawChartBackground(holder.chart.Get(), layout);
    DrawChartTitles(holder.chart.Get(), layout);
    DrawChartLegend(holder.chart.Get(), layout, addSampleKey);
    return holder;
}

void FinishAngularMeter(const AngularMeterHolder& holder, const CAngularMeter& look,
                        std::span<const double> values) {
    BaseChart* chart = holder.chart.Get();
    DrawMeterScale(holder.meter, look);
    for (int i = 0; i < look.m_rings.size(); ++i) {
        const CAngularRing& ring = look.m_rings[i];
        const auto [fill, edge] = ResolveColors(chart, ring.m_fillColor, ring.m_edgeColor);
        CAngularMeter_addRing(holder.angular, ring.m_startRadius, ring.m_endRadius, fill, edge);
    }
    for (int i = 0; i < look.m_zones.size(); ++i) {
        const CMeterZoneAngular& zone = look.m_zones[i];
        const auto [fill, edge] = ResolveColors(chart, zone.m_fillColor, zone.m_edgeColor);
        CAngularMeter_addZone2(holder.angular, zone.m_startValue, zone.m_endValue, fill, edge);
    }
    DrawMeterFront(holder.meter, holder.chart.Get(), look, values);
}

void DrawAngularMeter(CChartPreview& view) {
    const AngularMeterHolder holder = BeginAngularMeter(*view.m_layout, true);
    FinishAngularMeter(holder, view.m_ownAngularMeter, {});
    StorePicture(&view, holder.chart.Get());
}
