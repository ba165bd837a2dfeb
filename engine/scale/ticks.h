#pragma once
// Where the ticks of a scale stand and what their labels say. All functions answer at once and with at most
// one tick for every two pixels of the axis, whatever they are given.
//
// A label that proves too long for the spacing found is met by asking again with a wider `majorPx` (longer
// spacing first), and by label_thinning.h for what is still left.

#include "engine/scale/scale.h"

#include <string>
#include <vector>

namespace chartdraw {

struct Tick {
    double value = 0;
    std::string label; ///< the text shown where the axis's format gives no form of its own
};

/// Ticks between the limits, ascending. No value stands in two lists.
struct Ticks {
    std::vector<Tick> major;
    std::vector<double> minor;
    std::vector<double> micro;
};

/// Distances between ticks in units of the scale, for dates in seconds. A major one that is not above 0 (or
/// no finite number) is found automatically; ticks then stand at multiples of a round step or at borders of
/// the calendar. Given distances are counted from the lower limit. A minor or micro one that is not above 0
/// means no such ticks, unless the density asks for minor ones. Ticks that would stand closer than two pixels
/// are spaced by a multiple of what was given: major ones as far apart as automatic ones (for dates they are
/// automatic), others at two pixels or more. Log scales take no distances.
struct Increments {
    double major = 0;
    double minor = 0;
    double micro = 0;
};

/// How dense ticks may stand, in pixels.
struct Density {
    double lengthPx = 300; ///< length of the axis; limited to 1..100,000
    double majorPx = 0;    ///< least distance of automatic major ticks; 0 or less: 32, for dates 50
    double minorPx = -1;   ///< least distance of automatic minor ticks; 0 or less: none
};

/// Ticks of any scale, by its kind. For items: one major tick an item, thinned as a linear scale with whole
/// steps, labelled with the item's number.
Ticks makeTicks(const Scale& scale, const Increments& increments, const Density& density);

Ticks linearTicks(const Scale& scale, const Increments& increments, const Density& density);

/// Decades, every n-th one where they are many. Where decades are far apart, 1, 2 and 5 of each are major
/// ticks too; where less than a decade shows, or they are very far apart, a linear step is. Other multiples
/// of the decades are minor ticks if `minorPx` asks for them and they fit.
Ticks logTicks(const Scale& scale, const Density& density);

/// Automatic ticks stand at borders of the calendar: every 1, 2, 5, 10... years, quarters, months, Mondays,
/// days, 12, 6, 3 or 1 hours, 30, 15, 10, 5 or 1 minutes, seconds, fractions of seconds. Labels have a second
/// line with the larger unit (the year under months and days, the day under times) at the first label and
/// wherever that unit changes.
Ticks dateTicks(const Scale& scale, const Increments& increments, const Density& density);

} // namespace chartdraw
