#pragma once
// How tests drive dialogs and their controls.

#include "platform/application.h"
#include "platform/widgets/field_changed.h"

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <QWidget>
#include <gtest/gtest.h>
#include <vector>

/// Makes the application object before the first widget.
class WidgetTest : public testing::Test {
protected:
    static void SetUpTestSuite() { ASSERT_TRUE(platform::EnsureWidgetApplication()); }
};

/// A parent that keeps the messages of its children.
class MessageLog : public QWidget {
public:
    std::vector<int> m_keys;

protected:
    bool event(QEvent* event) override {
        if (event->type() == CFieldChangedEvent::kType) {
            m_keys.push_back(static_cast<CFieldChangedEvent*>(event)->Key());
            return true;
        }
        return QWidget::event(event);
    }
};

template <class Control = QWidget>
Control* Find(QWidget& dialog, const char* name) {
    // Pages of one kind have controls of the same names; the one that shows is meant.
    for (QWidget* found : dialog.findChildren<QWidget*>(QString::fromUtf8(name))) {
        if (found->isVisible()) {
            if (auto* control = dynamic_cast<Control*>(found))
                return control;
        }
    }
    ADD_FAILURE() << "no control " << name;
    return nullptr;
}

/// Replaces the text of an edit as a person does, and leaves it there.
inline void Type(QWidget* edit, const char* text) {
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, QString::fromUtf8(text));
}

/// Runs a dialog modally with `drive` inside; closes it if that has not. Returns the result.
template <class Dialog, class Drive>
int RunModal(Dialog& dialog, Drive drive) {
    QTimer::singleShot(0, &dialog, [&] {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
        drive();
        if (dialog.isVisible())
            dialog.reject();
    });
    return dialog.DoModal();
}

/// While it lives, dismisses every dialog of that kind that opens, and keeps the text of the last one.
template <class Box>
class Dismiss {
public:
    Dismiss() {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] {
            if (auto* box = qobject_cast<Box*>(QApplication::activeModalWidget())) {
                if constexpr (requires { box->text(); })
                    m_text = box->text();
                ++m_count;
                box->reject();
            }
        });
        m_timer.start(1);
    }
    int m_count = 0;
    QString m_text;

private:
    QTimer m_timer;
};
