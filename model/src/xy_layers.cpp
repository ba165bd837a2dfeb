#include "model/src/layer_family.h"
#include "model/src/value_class.h"
#include <charteditors/xy_layer.h>
#include <cstdlib>

namespace {

using Family =
    model::LayerFamily<CXYChartLayer, CXYBarLayer, CXYLineLayer, CXYScatterLayer, CXYAreaLayer,
                       CXYBoxWhiskerLayer, CXYBoxLayer, CXYHLOCLayer, CXYGanttLayer, CXYCandleStickLayer>;

} // namespace

CXYChartLayer::CXYChartLayer() : m_seed(std::rand()) {}
DEFINE_VALUE_CLASS(CXYChartLayer)

int CXYChartLayer::GetType() const {
    return m_type;
}

int CXYChartLayer::GetSeed() const {
    return m_seed;
}

CXYBarLayer::CXYBarLayer() {
    m_type = 0;
}
DEFINE_VALUE_CLASS(CXYBarLayer)

CXYLineLayer::CXYLineLayer() {
    m_type = 1;
    m_fillColor.m_color = 0xFF3333;
}
DEFINE_VALUE_CLASS(CXYLineLayer)

CXYScatterLayer::CXYScatterLayer() {
    m_type = 2;
    m_symbolColor.m_color = 0xFF3333;
}
DEFINE_VALUE_CLASS(CXYScatterLayer)

CXYAreaLayer::CXYAreaLayer() {
    m_type = 3;
    m_areaColor.m_color = 0xFF3333;
}
DEFINE_VALUE_CLASS(CXYAreaLayer)

CXYBoxWhiskerLayer::CXYBoxWhiskerLayer() {
    m_type = 4;
    m_fillColor.m_color = 0x9999FF;
    m_whiskerColor.m_color = 0xCC;
}
DEFINE_VALUE_CLASS(CXYBoxWhiskerLayer)

CBoxGroup::CBoxGroup() {
    m_color.m_color = 0xFF00;
}
DEFINE_VALUE_CLASS(CBoxGroup)

CXYBoxLayer::CXYBoxLayer() {
    m_type = 5;
}
DEFINE_VALUE_CLASS(CXYBoxLayer)

CXYHLOCLayer::CXYHLOCLayer() {
    m_type = 6;
    m_upColor.m_color = 0x8000;
    m_downColor.m_color = 0xFF0000;
}
DEFINE_VALUE_CLASS(CXYHLOCLayer)

CXYGanttLayer::CXYGanttLayer() {
    m_type = 7;
}
DEFINE_VALUE_CLASS(CXYGanttLayer)

CXYCandleStickLayer::CXYCandleStickLayer() {
    m_type = 8;
    m_riseColor.m_color = 0xFF00;
    m_fallColor.m_color = 0xFF0000;
}
DEFINE_VALUE_CLASS(CXYCandleStickLayer)

DEFINE_LAYER_MANAGER(CXYChartLayerMgr, CXYChartLayer, Family)

bool CXYChartLayerMgr::empty() const {
    return GetLayerCount() == 0;
}

void CXYChartLayerMgr::SetLayer(CXYChartLayer* layer, int index) {
    model::setObject(m_layers, layer, index);
}
