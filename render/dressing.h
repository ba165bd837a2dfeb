#pragma once
// What charts of every kind have in common: background, titles, legend, and the looks of data labels.

#include <chartdraw/surface.h>
#include <charteditors/chart_layout.h>

/// Background, edge, wallpaper, frame and default fonts. To be called first, right after the geometry is set.
void DrawChartBackground(BaseChart* chart, const CChartLayout& layout);

/// The titles that are shown, in their order.
void DrawChartTitles(BaseChart* chart, const CChartLayout& layout);

/// How many pixels at the top of a chart the titles take that stack there.
int TopTitleRoom(const CChartLayout& layout);

/// The legend, if it is shown. `addSampleKey`: one key more, so that a chart without named series has a
/// legend to look at.
void DrawChartLegend(BaseChart* chart, const CChartLayout& layout, bool addSampleKey);

/// Gives a text box that a label style operation returned the looks of the layout's data labels.
void DressLabelBox(BaseChart* chart, const CChartLayout& layout, TextBox* textBox);

/// Background, edge and effect of any box; the colours are resolved in this order, against `chart`.
void SetBoxBackground(BaseChart* chart, Box* box, const CChartColor& background, const CChartColor& edge,
                      const CChartRaisedEffect& effect);

/// The colours of a shape.
struct FillAndEdge {
    int fill;
    int edge;
};

/// Resolves two colours against `chart`, the fill first.
FillAndEdge ResolveColors(BaseChart* chart, const CChartColor& fill, const CChartColor& edge);

/// Gives a text box the colours, effect and angle of its place in a model: a title, a text, a label style.
/// The box, as Box.
template <class Style>
Box* DressTextBox(BaseChart* chart, TextBox* textBox, const Style& style) {
    Box* box = TextBox2Box(textBox);
    SetBoxBackground(chart, box, style.m_backColor, style.m_edgeColor, style.m_effect);
    CTextBox_setFontAngle(textBox, style.m_angle, style.m_vertical);
    return box;
}
