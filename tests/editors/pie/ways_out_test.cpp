// From the host's call to its return, on every way.

#include "tests/editors/pie/pie.h"
#include "tests/own_process.h"

#include <QGuiApplication>
#include <chrono>
#include <clocale>
#include <thread>

using namespace pie_test;

TEST(PieWaysOut, AHostsOwnModalDialogOwnsTheEditor) {
    NeedApplication();
    QDialog host;
    host.setWindowTitle(QStringLiteral("host"));
    CPieChart pie;
    QGuiApplication::setQuitOnLastWindowClosed(true);
    {
        const WhenModal work([&](QWidget& window) {
            EXPECT_EQ(&window, &host);
            EXPECT_TRUE(Edit(pie, [&](Person& person) {
                EXPECT_EQ(person.Window().parentWidget(), &host);
                CPieChart inner;
                EXPECT_TRUE(Edit(inner, [](Person& second) { // a host may call from a timer of its own
                    second.Click("Show 3D");
                    second.Ok();
                }));
                EXPECT_TRUE(inner.m_show3D);
                person.Click("Shadow3D");
                person.Ok();
            }));
            EXPECT_EQ(QApplication::activeModalWidget(), &host);
            host.accept();
        });
        EXPECT_EQ(host.exec(), QDialog::Accepted);
    }
    EXPECT_EQS((QGuiApplication::quitOnLastWindowClosed(), true), (pie.m_shadow3D, true), (pie.m_show3D, false));
}

// ---- Hosts that are no programs of the toolkit, or only half of one: each in a process of its own.

TEST(PieHosts, NoApplicationObjectIsNeeded) {
    expectInOwnProcess([] {
        // The host knows no toolkit; the person is a thread that waits for the window.
        std::thread person([] {
            while (QCoreApplication::instance() == nullptr) std::this_thread::sleep_for(std::chrono::milliseconds(1));
            const auto answer = [] {
                const Person guest(*QApplication::activeModalWidget());
                guest.Click("Show 3D");
                guest.Ok();
            };
            QMetaObject::invokeMethod(qApp, answer, Qt::QueuedConnection);
        });
        CPieChart pie;
        const bool ok = ShowPieChartWnd(pie, CChartLayout());
        person.join();
        return ok && pie.m_show3D && std::string(std::setlocale(LC_ALL, nullptr)) == "C";
    });
}

TEST(PieHosts, AnApplicationObjectWithoutWindowsIsACancel) {
    for (const bool gui : {false, true})
        expectInOwnProcess([gui] {
            gui ? new QGuiApplication(s_count, s_arguments) : new QCoreApplication(s_count, s_arguments);
            CPieChart pie = UnusualPie();
            return !ShowPieChartWnd(pie, CChartLayout()) && Difference(UnusualPie(), pie).empty();
        });
}
