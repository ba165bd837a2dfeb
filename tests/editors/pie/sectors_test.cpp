// The list of sectors and the controls of the selected one.

#include "tests/editors/pie/person.h"

using namespace pie_test;

TEST(PieSectors, AddedOnesAreOpaqueAndColoured) {
    CPieChart pie;
    EXPECT_TRUE(Edit(pie, [](PieEditor& editor) {
        EXPECT_TRUE(editor.Rows().isEmpty());
        for (int i = 0; i < 3; ++i) {
            editor.Click("Add");
            EXPECT_EQ(editor.List()->currentRow(), i);
        }
        EXPECT_EQ(editor.Rows(), QStringList({"Sector 1 (  )", "Sector 2 (  )", "Sector 3 (  )"}));
        editor.Ok();
    }));
    ASSERT_EQ(pie.m_sectors.size(), 3);
    bool different = false;
    for (int i = 0; i < 3; ++i) {
        CPieChartSector expected;
        expected.m_color.m_color = pie.m_sectors[i].m_color.m_color;
        EXPECT_EQ(pie.m_sectors[i].m_color.m_color >> 24, 0u);
        EXPECT_EQ(Shown(pie.m_sectors[i].m_color), Shown(expected.m_color));
        EXPECT_FALSE(pie.m_sectors[i].m_showExplode || pie.m_sectors[i].m_useDistance);
        different = different || pie.m_sectors[i].m_color.m_color != pie.m_sectors[0].m_color.m_color;
    }
    EXPECT_TRUE(different);
}

TEST(PieSectors, DeletionClosesUpAndSelectsWhatTookThePlace) {
    CPieChart pie = PieOf({"a", "b", "c"});
    EXPECT_TRUE(Edit(pie, [](PieEditor& editor) {
        EXPECT_EQ(editor.List()->currentRow(), 0);
        editor.SelectRow(1);
        editor.Click("Delete");
        EXPECT_EQ(editor.Rows(), QStringList({"Sector 1 ( a )", "Sector 2 ( c )"}));
        EXPECT_EQ(editor.List()->currentRow(), 1);
        EXPECT_EQ(editor.Text()->toPlainText(), "c");
        editor.Click("Delete");
        EXPECT_EQ(editor.List()->currentRow(), 0);
        EXPECT_EQ(editor.Text()->toPlainText(), "a");
        editor.Ok();
    }));
    EXPECT_EQ(Shown(pie), Shown(PieOf({"a"})));
}

TEST(PieSectors, WithNoneSelectedNothingIsStored) {
    CPieChart pie;
    EXPECT_TRUE(Edit(pie, [](PieEditor& editor) {
        const auto tryAll = [&] {
            EXPECT_EQ(editor.Text()->toPlainText(), "");
            EXPECT_EQ(editor.NumberText("Distance"), "0");
            editor.Click("Show Explode");
            editor.Click("Use Distance");
            editor.Press("Distance", true);
            EXPECT_EQ(editor.NumberText("Distance"), "10");
            editor.Text()->setFocus();
            QTest::keyClicks(editor.Text(), "lost");
            editor.ChooseMetal("Color", true);
            ExpectBox("Warning", "Select anyone.", [&] { editor.Click("Delete"); });
            EXPECT_TRUE(editor.Rows().isEmpty());
        };
        tryAll();
        editor.Click("Add");
        EXPECT_EQ(editor.Text()->toPlainText(), "");
        EXPECT_FALSE(editor.Find<QCheckBox>("Show Explode")->isChecked());
        editor.Click("Delete");
        tryAll();
        editor.Ok();
    }));
    EXPECT_EQ(Shown(pie), Shown(CPieChart()));
}

TEST(PieSectors, DeleteWithARowUnselectedWarnsAndSelectsTheFirst) {
    CPieChart pie = PieOf({"a", "b"});
    EXPECT_TRUE(Edit(pie, [](PieEditor& editor) {
        editor.SelectRow(1);
        auto* typed = editor.List()->parentWidget()->findChild<QLineEdit*>();
        typed->setFocus();
        QTest::keyClick(typed, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(typed, "zzz");
        ExpectBox("Warning", "Select anyone.", [&] { editor.Click("Delete"); });
        EXPECT_EQ(editor.List()->currentRow(), 0);
        editor.Ok();
    }));
    EXPECT_EQ(Shown(pie), Shown(PieOf({"a", "b"})));
}

TEST(PieSectors, TextIsStoredWhenItsEditIsLeft) {
    CPieChart pie = PieOf({"a", "b"});
    EXPECT_TRUE(Edit(pie, [](PieEditor& editor) {
        editor.SelectRow(1);
        editor.Text()->setFocus();
        QTest::keyClick(editor.Text(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(editor.Text(), "first");
        QTest::keyClick(editor.Text(), Qt::Key_Return);
        QTest::keyClicks(editor.Text(), "second");
        EXPECT_TRUE(editor.Window().isVisible());
        EXPECT_EQ(editor.Rows()[1], "Sector 2 ( b )");
        editor.Leave();
        EXPECT_EQ(editor.Rows(), QStringList({"Sector 1 ( a )", "Sector 2 ( first... )"}));
        EXPECT_EQ(editor.List()->currentRow(), 1);
        // Another row is chosen straight from the edit: what was typed goes to the row it was typed for.
        editor.Text()->setFocus();
        QTest::keyClick(editor.Text(), Qt::Key_End, Qt::ControlModifier);
        QTest::keyClicks(editor.Text(), "!");
        editor.SelectRow(0);
        EXPECT_EQ(editor.Text()->toPlainText(), "a");
        editor.Ok();
    }));
    EXPECT_EQ(Shown(pie), Shown(PieOf({"a", "first\nsecond!"})));
}

TEST(PieSectors, EachHasItsOwnExplosion) {
    CPieChart pie = PieOf({"a", "b"});
    pie.m_sectors[0].m_distance = 30;
    EXPECT_TRUE(Edit(pie, [](PieEditor& editor) {
        EXPECT_EQ(editor.NumberText("Distance"), "30");
        editor.Press("Distance", false);
        editor.Click("Show Explode");
        QTest::keyClick(editor.List(), Qt::Key_Down);
        EXPECT_EQ(editor.NumberText("Distance"), "0");
        EXPECT_FALSE(editor.Find<QCheckBox>("Show Explode")->isChecked());
        editor.Press("Distance", false);
        editor.Click("Use Distance");
        editor.Type("Distance", "7");
        editor.SelectRow(0);
        EXPECT_EQ(editor.NumberText("Distance"), "20");
        editor.Ok();
    }));
    CPieChart expected = PieOf({"a", "b"});
    expected.m_sectors[0].m_distance = 20;
    expected.m_sectors[0].m_showExplode = true;
    expected.m_sectors[1].m_distance = 7;
    expected.m_sectors[1].m_useDistance = true;
    EXPECT_EQ(Shown(pie), Shown(expected));
}
