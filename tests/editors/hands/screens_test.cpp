// Small and dense screens: what ends a dialog is always seen, and nothing is cut.

#include "tests/driver/audit.h"
#include "tests/driver/dialogs.h"
#include "tests/driver/real_hand.h"
#include <QScreen>

namespace {
using namespace driver;

void Look(const Person& person, const Dialog& dialog, double points) {
    QWidget& window = person.Window();
    SCOPED_TRACE(testing::Message() << dialog.name << " at " << points);
    const QRect screen(window.screen()->availableGeometry());
    QTest::qWait(200); // the frame comes, and the window moves when its manager gets to it
    EXPECT_TRUE(QTest::qWaitFor([&] { return screen.contains(window.frameGeometry()); }, 20000))
        << window.width() << " x " << window.height();
    for (const QAbstractButton* end : window.findChildren<QAbstractButton*>())
        if (end->parentWidget()->inherits("QDialogButtonBox"))
            EXPECT_EQ(end->visibleRegion().boundingRect(), end->rect());
    OnEachPage(person, [&](const QString& tab) {
        audit::NothingIsCutOff(window);
        audit::NoTextsOverlap(window);
        KeepPicture(person, QStringLiteral("%1-%2-%3-%4")
                                .arg(QString::fromStdString(dialog.name), tab)
                                .arg(screen.width())
                                .arg(points));
    });
}

TEST(Screens, HoldEveryDialog) {
    NeedApplication();
    const WindowManager manager;
    for (const double points : {8, 12})
        AtFont(points, [&] {
            for (const Dialog& dialog : AllDialogs())
                dialog.visit([&](Person& person) { Look(person, dialog, points); });
        });
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
        const QSize before = person.Window().size();
        RealHand::Drag(person.Window().frameGeometry().bottomRight(), {0, -40});
        EXPECT_TRUE(QTest::qWaitFor([&] { return person.Window().size() != before; }, 20000));
        QTest::qWait(300); // the last of the drag
        given = person.Window().size();
        EXPECT_LT(given.height(), before.height());
        EXPECT_EQ(preview - person.Find("Preview").height(), before.height() - given.height());
        person.Cancel();
    }));
    EXPECT_FALSE(Edit(pie, [&](Person& person) {
        QTest::qWait(300);
        EXPECT_EQ(person.Window().size(), given);
        person.Cancel();
    }));
}
} // namespace
