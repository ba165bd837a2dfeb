#pragma once
// A list of items with "Add" and "Delete", and the rows of the selected item. What does not depend on the
// items stands in CListBase; CListEditor adds the container.

#include "editors/framework/binding.h"

#include <QImage>
#include <QString>
#include <functional>
#include <type_traits>
#include <utility>

class CForm;
class CSimpleCombo;

class CListBase {
public:
    CListBase(CForm& form, CSimpleCombo& combo, const char* noneSelected);
    CListBase(const CListBase&) = delete;
    CListBase& operator=(const CListBase&) = delete;
    virtual ~CListBase() = default;

    /// The selected row, -1 for none.
    int Selected() const;
    /// Fills the list anew and selects the first item.
    virtual void Fill();
    /// The same, but keeps the row that is selected.
    void FillAgain();
    /// Selects an item as a click does.
    void Select(int index);
    virtual int Count() const = 0;
    virtual QString CaptionOf(int index) const = 0;
    /// The member of the model that holds the items.
    virtual CMember Member() const { return {}; }
    CSimpleCombo& Combo() const { return m_combo; }
    /// Shows an item's values, or a default item's for -1. Writes nothing into the model.
    void SyncFromItem(int index);
    /// Replaces the selected row by its new caption.
    void RefreshCaption();
    /// Shows the selected item's new colour in its row.
    void RefreshSwatch() { ShowSwatch(Selected()); }

protected:
    /// Appends a new item; false when the person has changed their mind.
    virtual bool Append() = 0;
    virtual void Erase(int index) = 0;
    /// A sample of the item's colour, null for items without one. `size` is in pixels of the screen.
    virtual QImage SwatchOf(int /*index*/, QSize /*size*/) const { return {}; }
    /// A fresh default item to show while nothing is selected.
    virtual void RenewDefault() {}

    void MakeButtons(); ///< "Add" and "Delete" below the list
    CForm& Form() const { return m_form; }
    void Add();
    void Remove();
    /// The selected row, or a warning and -1; the first row is selected then.
    int SelectedOrWarn();
    /// Fills the list anew and shows the item of that row.
    void FillAndSelect(int row);
    /// Selects the row of the item just appended, shows it, and tells.
    void ShowAppended();

private:
    void ShowItem(int index);
    void ShowSwatch(int row);

    CForm& m_form;
    CSimpleCombo& m_combo;
    const char* m_noneSelected;
};

/// `caption` with the number of a row, from 1, for its %d and the first line of `text` for its %s.
QString RowCaption(const char* caption, int index, const QString& text = {});

template <class Container>
class CListEditor : public CListBase {
public:
    using Item = std::remove_reference_t<decltype(std::declval<Container&>()[0])>;

    CListEditor(CForm& form, CSimpleCombo& combo, Container& items, const char* caption,
                const char* noneSelected)
        : CListBase(form, combo, noneSelected), m_items(items), m_caption(caption) {
        MakeButtons();
    }

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
        m_name = [text](const Item& item) { return ValueAs<QString>(item.*text); };
        return Bind<T>([text](Item& item) -> T& { return item.*text; }, [this] { RefreshCaption(); });
    }
    /// The colour of the selected item that stands as a swatch in the rows, for a row of the form. `draw`
    /// makes a sample of it.
    template <class T>
    CBinding<T> Swatch(T Item::*color, QImage (*draw)(const T& color, QSize size)) {
        m_swatch = [color, draw](const Item& item, QSize size) { return draw(item.*color, size); };
        return Bind<T>([color](Item& item) -> T& { return item.*color; }, [this] { RefreshSwatch(); });
    }
    /// The same, for containers of colours.
    CBinding<Item> Swatch(QImage (*draw)(const Item& color, QSize size)) {
        m_swatch = draw;
        return Bind<Item>([](Item& item) -> Item& { return item; }, [this] { RefreshSwatch(); });
    }
    /// The text that stands in the captions, for containers of texts.
    CBinding<Item> Caption() {
        m_name = [](const Item& item) { return ValueAs<QString>(item); };
        return Bind<Item>([](Item& item) -> Item& { return item; }, [this] { RefreshCaption(); });
    }

    int Count() const override { return m_items.size(); }
    QString CaptionOf(int index) const override {
        return RowCaption(m_caption, index, m_name ? m_name(m_items[index]) : QString());
    }
    CMember Member() const override { return CMember::Of(m_items); }

protected:
    bool Append() override {
        m_items.push_back(m_make ? m_make() : Item());
        return true;
    }
    void Erase(int index) override { m_items.erase(m_items.begin() + index); }
    QImage SwatchOf(int index, QSize size) const override {
        return m_swatch ? m_swatch(m_items[index], size) : QImage();
    }
    void RenewDefault() override { m_default = m_make ? m_make() : Item(); }

private:
    template <class T, class Part>
    CBinding<T> Bind(Part part, std::function<void()> afterwards = {}) {
        CBinding<T> binding(
            [this, part]() -> T { return part(Selected() < 0 ? m_default : m_items[Selected()]); },
            [this, part](const T& value) {
                const int row = Selected();
                if (row >= 0)
                    part(m_items[row]) = value;
                return row >= 0;
            },
            this, std::move(afterwards));
        binding.At(
            [this, part](int item) {
                const int row = item < 0 ? Selected() : item;
                return row < 0 || row >= Count() ? CMember() : CMember::Of(part(m_items[row]));
            },
            [](const void* member) { return *static_cast<const T*>(member); });
        return binding.Fresh([part]() -> T {
            Item fresh{};
            return part(fresh);
        });
    }

    Container& m_items;
    const char* m_caption;
    std::function<Item()> m_make;
    std::function<QString(const Item&)> m_name;
    std::function<QImage(const Item&, QSize)> m_swatch;
    Item m_default;
};
