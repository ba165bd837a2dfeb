#pragma once
// A list of items with "Add" and "Delete", and the rows of the selected item. What does not depend on the
// type of the items stands in CListBase; CListEditor adds the container.

#include "editors/framework/binding.h"

#include <QString>
#include <functional>
#include <type_traits>

class CForm;
class CSimpleCombo;

class CListBase {
public:
    CListBase(CForm& form, CSimpleCombo& combo, const char* caption, const char* noneSelected);
    CListBase(const CListBase&) = delete;
    CListBase& operator=(const CListBase&) = delete;
    virtual ~CListBase() = default;

    /// The selected row, -1 for none.
    int Selected() const;
    /// Fills the list anew and selects the first item.
    void Fill();
    /// Shows an item's values, or a default item's for -1. Writes nothing into the model.
    void SyncFromItem(int index);
    /// Replaces the selected row by its new caption.
    void RefreshCaption();

protected:
    virtual int Count() const = 0;
    virtual void AppendDefault() = 0;
    virtual void Erase(int index) = 0;
    virtual QString TextOf(int index) const = 0;
    /// A fresh default item to show while nothing is selected.
    virtual void RenewDefault() = 0;

private:
    void Add();
    void Remove();
    void FillRows();
    QString CaptionOf(int index) const;

    CForm& m_form;
    CSimpleCombo& m_combo;
    const char* m_caption;
    const char* m_noneSelected;
};

template <class Container>
class CListEditor : public CListBase {
public:
    using Item = std::remove_reference_t<decltype(std::declval<Container&>()[0])>;

    CListEditor(CForm& form, CSimpleCombo& combo, Container& items, const char* caption,
                const char* noneSelected)
        : CListBase(form, combo, caption, noneSelected), m_items(items) {}

    /// What "Add" appends, and what shows while nothing is selected. A default-constructed item if not said.
    CListEditor& New(std::function<Item()> make) {
        m_make = std::move(make);
        return *this;
    }

    /// A field of the selected item, for a row of the form.
    template <class T>
    CBinding<T> operator[](T Item::*field) {
        return Bind<T>([field](Item& item) -> T& { return item.*field; });
    }
    /// The text of the selected item that stands in the captions, for a row of the form.
    template <class T>
    CBinding<T> Caption(T Item::*text) {
        m_name = [text](const Item& item) { return FromModelText(item.*text); };
        return Bind<T>([text](Item& item) -> T& { return item.*text; }, [this] { RefreshCaption(); });
    }
    /// The same two, for containers of plain values.
    CBinding<Item> Whole() {
        return Bind<Item>([](Item& item) -> Item& { return item; });
    }
    CBinding<Item> WholeCaption() {
        m_name = [](const Item& item) { return ValueAs<QString>(item); };
        return Bind<Item>([](Item& item) -> Item& { return item; }, [this] { RefreshCaption(); });
    }

protected:
    int Count() const override { return m_items.size(); }
    void AppendDefault() override { m_items.push_back(m_make ? m_make() : Item()); }
    void Erase(int index) override { m_items.erase(m_items.begin() + index); }
    QString TextOf(int index) const override { return m_name ? m_name(m_items[index]) : QString(); }
    void RenewDefault() override { m_default = m_make ? m_make() : Item(); }

private:
    template <class T, class Part>
    CBinding<T> Bind(Part part, std::function<void()> afterwards = {}) {
        return {[this, part]() -> T { return part(Selected() < 0 ? m_default : m_items[Selected()]); },
                [this, part](const T& value) {
                    const int row = Selected();
                    if (row >= 0)
                        part(m_items[row]) = value;
                    return row >= 0;
                },
                this, std::move(afterwards)};
    }

    Container& m_items;
    std::function<Item()> m_make;
    std::function<QString(const Item&)> m_name;
    Item m_default;
};
