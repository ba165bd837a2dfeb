#pragma once
// The numbers of an axis in a shorter form, for where their full form has no room.

#include <span>
#include <string>
#include <vector>

namespace chartdraw {

/// A power of a thousand and its letter.
struct ShortUnit {
    double size;
    const char* name;
};

/// The largest unit that is not above `value`: k, M, G or T; null below a thousand and from 1e15 on.
const ShortUnit* shortUnit(double value);

struct ShortLabels {
    std::vector<std::string> texts;
    /// What all of them are to be multiplied by, such as "\u00d710\u00b9\u2075"; empty: nothing.
    std::string factor;
};

/// One form for all: by the thousand (k), million (M), billion (G) or trillion (T), or else with exponents.
/// `values` ascend in even steps, `span` is the length of the axis. The full form where nothing is shorter.
/// `withFactor`: the power of ten may stand apart, told once, where that makes the labels shorter.
ShortLabels shortLabels(std::span<const double> values, double span, bool withFactor = false);

/// Whole numbers of five digits and more with their thousands grouped: "1,500,000"; empty where there are
/// none, or none such.
std::vector<std::string> groupedLabels(std::span<const double> values);

} // namespace chartdraw
