#pragma once
// Rows for numbers with arrows. The mirror, not the text, is what a press counts from.

#include "editors/framework/form_rows.h"

#include <algorithm>
#include <cstdint>
#include <limits>

class CNumericEdit;

/// What integers and reals have in common and what does not depend on the type.
class CNumberBase : public CEditRow {
public:
    explicit CNumberBase(CForm& form);

    QWidget* Control() const override;
    void SelectText() override;

protected:
    void ShowUnit(const char* unit);
    QString ControlText() const override;
    void WriteText(const QString& text);
    virtual void Press(int direction) = 0;

    CNumericEdit* m_edit;
};

template <class Self, class T>
class CNumberRow : public CValueRow<Self, T, CNumberBase> {
public:
    using CValueRow<Self, T, CNumberBase>::CValueRow;

    /// What one press of an arrow adds or takes away. 1 if not said.
    Self& Step(T step) {
        m_step = step;
        return this->Me();
    }
    /// As for every row; the range, which is said first, is added in front of a semicolon.
    Self& Tip(const char* tip) {
        const QString text = QString::fromUtf8(tip);
        const QString meaning = text.section(u';', 0, 0);
        this->SetTip(meaning + RangeText() + text.sliced(meaning.size()));
        return this->Me();
    }
    Self& Floor(T floor) { return Range(floor, std::numeric_limits<T>::max()); }
    Self& Range(T floor, T ceiling) {
        m_floor = floor;
        m_ceiling = ceiling;
        return this->Me();
    }
    /// A limit that hangs on more than the value.
    Self& LimitedBy(std::function<T(T)> limit) {
        m_limit = std::move(limit);
        return this->Me();
    }
    /// A text behind the number, such as "(days)".
    Self& Unit(const char* unit) {
        this->ShowUnit(unit);
        return this->Me();
    }
    /// A typed value is stored on leaving without telling anybody.
    Self& QuietOnLeave() {
        this->m_quietOnLeave = true;
        return this->Me();
    }
    /// The text of the edit is taken as it stands, and the change is told even if it could not be read.
    Self& Regardless() {
        this->m_regardless = true;
        return this->Me();
    }

    void Load() override {
        CValueRow<Self, T, CNumberBase>::Load();
        this->Settle();
    }

protected:
    void Limit() {
        this->m_mirror = std::clamp(this->m_mirror, m_floor, m_ceiling);
        if (m_limit)
            this->m_mirror = m_limit(this->m_mirror);
    }

    T m_step = 1;

private:
    QString RangeText() const {
        if (m_floor == std::numeric_limits<T>::lowest())
            return {};
        const QString floor = QStringLiteral(", %1 ").arg(m_floor);
        return floor + (m_ceiling == std::numeric_limits<T>::max() ? QStringLiteral("or more")
                                                                   : QStringLiteral("to %1").arg(m_ceiling));
    }

    T m_floor = std::numeric_limits<T>::lowest();
    T m_ceiling = std::numeric_limits<T>::max();
    std::function<T(T)> m_limit;
};

class CIntegerRow : public CNumberRow<CIntegerRow, std::int32_t> {
public:
    using CNumberRow::CNumberRow;

    CIntegerRow& DigitsOnly();
    /// Shows the 32 bits without a sign.
    CIntegerRow& Unsigned();
    /// A limit for presses alone: what is typed may pass it.
    CIntegerRow& FloorOfPresses(std::int32_t floor);
    /// What a press gives is rounded to a whole number of steps.
    CIntegerRow& SnapPresses();

    bool Exchange(bool read) override;
    QString Wants() const override { return QStringLiteral("a whole number"); }

protected:
    void Press(int direction) override;

private:
    bool m_unsigned = false;
    bool m_snaps = false;
    std::int32_t m_pressFloor = std::numeric_limits<std::int32_t>::min();
};

class CRealRow : public CNumberRow<CRealRow, double> {
public:
    using CNumberRow::CNumberRow;

    /// Keeps all decimals; two if not said.
    CRealRow& Unrounded();

    bool Exchange(bool read) override;
    QString Wants() const override { return QStringLiteral("a number"); }

protected:
    void Press(int direction) override;

private:
    bool m_rounded = true;
};
