#pragma once
// The axes of an XY chart.

#include <chartdraw/surface.h>
#include <charteditors/xy_chart.h>
#include <vector>

/// The axes of a chart that is being drawn.
struct XYAxes {
    XYChart* chart;
    BaseChart* base; // the same chart
    const CXYChart& look;
    std::vector<Axis*> additional; ///< Of each axis of the model's m_axes, in their order.

    /// The axis that stands for one of the model's additional axes; null if it is none of them.
    Axis* Find(const CXYChartAxis* axis) const;
};

/// Gives an axis the looks and the scale of the model's.
void DrawAxis(BaseChart* chart, Axis* axis, const CXYChartAxis& look);

/// Ties an axis that has no scale of its own to the one that its model names.
void SyncAxis(const XYAxes& axes, Axis* axis, const CXYChartAxis& look);
