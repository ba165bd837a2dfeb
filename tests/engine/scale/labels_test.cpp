// Labels of item axes: which of many dates are labelled. Expected dates come from the calendar.

#include "engine/data/chart_time.h"
#include "engine/data/no_value.h"
#include "engine/scale/date_text.h"
#include "engine/scale/label_picker.h"
#include "engine/scale/label_thinning.h"
#include <gtest/gtest.h>
#include <limits>
#include <string>

using namespace chartdraw;

namespace {
/// Every `hours` from a time on, without weekends, and without the nights if there are hours.
std::vector<double> tradingTimes(double start, int count, double hours = 24) {
    std::vector<double> times;
    for (double time = start; static_cast<int>(times.size()) < count; time += hours * 3600) {
        const int hour = toCivil(time).hour;
        if (weekdayOf(time) < 5 && (hours >= 24 || (hour >= 9 && hour <= 16))) times.push_back(time);
    }
    return times;
}

LabelRule rule(FilterType type, int step, double margin, int span, bool promote) {
    return {{type, step, margin}, span, promote, false, false};
}

/// The picked items as their dates, each with the number of its rule; ticks without label as a dash.
std::string shown(const std::vector<double>& times, int first, const std::vector<LabelRule>& rules,
                  const char* form = "d.m.yy") {
    std::string text;
    for (const PickedLabel& label : pickLabels(times, first, static_cast<int>(times.size()), rules)) {
        text += text.empty() ? "" : " ";
        text += dateText(times[static_cast<std::size_t>(label.index)], form);
        text += label.rule >= 0 ? ":" + std::to_string(label.rule)
                                : std::string(label.rule == PickedLabel::kTickOnly ? "-" : "");
    }
    return text;
}
} // namespace

TEST(LabelPicker, MonthsOfHalfAYearOfTradingDays) {
    // 130 weekdays from Wednesday, 4 September 2002, the first 30 of them not shown: 16 October to 4 March.
    const auto times = tradingTimes(chartTime(2002, 9, 4), 130);
    ASSERT_EQ(getChartYMD(times[30]), 20021016);
    ASSERT_EQ(getChartYMD(times.back()), 20030304);
    std::vector<LabelRule> rules = {rule(FilterType::StartOfYear, 1, 0.05, 1, true),
                                    rule(FilterType::StartOfMonth, 1, 0.05, 1, true)};
    LabelRule ticks = rule(FilterType::StartOfMonth, 1, 0.05, 1, false);
    ticks.tickOnly = true;
    rules.push_back(ticks);
    // The first trading days of each month; the first label is promoted so that it names its year.
    EXPECT_EQ(shown(times, 30, rules), "1.11.02:0 2.12.02:1 1.1.03:0 3.2.03:1 3.3.03:1");
    rules[1].filter.step = 2; // odd months; the others keep a tick
    EXPECT_EQ(shown(times, 30, rules), "1.11.02:0 2.12.02- 1.1.03:0 3.2.03- 3.3.03:1");
    rules[0].promoteFirst = false;
    EXPECT_EQ(shown(times, 30, rules), "1.11.02:1 2.12.02- 1.1.03:0 3.2.03- 3.3.03:1");
}

TEST(LabelPicker, DaysKeepTheirDistanceFromMonths) {
    const auto times = tradingTimes(chartTime(2003, 1, 20), 20); // Monday, 20 January to Friday, 14 February
    const std::vector<LabelRule> rules = {rule(FilterType::StartOfMonth, 1, 0.05, 4, true),
                                          rule(FilterType::StartOfDay, 1, 0.5, 4, true)};
    // Monday, 3 February is the first day of its month; 30 January would come too close before it.
    EXPECT_EQ(shown(times, 0, rules), "20.1.03:0 24.1.03:1 3.2.03:0 7.2.03:1 13.2.03:1");
}

TEST(LabelPicker, HoursOfTradingDays) {
    const auto times = tradingTimes(chartTime(2003, 1, 20, 9), 24, 1); // three days of eight hours from nine
    const std::vector<LabelRule> rules = {rule(FilterType::StartOfDay, 1, 0.5, 3, true),
                                          rule(FilterType::StartOfHour, 1, 0.5, 3, true)};
    EXPECT_EQ(shown(times, 0, rules, "d@h"), "20@9:0 20@12:1 21@9:0 21@12:1 22@9:0 22@12:1 22@15:1");
}

TEST(LabelPicker, StartsAndTheirSteps) {
    using Case = std::tuple<FilterType, int, double, int, const char*>;
    const auto days = tradingTimes(chartTime(2003, 1, 2), 60); // Thursday, 2 January to 26 March
    const Case cases[] = {
        {FilterType::StartOfWeek, 1, 0, 30, "17.2.03 24.2.03 3.3.03 10.3.03 17.3.03 24.3.03"},
        {FilterType::StartOfMonth, 1, 0, 0, "3.2.03 3.3.03"},
        {FilterType::StartOfMonth, 1, 0.05, 0, "2.1.03 3.2.03 3.3.03"}, // a day of 31 has gone by
        {FilterType::StartOfMonth, 1, 0.03, 0, "3.2.03 3.3.03"},
        {FilterType::StartOfMonth, 3, 0.05, 0, "2.1.03"},
        {FilterType::StartOfMonth, 2, 0, 0, "3.3.03"},
        {FilterType::StartOfYear, 1, 0.05, 0, "2.1.03"},
        {FilterType::StartOfYear, 1, 0, 0, ""},
        {FilterType::StartOfYear, 2, 0.05, 0, ""}, // 2003 is odd
        {FilterType::StartOfDay, 10, 0, 0, "13.1.03 21.1.03 31.1.03 3.2.03 11.2.03 21.2.03 3.3.03 11.3.03 21.3.03"},
        {FilterType::RegularSpacing, 20, 0, 5, "9.1.03 6.2.03 6.3.03"},
        {FilterType::AllPass, 40, 0, 0, "2.1.03 27.2.03"},
        {FilterType::NonePass, 1, 1, 0, ""},
    };
    for (const auto& [type, step, margin, first, items] : cases) {
        std::string plain = shown(days, first, {rule(type, step, margin, 1, false)});
        for (std::size_t at; (at = plain.find(":0")) != std::string::npos;) plain.erase(at, 2);
        EXPECT_EQ(plain, items) << static_cast<int>(type) << " step " << step << " margin " << margin;
    }
}

TEST(LabelThinning, StepsAndEnds) {
    using Case = std::tuple<int, double, double, bool, std::vector<int>>;
    const Case cases[] = {
        {5, 30, 20, true, {0, 1, 2, 3, 4}},
        {11, 30, 70, false, {0, 3, 6, 9}},
        {11, 30, 70, true, {0, 5, 10}},  // even to the end rather than every third
        {8, 30, 50, true, {0, 2, 4, 6}}, // 7 is prime: even gaps rather than the last
        {8, 30, 50, false, {0, 2, 4, 6}},
        {3, 10, 500, true, {0}},
        {2, -30, 20, true, {0, 1}}, // a reversed axis
        {11, -30, 70, true, {0, 5, 10}},
        {1, 30, 20, true, {0}},
        {0, 30, 20, true, {}},
    };
    for (const auto& [count, pitch, width, keepEnds, kept] : cases) {
        std::vector<LabelExtent> labels;
        for (int i = 0; i < count; ++i) labels.push_back({i * pitch - width / 2, i * pitch + width / 2});
        EXPECT_EQ(thinLabels(labels, 4, keepEnds), kept) << count << " of " << width;
    }
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(thinLabels(std::vector<LabelExtent>{{0, 9}, {nan, nan}, {20, 11}}, 1, true), (std::vector<int>{0, 1, 2}));
    EXPECT_EQ(thinLabels(std::vector<LabelExtent>(100'000), 1, true), std::vector<int>{0}) << "all at one place";
}
