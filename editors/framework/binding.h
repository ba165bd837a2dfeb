#pragma once
// Where the value of a row lives: a field of the model, of the item that is selected in a list, or of the
// current one of several objects. With no item selected a value is still shown, a default item's, but there
// is nowhere to store a change.

#include "model/fields/type_tag.h"
#include "platform/narrow_text.h"

#include <charteditors/chart_string.h>

#include <QString>

#include <functional>
#include <memory>
#include <type_traits>
#include <utility>

/// The value as the type that a control shows: numbers, flags and codes by a cast, texts by their encoding.
template <class To, class From>
To ValueAs(const From& value) {
    if constexpr (std::is_same_v<To, QString> && std::is_same_v<From, CChartString>)
        return platform::NarrowToText(value.data());
    else if constexpr (std::is_same_v<To, CChartString> && std::is_same_v<From, QString>) {
        CChartString text;
        text = platform::TextToNarrow(value).c_str();
        return text;
    } else
        return static_cast<To>(value);
}

/// A member of the model, as its tables of fields know it: null for none.
struct CMember {
    template <class Field>
    static CMember Of(const Field& field) {
        return {&field, model::TypeTag<Field>()};
    }
    const void* address = nullptr;
    const void* type = nullptr;
};

template <class T>
class CBinding {
public:
    using Get = std::function<T()>;
    using Set = std::function<bool(const T&)>; ///< false when there is nowhere to store
    /// The member in the item of that number, or in the present one for -1.
    using Place = std::function<CMember(int item)>;
    using Read = std::function<T(const void* member)>; ///< the value at a member

    /// A field of the model. It must outlive the page.
    template <class Field>
    requires(!std::is_const_v<Field> && !requires { typename Field::Get; }) CBinding(Field& field)
        : m_get([&field] { return ValueAs<T>(field); }), m_set([&field](const T& value) {
              field = ValueAs<Field>(value);
              return true;
          }) {
        At([&field](int) { return CMember::Of(field); },
           [](const void* member) { return ValueAs<T>(*static_cast<const Field*>(member)); });
    }

    /// A value that is not simply a field. `owner` is the list whose item it belongs to, null for none;
    /// `afterwards` is called when a change has been stored and told.
    CBinding(Get get, Set set, const void* owner = nullptr, std::function<void()> afterwards = {})
        : m_get(std::move(get)), m_set(std::move(set)), m_owner(owner), m_afterwards(std::move(afterwards)) {}

    /// The same place, in another type.
    template <class Other>
    CBinding(CBinding<Other> other)
        : CBinding([other] { return ValueAs<T>(other.Value()); },
                   [other](const T& value) { return other.Store(ValueAs<Other>(value)); }, other.Owner(),
                   [other] { other.Afterwards(); }) {
        At([other](int item) { return other.Member(item); },
           [other](const void* member) { return ValueAs<T>(other.ValueAt(member)); });
        if (other.HasFresh())
            Fresh([other] { return ValueAs<T>(other.FreshValue()); });
    }

    /// For a value that is not simply a field: the member behind it, and how it is read.
    CBinding& At(Place place, Read read) {
        m_place = std::move(place);
        m_read = std::move(read);
        return *this;
    }
    /// For the values of items: that of a new one.
    CBinding& Fresh(Get fresh) {
        m_fresh = std::move(fresh);
        return *this;
    }

    T Value() const { return m_get(); }
    bool Store(const T& value) const { return m_set(value); }
    const void* Owner() const { return m_owner; }
    void Afterwards() const {
        if (m_afterwards)
            m_afterwards();
    }
    CMember Member(int item) const { return m_place ? m_place(item) : CMember(); }
    /// Of a member that Member gives, or of its like in another object.
    T ValueAt(const void* member) const { return m_read(member); }
    bool HasFresh() const { return m_fresh != nullptr; }
    T FreshValue() const { return m_fresh(); }

private:
    Get m_get;
    Set m_set;
    const void* m_owner = nullptr;
    std::function<void()> m_afterwards;
    Place m_place;
    Read m_read;
    Get m_fresh;
};

/// "The current object" of several: rows bound to it follow whichever it is. After another has become the
/// current one, CForm::LoadRows with this as the owner shows its values.
///
///     CCurrent<CPolarLayer> m_current{[this] { return m_layers[m_type]; }};
///     m_form.Text("Name:", m_current[&CPolarLayer::m_name]);
template <class Item>
class CCurrent {
public:
    /// `find` gives null while there is none: the rows then keep what they show and store nothing.
    explicit CCurrent(std::function<Item*()> find) : m_find(std::move(find)) {}
    CCurrent(const CCurrent&) = delete;
    CCurrent& operator=(const CCurrent&) = delete;

    template <class T, class Owner>
    CBinding<T> operator[](T Owner::*field) const {
        const auto shown = std::make_shared<T>(); // while there is none
        CBinding<T> binding(
            [this, field, shown] {
                if (const Item* item = m_find())
                    *shown = item->*field;
                return *shown;
            },
            [this, field, shown](const T& value) {
                Item* item = m_find();
                if (item != nullptr)
                    *shown = item->*field = value;
                return item != nullptr;
            },
            this);
        return binding.At(
            [this, field](int) {
                const Item* item = m_find();
                return item == nullptr ? CMember() : CMember::Of(item->*field);
            },
            [](const void* member) { return *static_cast<const T*>(member); });
    }

private:
    std::function<Item*()> m_find;
};
