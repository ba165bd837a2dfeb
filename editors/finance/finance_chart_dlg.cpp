#include "editors/finance/finance_chart_dlg.h"

#include "editors/finance/finance_pages.h"
#include "resources/string_table.h"

#include <QListWidget>
#include <QPushButton>
#include <algorithm>

namespace {

constexpr int kPanes = 5;

/// A list as large as its rows.
class CPaneList : public QListWidget {
public:
    using QListWidget::QListWidget;

    QSize sizeHint() const override {
        const int frame = 2 * frameWidth();
        return {sizeHintForColumn(0) + frame, sizeHintForRow(0) * kPanes + frame};
    }
    QSize minimumSizeHint() const override { return sizeHint(); }
};

/// What a pane is called, in the list and on its tab.
QString PaneCaption(int pane) {
    return QString::fromUtf8(LoadChartString(ChartText::MainChart + pane));
}

} // namespace

CFinanceChartDlg::CFinanceChartDlg()
    : CDialog(QStringLiteral("FinanceChart")), m_preview(this), m_tabs(*this),
      m_order(*this, [this] { m_preview.RefreshPreview(); }), m_panes(new CPaneList(this)) {
    int caption = ChartText::MainChart; // and those behind it
    m_tabs.AttachPage<CFinanceMainPage>(caption++, Chart(), *this);
    m_tabs.AttachPage<CFinanceRsiPage>(caption++, Chart(), *this);
    m_tabs.AttachPage<CFinanceMomentumPage>(caption++, Chart(), *this);
    m_tabs.AttachPage<CFinanceStochasticPage>(caption++, Chart(), *this);
    m_tabs.AttachPage<CFinanceMacdPage>(caption++, Chart(), *this);
    TableOfOrder();
}

void CFinanceChartDlg::TableOfOrder() {
    m_order.Group("Order:");
    m_order.Place(nullptr, *m_panes);
    m_order.Edits(*m_panes, CMember::Of(Chart().m_order));
    m_panes->setObjectName(QStringLiteral("Order list"));
    m_panes->setAccessibleName(m_panes->objectName());
    m_panes->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_panes->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    connect(
        m_panes, &QListWidget::itemDoubleClicked, this, [this] { Jump(); });
    const auto buttons =
        m_order.Buttons({{"^", [this] { Move(-1); }}, {"v", [this] { Move(1); }}, {">", [this] { Jump(); }}});
    for (QPushButton* button : buttons) // one sign needs no more
        button->setFixedWidth(button->sizeHint().height() * 3 / 2);
}

bool CFinanceChartDlg::OnInitDialog() {
    FillOrder();
    m_tabs.Open({.preview = &m_preview,
                 .left = m_order.Layout(),
                 .edited = WorkingCopy(Chart(), &m_preview.m_ownLayout),
                 .restored = [this] {
                     const int row = m_panes->currentRow();
                     FillOrder();
                     m_panes->setCurrentRow(row);
                 }});
    return CDialog::OnInitDialog();
}

void CFinanceChartDlg::OnFieldChanged(int /*key*/) {
    m_preview.RefreshPreview();
}

void CFinanceChartDlg::FillOrder() {
    m_panes->clear();
    m_places.clear();
    for (int place = 0; place < kPanes; ++place) {
        const int pane = Chart().m_order[place];
        if (pane < 0 || pane >= kPanes)
            continue;
        m_panes->addItem(PaneCaption(pane));
        m_places.push_back(place);
    }
    m_panes->setCurrentRow(-1);
}

int CFinanceChartDlg::SelectedPlace() {
    const QList<QListWidgetItem*> selected = m_panes->selectedItems();
    if (!selected.isEmpty())
        return m_places[static_cast<std::size_t>(m_panes->row(selected.front()))];
    WarnBox(this, QString::fromUtf8(LoadChartString(ChartText::SelectItem)),
            QString::fromUtf8(LoadChartString(ChartText::Warning)));
    m_panes->setCurrentRow(m_panes->count() > 0 ? 0 : -1);
    return -1;
}

void CFinanceChartDlg::Move(int direction) {
    const int place = SelectedPlace();
    if (place < 0)
        return;
    const int count = m_panes->count();
    const int row = (m_panes->currentRow() + direction + count) % count;
    std::swap(Chart().m_order[place], Chart().m_order[m_places[static_cast<std::size_t>(row)]]);
    FillOrder();
    m_panes->setCurrentRow(row);
    m_order.Notify();
}

void CFinanceChartDlg::Jump() {
    const int place = SelectedPlace();
    if (place >= 0)
        m_tabs.ShowPage(Chart().m_order[place]);
}
