#include "engine/text/application.h"

#include "tests/engine/text/ink.h"

#include <QGuiApplication>
#include <atomic>
#include <chrono>
#include <cstdlib>
#include <gtest/gtest.h>
#include <thread>

// Each case needs a process of its own, in which no application object has been made yet: the "threadsafe"
// way of running these starts the test program anew for each.

namespace chartdraw {

namespace {

int s_count = 1;
char s_name[] = "host";
char* s_arguments[] = {s_name, nullptr};

bool drawsText(const char* font) {
    TextLook look;
    look.font = font;
    return !ink(drawn(look, "Text")).isEmpty();
}

int widthOfMono() {
    TextLook look;
    look.font = "LiberationMono-Regular.ttf";
    look.size = 72;
    return TextBlock(look, "iiiiiiiiii", FontSet()).boxSize().width();
}

[[noreturn]] void leave(bool good) {
    std::exit(good ? 0 : 1); // With static destructors.
}

class Application : public testing::Test {
protected:
    void SetUp() override { testing::FLAGS_gtest_death_test_style = "threadsafe"; }
};

using ApplicationDeathTest = Application;

} // namespace

TEST_F(ApplicationDeathTest, MadeAtFirstNeedWithoutADisplay) {
    const auto run = [] {
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            unsetenv(name);
        const bool drawn = drawsText("");
        leave(drawn && qobject_cast<QGuiApplication*>(QCoreApplication::instance()));
    };
    EXPECT_EXIT(run(), testing::ExitedWithCode(0), "");
}

TEST_F(ApplicationDeathTest, MadeByAThreadThatEnds) {
    const auto run = [] {
        bool first = false, second = false;
        std::thread([&] { first = drawsText("bold"); }).join();
        std::thread([&] { second = drawsText("bold"); }).join();
        leave(first && second && drawsText("bold"));
    };
    EXPECT_EXIT(run(), testing::ExitedWithCode(0), "");
}

TEST_F(ApplicationDeathTest, TheHostsOwnIsUsedAndFontsOutliveIt) {
    const auto run = [] {
        int first = 0, second = 0;
        {
            const QGuiApplication host(s_count, s_arguments);
            first = widthOfMono();
            if (QCoreApplication::instance() != &host)
                leave(false);
        }
        {
            const QGuiApplication host(s_count, s_arguments);
            second = widthOfMono();
        }
        // 10 letters of 0.6 times 96 pixels; one object later, and with one of our own.
        leave(first == 577 && second == first && widthOfMono() == first);
    };
    EXPECT_EXIT(run(), testing::ExitedWithCode(0), "");
}

TEST_F(ApplicationDeathTest, AHostWithoutAGuiGetsNoText) {
    const auto run = [] {
        const QCoreApplication host(s_count, s_arguments);
        TextLook look;
        look.background = 0xff0000;
        look.setMargins(5, 5, 5, 5);
        const QImage image = drawn(look, "Text\n<*font=bold*>text");
        leave(!textAvailable() && ink(image).size() == QSize(10, 10));
    };
    EXPECT_EXIT(run(), testing::ExitedWithCode(0), "");
}

TEST_F(ApplicationDeathTest, AHostThatOnlyDrawsNeedsNoDisplay) {
    const auto run = [] {
        setenv("QT_QPA_PLATFORM", "xcb", 1);
        unsetenv("DISPLAY");
        leave(drawsText("bold"));
    };
    EXPECT_EXIT(run(), testing::ExitedWithCode(0), "");
}

TEST_F(ApplicationDeathTest, NothingRunsAfterTheEnd) {
    const auto run = [] {
        std::atexit([] { // runs last, when what was drawn with is gone
            if (const ProcessUse use; use)
                std::_Exit(1);
        });
        drawsText("bold");
        watchForTheEnd(); // as the first pictures do
        static std::atomic<bool> drawing = false;
        std::thread([] {
            for (;;) {
                const ProcessUse use;
                if (!use)
                    break;
                drawing = true;
                drawsText("bold");
            }
            std::this_thread::sleep_for(std::chrono::minutes(1));
        }).detach();
        while (!drawing)
            std::this_thread::yield();
        leave(true);
    };
    EXPECT_EXIT(run(), testing::ExitedWithCode(0), "");
}

struct HostFactory {
    HostFactory() { new QGuiApplication(s_count, s_arguments); }
};

TEST_F(ApplicationDeathTest, AFactoryMakesItWhereThereIsOne) {
    const auto run = [] {
        qRegisterMetaType<HostFactory>("charteditors::ApplicationFactory");
        ensureApplication();
        leave(QCoreApplication::applicationName() == "host" && drawsText(""));
    };
    EXPECT_EXIT(run(), testing::ExitedWithCode(0), "");
}

} // namespace chartdraw
