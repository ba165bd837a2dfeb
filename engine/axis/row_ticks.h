#pragma once
// Ticks and labels of an axis of rows, and of any axis whose labels are chosen by rules.

#include "engine/axis/axis_plan.h"
#include "engine/axis/label_fit.h"
#include "engine/scale/format.h"
#include "engine/scale/label_picker.h"

#include <span>
#include <string>
#include <vector>

namespace chartdraw {

/// What the labels of an axis are made of; refers to the axis that they come from.
struct RowContent {
    std::span<const double> labels; ///< empty: rows show their number
    std::string_view rowFormat;     ///< how the labels are shown, before `format`
    std::string format;
    std::span<const FormatRule> rules;
};

/// Whether the rules choose anything at all.
bool hasRules(std::span<const FormatRule> rules);

class LabelMaker {
public:
    LabelMaker(const Axis& axis, const RowContent& content);

    const Axis& axis() const { return m_axis; }
    const RowContent& content() const { return m_content; }
    std::vector<PickedLabel> pick(std::span<const double> times, int first, int count) const;
    /// A major tick at `position`. `value` and `shown`, its text without a format, go into the format of the
    /// rule (or the axis's own); the format "-" gives no label.
    PlannedTick tick(double position, double value, std::string_view shown, int rule) const;
    /// Breaks a label into lines of `room` pixels, if that makes it fit.
    bool wrap(PlannedTick& tick, const LabelFit& fit, double room) const;
    /// Makes a label reach no farther than `room` from the line, and be no higher than `pitch` where it is
    /// wrapped for that.
    void shorten(PlannedTick& tick, const LabelFit& fit, double room, double pitch) const;

    /// Breaks names that stand side by side into lines of `width` pixels, or ends them in an ellipsis where
    /// there is some width for that; `room` as above. Otherwise they stay as they are.
    void fitNames(std::vector<PlannedTick>& ticks, const LabelFit& fit, double room, double width) const;

private:
    const Axis& m_axis;
    const RowContent& m_content;
    Format m_format;
    std::vector<Format> m_ruleFormats;
    std::vector<LabelRule> m_rules;
};

struct RowSpan {
    int first = 0, count = 0;
};

/// The ticks of the rows, thinned so that labels have room and ticks do not run into a bar of colour. A label
/// that reaches farther than `room` pixels from the line is wrapped or ends in an ellipsis; 0: any does.
void addRowTicks(std::vector<PlannedTick>& ticks, const LabelMaker& maker, RowSpan rows, const AxisMap& map,
                 const LabelFit& fit, double room);

} // namespace chartdraw
