#pragma once
// Every single value below a model, to be changed in place.

#include "model/fields/layout.h"
#include "model/fields/round.h"
#include "model/fields/shared.h"
#include <random>
#include <string>

namespace leaves {

using model::Words;

template <class List>
concept Container = requires(List& list) {
    list.begin();
};

/// Calls `visit(path, value, words)` for each value; colours, effects and fonts' names stand as one.
template <class Visit>
class Walk {
public:
    explicit Walk(Visit& visit) : m_visit(visit) {}

    template <class Value>
    void Add(const std::string& path, Value& value, Words words = {}) {
        if constexpr (std::is_same_v<Value, CPolarLayerMgr>) {
            for (int i = 0; i < value.GetLayerCount(); ++i)
                AddLayer(path + '[' + std::to_string(i) + ']', *value.GetLayer(i));
        } else if constexpr (std::is_same_v<Value, CChartColor> ||
                             std::is_same_v<Value, CChartRaisedEffect> ||
                             std::is_same_v<Value, CChartString>) {
            m_visit(path, value, words);
        } else if constexpr (model::HasFields<Value>) {
            model::EachField(
                value,
                [&](const auto& field, auto& member) {
                    Add(path + (path.empty() ? "" : ".") + std::string(field.name), member, field.words);
                });
        } else if constexpr (Container<Value>) {
            for (int i = 0; i < value.size(); ++i)
                Add(path + '[' + std::to_string(i) + ']', value[i]);
        } else {
            m_visit(path, value, words);
        }
    }

private:
    void AddLayer(const std::string& path, CPolarLayer& layer) {
        if (auto* line = dynamic_cast<CPolarLineLayer*>(&layer))
            Add(path, *line);
        else
            Add(path, layer);
    }

    Visit& m_visit;
};

template <class Model, class Visit>
void Each(Model& model, Visit&& visit) {
    Walk<std::remove_reference_t<Visit>>(visit).Add("", model);
}

/// Another value with another look.
class Change {
public:
    void operator()(const std::string&, bool& value, Words) const { value = !value; }
    void operator()(const std::string&, std::int32_t& value, Words words) const {
        if (words.empty()) {
            value += value >= 100 ? 20 : 3;
            return;
        }
        std::size_t next = 0;
        while (next < words.size() && words[next].code != value)
            ++next;
        value = static_cast<std::int32_t>(words[(next + 1) % words.size()].code);
    }
    void operator()(const std::string&, double& value, Words) const { value = value * 1.5 + 1; }
    void operator()(const std::string& path, CChartString& value, Words) const {
        value = path.ends_with("fileName") ? "LiberationSerif-Bold.ttf" : "Other";
    }
    void operator()(const std::string&, CChartColor& value, Words) const {
        value.m_color = value.m_color == 0xa05a2c ? 0x2ca05a : 0xa05a2c;
    }
    void operator()(const std::string&, CChartRaisedEffect& value, Words) const { value.m_value += 5; }
};

/// Any value at all: usual ones, the ends of a type, codes that do not exist, texts of every sort.
class Randomize {
public:
    explicit Randomize(unsigned seed) : m_random(seed) {}

    int Below(int bound) { return std::uniform_int_distribution(0, bound - 1)(m_random); }
    template <class Value, std::size_t Count>
    Value OneOf(const Value (&values)[Count]) {
        return values[Below(static_cast<int>(Count))];
    }

    void operator()(const std::string&, bool& value, Words) { value = Below(2) == 1; }
    void operator()(const std::string&, std::int32_t& value, Words) {
        constexpr std::int32_t kEnds[] = {-1, INT32_MIN, INT32_MAX, 1000000, -5000};
        value = Below(8) ? Below(Below(2) ? 14 : 250) : OneOf(kEnds);
    }
    void operator()(const std::string&, double& value, Words) {
        constexpr double kEnds[] = {-1,       1e-300,   1.7e308,
                                    -1.7e308, 1e15,     std::numeric_limits<double>::quiet_NaN(),
                                    INFINITY, -INFINITY};
        value = Below(8) ? Below(4000) / (Below(2) ? 10.0 : 1000.0) - Below(2) * 100 : OneOf(kEnds);
    }
    void operator()(const std::string&, CChartString& value, Words) {
        constexpr const char* kTexts[] = {
            "",
            "a",
            "Liberation",
            "gulim.ttc",
            "LiberationSerif-Bold.ttf",
            "no such file",
            "{value}",
            "{",
            " ",
            "<*size=40*>big<*/*>",
            "two\nlines",
            "\xff\xfe",
            "\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d",
            "a text that is far too long for any place where it may stand in a chart"};
        value = OneOf(kTexts);
    }
    void operator()(const std::string&, CChartColor& value, Words) {
        value.m_type = Below(9) - 1;
        value.m_color = static_cast<std::uint32_t>(m_random());
        value.m_direction = Below(400) - 20;
        value.m_patternFile = "no such file";
    }
    void operator()(const std::string&, CChartRaisedEffect& value, Words) {
        value.m_effectType = Below(6) - 1;
        value.m_value = Below(8) ? Below(20) - 10 : INT32_MAX;
        value.m_direction = Below(10);
    }
    template <class List>
    void Fill(List& list) {
        for (int left = Below(4); left > 0; --left)
            list.push_back({});
    }

private:
    std::mt19937 m_random;
};

} // namespace leaves
