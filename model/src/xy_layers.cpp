#include "model/src/layer_family.h"
#include "model/src/owned_list.h"
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

CXYChartLayerMgr::CXYChartLayerMgr() : m_layers(nullptr) {}

CXYChartLayerMgr::CXYChartLayerMgr(const CXYChartLayerMgr& other) : CXYChartLayerMgr() {
    *this = other;
}

CXYChartLayerMgr& CXYChartLayerMgr::operator=(const CXYChartLayerMgr& other) {
    model::assignObjects<CXYChartLayer>(m_layers, other.m_layers, Family::clone);
    return *this;
}

CXYChartLayerMgr::~CXYChartLayerMgr() {
    model::freeObjects<CXYChartLayer>(m_layers);
}

void CXYChartLayerMgr::DeleteContents() {
    model::clearObjects<CXYChartLayer>(m_layers);
}

int CXYChartLayerMgr::GetLayerCount() const {
    return model::countOf<CXYChartLayer*>(m_layers);
}

bool CXYChartLayerMgr::empty() const {
    return GetLayerCount() == 0;
}

CXYChartLayer* CXYChartLayerMgr::GetLayer(int index) const {
    return model::objectAt<CXYChartLayer>(m_layers, index);
}

int CXYChartLayerMgr::AddLayer(CXYChartLayer* layer) {
    return model::addObject(m_layers, layer);
}

void CXYChartLayerMgr::InsertLayer(CXYChartLayer* layer, int index) {
    model::insertObject(m_layers, layer, index);
}

void CXYChartLayerMgr::SetLayer(CXYChartLayer* layer, int index) {
    model::setObject(m_layers, layer, index);
}

void CXYChartLayerMgr::DeleteLayer(int index) {
    model::deleteObject<CXYChartLayer>(m_layers, index);
}

CXYChartLayer* CXYChartLayerMgr::CreateLayer(int type) {
    return Family::orNull([&] { return Family::create(type); });
}

int CXYChartLayerMgr::CopyLayer(CXYChartLayer* from, CXYChartLayer* to) {
    return from && to && Family::copy(*from, *to) ? 1 : 0;
}

CXYChartLayer* CXYChartLayerMgr::CloneLayer(CXYChartLayer* layer) {
    return layer ? Family::orNull([&] { return Family::clone(*layer); }) : nullptr;
}
