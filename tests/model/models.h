#pragma once
// Every single value below a model, to be changed in place; models of numbered and of random values.

#include "model/fields/values.h"
#include <algorithm>
#include <iterator>
#include <limits>
#include <random>
#include <string>

namespace models {
using model::Words;

/// Calls `visit(value, words)` for each value below `value` that it takes; `visit.Grow(list)` comes before
/// the items of each list. Layers keep their kinds.
template <class Value, class Visit> void Each(Value& value, Visit& visit, Words words = {}) {
    if constexpr (requires { visit(value, words); }) {
        visit(value, words);
    } else if constexpr (requires { Value::CreateLayer(0); }) {
        visit.Grow(value);
        for (int i = 0; i < value.GetLayerCount(); ++i)
            model::KindsOf<std::remove_pointer_t<decltype(value.GetLayer(0))>>::With(
                *value.GetLayer(i), [&](auto& layer) { Each(layer, visit); });
    } else if constexpr (requires { Value::CreateAxis(); }) {
        visit.Grow(value);
        for (int i = 0; i < value.GetAxisCount(); ++i) Each(*value.GetAxis(i), visit);
    } else if constexpr (model::HasFields<Value>) {
        model::EachField(
            value,
            [&](const auto& field, auto& member) {
                if (field.name != "type" || !std::is_polymorphic_v<Value>) Each(member, visit, field.words);
            });
    } else {
        visit.Grow(value);
        for (int i = 0; i < value.size(); ++i) Each(value[i], visit);
    }
}

/// Gives every value a number of its own, in the order of the fields, and lists two items. Switches are on; what a
/// drawing branches by stays as it is: kinds of scales, backgrounds, lines and colours, and axes that are followed.
class Number {
public:
    void operator()(bool& value, Words) { value = true; }
    void operator()(std::int32_t& value, Words words) {
        const Words branching[] = {model::words::scaleType, model::words::background, model::words::lineType};
        if (std::none_of(std::begin(branching), std::end(branching),
                         [&](Words branch) { return branch.data() == words.data(); }))
            value = ++m_last;
    }
    void operator()(double& value, Words) { value = ++m_last + 0.5; }
    void operator()(CChartString& text, Words) { text = ("t" + std::to_string(++m_last)).c_str(); }
    void operator()(CChartColor& color, Words) { color.m_color = static_cast<std::uint32_t>(++m_last); }
    void operator()(CChartRaisedEffect& effect, Words) { effect.m_value = ++m_last; }
    void operator()(unsigned char&, Words) {}
    void operator()(CXYChartAxis*&, Words) {}
    void operator()(std::int32_t (&)[5], Words) {}
    void Grow(auto& list) {
        if constexpr (requires { list.push_back({}); })
            for (int i = 0; i < 2; ++i) list.push_back({});
    }

private:
    int m_last = 0;
};

/// Any number, any code, texts, lists, layers, and axes that follow each other.
class Random {
public:
    explicit Random(unsigned seed) : m_random(seed) {}

    template <model::HasFields Object> Object Make() {
        Object object;
        Each(object, *this);
        if constexpr (std::is_same_v<Object, CXYChart>) Relate(object);
        return object;
    }
    int Below(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }

    void operator()(std::int32_t& value, Words words) {
        if (!words.empty() && Below(8) != 0)
            value =
                static_cast<std::int32_t>(words[static_cast<std::size_t>(Below(static_cast<int>(words.size())))].code);
        else
            value = Below(8) == 0 ? static_cast<std::int32_t>(m_random()) : Below(601) - 100;
    }
    void operator()(unsigned char& value, Words) { value = static_cast<unsigned char>(1 << Below(6)); }
    void operator()(bool& value, Words) { value = Below(2) != 0; }
    void operator()(std::uint32_t& value, Words) { value = static_cast<std::uint32_t>(m_random()); }
    void operator()(double& value, Words) {
        using Limits = std::numeric_limits<double>;
        constexpr double kOdd[] = {
            0.0, -0.0, 0.1, 1e300, 1.7e308, -1.7e308,           1e15, 5e-324, 6.2e10, -1, 1,   Limits::quiet_NaN(),
            0.5, 100,  9e9, 1000,  1e17,    Limits::infinity(), 90,   -1e300, 0.01,   12, -90, -Limits::infinity()};
        value = Below(4) == 0 ? kOdd[Below(std::ssize(kOdd))] : std::uniform_real_distribution(-100.0, 400.0)(m_random);
    }
    void operator()(CChartString& text, Words) {
        constexpr const char* kTexts[] = {"",
                                          "plain",
                                          "two\nlines",
                                          "\"quoted\" \\",
                                          "\xEA\xB7\xB8\xEB\xA6\xBC",
                                          "{value}%",
                                          "{value|mmm}",
                                          "{",
                                          "<*size=40*>big<*/*>",
                                          "\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d",
                                          "LiberationSerif-Bold.ttf",
                                          "a text that is far too long for any place where it may stand in a chart"};
        text = kTexts[Below(std::ssize(kTexts))];
    }
    void operator()(std::int32_t (&order)[5], Words) {
        for (std::int32_t& pane : order) pane = Below(7) - 1;
    }
    void operator()(CXYChartAxis*&, Words) {} // see Relate

    void Grow(auto& list) {
        using List = std::remove_reference_t<decltype(list)>;
        for (int i = Below(4); i > 0; --i) {
            if constexpr (requires { List::CreateAxis(); }) {
                list.AddAxis(List::CreateAxis());
            } else if constexpr (requires { List::CreateLayer(0); }) {
                if (auto* layer = List::CreateLayer(Below(9))) list.AddLayer(layer);
            } else {
                list.push_back({});
            }
        }
    }

private:
    void Relate(CXYChart& chart) {
        const auto any = [&] { return chart.m_axes.GetSafeAxis(Below(chart.m_axes.GetAxisCount() + 1) - 1); };
        for (CXYChartAxis* axis : {&chart.m_x2Axis, &chart.m_y2Axis}) axis->m_syncAxis = any();
        for (int i = 0; i < chart.m_axes.GetAxisCount(); ++i) chart.m_axes.GetAxis(i)->m_syncAxis = any();
        for (int i = 0; i < chart.m_layers.GetLayerCount(); ++i) chart.m_layers.GetLayer(i)->m_yAxis = any();
    }

    std::mt19937 m_random;
};
} // namespace models
