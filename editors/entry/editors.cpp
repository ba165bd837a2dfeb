// The entry functions, one line each.

#include "editors/entry/run_editor.h"
#include "editors/finance/finance_chart_dlg.h"
#include "editors/layout/chart_layout_dlg.h"
#include "editors/meter/meter_dlgs.h"
#include "editors/pie/pie_chart_dlg.h"
#include "editors/polar/polar_chart_dlg.h"
#include "editors/xy/xy_chart_dlg.h"
#include <charteditors/editors.h>

bool ShowChartLayoutWnd(CChartLayout& layout) {
    return entry::RunEditor<CChartLayoutDlg>(layout);
}

bool ShowXYChartWnd(CXYChart& chart, const CChartLayout& layout) {
    return entry::RunEditor<CXYChartDlg>(chart, layout);
}

bool ShowPieChartWnd(CPieChart& chart, const CChartLayout& layout) {
    return entry::RunEditor<CPieChartDlg>(chart, layout);
}

bool ShowFinanceChartWnd(CFinanceChart& chart, const CChartLayout& layout) {
    return entry::RunEditor<CFinanceChartDlg>(chart, layout);
}

bool ShowAngularMeterWnd(CAngularMeter& meter, const CChartLayout& layout) {
    return entry::RunEditor<CAngularMeterDlg>(meter, layout);
}

bool ShowLinearMeterWnd(CLinearMeter& meter, const CChartLayout& layout) {
    return entry::RunEditor<CLinearMeterDlg>(meter, layout);
}

bool ShowPolarChartWnd(CPolarChart& chart, const CChartLayout& layout) {
    return entry::RunEditor<CPolarChartDlg>(chart, layout);
}
