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
/// between any two; the first one is always kept. With `keepEnds` an n of up to twice that
/// is preferred that reaches the last one too: gaps are even in any case. Extents that are no numbers count
/// as in nobody's way.
std::vector<int> thinLabels(std::span<const LabelExtent> labels, double minGap, bool keepEnds);

} // namespace chartdraw
