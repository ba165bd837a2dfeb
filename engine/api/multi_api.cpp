// Operations of multi-charts.

#include "engine/api/call.h"
#include "engine/api/convert.h"
#include "engine/multi/multi_chart.h"
#include <chartdraw/surface.h>

using chartdraw::createChart;
using chartdraw::edit;
using chartdraw::object;

extern "C" {

MultiChart* CMultiChart_create(int width, int height, int background, int edge, int effect) {
    return createChart<chartdraw::MultiChart, MultiChart>(width, height, background, edge, effect);
}

void CMultiChart_addChart(MultiChart* multi, int x, int y, BaseChart* chart) {
    return edit(
        multi,
        [&](chartdraw::MultiChart& target) {
            if (auto* added = object<chartdraw::Chart>(chart))
                target.addChart({x, y}, *added);
        });
}

void CMultiChart_setMainChart(MultiChart* multi, BaseChart* chart) {
    return edit(
        multi, [&](chartdraw::MultiChart& target) { target.setMainChart(object<chartdraw::Chart>(chart)); });
}

} // extern "C"
