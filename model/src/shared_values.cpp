// Colours, fonts and effects, and the numbers that the drawing library takes for them.

#include "model/src/value_class.h"
#include "platform/narrow_text.h"
#include "resources/string_table.h"
#include <chartdraw/surface.h>
#include <charteditors/chart_color.h>
#include <charteditors/chart_effect.h>
#include <charteditors/chart_font.h>

CChartColor::CChartColor() = default;
DEFINE_VALUE_CLASS(CChartColor)

int CChartColor::GetChartColor(BaseChart* chart) const {
    switch (m_type) {
    case 0:
        return static_cast<int>(m_color);
    case 1:
        return chart ? CBaseChart_patternColor2(chart, platform::NarrowToUtf8(m_patternFile.data()).c_str(),
                                                0, 0)
                     : 0;
    case 2:
        return CChart_metalColor(static_cast<int>(m_color), m_direction);
    default:
        return 0;
    }
}

CChartFont::CChartFont() {
    m_faceName = LoadChartString(ChartText::DefaultFace);
    m_fileName = LoadChartString(ChartText::DefaultFile);
}
DEFINE_VALUE_CLASS(CChartFont)

DEFINE_RECORD(CChartRaisedEffect)

int CChartRaisedEffect::GetRaisedEffect() const {
    switch (m_effectType) {
    case 1:
        return CChart_softLighting(m_direction, m_value);
    case 2:
    case 3:
        return CChart_glassEffect(m_effectType, m_direction, m_value);
    default:
        return m_value;
    }
}
