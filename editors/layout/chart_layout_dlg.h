#pragma once
// The editor of chart layouts. A layout belongs to no kind of chart: the list above the preview chooses what
// the preview draws and which plot area is offered.

#include "editors/framework/form.h"
#include "editors/framework/page_tabs.h"
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
    /// Shows the page of the plot area that suits the chart type.
    void ChooseSizePage();

    CChartPreviewView m_preview;
    CForm m_form; ///< the list of chart types
    CPageTabs m_tabs;
};
