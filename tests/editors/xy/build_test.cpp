// A person builds a real chart out of an empty one.

#include "tests/editors/xy/charts.h"

using namespace driver;

namespace {

/// What the person below builds.
CXYChart Built() {
    CXYChart chart;
    chart.m_majorHGridColor.m_type = 2; // metal
    chart.m_lineWidth = 2;
    CXYChartAxis& x = chart.m_xAxis;
    x.m_scaleType = 3; // dates
    x.m_labelFormat = "{value|yyyy/mm/dd}";
    x.m_dateLowerLimit = 63839664000; // 2024/01/01
    x.m_dateUpperLimit = 63845020800; // 2024/03/03
    x.m_dateMajorTickInc = 14 * 86400;
    x.m_title.m_show = true;
    x.m_title.m_text = "Spring\n2024";
    chart.m_yAxis.m_title.m_show = true;
    chart.m_yAxis.m_title.m_text = "Revenue";
    chart.m_useY2Axis = true;
    chart.m_y2Axis.m_scaleType = 1; // automatic
    chart.m_y2Axis.m_color.m_type = 2;
    CXYChartAxis& axis = xy_test::AddAxis(chart);
    axis.m_offset = 60;
    axis.m_syncKind = 2; // Y
    axis.m_syncSlope = 2;

    xy_test::AddLayer(chart, 0, "Sales");
    auto& line = static_cast<CXYLineLayer&>(xy_test::AddLayer(chart, 1, "Units"));
    line.m_lineType = 1;
    line.m_lineWidth = 3;
    line.m_symbolType = 7;
    line.m_yAxisKind = 8; // Y2
    CXYChartLayer& price = xy_test::AddLayer(chart, 8, "Price");
    price.m_yAxisKind = 16;
    price.m_yAxis = &axis;
    return chart;
}

void ChooseMetal(const Person& person, const char* group, const char* label) {
    person.In(
        person.At(group, label), [](Person& picker) { GiveInPicker(picker, "Metal"); });
}

/// Opens the dialog of an axis, sets the kind of its scale, and goes on.
void InAxis(const Person& person, const char* group, const char* button, int scale,
            const std::function<void(Person&)>& more) {
    person.In(
        person.Button(group, button),
        [&](Person& axis) {
            if (scale > 0) {
                axis.Tab("Scale");
                axis.Choose("Scale Type", scale);
            }
            more(axis);
            axis.Ok();
        });
}

void GiveTitle(const Person& axis, const std::vector<const char*>& lines) {
    axis.Tab("Title");
    axis.Click("Show Title");
    axis.Find("Title").setFocus(Qt::MouseFocusReason);
    for (const char* line : lines) {
        if (line != lines.front()) axis.Enter();
        QTest::keyClicks(axis.Window().focusWidget(), line);
    }
    axis.Leave();
}

void BuildAxes(const Person& person) {
    person.Tab("Axis");
    InAxis(
        person, "Primary", "X Axis ...", 3,
        [](const Person& axis) {
            Type(&axis.At("Date Scale", "Lower Limit"), "2024/01/01");
            Type(&axis.At("Date Scale", "Upper Limit"), "2024/03/03");
            Type(&axis.At("Date Scale", "Major Tick Inc"), "14");
            GiveTitle(axis, {"Spring", "2024"});
        });
    InAxis(person, "Primary", "Y Axis ...", 0, [](const Person& axis) { GiveTitle(axis, {"Revenue"}); });
    person.Click("Use Y2 Axis");
    InAxis(person, "Secondary Y Axis (Y2)", "Y2 Axis ...", 1, [](const Person& axis) {
        axis.Tab("General");
        ChooseMetal(axis, "", "Color");
    });
    InAxis(person, "Additional", "Add...", 0, [](const Person& axis) {
        axis.Choose("Location", 1);
        axis.Give("Offset", "60");
        axis.Tab("Scale");
        axis.Click("Y");
        axis.Give("Slope", "2");
    });
}

void AddLayer(const Person& person, const char* name, int kind, const std::function<void(const Person&)>& more) {
    person.In(
        person.Button("Layer", "Add..."),
        [&](const Person& layer) {
            layer.Choose("Layer Type", kind);
            Type(&layer.At("", "Name"), name);
            layer.Enter(); // which keeps the dialog open
            more(layer);
            layer.Ok();
        });
}

void BuildLayers(const Person& person) {
    const auto plain = [](const Person& /*layer*/) {};
    person.Tab("Layer");
    AddLayer(person, "Sales", 0, plain);
    AddLayer(person, "Units", 1, [](const Person& layer) {
        layer.Choose("Line Type", 1);
        layer.Give("Line Width", "3");
        layer.Choose("Symbol Type", 7);
    });
    person.Click("Y2");
    AddLayer(person, "Price", 8, plain);
    person.Choose("Axis", 0);
}

} // namespace

TEST(XYEditor, BuildsACombinedChart) {
    CXYChart chart;
    EXPECT_TRUE(Edit(chart, [](Person& person) {
        ChooseMetal(person, "Major Grid", "Horz Color");
        person.Give("Width", "2");
        BuildAxes(person);
        BuildLayers(person);
        EXPECT_EQ(person.Rows("Layer"), QStringList({"Layer 1 ( Bar ) : (\"Sales\")", "Layer 2 ( Line ) : (\"Units\")",
                                                     "Layer 3 ( CandleStick ) : (\"Price\")"}));
        KeepPicture(person, "built");
        person.Ok();
    }));

    // What the clock and chance have given is not the person's.
    CXYChart expected = Built();
    ASSERT_EQ(chart.m_layers.GetLayerCount(), 3);
    for (int i = 0; i < 3; ++i) expected.m_layers.GetLayer(i)->m_seed = chart.m_layers.GetLayer(i)->m_seed;
    const auto takeDates = [](CXYChartAxis& to, const CXYChartAxis& from) {
        to.m_dateLowerLimit = from.m_dateLowerLimit;
        to.m_dateUpperLimit = from.m_dateUpperLimit;
    };
    takeDates(expected.m_yAxis, chart.m_yAxis);
    takeDates(expected.m_x2Axis, chart.m_x2Axis);
    takeDates(expected.m_y2Axis, chart.m_y2Axis);
    takeDates(*expected.m_axes.GetAxis(0), *chart.m_axes.GetAxis(0));
    EXPECT_EQ(Difference(expected, chart), "");
}
