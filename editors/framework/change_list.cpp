#include "editors/framework/change_list.h"

#include "editors/framework/strip.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

namespace {

constexpr int kSpace = 10;
constexpr int kMostLines = 16; ///< seen at once

QPushButton* MakeButton(const QString& text, const QString& of, QWidget* parent) {
    auto* button = new QPushButton(text, parent);
    button->setObjectName(text);
    button->setAccessibleName(text + u' ' + of);
    button->setAutoDefault(false);
    return button;
}

} // namespace

void PlaceAbove(QWidget& popup, const QWidget& anchor) {
    const QRect screen = anchor.screen()->availableGeometry();
    const QPoint place = anchor.mapToGlobal(QPoint(0, -popup.height() - 4));
    popup.move(std::clamp(place.x(), screen.left(), std::max(screen.left(), screen.right() - popup.width())),
               std::max(place.y(), screen.top()));
}

void CChangeList::Open(CStrip& strip, QWidget& anchor) {
    auto* list = new CChangeList(strip, anchor);
    list->Fill();
    list->show();
    list->setFocus();
    list->focusNextChild();
}

CChangeList::CChangeList(CStrip& strip, QWidget& anchor)
    : QFrame(&strip, Qt::Popup), m_strip(strip), m_anchor(anchor) {
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(QStringLiteral("ChangeList"));
    setAccessibleName(QStringLiteral("Changes"));
    setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
    auto* scrolls = new QScrollArea(this);
    scrolls->setFrameShape(NoFrame);
    scrolls->setFocusPolicy(Qt::NoFocus);
    scrolls->setWidgetResizable(true);
    scrolls->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(1, 1, 1, 1);
    all->addWidget(scrolls);
}

void CChangeList::Fill() {
    auto* scrolls = findChild<QScrollArea*>();
    m_rows = new QWidget;
    auto* grid = new QGridLayout(m_rows);
    grid->setContentsMargins(kSpace, kSpace, kSpace, kSpace);
    grid->setHorizontalSpacing(kSpace);
    grid->setVerticalSpacing(3);
    grid->setColumnStretch(1, 1);
    QString last;
    int line = 0;
    for (const auto& [change, text] : m_strip.ToldChanges()) {
        if (const QString place = text.name.Place(); line == 0 || place != last) {
            auto* head = new QLabel(place.isEmpty() ? QStringLiteral("All") : place, m_rows);
            QFont bold(head->font());
            bold.setBold(true);
            head->setFont(bold);
            head->setVisible(!place.isEmpty());
            grid->addWidget(head, line++, 0, 1, 4);
            last = place;
        }
        auto* label = new QLabel(text.name.label, m_rows);
        auto* values = new QLabel(text.from + QStringLiteral("  \u2192  ") + text.to, m_rows);
        values->setTextFormat(Qt::PlainText);
        label->setTextFormat(Qt::PlainText);
        auto* revert = MakeButton(QStringLiteral("Revert"), text.Line(), m_rows);
        auto* show = MakeButton(QStringLiteral("Show"), text.Line(), m_rows);
        show->setEnabled(text.shows);
        label->setIndent(kSpace);
        const std::string path = change.path;
        connect(
            revert, &QPushButton::clicked, this,
            [this, path] {
                m_strip.Revert(path);
                if (m_strip.Changes().empty())
                    close();
                else
                    QMetaObject::invokeMethod(
                        this, [this] { Fill(); }, Qt::QueuedConnection);
            },
            Qt::QueuedConnection);
        connect(
            show, &QPushButton::clicked, this,
            [this, path] {
                CStrip& strip = m_strip;
                close();
                strip.Show(path);
            },
            Qt::QueuedConnection);
        grid->addWidget(label, line, 0);
        grid->addWidget(values, line, 1);
        grid->addWidget(revert, line, 2);
        grid->addWidget(show, line++, 3);
    }
    grid->setRowStretch(line, 1);
    scrolls->setWidget(m_rows); // the rows before go
    const QSize natural = m_rows->sizeHint();
    const int most = kMostLines * (fontMetrics().height() + 12);
    const bool high = natural.height() > most;
    const QSize around = (QSizeF(2, 2) * (frameWidth() + 1)).toSize();
    resize(QSize(natural.width() + (high ? scrolls->verticalScrollBar()->sizeHint().width() : 0),
                 std::min(natural.height(), most)) +
           around);
    PlaceAbove(*this, m_anchor);
}
