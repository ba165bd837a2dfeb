#include "platform/widgets/simple_combo.h"
#include "tests/editors/framework/test_editor.h"
#include <climits>

namespace {
class CFieldsPage : public CDialog {
public:
    explicit CFieldsPage(QWidget& owner) : m_form(*this, owner) {
        m_form.Group("Effect:");
        m_form.Field<CRaisedEffectField>(nullptr, m_effect);
        m_form.Group("Font:");
        m_form.Field<CChartFontField>(nullptr, m_font);
        m_form.Field<CChartColorField>("Color:", m_color);
    }
    void Load() { m_form.LoadRows(nullptr); }
    CChartRaisedEffect m_effect;
    CChartFont m_font;
    CChartColor m_color;

private:
    CForm m_form;
};

class Fields : public EditorTest {
protected:
    void Show(std::int32_t type, std::int32_t value, std::int32_t direction) {
        page.m_effect.m_effectType = type;
        page.m_effect.m_value = value;
        page.m_effect.m_direction = direction;
        page.Load();
        editor.Told();
    }
    void OpenPage() {
        Open();
        editor.m_tabs.AttachPage(page, QStringLiteral("Fields"));
        editor.m_tabs.ShowPage(2);
    }
    QString TextIn(const char* field) {
        QStringList texts;
        for (const QLabel* label : page.findChild<CDialog*>(QString::fromUtf8(field))->findChildren<QLabel*>())
            if (!label->isHidden()) texts << label->text();
        return texts.join(u' ').remove(u'&');
    }
    CFieldsPage page{editor};
    Person user{page};
};

TEST_F(Fields, AnEffectShowsAsKindDirectionAndSize) {
    using Case =
        std::tuple<std::int32_t, std::int32_t, std::int32_t, const char*, const char*, const char*, bool, bool>;
    const Case cases[] = {
        {0, 0, 8, "Flat", "Top", "0", false, false},
        {0, 3, 4, "Raised", "Left", "3", true, false},
        {0, -5, 6, "Depressed", "Right", "5", true, false},
        {7, -5, 99, "Depressed", "Left", "5", true, false},
        {1, 4, 2, "SoftLighting", "Bottom", "4", true, true},
        {2, 0, 8, "ReduceGlare", "Top", "0", true, true},
        {3, -9, 8, "NormalGlare", "Top", "9", true, true},
        {0, INT_MIN, 8, "Depressed", "Top", "2147483648", true, false},
    };
    OpenPage();
    for (const auto& [type, value, direction, kind, side, size, sized, directed] : cases) {
        SCOPED_TRACE(testing::Message() << type << ' ' << value);
        Show(type, value, direction);
        EXPECT_EQS((user.Find<QComboBox>("Type").currentText(), kind),
                   (user.Find<QComboBox>("Direction").currentText(), side), (user.TextOf("Size"), size),
                   (user.Find("Size").isEnabled(), sized), (user.Find("Direction").isEnabled(), directed));
        // Nothing has been edited.
        EXPECT_EQS((page.m_effect.m_effectType, type), (page.m_effect.m_value, value),
                   (page.m_effect.m_direction, direction));
    }
}

TEST_F(Fields, AKindIsStoredWithTheSizeThatShows) {
    OpenPage();
    Show(0, -5, 4);
    user.Choose("Type", 1);
    EXPECT_EQS((page.m_effect.m_value, 5), (page.m_effect.m_effectType, 0));
    user.Choose("Type", 0);
    EXPECT_EQS((page.m_effect.m_value, 0), (user.TextOf("Size"), "5"), (user.Find("Size").isEnabled(), false));
    const std::int32_t types[] = {1, 3, 2};
    for (int row = 3; row < 6; ++row) {
        user.Choose("Type", row);
        EXPECT_EQS((page.m_effect.m_effectType, types[row - 3]), (page.m_effect.m_value, 5),
                   (user.Find("Direction").isEnabled(), true));
    }
    user.Choose("Direction", 3);
    EXPECT_EQS((page.m_effect.m_direction, 2), (editor.Told(), 6));
}

TEST_F(Fields, TheSizeOfAnEffectStopsAtZeroForPressesOnly) {
    OpenPage();
    Show(0, 1, 8);
    user.Press("Size", false);
    EXPECT_EQ(page.m_effect.m_value, 0);
    user.Press("Size", false);
    EXPECT_EQS((user.TextOf("Size"), "0"), (editor.Told(), 2), (user.Find<QComboBox>("Type").currentText(), "Raised"));

    user.Type("Size", "-3");
    user.Enter();
    EXPECT_EQ(page.m_effect.m_value, -3);
    user.Choose("Type", 2);
    EXPECT_EQ(page.m_effect.m_value, 3);
    user.Press("Size", true);
    EXPECT_EQ(user.TextOf("Size"), "0");

    Show(0, 7, 8);
    user.Type("Size", "seven");
    ExpectBox("Test", "\"Size\" must be a whole number.", [&] { user.Leave(); });
    EXPECT_EQS((page.m_effect.m_value, 7), (user.TextOf("Size"), "7"));
    EXPECT_EQ(editor.Told(), 1); // all the same
}

TEST_F(Fields, AFontShowsItsNameAndSize) {
    OpenPage();
    page.m_font.m_faceName = "Some Face";
    page.m_font.m_size = 8.5;
    page.Load();
    EXPECT_EQ(TextIn("Font"), "Some Face Size: 8.5 Name:");
    page.m_font.m_size = 12;
    page.Load();
    EXPECT_EQ(TextIn("Font"), "Some Face Size: 12 Name:");
    CChartFontField small;
    small.HideSize();
    EXPECT_TRUE(small.findChildren<QLabel*>().at(2)->isHidden());
}

TEST_F(Fields, AColourNamesItsKindAndKeepsTheLastNameForOthers) {
    OpenPage();
    EXPECT_EQ(TextIn("Color"), "(ARGB)");
    const std::pair<int, const char*> kinds[] = {{2, "(Metal)"}, {1, "(Pattern)"}, {9, "(Pattern)"}, {0, "(ARGB)"}};
    for (const auto& [type, text] : kinds) {
        page.m_color.m_type = type;
        page.Load();
        EXPECT_EQ(TextIn("Color"), text);
    }
}

/// Answers the dialog of a field's button, by `key`, after `act` in it.
void Answer(
    QWidget& button, Qt::Key key, const std::function<void(QWidget&)>& act = [](QWidget&) {}) {
    const WhenModal dialog([&](QWidget& window) {
        act(window);
        QTest::keyClick(&window, key);
    });
    QTest::mouseClick(&button, Qt::LeftButton);
}

TEST_F(Fields, DialogsGiveAValueByOkOnly) {
    OpenPage();
    auto& button = *user.Find("Color").findChild<QPushButton*>();
    const auto metal = [](QWidget& dialog) {
        QTest::keyClick(dialog.findChild<QComboBox*>(QStringLiteral("Type")), Qt::Key_M);
    };
    Answer(button, Qt::Key_Escape, metal);
    EXPECT_EQS((page.m_color.m_type, 0), (editor.Told(), 0));
    Answer(button, Qt::Key_Return, metal);
    EXPECT_EQS((page.m_color.m_type, 2), (TextIn("Color"), "(Metal)"), (editor.Told(), 1));
    Answer(*user.Find("Font").findChild<QPushButton*>(), Qt::Key_Escape);
    EXPECT_EQ(editor.Told(), 0);
}

TEST_F(Fields, OfAListGoToTheSelectedItem) {
    editor.AddTitle("a");
    editor.AddTitle("b");
    OpenItems();
    person.Select("Titles", 1);
    person.Choose("Type", 1);
    person.Press("Size", true);
    EXPECT_EQS((editor.Titles()[1].m_effect.m_value, 1), (editor.Titles()[0].m_effect.m_value, 0), (editor.Told(), 2));
    // With none selected the change is dropped; most fields tell of it all the same.
    QTest::keyClicks(person.Find<CSimpleCombo>("Titles").Edit(), "zzz");
    person.Choose("Type", 1);
    EXPECT_EQS((editor.Told(), 1), (person.Find<QComboBox>("Type").currentText(), "Raised"));
    Answer(*person.Find("BackColor").findChild<QPushButton*>(), Qt::Key_Return);
    EXPECT_EQ(editor.Told(), 0);
    Answer(*person.Find("FontColor").findChild<QPushButton*>(), Qt::Key_Return);
    EXPECT_EQS((editor.Told(), 1), (editor.Titles()[1].m_effect.m_value, 1));
}
} // namespace
