#pragma once
// Which of the labels along an axis can be shown without one over another.

#include <span>
#include <vector>

namespace chartdraw {

/// The room that a label takes along the axis, in pixels, in either order of its ends.
struct LabelExtent {
    double from = 0;
    double to = 0;
};

/// The indices of the labels to show, ascending. Labels are given in the order of the axis, upward or
/// downward in pixels. Every n-th label is kept, n being the smallest that leaves at least `minGap` pixels
/// between any two; the first one is always kept. With `keepEnds` the last one is too: a step that reaches it
/// evenly is preferred (up to twice the smallest), else the labels before it that are in its way go; if only
/// one of both ends has room, the first stays. Extents that are no numbers count as in nobody's way.
std::vector<int> thinLabels(std::span<const LabelExtent> labels, double minGap, bool keepEnds);

} // namespace chartdraw
