// From the host's call to its return, on every way.

#include "tests/editors/pie/pie.h"

#include <QGuiApplication>
#include <chrono>
#include <clocale>
#include <cstdlib>
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
    EXPECT_TRUE(QGuiApplication::quitOnLastWindowClosed());
    EXPECT_TRUE(pie.m_shadow3D);
    EXPECT_FALSE(pie.m_show3D);
}

// ---- Hosts that are no programs of the toolkit, or only half of one: each in a process of its own.

class PieHosts : public testing::Test {
protected:
    PieHosts() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
};

TEST_F(PieHosts, NoApplicationObjectIsNeeded) {
    const auto host = [] {
        // The host knows no toolkit; the person is a thread that waits for the window.
        std::thread person([] {
            const auto present = [] { return QCoreApplication::instance() != nullptr; };
            while (!present())
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
            QMetaObject::invokeMethod(
                qApp,
                [] {
                    const Person guest(*QApplication::activeModalWidget());
                    guest.Click("Show 3D");
                    guest.Ok();
                },
                Qt::QueuedConnection);
        });
        CPieChart pie;
        const bool ok = ShowPieChartWnd(pie, CChartLayout());
        person.join();
        const bool localeKept = std::string(std::setlocale(LC_ALL, nullptr)) == "C";
        std::exit(ok && pie.m_show3D && localeKept ? 0 : 1);
    };
    EXPECT_EXIT(host(), testing::ExitedWithCode(0), "");
}

TEST_F(PieHosts, AnApplicationObjectWithoutWindowsIsACancel) {
    const auto host = [](QCoreApplication* /*application*/) {
        CPieChart pie = UnusualPie();
        const bool ok = ShowPieChartWnd(pie, CChartLayout());
        std::exit(!ok && Difference(UnusualPie(), pie).empty() ? 0 : 1);
    };
    static int count = 1;
    static char name[] = "host";
    static char* arguments[] = {name, nullptr};
    EXPECT_EXIT(host(new QCoreApplication(count, arguments)), testing::ExitedWithCode(0), "");
    EXPECT_EXIT(host(new QGuiApplication(count, arguments)), testing::ExitedWithCode(0), "");
}
