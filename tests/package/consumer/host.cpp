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
template <class Object>
void copyAbout(const Object& object) {
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

/// Fills a list, moves about in it, and copies it over longer and shorter ones.
template <class List, class Element>
void fill(List& list, const Element& element) {
    for (int i = 0; i < 5; i++)
        list.push_back(element);
    list.push_back(list[0]);
    list.erase(list.begin() + 1);
    expect(list.size() == 5 && !list.empty(), "a list holds what was put in");
    List shorter;
    shorter.push_back(element);
    shorter = list;
    shorter.erase(0);
    list = shorter;
    const List& constant = list;
    copyAbout(constant[3]);
    copyAbout(list);
}

template <class Layer>
void addKind(CXYChart& chart) {
    Layer layer;
    layer.m_name = "kind";
    copyAbout(layer);
    CXYChartLayer* made = CXYChartLayerMgr::CreateLayer(layer.GetType());
    expect(CXYChartLayerMgr::CopyLayer(&layer, made) == 1, "layers of a kind are copied");
    made->m_yAxisKind = 16;
    made->m_yAxis = chart.m_axes.GetSafeAxis(0);
    chart.m_layers.AddLayer(made);
    chart.m_layers.InsertLayer(CXYChartLayerMgr::CloneLayer(made), 0);
    expect(chart.m_layers.GetLayer(0)->GetSeed() == made->GetSeed(), "a clone keeps the seed");
}

template <class Layer>
void addKind(CPolarChart& chart) {
    Layer layer;
    layer.m_name = "kind";
    copyAbout(layer);
    CPolarLayer* made = CPolarLayerMgr::CreateLayer(layer.GetType());
    expect(CPolarLayerMgr::CopyLayer(&layer, made) == 1, "layers of a kind are copied");
    chart.m_layers.AddLayer(made);
    chart.m_layers.InsertLayer(CPolarLayerMgr::CloneLayer(made), 0);
}

void useLayout() {
    CChartLayout layout;
    layout.SetChartSize(640, 480);
    layout.m_toolTipFormat += " and a text that is too long for any short buffer inside a string";
    layout.m_toolTipFormat += layout.m_toolTipFormat;
    layout.m_toolTipFormat = layout.m_toolTipFormat.data() + 3;
    expect(layout.m_toolTipFormat.size() == std::strlen(layout.m_toolTipFormat.data()), "a text ends in zero");
    expect(layout.m_backColor.GetChartColor(nullptr) == 0xFFFFFF, "a colour gives its number");
    expect(layout.m_effect.GetRaisedEffect() == 0, "an effect gives its number");
    fill(layout.m_titles, CChartTitle());
    copyAbout(layout);
    copyAbout(layout.m_backColor);
    copyAbout(layout.m_defaultFont);
    copyAbout(layout.m_effect);
    copyAbout(layout.m_xyPlotArea);
    copyAbout(layout.m_piePlotArea);
    copyAbout(layout.m_angularPlotArea);
    copyAbout(layout.m_linearPlotArea);
}

void useXYChart() {
    CXYChart chart;
    for (int i = 0; i < 3; i++)
        chart.m_axes.AddAxis(CXYChartAxisMgr::CreateAxis());
    chart.m_axes.GetAxis(2)->m_syncAxis = chart.m_axes.GetAxis(1);
    copyAbout(chart.m_xAxis);
    copyAbout(chart.m_xAxis.m_title);
    addKind<CXYBarLayer>(chart);
    addKind<CXYLineLayer>(chart);
    addKind<CXYScatterLayer>(chart);
    addKind<CXYAreaLayer>(chart);
    addKind<CXYBoxWhiskerLayer>(chart);
    addKind<CXYBoxLayer>(chart);
    addKind<CXYHLOCLayer>(chart);
    addKind<CXYGanttLayer>(chart);
    addKind<CXYCandleStickLayer>(chart);
    copyAbout(CXYChartLayer());
    CXYBarLayer bar;
    fill(bar.m_dataSetColors, CChartColor());
    copyAbout(bar);
    CXYGanttLayer gantt;
    fill(gantt.m_groups, CBoxGroup());
    copyAbout(gantt);
    copyAbout(chart);
    copyAbout(chart.m_axes);
    copyAbout(chart.m_layers);

    const CXYChart copy(chart);
    expect(copy.m_axes.GetAxis(2)->m_syncAxis == copy.m_axes.GetAxis(1), "a copy follows its own axes");
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
    copyAbout(pie);

    CPolarChart polar;
    CChartString label;
    label = "label";
    fill(polar.m_angularLabels, label);
    fill(polar.m_angularZones, CMeterZoneAngular());
    copyAbout(polar.m_angularLabelStyle);
    copyAbout(polar.m_radialLabelStyle);
    addKind<CPolarLineLayer>(polar);
    addKind<CPolarSplineLineLayer>(polar);
    addKind<CPolarAreaLayer>(polar);
    addKind<CPolarSplineAreaLayer>(polar);
    copyAbout(CPolarLayer());
    copyAbout(polar.m_layers);
    polar.m_layers.DeleteLayer(3);
    copyAbout(polar);

    CAngularMeter angular;
    fill(angular.m_zones, CMeterZoneAngular());
    fill(angular.m_texts, CChartTextBox());
    fill(angular.m_pointers, CMeterPointer());
    fill(angular.m_rings, CAngularRing());
    copyAbout(angular);
    CLinearMeter linear;
    fill(linear.m_zones, CMeterZoneLinear());
    copyAbout(linear);
    copyAbout(CFinanceChart());
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
    for (bool ok : changed)
        std::puts(ok ? "changed" : "as it was");
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
