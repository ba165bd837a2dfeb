#include "engine/text/application.h"

#include <QGuiApplication>
#include <QMetaType>
#include <atomic>
#include <mutex>

namespace chartdraw {

namespace {

// The object is never destroyed: the end of the process may come on any thread, and the object must outlive
// every chart. The static pointer keeps it reachable for leak checkers.
QCoreApplication* s_ownApplication = nullptr;

void makeGuiApplication() {
    static char name[] = "chart";
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    // Pictures need no display, and a platform plugin that cannot reach its display ends the process.
    static char option[] = "-platform";
    static char platform[] = "offscreen";
    static char* arguments[] = {name, option, platform, nullptr};
    static int count = qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") ? 3 : 1;
#else
    static char* arguments[] = {name, nullptr};
    static int count = 1;
#endif
    s_ownApplication = new QGuiApplication(count, arguments);
}

} // namespace

void ensureApplication() {
    static std::atomic<bool> ready = false;
    if (ready.load(std::memory_order_acquire) && QCoreApplication::instance())
        return;
    static std::mutex mutex;
    const std::lock_guard lock(mutex);
    if (!QCoreApplication::instance()) {
        if (const QMetaType factory = QMetaType::fromName("charteditors::ApplicationFactory");
            factory.isValid()) {
            static void* s_factory = factory.create();
            (void)s_factory;
        }
        if (!QCoreApplication::instance())
            makeGuiApplication();
    }
    ready.store(true, std::memory_order_release);
}

bool textAvailable() {
    ensureApplication();
    return qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr;
}

} // namespace chartdraw
