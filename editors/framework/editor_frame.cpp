#include "editors/framework/editor_frame.h"

#include "editors/preview/chart_preview_view.h"
#include "platform/widgets/dialog.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <algorithm>
#include <vector>

namespace {

constexpr QSize kSmallestScreen(1366, 768);
constexpr int kSpace = 10;
constexpr QSize kFrame(8, 64); // title bar, borders and a task bar

/// `wanted`, but not below `least` and, beyond that, not above `most`.
int Between(int least, int wanted, int most) {
    return std::max(least, std::min(wanted, most));
}

void SizePreview(CChartPreviewView& preview, const QSize& above, const QSize& body, const QSize& buttons) {
    // A picture that just fills its pane is scaled down: one pixel more on each side shows it as it is.
    const int border = 2 * preview.frameWidth() + 2;
    const QSize natural =
        QSize(preview.m_layout->m_width, preview.m_layout->m_height) + QSize(border, border);
    const int besides = body.width() + 3 * kSpace;
    const int below = above.height() + buttons.height() + 3 * kSpace;
    const QSize room = kSmallestScreen - kFrame - QSize(besides, below);
    preview.setFixedWidth(Between((besides + 1) / 2, natural.width(), room.width()));
    preview.setMinimumHeight(Between(body.height() - above.height(), natural.height(), room.height()));
}

/// The widgets that stand in `layout`, in its order.
void CollectWidgets(QLayout* layout, std::vector<QWidget*>& widgets) {
    for (int i = 0; layout != nullptr && i < layout->count(); ++i) {
        QLayoutItem* item = layout->itemAt(i);
        if (item->widget() != nullptr)
            widgets.push_back(item->widget());
        else
            CollectWidgets(item->layout(), widgets);
    }
}

/// Tab goes through the parts in their order, and inside of each as its controls were made.
void OrderTabs(QDialog& dialog, const CEditorParts& parts) {
    std::vector<QWidget*> widgets;
    for (QLayout* part : {parts.abovePreview, parts.left, parts.body})
        CollectWidgets(part, widgets);
    QWidget* last = nullptr;
    for (QWidget* widget : widgets) {
        std::vector<QWidget*> stops;
        for (QWidget* next = dialog.nextInFocusChain(); next != &dialog; next = next->nextInFocusChain())
            if (next->focusPolicy() != Qt::NoFocus && (next == widget || widget->isAncestorOf(next)))
                stops.push_back(next);
        for (QWidget* stop : stops) {
            if (last != nullptr)
                QWidget::setTabOrder(last, stop);
            last = stop;
        }
    }
}

QLayout* PreviewColumn(CChartPreviewView& preview, QLayout* above) {
    preview.setObjectName(QStringLiteral("Preview"));
    preview.setAccessibleName(QStringLiteral("Preview"));
    preview.setFocusPolicy(Qt::ClickFocus);
    auto* column = new QVBoxLayout;
    column->setSpacing(kSpace);
    if (above != nullptr)
        column->addLayout(above);
    column->addWidget(&preview);
    return column;
}

void LayOut(CDialog& dialog, const CEditorParts& parts) {
    auto* sides = new QHBoxLayout;
    sides->setSpacing(kSpace);
    if (parts.preview != nullptr)
        sides->addLayout(PreviewColumn(*parts.preview, parts.abovePreview));
    auto* editing = new QHBoxLayout;
    editing->setSpacing(kSpace);
    if (parts.left != nullptr)
        editing->addLayout(parts.left);
    editing->addLayout(parts.body);
    sides->addLayout(editing);
    auto* all = new QVBoxLayout(&dialog);
    all->setContentsMargins(kSpace, kSpace, kSpace, kSpace);
    all->setSpacing(kSpace);
    all->addLayout(sides);
    OrderTabs(dialog, parts);
    all->addWidget(dialog.MakeOkCancel());
    all->setSizeConstraint(QLayout::SetFixedSize);
}

} // namespace

void OpenEditor(CDialog& dialog, const CEditorParts& parts) {
    if (dialog.layout() == nullptr)
        LayOut(dialog, parts);
    if (parts.preview == nullptr)
        return;
    // Sizes can be known once all stands in its place and has its style.
    for (const QWidget* widget : dialog.findChildren<QWidget*>())
        widget->ensurePolished();
    dialog.layout()->activate();
    const auto sizeOf = [](const auto* item) { return item != nullptr ? item->sizeHint() : QSize(0, 0); };
    QSize editing = sizeOf(parts.body);
    if (parts.left != nullptr)
        editing = editing.expandedTo(sizeOf(parts.left)) + QSize(parts.left->sizeHint().width() + kSpace, 0);
    SizePreview(*parts.preview, sizeOf(parts.abovePreview), editing,
                sizeOf(dialog.findChild<QDialogButtonBox*>()));
}
