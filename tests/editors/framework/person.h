#pragma once
// A person in front of a dialog: acts by the toolkit's own events and answers message boxes.

#include "platform/widgets/simple_combo.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>
#include <stdexcept>

class Person {
public:
    explicit Person(QWidget& window) : m_window(window) {}

    template <class Control = QWidget>
    Control& Find(const char* name) const {
        // Pages have controls of the same name; the one that shows is meant.
        for (Control* found : m_window.findChildren<Control*>(QString::fromUtf8(name)))
            if (found->isVisible())
                return *found;
        throw std::runtime_error(std::string("no control ") + name);
    }
    QString TextOf(const char* number) const {
        return Find<QAbstractSpinBox>(number).template findChild<QLineEdit*>()->text();
    }
    /// The control that has the focus, by its name.
    QString Focus() const {
        return m_window.focusWidget() == nullptr ? QString() : m_window.focusWidget()->objectName();
    }

    void Click(const char* name) const {
        auto& control = Find(name);
        // A check box is hit on its box: its text may end long before the control does.
        QTest::mouseClick(&control, Qt::LeftButton, {}, QPoint(8, control.height() / 2));
    }
    void Press(const char* number, bool up) const {
        auto& spin = Find<QAbstractSpinBox>(number);
        const int y = up ? spin.height() / 4 : spin.height() * 3 / 4;
        QTest::mouseClick(&spin, Qt::LeftButton, {}, QPoint(spin.width() - 8, y));
    }
    /// Goes to an edit and types over what stands in it.
    void Type(const char* edit, const char* text) const {
        auto& control = Find(edit);
        control.setFocus(Qt::MouseFocusReason);
        QTest::keyClick(&control, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&control, Qt::Key_Delete);
        QTest::keyClicks(&control, QString::fromUtf8(text));
    }
    void Key(Qt::Key key) const { QTest::keyClick(m_window.focusWidget(), key); }
    void Leave() const { Key(Qt::Key_Tab); }
    void Enter() const { Key(Qt::Key_Return); }
    /// Types into an edit and leaves it.
    void Give(const char* edit, const char* text) const {
        Type(edit, text);
        Leave();
    }
    void Choose(const char* combo, int row) const {
        auto& box = Find<QComboBox>(combo);
        box.setFocus();
        box.showPopup();
        QTest::keyClick(box.view(), Qt::Key_Home);
        for (int i = 0; i < row; ++i)
            QTest::keyClick(box.view(), Qt::Key_Down);
        QTest::keyClick(box.view(), Qt::Key_Return);
    }

    QListWidget& List(const char* name) const { return *Find<CSimpleCombo>(name).List(); }
    QStringList Rows(const char* name) const {
        QStringList rows;
        for (int i = 0; i < List(name).count(); ++i)
            rows.append(List(name).item(i)->text());
        return rows;
    }
    void Select(const char* list, int row) const {
        QTest::mouseClick(List(list).viewport(), Qt::LeftButton, {},
                          List(list).visualItemRect(List(list).item(row)).center());
    }

private:
    QWidget& m_window;
};

/// Lets `cause` run and expects one message box with that text while it does; answers it.
inline void ExpectBox(const char* title, const char* text, const std::function<void()>& cause) {
    int boxes = 0;
    QWidget* window = QApplication::activeWindow();
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            ++boxes;
            EXPECT_EQ(box->text(), QString::fromUtf8(text));
            EXPECT_EQ(box->windowTitle(), QString::fromUtf8(title));
            EXPECT_EQ(box->icon(), QMessageBox::Warning);
            EXPECT_EQ(box->buttons().size(), 1);
            QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
        }
    });
    timer.start(1);
    cause();
    QTest::qWait(5);
    EXPECT_EQ(boxes, 1);
    window->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window));
}
