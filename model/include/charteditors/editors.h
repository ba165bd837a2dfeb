#pragma once

/// @file
/// The seven editors.
///
/// Each function shows one modal dialog over a private copy of an object. If the user presses OK, the edited
/// copy replaces every field of the object and the function returns true: pointers into the object taken
/// before, to an axis, a layer or an element, are then dead. If the user cancels, or no dialog can be shown,
/// it returns false and the object is as it was. `layout` says how the finished chart is sized and dressed,
/// and is never changed.
///
/// To be called from the thread of the host's user interface, by one at a time. A host that has no
/// application object need not make one: the library does, once, and keeps it. One that has its own needs
/// it to be a QApplication, since a smaller one can show no dialog.

#include <charteditors/base.h>

class CAngularMeter;
class CChartLayout;
class CFinanceChart;
class CLinearMeter;
class CPieChart;
class CPolarChart;
class CXYChart;

/// Edits what all kinds of chart share. True when the user pressed OK.
CHARTEDITORS_API bool ShowChartLayoutWnd(CChartLayout& layout);
/// Edits an XY chart, its axes and layers. True when the user pressed OK.
CHARTEDITORS_API bool ShowXYChartWnd(CXYChart& chart, const CChartLayout& layout);
/// Edits a pie. True when the user pressed OK.
CHARTEDITORS_API bool ShowPieChartWnd(CPieChart& chart, const CChartLayout& layout);
/// Edits a finance chart and the order of its panes. True when the user pressed OK.
CHARTEDITORS_API bool ShowFinanceChartWnd(CFinanceChart& chart, const CChartLayout& layout);
/// Edits an angular meter. True when the user pressed OK.
CHARTEDITORS_API bool ShowAngularMeterWnd(CAngularMeter& meter, const CChartLayout& layout);
/// Edits a linear meter. True when the user pressed OK.
CHARTEDITORS_API bool ShowLinearMeterWnd(CLinearMeter& meter, const CChartLayout& layout);
/// Edits a polar chart and its layers. True when the user pressed OK.
CHARTEDITORS_API bool ShowPolarChartWnd(CPolarChart& chart, const CChartLayout& layout);
