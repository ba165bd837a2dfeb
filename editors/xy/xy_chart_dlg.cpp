#include "editors/xy/xy_chart_dlg.h"

#include "resources/string_table.h"

CXYChartDlg::CXYChartDlg()
    : CDialog(QStringLiteral("XYChart")), m_preview(this), m_tabs(*this),
      m_general(m_preview.m_ownXYChart, *this), m_background(m_preview.m_ownXYChart, *this),
      m_axes(m_preview.m_ownXYChart, *this, [this] { m_layers.ShowAxes(); }),
      m_layers(m_preview.m_ownXYChart, m_preview.m_ownLayout, *this) {
    m_tabs.AttachPage(m_general, ChartText::General);
    m_tabs.AttachPage(m_background, ChartText::Background);
    m_tabs.AttachPage(m_axes, ChartText::Axis);
    m_tabs.AttachPage(m_layers, ChartText::Layer);
}

bool CXYChartDlg::OnInitDialog() {
    m_tabs.Open(
        {.preview = &m_preview, .edited = WorkingCopy(m_preview.m_ownXYChart, &m_preview.m_ownLayout)});
    return CDialog::OnInitDialog();
}

void CXYChartDlg::OnFieldChanged(int /*key*/) {
    m_preview.RefreshPreview();
}
