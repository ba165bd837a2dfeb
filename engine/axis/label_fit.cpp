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

double LabelFit::widest(const std::vector<PlannedTick>& ticks) const {
    double most = 0;
    for (const PlannedTick& tick : ticks)
        most = tick.label ? std::max(most, reach(*tick.label)) : most;
    return most;
}

std::vector<double> LabelFit::halfExtents(const std::vector<PlannedTick>& ticks) const {
    std::vector<double> result(ticks.size(), 0);
    double longest = 0, strip = 0;
    for (std::size_t i = 0; i < ticks.size(); ++i) {
        if (ticks[i].label) {
            const QSize bounds = ticks[i].label->size();
            result[i] = (m_upright ? bounds.height() : bounds.width()) / 2.0;
            longest = std::max(longest, 2 * result[i]);
            strip = std::max(strip, ticks[i].label->boxSize().height() / std::max(m_slant, 0.01));
        }
    }
    const bool slanted = m_slant > 0.05 && m_slant < 0.999;
    if (slanted)
        std::fill(result.begin(), result.end(), std::min(longest, strip) / 2);
    return result;
}

double LabelFit::wantedDistance(const std::vector<PlannedTick>& ticks, const AxisMap& map) const {
    const std::vector<double> halves = halfExtents(ticks);
    double wanted = 0;
    std::size_t before = ticks.size();
    for (std::size_t i = 0; i < ticks.size(); ++i) {
        if (!ticks[i].label)
            continue;
        if (before < i) {
            const double room = halves[before] + halves[i] + m_gap;
            if (std::abs(map.pixel(ticks[i].value) - map.pixel(ticks[before].value)) < room)
                wanted = std::max(wanted, room);
        }
        before = i;
    }
    return wanted;
}

void LabelFit::thin(std::vector<PlannedTick>& ticks, const AxisMap& map, std::span<const int> ranks) const {
    if (wantedDistance(ticks, map) == 0)
        return;
    if (!ranks.empty()) {
        thinByRank(ticks, map, ranks);
        return;
    }
    const std::vector<double> halves = halfExtents(ticks);
    std::vector<LabelExtent> extents;
    std::vector<PlannedTick*> labelled;
    for (std::size_t i = 0; i < ticks.size(); ++i) {
        if (ticks[i].label) {
            const double at = map.pixel(ticks[i].value);
            extents.push_back({at - halves[i], at + halves[i]});
            labelled.push_back(&ticks[i]);
        }
    }
    std::vector<bool> kept(labelled.size(), false);
    for (const int index : thinLabels(extents, m_gap, true))
        kept[static_cast<std::size_t>(index)] = true;
    for (std::size_t i = 0; i < labelled.size(); ++i)
        if (!kept[i])
            labelled[i]->dropLabel();
}

void LabelFit::thinByRank(std::vector<PlannedTick>& ticks, const AxisMap& map,
                          std::span<const int> ranks) const {
    std::vector<std::size_t> order(ticks.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t a, std::size_t b) { return ranks[a] < ranks[b]; });
    const std::vector<double> halves = halfExtents(ticks);
    std::map<double, double> taken; // from start to end of the room of each label kept
    for (const std::size_t i : order) {
        PlannedTick& tick = ticks[i];
        if (!tick.label)
            continue;
        const double at = map.pixel(tick.value);
        const double half = halves[i] + m_gap / 2;
        const auto after = taken.lower_bound(at - half);
        const bool free = (after == taken.end() || after->first >= at + half) &&
                          (after == taken.begin() || std::prev(after)->second <= at - half);
        if (free)
            taken.emplace(at - half, at + half);
        else
            tick.dropLabel();
    }
}

} // namespace chartdraw
