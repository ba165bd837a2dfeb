#pragma once
// The kinds of row that a form is made of. Each holds one mirror, the page's memory of what its control
// shows, and knows how to load it from the model, exchange it with the control and store it into the model.

#include "editors/framework/binding.h"
#include "editors/framework/conventions.h"

#include <QString>
#include <cstdint>
#include <limits>
#include <optional>
#include <vector>

class CForm;
class CNumericEdit;
class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QWidget;

class CFormRow {
public:
    explicit CFormRow(CForm& form) : m_form(form) {}
    CFormRow(const CFormRow&) = delete;
    CFormRow& operator=(const CFormRow&) = delete;
    virtual ~CFormRow() = default;

    virtual QWidget* Control() const = 0;
    virtual bool OfItem() const = 0;
    /// Model into mirror.
    virtual void Load() = 0;
    /// Between mirror and control; false when the control holds what cannot be read.
    virtual bool Exchange(bool read) = 0;
    /// Mirror into model; false when there is nowhere to store it.
    virtual bool Store() = 0;
    /// Whether `focus` is the row's text or number edit: what Enter commits.
    virtual bool Owns(const QWidget* focus) const;
    /// Text of a control that could not be read: what it wants, and its selection for a new try.
    virtual QString Wants() const { return {}; }
    virtual void SelectText() {}
    /// The field of the row has sent its message with this key.
    virtual bool TakeField(int key);

    /// The text edit, loss of focus or Enter: reads, normalises, stores, notifies.
    void Commit();
    void SetLabel(const QString& label) { m_label = label; }
    const QString& Label() const { return m_label; }
    CForm& Form() const { return m_form; }

protected:
    QWidget* PageWidget() const;
    /// Called after a commit, the model written.
    virtual void Committed() { NotifyChange(); }
    void NotifyChange();
    /// A click or a choice: `checked` reads the page with validation, otherwise the click counts anyway.
    void Chosen(bool checked);

private:
    CForm& m_form;
    QString m_label;
};

/// A number with arrows: what integers and reals have in common.
class CNumberRow : public CFormRow {
public:
    QWidget* Control() const override;
    bool Owns(const QWidget* focus) const override;
    void SelectText() override;

protected:
    explicit CNumberRow(CForm& form);
    virtual void Press(int direction) = 0;
    void Committed() override;

    CNumericEdit* m_edit;
    bool m_quietOnLeave = false;

private:
    void Leave();
    bool m_leaving = false;
};

class CIntegerRow : public CNumberRow {
public:
    CIntegerRow(CForm& form, CBinding<std::int32_t> field);

    CIntegerRow& Step(int step);
    CIntegerRow& Floor(std::int32_t floor);
    CIntegerRow& Range(std::int32_t floor, std::int32_t ceiling);
    CIntegerRow& DigitsOnly();

    bool OfItem() const override { return m_field.OfItem(); }
    void Load() override { m_mirror = m_field.Shown(); }
    bool Exchange(bool read) override;
    bool Store() override;
    QString Wants() const override { return QStringLiteral("a whole number"); }

protected:
    void Press(int direction) override;

private:
    CBinding<std::int32_t> m_field;
    std::int32_t m_mirror = 0;
    std::int32_t m_step = 1;
    std::int32_t m_floor = std::numeric_limits<std::int32_t>::min();
    std::int32_t m_ceiling = std::numeric_limits<std::int32_t>::max();
};

class CRealRow : public CNumberRow {
public:
    CRealRow(CForm& form, CBinding<double> field);

    CRealRow& Step(double step);
    CRealRow& Floor(double floor);
    CRealRow& Range(double floor, double ceiling);
    /// Limits that hold only while `when` is true.
    CRealRow& RangeWhen(double floor, double ceiling, std::function<bool()> when);
    CRealRow& Unrounded();
    /// A typed value is stored without telling anybody.
    CRealRow& QuietOnLeave();

    bool OfItem() const override { return m_field.OfItem(); }
    void Load() override { m_mirror = m_field.Shown(); }
    bool Exchange(bool read) override;
    bool Store() override;
    QString Wants() const override { return QStringLiteral("a number"); }

protected:
    void Press(int direction) override;

private:
    void Limit();

    CBinding<double> m_field;
    double m_mirror = 0;
    double m_step = 1;
    double m_floor = -std::numeric_limits<double>::infinity();
    double m_ceiling = std::numeric_limits<double>::infinity();
    std::function<bool()> m_limited;
    bool m_rounded = true;
};

class CCheckRow : public CFormRow {
public:
    CCheckRow(CForm& form, CBinding<bool> field, const char* text);

    /// A click counts even while another control holds what cannot be read.
    CCheckRow& Unvalidated();
    /// The page shows it unchecked at first, whatever the model holds.
    CCheckRow& NotLoaded();
    /// More to do after the model has been written and before anybody is told.
    CCheckRow& Then(std::function<void()> then);

    QWidget* Control() const override;
    bool OfItem() const override { return m_field.OfItem(); }
    void Load() override;
    bool Exchange(bool read) override;
    bool Store() override;

private:
    CBinding<bool> m_field;
    QCheckBox* m_box;
    bool m_mirror = false;
    bool m_loaded = true;
    bool m_validated = true;
    std::function<void()> m_then;
};

/// A drop-down list.
class CComboRow : public CFormRow {
public:
    CComboRow(CForm& form, CBinding<std::int32_t> field, const std::vector<const char*>& texts);

    /// The stored code of a row and the row of a code; row n is code n otherwise.
    CComboRow& Mapped(int (*rowOf)(int code), int (*codeOf)(int row));
    CComboRow& Then(std::function<void()> then);

    QWidget* Control() const override;
    bool OfItem() const override { return m_field.OfItem(); }
    void Load() override;
    bool Exchange(bool read) override;
    bool Store() override;

private:
    CBinding<std::int32_t> m_field;
    QComboBox* m_box;
    int m_mirror = 0;
    int (*m_rowOf)(int) = nullptr;
    int (*m_codeOf)(int) = nullptr;
    std::function<void()> m_then;
};

class CRadioRow : public CFormRow {
public:
    CRadioRow(CForm& form, CBinding<std::int32_t> field, const std::vector<const char*>& texts);

    QWidget* Control() const override { return m_box; }
    bool OfItem() const override { return m_field.OfItem(); }
    void Load() override { m_mirror = m_field.Shown(); }
    bool Exchange(bool read) override;
    bool Store() override;

private:
    CBinding<std::int32_t> m_field;
    QWidget* m_box;
    QButtonGroup* m_buttons;
    int m_mirror = 0;
};

class CTextRow : public CFormRow {
public:
    CTextRow(CForm& form, CBinding<CChartString> field, bool multiLine);

    /// More to do after a commit that has reached the model: the caption in a list, a combo of formats.
    CTextRow& Then(std::function<void()> then);

    QWidget* Control() const override;
    /// Called while a person types.
    void WhenTyped(const std::function<void()>& typed);
    bool OfItem() const override { return m_field.OfItem(); }
    void Load() override;
    bool Exchange(bool read) override;
    bool Store() override;
    bool Owns(const QWidget* focus) const override;
    /// Takes a ready-made text, stores it and notifies.
    void Take(const QString& text);
    const QString& Mirror() const { return m_mirror; }

protected:
    void Committed() override;

private:
    CBinding<CChartString> m_field;
    QLineEdit* m_line = nullptr;
    QPlainTextEdit* m_lines = nullptr; ///< instead of m_line
    QString m_mirror;
    std::function<void()> m_then;
};

/// A field: a child dialog of the page that shows one compound value and has its own way of changing it.
/// `Field` has a type `Value`, SetKey, SetValueAndShow and GetValue, and is a CDialog.
template <class Field>
class CFieldRow : public CFormRow {
public:
    CFieldRow(CForm& form, CBinding<typename Field::Value> value, int key)
        : CFormRow(form), m_value(std::move(value)), m_key(key) {
        m_widget.SetKey(key);
        m_widget.Create(PageWidget());
    }

    Field& Widget() { return m_widget; }
    QWidget* Control() const override { return const_cast<Field*>(&m_widget); }
    bool OfItem() const override { return m_value.OfItem(); }
    void Load() override { m_widget.SetValueAndShow(m_value.Shown()); }
    bool Exchange(bool /*read*/) override { return true; }
    bool Store() override {
        typename Field::Value* target = m_value.Target();
        if (target != nullptr) {
            *target = m_widget.GetValue();
        }
        return target != nullptr;
    }
    bool TakeField(int key) override { return key == m_key && (Store(), true); }

private:
    CBinding<typename Field::Value> m_value;
    int m_key;
    Field m_widget;
};
