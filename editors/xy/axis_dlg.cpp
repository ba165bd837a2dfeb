#include "editors/xy/axis_dlg.h"

#include "resources/string_table.h"

namespace {

constexpr int kDateScale = 3;

} // namespace

CAxisDlg::CAxisDlg()
    : CDialog(QStringLiteral("Axis for XYChart")), m_tabs(*this), m_general(*this), m_ticks(*this),
      m_scale(*this), m_title(*this), m_labels(*this) {
    m_tabs.AttachPage(m_general, ChartText::General);
    m_tabs.AttachPage(m_ticks, ChartText::Tick);
    m_tabs.AttachPage(m_scale, ChartText::Scale);
    m_tabs.AttachPage(m_title, ChartText::Title);
    m_tabs.AttachPage(m_labels, ChartText::Label);
}

bool CAxisDlg::OnInitDialog() {
    m_tabs.Open({});
    return CDialog::OnInitDialog();
}

void CAxisDlg::ScaleTypeChosen() {
    const bool dates = m_axis.m_scaleType == kDateScale;
    m_labels.SetFormat(LoadChartString(dates ? ChartText::DateFormat : ChartText::AxisLabelFormat));
}
