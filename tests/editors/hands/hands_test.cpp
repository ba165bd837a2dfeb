// What only a real screen shows: presses and letters that make an edit commit or complain.

#include "tests/driver/real_hand.h"
#include "tests/editors/pie/pie.h"

using namespace pie_test;

namespace {
/// Runs the editor on a pie of two sectors and a window manager beside it; it ends with OK.
void WithEditor(CPieChart& pie, const std::function<void(Person&)>& act) {
    NeedApplication();
    const WindowManager manager;
    EXPECT_TRUE(Edit(pie, [&](Person& editor) {
        QTest::qWait(300); // the frame has moved the window
        act(editor);
        auto& ok = editor.Find<QPushButton>("OK");
        RealHand::Click(ok, ok.rect().center());
    }));
}

void WriteInto(QAbstractSpinBox& number, const QString& text) {
    RealHand::Click(number, {8, number.height() / 2});
    RealHand::Key(QStringLiteral("ctrl+a"));
    RealHand::Write(text);
}

QMessageBox* OpenBox() { return qobject_cast<QMessageBox*>(QApplication::activeModalWidget()); }

TEST(Hands, APressThatMeetsABadTextDoesNothingAndRunsNowhere) {
    CPieChart pie = PieOf({"a", "b"});
    const CPieChart before(pie);
    WithEditor(pie, [](Person& editor) {
        auto& angle = editor.Find<QAbstractSpinBox>("StartAngle");
        auto& depth = editor.Find<QAbstractSpinBox>("Depth");
        const std::pair<QWidget*, QPoint> pressed[] = {
            {&depth, {depth.width() - 8, depth.height() / 4}},
            {&editor.Find("Add"), {10, 10}},
            {&editor.Find("Delete"), {10, 10}},
            {&editor.Find("Show 3D"), {8, 8}},
            {&editor.Find("Layout"), {10, 10}},
            {&editor.Find("OK"), {10, 10}},
        };
        const QString shown = editor.TextOf("Depth");
        for (const auto& [widget, at] : pressed) {
            SCOPED_TRACE(widget->objectName().toStdString());
            WriteInto(angle, QStringLiteral("x"));
            RealHand::Press(*widget, at);
            QTest::qWait(700); // an arrow would repeat by now
            EXPECT_EQ(OpenBox(), nullptr);
            if (auto* button = qobject_cast<QAbstractButton*>(widget)) EXPECT_FALSE(button->isDown());
            RealHand::Release();
            ASSERT_TRUE(QTest::qWaitFor([] { return OpenBox() != nullptr; }));
            EXPECT_EQ(OpenBox()->text(), "\"StartAngle\" must be a number.");
            RealHand::Key(QStringLiteral("Return"));
            EXPECT_TRUE(QTest::qWaitFor([] { return OpenBox() == nullptr; }));
            QTest::qWait(700);
            EXPECT_EQS((editor.TextOf("Depth"), shown), (angle.hasFocus(), true),
                       (angle.findChild<QLineEdit*>()->selectedText(), "0"));
        }
    });
    EXPECT_EQ(Difference(before, pie), "");
}

TEST(Hands, ALetterKeepsWhatWasTyped) {
    CPieChart pie = PieOf({"a", "b"});
    WithEditor(pie, [](Person& editor) {
        const auto letter = [&](const char* name) {
            const QString text = editor.Find<QAbstractButton>(name).text();
            RealHand::Key(QStringLiteral("alt+") + text[text.indexOf(u'&') + 1].toLower());
        };
        RealHand::Click(editor.Find("Text"), {20, 20});
        RealHand::Key(QStringLiteral("ctrl+a"));
        RealHand::Write(QStringLiteral("typed"));
        WriteInto(editor.Find<QAbstractSpinBox>("Distance"), QStringLiteral("33"));
        letter("Add");
        EXPECT_TRUE(QTest::qWaitFor([&] { return editor.Rows("Sector").size() == 3; }));
        WriteInto(editor.Find<QAbstractSpinBox>("Depth"), QStringLiteral("21"));
        letter("Delete");
        EXPECT_TRUE(QTest::qWaitFor([&] { return editor.Rows("Sector").size() == 2; }));
    });
    EXPECT_STREQ(pie.m_sectors[0].m_text.data(), "typed");
    EXPECT_EQS((pie.m_sectors[0].m_distance, 33), (pie.m_depth3D, 21));
}
} // namespace
