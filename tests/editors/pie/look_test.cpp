// What the editor looks like: it fits a small screen, shows everything whole, and runs in reading order.

#include "tests/editors/pie/pie.h"

#include "tests/driver/audit.h"

using namespace pie_test;

TEST(PieLook, FitsASmallScreenAtEveryFontAndPictureSize) {
    CPieChart empty;
    EXPECT_FALSE(Edit(empty, [](Person& person) { person.Cancel(); })); // so that there is a font
    const QFont font = QApplication::font();
    for (const double scale : {1.0, 1.5}) {
        QFont larger(font);
        larger.setPointSizeF(font.pointSizeF() * scale);
        QApplication::setFont(larger);
        for (const QSize picture :
             {QSize(500, 550), QSize(10, 10), QSize(2000, 100), QSize(3000, 3000), QSize(0, -5)}) {
            SCOPED_TRACE(testing::Message() << scale << ' ' << picture.width() << 'x' << picture.height());
            CChartLayout layout;
            layout.SetChartSize(picture.width(), picture.height());
            CPieChart pie = UnusualPie();
            EXPECT_FALSE(Edit(pie, layout, [&](Person& person) {
                QWidget& window = person.Window();
                EXPECT_LE(window.width(), 1366);
                EXPECT_LE(window.height(), 768 - 30);
                EXPECT_GE(person.Preview().width() * 3, window.width());
                audit::Everything(window);
                person.Cancel();
            }));
        }
    }
    QApplication::setFont(font);
}

TEST(PieLook, TabGoesThroughTheControlsInReadingOrder) {
    CPieChart pie = PieOf({"a"});
    EXPECT_FALSE(Edit(pie, [](Person& person) {
        QStringList order;
        person.Find("Show 3D").setFocus();
        for (int i = 0; i < 22; ++i) {
            QWidget* focus = QApplication::focusWidget();
            auto* button = qobject_cast<QPushButton*>(focus);
            const bool plain = button != nullptr && focus->accessibleName().isEmpty();
            order.append(plain ? button->text() : focus->accessibleName());
            person.Leave();
        }
        EXPECT_EQ(order, QStringList({"Show 3D",
                                      "Shadow3D",
                                      "Depth",
                                      "Angle",
                                      "ClockWise",
                                      "StartAngle",
                                      "Use DonutType",
                                      "Inner R(%)",
                                      "Layout",
                                      "Position",
                                      "EdgeColor, transparent",
                                      "JoinLineColor, #000000, opaque",

                                      "Sector list",
                                      "Add",
                                      "Delete",
                                      "Text",
                                      "Show Explode",
                                      "Use Distance",
                                      "Distance",
                                      "Color, #000000, opaque",
                                      "Preview",
                                      "OK"}));
        person.Cancel();
    }));
}
