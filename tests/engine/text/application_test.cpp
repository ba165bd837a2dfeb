#include "tests/engine/text/ink.h"
#include "tests/own_process.h"
#include <QGuiApplication>
#include <atomic>
#include <chrono>
#include <thread>

// Each case needs a process of its own, in which no application object has been made yet: the "threadsafe"
// way of running these starts the test program anew for each.

namespace chartdraw {
namespace {
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
} // namespace

TEST(ApplicationDeathTest, MadeAtFirstNeedWithoutADisplay) {
    expectInOwnProcess([] {
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) qunsetenv(name);
        const bool drawn = drawsText("");
        return drawn && qobject_cast<QGuiApplication*>(QCoreApplication::instance());
    });
}

TEST(ApplicationDeathTest, MadeByAThreadThatEnds) {
    expectInOwnProcess([] {
        bool first = false, second = false;
        std::thread([&] { first = drawsText("bold"); }).join();
        std::thread([&] { second = drawsText("bold"); }).join();
        return first && second && drawsText("bold");
    });
}

TEST(ApplicationDeathTest, TheHostsOwnIsUsedAndFontsOutliveIt) {
    expectInOwnProcess([] {
        int first = 0, second = 0;
        {
            const QGuiApplication host(s_count, s_arguments);
            first = widthOfMono();
            if (QCoreApplication::instance() != &host) return false;
        }
        {
            const QGuiApplication host(s_count, s_arguments);
            second = widthOfMono();
        }
        // 10 letters of 0.6 times 96 pixels; one object later, and with one of our own.
        return first == 577 && second == first && widthOfMono() == first;
    });
}

TEST(ApplicationDeathTest, AHostWithoutAGuiGetsNoText) {
    expectInOwnProcess([] {
        const QCoreApplication host(s_count, s_arguments);
        TextLook look;
        look.background = 0xff0000;
        look.setMargins(5, 5, 5, 5);
        const QImage image = drawn(look, "Text\n<*font=bold*>text");
        return !textAvailable() && ink(image).size() == QSize(10, 10);
    });
}

TEST(ApplicationDeathTest, AHostThatOnlyDrawsNeedsNoDisplay) {
    expectInOwnProcess([] {
        qputenv("QT_QPA_PLATFORM", "xcb");
        qunsetenv("DISPLAY");
        return drawsText("bold");
    });
}

TEST(ApplicationDeathTest, NothingRunsAfterTheEnd) {
    expectInOwnProcess([] {
        std::atexit([] { // runs last, when what was drawn with is gone
            if (const ProcessUse use; use) std::_Exit(1);
        });
        drawsText("bold");
        watchForTheEnd(); // as the first pictures do
        static std::atomic<bool> drawing = false;
        std::thread([] {
            for (;;) {
                const ProcessUse use;
                if (!use) break;
                drawing = true;
                drawsText("bold");
            }
            std::this_thread::sleep_for(std::chrono::minutes(1));
        }).detach();
        while (!drawing) std::this_thread::yield();
        return true;
    });
}

struct HostFactory {
    HostFactory() { new QGuiApplication(s_count, s_arguments); }
};

TEST(ApplicationDeathTest, AFactoryMakesItWhereThereIsOne) {
    expectInOwnProcess([] {
        qRegisterMetaType<HostFactory>("charteditors::ApplicationFactory");
        ensureApplication();
        return QCoreApplication::applicationName() == "host" && drawsText("");
    });
}
} // namespace chartdraw
