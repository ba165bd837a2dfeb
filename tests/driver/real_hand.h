#pragma once
// A hand on the mouse and the keyboard of the screen: its events take the road through the window manager and
// the toolkit that a person's take. Needs a screen, xdotool, and a window manager to have been started.

#include <QGuiApplication>
#include <QProcess>
#include <QTest>
#include <QWidget>
#include <gtest/gtest.h>

/// While it lives, windows get frames and the focus.
class WindowManager {
public:
    WindowManager() {
        m_process.start(QStringLiteral("openbox"), {});
        EXPECT_TRUE(m_process.waitForStarted());
        QTest::qWait(500);
    }
    ~WindowManager() {
        m_process.terminate();
        m_process.waitForFinished();
    }

private:
    QProcess m_process;
};

class RealHand {
public:
    /// Any command of xdotool; the event loop runs until its events have come.
    static void Do(const QStringList& arguments) {
        QProcess tool;
        tool.start(QStringLiteral("xdotool"), arguments);
        EXPECT_TRUE(QTest::qWaitFor([&] { return tool.state() == QProcess::NotRunning; }));
        EXPECT_EQ(tool.exitCode(), 0) << arguments.join(u' ').toStdString();
        QTest::qWait(150);
    }
    /// To a place of the screen, in the toolkit's pixels.
    static void Move(QPoint to) {
        const QPointF place = QPointF(to) * qGuiApp->devicePixelRatio();
        Do({QStringLiteral("mousemove"), QString::number(place.x(), 'f', 0), QString::number(place.y(), 'f', 0)});
    }
    static void Press(QPoint place) {
        Move(place);
        Do({QStringLiteral("mousedown"), QStringLiteral("1")});
    }
    static void Press(const QWidget& widget, QPoint at) { Press(widget.mapToGlobal(at)); }
    static void Drag(QPoint from, QPoint by) {
        Press(from);
        Move(from + by / 2);
        Move(from + by);
        Release();
    }
    static void Release() { Do({QStringLiteral("mouseup"), QStringLiteral("1")}); }
    static void Click(const QWidget& widget, QPoint at) {
        Press(widget, at);
        Release();
    }
    /// Keys by the names of the screen: "Tab", "alt+a".
    static void Key(const QString& key) { Do({QStringLiteral("key"), key}); }
    static void Write(const QString& text) { Do({QStringLiteral("type"), text}); }
};
