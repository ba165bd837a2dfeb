#pragma once
// What the rows of a form have in common. A row holds one mirror, the page's memory of what its control
// shows, and knows how to load it from the model, exchange it with the control and store it into the model.

#include "editors/framework/binding.h"

#include <QObject>
#include <QString>
#include <functional>
#include <memory>
#include <utility>

class CForm;
class QWidget;

class CFormRow {
public:
    explicit CFormRow(CForm& form) : m_form(form) {}
    CFormRow(const CFormRow&) = delete;
    CFormRow& operator=(const CFormRow&) = delete;
    virtual ~CFormRow() = default;

    virtual QWidget* Control() const = 0;
    /// The list whose item the row shows, null for none.
    virtual const void* Owner() const { return nullptr; }
    /// Model into mirror.
    virtual void Load() {}
    /// After all rows have been loaded and their controls written.
    virtual void Loaded() {}
    /// Between mirror and control; false when the control holds what cannot be read.
    virtual bool Exchange(bool /*read*/) { return true; }
    /// Mirror into model; false when there is nowhere to store it.
    virtual bool Store() { return false; }
    /// After a change has been stored and told.
    virtual void Afterwards() {}
    /// Commits, if `focus` is the row's text or number edit.
    virtual bool CommitIfIn(const QWidget* /*focus*/) { return false; }
    /// Whether the row's edit holds a text that has not been committed.
    virtual bool Uncommitted() const { return false; }
    /// The member of the model that the row edits, in the item of that number or in the present one (-1).
    virtual CMember Member(int /*item*/) const { return {}; }
    /// How the value at such a member is told, also one of another object.
    virtual QString TextAt(const void* /*member*/) const { return {}; }
    /// For a row of an item: the value of a new item, null text where the row has none, and taking it.
    virtual QString FreshText() const { return {}; }
    virtual void TakeFresh() {}
    /// The key that the row's field sends, 0 for a row without a field.
    virtual int Key() const { return 0; }
    /// Whether a change is told even if there was nowhere to store it.
    bool TellsAlways() const { return m_tellsAlways; }
    /// For a control that could not be read: what it wants, and its text selected for a new try.
    virtual QString Wants() const { return {}; }
    virtual void SelectText() {}

    /// Greys the row and its label, or brings them back.
    void SetEnabled(bool enabled);
    /// Greys what the values of the page say. Called after every change of them.
    virtual void ShowState();
    /// What shows while the mouse rests on the row or its label, and what screen readers tell of it.
    void SetTip(const QString& tip);
    /// The name for screen readers and scripts.
    void SetName(const QString& name);
    QString Name() const;
    void SetLabel(QWidget* label) { m_label = label; }
    QWidget* Label() const { return m_label; } ///< null for none

protected:
    CForm& Form() const { return m_form; }
    QWidget* Page() const;
    /// A click or a choice in `control`: the focused edit commits, then the row is read and stored.
    void Chosen(QWidget& control);
    void Chosen() { Chosen(*Control()); }
    /// The end of every change.
    void StoreAndTell(bool tell = true);

    std::function<bool()> m_enabledIf; ///< none: always
    bool m_tellsAlways = true;
    bool m_validated = true; ///< a click counts only if all of the page can be read

private:
    CForm& m_form;
    QWidget* m_label = nullptr;
};

/// A row with a text that is committed when it is left: what numbers and texts have in common.
class CEditRow : public CFormRow {
public:
    using CFormRow::CFormRow;

    bool CommitIfIn(const QWidget* focus) override;
    bool Uncommitted() const override { return ControlText() != m_settled; }
    /// Reads, normalises, stores and, if `tell`, tells: what leaving the control does. `pressed` as in
    /// CForm::UpdateDataSafe.
    void Commit(bool tell = true, bool pressed = false);

protected:
    virtual QString ControlText() const = 0;
    /// Calls Leave when `control` loses the focus.
    void Watch(QWidget* control);
    /// The mirror now holds what the model holds: the text that shows it next needs no commit.
    void Settle() { m_settling = true; }
    /// To be called when the control has been written.
    void Written();

    bool m_quietOnLeave = false;
    bool m_regardless = false;

private:
    void Leave(Qt::FocusReason reason);

    std::unique_ptr<QObject> m_watch; ///< of the control, which can lose the focus after the row is gone
    QString m_settled;                ///< the text that needs no commit
    bool m_settling = false;
};

/// A row over a binding. `Self` is the row itself, for what reads on from one setting to the next; `Base` one
/// of the rows above.
template <class Self, class T, class Base = CFormRow>
class CValueRow : public Base {
public:
    CValueRow(CForm& form, CBinding<T> field) : Base(form), m_field(std::move(field)) {}

    /// More to do when the model has been written and before anybody is told.
    Self& Then(std::function<void()> then) {
        m_then = std::move(then);
        return Me();
    }
    /// A click counts even while another control holds what cannot be read.
    Self& Unvalidated() {
        this->m_validated = false;
        return Me();
    }
    /// Greys the row while `enabled` is false.
    Self& EnabledIf(std::function<bool()> enabled) {
        this->m_enabledIf = std::move(enabled);
        return Me();
    }
    /// What the value means: its unit, its range, and what a special value stands for.
    Self& Tip(const char* tip) {
        this->SetTip(QString::fromUtf8(tip));
        return Me();
    }
    /// Another name for screen readers and scripts than the label.
    Self& Named(const char* name) {
        this->SetName(QString::fromUtf8(name));
        return Me();
    }

    const void* Owner() const override { return m_field.Owner(); }
    void Load() override { m_mirror = m_field.Value(); }
    bool Store() override {
        const bool stored = m_field.Store(m_mirror);
        if (stored && m_then)
            m_then();
        return stored;
    }
    void Afterwards() override { m_field.Afterwards(); }
    CMember Member(int item) const override { return m_field.Member(item); }
    QString TextAt(const void* member) const override { return Shown(m_field.ValueAt(member)); }
    QString FreshText() const override {
        return m_field.HasFresh() ? Shown(m_field.FreshValue()) : QString();
    }
    void TakeFresh() override {
        m_field.Store(m_field.FreshValue());
        if (m_then)
            m_then();
    }

protected:
    /// A value as the row tells it.
    virtual QString Shown(const T& value) const {
        if constexpr (std::is_same_v<T, bool>)
            return value ? QStringLiteral("on") : QStringLiteral("off");
        else if constexpr (std::is_floating_point_v<T>)
            return QString::number(value, 'g', 6);
        else if constexpr (std::is_integral_v<T>)
            return QString::number(value);
        else if constexpr (std::is_same_v<T, QString>)
            return u'"' + value + u'"';
        else
            return {};
    }
    Self& Me() { return static_cast<Self&>(*this); }

    CBinding<T> m_field;
    T m_mirror{};

private:
    std::function<void()> m_then;
};
