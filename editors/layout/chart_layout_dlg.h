#pragma once
// The editor of chart layouts. A layout belongs to no kind of chart: the list above the preview chooses what
// the preview draws and which plot area is offered.

#include "editors/framework/page_tabs.h"
#include "editors/layout/layout_pages.h"
#include "editors/layout/size_pages.h"
#include "editors/preview/chart_preview_view.h"

class CChartLayoutDlg : public CDialog {
public:
    CChartLayoutDlg();

    /// Takes a copy.
    void SetObject(const CChartLayout& layout) { m_preview.SetLayout(layout); }
    /// The edited copy.
    const CChartLayout& GetObject() const { return m_preview.m_ownLayout; }

protected:
    bool OnInitDialog() override;
    void OnFieldChanged(int key) override;

private:
    /// The page of the plot area that suits the chart type.
    CDialog& SizePage();

    CChartPreviewView m_preview;
    CForm m_form; ///< the list of chart types
    CPageTabs m_tabs;
    CLayoutGeneralPage m_general;
    CLayoutTitlePage m_titles;
    CLayoutLabelPage m_labels;
    CLayoutLegendPage m_legend;
    CAngularSizePage m_angularSize;
    CFinanceSizePage m_financeSize;
    CLinearSizePage m_linearSize;
    CPieSizePage m_pieSize;
    CPolarSizePage m_polarSize;
    CXYSizePage m_xySize;
};
