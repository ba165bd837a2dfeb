// The application object and the guard. An application object cannot be had twice in a process, so a case
// that begins without one runs in a process of its own.

#include "platform/application.h"
#include "platform/module_guard.h"
#include "tests/own_process.h"
#include <QApplication>
#include <QMetaType>
#include <QTimer>
#include <QWidget>
#include <thread>

using platform::ModuleGuard;

TEST(ModuleGuard, MakesTheApplicationObjectOnce) {
    expectInOwnProcess([] {
        const QCoreApplication* made = nullptr;
        {
            const ModuleGuard guard;
            made = QCoreApplication::instance();
            if (!guard.CanShowDialogs() || !qobject_cast<const QApplication*>(made)) return false;
        }
        const ModuleGuard again;
        return QCoreApplication::instance() == made && again.CanShowDialogs();
    });
}

#ifdef __unix__
TEST(ModuleGuard, ManagesWithoutADisplay) {
    expectInOwnProcess([] {
        for (const char* name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"}) qunsetenv(name);
        const ModuleGuard guard;
        return QGuiApplication::platformName() == "offscreen";
    });
    expectInOwnProcess([] { // a display that is named but not there
        qunsetenv("QT_QPA_PLATFORM");
        qunsetenv("WAYLAND_DISPLAY");
        qputenv("DISPLAY", ":973");
        const ModuleGuard guard;
        return QGuiApplication::platformName() == "offscreen";
    });
}
#endif

TEST(ModuleGuard, RefusesAThreadThatIsNotTheObjects) {
    expectInOwnProcess([] {
        bool first = false, later = true;
        std::thread([&] { first = ModuleGuard().CanShowDialogs(); }).join();
        later = ModuleGuard().CanShowDialogs();
        return first && !later;
    });
}

TEST(ModuleGuard, UsesTheHostsObjectAsItIs) {
    expectInOwnProcess([] {
        const QApplication host(s_count, s_arguments);
        const ModuleGuard guard;
        return QCoreApplication::instance() == &host && guard.CanShowDialogs();
    });
    expectInOwnProcess([] {
        const QGuiApplication host(s_count, s_arguments);
        const ModuleGuard guard;
        return QCoreApplication::instance() == &host && !guard.CanShowDialogs();
    });
}

TEST(ModuleGuard, ClosingTheLastWindowDoesNotEndTheHost) {
    expectInOwnProcess([] {
        const QApplication host(s_count, s_arguments);
        bool closedInPeace = false;
        QTimer::singleShot(
            0,
            [] {
                const ModuleGuard outer;
                {
                    const ModuleGuard inner;
                    QWidget window;
                    window.show();
                    window.close();
                }
            });
        QTimer::singleShot(
            50,
            [&] {
                closedInPeace = true;
                QCoreApplication::quit();
            });
        QTimer::singleShot(
            5000, [] { std::_Exit(2); });
        QApplication::exec();
        return closedInPeace && QGuiApplication::quitOnLastWindowClosed();
    });
}

TEST(ApplicationFactory, GivesTheDrawingLibraryAnObjectForWidgets) {
    expectInOwnProcess([] {
        const QMetaType factory = QMetaType::fromName("charteditors::ApplicationFactory");
        factory.destroy(factory.create());
        return qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr;
    });
}
