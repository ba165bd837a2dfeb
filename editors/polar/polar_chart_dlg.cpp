#include "editors/polar/polar_chart_dlg.h"

#include "editors/polar/polar_pages.h"
#include "resources/string_table.h"

CPolarChartDlg::CPolarChartDlg() : CDialog(QStringLiteral("PolarChart")), m_preview(this), m_tabs(*this) {
    CPolarChart& chart = m_preview.m_ownPolarChart;
    m_tabs.AttachPage<CPolarGeneralPage>(ChartText::General, chart, m_preview.m_ownLayout, *this);
    m_tabs.AttachPage<CPolarAngularLabelPage>(ChartText::AngularLabels, chart, *this);
    m_tabs.AttachPage<CPolarRadialLabelPage>(ChartText::RadialLabels, chart, *this);
    m_tabs.AttachPage<CPolarAngularZonePage>(ChartText::AngularZones, chart, *this);
    m_tabs.AttachPage<CPolarRadialZonePage>(ChartText::RadialZones, chart, *this);
}

bool CPolarChartDlg::OnInitDialog() {
    m_tabs.Open(
        {.preview = &m_preview, .edited = WorkingCopy(m_preview.m_ownPolarChart, &m_preview.m_ownLayout)});
    return CDialog::OnInitDialog();
}

void CPolarChartDlg::OnFieldChanged(int /*key*/) {
    m_preview.RefreshPreview();
}
