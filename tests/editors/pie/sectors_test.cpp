// The list of sectors and the controls of the selected one.

#include "tests/driver/properties.h"
#include "tests/editors/pie/pie.h"

using namespace pie_test;

TEST(PieSectors, AddedOnesAreOpaqueAndColoured) {
    CPieChart pie;
    EXPECT_TRUE(Edit(pie, [](Person& person) {
        EXPECT_TRUE(person.Rows("Sector").isEmpty());
        for (int i = 0; i < 3; ++i) {
            person.Click("Add");
            EXPECT_EQ(person.List("Sector").currentRow(), i);
        }
        EXPECT_EQ(person.Rows("Sector"), QStringList({"Sector 1 (  )", "Sector 2 (  )", "Sector 3 (  )"}));
        person.Ok();
    }));
    ASSERT_EQ(pie.m_sectors.size(), 3);
    bool different = false;
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(pie.m_sectors[i].m_color.m_color >> 24, 0u);
        EXPECT_EQ(pie.m_sectors[i].m_color.m_type, 0);
        EXPECT_FALSE(pie.m_sectors[i].m_showExplode || pie.m_sectors[i].m_useDistance);
        different = different || pie.m_sectors[i].m_color.m_color != pie.m_sectors[0].m_color.m_color;
    }
    EXPECT_TRUE(different);
}

TEST(PieSectors, DeletionClosesUpAndSelectsWhatTookThePlace) {
    CPieChart pie = PieOf({"a", "b", "c"});
    EXPECT_TRUE(Edit(pie, [](Person& person) {
        EXPECT_EQ(person.List("Sector").currentRow(), 0);
        person.Select("Sector", 1);
        person.Click("Delete");
        EXPECT_EQ(person.Rows("Sector"), QStringList({"Sector 1 ( a )", "Sector 2 ( c )"}));
        EXPECT_EQ(person.List("Sector").currentRow(), 1);
        EXPECT_EQ(person.Find<QPlainTextEdit>("Text").toPlainText(), "c");
        person.Click("Delete");
        EXPECT_EQ(person.List("Sector").currentRow(), 0);
        EXPECT_EQ(person.Find<QPlainTextEdit>("Text").toPlainText(), "a");
        person.Ok();
    }));
    EXPECT_EQ(Difference(PieOf({"a"}), pie), "");
}

TEST(PieSectors, WithNoneSelectedNothingIsStored) {
    CPieChart pie;
    EXPECT_TRUE(Edit(pie, [](Person& person) {
        const auto tryAll = [&] {
            EXPECT_EQ(person.Find<QPlainTextEdit>("Text").toPlainText(), "");
            EXPECT_EQ(person.TextOf("Distance"), "0");
            person.Click("Show Explode");
            person.Click("Use Distance");
            person.Press("Distance", true);
            EXPECT_EQ(person.TextOf("Distance"), "10");
            person.Find("Text").setFocus();
            QTest::keyClicks(&person.Find("Text"), "lost");
            driver::Give(person, {"", "Sector:", "Color:", "Metal", ""});
            ExpectBox("Warning", "Select anyone.", [&] { person.Click("Delete"); });
            EXPECT_TRUE(person.Rows("Sector").isEmpty());
        };
        tryAll();
        person.Click("Add");
        EXPECT_EQ(person.Find<QPlainTextEdit>("Text").toPlainText(), "");
        EXPECT_FALSE(person.Find<QCheckBox>("Show Explode").isChecked());
        person.Click("Delete");
        tryAll();
        person.Ok();
    }));
    EXPECT_EQ(Difference(CPieChart(), pie), "");
}

TEST(PieSectors, DeleteWithARowUnselectedWarnsAndSelectsTheFirst) {
    CPieChart pie = PieOf({"a", "b"});
    EXPECT_TRUE(Edit(pie, [](Person& person) {
        person.Select("Sector", 1);
        auto* typed = person.Find("Sector").findChild<QLineEdit*>();
        typed->setFocus();
        QTest::keyClick(typed, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(typed, "zzz");
        ExpectBox("Warning", "Select anyone.", [&] { person.Click("Delete"); });
        EXPECT_EQ(person.List("Sector").currentRow(), 0);
        person.Ok();
    }));
    EXPECT_EQ(Difference(PieOf({"a", "b"}), pie), "");
}

TEST(PieSectors, TextIsStoredWhenItsEditIsLeft) {
    CPieChart pie = PieOf({"a", "b"});
    EXPECT_TRUE(Edit(pie, [](Person& person) {
        person.Select("Sector", 1);
        person.Find("Text").setFocus();
        QTest::keyClick(&person.Find("Text"), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(&person.Find("Text"), "first");
        QTest::keyClick(&person.Find("Text"), Qt::Key_Return);
        QTest::keyClicks(&person.Find("Text"), "second");
        EXPECT_TRUE(person.Window().isVisible());
        EXPECT_EQ(person.Rows("Sector")[1], "Sector 2 ( b )");
        person.Leave();
        EXPECT_EQ(person.Rows("Sector"), QStringList({"Sector 1 ( a )", "Sector 2 ( first... )"}));
        EXPECT_EQ(person.List("Sector").currentRow(), 1);
        // Another row is chosen straight from the edit: what was typed goes to the row it was typed for.
        person.Find("Text").setFocus();
        QTest::keyClick(&person.Find("Text"), Qt::Key_End, Qt::ControlModifier);
        QTest::keyClicks(&person.Find("Text"), "!");
        person.Select("Sector", 0);
        EXPECT_EQ(person.Find<QPlainTextEdit>("Text").toPlainText(), "a");
        person.Ok();
    }));
    EXPECT_EQ(Difference(PieOf({"a", "first\nsecond!"}), pie), "");
}

TEST(PieSectors, EachHasItsOwnExplosion) {
    CPieChart pie = PieOf({"a", "b"});
    pie.m_sectors[0].m_distance = 30;
    EXPECT_TRUE(Edit(pie, [](Person& person) {
        EXPECT_EQ(person.TextOf("Distance"), "30");
        person.Press("Distance", false);
        person.Click("Show Explode");
        QTest::keyClick(&person.List("Sector"), Qt::Key_Down);
        EXPECT_EQ(person.TextOf("Distance"), "0");
        EXPECT_FALSE(person.Find<QCheckBox>("Show Explode").isChecked());
        person.Press("Distance", false);
        person.Click("Use Distance");
        person.Type("Distance", "7");
        person.Select("Sector", 0);
        EXPECT_EQ(person.TextOf("Distance"), "20");
        person.Ok();
    }));
    CPieChart expected = PieOf({"a", "b"});
    expected.m_sectors[0].m_distance = 20;
    expected.m_sectors[0].m_showExplode = true;
    expected.m_sectors[1].m_distance = 7;
    expected.m_sectors[1].m_useDistance = true;
    EXPECT_EQ(Difference(expected, pie), "");
}
