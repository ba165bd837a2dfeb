#include "model/src/layer_family.h"
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

DEFINE_LAYER_MANAGER(CPolarLayerMgr, CPolarLayer, Family)
