#include "model/fields/values.h"
#include <algorithm>
#include <array>
#include <cassert>
#include <charconv>
#include <map>

namespace model {

namespace {

std::string NumberText(auto number) {
    std::array<char, 32> text{};
    return {text.data(), std::to_chars(text.data(), text.data() + text.size(), number).ptr};
}

std::string CodeText(std::int64_t code, Words words) {
    const auto word = std::find_if(words.begin(), words.end(), [&](const Word& w) { return w.code == code; });
    return word == words.end() ? NumberText(code) : std::string(word->word);
}

template <class List>
concept Container = requires(const List& list) {
    list.begin();
};

/// Walks an object and gathers its values.
class Walk {
public:
    std::vector<Value> values;

    template <HasFields Object>
    void Add(const std::string& path, const Object& object, Words = {}) {
        EachField(
            object,
            [&](const auto& field, const auto& value) {
                Add(path.empty() ? std::string(field.name) : path + '.' + std::string(field.name), value,
                    field.words);
            });
    }
    void Add(const std::string& path, std::int32_t value, Words words) { Put(path, CodeText(value, words)); }
    void Add(const std::string& path, unsigned char value, Words words) { Put(path, CodeText(value, words)); }
    void Add(const std::string& path, double value, Words) { Put(path, NumberText(value)); }
    void Add(const std::string& path, bool value, Words) { Put(path, value ? "true" : "false"); }
    void Add(const std::string& path, const CChartString& value, Words) { Put(path, value.data()); }
    void Add(const std::string& path, std::uint32_t color, Words) {
        constexpr std::string_view kDigits = "0123456789abcdef";
        std::string text = "0x";
        for (int shift = 28; shift >= 0; shift -= 4)
            text += kDigits[color >> shift & 15];
        Put(path, text);
    }
    void Add(const std::string& path, const std::int32_t (&order)[5], Words words) {
        for (int i = 0; i < 5; ++i)
            Add(Item(path, i), order[i], words);
    }
    void Add(const std::string& path, CXYChartAxis* const& axis, Words) {
        const int index = m_axes ? m_axes->GetAxisIndex(axis) : -1;
        Put(path, !axis ? "none" : index < 0 ? "gone" : NumberText(index));
    }
    void Add(const std::string& path, const Container auto& list, Words) {
        Put(path, NumberText(list.size()));
        for (int i = 0; i < list.size(); ++i)
            Add(Item(path, i), list[i], {});
    }
    void Add(const std::string& path, const CXYChartAxisMgr& axes, Words) {
        Put(path, NumberText(axes.GetAxisCount()));
        for (int i = 0; i < axes.GetAxisCount(); ++i)
            Add(Item(path, i), *axes.GetAxis(i));
    }
    template <class Layers>
    requires requires(const Layers& layers) { layers.GetLayerCount(); }
    void Add(const std::string& path, const Layers& layers, Words) {
        Put(path, NumberText(layers.GetLayerCount()));
        for (int i = 0; i < layers.GetLayerCount(); ++i)
            if (const auto* layer = layers.GetLayer(i))
                KindsOf<std::remove_cvref_t<decltype(*layer)>>::With(
                    *layer, [&](const auto& kind) { Add(Item(path, i), kind); });
    }
    void SetAxes(const CXYChartAxisMgr& axes) { m_axes = &axes; }

private:
    static std::string Item(const std::string& path, int index) {
        return path + '[' + NumberText(index) + ']';
    }
    void Put(const std::string& path, std::string text) { values.push_back({path, std::move(text)}); }

    const CXYChartAxisMgr* m_axes = nullptr;
};

template <class Object>
std::vector<Value> Gather(const Object& object) {
    Walk walk;
    if constexpr (std::is_same_v<Object, CXYChart>)
        walk.SetAxes(object.m_axes);
    walk.Add({}, object);
    return std::move(walk.values);
}

} // namespace

std::vector<Value> Values(const CChartLayout& object) {
    return Gather(object);
}
std::vector<Value> Values(const CXYChart& object) {
    return Gather(object);
}
std::vector<Value> Values(const CPieChart& object) {
    return Gather(object);
}
std::vector<Value> Values(const CPolarChart& object) {
    return Gather(object);
}
std::vector<Value> Values(const CFinanceChart& object) {
    return Gather(object);
}
std::vector<Value> Values(const CAngularMeter& object) {
    return Gather(object);
}
std::vector<Value> Values(const CLinearMeter& object) {
    return Gather(object);
}

std::vector<Difference> Differences(const std::vector<Value>& from, const std::vector<Value>& to) {
    std::map<std::string_view, const std::string*> before, after;
    for (const Value& value : from)
        before[value.path] = &value.text;
    for (const Value& value : to)
        after[value.path] = &value.text;
    std::vector<Difference> found;
    for (const Value& value : to) {
        const auto old = before.find(value.path);
        if (old == before.end() || *old->second != value.text)
            found.push_back({value.path, old == before.end() ? std::string() : *old->second, value.text});
    }
    for (const Value& value : from)
        if (!after.contains(value.path))
            found.push_back({value.path, value.text, {}});
    return found;
}

} // namespace model
