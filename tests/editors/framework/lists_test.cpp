#include "platform/widgets/simple_combo.h"
#include "tests/editors/framework/test_editor.h"

namespace {
class Lists : public EditorTest {
protected:
    void OpenWith(std::initializer_list<const char*> texts) {
        for (const char* text : texts) editor.AddTitle(text);
        OpenItems();
    }
    QStringList Rows() { return person.Rows("Titles"); }
    int Row() { return person.Find<CSimpleCombo>("Titles").Selected(); }
    QString Text() { return person.Find<QPlainTextEdit>("Title").toPlainText(); }
    CChartTitles& titles = editor.Titles();
};

TEST_F(Lists, ShowTheFirstItemAtFirst) {
    OpenWith({"a", "first\nsecond", "100 %s"});
    EXPECT_EQS((Rows(), (QStringList{"Title 1 ( a )", "Title 2 ( first... )", "Title 3 ( 100 %s )"})), (Row(), 0),
               (Text(), "a"));
    person.Select("Titles", 1);
    EXPECT_EQS((Text(), "first\nsecond"), (person.TextOf("X"), "101"), (editor.Told(), 0));
}

TEST_F(Lists, EditTheSelectedItemOnly) {
    OpenWith({"a", "b", "c"});
    person.Select("Titles", 1);
    person.Give("X", "7");
    person.Press("Angle", true);
    person.Click("Show Title");
    person.Choose("Alignment", 3);
    EXPECT_EQS((titles[1].m_x, 7), (titles[1].m_angle, 10));
    EXPECT_NE(titles[1].m_show, titles[0].m_show);
    EXPECT_EQS((titles[1].m_alignment, 4), (titles[0].m_x, 100), (titles[2].m_x, 102), (editor.Told(), 4));
    // An edit left by choosing another row goes into the row that was selected.
    person.Type("X", "8");
    person.Select("Titles", 2);
    EXPECT_EQS((titles[1].m_x, 8), (titles[2].m_x, 102), (person.TextOf("X"), "102"));
}

TEST_F(Lists, ATextInACaptionRebuildsItsRow) {
    OpenWith({"a", "b"});
    person.Select("Titles", 1);
    person.Type("Title", "x");
    EXPECT_EQ(Rows()[1], "Title 2 ( b )");
    person.Leave();
    EXPECT_EQ(Rows(), (QStringList{"Title 1 ( a )", "Title 2 ( x )"}));
    EXPECT_STREQ(titles[1].m_text.data(), "x");
    EXPECT_EQS((Row(), 1), (person.Find<CSimpleCombo>("Titles").Edit()->text(), "Title 2 ( x )"), (editor.Told(), 1));
}

TEST_F(Lists, AddAppendsAndSelectsANewItem) {
    OpenWith({});
    EXPECT_EQ(Row(), -1);
    EXPECT_EQ(person.TextOf("X"), "42"); // a new item's
    person.Click("Add");
    person.Click("Add");
    EXPECT_EQS((Rows(), (QStringList{"Title 1 (  )", "Title 2 (  )"})), (Row(), 1), (titles.size(), 2),
               (titles[1].m_x, 42), (editor.Told(), 2));
}

TEST_F(Lists, DeleteClosesTheNumbersUpAndSelectsWhatFollows) {
    OpenWith({"a", "b", "c"});
    person.Select("Titles", 1);
    person.Click("Delete");
    EXPECT_EQS((Rows(), (QStringList{"Title 1 ( a )", "Title 2 ( c )"})), (Row(), 1), (Text(), "c"));
    person.Click("Delete");
    EXPECT_EQS((Row(), 0), (Text(), "a"));
    person.Click("Delete");
    EXPECT_EQS((Row(), -1), (titles.size(), 0), (Text(), ""), (person.TextOf("X"), "42"), (editor.Told(), 3));
    ExpectBox("Warning", "Select anyone.", [&] { person.Click("Delete"); });
    EXPECT_EQ(editor.Told(), 0);
    person.Click("Add");
    EXPECT_EQ(Rows(), QStringList{"Title 1 (  )"});
}

TEST_F(Lists, WithNoRowSelectedEditsReachNoModel) {
    OpenWith({"a", "b"});
    QTest::keyClicks(person.Find<CSimpleCombo>("Titles").Edit(), "zzz");
    EXPECT_EQ(Row(), -1);
    person.Give("X", "55");
    person.Press("X", true);
    person.Give("Title", "new");
    const bool shown = person.Find<QCheckBox>("Show Title").isChecked();
    person.Click("Show Title");
    EXPECT_EQS((person.TextOf("X"), "65"), (Text(), "new"));
    EXPECT_NE(person.Find<QCheckBox>("Show Title").isChecked(), shown);
    EXPECT_EQ(titles[0].m_x, 100);
    EXPECT_STREQ(titles[0].m_text.data(), "a");
    EXPECT_EQ(editor.Told(), 0);

    // Delete asks for a row, selects the first, and leaves the controls as they are.
    ExpectBox("Warning", "Select anyone.", [&] { person.Click("Delete"); });
    EXPECT_EQS((Row(), 0), (titles.size(), 2), (person.TextOf("X"), "65"), (editor.Told(), 0));
}

TEST_F(Lists, TextTypedAboveTheListMeansNothing) {
    OpenWith({"a", "b"});
    QLineEdit& edit = *person.Find<CSimpleCombo>("Titles").Edit();
    edit.clear();
    QTest::keyClicks(&edit, "title 2");
    EXPECT_EQS((Row(), -1), (editor.Told(), 0));
}

TEST_F(Lists, TheDeleteKeyDeletesTheRow) {
    OpenWith({"a", "b"});
    person.Select("Titles", 0);
    QTest::keyClick(&person.List("Titles"), Qt::Key_Delete);
    EXPECT_EQS((Rows(), QStringList{"Title 1 ( b )"}), (titles.size(), 1), (editor.Told(), 1));
}
} // namespace
