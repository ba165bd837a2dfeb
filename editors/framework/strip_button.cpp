#include "editors/framework/strip_button.h"

#include <QEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <QStyleOptionToolButton>

namespace {

constexpr int kGap = 4; // pixels, between the sign and the caption and at the end

/// A sign in a square of 16 by 16.
QPainterPath PathOf(CStripButton::Sign sign) {
    QPainterPath path;
    switch (sign) {
    case CStripButton::Undo:
    case CStripButton::Redo:
        path.moveTo(6, 2.5);
        path.lineTo(2.5, 6);
        path.lineTo(6, 9.5);
        path.moveTo(2.5, 6);
        path.lineTo(9.5, 6);
        path.arcTo(QRectF(5.5, 6, 8, 7.5), 90, -180);
        path.lineTo(6.5, 13.5);
        break;
    case CStripButton::Changes:
        path.addEllipse(QPointF(8, 8), 3, 3);
        break;
    case CStripButton::Before:
        path.moveTo(1.5, 8);
        path.quadTo(8, 0.5, 14.5, 8);
        path.quadTo(8, 15.5, 1.5, 8);
        path.addEllipse(QPointF(8, 8), 2, 2);
        break;
    case CStripButton::Search:
        path.addEllipse(QPointF(6.5, 6.5), 4.2, 4.2);
        path.moveTo(9.8, 9.8);
        path.lineTo(14, 14);
        break;
    }
    return path;
}

} // namespace

CStripButton::CStripButton(Sign sign, const QString& name, QWidget* parent)
    : QAbstractButton(parent), m_sign(sign) {
    setObjectName(name);
    setAccessibleName(name);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void CStripButton::SetCaption(const QString& caption) {
    const QSize before = sizeHint();
    m_caption = caption;
    setAccessibleName(caption);
    if (sizeHint() != before)
        updateGeometry(); // which lays out and paints the whole dialog
    update();
}

void CStripButton::SetWidestCaption(const QString& caption) {
    m_widest = caption;
    updateGeometry();
}

QSize CStripButton::sizeHint() const {
    const QString& text = m_widest.size() > m_caption.size() ? m_widest : m_caption;
    const int width = text.isEmpty() ? 0 : fontMetrics().horizontalAdvance(text) + 2 * kGap;
    return {Side() + width, Side()};
}

bool CStripButton::event(QEvent* event) {
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        updateGeometry();
    return QAbstractButton::event(event);
}

void CStripButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QStyleOptionToolButton option;
    option.initFrom(this);
    option.state |= QStyle::State_AutoRaise | (isDown() ? QStyle::State_Sunken : QStyle::State_Raised);
    if (isEnabled() && (underMouse() || isDown()))
        style()->drawPrimitive(QStyle::PE_PanelButtonTool, &option, &painter, this);
    QColor ink = palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.save();
    const double side = fontMetrics().height();
    painter.translate((Side() - side) / 2, (height() - side) / 2);
    painter.scale(side / 16, side / 16);
    if (m_sign == Redo) { // the other way round
        painter.translate(16, 0);
        painter.scale(-1, 1);
    }
    if (m_sign == Changes) {
        const QColor mark = palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled,
                                            isEnabled() ? QPalette::Highlight : QPalette::Mid);
        painter.fillPath(PathOf(m_sign), mark);
    } else {
        painter.setPen(QPen(ink, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPath(PathOf(m_sign));
    }
    painter.restore();
    if (!m_caption.isEmpty()) {
        painter.setPen(ink);
        painter.drawText(rect().adjusted(Side() - 2, 0, -kGap, 0), Qt::AlignLeft | Qt::AlignVCenter,
                         m_caption);
    }
    if (hasFocus()) {
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setPen(QPen(ink, 1, Qt::DotLine));
        painter.drawRect(rect().adjusted(2, 2, -3, -3));
    }
}
