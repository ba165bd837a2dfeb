#include "editors/framework/form.h"

#include "editors/framework/mnemonics.h"

#include "platform/widgets/field_changed.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QSignalBlocker>

namespace {

const char* const kNoFormat = "---------------------------------";

/// What a screen reader says and a script finds: the label without its colon.
QString NameOf(const QString& label) {
    QString name = label.trimmed();
    if (name.endsWith(u':')) {
        name.chop(1);
    }
    return name;
}

std::vector<const char*> Listed(const char* const* texts) {
    std::vector<const char*> result;
    for (; *texts != nullptr; ++texts) {
        result.push_back(*texts);
    }
    return result;
}

} // namespace

CForm::CForm(CDialog& page, std::function<void()> notify)
    : m_page(page), m_notify(std::move(notify)), m_bands(new QVBoxLayout) {
    page.SetControls(this);
}

CForm::CForm(CDialog& page, QWidget& owner) : CForm(page, [&owner] { SendFieldChanged(&owner, 0); }) {}

CForm::~CForm() {
    if (m_bands->parent() == nullptr) {
        delete m_bands; // the table was never ended
    }
}

void CForm::Band() {
    m_columns = new QHBoxLayout;
    m_bands->addLayout(m_columns);
    m_column = nullptr;
}

void CForm::Column() {
    if (m_columns == nullptr) {
        Band();
    }
    m_column = new QVBoxLayout;
    m_columns->addLayout(m_column);
}

QGroupBox* CForm::Group(const char* caption) {
    if (m_column == nullptr) {
        Column();
    }
    auto* box = new QGroupBox(QString::fromUtf8(caption), &m_page);
    box->setObjectName(NameOf(box->title()));
    m_parts = new QHBoxLayout(box);
    m_column->addWidget(box);
    Part();
    return box;
}

void CForm::Part() {
    m_group = new QGridLayout;
    m_group->setColumnStretch(1, 1);
    m_parts->addLayout(m_group, 1);
    m_parts->setAlignment(m_group, Qt::AlignTop);
}

void CForm::Grow() {
    m_group->setRowStretch(m_group->rowCount() - 1, 1);
    m_parts->setAlignment(m_group, {});
    m_column->setStretchFactor(m_parts->parentWidget(), 1);
    m_bands->setStretchFactor(m_columns, 1);
    m_grows = true;
}

CIntegerRow& CForm::Integer(const char* label, CBinding<std::int32_t> field) {
    return Make<CIntegerRow>(label, std::move(field));
}

CRealRow& CForm::Real(const char* label, CBinding<double> field) {
    return Make<CRealRow>(label, std::move(field));
}

CCheckRow& CForm::Check(const char* label, CBinding<bool> field) {
    return Make<CCheckRow>(nullptr, std::move(field), label);
}

CComboRow& CForm::Combo(const char* label, CBinding<std::int32_t> field, std::vector<const char*> texts) {
    return Make<CComboRow>(label, std::move(field), texts);
}

CComboRow& CForm::Alignment(const char* label, CBinding<std::int32_t> field) {
    return Combo(label, std::move(field), Listed(AlignmentTexts()))
        .Mapped(AlignmentToIndex, IndexToAlignment);
}

CComboRow& CForm::Side(const char* label, CBinding<std::int32_t> field) {
    return Combo(label, std::move(field), Listed(SideTexts())).Mapped(SideToIndex, IndexToSide);
}

CRadioRow& CForm::Radio(CBinding<std::int32_t> field, std::vector<const char*> texts) {
    return Make<CRadioRow>(nullptr, std::move(field), texts);
}

CTextRow& CForm::Text(const char* label, CBinding<CChartString> field) {
    return Make<CTextRow>(label, std::move(field), false);
}

CTextRow& CForm::Lines(const char* label, CBinding<CChartString> field) {
    CTextRow& row = Make<CTextRow>(label, std::move(field), true);
    m_group->itemAtPosition(m_group->rowCount() - 1, 0)->setAlignment(Qt::AlignTop);
    return row;
}

void CForm::Formats(CTextRow& row, const std::vector<const char*>& texts) {
    auto* combo = new QComboBox(&m_page);
    combo->addItem(QString::fromUtf8(kNoFormat));
    for (const char* text : texts) {
        combo->addItem(QString::fromUtf8(text));
    }
    combo->setAccessibleName(QStringLiteral("Formats"));
    Place(combo);
    m_formats.push_back([combo, &row] {
        // The first row that begins with the text that stands in the edit.
        const int found = row.Mirror().isEmpty() ? 0 : combo->findText(row.Mirror(), Qt::MatchStartsWith);
        combo->setCurrentIndex(std::max(found, 0));
    });
    QObject::connect(combo, &QComboBox::activated, combo, [combo, &row](int index) {
        if (index > 0) {
            row.Take(FromEditText(combo->itemText(index)));
            combo->setCurrentIndex(index);
        }
    });
    row.WhenTyped([combo] { combo->setCurrentIndex(0); });
}

void CForm::Place(QWidget* widget) {
    m_group->addWidget(widget, m_group->rowCount(), 0, 1, 2);
}

void CForm::AddRow(std::unique_ptr<CFormRow> row, const char* label, QWidget* control) {
    const int line = m_group->rowCount();
    if (label == nullptr) {
        m_group->addWidget(control, line, 0, 1, 2);
    } else {
        auto* text = new QLabel(QString::fromUtf8(label), &m_page);
        text->setBuddy(control);
        m_group->addWidget(text, line, 0);
        m_group->addWidget(control, line, 1);
        row->SetLabel(NameOf(text->text()));
        control->setAccessibleName(row->Label());
        control->setObjectName(row->Label());
    }
    m_rows.push_back(std::move(row));
}

void CForm::AddList(std::unique_ptr<CListBase> list) {
    Place(list->Widget());
    Grow();
    m_lists.push_back(std::move(list));
}

void CForm::Done() {
    if (!m_grows) {
        m_bands->addStretch();
    }
    if (m_page.layout() == nullptr) {
        m_bands->setContentsMargins(6, 6, 6, 6);
        m_page.setLayout(m_bands);
    }
    AssignMnemonics(m_page);
    Show(false);
    for (const auto& list : m_lists) {
        list->Fill();
    }
    for (const auto& select : m_formats) {
        select();
    }
}

QLayout* CForm::Layout() const {
    return m_bands;
}

bool CForm::Exchange(bool read) {
    for (const auto& row : m_rows) {
        if (!row->Exchange(read)) {
            m_bad = row.get();
            return false;
        }
    }
    return true;
}

bool CForm::UpdateDataSafe() {
    if (m_complaining) {
        return false; // the box below takes the focus from another edit, which must not complain as well
    }
    if (m_page.UpdateData(true)) {
        return true;
    }
    m_complaining = true;
    QMessageBox(QMessageBox::Warning, m_page.window()->windowTitle(),
                QStringLiteral("\"%1\" must be %2.").arg(m_bad->Label(), m_bad->Wants()), QMessageBox::Ok,
                &m_page)
        .exec();
    m_page.UpdateData(false);
    m_bad->SelectText();
    m_complaining = false;
    return false;
}

bool CForm::CommitFocused() {
    const QWidget* focus = m_page.window()->focusWidget();
    for (const auto& row : m_rows) {
        if (focus != nullptr && row->Owns(focus)) {
            row->Commit();
            return true;
        }
    }
    return false;
}

void CForm::FieldChanged(int key) {
    for (const auto& row : m_rows) {
        if (row->TakeField(key)) {
            break;
        }
    }
    Notify();
}

void CForm::Show(bool itemsOnly) {
    for (const auto& row : m_rows) {
        if (!itemsOnly || row->OfItem()) {
            row->Load();
        }
    }
    m_page.UpdateData(false);
}
