#pragma once
// The editor of one axis: a dialog without a preview.

#include "editors/framework/page_tabs.h"
#include "editors/xy/axis_pages.h"
#include "platform/widgets/dialog.h"

#include <charteditors/xy_axis.h>

class CAxisDlg : public CDialog {
public:
    enum Kind { X = 1, Y = 2, X2 = 4, Y2 = 8, Additional = 16 };

    CAxisDlg();

    // To be set before DoModal and read when it gives kOK.
    CXYChartAxis m_axis;           ///< The copy under edit.
    std::int32_t m_axisKind = 3;   ///< A Kind: which axis of the chart it is.
    std::int32_t m_axisCount = 0;  ///< How many additional axes the chart has, to follow one of them.
    std::int32_t m_syncIndex = -1; ///< The additional axis that is followed, -1 for none.

    /// The kind of scale has changed to another row, or been chosen anew.
    void ScaleTypeChosen();

protected:
    bool OnInitDialog() override;

private:
    CPageTabs m_tabs;
    CAxisGeneralPage m_general;
    CAxisTickPage m_ticks;
    CAxisScalePage m_scale;
    CAxisTitlePage m_title;
    CAxisLabelPage m_labels;
};
