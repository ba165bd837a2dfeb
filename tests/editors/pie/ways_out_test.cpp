// From the host's call to its return, on every way.

#include "tests/editors/pie/pie.h"

#include <QGuiApplication>
#include <chrono>
#include <clocale>
#include <cstdlib>
#include <limits>
#include <new>
#include <thread>

using namespace pie_test;

namespace {

/// Larger blocks are not to be had.
std::size_t largestBlock = std::numeric_limits<std::size_t>::max();

} // namespace

// For the whole process, the library included.
void* operator new(std::size_t size) {
    void* block = size <= largestBlock ? std::malloc(size) : nullptr;
    if (block == nullptr)
        throw std::bad_alloc();
    return block;
}
void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
    return size <= largestBlock ? std::malloc(size) : nullptr;
}
void operator delete(void* block) noexcept {
    std::free(block);
}
void operator delete(void* block, std::size_t /*size*/) noexcept {
    std::free(block);
}

namespace {} // namespace

TEST(PieWaysOut, EnterOnACheckIsOk) {
    CPieChart pie = UnusualPie();
    EXPECT_TRUE(Edit(pie, [](Person& person) { QTest::keyClick(&person.Find("Show 3D"), Qt::Key_Return); }));
    EXPECT_EQ(Difference(UnusualPie(), pie), "");
}

TEST(PieWaysOut, EscInATextIsCancelAndPointersIntoTheObjectStayGood) {
    CPieChart pie = UnusualPie();
    const char* text = pie.m_sectors[0].m_text.data();
    EXPECT_FALSE(Edit(pie, [](Person& person) {
        person.Type("Text", "typed");
        QTest::keyClick(&person.Find("Text"), Qt::Key_Escape);
    }));
    EXPECT_EQ(Difference(UnusualPie(), pie), "");
    EXPECT_EQ(pie.m_sectors[0].m_text.data(), text);
}

TEST(PieWaysOut, EnterInAnEditCommitsAndStays) {
    CPieChart pie = PieOf({"a"});
    EXPECT_TRUE(Edit(pie, [](Person& person) {
        for (const char* name : {"Depth", "Angle", "StartAngle", "Inner R(%)", "Position", "Distance"}) {
            person.Type(name, "33");
            const QImage before = person.Preview();
            person.Enter();
            EXPECT_TRUE(person.Window().isVisible()) << name;
        }
        // What was typed last counts too: the press of OK takes the focus from its edit.
        person.Type("Depth", "44");
        person.Ok();
    }));
    EXPECT_EQ(pie.m_depth3D, 44);
    EXPECT_EQ(pie.m_angle3D, 33);
    EXPECT_EQ(pie.m_startAngle, 33);
    EXPECT_EQ(pie.m_donutInnerRadius, 33);
    EXPECT_EQ(pie.m_labelPosition, 33);
    EXPECT_EQ(pie.m_sectors[0].m_distance, 33);
}

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

TEST(PieWaysOut, AnExceptionPassesAndEverythingIsPutBack) {
    NeedApplication();
    CPieChart pie;
    for (int i = 0; i < 10000; ++i)
        pie.m_sectors.push_back(Sector("many"));
    const CPieChart before(pie);
    QGuiApplication::setQuitOnLastWindowClosed(true);
    largestBlock = 100000; // bytes: the copy of the sectors, and nothing else, is larger
    EXPECT_THROW(ShowPieChartWnd(pie, CChartLayout()), std::bad_alloc);
    largestBlock = std::numeric_limits<std::size_t>::max();
    EXPECT_EQ(Difference(before, pie), "");
    EXPECT_EQ(QApplication::topLevelWidgets().size(), 0);
    EXPECT_TRUE(QGuiApplication::quitOnLastWindowClosed());
    EXPECT_TRUE(Edit(pie, [](Person& person) { person.Ok(); })) << "and the next call works";
}

TEST(PieWaysOut, TenThousandSectorsAreNoTrouble) {
    CPieChart pie;
    for (int i = 0; i < 10000; ++i)
        pie.m_sectors.push_back(Sector("many", static_cast<std::uint32_t>(i)));
    EXPECT_TRUE(Edit(pie, [&](Person& person) {
        EXPECT_EQ(person.List("Sector").count(), 10000);
        QTest::keyClick(&person.List("Sector"), Qt::Key_End);
        person.Click("Delete");
        EXPECT_EQ(person.Rows("Sector").last(), "Sector 9999 ( many )");
        person.Ok();
    }));
    EXPECT_EQ(pie.m_sectors.size(), 9999);
    EXPECT_EQ(pie.m_sectors[9998].m_color.m_color, 9998u);
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
