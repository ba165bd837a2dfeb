#pragma once
// The editors of the two meters.

#include "editors/framework/page_tabs.h"
#include "editors/preview/chart_preview_view.h"

class CAngularMeterDlg : public CDialog {
public:
    CAngularMeterDlg();

    /// Takes copies of both.
    void SetObject(const CAngularMeter& meter, const CChartLayout& layout) {
        m_preview.SetChart(meter, layout);
    }
    /// The edited copy.
    const CAngularMeter& GetObject() const { return m_preview.m_ownAngularMeter; }

protected:
    bool OnInitDialog() override;
    void OnFieldChanged(int key) override;

private:
    CChartPreviewView m_preview;
    CPageTabs m_tabs;
};

class CLinearMeterDlg : public CDialog {
public:
    CLinearMeterDlg();

    /// Takes copies of both.
    void SetObject(const CLinearMeter& meter, const CChartLayout& layout) {
        m_preview.SetChart(meter, layout);
    }
    /// The edited copy.
    const CLinearMeter& GetObject() const { return m_preview.m_ownLinearMeter; }

protected:
    bool OnInitDialog() override;
    void OnFieldChanged(int key) override;

private:
    CChartPreviewView m_preview;
    CPageTabs m_tabs;
};
