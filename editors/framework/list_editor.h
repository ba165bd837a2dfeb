#pragma once
// A list of items with "Add" and "Delete", and the rows of the selected item. What does not depend on the
// type of the items stands in CListBase; CListEditor adds the container.

#include "editors/framework/binding.h"
#include "editors/framework/conventions.h"

#include <QString>
#include <functional>
#include <type_traits>

class CForm;
class CSimpleCombo;
class QPushButton;
class QWidget;

class CListBase {
public:
    CListBase(CForm& form, const char* caption, const char* noneSelected);
    CListBase(const CListBase&) = delete;
    CListBase& operator=(const CListBase&) = delete;
    virtual ~CListBase() = default;

    /// The selected row, -1 for none or a row that is gone.
    int Selected() const;
    /// Fills the list anew and selects the first item.
    void Fill();
    /// Shows an item's values, or a default item's for -1. Writes nothing into the model.
    void SyncFromItem(int index);
    /// Builds the caption of the selected row anew.
    void RefreshCaption();

    QWidget* Widget() const { return m_widget; }
    CSimpleCombo& Combo() const { return *m_combo; }

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
    const char* m_caption;
    const char* m_noneSelected;
    QWidget* m_widget;
    CSimpleCombo* m_combo;
};

template <class Container>
class CListEditor : public CListBase {
public:
    using Item = std::remove_reference_t<decltype(std::declval<Container&>()[0])>;

    CListEditor(CForm& form, Container& items, const char* caption, const char* noneSelected)
        : CListBase(form, caption, noneSelected), m_items(items) {}

    /// What "Add" appends, and what shows while nothing is selected. A default-constructed item if not said.
    CListEditor& New(std::function<Item()> make) {
        m_make = std::move(make);
        return *this;
    }
    /// The text in the caption.
    template <class Text>
    CListEditor& Named(Text Item::*text) {
        m_name = [text](const Item& item) { return FromModelText(item.*text); };
        return *this;
    }

    /// A field of the selected item, for a row of the form.
    template <class T>
    CBinding<T> operator[](T Item::*field) {
        return {[this, field]() -> const T* {
                    const int row = Selected();
                    return row < 0 ? &(m_default.*field) : &(m_items[row].*field);
                },
                [this, field]() -> T* {
                    const int row = Selected();
                    return row < 0 ? nullptr : &(m_items[row].*field);
                }};
    }
    /// The selected item itself, for containers of plain values.
    CBinding<Item> Whole() {
        return {[this]() -> const Item* {
                    const int row = Selected();
                    return row < 0 ? &m_default : &m_items[row];
                },
                [this]() -> Item* {
                    const int row = Selected();
                    return row < 0 ? nullptr : &m_items[row];
                }};
    }

protected:
    int Count() const override { return m_items.size(); }
    void AppendDefault() override { m_items.push_back(m_make ? m_make() : Item()); }
    void Erase(int index) override { m_items.erase(m_items.begin() + index); }
    QString TextOf(int index) const override { return m_name ? m_name(m_items[index]) : QString(); }
    void RenewDefault() override { m_default = m_make ? m_make() : Item(); }

private:
    Container& m_items;
    std::function<Item()> m_make;
    std::function<QString(const Item&)> m_name;
    Item m_default;
};
