#include "tests/editors/pie/pie.h"
#include "tests/own_process.h"
#include <QGuiApplication>

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

TEST(PieHosts, AnApplicationObjectWithoutWindowsIsACancel) {
    for (const bool gui : {false, true})
        expectInOwnProcess([gui] {
            gui ? new QGuiApplication(s_count, s_arguments) : new QCoreApplication(s_count, s_arguments);
            CPieChart pie = UnusualPie();
            return !ShowPieChartWnd(pie, CChartLayout()) && Difference(UnusualPie(), pie).empty();
        });
}
