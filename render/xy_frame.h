#pragma once
// XY charts: from model, layout and data to calls of the drawing surface.

#include "render/chart_holder.h"
#include "render/chart_preview.h"
#include "render/xy_source.h"

/// Makes a chart of `layers`, which are layers of `look`, and nothing of its others.
CChartHolder MakeXYChart(const CXYChart& look, const CChartLayout& layout,
                         std::span<const CXYChartLayer* const> layers, CXYSource& data);

/// All layers of a chart, in their order.
std::vector<const CXYChartLayer*> LayersOf(const CXYChart& look);

/// The routine of PreviewXYChart, of made-up data. In single-layer mode, all but the one layer is left out.
void DrawXYChart(CChartPreview& view);
