#include "engine/scale/label_thinning.h"

#include <algorithm>

namespace chartdraw {
namespace {

bool clash(const LabelExtent& a, const LabelExtent& b, double gap) {
    const auto [aFrom, aTo] = std::minmax(a.from, a.to);
    const auto [bFrom, bTo] = std::minmax(b.from, b.to);
    return aFrom < bTo + gap && bFrom < aTo + gap;
}

bool fits(std::span<const LabelExtent> labels, std::size_t step, double gap) {
    for (std::size_t i = step; i < labels.size(); i += step)
        if (clash(labels[i - step], labels[i], gap))
            return false;
    return true;
}

} // namespace

std::vector<int> thinLabels(std::span<const LabelExtent> labels, double minGap, bool keepEnds) {
    std::vector<int> kept;
    if (labels.empty())
        return kept;
    const std::size_t last = labels.size() - 1;
    std::size_t step = 1;
    while (!fits(labels, step, minGap))
        ++step;
    if (keepEnds) {
        for (std::size_t even = step; even <= std::min(2 * step, last); ++even) {
            if (last % even == 0 && fits(labels, even, minGap)) {
                step = even;
                break;
            }
        }
    }
    for (std::size_t i = 0; i <= last; i += step)
        kept.push_back(static_cast<int>(i));
    return kept;
}

} // namespace chartdraw
