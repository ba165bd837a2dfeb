// Axes and layers name each other: what the editor shows of that, and what is left when one of them goes.

#include "tests/editors/xy/charts.h"
#include <variant>

using namespace driver;

namespace {
/// What X2, Y2, each additional axis (by its offset) and each layer (by name and kind) follow: a kind, for 16 with the
/// row of the axis.
std::string Ties(const CXYChart& chart) {
    std::string all;
    const auto tell = [&](const std::string& who, int kind, const CXYChartAxis* axis) {
        all += who + '>' + std::to_string(kind);
        if (kind == 16 || axis != nullptr) all += ':' + std::to_string(chart.m_axes.GetAxisIndex(axis));
        all += ' ';
    };
    tell("x2", chart.m_x2Axis.m_syncKind, chart.m_x2Axis.m_syncAxis);
    tell("y2", chart.m_y2Axis.m_syncKind, chart.m_y2Axis.m_syncAxis);
    for (int i = 0; i < chart.m_axes.GetAxisCount(); ++i) {
        const CXYChartAxis& axis = *chart.m_axes.GetAxis(i);
        tell(std::to_string(axis.m_offset), axis.m_syncKind, axis.m_syncAxis);
    }
    for (int i = 0; i < chart.m_layers.GetLayerCount(); ++i) {
        const CXYChartLayer& layer = *chart.m_layers.GetLayer(i);
        tell(layer.m_name.data() + std::to_string(layer.GetType()), layer.m_yAxisKind, layer.m_yAxis);
    }
    return all;
}

/// Opens the dialog of an axis and lets it follow an additional one (by its row) or what a button says.
void Follow(const Person& person, QWidget& opener, const char* offset, std::variant<int, const char*> followed,
            bool ok = true) {
    person.In(
        opener,
        [&](Person& axis) {
            if (offset != nullptr) axis.Give("Offset", offset);
            axis.Tab("Scale");
            if (const int* row = std::get_if<int>(&followed))
                axis.Choose("Additional", *row);
            else
                axis.Click(std::get<const char*>(followed));
            ok ? axis.Ok() : axis.Cancel();
        });
}

void InLayer(const Person& person, const char* button, std::initializer_list<int> kinds, const char* name, bool ok,
             const char* shown = "Layer Type") {
    person.In(
        person.Button("Layer", button),
        [&](Person& layer) {
            for (const int kind : kinds) layer.Choose("Layer Type", kind);
            layer.Find(shown); // of the page of its kind
            if (name != nullptr) layer.Give("Name", name);
            ok ? layer.Ok() : layer.Cancel();
        });
}

int AxisShown(const Person& person) { return person.Find<QComboBox>("Axis").currentIndex(); }
} // namespace

TEST(XYRelations, HoldWhateverIsAddedMovedAndDeleted) {
    CXYChart chart;
    EXPECT_TRUE(Edit(chart, [](Person& person) {
        person.Tab("Axis");
        QWidget& add = person.Button("Additional", "Add...");
        Follow(person, add, "1", "Y");
        Follow(person, add, "9", "X", false);
        Follow(person, add, "2", 0);
        Follow(person, add, "3", "X2");
        Follow(person, person.Button("", "X2 Axis ..."), nullptr, 0);
        Follow(person, person.Button("", "Y2 Axis ..."), nullptr, 1);
        person.In(person.Button("", "Y2 Axis ..."), [](Person& axis) {
            axis.Tab("Scale");
            EXPECT_EQS((axis.Find("Y2").isEnabled(), false), (axis.Find("X2").isEnabled(), true),
                       (axis.Find<QComboBox>("Additional").currentIndex(), 1));
            axis.Cancel();
        });
        person.Tab("Layer");
        InLayer(person, "Add...", {5, 1}, "a", true, "Line Type");
        InLayer(person, "Add...", {2}, "gone", false);
        person.Click("Y2");
        InLayer(person, "Add...", {3}, "b", true);
        EXPECT_EQ(AxisShown(person), -1);
        person.Choose("Axis", 1);
        EXPECT_EQS((AxisShown(person), 1), (person.Find<QRadioButton>("Y").isChecked(), false));
        person.Click(person.Button("Layer", "Copy"));
        person.Click(person.Button("Layer", "v")); // the last, so it changes places with the first
        person.Ok();
    }));
    const char* const all = "x2>16:0 y2>16:1 1>2 2>16:0 3>4 b3>16:1 b3>16:1 a1>8 ";
    EXPECT_EQ(Ties(chart), all);
    for (const bool ok : {false, true}) {
        EXPECT_EQ(Edit(chart,
                       [ok](Person& person) {
                           person.Tab("Axis");
                           person.Select("Additional", 0);
                           person.Click(person.Button("Additional", "Delete"));
                           person.Tab("Layer");
                           person.Select("Layer", 0);
                           EXPECT_EQ(AxisShown(person), 0) << "the second is the first now";
                           InLayer(person, "Modify...", {0}, nullptr, false);
                           InLayer(person, "Modify...", {0, 3}, "c", true); // of its kind again: stands where it stood
                           person.Select("Layer", 1);
                           InLayer(person, "Modify...", {7}, nullptr, true); // all but the name belongs to the kind
                           EXPECT_EQ(person.Rows("Layer"),
                                     QStringList({"Layer 1 ( Area ) : (\"c\")", "Layer 2 ( Gantt ) : (\"b\")",
                                                  "Layer 3 ( Line ) : (\"a\")"}));
                           ok ? person.Ok() : person.Cancel();
                       }),
                  ok);
        EXPECT_EQ(Ties(chart), ok ? "x2>16:-1 y2>16:0 2>16:-1 3>4 c3>16:0 b7>2 a1>8 " : all);
    }
    EXPECT_TRUE(Edit(chart, [](Person& person) {
        person.Tab("Axis");
        for (int i = 0; i < 2; ++i) person.Click(person.Button("Additional", "Delete"));
        person.Tab("Layer");
        EXPECT_EQ(AxisShown(person), -1);
        person.Click(person.Button("Layer", "Delete"));
        person.Ok();
    }));
    EXPECT_EQ(Ties(chart), "x2>16:-1 y2>16:-1 b7>2 a1>8 ");
}
