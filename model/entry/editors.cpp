// The entry functions, one line each. A kind whose dialog is not built yet reads as cancelled at once: the
// answer of a dialog that cannot be made. It becomes `return entry::RunEditor<CXYChartDlg>(chart, layout);`.

#include <charteditors/editors.h>

bool ShowChartLayoutWnd(CChartLayout&) {
    return false;
}

bool ShowXYChartWnd(CXYChart&, const CChartLayout&) {
    return false;
}

bool ShowPieChartWnd(CPieChart&, const CChartLayout&) {
    return false;
}

bool ShowFinanceChartWnd(CFinanceChart&, const CChartLayout&) {
    return false;
}

bool ShowAngularMeterWnd(CAngularMeter&, const CChartLayout&) {
    return false;
}

bool ShowLinearMeterWnd(CLinearMeter&, const CChartLayout&) {
    return false;
}

bool ShowPolarChartWnd(CPolarChart&, const CChartLayout&) {
    return false;
}
