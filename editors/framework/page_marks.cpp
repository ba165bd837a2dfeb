#include "editors/framework/page_marks.h"

#include <QEvent>
#include <QPainter>
#include <QScrollArea>
#include <algorithm>

namespace {

constexpr int kRingMilliseconds = 1600;
constexpr int kRingGap = 3; // pixels
constexpr double kDotRadius = 3;
constexpr double kDotAway = 6; // from the left of what it stands at

/// What scrolls as a whole: the content of the nearest scroll area, else the window.
QWidget& PageOf(QWidget& control) {
    for (QWidget* above = control.parentWidget(); above != nullptr; above = above->parentWidget())
        if (auto* scrolls = qobject_cast<QScrollArea*>(above))
            return *scrolls->widget();
    return *control.window();
}

} // namespace

CPageMarks::CPageMarks(QWidget& page) : QWidget(&page) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    setFocusPolicy(Qt::NoFocus);
    setGeometry(page.rect());
    page.installEventFilter(this);
    m_ringEnds.setSingleShot(true);
    connect(&m_ringEnds, &QTimer::timeout, this, [this] {
        m_ringed = nullptr;
        update();
    });
    show();
}

CPageMarks& CPageMarks::Of(QWidget& control) {
    QWidget& page = PageOf(control);
    for (QObject* child : page.children())
        if (auto* marks = dynamic_cast<CPageMarks*>(child))
            return *marks;
    return *new CPageMarks(page);
}

std::vector<CPageMarks*> CPageMarks::AllIn(const QWidget& dialog) {
    std::vector<CPageMarks*> found;
    for (QWidget* below : dialog.findChildren<QWidget*>())
        if (auto* marks = dynamic_cast<CPageMarks*>(below))
            found.push_back(marks);
    return found;
}

void CPageMarks::SetDots(std::vector<QWidget*> anchors) {
    if (std::equal(anchors.begin(), anchors.end(), m_dots.begin(), m_dots.end()))
        return;
    const auto paintAnew = [this] { // no more than the dots: what lies below is painted as well
        for (const QPointer<QWidget>& anchor : m_dots)
            if (anchor != nullptr)
                update(DotAt(*anchor).toAlignedRect());
    };
    paintAnew();
    m_dots.assign(anchors.begin(), anchors.end());
    raise();
    paintAnew();
}

void CPageMarks::Ring(QWidget& control) {
    m_ringed = &control;
    m_ringEnds.start(kRingMilliseconds);
    raise();
    update();
}

bool CPageMarks::HasDot(const QWidget& anchor) const {
    return std::find(m_dots.begin(), m_dots.end(), &anchor) != m_dots.end();
}

bool CPageMarks::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize)
        setGeometry(static_cast<QWidget*>(watched)->rect());
    else if (event->type() == QEvent::LayoutRequest)
        update();
    return false;
}

QRect CPageMarks::PlaceOf(const QWidget& control) const {
    return {control.mapTo(parentWidget(), QPoint()), control.size()};
}

QRectF CPageMarks::DotAt(const QWidget& anchor) const {
    const QRect place = PlaceOf(anchor);
    const double line = std::min(place.height(), fontMetrics().height() + 8); // of an edit of many
    const QPointF corner(std::max(place.left() - kDotAway, kDotRadius) - kDotRadius,
                         place.top() + line / 2 - kDotRadius);
    return {corner, QSizeF(2 * kDotRadius, 2 * kDotRadius)};
}

void CPageMarks::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor mark = palette().color(QPalette::Highlight);
    for (const QPointer<QWidget>& anchor : m_dots) {
        if (anchor == nullptr || !anchor->isVisible())
            continue;
        painter.setPen(Qt::NoPen);
        painter.setBrush(mark);
        painter.drawEllipse(DotAt(*anchor));
    }
    if (m_ringed != nullptr && m_ringed->isVisible()) {
        painter.setPen(QPen(mark, 2));
        painter.setBrush(Qt::NoBrush);
        const QRectF ring = QRectF(PlaceOf(*m_ringed)).adjusted(-kRingGap, -kRingGap, kRingGap, kRingGap);
        painter.drawRoundedRect(ring & QRectF(rect()).adjusted(1, 1, -1, -1), kRingGap, kRingGap);
    }
}
