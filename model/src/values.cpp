#include "model/fields/values.h"
#include "model/fields/places.h"
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

template <class T>
void Copy(void* to, const void* from) {
    *static_cast<T*>(to) = *static_cast<const T*>(from);
}
using Panes = std::int32_t[5];
template <>
void Copy<Panes>(void* to, const void* from) {
    std::ranges::copy(*static_cast<const Panes*>(from), *static_cast<Panes*>(to));
}

/// What is edited as one value, though it has parts.
template <class T>
constexpr bool kIsWhole = std::is_same_v<T, CChartColor> || std::is_same_v<T, CChartFont> ||
                          std::is_same_v<T, CChartRaisedEffect> || std::is_same_v<T, Panes>;

/// Walks an object and gathers its places.
class Walk {
public:
    Places places;

    template <HasFields Object>
    void Add(const std::string& path, const Object& object, Words = {}) {
        Put(path, {}, object, kIsWhole<Object> ? Place::Whole : Place::Group);
        EachField(object, [&](const auto& field, const auto& value) {
            Add(path.empty() ? std::string(field.name) : path + '.' + std::string(field.name), value,
                field.words);
        });
    }
    void Add(const std::string& path, const std::int32_t& value, Words words) {
        Put(path, CodeText(value, words), value);
    }
    void Add(const std::string& path, const unsigned char& value, Words words) {
        Put(path, CodeText(value, words), value);
    }
    void Add(const std::string& path, const double& value, Words) { Put(path, NumberText(value), value); }
    void Add(const std::string& path, const bool& value, Words) {
        Put(path, value ? "true" : "false", value);
    }
    void Add(const std::string& path, const CChartString& value, Words) { Put(path, value.data(), value); }
    void Add(const std::string& path, const std::uint32_t& color, Words) {
        constexpr std::string_view kDigits = "0123456789abcdef";
        std::string text = "0x";
        for (int shift = 28; shift >= 0; shift -= 4)
            text += kDigits[color >> shift & 15];
        Put(path, text, color);
    }
    void Add(const std::string& path, const Panes& order, Words words) {
        Put(path, {}, order, Place::Whole);
        for (int i = 0; i < 5; ++i)
            Add(Item(path, i), order[i], words);
    }
    void Add(const std::string& path, CXYChartAxis* const& axis, Words) {
        const int index = m_axes ? m_axes->GetAxisIndex(axis) : -1;
        Put(path, !axis ? "none" : index < 0 ? "gone" : NumberText(index), axis);
        places.back().joins = true;
    }
    void Add(const std::string& path, const Container auto& list, Words) {
        Put(path, NumberText(list.size()), list, Place::List);
        for (int i = 0; i < list.size(); ++i)
            Add(Item(path, i), list[i], {});
    }
    void Add(const std::string& path, const CXYChartAxisMgr& axes, Words) {
        Put(path, NumberText(axes.GetAxisCount()), axes, Place::List);
        for (int i = 0; i < axes.GetAxisCount(); ++i)
            Add(Item(path, i), *axes.GetAxis(i));
    }
    template <class Layers>
    requires requires(const Layers& layers) { layers.GetLayerCount(); }
    void Add(const std::string& path, const Layers& layers, Words) {
        Put(path, NumberText(layers.GetLayerCount()), layers, Place::List);
        places.back().replace = [](void* to, const void* from, int index) {
            if (auto* copy = Layers::CloneLayer(static_cast<const Layers*>(from)->GetLayer(index))) {
                static_cast<Layers*>(to)->DeleteLayer(index);
                static_cast<Layers*>(to)->InsertLayer(copy, index);
            }
        };
        for (int i = 0; i < layers.GetLayerCount(); ++i)
            if (const auto* layer = layers.GetLayer(i))
                AddKind(Item(path, i), *layer);
    }
    template <class Layer>
    void AddKind(const std::string& path, const Layer& layer) {
        KindsOf<Layer>::With(
            layer, [&](const auto& kind) { Add(path, kind); });
    }
    void SetAxes(const CXYChartAxisMgr& axes) { m_axes = &axes; }

private:
    static std::string Item(const std::string& path, int index) {
        return path + '[' + NumberText(index) + ']';
    }
    template <class T>
    void Put(const std::string& path, std::string text, const T& value, Place::Kind kind = Place::Single) {
        places.push_back({path, std::move(text), kind, &value, TypeTag<T>(), Copy<T>, nullptr, false});
    }

    const CXYChartAxisMgr* m_axes = nullptr;
};

template <class Object>
Places Gather(const Object& object) {
    Walk walk;
    if constexpr (std::is_same_v<Object, CXYChart>)
        walk.SetAxes(object.m_axes);
    if constexpr (std::is_polymorphic_v<Object> && requires { object.GetType(); })
        walk.AddKind({}, object);
    else
        walk.Add({}, object);
    return std::move(walk.places);
}

/// The single values of all places.
std::vector<Value> ValuesIn(Places&& places) {
    std::vector<Value> values;
    values.reserve(places.size());
    for (Place& place : places)
        if (place.kind == Place::Single || place.kind == Place::List)
            values.push_back({std::move(place.path), std::move(place.text)});
    return values;
}

} // namespace

Places PlacesOf(const CChartLayout& object) {
    return Gather(object);
}
Places PlacesOf(const CXYChart& object) {
    return Gather(object);
}
Places PlacesOf(const CPieChart& object) {
    return Gather(object);
}
Places PlacesOf(const CPolarChart& object) {
    return Gather(object);
}
Places PlacesOf(const CFinanceChart& object) {
    return Gather(object);
}
Places PlacesOf(const CAngularMeter& object) {
    return Gather(object);
}
Places PlacesOf(const CLinearMeter& object) {
    return Gather(object);
}
Places PlacesOf(const CXYChartAxis& object) {
    return Gather(object);
}
Places PlacesOf(const CXYChartLayer& object) {
    return Gather(object);
}
Places PlacesOf(const CPolarLayer& object) {
    return Gather(object);
}

std::vector<Value> Values(const CChartLayout& object) {
    return ValuesIn(Gather(object));
}
std::vector<Value> Values(const CXYChart& object) {
    return ValuesIn(Gather(object));
}
std::vector<Value> Values(const CPieChart& object) {
    return ValuesIn(Gather(object));
}
std::vector<Value> Values(const CPolarChart& object) {
    return ValuesIn(Gather(object));
}
std::vector<Value> Values(const CFinanceChart& object) {
    return ValuesIn(Gather(object));
}
std::vector<Value> Values(const CAngularMeter& object) {
    return ValuesIn(Gather(object));
}
std::vector<Value> Values(const CLinearMeter& object) {
    return ValuesIn(Gather(object));
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
