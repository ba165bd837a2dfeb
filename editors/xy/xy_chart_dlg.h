#pragma once
// The editor of XY charts: the chart in four pages, one axis and one layer in dialogs of their own.

#include "editors/framework/page_tabs.h"
#include "editors/preview/chart_preview_view.h"
#include "editors/xy/xy_pages.h"
#include "platform/widgets/dialog.h"

class CXYChartDlg : public CDialog {
public:
    CXYChartDlg();

    /// Takes copies of both.
    void SetObject(const CXYChart& chart, const CChartLayout& layout) { m_preview.SetChart(chart, layout); }
    /// The edited copy.
    const CXYChart& GetObject() const { return m_preview.m_ownXYChart; }

protected:
    bool OnInitDialog() override;
    void OnFieldChanged(int key) override;

private:
    CChartPreviewView m_preview;
    CPageTabs m_tabs;
    CXYLayerPage* m_layers = nullptr; ///< null until it is made
};
