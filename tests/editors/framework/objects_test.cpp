// Lists of objects that are edited in a dialog of their own, and rows that follow more than one value.

#include "platform/widgets/simple_combo.h"
#include "tests/editors/framework/test_editor.h"
#include <QDateEdit>

namespace {
struct Object {
    CChartString m_name;
    std::int32_t m_size = 1;
};

/// A dialog with a list of objects, and rows of every kind that hangs on something else.
class CObjectsDialog : public CDialog {
public:
    CObjectsDialog() : CDialog(QStringLiteral("Objects")), m_form(*this, [this] { ++m_told; }) {
        m_form.Group("Object:");
        m_list = &m_form.Objects({.count = [this] { return static_cast<int>(m_names.size()); },
                                  .caption = [this](int row) { return m_names[row]; },
                                  .add = [this] { return Take(m_names.size()); },
                                  .erase = [this](int row) { m_names.removeAt(row); },
                                  .modify = [this](int row) { return Take(row); },
                                  .copy = [this](int row) { m_names.append(m_names[row]); },
                                  .exchange = [this](int row, int other) { m_names.swapItemsAt(row, other); }},
                                 "Select anyone.");
        m_form.Column();
        m_form.Combo("Row:", m_row, {}).RowsFrom([this] { return m_names; }).EnabledIf([this] { return m_live; });
        m_form.Radio("Side:", m_side, {{"L", 1}, {"R", 2}, {"T", 3}}).States([this](int code) {
            return code == 2 ? CRadioRow::GreyAndOff : m_live ? CRadioRow::Live : CRadioRow::Grey;
        });
        m_form.Check("Live", m_live);
        m_form.Date("Day:", m_day);
        m_form.Integer("Wait:", m_wait).Unit("(days)");
        m_form.Combo("Which:", m_which, {"first", "second", "none"}).Then([this] { m_form.LoadRows(&m_current); });
        m_form.Text("Name:", m_current[&Object::m_name]);
        m_form.Integer("Size:", m_current[&Object::m_size]);
    }
    void Open() {
        OnInitDialog();
        show();
    }

    QStringList m_names{"a", "b", "c"};
    QString m_next; ///< what the dialog of an object gives; nothing: cancelled
    std::int32_t m_row = 1;
    std::int32_t m_side = 2;
    bool m_live = false;
    QDate m_day;
    std::int32_t m_wait = 3;
    std::int32_t m_which = 0;
    Object m_objects[2];
    int m_told = 0;

protected:
    bool OnInitDialog() override {
        OpenEditor(*this, {.body = m_form.Layout()});
        return CDialog::OnInitDialog();
    }

private:
    bool Take(qsizetype row) {
        if (m_next.isEmpty()) return false;
        if (row == m_names.size()) m_names.append(m_next);
        m_names[row] = m_next;
        return true;
    }

    CCurrent<Object> m_current{[this] { return m_which < 2 ? &m_objects[m_which] : nullptr; }};
    CForm m_form;
    CObjectList* m_list;
};

class Objects : public WidgetTest {
protected:
    void SetUp() override {
        dialog.Open();
        Activate(dialog);
    }
    void Expect(const QStringList& rows, int selected, int told) {
        EXPECT_EQS((person.Rows("Object"), rows), (dialog.m_names, rows),
                   (person.List("Object").currentRow(), selected), (std::exchange(dialog.m_told, 0), told));
    }

    CObjectsDialog dialog;
    Person person{dialog};
};

TEST_F(Objects, AreAddedModifiedCopiedAndMovedRoundTheEnds) {
    person.Click("Add...");
    person.Click("Modify...");
    Expect({"a", "b", "c"}, 0, 0); // both were cancelled
    dialog.m_next = "d";
    person.Click("Add...");
    Expect({"a", "b", "c", "d"}, 3, 1);
    person.Click("v");
    Expect({"d", "b", "c", "a"}, 0, 1);
    person.Click("^");
    Expect({"a", "b", "c", "d"}, 3, 1);
    person.Click("^");
    Expect({"a", "b", "d", "c"}, 2, 1);
    person.Click("Copy");
    Expect({"a", "b", "d", "c", "d"}, 4, 1);
    person.Click("Delete");
    Expect({"a", "b", "d", "c"}, 3, 1);
    dialog.m_next = "e";
    person.Select("Object", 1);
    QTest::mouseDClick(person.List("Object").viewport(), Qt::LeftButton, {},
                       person.List("Object").visualItemRect(person.List("Object").item(1)).center());
    Expect({"a", "e", "d", "c"}, 1, 1);

    for (const char* button : {"Delete", "Modify...", "Copy", "^", "v"}) {
        person.Find<CSimpleCombo>("Object").Select(-1);
        ExpectBox("Warning", "Select anyone.", [&] { person.Click(button); });
        Expect({"a", "e", "d", "c"}, 0, 0);
    }
    for (int i = 0; i < 3; ++i) person.Click("Delete");
    person.Click("v"); // one row alone
    Expect({"c"}, 0, 3);
}

TEST_F(Objects, GiveOtherRowsTheirChoicesAndStates) {
    auto& rows = person.Find<QComboBox>("Row");
    EXPECT_EQS((rows.currentText(), "b"), (rows.isEnabled(), false));
    const auto state = [this](const char* button) {
        auto& radio = person.Find<QRadioButton>(button);
        return std::pair(radio.isEnabled(), radio.isChecked());
    };
    EXPECT_EQ(state("R"), std::pair(false, false)); // off, whatever is stored
    EXPECT_EQ(state("L"), std::pair(false, false));
    person.Click("Live");
    EXPECT_EQS((rows.isEnabled(), true), (state("R"), std::pair(false, false)));
    person.Click("T");
    EXPECT_EQ(dialog.m_side, 3);
    person.Click("Live");
    EXPECT_EQ(state("T"), std::pair(false, true));
}

TEST_F(Objects, FollowTheCurrentOne) {
    person.Give("Name", "one");
    person.Choose("Which", 1);
    EXPECT_EQ(person.Find<QLineEdit>("Name").text(), "");
    person.Give("Size", "7");
    EXPECT_EQ(dialog.m_objects[1].m_size, 7);
    person.Choose("Which", 2); // none: what shows stays, and what is typed goes nowhere
    EXPECT_EQ(person.TextOf("Size"), "7");
    person.Give("Size", "8");
    person.Choose("Which", 0);
    EXPECT_EQS((person.Find<QLineEdit>("Name").text(), "one"), (dialog.m_objects[0].m_size, 1),
               (dialog.m_objects[1].m_size, 7));
}

TEST_F(Objects, ADayThatIsNoneChangesNothing) {
    auto& day = person.Find<QDateEdit>("Day");
    EXPECT_EQ(day.date(), QDate::currentDate());
    person.Type("Day", "0/");
    person.Leave();
    EXPECT_EQS((dialog.m_day.isValid(), false), (dialog.m_told, 0));
    person.Type("Day", "2024/02/29");
    person.Leave();
    EXPECT_EQ(dialog.m_day, QDate(2024, 2, 29));
    person.Type("Day", "2024/02/30");
    person.Leave();
    EXPECT_EQS((dialog.m_day.isValid(), true), (dialog.m_day.month(), 2));
}

TEST_F(Objects, AreShownAnewWhenTheDialogIsOpenedAgain) {
    const auto controls = dialog.findChildren<QWidget*>().size();
    dialog.hide();
    dialog.m_names = QStringList{"x", "y"};
    dialog.m_day = QDate(2030, 1, 2);
    dialog.Open();
    EXPECT_EQ(dialog.findChildren<QWidget*>().size(), controls);
    Expect({"x", "y"}, 0, 0);
    EXPECT_EQ(person.Find<QComboBox>("Row").count(), 2);
    EXPECT_EQ(person.Find<QDateEdit>("Day").date(), QDate(2030, 1, 2));
}
} // namespace
