#pragma once
// Labels of an axis of items, such as the days of a price chart: which items get a label, in which format,
// and which only a tick. Rules are tried in their order; the first whose filter passes an item takes it.

#include "engine/data/label_filter.h"

#include <span>
#include <vector>

namespace chartdraw {

/// One rule: a filter and how its labels are spread. The rule's number, its place in the list, tells the
/// caller the format; an empty format means the axis's own.
struct LabelRule {
    /// The start filters pass an item when a unit of the calendar (hour, day, week from Monday, month, year)
    /// begins between the item before and this one. With a step of n only every n-th unit counts, counted in
    /// the next larger one: hours of the day, days and months from the first of the month and of the year,
    /// weeks and years throughout; so months in steps of 3 are January, April, July and October. The first
    /// item shown also passes when no more than the initial margin, a fraction of the unit, has gone by.
    /// RegularSpacing and AllPass pass every n-th item from the first one shown, NonePass none.
    LabelFilter filter;
    /// Least number of items from a label to the next; 1 or less: no limit. Labels of an earlier rule stand,
    /// and those of a later one keep away from them on both sides.
    int labelSpan = 1;
    /// Whether the first label of all, if this rule or the next one gave it, is formatted by this rule: so
    /// the first month shown names the year that else only January names.
    bool promoteFirst = false;
    /// The format is "-": the items get a tick and no label, and keep no distance from labels.
    bool tickOnly = false;
    /// The format is empty. A rule with the filter NonePass and no format is as good as none.
    bool emptyFormat = false;
};

/// An item that has a tick.
struct PickedLabel {
    static constexpr int kAxisFormat = -1; ///< there are no rules: the axis's own format
    static constexpr int kTickOnly = -2;   ///< no label

    int index = 0;
    int rule = kAxisFormat; ///< the number of the rule that formats it, or one of the constants

    bool operator==(const PickedLabel&) const = default;
};

/// The ticks and labels of the items [first, first + count) of `times` (chart times, seconds since 1 January
/// of year 1, ascending; others are compared as they stand, and what is no number begins nothing), in
/// ascending order. The range is cut to what is there. The item before `first`, where there is one, tells
/// whether a unit begins at `first`. Without rules every item has a label in the axis's own format.
std::vector<PickedLabel> pickLabels(std::span<const double> times, int first, int count,
                                    std::span<const LabelRule> rules);

} // namespace chartdraw
