#include "engine/scale/short_labels.h"

#include "engine/scale/number_text.h"

#include <algorithm>
#include <cmath>

namespace chartdraw {

namespace {

struct Unit {
    double size;
    const char* name;
};
constexpr Unit kUnits[] = {{1e12, "T"}, {1e9, "G"}, {1e6, "M"}, {1e3, "k"}};

std::size_t longest(std::span<const std::string> texts) {
    std::size_t most = 0;
    for (const std::string& text : texts)
        most = std::max(most, text.size());
    return most;
}

double greatest(std::span<const double> values) {
    double most = 0;
    for (const double value : values)
        most = std::max(most, std::abs(value));
    return most;
}

std::vector<std::string> byUnit(std::span<const double> values, double step, const Unit& unit) {
    const NumberSpec spec = NumberSpec::fixed(std::max(0, decimalsOf(step / unit.size)));
    std::vector<std::string> texts;
    for (const double value : values)
        texts.push_back(value == 0 ? "0" : numberText(value / unit.size, spec) + unit.name);
    return texts;
}

std::vector<std::string> byExponent(std::span<const double> values, double step) {
    const int most = exponentOf(greatest(values));
    const NumberSpec spec{.form = NumberSpec::Form::Exponent,
                          .digits = std::clamp(most + decimalsOf(step), 0, 6)};
    std::vector<std::string> texts;
    for (const double value : values)
        texts.push_back(value == 0 ? "0" : numberText(value, spec));
    return texts;
}

} // namespace

std::vector<std::string> shortLabels(std::span<const double> values, double span) {
    const double most = greatest(values);
    // The span tells how exact a step is meant: its noise is cut off.
    const double raw = values.size() > 1 ? values[1] - values[0] : span;
    const double place = std::pow(10.0, exponentOf(raw) - 3);
    const double step = place > 0 ? std::round(raw / place) * place : raw;
    std::vector<std::string> best;
    for (const double value : values)
        best.push_back(numberText(value));
    const auto take = [&](std::vector<std::string> texts) {
        if (longest(texts) < longest(best))
            best = std::move(texts);
    };
    const auto* unit =
        std::find_if(std::begin(kUnits), std::end(kUnits), [&](const Unit& u) { return most >= u.size; });
    if (unit != std::end(kUnits) && most < 1e15)
        take(byUnit(values, step, *unit));
    else
        take(byExponent(values, step));
    return best;
}

} // namespace chartdraw
