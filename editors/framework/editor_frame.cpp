#include "editors/framework/editor_frame.h"

#include "editors/preview/chart_preview_view.h"
#include "platform/widgets/dialog.h"

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <algorithm>

namespace {

constexpr QSize kSmallestScreen(1366, 768);
constexpr int kSpace = 10;
constexpr QSize kFrame(8, 64); // title bar, borders and a task bar

/// `wanted`, but not below `least` and, beyond that, not above `most`.
int Between(int least, int wanted, int most) {
    return std::max(least, std::min(wanted, most));
}

void SizePreview(CChartPreviewView& preview, const QSize& body, const QSize& buttons) {
    // A picture that just fills its pane is scaled down: one pixel more on each side shows it as it is.
    const int border = 2 * preview.frameWidth() + 2;
    const QSize natural =
        QSize(preview.m_layout->m_width, preview.m_layout->m_height) + QSize(border, border);
    const int besides = body.width() + 3 * kSpace;
    const int below = buttons.height() + 3 * kSpace;
    const QSize room = kSmallestScreen - kFrame - QSize(besides, below);
    preview.setFixedWidth(Between((besides + 1) / 2, natural.width(), room.width()));
    preview.setMinimumHeight(Between(body.height(), natural.height(), room.height()));
}

} // namespace

void LayEditor(CDialog& dialog, CChartPreviewView* preview, QLayout* body, QWidget* buttons) {
    auto* sides = new QHBoxLayout;
    sides->setSpacing(kSpace);
    if (preview != nullptr) {
        preview->setObjectName(QStringLiteral("Preview"));
        preview->setAccessibleName(QStringLiteral("Preview"));
        preview->setFocusPolicy(Qt::ClickFocus);
        sides->addWidget(preview);
    }
    sides->addLayout(body);
    auto* all = new QVBoxLayout(&dialog);
    all->setContentsMargins(kSpace, kSpace, kSpace, kSpace);
    all->setSpacing(kSpace);
    all->addLayout(sides);
    all->addWidget(buttons);
    if (preview != nullptr) {
        // Sizes can be known once all stands in its place and has its style.
        for (const QWidget* widget : dialog.findChildren<QWidget*>())
            widget->ensurePolished();
        all->activate();
        SizePreview(*preview, body->sizeHint(), buttons->sizeHint());
    }
    all->setSizeConstraint(QLayout::SetFixedSize);
}
