#include "platform/widgets/complaint.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QMouseEvent>

void CComplaint::Raise(QWidget& window, const QString& text, std::function<void()> select, bool pressed) {
    if (!Stands(window))
        new CComplaint(window, text, std::move(select), pressed); // the window's
}

bool CComplaint::Stands(const QWidget& window) {
    const QObjectList& below = window.children();
    return std::any_of(below.begin(), below.end(),
                       [](QObject* child) { return dynamic_cast<CComplaint*>(child) != nullptr; });
}

CComplaint::CComplaint(QWidget& window, const QString& text, std::function<void()> select, bool pressed)
    : QObject(&window), m_text(text), m_select(std::move(select)) {
    if (pressed) {
        // The press is on its way: it moves the focus before it reaches its control.
        qApp->installEventFilter(this);
        OpenSoon();
    } else {
        Open();
    }
}

bool CComplaint::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::TouchBegin:
        m_down = true;
        break;
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        if (static_cast<QMouseEvent*>(event)->buttons() == Qt::NoButton) {
            m_down = false;
            OpenSoon();
        }
        break;
    case QEvent::TouchUpdate:
        break;
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
        m_down = false;
        OpenSoon();
        break;
    default:
        return false;
    }
    return watched->isWidgetType(); // windows have to keep count of what is pressed
}

void CComplaint::OpenSoon() {
    QMetaObject::invokeMethod(
        this, [this] { Open(); }, Qt::QueuedConnection);
}

void CComplaint::Open() {
    if (m_down || m_open)
        return;
    m_open = true;
    qApp->removeEventFilter(this);
    auto* window = static_cast<QWidget*>(parent());
    auto* box = new QMessageBox(QMessageBox::Warning, window->windowTitle(), m_text, QMessageBox::Ok, window);
    box->setAttribute(Qt::WA_DeleteOnClose);
    connect(box, &QDialog::finished, this, [this] { Close(); });
    box->open();
}

void CComplaint::Close() {
    setParent(nullptr); // from here on it no longer stands
    m_select();
    deleteLater();
}

bool TakeFocus(QWidget& control) {
    const QWidget& window = *control.window();
    if (CComplaint::Stands(window))
        return false;
    control.setFocus();
    return !CComplaint::Stands(window);
}

void WhenClicked(QAbstractButton& button, std::function<void()> act) {
    QObject::connect(
        &button, &QAbstractButton::clicked, &button,
        [&button, act = std::move(act)] {
            if (TakeFocus(button))
                act();
        });
}
