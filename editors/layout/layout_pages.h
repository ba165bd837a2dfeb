#pragma once
// The pages that edit what all charts share. Changes go into the layout at once and are told to `owner`.

#include "editors/framework/form.h"

#include <charteditors/chart_layout.h>

/// Background, frame, font and tool tip.
class CLayoutGeneralPage : public CDialog {
public:
    CLayoutGeneralPage(CChartLayout& layout, QWidget& owner);

private:
    CForm m_form;
};

/// The list of titles.
class CLayoutTitlePage : public CDialog {
public:
    CLayoutTitlePage(CChartLayout& layout, QWidget& owner);

private:
    CForm m_form;
};

/// The labels at the data.
class CLayoutLabelPage : public CDialog {
public:
    CLayoutLabelPage(CChartLayout& layout, QWidget& owner);

private:
    CForm m_form;
};

/// The legend.
class CLayoutLegendPage : public CDialog {
public:
    CLayoutLegendPage(CChartLayout& layout, QWidget& owner);

private:
    CForm m_form;
};
