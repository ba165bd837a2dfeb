#include "editors/framework/conventions.h"
#include "tests/editors/framework/test_editor.h"

#include <cmath>
#include <random>

namespace {

/// Someone who does anything at all. Dialogs and boxes that come up are sent away.
class Monkey {
public:
    explicit Monkey(CTestEditor& editor) : m_editor(editor) {
        QObject::connect(&m_timer, &QTimer::timeout, [] {
            if (QWidget* popup = QApplication::activePopupWidget())
                popup->close();
            else if (QWidget* modal = QApplication::activeModalWidget())
                QTest::keyClick(modal, Qt::Key_Escape);
        });
        m_timer.start(0);
    }
    void Act() {
        if (Below(50) == 0)
            m_editor.m_tabs.ShowPage(Below(3));
        const auto widgets = m_editor.findChildren<QWidget*>();
        QWidget* target = QApplication::activePopupWidget();
        while (target == nullptr || !target->isVisible())
            target = widgets[Below(static_cast<int>(widgets.size()))];
        const QPoint point(Below(target->width() + 1), Below(target->height() + 1));
        switch (Below(6)) {
        case 0:
        case 1:
            QTest::mouseClick(target, Qt::LeftButton, {}, point);
            break;
        case 2: {
            QWheelEvent wheel(point, target->mapToGlobal(point), {}, QPoint(0, Below(2) * 240 - 120),
                              Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(target, &wheel);
            break;
        }
        case 3:
            target->setFocus();
            break;
        default:
            Type(*target);
        }
    }

private:
    int Below(int n) { return static_cast<int>(m_random() % static_cast<unsigned>(n)); }
    void Type(QWidget& target) {
        static constexpr Qt::Key kKeys[] = {Qt::Key_Tab,  Qt::Key_Backtab, Qt::Key_Return,    Qt::Key_Up,
                                            Qt::Key_Down, Qt::Key_PageUp,  Qt::Key_Backspace, Qt::Key_Delete,
                                            Qt::Key_Home, Qt::Key_End,     Qt::Key_Space,     Qt::Key_Escape};
        static const char kTexts[] = "0123456789-.e a{}%&";
        QWidget* typed =
            m_editor.focusWidget() != nullptr && Below(4) != 0 ? m_editor.focusWidget() : &target;
        if (Below(2) == 0)
            QTest::keyClick(typed, kKeys[Below(std::size(kKeys))]);
        else
            QTest::keyClick(typed, kTexts[Below(sizeof kTexts - 1)]);
    }

    CTestEditor& m_editor;
    std::mt19937 m_random{20260101};
    QTimer m_timer;
};

void ExpectLegal(const Values& values) {
    EXPECT_GE(values.m_floored, 0);
    EXPECT_TRUE(values.m_percent >= 0 && values.m_percent <= 100) << values.m_percent;
    EXPECT_TRUE(values.m_share >= 0 && values.m_share <= 1) << values.m_share;
    EXPECT_TRUE(std::isfinite(values.m_real) && std::isfinite(values.m_whole));
    EXPECT_TRUE(values.m_code == 0 || values.m_code == 1 || values.m_code == 3);
    EXPECT_EQ(IndexToAlignment(AlignmentToIndex(values.m_alignment)), values.m_alignment);
    EXPECT_EQ(IndexToSide(SideToIndex(values.m_side)), values.m_side);
}

TEST_F(EditorTest, RandomEventsLeaveItAliveAndItsValuesLegal) {
    const int events = std::max(3000, qEnvironmentVariableIntValue("CHART_RANDOM_EVENTS"));
    Open();
    Monkey monkey(editor);
    const Values before = values;
    for (int i = 0; i < events; ++i) {
        monkey.Act();
        if (i % 10 == 0)
            QCoreApplication::processEvents();
        if (!editor.isActiveWindow()) {
            editor.show();
            editor.activateWindow();
            QCoreApplication::processEvents();
        }
        if (i % 100 == 0) {
            ExpectLegal(values);
            ASSERT_FALSE(HasFailure()) << i;
        }
    }
    // Something has been done.
    EXPECT_NE(values.m_free, before.m_free);
    EXPECT_NE(values.m_real, before.m_real);
    editor.m_tabs.ShowPage(1);
    EXPECT_EQ(person.Rows("Titles").size(), editor.Titles().size());
}

} // namespace
