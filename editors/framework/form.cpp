#include "editors/framework/form.h"

#include "editors/framework/conventions.h"
#include "editors/framework/mnemonics.h"
#include "platform/widgets/clear_buttons.h"
#include "platform/widgets/complaint.h"
#include "platform/widgets/field_changed.h"
#include "platform/widgets/numeric_edit.h"
#include "platform/widgets/simple_combo.h"
#include "resources/string_table.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <algorithm>

namespace {

/// What a screen reader says and a script finds: the label without its colon.
QString WithoutColon(const QString& label) {
    return label.endsWith(u':') ? label.chopped(1) : label;
}

} // namespace

CForm::CForm(CDialog& page, std::function<void()> notify)
    : m_page(page), m_notify(std::move(notify)), m_bands(new QVBoxLayout) {
    page.SetControls(this);
}

CForm::CForm(CDialog& page, QWidget& owner) : CForm(page, [&owner] { SendFieldChanged(&owner, 0); }) {}

CForm::~CForm() {
    m_page.SetControls(nullptr);
    if (m_bands->parent() == nullptr)
        delete m_bands; // the page was never started
}

void CForm::Band() {
    m_columns = new QHBoxLayout;
    m_columns->setSpacing(9);
    m_bands->addLayout(m_columns);
    m_column = nullptr;
    EndGroup();
}

void CForm::Column() {
    if (m_columns == nullptr)
        Band();
    m_column = new QVBoxLayout;
    m_columns->addLayout(m_column);
    EndGroup();
}

QGroupBox* CForm::Group(const char* caption) {
    auto* box = new QGroupBox(QString::fromUtf8(caption), &m_page);
    box->setObjectName(WithoutColon(box->title()));
    BeginGroup(box);
    return box;
}

void CForm::BeginGroup(QWidget* box) {
    if (m_column == nullptr)
        Column();
    m_group = box;
    m_parts = new QHBoxLayout(box);
    m_parts->setSpacing(12);
    m_column->addWidget(box);
    Part();
}

void CForm::Part() {
    m_part = new QGridLayout;
    m_part->setColumnStretch(2, 1);
    m_part->setVerticalSpacing(m_page.fontMetrics().height() / m_gapsPerLine);
    m_parts->addLayout(m_part, 1);
    m_parts->setAlignment(m_part, Qt::AlignTop);
}

void CForm::Tight() {
    m_gapsPerLine = 6;
}

void CForm::EndGroup() {
    m_group = nullptr;
}

void CForm::Grow() {
    m_part->setRowStretch(m_part->rowCount() - 1, 1);
    m_parts->setAlignment(m_part, {});
    m_column->setStretchFactor(m_group, 1);
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
    return Make<CCheckRow>(nullptr, std::move(field), label).Named(label);
}

CComboRow& CForm::Combo(const char* label, CBinding<std::int32_t> field, std::vector<CChoice> choices) {
    return Make<CComboRow>(label, std::move(field), std::move(choices));
}

CComboRow& CForm::Alignment(const char* label, CBinding<std::int32_t> field) {
    return Combo(label, std::move(field), Alignments().Rows()).Otherwise(0);
}

CComboRow& CForm::Side(const char* label, CBinding<std::int32_t> field) {
    return Combo(label, std::move(field), Sides().Rows()).Otherwise(0);
}

CRadioRow& CForm::Radio(CBinding<std::int32_t> field, std::vector<CChoice> choices) {
    return Radio(nullptr, std::move(field), std::move(choices));
}

CRadioRow& CForm::Radio(const char* label, CBinding<std::int32_t> field, std::vector<CChoice> choices) {
    return Make<CRadioRow>(label, std::move(field), std::move(choices));
}

CDateRow& CForm::Date(const char* label, CBinding<QDate> field) {
    return Make<CDateRow>(label, std::move(field));
}

CTextRow& CForm::Text(const char* label, CBinding<QString> field) {
    return Make<CTextRow>(label, std::move(field), false);
}

CTextRow& CForm::Lines(const char* label, CBinding<QString> field) {
    return Make<CTextRow>(label, std::move(field), true);
}

CFormatRow& CForm::Formats(const char* label, const std::vector<const char*>& texts) {
    return Make<CFormatRow>(label, texts);
}

CObjectList& CForm::Objects(CObjects objects, const char* noneSelected) {
    return Keep(std::make_unique<CObjectList>(*this, List("Object"), std::move(objects), noneSelected));
}

CSimpleCombo& CForm::List(const char* caption) {
    auto* list = new CSimpleCombo(&m_page);
    AddRow(nullptr, *list);
    Grow();
    if (list->objectName().isEmpty()) {
        list->setObjectName(QString::fromUtf8(caption).section(u' ', 0, 0) + u's');
        list->setAccessibleName(list->objectName());
    }
    return *list;
}

std::vector<QPushButton*> CForm::Buttons(const std::vector<std::pair<const char*, Click>>& buttons) {
    std::vector<QPushButton*> made;
    auto* row = new QWidget(&m_page);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    for (const auto& [text, click] : buttons) {
        auto* button = new CPushButton(QString::fromUtf8(text), row);
        button->setObjectName(button->text());
        button->setAccessibleName(button->text());
        button->setFocusPolicy(Qt::StrongFocus);
        WhenClicked(*button, click);
        layout->addWidget(button);
        made.push_back(button);
    }
    AddRow(nullptr, *row);
    row->setObjectName({});
    return made;
}

void CForm::Place(const char* label, QWidget& control) {
    AddRow(label, control);
}

void CForm::PlaceBehind(QWidget& control, const char* text) {
    int line = 0;
    int column = 0;
    int lines = 0;
    int columns = 0;
    m_part->getItemPosition(m_part->indexOf(&control), &line, &column, &lines, &columns);
    m_part->addWidget(new QLabel(QString::fromUtf8(text), &m_page), line, column + columns);
}

QLayout* CForm::Layout() const {
    AlignLabels(); // whoever places the form wants to know its size
    return m_bands;
}

QString CForm::NameFor(const char* label) const {
    if (label != nullptr)
        return WithoutColon(QString::fromUtf8(label));
    const QString group = m_group->objectName();
    QString name = group;
    for (int n = 2; !group.isEmpty() && m_group->findChild<QWidget*>(name) != nullptr; ++n)
        name = group + QString::asprintf(" %d", n);
    return name;
}

QWidget* CForm::AddRow(const char* label, QWidget& control) {
    if (m_group == nullptr) {
        BeginGroup(new QWidget(&m_page));
        m_parts->setContentsMargins(0, 0, 0, 0);
    }
    const QString name = NameFor(label);
    control.setObjectName(name);
    control.setAccessibleName(name);

    const bool number = qobject_cast<CNumericEdit*>(&control) != nullptr;
    const Qt::Alignment place = number ? Qt::AlignLeft | Qt::AlignVCenter : Qt::Alignment();
    const int line = m_part->rowCount();
    if (label == nullptr) {
        const QLayoutItem* before = m_part->itemAtPosition(line - 1, 1);
        const bool beside = dynamic_cast<CDialog*>(&control) != nullptr && before != nullptr &&
                            qobject_cast<CNumericEdit*>(before->widget()) != nullptr;
        if (beside)
            m_part->addWidget(&control, line - 1, 2);
        else
            m_part->addWidget(&control, line, 0, 1, 3, place);
        return nullptr;
    }
    auto* text = new QLabel(QString::fromUtf8(label), &m_page);
    text->setBuddy(control.focusProxy() != nullptr ? control.focusProxy() : &control);
    const bool oneLine = number || qobject_cast<QComboBox*>(&control) != nullptr ||
                         qobject_cast<QHBoxLayout*>(control.layout()) != nullptr;
    const bool tall = !oneLine && control.sizeHint().height() > 2 * m_page.fontMetrics().height();
    m_part->addWidget(text, line, 0, tall ? Qt::AlignTop : Qt::AlignVCenter);
    m_part->addWidget(&control, line, 1, 1, number ? 1 : 2, place);
    return text;
}

/// Controls below each other begin at one place, also in different groups.
void CForm::AlignLabels() const {
    for (const auto* column : m_bands->findChildren<QVBoxLayout*>()) {
        struct Labelled {
            QGridLayout* part;
            int inset; ///< of the group's first part, from the column's left
        };
        std::vector<Labelled> parts;
        int width = 0;
        for (int i = 0; i < column->count(); ++i) {
            const QWidget* group = column->itemAt(i)->widget();
            auto* part = static_cast<QGridLayout*>(group->layout()->itemAt(0)->layout());
            const int inset = group->contentsMargins().left() + group->layout()->contentsMargins().left();
            parts.push_back({part, inset});
            for (int line = 0; line < part->rowCount(); ++line) {
                const QLayoutItem* item = part->itemAtPosition(line, 0);
                if (item != nullptr && qobject_cast<QLabel*>(item->widget()) != nullptr)
                    width = std::max(width, inset + item->sizeHint().width());
            }
        }
        for (const Labelled& labelled : parts)
            labelled.part->setColumnMinimumWidth(0, width - labelled.inset);
    }
}

void CForm::Start() {
    for (auto* column : m_bands->findChildren<QVBoxLayout*>()) {
        const bool hasPeers = static_cast<QLayout*>(column->parent())->count() > 1;
        bool grows = false;
        for (int i = 0; i < column->count(); ++i)
            grows = grows || column->stretch(i) > 0;
        if (hasPeers && !grows)
            column->setStretch(column->count() - 1, 1); // the last group ends where the other columns end
    }
    if (m_page.layout() == nullptr)
        m_page.setLayout(m_bands);
    if (!m_grows)
        m_bands->addStretch();
    m_grows = true;
    AlignLabels();
    LoadRows(nullptr);
    for (const auto& list : m_lists)
        list->Fill();
    if (m_page.isWindow())
        AssignMnemonics(m_page);
}

bool CForm::Exchange(bool read) {
    for (const auto& row : m_rows) {
        if (!row->Exchange(read)) {
            m_bad = row.get();
            return false;
        }
    }
    if (!read)
        ShowStates();
    return true;
}

void CForm::ShowStates() {
    for (const auto& row : m_rows)
        row->ShowState();
}

bool CForm::UpdateDataSafe(bool pressed) {
    if (m_page.UpdateData(true))
        return true;
    CFormRow& bad = *m_bad;
    m_page.UpdateData(false);
    bad.SelectText();
    CComplaint::Raise(
        *m_page.window(), QStringLiteral("\"%1\" must be %2.").arg(bad.Name(), bad.Wants()),
        [&bad, edit = QPointer<QWidget>(bad.Control())] {
            if (edit != nullptr) // and so the row
                bad.SelectText();
        },
        pressed);
    return false;
}

bool CForm::CommitFocused() {
    const QWidget* focus = m_page.window()->focusWidget();
    return std::any_of(m_rows.begin(), m_rows.end(),
                       [focus](const auto& row) { return row->CommitIfIn(focus); });
}

void CForm::FieldChanged(int key) {
    for (const auto& row : m_rows)
        if (key != 0 && row->Key() == key && !row->Store() && !row->TellsAlways())
            return;
    Notify();
    for (const auto& row : m_rows)
        if (key != 0 && row->Key() == key)
            row->Afterwards();
}

void CForm::LoadRows(const void* owner) {
    for (const auto& row : m_rows)
        if (owner == nullptr || row->Owner() == owner)
            row->Load();
    m_page.UpdateData(false);
    for (const auto& row : m_rows)
        if (owner == nullptr || row->Owner() == owner)
            row->Loaded();
}

void CForm::Committed() {
    CCommittedEvent event;
    QCoreApplication::sendEvent(m_page.window(), &event);
}

void CForm::Reload() {
    LoadRows(nullptr);
    for (const auto& list : m_lists)
        list->FillAgain();
    ShowStates();
}

void CForm::EachSpot(const std::function<void(const CSpot&)>& visit) const {
    const auto tell = [&visit](const CSpot& spot) {
        if (spot.member.address != nullptr)
            visit(spot);
    };
    for (const auto& row : m_rows) {
        const auto owner = std::find_if(m_lists.begin(), m_lists.end(),
                                        [&row](const auto& list) { return list.get() == row->Owner(); });
        CListBase* list = owner == m_lists.end() ? nullptr : owner->get();
        const int items = list == nullptr ? 0 : list->Count();
        if (list == nullptr)
            tell({row->Control(), row->Member(-1), row.get()});
        for (int item = 0; item < items; ++item)
            tell({row->Control(), row->Member(item), row.get(), list, item});
    }
    for (const auto& list : m_lists)
        tell({&list->Combo(), list->Member(), nullptr, list.get()});
    for (const CSpot& other : m_others)
        tell(other);
}

void CForm::EachControl(const std::function<void(const QWidget&)>& visit) const {
    for (const auto& row : m_rows)
        visit(*row->Control());
}

CFormRow* CForm::RowOf(const QWidget& widget) const {
    const auto found = std::find_if(m_rows.begin(), m_rows.end(), [&widget](const auto& row) {
        return row->Label() == &widget || row->Control() == &widget || row->Control()->isAncestorOf(&widget);
    });
    return found == m_rows.end() ? nullptr : found->get();
}

int CForm::SelectedOrWarn(CSimpleCombo& list, const char* message) {
    const int row = list.Selected();
    if (row < 0) {
        WarnBox(&m_page, QString::fromUtf8(message), QString::fromUtf8(LoadChartString(ChartText::Warning)));
        list.Select(list.Count() > 0 ? 0 : -1);
    }
    return row;
}
