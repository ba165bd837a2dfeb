#include "engine/axis/label_fit.h"

#include "engine/scale/label_thinning.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numbers>
#include <numeric>

namespace chartdraw {

LabelFit::LabelFit(const TextLook& look, const FontSet& fonts, bool upright) : m_upright(upright) {
    const double angle = look.angle * std::numbers::pi / 180;
    m_slant = std::abs(upright ? std::cos(angle) : std::sin(angle));
    m_lineHeight = TextBlock(look, "0", fonts).boxSize().height();
    const bool sideBySide = m_slant < 0.05; // labels follow each other end to start and want air between
    m_gap = sideBySide ? std::max(4.0, m_lineHeight * 0.4) : 1.0;
}

double LabelFit::halfExtent(const TextBlock& block) const {
    const QSize bounds = block.size();
    const double full = m_upright ? bounds.height() : bounds.width();
    return std::min(full, m_slant > 0.05 ? block.boxSize().height() / m_slant : full) / 2;
}

double LabelFit::wantedDistance(const std::vector<PlannedTick>& ticks, const AxisMap& map) const {
    double wanted = 0;
    const PlannedTick* before = nullptr;
    for (const PlannedTick& tick : ticks) {
        if (!tick.label) {
            continue;
        }
        if (before != nullptr) {
            const double room = halfExtent(*before->label) + halfExtent(*tick.label) + m_gap;
            if (std::abs(map.pixel(tick.value) - map.pixel(before->value)) < room) {
                wanted = std::max(wanted, room);
            }
        }
        before = &tick;
    }
    return wanted;
}

void LabelFit::thin(std::vector<PlannedTick>& ticks, const AxisMap& map, std::span<const int> ranks) const {
    if (wantedDistance(ticks, map) == 0) {
        return;
    }
    if (!ranks.empty()) {
        thinByRank(ticks, map, ranks);
        return;
    }
    std::vector<LabelExtent> extents;
    std::vector<PlannedTick*> labelled;
    for (PlannedTick& tick : ticks) {
        if (tick.label) {
            const double at = map.pixel(tick.value);
            const double half = halfExtent(*tick.label);
            extents.push_back({at - half, at + half});
            labelled.push_back(&tick);
        }
    }
    std::vector<bool> kept(labelled.size(), false);
    for (const int index : thinLabels(extents, m_gap, true)) {
        kept[static_cast<std::size_t>(index)] = true;
    }
    for (std::size_t i = 0; i < labelled.size(); ++i) {
        if (!kept[i]) {
            labelled[i]->label.reset();
            labelled[i]->text.clear();
        }
    }
}

void LabelFit::thinByRank(std::vector<PlannedTick>& ticks, const AxisMap& map,
                          std::span<const int> ranks) const {
    std::vector<std::size_t> order(ticks.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t a, std::size_t b) { return ranks[a] < ranks[b]; });
    std::map<double, double> taken; // from start to end of the room of each label kept
    for (const std::size_t i : order) {
        PlannedTick& tick = ticks[i];
        if (!tick.label) {
            continue;
        }
        const double at = map.pixel(tick.value);
        const double half = halfExtent(*tick.label) + m_gap / 2;
        const auto after = taken.lower_bound(at - half);
        const bool free = (after == taken.end() || after->first >= at + half) &&
                          (after == taken.begin() || std::prev(after)->second <= at - half);
        if (free) {
            taken.emplace(at - half, at + half);
        } else {
            tick.label.reset();
            tick.text.clear();
        }
    }
}

} // namespace chartdraw
