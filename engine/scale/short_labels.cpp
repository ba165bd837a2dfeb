#include "engine/scale/short_labels.h"

#include "engine/scale/number_text.h"

#include <algorithm>
#include <cmath>

namespace chartdraw {

namespace {

constexpr ShortUnit kUnits[] = {{1e12, "T"}, {1e9, "G"}, {1e6, "M"}, {1e3, "k"}};

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

std::vector<std::string> byUnit(std::span<const double> values, double step, const ShortUnit& unit) {
    const NumberSpec spec = NumberSpec::fixed(std::max(0, decimalsOf(step / unit.size)));
    std::vector<std::string> texts;
    for (const double value : values)
        texts.push_back(value == 0 ? "0" : numberText(value / unit.size, spec) + unit.name);
    return texts;
}

std::vector<std::string> byExponent(std::span<const double> values, double step) {
    NumberSpec spec = NumberSpec::atPower(exponentOf(greatest(values)), decimalsOf(step));
    spec.digits = std::min(spec.digits, 6);
    std::vector<std::string> texts;
    for (const double value : values)
        texts.push_back(value == 0 ? "0" : numberText(value, spec));
    return texts;
}

/// Digits of a power, raised.
std::string raised(int number) {
    constexpr const char* kDigits[] = {"\u2070", "\u00b9", "\u00b2", "\u00b3", "\u2074",
                                       "\u2075", "\u2076", "\u2077", "\u2078", "\u2079"};
    std::string text = number < 0 ? "\u207b" : "";
    for (const char digit : std::to_string(std::abs(number)))
        text += kDigits[digit - '0'];
    return text;
}

std::vector<std::string> byFactor(std::span<const double> values, double step, int exponent) {
    const NumberSpec spec = NumberSpec::fixed(std::max(0, decimalsOf(step) + exponent));
    const double unit = std::pow(10.0, -exponent);
    std::vector<std::string> texts;
    for (const double value : values)
        texts.push_back(value == 0 ? "0" : numberText(value * unit, spec));
    return texts;
}

} // namespace

const ShortUnit* shortUnit(double value) {
    const auto* unit = std::find_if(std::begin(kUnits), std::end(kUnits),
                                    [&](const ShortUnit& each) { return value >= each.size; });
    return unit != std::end(kUnits) && value < 1e15 ? unit : nullptr;
}

ShortLabels shortLabels(std::span<const double> values, double span, bool withFactor) {
    const double most = greatest(values);
    // The span tells how exact a step is meant: its noise is cut off.
    const double raw = values.size() > 1 ? values[1] - values[0] : span;
    const double place = std::pow(10.0, exponentOf(raw) - 3);
    const double step = place > 0 ? std::round(raw / place) * place : raw;
    ShortLabels best;
    for (const double value : values)
        best.texts.push_back(numberText(value));
    const auto take = [&](std::vector<std::string> texts, std::string factor = {}) {
        if (longest(texts) < longest(best.texts))
            best = {std::move(texts), std::move(factor)};
    };
    const ShortUnit* unit = shortUnit(most);
    const int exponent = exponentOf(most);
    if (unit != nullptr)
        take(byUnit(values, step, *unit));
    else if (withFactor && std::abs(exponent) < 300)
        take(byFactor(values, step, exponent), "\u00d710" + raised(exponent));
    else
        take(byExponent(values, step));
    return best;
}

std::vector<std::string> groupedLabels(std::span<const double> values) {
    const double most = greatest(values);
    NumberSpec spec = NumberSpec::fixed(0);
    spec.thousand = Glyph(',');
    std::vector<std::string> texts;
    const bool whole = std::all_of(values.begin(), values.end(), [](double v) { return v == std::floor(v); });
    if (whole && most >= 1e4 && most < 1e15)
        for (const double value : values)
            texts.push_back(numberText(value, spec));
    return texts;
}

} // namespace chartdraw
