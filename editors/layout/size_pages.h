#pragma once
// The six pages that place a plot area in the picture, one for each kind of chart. The layout dialog shows
// the one that suits its chart type. Changes go into the layout at once and are told to `owner`.

#include "editors/framework/form.h"

#include <charteditors/chart_layout.h>

/// Centre and radius of a pie chart.
class CPieSizePage : public CDialog {
public:
    CPieSizePage(CChartLayout& layout, QWidget& owner);

private:
    CForm m_form;
};

/// Centre and radius of a polar chart.
class CPolarSizePage : public CDialog {
public:
    CPolarSizePage(CChartLayout& layout, QWidget& owner);

private:
    CForm m_form;
};

/// Centre, radius and angles of an angular meter.
class CAngularSizePage : public CDialog {
public:
    CAngularSizePage(CChartLayout& layout, QWidget& owner);

private:
    CForm m_form;
};

/// The plot area of an XY chart.
class CXYSizePage : public CDialog {
public:
    CXYSizePage(CChartLayout& layout, QWidget& owner);

private:
    CForm m_form;
};

/// The width of a finance chart.
class CFinanceSizePage : public CDialog {
public:
    CFinanceSizePage(CChartLayout& layout, QWidget& owner);

private:
    CForm m_form;
};

/// The scale of a linear meter.
class CLinearSizePage : public CDialog {
public:
    CLinearSizePage(CChartLayout& layout, QWidget& owner);

private:
    CForm m_form;
};
