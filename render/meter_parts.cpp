#include "render/meter_parts.h"
#include "render/dressing.h"
#include "render/utf8_text.h"

void DrawMeterTexts(BaseChart* chart, const CChartTextBoxs& texts) {
    for (int i = 0; i < texts.size(); ++i) {
        const CChartTextBox& text = texts[i];
        // The angle comes with the dressing.
        TextBox* textBox = CBaseChart_addText(
            chart, text.m_x, text.m_y, CUtf8Text(text.m_text), CUtf8Text(text.m_font.m_fileName),
            text.m_font.m_size, text.m_fontColor.GetChartColor(chart), text.m_alignment, 0.0, false);
        DressTextBox(chart, textBox, text);
    }
}

void DrawMeterPointers(BaseMeter* meter, BaseChart* chart, const CMeterPointers& pointers,
                       std::span<const double> values) {
    for (int i = 0; i < pointers.size(); ++i) {
        const CMeterPointer& look = pointers[i];
        const auto [fill, edge] = ResolveColors(chart, look.m_fillColor, look.m_edgeColor);
        const double value = i < std::ssize(values) ? values[static_cast<std::size_t>(i)] : look.m_value;
        MeterPointer* pointer = CBaseMeter_addPointer(meter, value, fill, edge);
        CMeterPointer_setShape(pointer, look.m_shape, look.m_lengthRatio, look.m_widthRatio);
    }
}

void DrawMeterLabelStyle(BaseMeter* meter, BaseChart* chart, const CMeterLabelStyle& style) {
    TextBox* textBox =
        CBaseMeter_setLabelStyle(meter, CUtf8Text(style.m_font.m_fileName), style.m_font.m_size,
                                 style.m_fontColor.GetChartColor(chart), 0.0);
    DressTextBox(chart, textBox, style);
}
