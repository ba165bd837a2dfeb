#include "engine/scale/label_picker.h"

#include "engine/data/chart_time.h"
#include "engine/data/no_value.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>

namespace chartdraw {
namespace {

constexpr double kHour = 3600;
constexpr double kWeek = 7 * kSecondsPerDay;

std::int64_t whole(double time, double unit) {
    // Half a millisecond below a border counts as the border, as the calendar has it.
    return static_cast<std::int64_t>(
        std::floor((std::clamp(time, kFirstChartTime, kLastChartTime) + 0.0005) / unit));
}

/// The number of the unit that a time lies in, in groups of `step` that begin anew with each larger unit.
std::int64_t groupOf(double time, FilterType type, int step) {
    constexpr std::int64_t perLarger = 1000; // more than hours in a day, days in a month, months in a year
    switch (type) {
    case FilterType::StartOfHour:
        return whole(time, kSecondsPerDay) * perLarger + whole(time, kHour) % 24 / step;
    case FilterType::StartOfDay: {
        if (step == 1)
            return whole(time, kSecondsPerDay);
        const CivilTime civil = toCivil(time);
        return (civil.year * 12 + civil.month) * perLarger + (civil.day - 1) / step;
    }
    case FilterType::StartOfWeek:
        return whole(time, kWeek) / step;
    case FilterType::StartOfMonth: {
        const CivilTime civil = toCivil(time);
        return civil.year * perLarger + (civil.month - 1) / step;
    }
    default:
        return toCivil(time).year / step;
    }
}

/// How much of its unit has gone by at a time, 0 to 1.
double partGone(double time, FilterType type) {
    const CivilTime civil = toCivil(time);
    double start = 0;
    double end = 0;
    switch (type) {
    case FilterType::StartOfHour:
        return std::fmod(time, kHour) / kHour;
    case FilterType::StartOfDay:
        return std::fmod(time, kSecondsPerDay) / kSecondsPerDay;
    case FilterType::StartOfWeek:
        return std::fmod(time, kWeek) / kWeek;
    case FilterType::StartOfMonth:
        start = chartTime(civil.year, civil.month, 1);
        end = chartTime(civil.year, civil.month + 1, 1);
        break;
    default:
        start = chartTime(civil.year, 1, 1);
        end = chartTime(civil.year + 1, 1, 1);
    }
    return (time - start) / (end - start);
}

/// Whether the unit that `time` lies in is the first of a group of `step`.
bool beginsGroup(double time, FilterType type, int step) {
    if (step == 1)
        return true;
    const CivilTime civil = toCivil(time);
    switch (type) {
    case FilterType::StartOfHour:
        return civil.hour % step == 0;
    case FilterType::StartOfDay:
        return (civil.day - 1) % step == 0;
    case FilterType::StartOfWeek:
        return whole(time, kWeek) % step == 0;
    case FilterType::StartOfMonth:
        return (civil.month - 1) % step == 0;
    default:
        return civil.year % step == 0;
    }
}

/// The items of a range that a filter passes, ascending.
std::vector<int> passed(std::span<const double> times, int first, int last, const LabelFilter& filter) {
    std::vector<int> items;
    const int step = std::max(1, filter.step);
    if (filter.type == FilterType::NonePass)
        return items;
    if (filter.type == FilterType::RegularSpacing || filter.type == FilterType::AllPass) {
        for (int i = first; i < last; i += step)
            items.push_back(i);
        return items;
    }
    const auto timeAt = [&](int i) { return times[static_cast<std::size_t>(i)]; };
    std::optional<std::int64_t> before;
    if (first > 0 && isValue(timeAt(first - 1)))
        before = groupOf(timeAt(first - 1), filter.type, step);
    for (int i = first; i < last; ++i) {
        const double time = timeAt(i);
        if (!isValue(time))
            continue;
        const std::int64_t group = groupOf(time, filter.type, step);
        const bool begins = before && group != *before;
        const bool early = i == first && beginsGroup(time, filter.type, step) &&
                           partGone(time, filter.type) <= filter.initialMargin;
        if (begins || early)
            items.push_back(i);
        before = group;
    }
    return items;
}

/// What each item of the range has been given so far.
class Picker {
public:
    Picker(int first, int last) : m_first(first), m_owners(static_cast<std::size_t>(last - first), kFree) {}

    void apply(const std::vector<int>& items, int rule, const LabelRule& how) {
        if (how.tickOnly) {
            for (const int item : items)
                if (owner(item) == kFree)
                    owner(item) = PickedLabel::kTickOnly;
            return;
        }
        const int span = std::max(1, how.labelSpan);
        std::vector<int> own;
        auto next = m_labels.begin(); // the first label of an earlier rule that is not before the item
        for (const int item : items) {
            while (next != m_labels.end() && *next < item)
                ++next;
            const bool clear = (own.empty() || item - own.back() >= span) &&
                               (next == m_labels.begin() || item - *(next - 1) >= span) &&
                               (next == m_labels.end() || *next - item >= span);
            if (clear && owner(item) == kFree) {
                owner(item) = rule;
                own.push_back(item);
            }
        }
        std::vector<int> all(m_labels.size() + own.size());
        std::merge(m_labels.begin(), m_labels.end(), own.begin(), own.end(), all.begin());
        m_labels = std::move(all);
    }

    void promoteFirst(std::span<const LabelRule> rules) {
        if (m_labels.empty())
            return;
        int& rule = owner(m_labels.front());
        if (rule > 0) {
            const LabelRule& earlier = rules[static_cast<std::size_t>(rule - 1)];
            if (earlier.promoteFirst && !earlier.tickOnly)
                --rule;
        }
    }

    std::vector<PickedLabel> result() const {
        std::vector<PickedLabel> picked;
        for (std::size_t i = 0; i < m_owners.size(); ++i)
            if (m_owners[i] != kFree)
                picked.push_back({m_first + static_cast<int>(i), m_owners[i]});
        return picked;
    }

private:
    static constexpr int kFree = -3;
    int& owner(int item) { return m_owners[static_cast<std::size_t>(item - m_first)]; }

    int m_first;
    std::vector<int> m_owners; // rule numbers, kTickOnly or kFree
    std::vector<int> m_labels; // items with a label, ascending
};

bool isNoRule(const LabelRule& rule) {
    return rule.emptyFormat && rule.filter.type == FilterType::NonePass;
}

} // namespace

std::vector<PickedLabel> pickLabels(std::span<const double> times, int first, int count,
                                    std::span<const LabelRule> rules) {
    const auto size = static_cast<int>(std::min<std::size_t>(times.size(), 0x7fffffff));
    first = std::clamp(first, 0, size);
    const int last = first + std::clamp(count, 0, size - first);
    std::vector<PickedLabel> all;
    if (std::all_of(rules.begin(), rules.end(), isNoRule)) {
        for (int i = first; i < last; ++i)
            all.push_back({i, PickedLabel::kAxisFormat});
        return all;
    }
    Picker picker(first, last);
    for (std::size_t i = 0; i < rules.size(); ++i)
        picker.apply(passed(times, first, last, rules[i].filter), static_cast<int>(i), rules[i]);
    picker.promoteFirst(rules);
    return picker.result();
}

} // namespace chartdraw
