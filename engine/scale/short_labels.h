#pragma once
// The numbers of an axis in a shorter form, for where their full form has no room.

#include <span>
#include <string>
#include <vector>

namespace chartdraw {

/// One form for all: by the thousand (k), million (M), billion (G) or trillion (T), or else with exponents.
/// `values` ascend in even steps, `span` is the length of the axis. The full form where nothing is shorter.
std::vector<std::string> shortLabels(std::span<const double> values, double span);

} // namespace chartdraw
