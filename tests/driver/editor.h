#pragma once
// The editors as a host opens them: one call for each kind of chart.

#include "model/fields/values.h"
#include "tests/driver/person.h"
#include <charteditors/charteditors.h>

namespace driver {
inline bool Show(CChartLayout& edited, const CChartLayout& /*layout*/) { return ShowChartLayoutWnd(edited); }
inline bool Show(CXYChart& chart, const CChartLayout& layout) { return ShowXYChartWnd(chart, layout); }
inline bool Show(CPieChart& chart, const CChartLayout& layout) { return ShowPieChartWnd(chart, layout); }
inline bool Show(CPolarChart& chart, const CChartLayout& layout) { return ShowPolarChartWnd(chart, layout); }
inline bool Show(CFinanceChart& chart, const CChartLayout& layout) { return ShowFinanceChartWnd(chart, layout); }
inline bool Show(CAngularMeter& meter, const CChartLayout& layout) { return ShowAngularMeterWnd(meter, layout); }
inline bool Show(CLinearMeter& meter, const CChartLayout& layout) { return ShowLinearMeterWnd(meter, layout); }

/// What differs between two objects, a line each; empty if they are equal in every field.
template <class Object> std::string Difference(const Object& before, const Object& after) {
    std::string all;
    for (const auto& [path, from, to] : model::Differences(before, after))
        all += path + ": " + from + " -> " + to + '\n';
    return all;
}

/// Opens the editor of `object` and lets `act` be the person. Returns what the host is told.
template <class Object> bool Edit(Object& object, const CChartLayout& layout, const std::function<void(Person&)>& act) {
    const WhenModal person([&](QWidget& window) { Person(window).Meet(act); });
    return Show(object, layout);
}
template <class Object> bool Edit(Object& object, const std::function<void(Person&)>& act) {
    return Edit(object, CChartLayout(), act);
}
} // namespace driver
