// The controls of the whole pie: what can be typed and pressed, and which field it reaches.

#include "tests/editors/pie/person.h"

#include <algorithm>
#include <cstdlib>

using namespace pie_test;

namespace {

struct NumberCase {
    const char* name;
    double start;
    const char* typed; ///< null for none
    int presses;       ///< of the up arrow; of the down arrow if below 0
    const char* shown;
    double stored;
};

struct NumberField {
    const char* name;
    std::function<double(const CPieChart&)> get;
    std::function<void(CPieChart&, double)> set;
};

NumberField IntegerField(const char* name, std::int32_t CPieChart::*field) {
    return {name, [field](const CPieChart& pie) { return pie.*field; },
            [field](CPieChart& pie, double value) { pie.*field = static_cast<std::int32_t>(value); }};
}

NumberField RealField(const char* name, double CPieChart::*field) {
    return {name, [field](const CPieChart& pie) { return pie.*field; },
            [field](CPieChart& pie, double value) { pie.*field = value; }};
}

const NumberField kNumbers[] = {
    IntegerField("Depth", &CPieChart::m_depth3D),
    RealField("Angle", &CPieChart::m_angle3D),
    RealField("StartAngle", &CPieChart::m_startAngle),
    IntegerField("Inner R(%)", &CPieChart::m_donutInnerRadius),
    IntegerField("Position", &CPieChart::m_labelPosition),
};

const NumberCase kNumberCases[] = {
    {"Depth", 1, "25", 0, "25", 25},
    {"Depth", 1, "-5", 0, "5", 5}, // no sign gets in
    {"Depth", 1, nullptr, 2, "3", 3},
    {"Depth", 0, nullptr, -1, "0", 0},
    {"Angle", 0, "120", 0, "90", 90},
    {"Angle", 30, "-1", 0, "0", 0},
    {"Angle", 10, "12.346", 0, "12.35", 12.35},
    {"Angle", 85, nullptr, 1, "90", 90},
    {"Angle", 5, nullptr, -1, "0", 0},
    {"StartAngle", 0, "-33.456", 0, "-33.46", -33.46},
    {"StartAngle", 0, "400", 0, "400", 400},
    {"StartAngle", 7.5, nullptr, -2, "-12.5", -12.5},
    {"StartAngle", 0, "77", 1, "10", 10}, // a press starts from what was committed
    {"Inner R(%)", 50, "150", 0, "100", 100},
    {"Inner R(%)", 100, nullptr, 1, "100", 100},
    {"Inner R(%)", 5, nullptr, -1, "0", 0},
    {"Inner R(%)", 50, nullptr, 3, "80", 80},
    {"Position", -1, "-40", 0, "-40", -40},
    {"Position", -1, nullptr, 3, "2", 2},
    {"Position", -1, nullptr, -1, "-2", -2},
};

} // namespace

TEST(PieControls, NumbersAreLimitedRoundedAndStored) {
    for (const NumberCase& row : kNumberCases) {
        SCOPED_TRACE(std::string(row.name) + " typed " + (row.typed ? row.typed : "nothing") + " pressed " +
                     std::to_string(row.presses));
        const auto* field =
            std::find_if(std::begin(kNumbers), std::end(kNumbers),
                         [&](const NumberField& each) { return std::string(each.name) == row.name; });
        CPieChart pie;
        field->set(pie, row.start);
        CPieChart expected(pie);
        field->set(expected, row.stored);
        EXPECT_TRUE(Edit(pie, [&](PieEditor& editor) {
            if (row.typed) {
                editor.Type(row.name, row.typed);
                if (row.presses == 0)
                    editor.Leave();
            }
            for (int i = 0; i < std::abs(row.presses); ++i)
                editor.Press(row.name, row.presses > 0);
            EXPECT_EQ(editor.NumberText(row.name), QString::fromUtf8(row.shown));
            editor.Ok();
        }));
        EXPECT_EQ(Shown(pie), Shown(expected));
    }
}

TEST(PieControls, AWideAngleNeedsAShadow) {
    CPieChart pie;
    EXPECT_TRUE(Edit(pie, [](PieEditor& editor) {
        editor.Click("Shadow3D");
        editor.Type("Angle", "120");
        editor.Leave();
        EXPECT_EQ(editor.NumberText("Angle"), "120");
        editor.Ok();
    }));
    EXPECT_TRUE(pie.m_shadow3D);
    EXPECT_EQ(pie.m_angle3D, 120);
    EXPECT_TRUE(Edit(pie, [](PieEditor& editor) {
        EXPECT_EQ(editor.NumberText("Angle"), "120");
        editor.Click("Shadow3D");
        EXPECT_EQ(editor.NumberText("Angle"), "90");
        editor.Ok();
    }));
    EXPECT_FALSE(pie.m_shadow3D);
    EXPECT_EQ(pie.m_angle3D, 90);
}

TEST(PieControls, ChecksAndTheListReachTheirFields) {
    struct {
        const char* name;
        bool CPieChart::*field;
    } const checks[] = {{"Show 3D", &CPieChart::m_show3D},
                        {"Shadow3D", &CPieChart::m_shadow3D},
                        {"ClockWise", &CPieChart::m_clockWise},
                        {"Use DonutType", &CPieChart::m_useDonut}};
    for (const auto& check : checks) {
        CPieChart pie;
        CPieChart expected;
        expected.*check.field = !(pie.*check.field);
        EXPECT_TRUE(Edit(pie, [&](PieEditor& editor) {
            EXPECT_EQ(editor.Find<QCheckBox>(check.name)->isChecked(), pie.*check.field);
            editor.Click(check.name);
            editor.Ok();
        }));
        EXPECT_EQ(Shown(pie), Shown(expected)) << check.name;
    }
    CPieChart pie;
    EXPECT_TRUE(Edit(pie, [](PieEditor& editor) {
        auto* layout = editor.Find<QComboBox>("Layout");
        EXPECT_EQ(layout->currentText(), "CircleLayout");
        QTest::keyClick(layout, Qt::Key_Up);
        EXPECT_EQ(layout->currentText(), "SideLayout");
        editor.Ok();
    }));
    EXPECT_EQ(pie.m_labelLayout, 0);
}

TEST(PieControls, ColoursAreChosenInTheirDialog) {
    CPieChart pie = PieOf({"a", "b"});
    EXPECT_TRUE(Edit(pie, [](PieEditor& editor) {
        editor.ChooseMetal("EdgeColor", true);
        editor.ChooseMetal("JoinLineColor", false);
        editor.SelectRow(1);
        editor.ChooseMetal("Color", true);
        editor.Ok();
    }));
    EXPECT_EQ(pie.m_edgeColor.m_type, 2);
    EXPECT_EQ(Shown(pie.m_joinLineColor), Shown(CPieChart().m_joinLineColor));
    EXPECT_EQ(pie.m_sectors[0].m_color.m_type, 0);
    EXPECT_EQ(pie.m_sectors[1].m_color.m_type, 2);
}

TEST(PieControls, TextThatIsNoNumberIsRefused) {
    CPieChart pie;
    pie.m_startAngle = 12.5;
    EXPECT_TRUE(Edit(pie, [](PieEditor& editor) {
        const QImage before = editor.Preview();
        editor.Type("StartAngle", "abc");
        ExpectBox("PieChart", "\"StartAngle\" must be a number.", [&] { editor.Leave(); });
        EXPECT_EQ(editor.NumberText("StartAngle"), "12.5");
        EXPECT_EQ(editor.Number("StartAngle")->findChild<QLineEdit*>()->selectedText(), "12.5");
        EXPECT_EQ(editor.Preview(), before);
        editor.Ok();
    }));
    EXPECT_EQ(pie.m_startAngle, 12.5);
}

TEST(PieControls, ThePreviewFollowsEveryChange) {
    CPieChart pie = PieOf({"a", "b", "c"});
    pie.m_sectors[0].m_color.m_color = 0xCC0000;
    EXPECT_FALSE(Edit(pie, [](PieEditor& editor) {
        QImage last = editor.Preview();
        EXPECT_GE(last.width() * 3, editor.Window().width());
        const std::function<void()> edits[] = {
            [&] { editor.Press("StartAngle", true); }, [&] { editor.Click("ClockWise"); },
            [&] { editor.Click("Use DonutType"); },    [&] { editor.Press("Inner R(%)", true); },
            [&] { editor.Click("Show 3D"); },          [&] { editor.Press("Depth", true); },
            [&] { editor.Click("Show Explode"); },     [&] { editor.Click("Add"); },
            [&] { editor.Click("Delete"); },           [&] { editor.ChooseMetal("Color", true); },
        };
        for (const auto& edit : edits) {
            edit();
            const QImage now = editor.Preview();
            EXPECT_NE(now, last) << "edit " << (&edit - edits);
            last = now;
        }
        editor.Cancel();
    }));
}
