#pragma once
// Whether labels have room beside each other along an axis, and which of them stay where they have not.

#include "engine/axis/axis_plan.h"

namespace chartdraw {

class LabelFit {
public:
    /// `look` of the labels; `upright`: along an upright axis.
    LabelFit(const TextLook& look, const FontSet& fonts, bool upright);

    /// The most that a label reaches away from the line.
    double widest(const std::vector<PlannedTick>& ticks) const;
    /// The same of one label.
    double reach(const TextBlock& label) const {
        return m_upright ? label.size().width() : label.size().height();
    }
    /// Whether a shorter text reaches less far; not where labels run along the axis.
    bool reachesByLength() const { return m_slant > 0.05; }
    /// Whether labels lie along the axis's own direction of reading, so that a long one can be wrapped.
    bool wraps() const { return m_upright && m_slant > 0.999; }
    /// Whether labels follow each other end to start.
    bool sideBySide() const { return !m_upright && m_slant < 0.05; }
    /// Pixels that two labels keep between them.
    double gap() const { return m_gap; }
    /// Pixels of a label of one line.
    double lineHeight() const { return m_lineHeight; }
    /// The distance that the labels' ticks want for all to have room; 0 if they have it. `ticks` ascending,
    /// `map` their positions.
    double wantedDistance(const std::vector<PlannedTick>& ticks, const AxisMap& map) const;
    /// Takes away labels (not ticks) until none touches another; the ends stay if they can. Labels with a
    /// lower rank go first to the room, if ranks are given (one a tick).
    void thin(std::vector<PlannedTick>& ticks, const AxisMap& map, std::span<const int> ranks = {}) const;

private:
    /// Half the pixels along the axis that each tick's label takes, 0 without one. Slanted labels hang from
    /// their ticks side by side: each takes the same room, that of its line height or of the longest label.
    std::vector<double> halfExtents(const std::vector<PlannedTick>& ticks) const;
    void thinByRank(std::vector<PlannedTick>& ticks, const AxisMap& map, std::span<const int> ranks) const;

    bool m_upright;
    double m_slant; ///< part of the line height that a label takes along the axis; 0: its bounds count
    double m_lineHeight;
    double m_gap;
};

} // namespace chartdraw
