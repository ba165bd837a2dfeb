#include "platform/module_guard.h"
#include "platform/application.h"
#include <QGuiApplication>
#include <QThread>

namespace platform {

/// Dialogs live on the thread of the application object; on another one they would wait for ever for events.
static bool OnItsThread() {
    const bool right = QThread::currentThread() == QCoreApplication::instance()->thread();
    if (!right)
        qWarning("charteditors: dialogs open only on the thread on which the application object was made, "
                 "which is "
                 "the one that drew the first chart or opened the first dialog");
    return right;
}

ModuleGuard::ModuleGuard() : m_canShowDialogs(EnsureWidgetApplication() && OnItsThread()) {
    if (m_canShowDialogs) {
        m_quitOnLastWindowClosed = QGuiApplication::quitOnLastWindowClosed();
        QGuiApplication::setQuitOnLastWindowClosed(false);
    }
}

ModuleGuard::~ModuleGuard() {
    if (m_canShowDialogs)
        QGuiApplication::setQuitOnLastWindowClosed(m_quitOnLastWindowClosed);
}

} // namespace platform
