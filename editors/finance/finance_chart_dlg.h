#pragma once
// The editor of finance charts: a page a pane, and the order of the panes.

#include "editors/framework/form.h"
#include "editors/framework/page_tabs.h"
#include "editors/preview/chart_preview_view.h"

#include <vector>

class QListWidget;

class CFinanceChartDlg : public CDialog {
public:
    CFinanceChartDlg();

    /// Takes copies of both.
    void SetObject(const CFinanceChart& chart, const CChartLayout& layout) {
        m_preview.SetChart(chart, layout);
    }
    /// The edited copy.
    const CFinanceChart& GetObject() const { return m_preview.m_ownFinanceChart; }

protected:
    bool OnInitDialog() override;
    void OnFieldChanged(int key) override;

private:
    CFinanceChart& Chart() { return m_preview.m_ownFinanceChart; }
    void TableOfOrder();
    void FillOrder();
    /// The place in the chart's order of the selected row; without one a warning and -1.
    int SelectedPlace();
    /// Lets the selected pane change places with its neighbour above (-1) or below (1); from an end with that
    /// at the other end.
    void Move(int direction);
    void Jump();

    CChartPreviewView m_preview;
    CPageTabs m_tabs;
    CForm m_order;
    QListWidget* m_panes;
    std::vector<int> m_places; ///< of the rows, in the chart's order
};
