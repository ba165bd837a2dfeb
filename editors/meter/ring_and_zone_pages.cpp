#include "editors/meter/ring_and_zone_pages.h"

#include "editors/fields/color_field.h"
#include "editors/fields/look_rows.h"
#include "editors/fields/scale_rows.h"
#include "resources/string_table.h"

CAngularRingPage::CAngularRingPage(CAngularRings& rings, QWidget& owner) : m_form(*this, owner) {
    auto& list =
        m_form.List(rings, LoadChartString(ChartText::RingRow), LoadChartString(ChartText::SelectRing));
    m_form.Column();
    m_form.Integer("StartRadius:", list[&CAngularRing::m_startRadius])
        .Step(10)
        .Floor(0)
        .Tip("Pixels from the centre");
    m_form.Integer("EndRadius:", list[&CAngularRing::m_endRadius])
        .Step(10)
        .Floor(0)
        .Tip("Pixels from the centre");
    m_form.Field<CChartColorField>("FillColor:", list[&CAngularRing::m_fillColor]).OnlyWithItem();
    m_form.Field<CChartColorField>("EdgeColor:", list[&CAngularRing::m_edgeColor]).OnlyWithItem();
}

CAngularZonePage::CAngularZonePage(CMeterZoneAngulars& zones, QWidget& owner) : m_form(*this, owner) {
    AngularZoneRows(m_form, zones, ChartText::AngularZoneRow);
}

CLinearZonePage::CLinearZonePage(CMeterZoneLinears& zones, QWidget& owner) : m_form(*this, owner) {
    auto& list =
        m_form.List(zones, LoadChartString(ChartText::LinearZoneRow), LoadChartString(ChartText::SelectZone));
    m_form.Lines("Text:", list.Caption(&CMeterZoneLinear::m_text));
    m_form.Alignment("Alignment:", list[&CMeterZoneLinear::m_alignment]);
    m_form.Group("Angle:");
    m_form.Real(nullptr, list[&CMeterZoneLinear::m_angle]).Step(10).Tip("Degrees counter-clockwise");
    m_form.Part();
    m_form.Check("Vertical", list[&CMeterZoneLinear::m_vertical])
        .Unvalidated()
        .Tip("Letters stacked from top to bottom");
    m_form.Column();
    m_form.Real("StartValue:", list[&CMeterZoneLinear::m_startValue])
        .Step(10)
        .Tip("Where the zone begins on the scale");
    m_form.Real("EndValue:", list[&CMeterZoneLinear::m_endValue])
        .Step(10)
        .Tip("Where the zone ends on the scale");
    LookRows(m_form, LookOf(list));
}
