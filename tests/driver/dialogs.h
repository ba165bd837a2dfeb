#pragma once
// Every dialog of the library and how a person comes to it.

#include "tests/driver/properties.h"

namespace driver {
/// A dialog, known by a name. `visit` opens it, acts in it, and leaves it and all on the way by Cancel.
struct Dialog {
    std::string name;
    std::function<void(const std::function<void(Person&)>& act)> visit;
    bool own = true; ///< made of our controls, not of the toolkit's
};

/// The dialog at `place` in the editor of `start`; the editor itself if there is no place.
template <class Object> Dialog DialogOf(const std::string& name, const Object& start, const char* place = "") {
    return {name,
            [start, place](const std::function<void(Person&)>& act) {
                Object object(start);
                EXPECT_FALSE(Edit(
                    object,
                    [&](Person& person) {
                        const auto cancel = [](Person& inner) { static_cast<QDialog&>(inner.Window()).reject(); };
                        Go(person, place, act, cancel);
                        cancel(person);
                    }));
            }};
}

inline CChartLayout SomeLayout(int colorType) {
    CChartLayout layout;
    layout.m_backColor.m_type = colorType;
    CChartTitle title;
    title.m_text = "A title of quite some length\nand of two lines";
    layout.m_titles.push_back(title);
    return layout;
}

inline CPieChart SomePie() {
    CPieChart pie;
    for (const char* text : {"Wages", "Flour and butter\nand milk", "Rent"}) {
        CPieChartSector sector;
        sector.m_text = text;
        sector.m_color.m_color = 0x336699 + 0x222200 * static_cast<std::uint32_t>(pie.m_sectors.size());
        pie.m_sectors.push_back(sector);
    }
    return pie;
}

inline CXYChart SomeXYChart() {
    CXYChart chart;
    chart.m_axes.AddAxis(CXYChartAxisMgr::CreateAxis());
    for (int type = 0; type < 9; ++type) {
        CXYChartLayer* layer = CXYChartLayerMgr::CreateLayer(type);
        layer->m_seed = 7;
        layer->m_name = "of some name";
        chart.m_layers.AddLayer(layer);
    }
    static_cast<CXYBarLayer*>(chart.m_layers.GetLayer(0))->m_dataSetColors.push_back(CChartColor());
    static_cast<CXYGanttLayer*>(chart.m_layers.GetLayer(7))->m_groups.push_back(CBoxGroup());
    return chart;
}

inline CPolarChart SomePolarChart() {
    CPolarChart chart;
    chart.m_layers.AddLayer(CPolarLayerMgr::CreateLayer(0));
    chart.m_angularZones.push_back(CMeterZoneAngular());
    return chart;
}

template <class Meter> Meter SomeMeter() {
    Meter meter;
    meter.m_pointers.push_back(CMeterPointer());
    CChartTextBox text;
    text.m_text = "km/h";
    meter.m_texts.push_back(text);
    meter.m_zones.push_back({});
    return meter;
}

inline std::vector<Dialog> AllDialogs() {
    const CXYChart xy = SomeXYChart();
    std::vector<Dialog> dialogs = {
        DialogOf("pie", SomePie()),
        DialogOf("layout", SomeLayout(0)),
        DialogOf("xy", xy),
        DialogOf("axis", xy, "Axis>Primary|X Axis ..."),
        DialogOf("second axis", xy, "Axis>Secondary Y Axis (Y2)|Y2 Axis ..."),
        DialogOf("additional axis", xy, "Axis>Additional|Modify..."),
        DialogOf("polar", SomePolarChart()),
        DialogOf("polar layer", SomePolarChart(), "General>Layer[0]>Modify..."),
        DialogOf("finance", CFinanceChart()),
        DialogOf("angular meter", SomeMeter<CAngularMeter>()),
        DialogOf("linear meter", SomeMeter<CLinearMeter>()),
        DialogOf("color", SomeLayout(0), "General>..."),
        DialogOf("pattern", SomeLayout(1), "General>..."),
        DialogOf("metal", SomeLayout(2), "General>..."),
        DialogOf("font", SomeLayout(0), "General>Default Font|Font..."),
    };
    static constexpr const char* kLayers[] = {
        "Layer>Layer[0]>Modify...", "Layer>Layer[1]>Modify...", "Layer>Layer[2]>Modify...",
        "Layer>Layer[3]>Modify...", "Layer>Layer[4]>Modify...", "Layer>Layer[5]>Modify...",
        "Layer>Layer[6]>Modify...", "Layer>Layer[7]>Modify...", "Layer>Layer[8]>Modify..."};
    for (const char* place : kLayers) dialogs.push_back(DialogOf(std::string("layer ") + place[12], xy, place));
    dialogs.push_back(DialogOf("image", SomeLayout(0), "General>WallPaper|..."));
    dialogs.back().own = false;
    return dialogs;
}

/// Calls `look` for every page of a dialog that is open, once it shows; an empty name for one without.
inline void OnEachPage(const Person& person, const std::function<void(const QString& tab)>& look) {
    const QStringList tabs = person.Tabs();
    for (const QString& tab : tabs.isEmpty() ? QStringList({QString()}) : tabs) {
        if (!tab.isEmpty()) person.Tab(tab);
        look(tab);
    }
}

inline void AtFont(double points, const std::function<void()>& act) {
    NeedApplication();
    const QFont usual = QApplication::font();
    QFont font(usual);
    font.setPointSizeF(points);
    QApplication::setFont(font);
    act();
    QApplication::setFont(usual);
}
} // namespace driver
