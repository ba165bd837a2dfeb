#pragma once
// The pages of the XY editor. They edit the working copy of the chart and tell `owner` of every change.

#include "editors/framework/form.h"

#include <charteditors/chart_layout.h>
#include <charteditors/xy_chart.h>

/// Grid lines and the outline of the plot area.
class CXYGeneralPage : public CDialog {
public:
    CXYGeneralPage(CXYChart& chart, QWidget& owner);

private:
    CForm m_form;
};

/// What lies behind the plot area.
class CXYBackgroundPage : public CDialog {
public:
    CXYBackgroundPage(CXYChart& chart, QWidget& owner);

private:
    CForm m_form;
};

/// The four standing axes and the list of additional ones.
class CXYAxisPage : public CDialog {
public:
    /// `axesChanged` is called after any change in the set of additional axes.
    CXYAxisPage(CXYChart& chart, QWidget& owner, std::function<void()> axesChanged);

private:
    void EditPrimary(CXYChartAxis& axis, int kind);
    /// Runs the dialog for an axis that can follow another one; false when it was cancelled.
    bool EditFollower(CXYChartAxis& axis, int kind);
    CObjects Axes();
    void SetChanged();

    CXYChart& m_chart;
    std::function<void()> m_axesChanged;
    CForm m_form;
};

/// Depth, the list of layers, and the axis of the selected layer.
class CXYLayerPage : public CDialog {
public:
    CXYLayerPage(CXYChart& chart, const CChartLayout& layout, QWidget& owner);

    /// Shows the additional axes and the selected layer's axis anew.
    void ShowAxes();

private:
    CObjects Layers();
    /// Runs the dialog for a copy of `layer`, or for a new one; null when it was cancelled, else the
    /// caller's.
    CXYChartLayer* Edit(CXYChartLayer* layer);
    void AxisRows();

    CXYChart& m_chart;
    const CChartLayout& m_layout;
    CForm m_form;
    CObjectList* m_layers;
};
