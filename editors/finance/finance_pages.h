#pragma once
// The pages of the finance editor, one a pane. Each edits the chart that it is given and tells `owner`.

#include "editors/framework/form.h"
#include <charteditors/finance_chart.h>

class CFinanceMainPage : public CDialog {
public:
    CFinanceMainPage(CFinanceChart& chart, QWidget& owner);

private:
    void TableOfPrices(CFinanceChart& chart);
    void TableOfOverlays(CFinanceChart& chart);

    CForm m_form;
};

class CFinanceRsiPage : public CDialog {
public:
    CFinanceRsiPage(CFinanceChart& chart, QWidget& owner);

private:
    CForm m_form;
};

class CFinanceMomentumPage : public CDialog {
public:
    CFinanceMomentumPage(CFinanceChart& chart, QWidget& owner);

private:
    CForm m_form;
};

class CFinanceStochasticPage : public CDialog {
public:
    CFinanceStochasticPage(CFinanceChart& chart, QWidget& owner);

private:
    CForm m_form;
};

class CFinanceMacdPage : public CDialog {
public:
    CFinanceMacdPage(CFinanceChart& chart, QWidget& owner);

private:
    CForm m_form;
};
