// Whatever takes the focus away from an edit acts only after the edit has committed, and not at all if it cannot.

#include "tests/editors/framework/test_editor.h"
#include <QAccessible>

namespace {
class Commits : public EditorTest {
protected:
    void OpenItemsWithBadX() {
        editor.AddTitle("a");
        OpenItems();
        person.Type("X", "x");
    }
    /// The letter that `text` is reached by.
    static void Letter(QWidget& window, const QString& text) {
        QTest::keyClick(&window, text[text.indexOf(u'&') + 1].toLower().toLatin1(), Qt::AltModifier);
    }
    static void ScreenReader(QWidget& control, const QString& action) {
        QAccessible::queryAccessibleInterface(&control)->actionInterface()->doAction(action);
    }
    static bool BoxIsOpen() { return qobject_cast<QMessageBox*>(QApplication::activeModalWidget()) != nullptr; }

    static constexpr const char* kComplaint = "\"X\" must be a whole number.";
};

TEST_F(Commits, APressThatMakesAnEditComplainDoesNothingElse) {
    OpenItemsWithBadX();
    auto& angle = person.Find<QAbstractSpinBox>("Angle");
    auto& add = person.Find<QPushButton>("Add");
    auto& show = person.Find<QCheckBox>("Show Title");
    const bool shown = show.isChecked();
    for (QWidget* pressed :
         {static_cast<QWidget*>(&angle), static_cast<QWidget*>(&add), static_cast<QWidget*>(&show),
          static_cast<QWidget*>(editor.m_tabs.tabBar()), static_cast<QWidget*>(&person.Find<QComboBox>("Alignment"))}) {
        SCOPED_TRACE(pressed->objectName().toStdString());
        const QPoint at(pressed == &angle ? angle.width() - 8 : 8, pressed->height() / 4);
        person.Type("X", "x");
        ExpectBox("Test", kComplaint, [&] {
            QTest::mousePress(pressed, Qt::LeftButton, {}, at);
            QTest::qWait(1);
            EXPECT_FALSE(BoxIsOpen()); // not inside the press
            EXPECT_FALSE(add.isDown() || show.isDown());
            QTest::mouseRelease(pressed, Qt::LeftButton, {}, at);
        });
        EXPECT_EQS((person.Focus(), "X"), (person.Find("X").findChild<QLineEdit*>()->selectedText(), "100"),
                   (person.TextOf("Angle"), "0"), (editor.Titles().size(), 1), (show.isChecked(), shown),
                   (editor.m_tabs.currentIndex(), 1), (QApplication::activePopupWidget(), nullptr), (editor.Told(), 0));
    }
    // The next press is one like any other.
    person.Press("Angle", true);
    EXPECT_EQ(editor.Titles()[0].m_angle, 10);
}

TEST_F(Commits, ALetterOrAScreenReaderDoesNothingElseEither) {
    OpenItemsWithBadX();
    auto& add = person.Find<QPushButton>("Add");
    auto& show = person.Find<QCheckBox>("Show Title");
    const bool shown = show.isChecked();
    const std::function<void()> ways[] = {
        [&] { Letter(editor, add.text()); },
        [&] { Letter(editor, show.text()); },
        [&] { Letter(editor, editor.m_tabs.tabText(0)); },
        [&] { ScreenReader(add, QAccessibleActionInterface::pressAction()); },
        [&] { ScreenReader(show, QAccessibleActionInterface::toggleAction()); },
    };
    for (const auto& way : ways) {
        person.Type("X", "x");
        ExpectBox("Test", kComplaint, [&] {
            way();
            QTest::qWait(150); // a letter holds a button down for a moment
        });
        EXPECT_EQS((editor.Titles().size(), 1), (show.isChecked(), shown), (editor.m_itemsPage.isVisible(), true),
                   (person.Focus(), "X"), (editor.Told(), 0));
    }
}

TEST_F(Commits, ATypedValueIsKeptHoweverAButtonIsReached) {
    editor.AddTitle("a");
    OpenItems();
    auto& add = person.Find<QPushButton>("Add");
    const std::function<void()> ways[] = {
        [&] { Letter(editor, add.text()); },
        [&] { ScreenReader(add, QAccessibleActionInterface::pressAction()); },
        [&] { QTest::mouseClick(&add, Qt::LeftButton); },
        [&] {
            add.setFocus();
            QTest::keyClick(&add, Qt::Key_Space);
        },
    };
    for (const auto& way : ways) {
        const int row = editor.Titles().size() - 1;
        person.Type("Title", "typed");
        way();
        EXPECT_TRUE(QTest::qWaitFor([&] { return editor.Titles().size() == row + 2; }));
        EXPECT_STREQ(editor.Titles()[row].m_text.data(), "typed");
        EXPECT_EQ(person.Find<QPlainTextEdit>("Title").toPlainText(), "");
    }
}

TEST_F(Commits, AScreenReadersToggleReachesTheModel) {
    Open();
    ScreenReader(person.Find("On"), QAccessibleActionInterface::toggleAction());
    EXPECT_EQS((values.m_on, false), (editor.Told(), 1));
}
} // namespace
