#include "editors/layout/chart_layout_dlg.h"

#include "resources/string_table.h"

CChartLayoutDlg::CChartLayoutDlg()
    : CDialog(QStringLiteral("ChartLayout")), m_preview(this),
      m_form(*this, [this] { m_preview.RefreshPreview(); }), m_tabs(*this),
      m_general(m_preview.m_ownLayout, *this), m_titles(m_preview.m_ownLayout, *this),
      m_labels(m_preview.m_ownLayout, *this), m_legend(m_preview.m_ownLayout, *this),
      m_angularSize(m_preview.m_ownLayout, *this), m_financeSize(m_preview.m_ownLayout, *this),
      m_linearSize(m_preview.m_ownLayout, *this), m_pieSize(m_preview.m_ownLayout, *this),
      m_polarSize(m_preview.m_ownLayout, *this), m_xySize(m_preview.m_ownLayout, *this) {
    m_form
        .Combo(nullptr, m_preview.m_ownLayout.m_chartType,
               {"PieChart", "XYChart", "FinanceChart", "PolarChart", "AngularMeter", "LinearMeter"})
        .Named("ChartType")
        .Then([this] { m_tabs.Choose(SizePage()); });
    m_tabs.AttachPage(m_general, ChartText::General);
    m_tabs.AttachPage(m_titles, ChartText::Title);
    m_tabs.AttachPage(m_labels, ChartText::DataLabel);
    m_tabs.AttachPage(m_legend, ChartText::Legend);
    m_tabs.AttachPage(m_angularSize, ChartText::PlotArea);
    for (CDialog* page :
         std::initializer_list<CDialog*>{&m_financeSize, &m_linearSize, &m_pieSize, &m_polarSize, &m_xySize})
        m_tabs.AttachPage(*page);
}

bool CChartLayoutDlg::OnInitDialog() {
    m_tabs.Open({.preview = &m_preview,
                 .abovePreview = m_form.Layout(),
                 .edited = WorkingCopy(m_preview.m_ownLayout),
                 .restored = [this] { m_tabs.Choose(SizePage()); }});
    m_tabs.Choose(SizePage());
    return CDialog::OnInitDialog();
}

void CChartLayoutDlg::OnFieldChanged(int /*key*/) {
    m_preview.RefreshPreview();
}

CDialog& CChartLayoutDlg::SizePage() {
    switch (m_preview.m_ownLayout.m_chartType) {
    case 0:
        return m_pieSize;
    case 2:
        return m_financeSize;
    case 3:
        return m_polarSize;
    case 4:
        return m_angularSize;
    case 5:
        return m_linearSize;
    default:
        return m_xySize;
    }
}
