#pragma once
// Which labels of an axis are shown, packed into one int so that it can be kept and passed about as a number.
//
// Where the bare number of a list's row, 0 to 7, stands in place of a packed filter, it means the type of
// that row with step 1 and no margin. Packed filters carry a mark and never look like one of these numbers.

namespace chartdraw {

enum class FilterType {
    StartOfHour = 1,
    StartOfDay,
    StartOfWeek,
    StartOfMonth,
    StartOfYear,
    RegularSpacing,
    AllPass,
    NonePass,
};

struct LabelFilter {
    FilterType type = FilterType::NonePass;
    int step = 1;             ///< Every n-th label that passes, 1 to 4095.
    double initialMargin = 0; ///< Part of a period by which the axis's first label may be late, 0 to 1.

    bool operator==(const LabelFilter&) const = default;
};

/// Packs a filter. An unknown type is NonePass; step and margin are limited to their ranges, and the margin
/// is kept to the nearest 0.0001.
int encodeFilter(int type, int labelStep, double initialMargin);

/// Unpacks a filter; a number that is neither a packed filter nor a row is NonePass.
LabelFilter decodeFilter(int filter);

} // namespace chartdraw
