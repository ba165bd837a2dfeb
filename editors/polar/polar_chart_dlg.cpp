#include "editors/polar/polar_chart_dlg.h"

#include "resources/string_table.h"

CPolarChartDlg::CPolarChartDlg()
    : CDialog(QStringLiteral("PolarChart")), m_preview(this), m_tabs(*this),
      m_general(m_preview.m_ownPolarChart, m_preview.m_ownLayout, *this),
      m_angularLabels(m_preview.m_ownPolarChart, *this), m_radialLabels(m_preview.m_ownPolarChart, *this),
      m_angularZones(m_preview.m_ownPolarChart, *this), m_radialZones(m_preview.m_ownPolarChart, *this) {
    m_tabs.AttachPage(m_general, ChartText::General);
    m_tabs.AttachPage(m_angularLabels, ChartText::AngularLabels);
    m_tabs.AttachPage(m_radialLabels, ChartText::RadialLabels);
    m_tabs.AttachPage(m_angularZones, ChartText::AngularZones);
    m_tabs.AttachPage(m_radialZones, ChartText::RadialZones);
}

bool CPolarChartDlg::OnInitDialog() {
    m_tabs.Open(
        {.preview = &m_preview, .edited = WorkingCopy(m_preview.m_ownPolarChart, &m_preview.m_ownLayout)});
    return CDialog::OnInitDialog();
}

void CPolarChartDlg::OnFieldChanged(int /*key*/) {
    m_preview.RefreshPreview();
}
