#include "tests/editors/framework/test_editor.h"

namespace {
using Dialogs = EditorTest;

TEST_F(Dialogs, OpenOnTheFirstPageWithTheFocusOnTheDialog) {
    Open();
    EXPECT_EQS((editor.m_tabs.count(), 2), (editor.m_valuesPage.isVisible(), true),
               (editor.m_itemsPage.isVisible(), false), (editor.hasFocus(), true));

    // A page fills what the tab control has for it, and nothing shows above or beside it.
    const QRect page(editor.m_valuesPage.mapTo(&editor, QPoint()), editor.m_valuesPage.size());
    const QRect tabs(editor.m_tabs.mapTo(&editor, QPoint()), editor.m_tabs.size());
    EXPECT_TRUE(tabs.contains(page));
    EXPECT_GT(page.width(), tabs.width() - 12);
}

TEST_F(Dialogs, ATabShowsItsPageAndKeepsTheOthers) {
    Open();
    person.Type("Free", "12");
    QTest::mouseClick(editor.m_tabs.tabBar(), Qt::LeftButton, {}, editor.m_tabs.tabBar()->tabRect(1).center());
    EXPECT_EQ(values.m_free, 12); // left, and so committed
    EXPECT_EQS((editor.m_itemsPage.isVisible(), true), (editor.m_valuesPage.isVisible(), false),
               (editor.hasFocus(), true));
    editor.m_tabs.ShowPage(0);
    EXPECT_EQ(person.TextOf("Free"), "12");
    editor.m_tabs.ShowPage(7);
    EXPECT_EQS((editor.m_valuesPage.isVisible(), true), (editor.hasFocus(), true));

    // The arrow keys walk the tabs and stay on them.
    editor.m_tabs.tabBar()->setFocus();
    person.Key(Qt::Key_Right);
    EXPECT_EQS((editor.m_itemsPage.isVisible(), true), (editor.m_tabs.tabBar()->hasFocus(), true));
}

TEST_F(Dialogs, PagesCanShareATab) {
    CValuesPage other(values, editor);
    editor.m_tabs.AttachPage(other);
    Open();
    editor.m_tabs.ShowPage(1);
    EXPECT_TRUE(editor.m_itemsPage.isVisible());
    editor.m_tabs.Choose(1);
    EXPECT_EQS((editor.m_itemsPage.isVisible(), false), (other.isVisible(), true),
               (other.geometry(), editor.m_itemsPage.geometry()), (editor.m_tabs.count(), 2));
}

TEST_F(Dialogs, EnterOnAPageCommitsOrDoesNothingAndEscDoesNothing) {
    Open();
    for (const char* name : {"Floored", "Text", "Label", "On", "Code", "Ring"}) {
        person.Find(name).setFocus();
        person.Key(Qt::Key_Escape);
        person.Enter();
        person.Key(Qt::Key_Enter);
        EXPECT_TRUE(editor.isVisible()) << name;
    }
    person.Type("Floored", "31");
    person.Key(Qt::Key_Escape);
    EXPECT_EQ(values.m_floored, 5);
    person.Enter();
    EXPECT_EQS((values.m_floored, 31), (editor.isVisible(), true));
}

TEST_F(Dialogs, EnterWithAModifierIsNoEnter) {
    Open();
    person.Type("Floored", "31");
    for (const Qt::KeyboardModifier modifier : {Qt::ControlModifier, Qt::AltModifier, Qt::ShiftModifier})
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) QTest::keyClick(editor.focusWidget(), key, modifier);
    EXPECT_EQ(values.m_floored, 5);
    QTest::keyClick(editor.focusWidget(), Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(values.m_floored, 31);
    editor.setFocus();
    QTest::keyClick(&editor, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_TRUE(editor.isVisible());
}

TEST_F(Dialogs, OkAndCancelEndTheDialog) {
    const std::tuple<const char*, std::function<void(CTestEditor&)>, int> ways[] = {
        {"OK", [](CTestEditor& open) { Person(open).Click("OK"); }, QDialog::Accepted},
        {"Enter", [](CTestEditor& open) { QTest::keyClick(&open, Qt::Key_Return); }, QDialog::Accepted},
        {"Alt", [](CTestEditor& open) { Person(open).Find<QPushButton>("OK").click(); }, QDialog::Accepted},
        {"Cancel", [](CTestEditor& open) { Person(open).Click("Cancel"); }, QDialog::Rejected},
        {"Esc", [](CTestEditor& open) { QTest::keyClick(&open, Qt::Key_Escape); }, QDialog::Rejected},
        {"close box", [](CTestEditor& open) { open.close(); }, QDialog::Rejected},
    };
    for (const auto& [name, go, result] : ways) {
        SCOPED_TRACE(name);
        CTestEditor open;
        open.Open();
        Person(open).Type("Free", "12");
        go(open);
        EXPECT_EQS((open.isVisible(), false), (open.result(), result));
        if (result == QDialog::Accepted) EXPECT_EQ(open.m_values.m_free, 12);
    }
}

class CPlainDialog : public CDialog {
public:
    CPlainDialog() : CDialog(QStringLiteral("Plain")), m_form(*this, [this] { ++m_told; }) {
        m_form.Integer("Free:", m_free);
        m_form.Check("On", m_on);
        m_form.Place(nullptr, *MakeOkCancel());
    }
    std::int32_t m_free = 1;
    bool m_on = false;
    int m_told = 0;

private:
    CForm m_form;
};

TEST_F(Dialogs, WithoutPagesEnterInAnEditCommitsAndElsewhereIsOk) {
    CPlainDialog dialog;
    QTimer::singleShot(0, &dialog, [&] {
        const Person user(dialog);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
        user.Type("Free", "5");
        user.Enter();
        EXPECT_EQS((dialog.isVisible(), true), (dialog.m_free, 5), (dialog.m_told, 1));
        user.Type("Free", "6");
        user.Find("On").setFocus();
        user.Enter();
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_EQS((dialog.DoModal(), CDialog::kOK), (dialog.m_free, 6));

    QTimer::singleShot(0, &dialog, [&] { QTest::keyClick(dialog.findChild<QWidget*>("Free"), Qt::Key_Escape); });
    EXPECT_EQ(dialog.DoModal(), CDialog::kCancel);
}

TEST_F(Dialogs, AChangeMarksThePreviewAndThePaintDrawsOnce) {
    Open();
    editor.m_preview.grab();
    EXPECT_FALSE(editor.m_preview.m_dirty);
    person.Press("Free", true);
    EXPECT_TRUE(editor.m_preview.m_dirty);
    editor.m_preview.grab();
    EXPECT_FALSE(editor.m_preview.m_dirty);
}
} // namespace
