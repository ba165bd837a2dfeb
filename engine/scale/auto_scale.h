#pragma once
// Automatic scales: limits for an axis from the range of the data that it shows.

#include "engine/scale/scale.h"
#include "engine/scale/ticks.h"

#include <span>

namespace chartdraw {

/// The range of the values that an axis shows. Add values and other ranges; gaps (NaN, infinities, missing)
/// are passed over.
struct DataRange {
    double min = 0;
    double max = 0;
    double minPositive = 0; ///< smallest value above 0; 0 if there is none
    bool empty = true;
    bool gaps = false; ///< whether any were passed over

    void add(double value);
    void add(std::span<const double> values);
    void add(const DataRange& other);
};

/// How limits are found.
///
/// Extensions: the part of the axis, 0 to 1, that is kept free above and below the data (both together at
/// most 0.9). An extension never crosses zero: where all data lie on one side of zero, so does the axis.
///
/// Zero affinity: how gladly zero is shown, 0 to 1. Zero is included where the data would still fill 1 minus
/// this part of an axis that begins at zero: with 0.8, data from 70 to 100 give an axis from 0 and data from
/// 90 to 100 do not. 0: only where the data would fill it all; 1: always.
struct AutoScale {
    double topExtension = 0.1;
    double bottomExtension = 0.1;
    double zeroAffinity = 0;
    bool includeZero = false; ///< zero is always shown: bars, areas
    bool symmetric = false;   ///< limits of equal size on both sides of zero
};

/// Limits on multiples of the major step that linearTicks finds with the same density. Constant data stand in
/// the middle of a tenth of their size to either side; no data give 0 to 1. Data are limited to +-1e306.
Scale autoLinearScale(const DataRange& data, const AutoScale& options, const Density& density);

/// Limits at whole decades where the data span three or more, at 1, 2 or 5 times a power of ten from one
/// decade up, and on linear steps below that. Values at or below 0 do not count; none above 0 give 1 to 10.
/// Extensions are parts of the axis as drawn; zero affinity, zero and symmetry have no meaning here.
Scale autoLogScale(const DataRange& data, const AutoScale& options, const Density& density);

/// The limits of the data themselves, with the extensions. Chart time as told at ScaleKind::Date; no data
/// give the first day of the year 2000.
Scale autoDateScale(const DataRange& data, const AutoScale& options);

} // namespace chartdraw
