#include "editors/layout/size_pages.h"
#include "tests/editors/framework/test_editor.h"
#include <cmath>

namespace {
using Numbers = EditorTest;

struct Typed {
    const char* edit;
    const char* text;
    const char* shown;
    double stored;
};

double StoredIn(const Values& values, const std::string& edit) {
    return edit == "Floored"   ? values.m_floored
           : edit == "Free"    ? values.m_free
           : edit == "Percent" ? values.m_percent
           : edit == "Real"    ? values.m_real
           : edit == "Whole"   ? values.m_whole
           : edit == "Share"   ? values.m_share
                               : values.m_quiet;
}

TEST_F(Numbers, TypedValuesAreLimitedAndRoundedAndTold) {
    const Typed cases[] = {
        {"Floored", "12", "12", 12},
        {"Floored", "-3", "0", 0},
        {"Free", "-30", "-30", -30},
        {"Free", " 30 ", "30", 30},
        {"Percent", "150", "100", 100},
        {"Percent", "-40", "40", 40}, // the sign is refused
        {"Real", "2.345", "2.35", 2.35},
        {"Real", "-2.345", "-2.35", -2.35},
        {"Real", "-0.001", "0", 0},
        {"Real", "42949673.96", "1", 1}, // 32 bits of hundredths
        {"Whole", "2.3456", "2.3456", 2.3456},
        {"Share", "1.7", "1", 1},
        {"Share", "-0.2", "0", 0},
    };
    Open();
    for (const Typed& typed : cases) {
        SCOPED_TRACE(testing::Message() << typed.edit << ' ' << typed.text);
        person.Give(typed.edit, typed.text);
        EXPECT_EQ(person.TextOf(typed.edit), typed.shown);
        EXPECT_DOUBLE_EQ(StoredIn(values, typed.edit), typed.stored);
        EXPECT_EQ(editor.Told(), 1);
    }
}

TEST_F(Numbers, APressCountsFromTheLastValueAndNotFromTheText) {
    Open();
    person.Type("Floored", "77");
    person.Press("Floored", true);
    EXPECT_EQS((values.m_floored, 15), (person.TextOf("Floored"), "15"), (editor.Told(), 1));
    person.Leave(); // nothing is left to commit
    EXPECT_EQS((values.m_floored, 15), (editor.Told(), 0));

    person.Press("Floored", false);
    person.Press("Floored", false);
    EXPECT_EQ(values.m_floored, 0);
    person.Press("Floored", false);
    EXPECT_EQS((person.TextOf("Floored"), "0"), (editor.Told(), 3));

    for (int i = 0; i < 7; ++i) person.Press("Share", true);
    EXPECT_EQ(values.m_share, 1);
    person.Press("Quiet", true); // quiet only when it is left
    EXPECT_EQS((values.m_quiet, 11), (editor.Told(), 8));

    values.m_free = std::numeric_limits<std::int32_t>::max();
    editor.m_valuesPage.Form().LoadRows(nullptr);
    person.Press("Free", true);
    EXPECT_EQ(values.m_free, std::numeric_limits<std::int32_t>::max());
}

TEST_F(Numbers, KeysAndTheWheelPressWhereTheFocusIs) {
    Open();
    auto& free = person.Find<QAbstractSpinBox>("Free");
    free.setFocus();
    person.Key(Qt::Key_Up);
    EXPECT_EQ(values.m_free, -6);
    person.Key(Qt::Key_PageDown);
    EXPECT_EQ(values.m_free, -16);
    const auto wheel = [](QWidget& over) {
        QWheelEvent event(QPointF(5, 5), over.mapToGlobal(QPointF(5, 5)), {}, QPoint(0, 120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&over, &event);
    };
    wheel(free);
    EXPECT_EQ(values.m_free, -15);
    editor.Told();
    wheel(person.Find("Real"));
    wheel(person.Find("Alignment"));
    wheel(*editor.m_tabs.tabBar());
    EXPECT_EQS((editor.Told(), 0), (values.m_alignment, 5), (editor.m_tabs.currentIndex(), 0));
}

TEST_F(Numbers, HoldingAnArrowRepeats) {
    Open();
    auto& free = person.Find<QAbstractSpinBox>("Free");
    const QPoint up(free.width() - 8, free.height() / 4);
    QTest::mousePress(&free, Qt::LeftButton, {}, up);
    QTRY_VERIFY_WITH_TIMEOUT(values.m_free >= -3, 5000);
    QTest::mouseRelease(&free, Qt::LeftButton, {}, up);
    EXPECT_GE(values.m_free, -3);
}

TEST_F(Numbers, WhatNobodyChangedStaysAsItIs) {
    values.m_percent = 250;
    values.m_floored = -4;
    Open();
    EXPECT_EQS((person.TextOf("Real"), "1.23"), (person.TextOf("Percent"), "100"));
    for (const char* edit : {"Floored", "Free", "Percent", "Real", "Whole", "Share", "Quiet", "Text", "Label"}) {
        person.Find(edit).setFocus();
        person.Leave();
    }
    person.Find("Real").setFocus();
    person.Type("Real", "1.23"); // the same once more
    person.Leave();
    person.Click("On");
    EXPECT_EQS((editor.Told(), 1), (values.m_real, 1.23456), (values.m_percent, 250), (values.m_floored, -4));

    // Enter commits in any case.
    person.Find("Real").setFocus();
    person.Enter();
    EXPECT_EQS((values.m_real, 1.23), (editor.Told(), 1));

    // So does leaving a text that the program has put there.
    person.Find<QAbstractSpinBox>("Free").findChild<QLineEdit*>()->setText(QStringLiteral("8"));
    person.Find("Free").setFocus();
    person.Leave();
    EXPECT_EQ(values.m_free, 8);
}

TEST_F(Numbers, QuietOnesAreStoredOnLeavingAndToldByEnter) {
    Open();
    person.Give("Quiet", "20");
    EXPECT_EQS((values.m_quiet, 20), (editor.Told(), 0));
    person.Type("Quiet", "30");
    person.Enter();
    EXPECT_EQ(values.m_quiet, 30);
}

TEST_F(Numbers, TextThatIsNoNumberIsRefusedOnce) {
    Open();
    for (const auto& [edit, text, wants] : {std::tuple{"Floored", "12x", "\"Floored\" must be a whole number."},
                                            std::tuple{"Floored", "1.5", "\"Floored\" must be a whole number."},
                                            std::tuple{"Free", "9999999999", "\"Free\" must be a whole number."},
                                            std::tuple{"Percent", "", "\"Percent\" must be a whole number."},
                                            std::tuple{"Real", "abc", "\"Real\" must be a number."},
                                            std::tuple{"Whole", "inf", "\"Whole\" must be a number."}}) {
        SCOPED_TRACE(testing::Message() << edit << ' ' << text);
        const double before = StoredIn(values, edit);
        const QString shown = person.TextOf(edit);
        person.Type(edit, text);
        ExpectBox("Test", wants, [&] { person.Leave(); });
        EXPECT_EQS((person.TextOf(edit), shown), (StoredIn(values, edit), before), (person.Focus(), edit),
                   (person.Find(edit).findChild<QLineEdit*>()->selectedText(), shown), (editor.Told(), 0));
    }
    person.Type("Real", "abc");
    ExpectBox("Test", "\"Real\" must be a number.", [&] { person.Enter(); });
    EXPECT_TRUE(editor.isVisible());
    // A press takes no notice of the text.
    person.Type("Real", "abc");
    person.Press("Real", true);
    EXPECT_EQ(values.m_real, 11.23);
}

TEST_F(Numbers, ABadTextKeepsOkFromClosingAndCancelNot) {
    Open();
    person.Type("Real", "abc");
    ExpectBox("Test", "\"Real\" must be a number.", [&] { person.Click("OK"); });
    EXPECT_TRUE(editor.isVisible());
    person.Type("Real", "abc");
    person.Click("Cancel");
    EXPECT_EQS((editor.isVisible(), false), (editor.result(), QDialog::Rejected));
}

TEST_F(Numbers, ValuesThatNoControlCanShowAreShownAsZero) {
    values.m_real = std::numeric_limits<double>::quiet_NaN();
    values.m_whole = std::numeric_limits<double>::infinity();
    Open();
    EXPECT_EQS((person.TextOf("Real"), "0"), (person.TextOf("Whole"), "0"));
    person.Click("On"); // the page can be read
    EXPECT_EQS((editor.Told(), 1), (std::isnan(values.m_real), true));
}
} // namespace
