#pragma once
// The fields of the values that all kinds share.

#include "model/fields/field.h"
#include <charteditors/chart_color.h>
#include <charteditors/chart_effect.h>
#include <charteditors/chart_font.h>

namespace model {

template <>
struct FieldsOf<CChartColor> {
    static constexpr std::tuple table = {
        Field{"type", &CChartColor::m_type, words::colorType}, Field{"color", &CChartColor::m_color},
        Field{"direction", &CChartColor::m_direction}, Field{"patternFile", &CChartColor::m_patternFile}};
};

template <>
struct FieldsOf<CChartRaisedEffect> {
    static constexpr std::tuple table = {
        Field{"effectType", &CChartRaisedEffect::m_effectType, words::effectType},
        Field{"value", &CChartRaisedEffect::m_value},
        Field{"direction", &CChartRaisedEffect::m_direction, words::side}};
};

template <>
struct FieldsOf<CChartFont> {
    static constexpr std::tuple table = {Field{"faceName", &CChartFont::m_faceName},
                                         Field{"fileName", &CChartFont::m_fileName},
                                         Field{"size", &CChartFont::m_size}};
};

} // namespace model
