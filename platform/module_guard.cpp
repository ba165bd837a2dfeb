#include "platform/module_guard.h"
#include "platform/application.h"
#include <QGuiApplication>

namespace platform {

ModuleGuard::ModuleGuard() : m_canShowDialogs(EnsureWidgetApplication()) {
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
