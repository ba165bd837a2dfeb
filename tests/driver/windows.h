#pragma once
// Windows that open while a test drives them: how they are waited for, answered and closed.

#include "tests/expect.h"
#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <memory>

/// The host's own application object. Not made before it is needed: some hosts have none.
inline void NeedApplication() {
    static int count = 1;
    static char name[] = "host";
    static char* arguments[] = {name, nullptr};
    if (QCoreApplication::instance() == nullptr) new QApplication(count, arguments); // to the end of the process
}

class WidgetTest : public testing::Test {
protected:
    static void SetUpTestSuite() { NeedApplication(); }
};

/// A desktop gives the keyboard back to the window below the one that has closed.
inline void Activate(QWidget& window) {
    window.activateWindow();
    // Not qWaitForWindowActive: to that, a dialog is active as soon as the window below it is.
    EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &window; }));
}

/// Calls `act` once, as soon as a modal window other than the present one is up. Fails if none comes.
class WhenModal {
public:
    explicit WhenModal(std::function<void(QWidget&)> act) {
        NeedApplication();
        m_present = QApplication::activeModalWidget();
        m_timer = std::make_unique<QTimer>();
        QObject::connect(m_timer.get(), &QTimer::timeout, [this, act = std::move(act)] {
            QWidget* window = QApplication::activeModalWidget();
            if (window != nullptr && window != m_present) {
                m_timer->stop();
                m_came = true;
                Activate(*window);
                act(*window);
            }
        });
        m_timer->start(1);
    }
    /// Waits for the window, which may come a moment after its cause.
    ~WhenModal() {
        EXPECT_TRUE(QTest::qWaitFor([this] { return m_came; })) << "no modal window came";
    }

private:
    QWidget* m_present = nullptr;
    std::unique_ptr<QTimer> m_timer;
    bool m_came = false;
};

/// Expects a message box while `cause` runs, and answers it.
inline void ExpectBox(const char* title, const char* text, const std::function<void()>& cause) {
    QWidget* window = QApplication::activeWindow();
    {
        const WhenModal answer([&](QWidget& box) {
            auto* message = qobject_cast<QMessageBox*>(&box);
            ASSERT_NE(message, nullptr) << qPrintable(box.windowTitle());
            EXPECT_EQ(message->text(), QString::fromUtf8(text));
            EXPECT_EQ(message->windowTitle(), QString::fromUtf8(title));
            EXPECT_EQ(message->icon(), QMessageBox::Warning);
            EXPECT_EQ(message->buttons().size(), 1);
            QTest::mouseClick(message->button(QMessageBox::Ok), Qt::LeftButton);
        });
        cause();
    }
    QTest::qWait(5);
    EXPECT_EQ(qobject_cast<QMessageBox*>(QApplication::activeModalWidget()), nullptr) << "a second box";
    Activate(*window);
}

/// Runs a dialog modally with `drive` inside; closes it if that has not. Returns the result.
template <class Dialog, class Drive> int RunModal(Dialog& dialog, Drive drive) {
    QTimer::singleShot(0, &dialog, [&] {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
        drive();
        if (dialog.isVisible()) dialog.reject();
    });
    return dialog.DoModal();
}

/// While it lives, dismisses every dialog of that kind that opens, and keeps the text of the last one.
template <class Box> class Dismiss {
public:
    Dismiss() {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] {
            if (auto* box = qobject_cast<Box*>(QApplication::activeModalWidget())) {
                if constexpr (requires { box->text(); }) m_text = box->text();
                ++m_count;
                box->reject();
            }
        });
        m_timer.start(1);
    }
    /// Waits for one, which may come a moment after its cause.
    bool Came() const {
        return QTest::qWaitFor([this] { return m_count > 0; });
    }
    int m_count = 0;
    QString m_text;

private:
    QTimer m_timer;
};
