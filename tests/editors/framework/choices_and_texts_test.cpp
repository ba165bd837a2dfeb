#include "tests/editors/framework/test_editor.h"

namespace {
using Choices = EditorTest;
using Texts = EditorTest;

TEST_F(Choices, ClicksAreStoredAndTold) {
    Open();
    person.Click("On");
    EXPECT_EQS((values.m_on, false), (editor.Told(), 1));
    person.Click("Sector");
    EXPECT_EQS((values.m_flag, false), (person.Find<QRadioButton>("Ring").isChecked(), false), (editor.Told(), 1));
    person.Choose("Code", 1);
    EXPECT_EQ(values.m_code, 1);
    person.Choose("Alignment", 12);
    EXPECT_EQ(values.m_alignment, 13);
    person.Choose("Side", 3);
    EXPECT_EQS((values.m_side, 2), (editor.Told(), 3));
}

TEST_F(Choices, CodesThatAreNotInTheListShowARowAndStay) {
    values.m_code = 2;
    values.m_alignment = 99;
    values.m_side = 5;
    Open();
    EXPECT_EQS((person.Find<QComboBox>("Code").currentText(), "Side"),
               (person.Find<QComboBox>("Alignment").currentText(), "TopLeft"),
               (person.Find<QComboBox>("Side").currentText(), "Left"));
    person.Click("On");
    EXPECT_EQS((values.m_code, 2), (values.m_alignment, 99));
}

TEST_F(Choices, AFlagThatIsNotLoadedIsWrittenByItsClicks) {
    Open();
    EXPECT_EQS((person.Find<QCheckBox>("Not Loaded").isChecked(), false), (values.m_notLoaded, true));
    person.Click("Not Loaded");
    EXPECT_TRUE(values.m_notLoaded);
    person.Click("Not Loaded");
    EXPECT_EQS((values.m_notLoaded, false), (editor.Told(), 2));
}

TEST_F(Texts, AreStoredWhenTheyAreLeft) {
    Open();
    person.Type("Text", "one");
    EXPECT_STREQ(values.m_text.data(), "");
    person.Leave();
    EXPECT_STREQ(values.m_text.data(), "one");
    EXPECT_EQ(editor.Told(), 1);
    person.Type("Text", "two");
    person.Enter();
    EXPECT_STREQ(values.m_text.data(), "two");
    EXPECT_TRUE(editor.isVisible());
    person.Type("Label", "a");
    person.Enter(); // a line break
    QTest::keyClicks(QApplication::focusWidget(), "b");
    person.Leave();
    EXPECT_STREQ(values.m_lines.data(), "a\nb");
}

TEST_F(Texts, OfTwoKindsOfLineEndsAreShownAsLinesAndStay) {
    values.m_lines = "a\r\nb";
    Open();
    EXPECT_EQ(person.Find<QPlainTextEdit>("Label").toPlainText(), "a\nb");
    person.Find("Label").setFocus();
    person.Leave();
    EXPECT_STREQ(values.m_lines.data(), "a\r\nb");
    person.Give("Label", "c");
    EXPECT_STREQ(values.m_lines.data(), "c");
}

TEST_F(Texts, FormatsFollowTheTextAndFillIt) {
    values.m_lines = "{value}";
    Open();
    auto& formats = person.Find<QComboBox>("Format");
    EXPECT_EQS((formats.count(), 4), (formats.itemText(0), "---------------------------------"),
               (formats.currentIndex(), 2));
    person.Choose("Format", 3);
    EXPECT_STREQ(values.m_lines.data(), "{percent}%");
    EXPECT_EQS((person.Find<QPlainTextEdit>("Label").toPlainText(), "{percent}%"), (formats.currentIndex(), 3),
               (editor.Told(), 1));
    person.Choose("Format", 0);
    EXPECT_STREQ(values.m_lines.data(), "{percent}%");
    EXPECT_EQ(editor.Told(), 0);
    person.Choose("Format", 1);
    person.Type("Label", "x");
    EXPECT_EQ(formats.currentIndex(), 0);

    // By the program, as when the type of a scale changes.
    editor.Told();
    editor.m_valuesPage.Formats().Put(QStringLiteral("{value}"));
    EXPECT_STREQ(values.m_lines.data(), "{value}");
    EXPECT_EQS((formats.currentIndex(), 2), (editor.Told(), 0));
}

TEST_F(Texts, TheFormatThatBeginsWithTheTextIsSelectedAtFirst) {
    using Case = std::tuple<const char*, int>;
    for (const auto& [text, row] : {Case{"", 0}, {"{da", 1}, {"{VAL", 2}, {"{", 1}, {"value", 0}}) {
        CTestEditor other;
        other.m_values.m_lines = text;
        other.Open();
        EXPECT_EQ(Person(other).Find<QComboBox>("Format").currentIndex(), row) << text;
    }
}
} // namespace
