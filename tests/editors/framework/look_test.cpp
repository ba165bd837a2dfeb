#include "tests/editors/framework/test_editor.h"

namespace {
TEST_F(EditorTest, LettersAndLabelsLeadToTheirControls) {
    Open();
    for (const QLabel* label : editor.m_valuesPage.findChildren<QLabel*>()) {
        ASSERT_NE(label->buddy(), nullptr) << label->text().toStdString();
        EXPECT_NE(label->text().indexOf(u'&'), -1) << label->text().toStdString();
    }
    const QLabel* label = nullptr;
    for (const QLabel* each : editor.m_valuesPage.findChildren<QLabel*>())
        label = each->buddy() == &person.Find("Alignment") ? each : label;
    const QChar letter = label->text()[label->text().indexOf(u'&') + 1];
    QTest::keyClick(&editor, letter.toLower().toLatin1(), Qt::AltModifier);
    EXPECT_EQ(person.Focus(), "Alignment");
    const QString tab = editor.m_tabs.tabText(1);
    QTest::keyClick(&editor, tab[tab.indexOf(u'&') + 1].toLower().toLatin1(), Qt::AltModifier);
    EXPECT_TRUE(editor.m_itemsPage.isVisible());
}
} // namespace
