// A host that makes, fills, copies, assigns and destroys every exported class, knowing nothing but the public
// header. It is built in several dialects and run under the memory checkers.

#include <charteditors/charteditors.h>
#include <cstdio>
#include <cstring>

namespace {
int failures = 0;

void expect(bool good, const char* what) {
    if (!good) {
        std::fprintf(stderr, "failed: %s\n", what);
        failures++;
    }
}

/// Copies and assigns `object`, also to itself, and ends the copies first.
template <class Object> void copyOne(const Object& object) {
    const Object copy(object);
    Object assigned;
    assigned = copy;
    assigned = object;
    const Object& same = assigned;
    assigned = same;
    Object* onHeap = new Object(assigned);
    *onHeap = copy;
    delete onHeap;
}
template <class... Objects> void copyAbout(const Objects&... objects) { (copyOne(objects), ...); }

/// Fills a list, moves about in it, and copies it over longer and shorter ones.
template <class List, class Element> void fill(List& list, const Element& element) {
    for (int i = 0; i < 5; i++) list.push_back(element);
    list.push_back(list[0]);
    list.erase(list.begin() + 1);
    expect(list.size() == 5 && !list.empty(), "a list holds what was put in");
    List shorter;
    shorter.push_back(element);
    shorter = list;
    shorter.erase(0);
    list = shorter;
    const List& constant = list;
    copyAbout(constant[3], list);
}

/// Puts a layer of a kind and its clone into a manager.
template <class Manager, class Layer> void addKind(Manager& layers) {
    Layer layer;
    layer.m_name = "kind";
    copyAbout(layer);
    auto* made = Manager::CreateLayer(layer.GetType());
    expect(Manager::CopyLayer(&layer, made) == 1, "layers of a kind are copied");
    layers.AddLayer(made);
    layers.InsertLayer(Manager::CloneLayer(made), 0);
    expect(layers.GetLayer(0)->GetSeed() == made->GetSeed(), "a clone keeps the seed");
}
template <class... Layers, class Manager> void addKinds(Manager& layers) { (addKind<Manager, Layers>(layers), ...); }

void useLayout() {
    CChartLayout layout;
    layout.SetChartSize(640, 480);
    CChartString& text = layout.m_toolTipFormat;
    text += " and a text that is too long for any short buffer inside a string";
    text += text;
    text = text.data() + 3;
    expect(text.size() == std::strlen(text.data()), "a text ends in zero");
    expect(layout.m_backColor.GetChartColor(nullptr) == 0xFFFFFF, "a colour gives its number");
    expect(layout.m_effect.GetRaisedEffect() == 0, "an effect gives its number");
    fill(layout.m_titles, CChartTitle());
    copyAbout(layout, layout.m_backColor, layout.m_defaultFont, layout.m_effect, layout.m_xyPlotArea,
              layout.m_piePlotArea, layout.m_angularPlotArea, layout.m_linearPlotArea);
}

void useXYChart() {
    CXYChart chart;
    for (int i = 0; i < 3; i++) chart.m_axes.AddAxis(CXYChartAxisMgr::CreateAxis());
    chart.m_axes.GetAxis(2)->m_syncAxis = chart.m_axes.GetAxis(1);
    addKinds<CXYBarLayer, CXYLineLayer, CXYScatterLayer, CXYAreaLayer, CXYBoxWhiskerLayer, CXYBoxLayer, CXYHLOCLayer,
             CXYGanttLayer, CXYCandleStickLayer>(chart.m_layers);
    CXYChartLayer* first = chart.m_layers.GetLayer(0);
    first->m_yAxisKind = 16;
    first->m_yAxis = chart.m_axes.GetSafeAxis(0);
    CXYBarLayer bar;
    fill(bar.m_dataSetColors, CChartColor());
    CXYGanttLayer gantt;
    fill(gantt.m_groups, CBoxGroup());
    copyAbout(CXYChartLayer(), bar, gantt, chart, chart.m_axes, chart.m_layers, chart.m_xAxis, chart.m_xAxis.m_title);

    const CXYChart copy(chart);
    expect(copy.m_axes.GetAxis(2)->m_syncAxis == copy.m_axes.GetAxis(1), "a copy follows its own axes");
    expect(copy.m_layers.GetLayer(0)->m_yAxis == copy.m_axes.GetAxis(0), "so do its layers");
    chart.m_axes.DeleteAxis(1);
    chart.UpdateRelation();
    expect(chart.m_axes.GetAxis(1)->m_syncAxis == nullptr, "no axis follows one that is gone");
    chart.m_layers.DeleteLayer(0);
    chart.m_layers.DeleteContents();
    expect(chart.m_layers.empty() && copy.m_layers.GetLayerCount() == 18, "a copy owns its layers");
    delete CXYChartAxisMgr::CreateAxis();
    delete CXYChartLayerMgr::CreateLayer(0);
}

void useRoundCharts() {
    CPieChart pie;
    fill(pie.m_sectors, CPieChartSector());
    CPolarChart polar;
    CChartString label;
    label = "label";
    fill(polar.m_angularLabels, label);
    fill(polar.m_angularZones, CMeterZoneAngular());
    addKinds<CPolarLineLayer, CPolarSplineLineLayer, CPolarAreaLayer, CPolarSplineAreaLayer>(polar.m_layers);
    copyAbout(CPolarLayer(), polar.m_layers, polar.m_angularLabelStyle, polar.m_radialLabelStyle);
    polar.m_layers.DeleteLayer(3);
    CAngularMeter angular;
    fill(angular.m_zones, CMeterZoneAngular());
    fill(angular.m_texts, CChartTextBox());
    fill(angular.m_pointers, CMeterPointer());
    fill(angular.m_rings, CAngularRing());
    CLinearMeter linear;
    fill(linear.m_zones, CMeterZoneLinear());
    copyAbout(pie, polar, angular, linear, CFinanceChart());
}

/// Shows every editor; they wait for a user.
void edit() {
    CChartLayout layout;
    CXYChart xy;
    CPieChart pie;
    CFinanceChart finance;
    CAngularMeter angular;
    CLinearMeter linear;
    CPolarChart polar;
    const bool changed[] = {ShowChartLayoutWnd(layout),           ShowXYChartWnd(xy, layout),
                            ShowPieChartWnd(pie, layout),         ShowFinanceChartWnd(finance, layout),
                            ShowAngularMeterWnd(angular, layout), ShowLinearMeterWnd(linear, layout),
                            ShowPolarChartWnd(polar, layout)};
    for (bool ok : changed) std::puts(ok ? "changed" : "as it was");
}
} // namespace

int main(int count, char**) {
    useLayout();
    useXYChart();
    useRoundCharts();
    if (count > 1) // not in a test run, where nobody would answer
        edit();
    std::printf("%d failures\n", failures);
    return failures == 0 ? 0 : 1;
}
