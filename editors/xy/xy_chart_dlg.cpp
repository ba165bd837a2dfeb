#include "editors/xy/xy_chart_dlg.h"

#include "resources/string_table.h"

CXYChartDlg::CXYChartDlg() : CDialog(QStringLiteral("XYChart")), m_preview(this), m_tabs(*this) {
    CXYChart& chart = m_preview.m_ownXYChart;
    m_tabs.AttachPage<CXYGeneralPage>(ChartText::General, chart, *this);
    m_tabs.AttachPage<CXYBackgroundPage>(ChartText::Background, chart, *this);
    m_tabs.AttachPage<CXYAxisPage>(ChartText::Axis, chart, *this, [this] {
        if (m_layers != nullptr)
            m_layers->ShowAxes();
    });
    m_tabs.AttachPage(ChartText::Layer, [this, &chart] {
        auto page = std::make_unique<CXYLayerPage>(chart, m_preview.m_ownLayout, *this);
        m_layers = page.get();
        return page;
    });
}

bool CXYChartDlg::OnInitDialog() {
    m_tabs.Open(
        {.preview = &m_preview, .edited = WorkingCopy(m_preview.m_ownXYChart, &m_preview.m_ownLayout)});
    return CDialog::OnInitDialog();
}

void CXYChartDlg::OnFieldChanged(int /*key*/) {
    m_preview.RefreshPreview();
}
