#pragma once
// The editors of the two meters.

#include "editors/framework/page_tabs.h"
#include "editors/meter/meter_pages.h"
#include "editors/meter/ring_and_zone_pages.h"
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
    CMeterGeneralPage m_general;
    CMeterPointerPage m_pointers;
    CAngularRingPage m_rings;
    CAngularZonePage m_zones;
    CMeterTextPage m_texts;
    CMeterLabelPage m_labels;
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
    CMeterGeneralPage m_general;
    CMeterPointerPage m_pointers;
    CLinearZonePage m_zones;
    CMeterTextPage m_texts;
    CMeterLabelPage m_labels;
};
