#include "editors/framework/form_rows.h"

#include "editors/framework/form.h"
#include "platform/widgets/dialog.h"
#include "platform/widgets/numeric_edit.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QFocusEvent>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

namespace {

/// Calls `leave` when a control loses the focus for good: not to its own menu.
class CFocusWatch : public QObject {
public:
    CFocusWatch(QWidget* watched, std::function<void()> leave) : QObject(watched), m_leave(std::move(leave)) {
        watched->installEventFilter(this);
    }
    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool leaves = event->type() == QEvent::FocusOut &&
                            static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason;
        // The control finishes its own work first: it may clean up its text when it is left.
        const bool handled = QObject::eventFilter(watched, event);
        if (leaves) {
            m_leave();
        }
        return handled;
    }

private:
    std::function<void()> m_leave;
};

/// A list that is not open must not change under a wheel that only passes over it.
class CQuietCombo : public QComboBox {
public:
    using QComboBox::QComboBox;

protected:
    void wheelEvent(QWheelEvent* event) override {
        if (hasFocus()) {
            QComboBox::wheelEvent(event);
        } else {
            event->ignore();
        }
    }
};

QString Localised(const char* text) {
    return QString::fromUtf8(text);
}

} // namespace

bool CFormRow::Owns(const QWidget* /*focus*/) const {
    return false;
}

bool CFormRow::TakeField(int /*key*/) {
    return false;
}

QWidget* CFormRow::PageWidget() const {
    return &m_form.Page();
}

void CFormRow::NotifyChange() {
    m_form.Notify();
}

void CFormRow::Commit() {
    if (!m_form.UpdateDataSafe()) {
        return;
    }
    m_form.Page().UpdateData(false);
    if (Store()) {
        Committed();
    }
}

void CFormRow::Chosen(bool checked) {
    if (checked ? !m_form.UpdateDataSafe() : (m_form.Exchange(true), false)) {
        return;
    }
    if (Store()) {
        Committed();
    }
}

CNumberRow::CNumberRow(CForm& form) : CFormRow(form), m_edit(new CNumericEdit(&form.Page())) {
    new CFocusWatch(m_edit, [this] { Leave(); });
    QObject::connect(m_edit, &CNumericEdit::Pressed, m_edit, [this](int direction) {
        Press(direction);
        Form().Page().UpdateData(false);
        if (Store()) {
            NotifyChange();
        }
    });
}

QWidget* CNumberRow::Control() const {
    return m_edit;
}

bool CNumberRow::Owns(const QWidget* focus) const {
    return focus == m_edit;
}

void CNumberRow::SelectText() {
    m_edit->SelectAll();
}

void CNumberRow::Leave() {
    if (!m_edit->Touched()) {
        return;
    }
    m_leaving = true;
    Commit();
    m_leaving = false;
}

void CNumberRow::Committed() {
    if (!(m_leaving && m_quietOnLeave)) {
        NotifyChange();
    }
}

CIntegerRow::CIntegerRow(CForm& form, CBinding<std::int32_t> field)
    : CNumberRow(form), m_field(std::move(field)) {}

CIntegerRow& CIntegerRow::Step(int step) {
    m_step = step;
    return *this;
}

CIntegerRow& CIntegerRow::Floor(std::int32_t floor) {
    m_floor = floor;
    return *this;
}

CIntegerRow& CIntegerRow::Range(std::int32_t floor, std::int32_t ceiling) {
    m_floor = floor;
    m_ceiling = ceiling;
    return *this;
}

CIntegerRow& CIntegerRow::DigitsOnly() {
    m_edit->SetDigitsOnly();
    return *this;
}

bool CIntegerRow::Exchange(bool read) {
    if (read) {
        bool good = false;
        const qlonglong typed = m_edit->Text().trimmed().toLongLong(&good);
        if (!good || typed < std::numeric_limits<std::int32_t>::min() ||
            typed > std::numeric_limits<std::int32_t>::max()) {
            return false;
        }
        m_mirror = static_cast<std::int32_t>(typed);
    }
    m_mirror = std::clamp(m_mirror, m_floor, m_ceiling);
    if (!read) {
        m_edit->SetText(QString::number(m_mirror));
    }
    return true;
}

bool CIntegerRow::Store() {
    std::int32_t* target = m_field.Target();
    if (target != nullptr) {
        *target = m_mirror;
    }
    return target != nullptr;
}

void CIntegerRow::Press(int direction) {
    const std::int64_t next = std::int64_t{m_mirror} + std::int64_t{direction} * m_step;
    m_mirror = static_cast<std::int32_t>(std::clamp<std::int64_t>(
        next, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()));
}

CRealRow::CRealRow(CForm& form, CBinding<double> field) : CNumberRow(form), m_field(std::move(field)) {}

CRealRow& CRealRow::Step(double step) {
    m_step = step;
    return *this;
}

CRealRow& CRealRow::Floor(double floor) {
    m_floor = floor;
    return *this;
}

CRealRow& CRealRow::Range(double floor, double ceiling) {
    m_floor = floor;
    m_ceiling = ceiling;
    return *this;
}

CRealRow& CRealRow::RangeWhen(double floor, double ceiling, std::function<bool()> when) {
    m_limited = std::move(when);
    return Range(floor, ceiling);
}

CRealRow& CRealRow::Unrounded() {
    m_rounded = false;
    return *this;
}

CRealRow& CRealRow::QuietOnLeave() {
    m_quietOnLeave = true;
    return *this;
}

void CRealRow::Limit() {
    if (m_rounded) {
        m_mirror = RoundTo(m_mirror, 2);
    }
    if (!m_limited || m_limited()) {
        m_mirror = std::clamp(m_mirror, m_floor, m_ceiling);
    }
}

bool CRealRow::Exchange(bool read) {
    if (read) {
        bool good = false;
        const double typed = m_edit->Text().trimmed().toDouble(&good);
        if (!good || !std::isfinite(typed)) {
            return false;
        }
        m_mirror = typed;
    }
    Limit();
    if (!read) {
        m_edit->SetText(QString::number(m_mirror, 'g', 15));
    }
    return true;
}

bool CRealRow::Store() {
    double* target = m_field.Target();
    if (target != nullptr) {
        *target = m_mirror;
    }
    return target != nullptr;
}

void CRealRow::Press(int direction) {
    m_mirror += direction * m_step;
}

CCheckRow::CCheckRow(CForm& form, CBinding<bool> field, const char* text)
    : CFormRow(form), m_field(std::move(field)), m_box(new QCheckBox(Localised(text), &form.Page())) {
    QObject::connect(m_box, &QCheckBox::clicked, m_box, [this] { Chosen(m_validated); });
}

QWidget* CCheckRow::Control() const {
    return m_box;
}

CCheckRow& CCheckRow::Unvalidated() {
    m_validated = false;
    return *this;
}

CCheckRow& CCheckRow::NotLoaded() {
    m_loaded = false;
    return *this;
}

CCheckRow& CCheckRow::Then(std::function<void()> then) {
    m_then = std::move(then);
    return *this;
}

void CCheckRow::Load() {
    m_mirror = m_loaded && m_field.Shown();
}

bool CCheckRow::Exchange(bool read) {
    if (read) {
        m_mirror = m_box->isChecked();
    } else {
        m_box->setChecked(m_mirror);
    }
    return true;
}

bool CCheckRow::Store() {
    bool* target = m_field.Target();
    if (target == nullptr) {
        return false;
    }
    *target = m_mirror;
    if (m_then) {
        m_then();
    }
    return true;
}

CComboRow::CComboRow(CForm& form, CBinding<std::int32_t> field, const std::vector<const char*>& texts)
    : CFormRow(form), m_field(std::move(field)), m_box(new CQuietCombo(&form.Page())) {
    for (const char* text : texts) {
        m_box->addItem(Localised(text));
    }
    m_box->setFocusPolicy(Qt::StrongFocus);
    QObject::connect(m_box, &QComboBox::activated, m_box, [this] { Chosen(true); });
}

QWidget* CComboRow::Control() const {
    return m_box;
}

CComboRow& CComboRow::Mapped(int (*rowOf)(int), int (*codeOf)(int)) {
    m_rowOf = rowOf;
    m_codeOf = codeOf;
    return *this;
}

CComboRow& CComboRow::Then(std::function<void()> then) {
    m_then = std::move(then);
    return *this;
}

void CComboRow::Load() {
    m_mirror = m_rowOf != nullptr ? m_rowOf(m_field.Shown()) : m_field.Shown();
}

bool CComboRow::Exchange(bool read) {
    if (read) {
        m_mirror = m_box->currentIndex();
    } else {
        m_box->setCurrentIndex(m_mirror);
    }
    return true;
}

bool CComboRow::Store() {
    std::int32_t* target = m_field.Target();
    if (target == nullptr) {
        return false;
    }
    *target = m_codeOf != nullptr ? m_codeOf(m_mirror) : m_mirror;
    if (m_then) {
        m_then();
    }
    return true;
}

CRadioRow::CRadioRow(CForm& form, CBinding<std::int32_t> field, const std::vector<const char*>& texts)
    : CFormRow(form), m_field(std::move(field)), m_box(new QWidget(&form.Page())),
      m_buttons(new QButtonGroup(m_box)) {
    auto* row = new QHBoxLayout(m_box);
    row->setContentsMargins(0, 0, 0, 0);
    for (const char* text : texts) {
        auto* button = new QRadioButton(Localised(text), m_box);
        m_buttons->addButton(button, static_cast<int>(m_buttons->buttons().size()));
        row->addWidget(button);
    }
    row->addStretch();
    QObject::connect(m_buttons, &QButtonGroup::idClicked, m_box, [this] { Chosen(true); });
}

bool CRadioRow::Exchange(bool read) {
    if (read) {
        m_mirror = m_buttons->checkedId();
    } else if (QAbstractButton* button = m_buttons->button(m_mirror)) {
        button->setChecked(true);
    }
    return true;
}

bool CRadioRow::Store() {
    std::int32_t* target = m_field.Target();
    if (target != nullptr) {
        *target = m_mirror;
    }
    return target != nullptr;
}

CTextRow::CTextRow(CForm& form, CBinding<CChartString> field, bool multiLine)
    : CFormRow(form), m_field(std::move(field)) {
    if (multiLine) {
        m_lines = new QPlainTextEdit(&form.Page());
        m_lines->setTabChangesFocus(true);
        m_lines->setLineWrapMode(QPlainTextEdit::NoWrap);
    } else {
        m_line = new QLineEdit(&form.Page());
    }
    new CFocusWatch(Control(), [this] { Commit(); });
}

CTextRow& CTextRow::Then(std::function<void()> then) {
    m_then = std::move(then);
    return *this;
}

QWidget* CTextRow::Control() const {
    return m_lines != nullptr ? static_cast<QWidget*>(m_lines) : m_line;
}

void CTextRow::WhenTyped(const std::function<void()>& typed) {
    if (m_lines != nullptr) {
        QObject::connect(m_lines, &QPlainTextEdit::textChanged, m_lines, typed);
    } else {
        QObject::connect(m_line, &QLineEdit::textChanged, m_line, typed);
    }
}

bool CTextRow::Owns(const QWidget* focus) const {
    return focus == Control();
}

void CTextRow::Load() {
    m_mirror = FromModelText(m_field.Shown());
}

bool CTextRow::Exchange(bool read) {
    if (m_lines != nullptr) {
        if (read) {
            m_mirror = FromEditText(m_lines->toPlainText());
        } else if (m_lines->toPlainText() != m_mirror) {
            m_lines->setPlainText(m_mirror); // only then: it would move the caret
        }
    } else if (read) {
        m_mirror = m_line->text();
    } else if (m_line->text() != m_mirror) {
        m_line->setText(m_mirror);
    }
    return true;
}

bool CTextRow::Store() {
    CChartString* target = m_field.Target();
    if (target != nullptr) {
        *target = ToModelText(m_mirror);
    }
    return target != nullptr;
}

void CTextRow::Take(const QString& text) {
    m_mirror = text;
    Form().Page().UpdateData(false);
    if (Store()) {
        NotifyChange();
    }
}

void CTextRow::Committed() {
    NotifyChange();
    if (m_then) {
        m_then();
    }
}
