#pragma once
// What an axis shows of the data: limits, ticks and labels, found together, because limits stand on ticks and
// ticks make room for labels. Fractions run from 0 at the lower limit to 1 at the upper one; no pixels yet.

#include "engine/axis/axis.h"
#include "engine/axis/axis_map.h"
#include "engine/scale/format.h"
#include "engine/scale/scale.h"
#include "engine/text/text_block.h"

#include <optional>
#include <span>

namespace chartdraw {

/// What the chart knows of an axis's data.
struct AxisRequest {
    DataRange data;           ///< of all that is shown on the axis
    DataRange whole;          ///< of data with nothing to be kept free beyond them: percentages
    bool includeZero = false; ///< bars and areas stand on 0
    bool symmetric = false;   ///< 0 in the middle, with limits from the data
    /// Rows shown, for an axis without a numeric scale: the rows first to first + count - 1 of the data stand
    /// at 0 to count - 1. A count of 0: the data have values of their own in this direction.
    int firstRow = 0, rowCount = 0;
    bool indent = false;  ///< half a row free at the ends, if the axis does not say
    double length = 100;  ///< pixels between the ends of the scale, its margins taken off
    bool upright = false; ///< labels stand above each other, not side by side
    double labelRoom = 0; ///< pixels that a label may reach away from the line; 0: any
    /// For a tied axis: the axis at the end of the chain, its scale, and the tie from end to end. An axis
    /// tied one to one shows what that axis shows, with looks and formats of its own where it has any.
    const Axis* root = nullptr;
    Scale rootScale;
    double slope = 1, intercept = 0;
};

struct PlannedTick {
    double value = 0; ///< on this axis; the row number on an axis of rows
    bool major = true;
    std::string text;               ///< of the label, empty where there is none
    std::optional<TextBlock> label; ///< laid out, where there is a text

    void dropLabel() {
        label.reset();
        text.clear();
    }
};

struct AxisPlan {
    Scale scale; ///< of the axis, or of the one that it is tied to
    double slope = 1, intercept = 0;
    std::vector<PlannedTick> ticks; ///< major ones first, each sort ascending by value
    std::string factor;             ///< by which the labels are to be multiplied, told once; empty: none

    /// The map with the limits at these positions.
    AxisMap map(double lowerPixel, double upperPixel) const;
};

/// Whether the axis shows rows: it has labels, or neither it nor its data say anything else.
bool showsRows(const Axis& axis, int rowCount);

/// Labels never lie over each other: ticks stand wider apart until labels fit, and where that is not free (or
/// not enough) labels are left out, those at the ends last. Where the room is too narrow for the numbers of
/// an axis all of them take a shorter form, and names are wrapped or shortened.
AxisPlan planAxis(const Axis& axis, const AxisRequest& request);

/// The values behind the labels of rows and the texts that they have: by the format that the rows were given
/// with, or else dates where all of them look like chart times, or numbers. Refers to the values.
class RowTexts {
public:
    explicit RowTexts(std::span<const double> values, std::string_view format = {});
    /// The row's own number past the end of the values.
    double value(std::size_t row) const;
    std::string text(std::size_t row) const;

private:
    std::string plainText(std::size_t row) const;

    std::span<const double> m_values;
    std::string_view m_dateSpec; ///< empty for numbers
    Format m_format;             ///< empty: none
};

} // namespace chartdraw
