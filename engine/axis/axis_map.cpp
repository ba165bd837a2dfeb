#include "engine/axis/axis_map.h"

#include <algorithm>

namespace chartdraw {

AxisMap AxisMap::tied(double slope, double intercept) const {
    AxisMap result = *this;
    result.m_tied = true;
    result.m_slope = slope;
    result.m_intercept = intercept;
    return result;
}

double AxisMap::value(double pixel) const {
    return m_upper != m_lower ? other(m_scale.value((pixel - m_lower) / (m_upper - m_lower))) : lower();
}

double AxisMap::lower() const {
    return std::min(other(m_scale.lower()), other(m_scale.upper()));
}

double AxisMap::upper() const {
    return std::max(other(m_scale.lower()), other(m_scale.upper()));
}

double AxisMap::clamp(double value) const {
    return other(m_scale.clamp(own(value)));
}

std::optional<AxisMap::Affine> AxisMap::affine() const {
    if (m_scale.kind() == ScaleKind::Log)
        return std::nullopt;
    const double slope = m_tied ? m_slope : 1;
    const double factor = (m_upper - m_lower) / (m_scale.upper() - m_scale.lower()) / slope;
    return Affine{m_lower - factor * other(m_scale.lower()), factor};
}

} // namespace chartdraw
