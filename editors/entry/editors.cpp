// The entry functions, one line each. A kind whose dialog is not built yet reads as cancelled at once: the
// answer of a dialog that cannot be made. It becomes `return entry::RunEditor<CPolarChartDlg>(chart,
// layout);`.

#include "editors/entry/run_editor.h"
#include "editors/finance/finance_chart_dlg.h"
#include "editors/pie/pie_chart_dlg.h"
#include "editors/polar/polar_chart_dlg.h"
#include "editors/xy/xy_chart_dlg.h"
#include <charteditors/editors.h>

bool ShowChartLayoutWnd(CChartLayout&) {
    return false;
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

bool ShowAngularMeterWnd(CAngularMeter&, const CChartLayout&) {
    return false;
}

bool ShowLinearMeterWnd(CLinearMeter&, const CChartLayout&) {
    return false;
}

bool ShowPolarChartWnd(CPolarChart& chart, const CChartLayout& layout) {
    return entry::RunEditor<CPolarChartDlg>(chart, layout);
}
