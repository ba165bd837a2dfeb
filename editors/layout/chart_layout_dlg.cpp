#include "editors/layout/chart_layout_dlg.h"

#include "editors/layout/layout_pages.h"
#include "editors/layout/size_pages.h"
#include "resources/string_table.h"

CChartLayoutDlg::CChartLayoutDlg()
    : CDialog(QStringLiteral("ChartLayout")), m_preview(this),
      m_form(*this, [this] { m_preview.RefreshPreview(); }), m_tabs(*this) {
    CChartLayout& layout = m_preview.m_ownLayout;
    m_form
        .Combo(nullptr, layout.m_chartType,
               {"PieChart", "XYChart", "FinanceChart", "PolarChart", "AngularMeter", "LinearMeter"})
        .Named("ChartType")
        .Then([this] { ChooseSizePage(); });
    m_tabs.AttachPage<CLayoutGeneralPage>(ChartText::General, layout, *this);
    m_tabs.AttachPage<CLayoutTitlePage>(ChartText::Title, layout, *this);
    m_tabs.AttachPage<CLayoutLabelPage>(ChartText::DataLabel, layout, *this);
    m_tabs.AttachPage<CLayoutLegendPage>(ChartText::Legend, layout, *this);
    m_tabs.AttachPage<CPieSizePage>(ChartText::PlotArea, layout, *this); // one a chart type, in their order
    m_tabs.AttachBeside<CXYSizePage>(layout, *this);
    m_tabs.AttachBeside<CFinanceSizePage>(layout, *this);
    m_tabs.AttachBeside<CPolarSizePage>(layout, *this);
    m_tabs.AttachBeside<CAngularSizePage>(layout, *this);
    m_tabs.AttachBeside<CLinearSizePage>(layout, *this);
}

bool CChartLayoutDlg::OnInitDialog() {
    m_tabs.Open({.preview = &m_preview,
                 .abovePreview = m_form.Layout(),
                 .edited = WorkingCopy(m_preview.m_ownLayout),
                 .restored = [this] { ChooseSizePage(); }});
    ChooseSizePage();
    return CDialog::OnInitDialog();
}

void CChartLayoutDlg::OnFieldChanged(int /*key*/) {
    m_preview.RefreshPreview();
}

void CChartLayoutDlg::ChooseSizePage() {
    constexpr int kXY = 1, kTypes = 6;
    const std::int32_t type = m_preview.m_ownLayout.m_chartType;
    m_tabs.Choose(type >= 0 && type < kTypes ? type : kXY);
}
