#include "model/src/layer_family.h"
#include "model/src/owned_list.h"
#include "model/src/value_class.h"
#include <charteditors/polar_chart.h>
#include <cstdlib>

namespace {

using Family = model::LayerFamily<CPolarLayer, CPolarLineLayer, CPolarSplineLineLayer, CPolarAreaLayer,
                                  CPolarSplineAreaLayer>;

} // namespace

CPolarLayer::CPolarLayer() : m_seed(std::rand()) {
    m_color.m_color = 0x33FF33;
    m_fillColor.m_color = 0xFF3333;
}
DEFINE_VALUE_CLASS(CPolarLayer)

int CPolarLayer::GetType() const {
    return m_type;
}

int CPolarLayer::GetSeed() const {
    return m_seed;
}

CPolarLineLayer::CPolarLineLayer() {
    m_type = 0;
}
DEFINE_VALUE_CLASS(CPolarLineLayer)

CPolarSplineLineLayer::CPolarSplineLineLayer() {
    m_type = 1;
}
DEFINE_VALUE_CLASS(CPolarSplineLineLayer)

CPolarAreaLayer::CPolarAreaLayer() {
    m_type = 2;
}
DEFINE_VALUE_CLASS(CPolarAreaLayer)

CPolarSplineAreaLayer::CPolarSplineAreaLayer() {
    m_type = 3;
}
DEFINE_VALUE_CLASS(CPolarSplineAreaLayer)

CPolarLayerMgr::CPolarLayerMgr() : m_layers(nullptr) {}

CPolarLayerMgr::CPolarLayerMgr(const CPolarLayerMgr& other) : CPolarLayerMgr() {
    *this = other;
}

CPolarLayerMgr& CPolarLayerMgr::operator=(const CPolarLayerMgr& other) {
    model::assignObjects<CPolarLayer>(m_layers, other.m_layers, Family::clone);
    return *this;
}

CPolarLayerMgr::~CPolarLayerMgr() {
    model::freeObjects<CPolarLayer>(m_layers);
}

void CPolarLayerMgr::DeleteContents() {
    model::clearObjects<CPolarLayer>(m_layers);
}

int CPolarLayerMgr::GetLayerCount() const {
    return model::countOf<CPolarLayer*>(m_layers);
}

CPolarLayer* CPolarLayerMgr::GetLayer(int index) const {
    return model::objectAt<CPolarLayer>(m_layers, index);
}

int CPolarLayerMgr::AddLayer(CPolarLayer* layer) {
    return model::addObject(m_layers, layer);
}

void CPolarLayerMgr::InsertLayer(CPolarLayer* layer, int index) {
    model::insertObject(m_layers, layer, index);
}

void CPolarLayerMgr::DeleteLayer(int index) {
    model::deleteObject<CPolarLayer>(m_layers, index);
}

CPolarLayer* CPolarLayerMgr::CreateLayer(int type) {
    return Family::orNull([&] { return Family::create(type); });
}

int CPolarLayerMgr::CopyLayer(CPolarLayer* from, CPolarLayer* to) {
    return from && to && Family::copy(*from, *to) ? 1 : 0;
}

CPolarLayer* CPolarLayerMgr::CloneLayer(CPolarLayer* layer) {
    return layer ? Family::orNull([&] { return Family::clone(*layer); }) : nullptr;
}
