// Operations of multi-charts.

#include "engine/api/convert.h"
#include "engine/multi/multi_chart.h"
#include <chartdraw/surface.h>

using chartdraw::edit;
using chartdraw::handle;
using chartdraw::object;
using chartdraw::toColour;

extern "C" {

MultiChart* CMultiChart_create(int width, int height, int background, int edge, int effect) {
    return handle<MultiChart>(new chartdraw::MultiChart(
        width, height, chartdraw::orDefault(toColour(background), chartdraw::kBackgroundColour),
        chartdraw::orDefault(toColour(edge), chartdraw::kTransparent), effect));
}

void CMultiChart_addChart(MultiChart* multi, int x, int y, BaseChart* chart) {
    auto* target = edit<chartdraw::MultiChart>(multi);
    auto* added = object<chartdraw::Chart>(chart);
    if (target != nullptr && added != nullptr)
        target->addChart({x, y}, *added);
}

void CMultiChart_setMainChart(MultiChart* multi, BaseChart* chart) {
    if (auto* target = edit<chartdraw::MultiChart>(multi))
        target->setMainChart(object<chartdraw::Chart>(chart));
}

} // extern "C"
