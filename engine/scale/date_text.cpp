#include "engine/scale/date_text.h"

#include "engine/data/chart_time.h"
#include "engine/data/no_value.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace chartdraw {
namespace {

enum class Element { Year, ShortYear, Month, MonthName, Day, DayName, Hour, Minute, Second, Milli, HalfDay };

struct Form {
    std::string_view letters;
    Element element;
    int width = 0; // of numbers: least digits; of names: how many letters, 0 for all of them
    bool upperCase = false;
};

// Of forms that begin alike the longest stands first.
constexpr Form kForms[] = {
    {"yyyy", Element::Year, 4},
    {"yy", Element::ShortYear, 2},
    {"mmmm", Element::MonthName},
    {"mmm", Element::MonthName, 3},
    {"MMM", Element::MonthName, 3, true},
    {"mm", Element::Month, 2},
    {"m", Element::Month, 1},
    {"dddd", Element::DayName},
    {"ddd", Element::DayName, 3},
    {"dd", Element::Day, 2},
    {"d", Element::Day, 1},
    {"hh", Element::Hour, 2},
    {"h", Element::Hour, 1},
    {"nn", Element::Minute, 2},
    {"ss", Element::Second, 2},
    {"fff", Element::Milli, 3},
    {"a", Element::HalfDay},
};

constexpr std::array<std::string_view, 12> kMonths = {"January",   "February", "March",    "April",
                                                      "May",       "June",     "July",     "August",
                                                      "September", "October",  "November", "December"};
constexpr std::array<std::string_view, 7> kDays = {"Monday", "Tuesday",  "Wednesday", "Thursday",
                                                   "Friday", "Saturday", "Sunday"};

bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

const Form* formAt(std::string_view text) {
    for (const Form& form : kForms)
        if (text.starts_with(form.letters))
            return &form;
    return nullptr;
}

/// The letters that `text` begins with.
std::string_view letterRun(std::string_view text) {
    return text.substr(
        0, static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), isLetter) - text.begin()));
}

bool isAllForms(std::string_view run) {
    while (!run.empty()) {
        const Form* form = formAt(run);
        if (form == nullptr)
            return false;
        run.remove_prefix(form->letters.size());
    }
    return true;
}

/// Walks a spec: `onForm` for each form, `onText` for what stands for itself.
template <class OnForm, class OnText>
void walk(std::string_view spec, OnForm onForm, OnText onText) {
    while (!spec.empty()) {
        if (!isLetter(spec.front())) {
            if (spec.front() == '\\' && spec.size() > 1)
                spec.remove_prefix(1);
            onText(spec.substr(0, 1));
            spec.remove_prefix(1);
            continue;
        }
        std::string_view run = letterRun(spec);
        spec.remove_prefix(run.size());
        if (!isAllForms(run)) {
            onText(run);
            continue;
        }
        while (!run.empty()) {
            const Form& form = *formAt(run);
            onForm(form);
            run.remove_prefix(form.letters.size());
        }
    }
}

bool shows(std::string_view spec, Element element) {
    bool found = false;
    walk(
        spec, [&](const Form& form) { found = found || form.element == element; }, [](std::string_view) {});
    return found;
}

void appendPadded(std::string& out, int number, int width) {
    std::array<char, 12> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number).ptr;
    const auto length = end - text.data();
    out.append(static_cast<std::size_t>(std::max<std::ptrdiff_t>(0, width - length)), '0');
    out.append(text.data(), end);
}

void appendName(std::string& out, std::string_view name, const Form& form) {
    if (form.width > 0)
        name = name.substr(0, static_cast<std::size_t>(form.width));
    for (const char c : name)
        out += form.upperCase && c >= 'a' ? static_cast<char>(c - 'a' + 'A') : c;
}

struct Moment {
    CivilTime civil;
    int milli = 0;
    bool halfDays = false;
};

void appendForm(std::string& out, const Form& form, const Moment& moment) {
    const CivilTime& civil = moment.civil;
    switch (form.element) {
    case Element::Year:
        return appendPadded(out, civil.year, form.width);
    case Element::ShortYear:
        return appendPadded(out, civil.year % 100, form.width);
    case Element::Month:
        return appendPadded(out, civil.month, form.width);
    case Element::MonthName:
        return appendName(out, kMonths[static_cast<std::size_t>(civil.month - 1)], form);
    case Element::Day:
        return appendPadded(out, civil.day, form.width);
    case Element::DayName:
        return appendName(out, kDays[static_cast<std::size_t>(civil.weekday)], form);
    case Element::Hour:
        return appendPadded(out, moment.halfDays ? (civil.hour + 11) % 12 + 1 : civil.hour, form.width);
    case Element::Minute:
        return appendPadded(out, civil.minute, form.width);
    case Element::Second:
        return appendPadded(out, civil.second, form.width);
    case Element::Milli:
        return appendPadded(out, moment.milli, form.width);
    case Element::HalfDay:
        out += civil.hour < 12 ? "am" : "pm";
    }
}

} // namespace

bool isDateSpec(std::string_view spec) {
    const std::string_view run = letterRun(spec);
    return !run.empty() && isAllForms(run);
}

void appendDate(std::string& out, double time, std::string_view spec) {
    if (!isValue(time))
        return;
    Moment moment;
    if (shows(spec, Element::Milli)) {
        const double millis = std::round(std::clamp(time, kFirstChartTime, kLastChartTime) * 1000);
        time = std::floor(millis / 1000);
        moment.milli = static_cast<int>(millis - time * 1000);
    }
    moment.civil = toCivil(time);
    moment.halfDays = shows(spec, Element::HalfDay);
    walk(
        spec, [&](const Form& form) { appendForm(out, form, moment); },
        [&](std::string_view text) { out += text; });
}

std::string dateText(double time, std::string_view spec) {
    std::string out;
    appendDate(out, time, spec);
    return out;
}

} // namespace chartdraw
