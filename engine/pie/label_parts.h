#pragma once
// What both label layouts are made of.

#include "engine/pie/label_layout.h"

namespace chartdraw {

/// Indices of at most `most` spots, those of the largest weights, in their old order.
std::vector<std::size_t> heaviest(std::span<const SectorLabel> spots, std::size_t most);

/// Of two labels that cover one another, hides the one of less weight. The last resort.
void hideOverlaps(std::span<const SectorLabel> spots, std::vector<PlacedLabel>& labels);

/// Join lines for the labels that are wanted to have one. A label goes where its line would cross that of a
/// larger sector. Lines leave the rim for `stub` pixels; those that go round stand up to `room` farther out.
void addJoins(std::span<const SectorLabel> spots, std::vector<PlacedLabel>& labels, double stub, double room,
              const std::vector<bool>& wanted);

bool joinsCross(const std::vector<QPointF>& a, const std::vector<QPointF>& b);

/// More labels than this cannot be told apart in any picture.
constexpr std::size_t kMostLabels = 400;

} // namespace chartdraw
