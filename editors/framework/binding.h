#pragma once
// Where the value of a row lives: a field of the model, or of the item that is selected in a list. With no
// item selected a value is still shown, a default item's, but there is nowhere to store a change.

#include <functional>
#include <utility>

template <class T>
class CBinding {
public:
    /// A field of the model. It must outlive the page.
    CBinding(T& field) : m_shown([&field] { return &field; }), m_target([&field] { return &field; }) {}

    /// A field of an item: the one to show, and the one to store into, null for nowhere.
    CBinding(std::function<const T*()> shown, std::function<T*()> target)
        : m_shown(std::move(shown)), m_target(std::move(target)), m_ofItem(true) {}

    const T& Shown() const { return *m_shown(); }
    T* Target() const { return m_target(); }
    bool OfItem() const { return m_ofItem; }

private:
    std::function<const T*()> m_shown;
    std::function<T*()> m_target;
    bool m_ofItem = false;
};
