#include "editors/framework/list_editor.h"

#include "editors/framework/conventions.h"
#include "editors/framework/form.h"
#include "platform/widgets/simple_combo.h"

#include <algorithm>

CListBase::CListBase(CForm& form, CSimpleCombo& combo, const char* noneSelected)
    : m_form(form), m_combo(combo), m_noneSelected(noneSelected) {
    QObject::connect(
        &combo, &CSimpleCombo::SelectionChanged, &combo, [this](int row) { SyncFromItem(row); });
    QObject::connect(&combo, &CSimpleCombo::DeletePressed, &combo, [this] { Remove(); });
}

void CListBase::MakeButtons() {
    m_form.Buttons({{"Add", [this] { Add(); }}, {"Delete", [this] { Remove(); }}});
}

int CListBase::Selected() const {
    const int row = m_combo.Selected();
    return row < Count() ? row : -1;
}

void CListBase::Fill() {
    FillAndSelect(0);
}

void CListBase::FillAgain() {
    FillAndSelect(m_combo.Selected());
}

void CListBase::Select(int index) {
    if (index != m_combo.Selected() && index < Count()) {
        m_combo.Select(index);
        SyncFromItem(index);
    }
}

void CListBase::ShowItem(int index) {
    if (index < 0)
        RenewDefault();
    m_form.LoadRows(this);
}

void CListBase::SyncFromItem(int index) {
    ShowItem(index);
    m_form.Committed(); // nothing has changed, but other values show
}

void CListBase::RefreshCaption() {
    const int row = Selected();
    if (row < 0)
        return;
    m_combo.Delete(row);
    m_combo.Insert(row, CaptionOf(row));
    ShowSwatch(row);
    m_combo.Select(row);
    SyncFromItem(row);
}

void CListBase::Add() {
    if (Append())
        ShowAppended();
}

void CListBase::ShowAppended() {
    const int last = Count() - 1;
    m_combo.Add(CaptionOf(last));
    ShowSwatch(last);
    m_combo.Select(last);
    ShowItem(last);
    m_form.Notify();
}

void CListBase::Remove() {
    const int row = SelectedOrWarn();
    if (row < 0)
        return;
    Erase(row);
    FillAndSelect(row);
    m_form.Notify();
}

int CListBase::SelectedOrWarn() {
    return m_form.SelectedOrWarn(m_combo, m_noneSelected);
}

void CListBase::FillAndSelect(int row) {
    m_combo.Clear();
    for (int i = 0; i < Count(); ++i) {
        m_combo.Add(CaptionOf(i));
        ShowSwatch(i);
    }
    m_combo.Select(std::min(row, Count() - 1));
    ShowItem(m_combo.Selected());
}

void CListBase::ShowSwatch(int row) {
    const qreal scale = m_combo.devicePixelRatioF();
    QImage swatch = row < 0 ? QImage() : SwatchOf(row, (QSizeF(m_combo.SwatchSize()) * scale).toSize());
    swatch.setDevicePixelRatio(scale);
    if (!swatch.isNull())
        m_combo.SetSwatch(row, swatch);
}

QString RowCaption(const char* caption, int index, const QString& text) {
    // The text may hold anything, a per cent sign included: it goes in last and is not read as a format.
    QString row = QString::fromUtf8(caption).replace(QStringLiteral("%d"), QString::number(index + 1));
    const qsizetype at = row.indexOf(QStringLiteral("%s"));
    return at < 0 ? row : row.replace(at, 2, FirstLineOf(text));
}
