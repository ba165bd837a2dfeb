#pragma once
// The editor of pie charts: one dialog without pages, its controls beside the preview.

#include "editors/framework/form.h"
#include "editors/preview/chart_preview_view.h"
#include "platform/widgets/dialog.h"

class CPieChartDlg : public CDialog {
public:
    CPieChartDlg();

    /// Takes copies of both.
    void SetObject(const CPieChart& chart, const CChartLayout& layout) { m_preview.SetChart(chart, layout); }
    /// The edited copy.
    const CPieChart& GetObject() const { return m_preview.m_ownPieChart; }

protected:
    bool OnInitDialog() override;

private:
    void TableOfChart(CPieChart& chart);
    void TableOfSectors(CPieChart& chart);

    CChartPreviewView m_preview;
    CForm m_form;
};
