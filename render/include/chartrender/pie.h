#pragma once

/// @file
/// Pies of the host's data.

#include <charteditors/chart_layout.h>
#include <charteditors/pie_chart.h>
#include <chartrender/picture.h>

/// The data of a pie. The arrays stay the host's, and are only read during the call.
struct CPieChartData {
    const double* values;      ///< One for each sector. Negative values and NaN have no sector.
    const char* const* labels; ///< As many; null, also for one of them, is the name of the model's sector.
    int count;                 ///< Of the values; colours and names of model sectors beyond it are not used.
};

/// Renders a pie of the host's data into `picture`. Sectors beyond those of the model have the default
/// colours.
CHARTRENDER_API ChartRenderResult RenderPieChart(const CPieChart& chart, const CChartLayout& layout,
                                                 const CPieChartData& data, ChartPictureFormat format,
                                                 CChartPicture& picture);
