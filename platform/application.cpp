#include "platform/application.h"
#include <QApplication>
#include <QMetaType>
#include <clocale>
#include <iterator>
#include <mutex>
#include <string>

namespace {

#if defined(__unix__) && !defined(__APPLE__)
/// The screens to try, in order. The toolkit ends the process when its only choice cannot be had, so the last
/// one is always the one that needs nothing.
const char* screensToTry() {
    if (!qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        return nullptr; // the user has chosen
    if (!qEnvironmentVariableIsEmpty("DISPLAY"))
        return "xcb;wayland;offscreen";
    return qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ? "offscreen" : "wayland;offscreen";
}
#else
const char* screensToTry() {
    return nullptr;
}
#endif

void createApplication() {
    static char name[] = "charteditors";
    static char option[] = "-platform";
    static std::string screens;
    static char* arguments[] = {name, option, nullptr, nullptr};
    static int count = 1;

    if (const char* toTry = screensToTry()) {
        screens = toTry;
        arguments[2] = screens.data();
        count = 3;
    }
    // The toolkit takes up the user's locale for the whole process; the host may want to keep its own.
    const std::string locale = std::setlocale(LC_ALL, nullptr);
    new QApplication(count, arguments); // the toolkit keeps it, to the end of the process
    std::setlocale(LC_ALL, locale.c_str());
    // The host's program goes on when the last dialog closes.
    QApplication::setQuitOnLastWindowClosed(false);
}

} // namespace

namespace platform {

bool EnsureWidgetApplication() {
    static std::mutex creation; // two charts may be drawn at once, each in need of fonts
    const std::lock_guard lock(creation);
    if (!QCoreApplication::instance())
        createApplication();
    return qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr;
}

} // namespace platform

namespace charteditors {

ApplicationFactory::ApplicationFactory() {
    platform::EnsureWidgetApplication();
}

} // namespace charteditors

namespace {

[[maybe_unused]] const int factoryType =
    qRegisterMetaType<charteditors::ApplicationFactory>("charteditors::ApplicationFactory");

} // namespace
