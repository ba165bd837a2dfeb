#pragma once
// What both label layouts are made of.

#include "engine/pie/label_layout.h"

namespace chartdraw {

/// Indices of at most `most` spots, those of the largest weights, in their old order.
std::vector<std::size_t> heaviest(std::span<const SectorLabel> spots, std::size_t most);

/// Of two labels that cover one another, hides the one of less weight. The last resort.
void hideOverlaps(std::span<const SectorLabel> spots, std::vector<PlacedLabel>& labels);

/// The line from the rim to the label's box: to the middle of its near side after one bend, or straight to
/// its lower or upper side. It does not run through the spot's ellipse if there is any way around.
std::vector<QPointF> joinLine(const SectorLabel& spot, const QRectF& box);

/// More labels than this cannot be told apart in any picture.
constexpr std::size_t kMostLabels = 400;

} // namespace chartdraw
