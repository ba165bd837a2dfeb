// What users expect of every dialog beyond what it edits: keys in lists, tips, samples of colours, and a mark
// on what has the focus.

#include "tests/driver/dialogs.h"
#include <QHelpEvent>
#include <QToolTip>
#include <set>

using namespace driver;

TEST(Habits, AltAndAnArrowMoveARowWhereThereIsAnOrder) {
    CXYChart chart;
    for (const int type : {0, 1, 2}) chart.m_layers.AddLayer(CXYChartLayerMgr::CreateLayer(type));
    EXPECT_TRUE(Edit(chart, [](Person& person) {
        person.Tab("Layer");
        person.Select("Layer", 2);
        QTest::keyClick(&person.List("Layer"), Qt::Key_Up, Qt::AltModifier); // 0 2 1
        EXPECT_EQ(person.List("Layer").currentRow(), 1);
        QTest::keyClick(&person.List("Layer"), Qt::Key_Up);
        QTest::keyClick(&person.List("Layer"), Qt::Key_Up, Qt::AltModifier);   // round the end: 1 2 0
        QTest::keyClick(&person.List("Layer"), Qt::Key_Down, Qt::AltModifier); // and back: 0 2 1
        QTest::keyClick(&person.List("Layer"), Qt::Key_Down, Qt::AltModifier); // 2 0 1
        EXPECT_EQ(person.List("Layer").currentRow(), 1);
        person.Ok();
    }));
    for (const auto& [row, type] : {std::pair(0, 2), {1, 0}, {2, 1}})
        EXPECT_EQ(chart.m_layers.GetLayer(row)->GetType(), type);

    CPieChart pie = SomePie();
    EXPECT_TRUE(Edit(pie, [](Person& person) {
        QTest::keyClick(&person.List("Sector"), Qt::Key_Down, Qt::AltModifier);
        person.Ok();
    }));
    EXPECT_EQ(Difference(SomePie(), pie), "") << "sectors have no order to change";
}

TEST(Habits, AControlTellsWhatItsValueMeans) {
    static constexpr std::tuple<const char*, const char*, const char*, const char*> kRows[] = {
        {"General", "Major Grid", "Horz", "Pixels, 0 or more; 0 for no line"},
        {"Layer", "3D", "Z Gap", "Pixels from one layer to the next, 0 or more"},
        {"Axis>Primary|X Axis ...>Scale", "Auto Scale", "Zero Affinity",
         "How far 0 may be from the data for the scale to start there, 0 to 1; 1 always"},
        {"Axis>Primary|X Axis ...>Tick", "Density", "MinorSpacing", "Least pixels between ticks; 0 or -1 for none"},
        {"Axis>Secondary Y Axis (Y2)|Y2 Axis ...>Scale", "SyncAxis", "X2",
         "The axis that this one follows, while its scale type is \"None\""},
    };
    for (const auto& [place, group, label, tip] : kRows) {
        SCOPED_TRACE(label);
        DialogOf("xy", SomeXYChart(), place).visit([&, group = group, label = label, tip = tip](Person& person) {
            QWidget& control = person.At(QString::fromUtf8(group), QString::fromUtf8(label));
            QToolTip::hideText();
            QHelpEvent rest(QEvent::ToolTip, {5, 5}, control.mapToGlobal(QPoint(5, 5)));
            QApplication::sendEvent(&control, &rest);
            EXPECT_EQ(QToolTip::text().toStdString(), tip);
        });
    }
}

TEST(Habits, ADialogIsTheSameWhenItIsOpenedAgain) { // then its pages are made later
    AtFont(
        10.5,
        [] {
            for (const Dialog& dialog : AllDialogs()) {
                if (!dialog.own) continue;
                std::vector<std::pair<std::string, QRect>> seen[2]; // where Tab goes
                for (auto& stops : seen)
                    dialog.visit([&stops](Person& person) {
                        QWidget& window = person.Window();
                        OnEachPage(
                            person,
                            [&](const QString& tab) {
                                stops.emplace_back(tab.toStdString(), window.geometry());
                                for (std::set<QWidget*> passed; passed.insert(window.focusWidget()).second;) {
                                    person.Key(Qt::Key_Tab);
                                    const QWidget& stop = *window.focusWidget();
                                    stops.emplace_back(stop.objectName().toStdString(),
                                                       QRect(stop.mapTo(&window, QPoint()), stop.size()));
                                }
                            });
                    });
                EXPECT_EQ(seen[0], seen[1]) << dialog.name;
            }
        });
}

TEST(Habits, ListsShowTheColorsOfTheirItems) {
    const CXYChart xy = SomeXYChart();
    CAngularMeter rings;
    rings.m_rings.push_back(CAngularRing());
    const std::tuple<Dialog, const char*, const char*, const char*> rows[] = {
        {DialogOf("sectors", SomePie()), "Sector", "Sector", "Color"},
        {DialogOf("data sets", xy, "Layer>Layer[0]>Modify..."), "Color", "Color", "DataSet"},
        {DialogOf("Gantt groups", xy, "Layer>Layer[7]>Modify..."), "GanttGroups", "Gantt Layer", "Color"},
        {DialogOf("pointers", SomeMeter<CAngularMeter>(), "Pointer"), "Pointers", "", "FillColor"},
        {DialogOf("rings", rings, "Ring"), "Rings", "", "FillColor"},
        {DialogOf("angular zones", SomeMeter<CAngularMeter>(), "Zone"), "Zones", "", "FillColor"},
        {DialogOf("linear zones", SomeMeter<CLinearMeter>(), "Zone"), "Zones", "Font", "BackColor"},
    };
    for (const auto& [dialog, list, group, field] : rows) {
        SCOPED_TRACE(dialog.name);
        dialog.visit([list = list, group = group, field = field](Person& person) {
            const auto shows = [&](QRgb color) {
                const QListWidget& items = person.List(list);
                const QImage row = items.viewport()->grab(items.visualItemRect(items.item(0))).toImage();
                for (int x = 0; x < row.width(); ++x)
                    if (row.pixel(x, row.height() / 2) == color) return true;
                return false;
            };
            EXPECT_FALSE(shows(0xFFA01EE6));
            person.In(person.At(QString::fromUtf8(group), QString::fromUtf8(field)), [](Person& picker) {
                picker.Give("Hex", "#A01EE6");
                picker.Ok();
            });
            EXPECT_TRUE(shows(0xFFA01EE6));
        });
    }
}

TEST(Habits, WhatHasTheFocusIsMarked) {
    CPieChart pie = SomePie();
    EXPECT_FALSE(Edit(pie, [](Person& person) {
        const auto look = [&](QWidget& control) {
            QTest::qWait(1); // what it shows at first
            return control.grab().toImage();
        };
        for (const char* name : {"OK", "Cancel", "Add", "Preview", "Show 3D"}) {
            QWidget& control = person.Find(QString::fromUtf8(name));
            person.Find("Depth").setFocus();
            const QImage without = look(control);
            control.setFocus();
            person.Key(Qt::Key_Backtab);
            person.Key(Qt::Key_Tab);
            EXPECT_NE(look(control), without) << name;
            person.Find("Depth").setFocus();
            EXPECT_EQ(look(control), without) << name;
        }
        QWidget& preview = person.Find("Preview");
        const QImage without = look(preview);
        QTest::mouseClick(preview.findChild<QWidget*>("qt_scrollarea_viewport"), Qt::LeftButton);
        EXPECT_TRUE(preview.hasFocus());
        EXPECT_EQ(look(preview), without) << "who points at it needs no mark";
        person.Cancel();
    }));
}
