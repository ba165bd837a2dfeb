#pragma once
// A list of objects that are edited in a dialog of their own: "Add...", "Delete", "Modify..." and double
// click, and where a page has them "Copy", "^" and "v".
//
//     CObjectList& layers = m_form.Objects({.count = ..., .caption = ..., ...},
//     LoadChartString(ChartText::SelectLayer)); m_form.Radio(layers.Bind<int>([this](int row) { ... },
//     [this](int row, int kind) { ... }), {...});

#include "editors/framework/list_editor.h"

/// What a list of objects asks of its page.
struct CObjects {
    std::function<int()> count;
    std::function<QString(int row)> caption;
    /// Runs the dialog for a new object and appends what it gives; false when it was cancelled.
    std::function<bool()> add;
    std::function<void(int row)> erase;
    /// Runs the dialog for an object and puts what it gives in its place; false when it was cancelled.
    std::function<bool(int row)> modify;
    /// Appends a copy; none when there is no "Copy".
    std::function<void(int row)> copy{};
    /// Lets two objects change places; none when the order is of no interest.
    std::function<void(int row, int other)> exchange{};
    /// The member of the model that holds the objects.
    CMember member{};
};

class CObjectList : public CListBase {
public:
    CObjectList(CForm& form, CSimpleCombo& combo, CObjects objects, const char* noneSelected);

    /// No row is selected when the page starts.
    CObjectList& NoneAtStart() {
        m_noneAtStart = true;
        return *this;
    }
    /// A value of the selected object, for a row of the form. `get` is asked with -1 while none is selected;
    /// `set` is called for a row only.
    template <class T>
    CBinding<T> Bind(std::function<T(int row)> get, std::function<void(int row, const T&)> set) {
        return {[this, get = std::move(get)] { return get(Selected()); },
                [this, set = std::move(set)](const T& value) {
                    const int row = Selected();
                    if (row >= 0)
                        set(row, value);
                    return row >= 0;
                },
                this};
    }

    void Fill() override;
    int Count() const override { return m_objects.count(); }
    QString CaptionOf(int index) const override { return m_objects.caption(index); }
    CMember Member() const override { return m_objects.member; }

protected:
    bool Append() override { return m_objects.add(); }
    void Erase(int index) override { m_objects.erase(index); }

private:
    void Modify();
    void Copy();
    /// Up (-1) or down (1) by one row; from an end to the other.
    void Move(int direction);

    CObjects m_objects;
    bool m_noneAtStart = false;
};
