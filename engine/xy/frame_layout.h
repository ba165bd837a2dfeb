#pragma once
// Everything of an XY chart's picture that is found before something is drawn: what the axes show and where,
// and where the values of each layer stand.

#include "engine/axis/axis_layout.h"
#include "engine/xy/layer.h"

#include <vector>

namespace chartdraw {

class XYChart;

struct FrameLayout {
    QRect plot;                   ///< pixels of the plot area's front, the lines of its frame included
    int depth = 0;                ///< pixels from the front to the back wall, which stands at (depth, -depth)
    std::vector<AxisLayout> axes; ///< of XYChart::axes(), in their order
    std::vector<PlotFrame> layers; ///< of XYChart::layers(), in their order

    QPoint back() const { return {depth, -depth}; }
};

/// For a chart with a plot area.
///
/// An axis takes its limits from the layers bound to it and to the axes tied to it. A second or further axis
/// that nothing is bound to, and that has no limits or labels of its own, repeats the first axis of its
/// direction: what stands beside the plot area is then always true of it.
FrameLayout layoutFrame(const XYChart& chart);

} // namespace chartdraw
