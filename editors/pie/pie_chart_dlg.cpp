#include "editors/pie/pie_chart_dlg.h"

#include "editors/colour/swatch.h"
#include "editors/fields/color_field.h"
#include "editors/fields/tips.h"
#include "editors/framework/conventions.h"
#include "editors/framework/editor_frame.h"
#include "resources/string_table.h"

#include <algorithm>

namespace {

CPieChartSector NewSector() {
    CPieChartSector sector;
    sector.m_color = RandomChartColor();
    return sector;
}

} // namespace

CPieChartDlg::CPieChartDlg()
    : CDialog(QStringLiteral("PieChart")), m_preview(this),
      m_form(*this, [this] { m_preview.RefreshPreview(); }) {
    TableOfChart(m_preview.m_ownPieChart);
    TableOfSectors(m_preview.m_ownPieChart);
}

bool CPieChartDlg::OnInitDialog() {
    OpenEditor(*this, {.preview = &m_preview,
                       .body = m_form.Layout(),
                       .edited = WorkingCopy(m_preview.m_ownPieChart, &m_preview.m_ownLayout)});
    return CDialog::OnInitDialog();
}

void CPieChartDlg::TableOfChart(CPieChart& chart) {
    m_form.Group("3D:");
    m_form.Check("Show 3D", chart.m_show3D);
    CCheckRow& shadow = m_form.Check("Shadow3D", chart.m_shadow3D);
    m_form.Integer("Depth:", chart.m_depth3D).Step(1).Floor(0).DigitsOnly().Tip(tip::kPixels);
    CRealRow& angle = m_form.Real("Angle:", chart.m_angle3D).Step(10).LimitedBy([&chart](double degrees) {
        return chart.m_shadow3D ? degrees : std::clamp(degrees, 0.0, 90.0);
    });
    angle.Tip("Degrees, 0 to 90; any with \"Shadow3D\"");
    // A shadow may fall at any angle. Without it, a wider angle comes back into the limits at once.
    shadow.Then([this, &angle] {
        UpdateData(false);
        angle.Store();
    });

    m_form.Column();
    m_form.Group("StartAngle:");
    m_form.Check("ClockWise", chart.m_clockWise);
    m_form.Real("StartAngle:", chart.m_startAngle).Step(10).Tip(tip::kClockwise);
    m_form.Group("Donut:");
    m_form.Check("Use DonutType", chart.m_useDonut);
    m_form.Integer("Inner R(%):", chart.m_donutInnerRadius)
        .Step(10)
        .Range(0, 100)
        .DigitsOnly()
        .Tip("Per cent of the radius");

    m_form.Column();
    m_form.Group("Label:");
    m_form.Combo("Layout:", chart.m_labelLayout, {"SideLayout", "CircleLayout"});
    m_form.Integer("Position:", chart.m_labelPosition).Step(1).Tip("Pixels from the pie; -1 automatic");
    m_form.Field<CChartColorField>("EdgeColor:", chart.m_edgeColor);
    m_form.Field<CChartColorField>("JoinLineColor:", chart.m_joinLineColor);
}

void CPieChartDlg::TableOfSectors(CPieChart& chart) {
    m_form.Band();
    m_form.Group("Sector:");
    auto& sectors = m_form
                        .List(chart.m_sectors, LoadChartString(ChartText::SectorRow),
                              LoadChartString(ChartText::SelectItem))
                        .New(NewSector);
    m_form.Part();
    m_form.Lines("Text:", sectors.Caption(&CPieChartSector::m_text));
    m_form.Check("Show Explode", sectors[&CPieChartSector::m_showExplode])
        .Tip("Moves the sector out of the pie");
    m_form.Check("Use Distance", sectors[&CPieChartSector::m_useDistance])
        .Tip("Moves it by \"Distance\"; without, a fitting distance is chosen");
    m_form.Integer("Distance:", sectors[&CPieChartSector::m_distance])
        .Step(10)
        .Floor(0)
        .DigitsOnly()
        .Tip(tip::kPixels);
    m_form.Field<CChartColorField>("Color:", sectors.Swatch(&CPieChartSector::m_color, RowSwatch));
}
