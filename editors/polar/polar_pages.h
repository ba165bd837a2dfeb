#pragma once
// The pages of the polar chart editor. They edit the chart in place and tell `owner` of every change.

#include "editors/framework/form.h"

#include <charteditors/chart_layout.h>
#include <charteditors/polar_chart.h>

/// Grid, scale, backgrounds, and the list of layers.
class CPolarGeneralPage : public CDialog {
public:
    /// `layout`: what the layers' own editor draws its preview with.
    CPolarGeneralPage(CPolarChart& chart, const CChartLayout& layout, QWidget& owner);

private:
    void ScaleRows();
    void BackgroundRows();
    void GridRows();
    void LayerRows();
    /// Runs the editor for a copy of a layer, or for a new one (null). A clone of the result, null for
    /// Cancel.
    CPolarLayer* Edit(CPolarLayer* layer);

    CPolarChart& m_chart;
    const CChartLayout& m_layout;
    CForm m_form;
};

/// The texts around the chart and their looks.
class CPolarAngularLabelPage : public CDialog {
public:
    CPolarAngularLabelPage(CPolarChart& chart, QWidget& owner);

private:
    CForm m_form;
};

/// The looks of the labels along the radius.
class CPolarRadialLabelPage : public CDialog {
public:
    CPolarRadialLabelPage(CPolarChart& chart, QWidget& owner);

private:
    CForm m_form;
};

/// Zones between two angles.
class CPolarAngularZonePage : public CDialog {
public:
    CPolarAngularZonePage(CPolarChart& chart, QWidget& owner);

private:
    CForm m_form;
};

/// Zones between two radii.
class CPolarRadialZonePage : public CDialog {
public:
    CPolarRadialZonePage(CPolarChart& chart, QWidget& owner);

private:
    CForm m_form;
};
