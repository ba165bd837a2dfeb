#include "editors/framework/scroll_room.h"

#include <QLayout>
#include <QScrollBar>
#include <algorithm>

namespace {

QWidget* Holding(QLayout* layout) {
    auto* holder = new QWidget;
    layout->setContentsMargins(0, 0, 0, 0);
    holder->setLayout(layout);
    return holder;
}

} // namespace

CScrollRoom::CScrollRoom(QWidget* content) {
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus); // its controls have it, and are scrolled to
    setWidgetResizable(true);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    setWidget(content);
    content->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
}

CScrollRoom::CScrollRoom(QLayout* content) : CScrollRoom(Holding(content)) {}

void CScrollRoom::Measure(bool low) {
    m_low = low;
    widget()->setMinimumSize(0, 0);
    widget()->setMinimumSize(widget()->sizeHint());
    updateGeometry();
}

/// A bar that a page got while it did not show and was small stays, empty, when it shows at its size. So
/// where there is room for all, there is none.
void CScrollRoom::resizeEvent(QResizeEvent* event) {
    const QSize least = widget()->minimumSize();
    const QSize bars(verticalScrollBar()->sizeHint().width(), horizontalScrollBar()->sizeHint().height());
    const auto policy = [](bool needed) { return needed ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff; };
    const bool low = least.height() > height() - (least.width() > width() ? bars.height() : 0);
    const bool narrow = least.width() > width() - (low ? bars.width() : 0);
    setVerticalScrollBarPolicy(policy(low));
    setHorizontalScrollBarPolicy(policy(narrow));
    QScrollArea::resizeEvent(event);
}

QSize CScrollRoom::sizeHint() const {
    const QSize natural = widget()->sizeHint();
    return natural + QSize(m_low ? verticalScrollBar()->sizeHint().width() : 0, 0);
}

QSize CScrollRoom::minimumSizeHint() const {
    const QSize least(fontMetrics().averageCharWidth() * 16, fontMetrics().lineSpacing() * 6);
    return least.boundedTo(sizeHint());
}
