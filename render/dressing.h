#pragma once
// What charts of every kind have in common: background, titles, legend, and the looks of data labels.

#include <chartdraw/surface.h>
#include <charteditors/chart_layout.h>

/// Background, edge, wallpaper, frame and default fonts. To be called first, right after the geometry is set.
void DrawChartBackground(BaseChart* chart, const CChartLayout& layout);

/// The titles that are shown, in their order.
void DrawChartTitles(BaseChart* chart, const CChartLayout& layout);

/// The legend, if it is shown. `addSampleKey`: one key more, so that a chart without named series has a
/// legend to look at.
void DrawChartLegend(BaseChart* chart, const CChartLayout& layout, bool addSampleKey);

/// Gives a text box that a label style operation returned the looks of the layout's data labels.
void DressLabelBox(BaseChart* chart, const CChartLayout& layout, TextBox* textBox);

/// Background, edge and effect of any box; the colours are resolved in this order, against `chart`.
void SetBoxBackground(BaseChart* chart, Box* box, const CChartColor& background, const CChartColor& edge,
                      const CChartRaisedEffect& effect);
