#pragma once
// The row of a field: a child dialog of the page that shows one compound value and has its own way of
// changing it.

#include "editors/framework/form_rows.h"

/// `Field` is a CDialog with a type `Value`, SetKey, SetValueAndShow and GetValue.
template <class Field>
class CFieldRow : public CValueRow<CFieldRow<Field>, typename Field::Value> {
    using Base = CValueRow<CFieldRow<Field>, typename Field::Value>;

public:
    CFieldRow(CForm& form, CBinding<typename Field::Value> value, int key)
        : Base(form, std::move(value)), m_key(key) {
        m_widget.SetKey(key);
        m_widget.Create(this->Page());
    }

    /// While no item is selected, a change of the field is told to nobody.
    CFieldRow& OnlyWithItem() {
        this->m_tellsAlways = false;
        return *this;
    }

    Field& Widget() { return m_widget; }
    QWidget* Control() const override { return const_cast<Field*>(&m_widget); }
    int Key() const override { return m_key; }
    void Load() override { m_widget.SetValueAndShow(this->m_field.Value()); }
    bool Store() override {
        this->m_mirror = m_widget.GetValue();
        return Base::Store();
    }

protected:
    QString Shown(const typename Field::Value& value) const override { return Field::TextOf(value); }

private:
    int m_key;
    Field m_widget;
};
