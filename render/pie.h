#pragma once
// Pies: from model, layout and data to calls of the drawing surface.

#include "render/chart_holder.h"
#include "render/chart_preview.h"
#include <span>

/// What a pie shows: a value for each sector, and its label in UTF-8. Only read during the call.
struct PieData {
    std::span<const double> values;
    std::span<const char* const> labels;
};

/// A pie for the time of one drawing.
struct PieHolder {
    PieChart* pie;
    CChartHolder chart; // the same pie, owned
};

/// Makes a pie with its place and the dressing that goes under it.
PieHolder BeginPieChart(const CChartLayout& layout);

void SetPieData(PieChart* pie, const PieData& data);

/// The looks of the labels; null if the layout shows none.
TextBox* DrawPieLabels(const PieHolder& holder, const CChartLayout& layout);

/// Gives the pie its data and all that the models say of labels, legend, shape and sectors.
void FinishPieChart(const PieHolder& holder, const CPieChart& look, const CChartLayout& layout,
                    const PieData& data);

/// The routine of PreviewPieChart. Its data are made up: a value for each sector of the model, or five.
void DrawPieChart(CChartPreview& view);
