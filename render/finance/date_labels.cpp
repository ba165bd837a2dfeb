// Which dates stand under the lowest pane.

#include "render/finance/finance_chart.h"
#include <algorithm>
#include <limits>

static constexpr double day = 86400;

struct LabelFilter {
    int type, step;
    double margin;

    int Encode() const { return CChart_encodeFilter(type, step, margin); }
};

/// The first format for what begins a longer period, the other one for what lies within.
static void SetTwoFormats(Axis* axis, const LabelFilter& first, const std::string& firstFormat,
                          const LabelFilter& other, const std::string& otherFormat, int tickStep) {
    const int firstFilter = first.Encode();
    const int otherFilter = other.Encode();
    CAxis_setMultiFormat(axis, firstFilter, firstFormat.c_str(), otherFilter, otherFormat.c_str(), tickStep,
                         true);
}

void FinanceChart::setXLabels(Axis* axis) const {
    CAxis_setLabels2(axis, m_timeStamps.data(), timeCount(), nullptr);
    if (m_extraPoints >= timeCount())
        return;
    // A plot area without a width shows no labels, but wants a step all the same.
    const int width = plotWidth() != 0 ? plotWidth() : 1;
    const std::int64_t shown = timeCount() - m_extraPoints;
    std::int64_t step = shown * m_xAxisLabelSpacing / width + 1; // rows from label to label
    const double range = m_timeStamps.back() - m_timeStamps[static_cast<std::size_t>(m_extraPoints)];
    double seconds = range / width * m_xAxisLabelSpacing; // from label to label
    if (static_cast<double>(shown) * seconds <= range) {  // every row has room for a label
        step = 1;
        seconds = timeCount() > 1 ? m_timeStamps.back() - m_timeStamps[m_timeStamps.size() - 2] : day;
    }
    const int tickStep = static_cast<int>(
        std::clamp<std::int64_t>(step, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));

    if (seconds > 360 * day || (seconds > 90 * day && range >= 720 * day)) {
        CAxis_setMultiFormat2(axis, CChart_encodeFilter(CHART_START_OF_YEAR, 1, 0.05), m_yearFormat.c_str(),
                              tickStep, true);
    } else if (seconds >= 30 * day || (seconds > 7 * day && range >= 60 * day)) {
        constexpr double perMonth = 1 / (31 * day);
        const int monthStep = 1 + static_cast<int>(seconds * perMonth);
        SetTwoFormats(axis, {CHART_START_OF_YEAR, 1, 0.05}, m_firstMonthFormat,
                      {CHART_START_OF_MONTH, monthStep, 0.05}, m_otherMonthFormat, 1);
        // A tick for months without a label.
        CAxis_setMultiFormat2(axis, CChart_encodeFilter(CHART_START_OF_MONTH, 1, 0.05), "-", 1, false);
    } else if (seconds >= day || (seconds > day / 4 && range >= day)) {
        SetTwoFormats(axis, {CHART_START_OF_MONTH, 1, 0.05}, m_firstDayFormat, {CHART_START_OF_DAY, 1, 0.5},
                      m_otherDayFormat, tickStep);
    } else {
        SetTwoFormats(axis, {CHART_START_OF_DAY, 1, 0.5}, m_firstHourFormat, {CHART_START_OF_HOUR, 1, 0.5},
                      m_otherHourFormat, tickStep);
    }
}
