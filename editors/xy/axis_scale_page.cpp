#include "editors/fields/color_field.h"
#include "editors/fields/tips.h"
#include "editors/framework/list_editor.h"
#include "editors/xy/axis_dlg.h"
#include "resources/string_table.h"

#include <chartdraw/surface.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kNoScale = 0;
constexpr double kSecondsOfDay = 86400;
constexpr char kFollowed[] = "The axis that this one follows, while its scale type is \"None\"";

QDate DayAt(const void* time) {
    const int ymd = CChart_getChartYMD(*static_cast<const double*>(time));
    return {ymd / 10000, ymd % 10000 / 100, ymd % 100};
}

/// Chart time, in which the model holds a day, as a date.
CBinding<QDate> Day(double& time) {
    CBinding<QDate> binding([&time] { return DayAt(&time); },
                            [&time](const QDate& day) {
                                if (day.isValid())
                                    time = CChart_chartTime(day.year(), day.month(), day.day(), 0, 0, 0);
                                return day.isValid();
                            });
    return binding.At([&time](int) { return CMember::Of(time); }, &DayAt);
}

std::int32_t DaysAt(const void* seconds) {
    const double days = std::trunc(*static_cast<const double*>(seconds) * 1.1574074074074073e-05);
    constexpr double kMost = std::numeric_limits<std::int32_t>::max();
    return std::isnan(days) ? 0 : static_cast<std::int32_t>(std::clamp(days, -kMost, kMost));
}

/// Seconds, which show as whole days.
CBinding<std::int32_t> Days(double& seconds) {
    CBinding<std::int32_t> binding([&seconds] { return DaysAt(&seconds); },
                                   [&seconds](std::int32_t days) {
                                       seconds = days * kSecondsOfDay;
                                       return true;
                                   });
    return binding.At([&seconds](int) { return CMember::Of(seconds); }, &DaysAt);
}

} // namespace

CAxisScalePage::CAxisScalePage(CAxisDlg& dialog) : m_form(*this, dialog) {
    CXYChartAxis& axis = dialog.m_axis;
    m_form.Combo("Scale Type:", axis.m_scaleType, {"None", "Auto Scale", "Linear Scale", "Date Scale"})
        .Tip("\"None\": as the chart has it, or as the axis that this one follows")
        .Then([&dialog] { dialog.ScaleTypeChosen(); });
    m_form.Band();
    ScaleGroups(axis);
    SyncGroup(dialog);
}

void CAxisScalePage::ScaleGroups(CXYChartAxis& axis) {
    m_form.Group("Auto Scale:");
    m_form.Real("Top Extension:", axis.m_topExtension)
        .Step(0.1)
        .Range(0, 1)
        .Tip("Part of the range left free above the data");
    m_form.Real("Bottom Extension:", axis.m_bottomExtension)
        .Step(0.1)
        .Range(0, 1)
        .Tip("Part of the range left free below the data");
    m_form.Real("Zero Affinity:", axis.m_zeroAffinity)
        .Step(0.1)
        .Range(0, 1)
        .Tip("How far 0 may be from the data for the scale to start there; 1 always");
    m_form.Group("Linear Scale:");
    m_form.Real("Lower Limit:", axis.m_lowerLimit).Tip(tip::kScaleStart);
    m_form.Real("Upper Limit:", axis.m_upperLimit).Unrounded().Tip(tip::kScaleEnd);
    m_form.Real("Major Tick Inc:", axis.m_majorTickInc).Tip(tip::kMajorTicks);
    m_form.Real("Minor Tick Inc:", axis.m_minorTickInc).Tip(tip::kMinorTicks);
    m_form.Column();
    m_form.Group("Date Scale:");
    m_form.Date("Lower Limit:", Day(axis.m_dateLowerLimit)).Tip("The day at the start of the scale");
    m_form.Date("Upper Limit:", Day(axis.m_dateUpperLimit)).Tip("The day at the end of the scale");
    m_form.Integer("Major Tick Inc:", Days(axis.m_dateMajorTickInc))
        .DigitsOnly()
        .Unit("(days)")
        .Tip(tip::kMajorTicks);
    m_form.Integer("Minor Tick Inc:", Days(axis.m_dateMinorTickInc))
        .DigitsOnly()
        .Unit("(days)")
        .Tip(tip::kMinorTicks);
}

void CAxisScalePage::SyncGroup(CAxisDlg& dialog) {
    CXYChartAxis& axis = dialog.m_axis;
    // Only an axis without a scale of its own can follow another, and X and Y never do.
    const auto follower = [&dialog] {
        return (dialog.m_axisKind & (CAxisDlg::X2 | CAxisDlg::Y2 | CAxisDlg::Additional)) != 0;
    };
    const auto free = [&axis, follower] { return follower() && axis.m_scaleType == kNoScale; };
    const auto stateOf = [&dialog, follower, free](int kind) {
        const int own =
            (dialog.m_axisKind & CAxisDlg::X2) != 0 ? CAxisDlg::X2 : dialog.m_axisKind & CAxisDlg::Y2;
        if (!follower() || kind == own)
            return CRadioRow::GreyAndOff;
        return free() ? CRadioRow::Live : CRadioRow::Grey;
    };
    const auto showAgain = [this] { m_form.LoadRows(this); };
    const auto follow = [&dialog, &axis](int kind, int index) {
        axis.m_syncKind = static_cast<unsigned char>(kind);
        dialog.m_syncIndex = index;
        return true;
    };

    m_form.Group("SyncAxis:");
    CBinding<std::int32_t> primary([&axis] { return axis.m_syncKind; },
                                   [follow](int kind) { return follow(kind, -1); }, this, showAgain);
    primary.At([&axis](int) { return CMember::Of(axis.m_syncKind); },
               [](const void* member) { return *static_cast<const unsigned char*>(member); });
    m_form.Radio("Primary:", primary, {{"X", 1}, {"Y", 2}, {"X2", 4}, {"Y2", 8}})
        .States(stateOf)
        .Tip(kFollowed);
    const CBinding<std::int32_t> additional(
        [&dialog, &axis, follower] {
            return follower() && axis.m_syncKind == CAxisDlg::Additional ? dialog.m_syncIndex : -1;
        },
        [follow](int row) { return follow(CAxisDlg::Additional, row); }, this, showAgain);
    m_form.Combo("Additional:", additional, {})
        .RowsFrom([&dialog] {
            QStringList rows;
            for (int i = 0; i < dialog.m_axisCount; ++i)
                rows.append(RowCaption(LoadChartString(ChartText::AxisRow), i));
            return rows;
        })
        .EnabledIf(free)
        .Tip(kFollowed);
    m_form.Real("Slope:", axis.m_syncSlope)
        .Step(0.1)
        .EnabledIf(free)
        .Tip("Units of this axis for one of the other; 0 follows none");
}
