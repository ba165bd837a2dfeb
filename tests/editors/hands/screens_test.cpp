// Small and dense screens: what ends a dialog is always seen, and nothing is cut.

#include "tests/driver/audit.h"
#include "tests/driver/editor.h"
#include "tests/driver/real_hand.h"

#include <QScreen>
#include <QScrollArea>

namespace {

using driver::Edit;

/// Looks at a dialog that is open, and leaves it by Cancel.
void Look(Person& person, const char* name, double font) {
    QTest::qWait(400); // the frame comes, and the window moves
    QWidget& window = person.Window();
    SCOPED_TRACE(testing::Message() << name << " with a font of " << font);
    const QRect screen(window.screen()->availableGeometry());
    EXPECT_TRUE(screen.contains(window.frameGeometry())) << window.width() << " x " << window.height();
    for (const char* button : {"OK", "Cancel"}) {
        const QWidget& end = person.Find(button);
        EXPECT_EQ(end.visibleRegion().boundingRect(), end.rect());
    }
    const QStringList tabs = person.Tabs();
    for (const QString& tab : tabs.isEmpty() ? QStringList({QString()}) : tabs) {
        if (!tab.isEmpty())
            person.Tab(tab);
        audit::NothingIsCutOff(window);
        audit::NoTextsOverlap(window);
        const QString folder = qEnvironmentVariable("CHART_PICTURES");
        if (!folder.isEmpty())
            window.grab().save(
                QStringLiteral("%1/%2-%3-%4-%5.png").arg(folder, name, tab).arg(screen.width()).arg(font));
    }
}

TEST(Screens, HoldEveryDialog) {
    NeedApplication();
    const WindowManager manager;
    const QFont usual = QApplication::font();
    for (const double scale : {1.0, 1.5}) {
        QFont font(usual);
        font.setPointSizeF(usual.pointSizeF() * scale);
        QApplication::setFont(font);
        const auto look = [&](const char* name) {
            return [name, scale](Person& person) {
                Look(person, name, scale);
                person.Cancel();
            };
        };
        CPieChart pie;
        pie.m_sectors.push_back(CPieChartSector());
        EXPECT_FALSE(Edit(pie, look("pie")));
        CXYChart xy;
        EXPECT_FALSE(Edit(xy, look("xy")));
    }
    QApplication::setFont(usual);
}

TEST(Screens, KeepTheSizeThatAPersonGave) {
    NeedApplication();
    const WindowManager manager;
    CPieChart pie;
    QSize given;
    int preview = 0;
    EXPECT_FALSE(Edit(pie, [&](Person& person) {
        QTest::qWait(300);
        preview = person.Find("Preview").height();
        person.Window().resize(person.Window().size() - QSize(0, 40));
        QTest::qWait(300);
        given = person.Window().size();
        EXPECT_EQ(person.Find("Preview").height(), preview - 40);
        person.Cancel();
    }));
    EXPECT_FALSE(Edit(pie, [&](Person& person) {
        QTest::qWait(300);
        EXPECT_EQ(person.Window().size(), given);
        person.Cancel();
    }));
}

} // namespace
