// The strip at the foot: what a step is, where it leads, what is told of changes, the picture as it was, and
// the look on the clipboard.

#include "tests/driver/steps.h"
#include "tests/editors/pie/pie.h"
#include <QMenu>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <array>

namespace {
using driver::Edit;
using driver::StripButton;
using pie_test::PieOf;

void Repeat(QWidget& control, int key, int times) {
    for (int i = 0; i < times; ++i) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, {}, i > 0);
        QApplication::sendEvent(&control, &press);
    }
}

void UndoKey(const Person& person) { QTest::keyClick(person.Window().focusWidget(), Qt::Key_Z, Qt::ControlModifier); }

std::string Tip(const Person& person, const char* button) {
    return StripButton(person.Window(), button).toolTip().toStdString();
}

/// Keeps a picture of the editor and of what pops up over it, where CHART_PICTURES names a folder for it.
void Keep(const Person& person, const char* name) {
    const QString folder = qEnvironmentVariable("CHART_PICTURES");
    if (folder.isEmpty()) return;
    QWidget& window = person.Window();
    const QWidget* popup = QApplication::activePopupWidget();
    const QPoint at = popup == nullptr ? QPoint() : popup->pos() - window.mapToGlobal(QPoint());
    const QRect all = popup == nullptr ? window.rect() : window.rect() | QRect(at, popup->size());
    QPixmap picture(all.size());
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.drawPixmap(-all.topLeft(), window.grab());
    if (popup != nullptr) painter.drawPixmap(at - all.topLeft(), const_cast<QWidget*>(popup)->grab());
    EXPECT_TRUE(picture.save(folder + u'/' + QString::fromUtf8(name) + QStringLiteral(".png")));
}

/// Lets `act` have a pie's editor, and cancels it.
void WithPie(const std::function<void(Person&)>& act) {
    CPieChart pie = PieOf({"Wages", "Flour and butter", "Rent"});
    pie.m_show3D = true;
    pie.m_depth3D = 1;
    for (const int sector : {0, 1, 2})
        pie.m_sectors[sector].m_color.m_color =
            std::array{0x2F5D8AU, 0x9CC3DDU, 0xE3B34CU}[static_cast<std::size_t>(sector)];
    EXPECT_FALSE(Edit(pie, [&](Person& person) {
        act(person);
        person.Cancel();
    }));
}
} // namespace

TEST(PieStrip, AnArrowThatIsHeldIsOneStep) {
    WithPie([](const Person& person) {
        auto& depth = person.Find<QAbstractSpinBox>("Depth");
        depth.setFocus();
        Repeat(depth, Qt::Key_Up, 5);
        const QString held = person.TextOf("Depth"); // the toolkit may add presses of its own
        EXPECT_GE(held.toInt(), 6);
        EXPECT_EQ(Tip(person, "Undo"), "Undo Depth: 1 to " + held.toStdString() + " (Ctrl+Z)");
        Repeat(depth, Qt::Key_Up, 1);
        const std::string last = "Depth: " + held.toStdString() + " to " + person.TextOf("Depth").toStdString();
        EXPECT_EQ(Tip(person, "Undo"), "Undo " + last + " (Ctrl+Z)");
        UndoKey(person);
        EXPECT_EQS((person.TextOf("Depth"), held), (Tip(person, "Redo"), "Redo " + last + " (Ctrl+Shift+Z)"));
        UndoKey(person);
        EXPECT_EQS((person.TextOf("Depth"), "1"), (StripButton(person.Window(), "Undo").isEnabled(), false));
        QTest::keyClick(person.Window().focusWidget(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_EQ(person.TextOf("Depth"), held);
    });
}

TEST(PieStrip, AnEditKeepsTheKeysWhileItsTextIsItsOwn) {
    WithPie([](const Person& person) {
        person.Click("Use DonutType");
        person.Type("Depth", "77");
        UndoKey(person);
        EXPECT_NE(person.TextOf("Depth"), "77") << "the edit's own undo";
        EXPECT_EQ(Tip(person, "Undo"), "Undo Use DonutType: off to on (Ctrl+Z)");
    });
}

TEST(PieStrip, AStepShowsTheItemAndTheRow) {
    WithPie([](const Person& person) {
        person.Select("Sector", 1);
        person.Give("Distance", "31");
        person.Select("Sector", 2);
        person.Click(person.Button("Sector", "Delete"));
        EXPECT_EQ(Tip(person, "Undo"), "Undo Sector: 3 items to 2 items (Ctrl+Z)");
        UndoKey(person);
        EXPECT_EQ(person.Rows("Sector").size(), 3);
        UndoKey(person);
        EXPECT_EQS((person.List("Sector").currentRow(), 1), (person.Focus(), "Distance"),
                   (person.TextOf("Distance"), "0"));
        Keep(person, "editing-undo");
    });
}

TEST(PieStrip, ARowTellsWhatItWasAndGoesBackToIt) {
    WithPie([](const Person& person) {
        const auto entries = [&person](QWidget& control) {
            QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, control.mapToGlobal(QPoint(5, 5)));
            QApplication::sendEvent(&control, &event);
            return qobject_cast<QMenu*>(QApplication::activePopupWidget());
        };
        const auto choose = [](QMenu* menu, const QString& text) {
            ASSERT_NE(menu, nullptr);
            bool found = false;
            for (QAction* action : menu->actions()) {
                if (action->text() == text) {
                    found = true;
                    action->trigger();
                }
            }
            menu->close();
            EXPECT_TRUE(found) << text.toStdString();
        };
        auto& layout = person.Find<QComboBox>("Layout");
        person.Choose(layout, 0);
        EXPECT_TRUE(layout.accessibleDescription().contains("changed, was CircleLayout"))
            << qPrintable(layout.accessibleDescription());
        choose(entries(layout), "Back to CircleLayout");
        EXPECT_EQS((layout.currentIndex(), 1), (layout.accessibleDescription().contains("changed"), false));
        person.Give("Depth", "9");
        QMenu* menu = entries(person.Find("Depth"));
        Keep(person, "editing-menu");
        menu->close();
        choose(entries(person.Find("Depth")), "Default (1)");
        EXPECT_EQ(person.TextOf("Depth"), "1");
        person.Give("Distance", "9"); // of an item
        choose(entries(person.Find("Distance")), "Default (0)");
        EXPECT_EQ(person.TextOf("Distance"), "0");
        EXPECT_EQ(StripButton(person.Window(), "Changes").accessibleName(), "No changes");
    });
}

TEST(PieStrip, ThePictureAsItWasShowsWhileTheKeyIsHeld) {
    WithPie([](const Person& person) {
        auto picture = [&person] { return person.Preview().copy(80, 40, 400, 400); }; // below the tag
        const QImage before = picture();
        person.Click("Use DonutType");
        const QImage after = picture();
        EXPECT_NE(before, after);
        QTest::keyPress(person.Window().focusWidget(), Qt::Key_F9);
        EXPECT_EQ(picture(), before);
        Keep(person, "editing-before");
        EXPECT_TRUE(person.Find<QCheckBox>("Use DonutType").isChecked());
        QTest::keyRelease(person.Window().focusWidget(), Qt::Key_F9);
        EXPECT_EQ(picture(), after);
    });
}

TEST(PieStrip, ChangesAndRowsAreListed) {
    WithPie([](const Person& person) {
        person.Choose("Layout", 0);
        person.Give("Depth", "12");
        person.Click("Use DonutType");
        person.Select("Sector", 1);
        person.Give("Distance", "31");
        StripButton(person.Window(), "Changes").click();
        QWidget* list = QApplication::activePopupWidget();
        ASSERT_NE(list, nullptr);
        QStringList told;
        for (const QLabel* label : list->findChildren<QLabel*>()) told += label->text();
        EXPECT_EQ(told.join(u'|').toStdString(),
                  "Label|Layout|CircleLayout  \u2192  SideLayout|3D|Depth|1  \u2192  12|Donut|Use DonutType|"
                  "off  \u2192  on|Sector \u203a Sector 2 ( Flour and butter )|Distance|0  \u2192  31");
        QTest::qWait(1); // what it shows at first
        EXPECT_FALSE(list->findChild<QScrollArea*>()->verticalScrollBar()->isVisible());
        Keep(person, "editing-changes");
        list->findChildren<QPushButton*>(QStringLiteral("Show")).last()->click();
        QCoreApplication::processEvents();
        EXPECT_EQS((person.Focus(), "Distance"), (person.List("Sector").currentRow(), 1));

        QTest::keyClick(person.Window().focusWidget(), Qt::Key_F, Qt::ControlModifier);
        QWidget* search = QApplication::activePopupWidget();
        ASSERT_NE(search, nullptr);
        QTest::keyClicks(search->findChild<QLineEdit*>(), "slice colour"); // a sector's color
        EXPECT_EQ(search->findChild<QListWidget*>()->count(), 1);
        search->findChild<QLineEdit*>()->clear();
        QTest::keyClicks(search->findChild<QLineEdit*>(), "angle");
        Keep(person, "editing-search");
        QTest::keyClick(search->findChild<QLineEdit*>(), Qt::Key_Escape);
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    });
}

TEST(PieStrip, TheLookGoesOverTheClipboardAlsoToAnotherKind) {
    CPieChart source = PieOf({"One"});
    source.m_startAngle = 12;
    source.m_edgeColor.m_color = 0x123456;
    EXPECT_FALSE(Edit(source, [](const Person& person) {
        EXPECT_TRUE(driver::CopiedLook(person.Window()).contains("\"kind\": \"pie\""));
        person.Cancel();
    }));
    const auto paste = [](const Person& person) {
        auto& preview = person.Find("Preview");
        preview.setFocus();
        QTest::keyClick(&preview, Qt::Key_V, Qt::ControlModifier);
        QString said;
        for (const QLabel* label : person.Find("Undo").parentWidget()->findChildren<QLabel*>()) said += label->text();
        return said;
    };
    QString said;
    CPieChart pie = PieOf({"Two", "Three"});
    EXPECT_TRUE(Edit(pie, [&](const Person& person) {
        said = paste(person);
        person.Ok();
    }));
    EXPECT_EQS((said, "Took the look of a pie chart."), (driver::Difference(source, pie), ""));
    CXYChart chart;
    EXPECT_TRUE(Edit(chart, [&](const Person& person) {
        said = paste(person);
        Keep(person, "editing-paste");
        person.Ok();
    }));
    EXPECT_EQ(said, "Took 2 of a pie chart (edgeColor, show3D), left 12.");
    EXPECT_EQ(chart.m_edgeColor.m_color, 0x123456U);
    QGuiApplication::clipboard()->setText("no look");
    EXPECT_TRUE(Edit(pie, [&](const Person& person) {
        said = paste(person);
        person.Ok();
    }));
    EXPECT_EQ(said, "Nothing taken: the clipboard holds no look of a chart.");
}
