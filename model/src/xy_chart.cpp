#include "model/src/value_class.h"
#include <charteditors/xy_chart.h>
#include <initializer_list>

namespace {

/// Calls `change` for every pointer to an additional axis that a chart keeps true.
template <class Change>
void forEachRelation(CXYChart& chart, Change change) {
    for (int i = 0; i < chart.m_layers.GetLayerCount(); i++)
        if (CXYChartLayer* layer = chart.m_layers.GetLayer(i))
            change(layer->m_yAxis);
    change(chart.m_x2Axis.m_syncAxis);
    change(chart.m_y2Axis.m_syncAxis);
    for (int i = 0; i < chart.m_axes.GetAxisCount(); i++)
        if (CXYChartAxis* axis = chart.m_axes.GetAxis(i))
            change(axis->m_syncAxis);
}

/// Every field but the additional axes and the layers.
void copyLook(CXYChart& to, const CXYChart& from) {
    to.m_majorHGridColor = from.m_majorHGridColor;
    to.m_majorVGridColor = from.m_majorVGridColor;
    to.m_minorHGridColor = from.m_minorHGridColor;
    to.m_minorVGridColor = from.m_minorVGridColor;
    to.m_majorHGridWidth = from.m_majorHGridWidth;
    to.m_majorVGridWidth = from.m_majorVGridWidth;
    to.m_minorHGridWidth = from.m_minorHGridWidth;
    to.m_minorVGridWidth = from.m_minorVGridWidth;
    to.m_lineColor = from.m_lineColor;
    to.m_lineWidth = from.m_lineWidth;
    to.m_useBackground = from.m_useBackground;
    to.m_backgroundType = from.m_backgroundType;
    to.m_edgeColor = from.m_edgeColor;
    to.m_backColor = from.m_backColor;
    to.m_altColor = from.m_altColor;
    to.m_backImage = from.m_backImage;
    to.m_q1Color = from.m_q1Color;
    to.m_q2Color = from.m_q2Color;
    to.m_q3Color = from.m_q3Color;
    to.m_q4Color = from.m_q4Color;
    to.m_swapXY = from.m_swapXY;
    to.m_xAxis = from.m_xAxis;
    to.m_yAxis = from.m_yAxis;
    to.m_useX2Axis = from.m_useX2Axis;
    to.m_x2Axis = from.m_x2Axis;
    to.m_useY2Axis = from.m_useY2Axis;
    to.m_y2Axis = from.m_y2Axis;
    to.m_show3D = from.m_show3D;
    to.m_depth = from.m_depth;
    to.m_zGap = from.m_zGap;
}

} // namespace

CXYChart::CXYChart() {
    m_majorHGridColor.m_color = 0xC0C0C0;
    m_majorVGridColor.m_color = model::transparent;
    m_minorHGridColor = m_majorHGridColor;
    m_minorVGridColor = m_majorVGridColor;
    for (CChartColor* color : {&m_backColor, &m_altColor, &m_q1Color, &m_q2Color, &m_q3Color, &m_q4Color})
        color->m_color = 0xFFFFFF;
    m_xAxis.m_location = 2;
    m_xAxis.m_scaleType = 1;
    m_yAxis.m_location = 4;
    m_yAxis.m_scaleType = 1;
    m_x2Axis.m_location = 8;
    m_x2Axis.m_syncKind = 1;
    m_y2Axis.m_location = 6;
    m_y2Axis.m_syncKind = 2;
}

CXYChart::CXYChart(const CXYChart& other) : CXYChart() {
    *this = other;
}

CXYChart::~CXYChart() = default;

CXYChart& CXYChart::operator=(const CXYChart& other) {
    if (this == &other)
        return *this;
    try {
        copyLook(*this, other);
        m_axes = other.m_axes;
        m_layers = other.m_layers;
    } catch (...) {
        UpdateRelation(); // a half-made copy must not name the source's axes
        throw;
    }
    forEachRelation(*this,
                    [&](CXYChartAxis*& axis) { axis = m_axes.GetSafeAxis(other.m_axes.GetAxisIndex(axis)); });
    return *this;
}

void CXYChart::UpdateRelation() {
    forEachRelation(
        *this, [&](CXYChartAxis*& axis) { axis = m_axes.SafeAxis(axis); });
}
