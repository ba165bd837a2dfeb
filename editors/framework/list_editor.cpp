#include "editors/framework/list_editor.h"

#include "editors/framework/form.h"
#include "platform/widgets/simple_combo.h"

#include <algorithm>

CListBase::CListBase(CForm& form, CSimpleCombo& combo, const char* caption, const char* noneSelected)
    : m_form(form), m_combo(combo), m_caption(caption), m_noneSelected(noneSelected) {
    QObject::connect(
        &combo, &CSimpleCombo::SelectionChanged, &combo, [this](int row) { SyncFromItem(row); });
    form.Buttons({{"Add", [this] { Add(); }}, {"Delete", [this] { Remove(); }}});
}

int CListBase::Selected() const {
    const int row = m_combo.Selected();
    return row < Count() ? row : -1;
}

void CListBase::Fill() {
    FillRows();
    m_combo.Select(Count() > 0 ? 0 : -1);
    SyncFromItem(m_combo.Selected());
}

void CListBase::SyncFromItem(int index) {
    if (index < 0)
        RenewDefault();
    m_form.LoadRows(this);
}

void CListBase::RefreshCaption() {
    const int row = Selected();
    if (row < 0)
        return;
    m_combo.Delete(row);
    m_combo.Insert(row, CaptionOf(row));
    m_combo.Select(row);
    SyncFromItem(row);
}

void CListBase::Add() {
    AppendDefault();
    const int last = Count() - 1;
    m_combo.Add(CaptionOf(last));
    m_combo.Select(last);
    SyncFromItem(last);
    m_form.Notify();
}

void CListBase::Remove() {
    const int row = m_form.SelectedOrWarn(m_combo, m_noneSelected);
    if (row < 0)
        return;
    Erase(row);
    FillRows();
    m_combo.Select(std::min(row, Count() - 1));
    SyncFromItem(m_combo.Selected());
    m_form.Notify();
}

void CListBase::FillRows() {
    m_combo.Clear();
    for (int i = 0; i < Count(); ++i)
        m_combo.Add(CaptionOf(i));
}

QString CListBase::CaptionOf(int index) const {
    // The text may hold anything, a per cent sign included: it goes in last and is not read as a format.
    QString caption = QString::fromUtf8(m_caption).replace(QStringLiteral("%d"), QString::number(index + 1));
    const qsizetype at = caption.indexOf(QStringLiteral("%s"));
    return at < 0 ? caption : caption.replace(at, 2, FirstLineOf(TextOf(index)));
}
