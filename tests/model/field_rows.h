#pragma once

// Every field of the value classes as a row: its class, type, name and default. A row can show the field of a
// new object, tell where it stands, and tell whether copying and assigning take it along.

#include "tests/model/surface_fake.h"
#include <charteditors/charteditors.h>
#include <sstream>
#include <string>
#include <type_traits>
#include <vector>

namespace model_test {

struct FieldRow {
    const char* owner;
    const char* name;
    std::string expected;   ///< the default, as shown
    std::string (*shown)(); ///< the field of a new object
    std::ptrdiff_t (*offset)();
    std::string (
        *copied)(); ///< what goes wrong when the field is changed and the object copied; empty if nothing
};

extern const std::vector<FieldRow> layoutFields;
extern const std::vector<FieldRow> xyFields;
extern const std::vector<FieldRow> roundFields;
extern const std::vector<FieldRow> financeFields;

// How a value is shown.

template <class Number>
requires std::is_arithmetic_v<Number> std::string show(Number number) {
    std::ostringstream out;
    out << +number;
    return out.str();
}
inline std::string show(bool flag) {
    return flag ? "true" : "false";
}
inline std::string show(const std::string& text) {
    return text;
}
inline std::string show(const char* text) {
    return std::string("text ") + text;
}
inline std::string show(const CChartString& text) {
    return show(text.data());
}
inline std::string show(const CXYChartAxis* axis) {
    return axis ? "an axis" : "no axis";
}
inline std::string show(std::nullptr_t) {
    return "no axis";
}
inline std::string show(const CChartColor& color) {
    std::ostringstream out;
    out << "colour " << color.m_type << ' ' << std::hex << color.m_color << ' ' << color.m_direction << ' '
        << color.m_patternFile.data();
    return out.str();
}
inline std::string show(const CChartFont& font) {
    return std::string("font ") + font.m_faceName.data() + ' ' + font.m_fileName.data() + ' ' +
           show(font.m_size);
}
inline std::string show(const CChartRaisedEffect& effect) {
    return "effect " + show(effect.m_effectType) + ' ' + show(effect.m_value) + ' ' +
           show(effect.m_direction);
}
inline std::string show(const CXYChartAxisMgr& axes) {
    return show(axes.GetAxisCount());
}
template <class List>
requires requires(const List& list) {
    list.GetLayerCount();
}
std::string show(const List& layers) {
    return show(layers.GetLayerCount());
}
template <class List>
requires requires(const List& list) {
    list.begin();
}
std::string show(const List& list) {
    return show(list.size());
}

inline const std::string defaultFont = "font (Default) gulim.ttc 12";
inline const std::string defaultEffect = "effect 0 0 8";

inline CChartColor General(std::uint32_t value) {
    CChartColor color;
    color.m_color = value;
    return color;
}

// How a value is changed so that it shows differently.

template <class Number>
requires std::is_arithmetic_v<Number>
void change(Number& number) {
    number = static_cast<Number>(number + 1);
}
inline void change(bool& flag) {
    flag = !flag;
}
inline void change(CChartString& text) {
    text += "+";
}
inline void change(CXYChartAxis*& axis) {
    static CXYChartAxis other;
    axis = &other;
}
inline void change(CChartColor& color) {
    color.m_type = 1;
    color.m_color++;
    color.m_direction = 45;
    color.m_patternFile = "pattern.png";
}
inline void change(CChartFont& font) {
    font.m_faceName = "Face";
    font.m_fileName = "face.ttf";
    font.m_size = 9;
}
inline void change(CChartRaisedEffect& effect) {
    effect.m_effectType = 1;
    effect.m_value = 2;
    effect.m_direction = 4;
}
inline void change(CXYChartAxisMgr& axes) {
    axes.AddAxis(CXYChartAxisMgr::CreateAxis());
}
template <class List>
requires requires(List& list) {
    List::CreateLayer(0);
}
void change(List& layers) {
    layers.AddLayer(List::CreateLayer(0));
}
template <class List>
requires requires(List& list) {
    list.begin();
}
void change(List& list) {
    list.push_back({});
}

/// `field` gives the field of an object.
template <class Object, class Field>
std::string copyFault(Field field) {
    Object source;
    const std::string before = show(field(source));
    change(field(source));
    const std::string changed = show(field(source));
    const Object copy(source);
    Object assigned;
    assigned = source;
    if (changed == before)
        return "the row changes nothing";
    if (show(field(copy)) != changed)
        return "not copied: " + show(field(copy));
    if (show(field(assigned)) != changed)
        return "not assigned: " + show(field(assigned));
    return {};
}

#define FIELD(Class, Type, field, expected)                                                                  \
    {                                                                                                        \
#Class, #field, show(expected),                                                                        \
            [] {                                                                                               \
                static_assert(std::is_same_v<std::remove_cvref_t<decltype((std::declval<Class&>().field))>, Type>); \
                return show(Class().field);                                                                    \
            },                                                                                                 \
            [] {                                                                                               \
                const Class object;                                                                            \
                return reinterpret_cast<const char*>(&object.field) - reinterpret_cast<const char*>(&object);  \
            },                                                                                                 \
            [] { return copyFault<Class>([](auto& object) -> auto& { return object.field; }); },     \
    }

} // namespace model_test
