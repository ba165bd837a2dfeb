// Pie, meters and polar chart: their defaults. The polar layers stand in polar_layers.cpp.

#include "model/src/value_class.h"
#include <charteditors/pie_chart.h>
#include <charteditors/polar_chart.h>

namespace {

constexpr unsigned zoneGreen = 0x66FF66;
constexpr unsigned halfBlack = 0x80000000;

/// The look that zones and rings share: all green.
void paintZone(CChartColor& fill, CChartColor& edge) {
    fill.m_color = zoneGreen;
    edge.m_color = zoneGreen;
}

/// The look that labels of every round scale share: black on white, without an edge.
void paintLabel(CChartColor& back, CChartColor& edge) {
    back.m_color = 0xFFFFFF;
    edge.m_color = model::transparent;
}

} // namespace

CPieChartSector::CPieChartSector() = default;
DEFINE_VALUE_CLASS(CPieChartSector)

CPieChart::CPieChart() {
    m_edgeColor.m_color = model::transparent;
}
DEFINE_VALUE_CLASS(CPieChart)

CMeterPointer::CMeterPointer() = default;
DEFINE_VALUE_CLASS(CMeterPointer)

CAngularRing::CAngularRing() {
    paintZone(m_fillColor, m_edgeColor);
}
DEFINE_VALUE_CLASS(CAngularRing)

CMeterZoneAngular::CMeterZoneAngular() {
    paintZone(m_fillColor, m_edgeColor);
}
DEFINE_VALUE_CLASS(CMeterZoneAngular)

CMeterZoneLinear::CMeterZoneLinear() {
    paintZone(m_backColor, m_edgeColor);
}
DEFINE_VALUE_CLASS(CMeterZoneLinear)

CMeterLabelStyle::CMeterLabelStyle() {
    paintLabel(m_backColor, m_edgeColor);
}
DEFINE_VALUE_CLASS(CMeterLabelStyle)

CAngularMeter::CAngularMeter() = default;
DEFINE_VALUE_CLASS(CAngularMeter)

CLinearMeter::CLinearMeter() = default;
DEFINE_VALUE_CLASS(CLinearMeter)

CPolarLabelStyleAngular::CPolarLabelStyleAngular() {
    paintLabel(m_backColor, m_edgeColor);
}
DEFINE_VALUE_CLASS(CPolarLabelStyleAngular)

CPolarChart::CPolarChart() {
    m_radialGridColor.m_color = halfBlack;
    m_angularGridColor.m_color = halfBlack;
    m_backColor.m_color = model::transparent;
    m_edgeColor.m_color = model::transparent;
    m_bgColor1.m_color = 0xDDDDDD;
    m_bgColor2.m_color = 0xEEEEEE;
}
DEFINE_VALUE_CLASS(CPolarChart)
