#include "platform/widgets/simple_combo.h"

#include <QLineEdit>
#include <QListWidget>
#include <QSignalBlocker>
#include <QVBoxLayout>

CSimpleCombo::CSimpleCombo(QWidget* parent)
    : QWidget(parent), m_edit(new QLineEdit(this)), m_list(new QListWidget(this)) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_edit);
    layout->addWidget(m_list);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setTextElideMode(Qt::ElideRight);
    setFocusProxy(m_list);

    connect(m_list, &QListWidget::currentRowChanged, this, [this](int row) {
        ShowTextOf(row);
        emit SelectionChanged(row);
    });
    connect(m_list, &QListWidget::itemDoubleClicked, this,
            [this](QListWidgetItem* item) { emit DoubleClicked(m_list->row(item)); });
    connect(m_edit, &QLineEdit::textEdited, this, [this](const QString& text) {
        int row = -1;
        for (int i = 0; i < Count() && row < 0 && !text.isEmpty(); ++i) {
            row = Text(i).startsWith(text, Qt::CaseInsensitive) ? i : -1;
        }
        if (row != Selected()) {
            const QSignalBlocker quiet(m_list);
            m_list->setCurrentRow(row);
            emit SelectionChanged(row);
        }
    });
}

void CSimpleCombo::Clear() {
    const QSignalBlocker quiet(m_list);
    m_list->clear();
    m_edit->clear();
}

int CSimpleCombo::Count() const {
    return m_list->count();
}

void CSimpleCombo::Add(const QString& text) {
    Insert(Count(), text);
}

void CSimpleCombo::Insert(int row, const QString& text) {
    const QSignalBlocker quiet(m_list);
    m_list->insertItem(row, text);
}

void CSimpleCombo::Delete(int row) {
    const QSignalBlocker quiet(m_list);
    delete m_list->takeItem(row);
}

QString CSimpleCombo::Text(int row) const {
    const QListWidgetItem* item = m_list->item(row);
    return item != nullptr ? item->text() : QString();
}

int CSimpleCombo::Selected() const {
    return m_list->currentRow();
}

void CSimpleCombo::Select(int row) {
    const QSignalBlocker quiet(m_list);
    m_list->setCurrentRow(row);
    ShowTextOf(row);
}

void CSimpleCombo::ShowTextOf(int row) {
    m_edit->setText(Text(row));
}
