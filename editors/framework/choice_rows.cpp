#include "editors/framework/choice_rows.h"

#include "editors/framework/form.h"
#include "platform/widgets/clear_buttons.h"
#include "platform/widgets/complaint.h"
#include "platform/widgets/quiet_combo.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QSignalBlocker>

CCheckRow::CCheckRow(CForm& form, CBinding<bool> field, const char* text)
    : CValueRow(form, std::move(field)), m_box(new CCheckBox(QString::fromUtf8(text), &form.Page())) {
    // Not by its clicks alone: a screen reader toggles it.
    QObject::connect(m_box, &QCheckBox::toggled, m_box, [this](bool on) {
        Show(!on); // until the focused edit has committed, which reads the page
        if (TakeFocus(*m_box)) {
            Show(on);
            Chosen();
        }
    });
}

QWidget* CCheckRow::Control() const {
    return m_box;
}

CCheckRow& CCheckRow::NotLoaded() {
    m_loaded = false;
    return *this;
}

void CCheckRow::Load() {
    m_mirror = m_loaded && m_field.Value();
}

bool CCheckRow::Exchange(bool read) {
    if (read)
        m_mirror = m_box->isChecked();
    else
        Show(m_mirror);
    return true;
}

void CCheckRow::Show(bool on) {
    const QSignalBlocker quiet(m_box);
    m_box->setChecked(on);
}

CComboRow::CComboRow(CForm& form, CBinding<std::int32_t> field, std::vector<CChoice> choices)
    : CValueRow(form, std::move(field)), m_choices(std::move(choices)), m_box(new CQuietCombo(&form.Page())) {
    for (const CChoice& choice : m_choices.Rows())
        m_box->addItem(QString::fromUtf8(choice.text));
    QObject::connect(m_box, &QComboBox::activated, m_box, [this] { Chosen(); });
}

QWidget* CComboRow::Control() const {
    return m_box;
}

CComboRow& CComboRow::Otherwise(int row) {
    m_otherwise = row;
    return *this;
}

CComboRow& CComboRow::RowsFrom(std::function<QStringList()> rows) {
    m_rowsFrom = std::move(rows);
    return *this;
}

void CComboRow::Load() {
    if (m_rowsFrom) {
        const QStringList rows = m_rowsFrom();
        m_box->clear();
        m_box->addItems(rows);
        m_choices = CChoices(std::vector<CChoice>(static_cast<std::size_t>(rows.size()), CChoice(nullptr)));
    }
    CValueRow::Load();
}

bool CComboRow::Exchange(bool read) {
    if (!read)
        m_box->setCurrentIndex(m_choices.RowOf(m_mirror, m_otherwise));
    else
        m_mirror = m_choices.CodeOf(m_box->currentIndex(), m_mirror);
    return true;
}

QString CComboRow::Shown(const std::int32_t& code) const {
    return m_box->itemText(m_choices.RowOf(code, m_otherwise));
}

CRadioRow::CRadioRow(CForm& form, CBinding<std::int32_t> field, std::vector<CChoice> choices)
    : CValueRow(form, std::move(field)), m_choices(std::move(choices)), m_box(new QWidget(&form.Page())),
      m_buttons(new QButtonGroup(m_box)) {
    auto* row = new QHBoxLayout(m_box);
    row->setContentsMargins(0, 0, 0, 0);
    for (const CChoice& choice : m_choices.Rows()) {
        auto* button = new CRadioButton(QString::fromUtf8(choice.text), m_box);
        button->setObjectName(button->text());
        button->setAccessibleName(button->text());
        m_buttons->addButton(button, choice.code);
        row->addWidget(button);
    }
    row->addStretch();
    QObject::connect(m_buttons, &QButtonGroup::idToggled, m_box, [this](int id, bool on) {
        if (on)
            Chosen(*m_buttons->button(id));
    });
}

CRadioRow& CRadioRow::States(std::function<State(int code)> states) {
    m_states = std::move(states);
    return *this;
}

void CRadioRow::ShowState() {
    CValueRow::ShowState();
    const QSignalBlocker quiet(m_buttons);
    m_buttons->setExclusive(false); // so that none can be on
    for (QAbstractButton* button : m_buttons->buttons()) {
        const int code = m_buttons->id(button);
        button->setEnabled(StateOf(code) == Live);
        button->setChecked(code == m_mirror && StateOf(code) != GreyAndOff);
    }
    m_buttons->setExclusive(true);
    for (QAbstractButton* button : m_buttons->buttons()) { // Tab goes to the one that is on
        const bool tab = button->isChecked() || m_buttons->checkedButton() == nullptr;
        button->setFocusPolicy(tab ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

bool CRadioRow::Exchange(bool read) {
    if (!read)
        ShowState();
    else if (m_buttons->checkedId() >= 0)
        m_mirror = m_buttons->checkedId();
    return true;
}
