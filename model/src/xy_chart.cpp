#include "model/fields/xy.h"
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
        model::EachField(
            other, [&](const auto& field, const auto& value) { this->*field.member = value; });
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
