#pragma once

#include "tests/driver/manners.h"

namespace xy_test {
inline void GiveLook(CXYChartAxis& axis) {
    axis.m_title.m_show = true;
    axis.m_title.m_text = "Revenue";
    axis.m_title.m_usePosition = true;
    axis.m_title.m_useAngle = true;
    for (CChartColor* color : {&axis.m_labelFontColor, &axis.m_title.m_fontColor}) color->m_color = 0x993300;
    for (CChartColor* color : {&axis.m_labelBackColor, &axis.m_title.m_backColor}) color->m_color = 0x99CCFF;
    for (CChartColor* color : {&axis.m_labelEdgeColor, &axis.m_title.m_edgeColor}) color->m_color = 0x336699;
    for (CChartRaisedEffect* effect : {&axis.m_labelEffect, &axis.m_title.m_effect}) {
        effect->m_effectType = 1; // soft lighting
        effect->m_value = 5;
    }
}

/// An additional axis at the right, which the chart owns.
inline CXYChartAxis& AddAxis(CXYChart& chart) {
    CXYChartAxis* axis = CXYChartAxisMgr::CreateAxis();
    axis->m_location = 6;
    axis->m_offset = 30;
    chart.m_axes.AddAxis(axis);
    return *axis;
}

inline CXYChartLayer& AddLayer(CXYChart& chart, int type, const char* name = "") {
    CXYChartLayer* layer = CXYChartLayerMgr::CreateLayer(type);
    layer->m_seed = 7;
    layer->m_name = name;
    chart.m_layers.AddLayer(layer);
    return *layer;
}

/// A chart with one layer of that kind and an additional axis.
inline CXYChart ChartOf(int layerType) {
    CXYChart chart;
    GiveLook(chart.m_yAxis);
    GiveLook(AddAxis(chart));
    AddLayer(chart, layerType);
    chart.m_useBackground = true;
    return chart;
}
} // namespace xy_test
