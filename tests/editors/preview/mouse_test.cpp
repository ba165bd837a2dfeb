#include "resources/preview_menu.h"
#include "tests/editors/preview/test_view.h"
#include "tests/recorder/recorder.h"
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>
#include <QWindow>

namespace {
void mouse(void (*act)(QWindow*, Qt::MouseButton, Qt::KeyboardModifiers, QPoint, int), TestView& view,
           Qt::MouseButton button, QPoint place) {
    act(view.windowHandle(), button, {}, view.viewport()->pos() + place, -1);
}

void move(TestView& view, QPoint place) { QTest::mouseMove(view.windowHandle(), view.viewport()->pos() + place); }

void doubleClick(TestView& view, Qt::MouseButton button = Qt::LeftButton) {
    mouse(QTest::mouseDClick, view, button, {20, 20});
    QTest::mouseRelease(view.windowHandle(), button); // ends the press that the double click leaves
}

QMenu* openMenu() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }

QMenu* rightClick(TestView& view) {
    mouse(QTest::mousePress, view, Qt::RightButton, {20, 20});
    mouse(QTest::mouseRelease, view, Qt::RightButton, {20, 20});
    return openMenu();
}

TEST(Mouse, DoubleClickSwitchesALargerPicture) {
    TestView view({200, 150}, {400, 300});
    doubleClick(view);
    EXPECT_EQS((view.m_fitMode, false), (showsNaturalSize(view.Pane(), {0, 0}, {400, 300}), true));
    doubleClick(view, Qt::RightButton);
    if (QMenu* menu = openMenu()) menu->close();
    EXPECT_FALSE(view.m_fitMode);
    doubleClick(view);
    EXPECT_EQS((view.m_fitMode, true), (shownRect(view.Pane()), QRect(7, 5, 187, 140)));
}

TEST(Mouse, APictureNoLargerThanThePaneCannotBeSwitched) {
    for (const QSize picture : {QSize(100, 80), QSize(200, 150), QSize(200, 20)}) {
        TestView view({200, 150}, picture);
        doubleClick(view);
        EXPECT_EQS((view.m_fitMode, true), (rightClick(view), nullptr));
    }
    TestView view({200, 150}, {20, 151}); // larger one way is enough
    doubleClick(view);
    EXPECT_FALSE(view.m_fitMode);
}

TEST(Mouse, RightButtonOpensTheMenuOfModes) {
    TestView view({200, 150}, {400, 300});
    for (const bool fit : {true, false}) {
        QMenu* menu = rightClick(view);
        ASSERT_NE(menu, nullptr);
        EXPECT_EQ(menu->title(), "Preview");
        ASSERT_EQ(menu->actions().size(), 2);
        QAction* fitMode = menu->actions()[0];
        QAction* scrollMode = menu->actions()[1];
        EXPECT_EQS((fitMode->text(), "&Fit Mode"), (scrollMode->text(), "&Scroll Mode"), (fitMode->isChecked(), fit),
                   (scrollMode->isChecked(), !fit));
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(fit ? scrollMode : fitMode).center());
        EXPECT_EQ(view.m_fitMode, !fit);
        QCoreApplication::processEvents();
    }
}

TEST(Mouse, DragMovesThePictureWithinItsRange) {
    const QSize picture(400, 300);
    TestView view({200, 150}, picture);
    view.OnCommand(scrollModeCommand);
    view.Pane();
    const recorder::Recording recording;
    mouse(QTest::mousePress, view, Qt::LeftButton, {150, 100});
    move(view, {120, 90});
    EXPECT_TRUE(showsNaturalSize(view.Pane(), {30, 10}, picture));
    move(view, {130, 60}); // from the start of the drag, not from the last place
    EXPECT_TRUE(showsNaturalSize(view.Pane(), {20, 40}, picture));
    move(view, {170, 120}); // beyond the edge
    EXPECT_TRUE(showsNaturalSize(view.Pane(), {0, 0}, picture));
    move(view, {-1000, -1000}); // the drag holds on outside the pane
    EXPECT_TRUE(showsNaturalSize(view.Pane(), view.ScrollRange(), picture));
    mouse(QTest::mouseRelease, view, Qt::LeftButton, {-1000, -1000});
    move(view, {100, 100});
    EXPECT_EQ(view.Scroll(), view.ScrollRange());
    EXPECT_TRUE(recording.Lines().empty()) << recording.Lines()[0]; // all of it comes from the one picture
}
} // namespace
