// The kinds of one body a row: boxes, prices, and the bars of plans.

#include "render/utf8_text.h"
#include "render/xy_layers.h"
#include <algorithm>
#include <string>
#include <vector>

static void NameFirstSet(Layer* layer, const CXYChartLayer& look) {
    CDataSet_setDataName(CLayer_getDataSet(layer, 0), CUtf8Text(look.m_name));
}

static void ColorAndNameFirstSet(Layer* layer, const CXYChartLayer& look, int color) {
    DataSet* dataSet = CLayer_getDataSet(layer, 0);
    CDataSet_setDataColor(dataSet, color, CHART_DEFAULT_COLOR, CHART_DEFAULT_COLOR, CHART_DEFAULT_COLOR);
    CDataSet_setDataName(dataSet, CUtf8Text(look.m_name));
}

static BoxWhiskerLayer* AddBoxWhiskerLayer(XYChart* chart, const XYBoxes& boxes, int fill, int whisker) {
    return CXYChart_addBoxWhiskerLayer(chart, boxes.top.data(), Count(boxes.top), boxes.bottom.data(),
                                       Count(boxes.bottom), boxes.maximum.data(), Count(boxes.maximum),
                                       boxes.minimum.data(), Count(boxes.minimum), boxes.middle.data(),
                                       Count(boxes.middle), fill, whisker, CHART_DEFAULT_COLOR);
}

static Layer* BoxWhiskerLayer2Layer(BoxWhiskerLayer* layer) {
    return BaseBoxLayer2Layer(BoxWhiskerLayer2BaseBoxLayer(layer));
}

Layer* AddBoxWhiskers(const XYLayerScene& scene, const CXYBoxWhiskerLayer& look, CXYLayerSource& data) {
    const XYBoxes boxes = data.WhiskerBoxes();
    const int fillColor = look.m_fillColor.GetChartColor(scene.Base());
    const int whiskerColor = look.m_whiskerColor.GetChartColor(scene.Base());
    Layer* layer = BoxWhiskerLayer2Layer(AddBoxWhiskerLayer(scene.Chart(), boxes, fillColor, whiskerColor));
    NameFirstSet(layer, look);
    return layer;
}

Layer* AddBoxes(const XYLayerScene& scene, const CXYBoxLayer& look, CXYLayerSource& data) {
    const XYBoxes boxes = data.Boxes();
    return BoxWhiskerLayer2Layer(CXYChart_addBoxLayer(
        scene.Chart(), boxes.top.data(), Count(boxes.top), boxes.bottom.data(), Count(boxes.bottom),
        look.m_group.m_color.GetChartColor(scene.Base()), CUtf8Text(look.m_name)));
}

Layer* AddPriceBars(const XYLayerScene& scene, const CXYHLOCLayer& look, CXYLayerSource& data) {
    const XYPrices prices = data.Prices();
    HLOCLayer* bars =
        CXYChart_addHLOCLayer(scene.Chart(), prices.high.data(), Count(prices.high), prices.low.data(),
                              Count(prices.low), prices.open.data(), Count(prices.open), prices.close.data(),
                              Count(prices.close), CHART_DEFAULT_COLOR);
    const int upColor = look.m_upColor.GetChartColor(scene.Base());
    const int downColor = look.m_downColor.GetChartColor(scene.Base());
    CHLOCLayer_setColorMethod(bars, CHART_UP_DOWN, upColor, downColor, -CHART_NO_VALUE);
    Layer* layer = BaseBoxLayer2Layer(HLOCLayer2BaseBoxLayer(bars));
    ColorAndNameFirstSet(layer, look, data.SeriesColor(0));
    return layer;
}

Layer* AddCandles(const XYLayerScene& scene, const CXYCandleStickLayer& look, CXYLayerSource& data) {
    const XYPrices prices = data.Prices();
    const int riseColor = look.m_riseColor.GetChartColor(scene.Base());
    const int fallColor = look.m_fallColor.GetChartColor(scene.Base());
    Layer* layer = BaseBoxLayer2Layer(CandleStickLayer2BaseBoxLayer(CXYChart_addCandleStickLayer(
        scene.Chart(), prices.high.data(), Count(prices.high), prices.low.data(), Count(prices.low),
        prices.open.data(), Count(prices.open), prices.close.data(), Count(prices.close), riseColor,
        fallColor, CHART_LINE_COLOR)));
    NameFirstSet(layer, look);
    return layer;
}

namespace {

/// What a plan's groups look like. Groups without any name show the layer's.
struct TaskGroups {
    TaskGroups(BaseChart* chart, const CXYGanttLayer& look) {
        for (int i = 0; i < look.m_groups.size(); ++i) {
            colors.push_back(look.m_groups[i].m_color.GetChartColor(chart));
            names.emplace_back(CUtf8Text(look.m_groups[i].m_name));
        }
        const auto empty = [](const std::string& name) { return name.empty(); };
        if (!names.empty() && std::all_of(names.begin(), names.end(), empty))
            names.front() = CUtf8Text(look.m_name);
    }

    std::vector<int> colors;
    std::vector<std::string> names;
};

} // namespace

/// Each bar takes the colour of its group, and the first one of a group its name.
static void ColorTasks(BoxWhiskerLayer* boxes, const TaskGroups& groups, const XYTasks& tasks) {
    std::vector<int> colors;
    std::vector<const char*> names;
    std::vector<bool> named(groups.names.size(), false);
    for (std::size_t i = 0; i < tasks.end.size(); ++i) {
        const std::size_t group = tasks.groups.empty() ? i : static_cast<std::size_t>(tasks.groups[i]);
        const bool known = group < groups.names.size();
        colors.push_back(known ? groups.colors[group] : CHART_DEFAULT_COLOR);
        names.push_back(known && !named[group] ? groups.names[group].c_str() : "");
        if (known)
            named[group] = true;
    }
    CBoxWhiskerLayer_setBoxColors(boxes, colors.data(), static_cast<int>(std::ssize(colors)), names.data(),
                                  static_cast<int>(std::ssize(names)));
}

Layer* AddTasks(const XYLayerScene& scene, const CXYGanttLayer& look, CXYLayerSource& data) {
    CXYChart_swapXY(scene.Chart(), true); // whatever the chart says: bars of a plan lie
    const TaskGroups groups(scene.Base(), look);
    auto tasks = data.Tasks(look.m_groups.size());
    BoxWhiskerLayer* boxes = AddBoxWhiskerLayer(scene.Chart(), {tasks->end, tasks->start, {}, {}, {}},
                                                CHART_DEFAULT_COLOR, CHART_LINE_COLOR);
    if (!groups.names.empty())
        ColorTasks(boxes, groups, *tasks);
    tasks.reset();
    Layer* layer = BoxWhiskerLayer2Layer(boxes);
    ColorAndNameFirstSet(layer, look, data.SeriesColor(0));
    return layer;
}
