#pragma once
// Polar charts: from model, layout and data to calls of the drawing surface.

#include "render/chart_holder.h"
#include "render/chart_preview.h"
#include <span>

/// What one layer shows. Only read during the call.
struct PolarData {
    std::span<const double> radii;
    std::span<const double> angles;      ///< As many; none are even steps around the chart.
    std::span<const double> symbolSizes; ///< Pixels, as many; used where the model scales its symbols.
};

/// A polar chart for the time of one drawing.
struct PolarHolder {
    PolarChart* polar;
    CChartHolder chart; // the same chart, owned
};

/// Makes an empty chart.
PolarHolder CreatePolarChart(const CChartLayout& layout);

/// Makes a chart with its place, grid and angular scale, and the dressing that goes under it.
PolarHolder BeginPolarChart(const CPolarChart& look, const CChartLayout& layout);

/// Adds one layer. A layer of no kind is left out.
void DrawPolarLayer(const PolarHolder& holder, const CPolarLayer& look, const CChartLayout& layout,
                    const PolarData& data);

/// The looks of a layer's data labels, if the layout shows them.
void DrawPolarDataLabels(BaseChart* chart, PolarLayer* layer, const CChartLayout& layout);

/// What comes after the layers. `empty`: there are none. `addSampleKey`: see DrawChartLegend.
void FinishPolarChart(const PolarHolder& holder, const CPolarChart& look, const CChartLayout& layout,
                      bool empty, bool addSampleKey);

/// The routine of PreviewPolarChart. Each layer's data are made up from its own seed: a copy of a layer shows
/// the same, and another layer others.
void DrawPolarChart(CChartPreview& view);
