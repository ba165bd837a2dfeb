#include "engine/scale/ticks.h"

#include "engine/data/chart_time.h"
#include "engine/scale/date_text.h"
#include "engine/scale/nice_numbers.h"
#include "engine/scale/tick_steps.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace chartdraw {
namespace {

constexpr double kMinute = 60;
constexpr double kHour = 3600;
constexpr double kDay = kSecondsPerDay;
constexpr double kMonth = 30.4 * kDay;
constexpr double kYear = 365.2425 * kDay;

/// What a step counts.
enum class Unit { Seconds, Months, Years };

struct Step {
    double seconds; ///< about how long it is, exactly for seconds
    Unit unit = Unit::Seconds;
    int count = 1; ///< months or years
};

// 1 January of year 1 was a Monday, so that seven days counted from there are weeks.
constexpr Step kSteps[] = {
    {1},
    {5},
    {10},
    {15},
    {30},
    {kMinute},
    {5 * kMinute},
    {10 * kMinute},
    {15 * kMinute},
    {30 * kMinute},
    {kHour},
    {3 * kHour},
    {6 * kHour},
    {12 * kHour},
    {kDay},
    {7 * kDay},
    {kMonth, Unit::Months, 1},
    {3 * kMonth, Unit::Months, 3},
};

/// The shortest step of at least `seconds`.
Step shortestStep(double seconds) {
    if (seconds < 1)
        return {std::max(0.001, niceStep(seconds))};
    for (const Step& step : kSteps)
        if (step.seconds >= seconds)
            return step;
    // Chart time ends with the year 9999.
    const double years = std::clamp(niceStep(seconds / kYear * (1 - 1e-3)), 1.0, 10000.0);
    return {years * kYear, Unit::Years, static_cast<int>(years)};
}

/// The step before in the row.
Step shorterStep(const Step& step) {
    const Step* shorter = nullptr;
    for (const Step& candidate : kSteps)
        if (candidate.seconds < step.seconds * (1 - 1e-6))
            shorter = &candidate;
    if (step.unit == Unit::Years && step.count > 1)
        return shortestStep(step.seconds / 2.5);
    return shorter != nullptr ? *shorter : Step{std::max(0.001, niceStep(step.seconds / 2.5))};
}

std::vector<double> calendarValues(const Scale& scale, const Step& step) {
    if (step.unit == Unit::Seconds)
        return stepValues(scale.lower(), scale.upper(), 0, step.seconds);
    std::vector<double> values;
    const int months = step.unit == Unit::Years ? step.count * 12 : step.count;
    const CivilTime start = toCivil(scale.lower());
    // Months are counted from the year 0, so that steps of years stand at multiples of them.
    for (int month = (start.year * 12 + start.month - 1) / months * months; month < 10000 * 12;
         month += months) {
        const double time = chartTime(0, month + 1, 1);
        if (time > scale.upper())
            break;
        if (month >= 12 && time >= scale.lower())
            values.push_back(time);
    }
    return values;
}

/// How the labels of a step are written: a form, and below it the larger unit where that begins.
struct LabelForm {
    std::string_view form;
    enum class Larger { None, Year, Day } larger;
};

LabelForm labelForm(const Step& step, double origin) {
    using Larger = LabelForm::Larger;
    const auto whole = [&](double unit) {
        return std::fmod(step.seconds, unit) == 0 && std::fmod(origin, unit) == 0;
    };
    if (step.unit == Unit::Years)
        return {"yyyy", Larger::None};
    if (step.unit == Unit::Months)
        return {"mmm", Larger::Year};
    if (whole(kDay))
        return {"d mmm", Larger::Year};
    if (whole(kMinute))
        return {"hh:nn", Larger::Day};
    return {whole(1) ? "hh:nn:ss" : "hh:nn:ss.fff", Larger::Day};
}

std::vector<Tick> labelled(const std::vector<double>& values, const LabelForm& form) {
    std::vector<Tick> ticks;
    CivilTime before{.year = 0, .day = 0};
    for (const double value : values) {
        const CivilTime civil = toCivil(value);
        const bool newYear = civil.year != before.year;
        const bool newDay = newYear || civil.month != before.month || civil.day != before.day;
        Tick tick{value, dateText(value, form.form)};
        if (form.larger == LabelForm::Larger::Year && newYear)
            appendDate(tick.label, value, "\nyyyy");
        else if (form.larger == LabelForm::Larger::Day && newDay)
            appendDate(tick.label, value, newYear ? "\nd mmm yyyy" : "\nd mmm");
        ticks.push_back(std::move(tick));
        before = civil;
    }
    return ticks;
}

} // namespace

Ticks dateTicks(const Scale& scale, const Increments& increments, const Density& density) {
    constexpr double usualPx = 50;
    const double secondsPerPx = (scale.upper() - scale.lower()) / lengthOf(density);
    const double wanted = wantedPx(density, usualPx) * secondsPerPx;
    Ticks ticks;
    Step step{increments.major};
    if (isGiven(increments.major) && increments.major >= kLeastTickPx * secondsPerPx) {
        const auto values = stepValues(scale.lower(), scale.upper(), scale.lower(), step.seconds);
        ticks.major = labelled(values, labelForm(step, scale.lower()));
    } else {
        step = shortestStep(wanted);
        auto values = calendarValues(scale, step);
        // A long unit may begin nowhere on the scale, or once; a scale takes two ticks to be read.
        for (; values.size() < 2 && step.seconds > 0.001; values = calendarValues(scale, step))
            step = shorterStep(step);
        ticks.major = labelled(values, labelForm(step, 0));
    }
    addGivenMinors(ticks, scale, scale.lower(), step.seconds, increments, density);
    if (!isGiven(increments.minor) && density.minorPx > 0) {
        const Step minor = shortestStep(std::max(density.minorPx, kLeastTickPx) * secondsPerPx);
        if (minor.seconds < step.seconds)
            ticks.minor = without(calendarValues(scale, minor), valuesOf(ticks.major), minor.seconds);
        ticks.micro = without(ticks.micro, ticks.minor, minor.seconds);
    }
    return ticks;
}

} // namespace chartdraw
