#include "editors/framework/list_editor.h"

#include "editors/framework/form.h"
#include "platform/widgets/dialog.h"
#include "platform/widgets/simple_combo.h"
#include "resources/string_table.h"

#include <QGridLayout>
#include <QPushButton>
#include <algorithm>

CListBase::CListBase(CForm& form, const char* caption, const char* noneSelected)
    : m_form(form), m_caption(caption), m_noneSelected(noneSelected), m_widget(new QWidget(&form.Page())),
      m_combo(new CSimpleCombo(m_widget)) {
    auto* add = new QPushButton(QStringLiteral("Add"), m_widget);
    auto* remove = new QPushButton(QStringLiteral("Delete"), m_widget);
    auto* layout = new QGridLayout(m_widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_combo, 0, 0, 1, 2);
    layout->addWidget(add, 1, 0);
    layout->addWidget(remove, 1, 1);
    QObject::connect(m_combo, &CSimpleCombo::SelectionChanged, m_widget,
                     [this](int row) { SyncFromItem(row); });
    QObject::connect(add, &QPushButton::clicked, m_widget, [this] { Add(); });
    QObject::connect(remove, &QPushButton::clicked, m_widget, [this] { Remove(); });
}

int CListBase::Selected() const {
    const int row = m_combo->Selected();
    return row < Count() ? row : -1;
}

void CListBase::Fill() {
    FillRows();
    m_combo->Select(Count() > 0 ? 0 : -1);
    SyncFromItem(m_combo->Selected());
}

void CListBase::SyncFromItem(int index) {
    if (index < 0) {
        RenewDefault();
    }
    m_form.Show(true);
}

void CListBase::RefreshCaption() {
    const int row = Selected();
    if (row < 0) {
        return;
    }
    m_combo->Delete(row);
    m_combo->Insert(row, CaptionOf(row));
    m_combo->Select(row);
    SyncFromItem(row);
}

void CListBase::Add() {
    AppendDefault();
    const int last = Count() - 1;
    m_combo->Add(CaptionOf(last));
    m_combo->Select(last);
    SyncFromItem(last);
    m_form.Notify();
}

void CListBase::Remove() {
    const int row = Selected();
    if (row < 0) {
        WarnBox(&m_form.Page(), QString::fromUtf8(m_noneSelected), QString::fromUtf8(LoadChartString(29)));
        m_combo->Select(Count() > 0 ? 0 : -1);
        return;
    }
    Erase(row);
    FillRows();
    m_combo->Select(std::min(row, Count() - 1));
    SyncFromItem(Selected());
    m_form.Notify();
}

void CListBase::FillRows() {
    m_combo->Clear();
    for (int i = 0; i < Count(); ++i) {
        m_combo->Add(CaptionOf(i));
    }
}

QString CListBase::CaptionOf(int index) const {
    // The text may hold anything, a per cent sign included: it goes in last and is not read as a format.
    QString caption = QString::fromUtf8(m_caption).replace(QStringLiteral("%d"), QString::number(index + 1));
    const qsizetype at = caption.indexOf(QStringLiteral("%s"));
    return at < 0 ? caption : caption.replace(at, 2, FirstLineOf(TextOf(index)));
}
