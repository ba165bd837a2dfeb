#pragma once
// One description of the value classes' own fields: a line a field, in the order of declaration. What must
// know all fields of a class, to compare two objects, to tell what differs or to write one down, goes through
// these tables; a test compares them with the headers.

#include "model/fields/words.h"
#include <tuple>
#include <type_traits>

namespace model {

/// One field: its name in texts, the member, and the words of its codes.
template <class Object, class Value>
struct Field {
    constexpr Field(std::string_view fieldName, Value Object::*fieldMember, Words fieldWords = {})
        : name(fieldName), member(fieldMember), words(fieldWords) {}
    std::string_view name;
    Value Object::*member;
    Words words;
};

/// `table` is a tuple of the class's own fields; `Base` names the class whose fields come before them.
template <class Object>
struct FieldsOf;

/// A class that adds no field to those of its base.
template <class BaseClass>
struct NoFields {
    using Base = BaseClass;
    static constexpr std::tuple<> table = {};
};

template <class Object>
concept HasFields = requires {
    FieldsOf<Object>::table;
};

/// Calls `visit(field, value)` for each field of `object`, those of its base first. A layer shows the fields
/// of its static type.
template <class Object, class Visit>
void EachField(Object& object, Visit&& visit) {
    using Class = std::remove_const_t<Object>;
    if constexpr (requires { typename FieldsOf<Class>::Base; }) {
        using Base = typename FieldsOf<Class>::Base;
        EachField(static_cast<std::conditional_t<std::is_const_v<Object>, const Base, Base>&>(object), visit);
    }
    std::apply([&](const auto&... field) { (visit(field, object.*field.member), ...); },
               FieldsOf<Class>::table);
}

/// The kinds of a family of layers. Two numbers may share a class's fields: a kind that adds none is left
/// out.
template <class... Kinds>
struct KindList {
    /// Calls `action` with `layer` as the kind that it is; false if it is none of them.
    template <class Layer, class Action>
    static bool With(Layer& layer, Action&& action) {
        return (As<std::conditional_t<std::is_const_v<Layer>, const Kinds, Kinds>>(layer, action) || ...);
    }

private:
    template <class Kind, class Layer, class Action>
    static bool As(Layer& layer, Action& action) {
        auto* kind = dynamic_cast<Kind*>(&layer);
        if (kind)
            action(*kind);
        return kind != nullptr;
    }
};

/// The kinds of the family that `Layer` is the base of.
template <class Layer>
struct KindsOf;

} // namespace model
