#pragma once
// The editor of polar charts: the chart in five pages, one layer in a dialog of its own.

#include "editors/framework/page_tabs.h"
#include "editors/preview/chart_preview_view.h"
#include "platform/widgets/dialog.h"

class CPolarChartDlg : public CDialog {
public:
    CPolarChartDlg();

    /// Takes copies of both.
    void SetObject(const CPolarChart& chart, const CChartLayout& layout) {
        m_preview.SetChart(chart, layout);
    }
    /// The edited copy.
    const CPolarChart& GetObject() const { return m_preview.m_ownPolarChart; }

protected:
    bool OnInitDialog() override;
    void OnFieldChanged(int key) override;

private:
    CChartPreviewView m_preview;
    CPageTabs m_tabs;
};
