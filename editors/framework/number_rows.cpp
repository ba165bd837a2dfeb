#include "editors/framework/number_rows.h"

#include "editors/framework/form.h"
#include "platform/rounding.h"
#include "platform/widgets/numeric_edit.h"

#include <cmath>

CNumberBase::CNumberBase(CForm& form) : CEditRow(form), m_edit(new CNumericEdit(&form.Page())) {
    Watch(m_edit);
    QObject::connect(m_edit, &CNumericEdit::Pressed, m_edit, [this](int direction) {
        Press(direction);
        Settle();
        Form().Page().UpdateData(false);
        StoreAndTell();
    });
}

QWidget* CNumberBase::Control() const {
    return m_edit;
}

void CNumberBase::SelectText() {
    m_edit->SelectAll();
}

void CNumberBase::ShowUnit(const char* unit) {
    Form().PlaceBehind(*m_edit, unit);
}

QString CNumberBase::ControlText() const {
    return m_edit->Text();
}

void CNumberBase::WriteText(const QString& text) {
    m_edit->SetText(text);
    Written();
}

CIntegerRow& CIntegerRow::DigitsOnly() {
    m_edit->SetDigitsOnly();
    return *this;
}

CIntegerRow& CIntegerRow::Unsigned() {
    m_unsigned = true;
    return *this;
}

CIntegerRow& CIntegerRow::FloorOfPresses(std::int32_t floor) {
    m_pressFloor = floor;
    return *this;
}

CIntegerRow& CIntegerRow::SnapPresses() {
    m_snaps = true;
    return *this;
}

bool CIntegerRow::Exchange(bool read) {
    using Limits = std::numeric_limits<std::int32_t>;
    if (read) {
        const qlonglong ceiling =
            m_unsigned ? qlonglong{std::numeric_limits<std::uint32_t>::max()} : Limits::max();
        bool good = false;
        const qlonglong typed = m_edit->Text().trimmed().toLongLong(&good);
        if (!good || typed < Limits::min() || typed > ceiling)
            return false;
        m_mirror = static_cast<std::int32_t>(typed);
    }
    Limit();
    if (!read) {
        WriteText(m_unsigned ? QString::number(static_cast<std::uint32_t>(m_mirror))
                             : QString::number(m_mirror));
    }
    return true;
}

void CIntegerRow::Press(int direction) {
    using Limits = std::numeric_limits<std::int32_t>;
    const std::int64_t next = std::int64_t{m_mirror} + std::int64_t{direction} * m_step;
    m_mirror = static_cast<std::int32_t>(std::clamp<std::int64_t>(next, m_pressFloor, Limits::max()));
    if (m_snaps) {
        Limit();
        const float steps = static_cast<float>(m_mirror) * (1.0F / static_cast<float>(m_step)) + 0.5F;
        m_mirror = static_cast<std::int32_t>(steps) * m_step;
    }
}

CRealRow& CRealRow::Unrounded() {
    m_rounded = false;
    return *this;
}

bool CRealRow::Exchange(bool read) {
    if (read) {
        bool good = false;
        const double typed = m_edit->Text().trimmed().toDouble(&good);
        if (!good || !std::isfinite(typed))
            return false;
        m_mirror = typed;
    }
    if (m_rounded || !std::isfinite(m_mirror))
        m_mirror = RoundTo(m_mirror, 2);
    Limit();
    if (!read)
        WriteText(QString::number(m_mirror, 'g', 15));
    return true;
}

void CRealRow::Press(int direction) {
    m_mirror += direction * m_step;
}
