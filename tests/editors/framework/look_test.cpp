#include "tests/driver/audit.h"
#include "tests/editors/framework/test_editor.h"

#include <QDir>
#include <QLabel>
#include <QTabBar>

namespace {

/// Runs with a font of the usual size, and with one half as large again.
class Look : public EditorTest, public testing::WithParamInterface<double> {
protected:
    Look() : m_font(QApplication::font()) {
        QFont font = m_font;
        font.setPointSizeF(font.pointSizeF() * GetParam());
        QApplication::setFont(font);
    }
    ~Look() override { QApplication::setFont(m_font); }

    /// Keeps a picture to look at, where the environment names a folder for it.
    void Keep(QWidget& window, const QString& name) const {
        const QString folder = qEnvironmentVariable("CHART_PICTURES");
        if (!folder.isEmpty())
            window.grab().save(QDir(folder).filePath(QStringLiteral("%1-%2.png").arg(name).arg(GetParam())));
    }

private:
    QFont m_font;
};
INSTANTIATE_TEST_SUITE_P(Fonts, Look, testing::Values(1.0, 1.5));

TEST_P(Look, OfADialogAndItsPages) {
    CTestEditor open;
    open.AddTitle("First");
    open.Open();
    for (int page = 0; page < 2; ++page) {
        open.m_tabs.ShowPage(page);
        QTest::qWait(10);
        audit::Everything(open);
        Keep(open, QStringLiteral("editor%1").arg(page));
    }
    if (GetParam() == 1.0) {
        EXPECT_LE(open.frameGeometry().width(), 1366);
        EXPECT_LE(open.frameGeometry().height(), 768 - 40);
    }
    EXPECT_NE(open.m_tabs.tabText(0).indexOf(u'&'), -1);
}

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
