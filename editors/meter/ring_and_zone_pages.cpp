#include "editors/meter/ring_and_zone_pages.h"

#include "editors/colour/swatch.h"
#include "editors/fields/color_field.h"
#include "editors/fields/look_rows.h"
#include "editors/fields/scale_rows.h"
#include "editors/fields/tips.h"
#include "resources/string_table.h"

CAngularRingPage::CAngularRingPage(CAngularRings& rings, QWidget& owner) : m_form(*this, owner) {
    auto& list =
        m_form.List(rings, LoadChartString(ChartText::RingRow), LoadChartString(ChartText::SelectRing));
    m_form.Column();
    m_form.Integer("StartRadius:", list[&CAngularRing::m_startRadius])
        .Step(10)
        .Floor(0)
        .Tip(tip::kFromCentre);
    m_form.Integer("EndRadius:", list[&CAngularRing::m_endRadius]).Step(10).Floor(0).Tip(tip::kFromCentre);
    m_form.Field<CChartColorField>("FillColor:", list.Swatch(&CAngularRing::m_fillColor, RowSwatch))
        .OnlyWithItem();
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
    m_form.Real(nullptr, list[&CMeterZoneLinear::m_angle]).Step(10).Tip(tip::kTurned);
    m_form.Part();
    m_form.Check("Vertical", list[&CMeterZoneLinear::m_vertical]).Unvalidated().Tip(tip::kStacked);
    m_form.Column();
    m_form.Real("StartValue:", list[&CMeterZoneLinear::m_startValue]).Step(10).Tip(tip::kZoneStart);
    m_form.Real("EndValue:", list[&CMeterZoneLinear::m_endValue]).Step(10).Tip(tip::kZoneEnd);
    CLook look = LookOf(list);
    look.backColor = list.Swatch(&CMeterZoneLinear::m_backColor, RowSwatch);
    LookRows(m_form, look);
}
