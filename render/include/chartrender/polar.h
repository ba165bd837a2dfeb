#pragma once

/// @file
/// Polar charts of the host's data.
///
///     const double angles[] = {0, 120, 240}, radii[] = {4.5, 2, 3};
///     CPolarLayerData line; // of layer 0
///     line.angles = angles, line.radii = radii, line.count = 3;
///     CPolarChartData data;
///     data.layers = &line, data.layerCount = 1;
///     RenderPolarChart(chart, layout, data, ChartPictureFormat::Png, picture);

#include <charteditors/chart_layout.h>
#include <charteditors/polar_chart.h>
#include <chartrender/picture.h>

/// What one layer of the model shows. The arrays stay the host's, and are only read during the call.
struct CPolarLayerData {
    std::size_t size = sizeof(CPolarLayerData); ///< Of this structure, in bytes; to be left as it is.
    int layer = 0;                  ///< Its index in the model's m_layers. At most one of these for each.
    const double* radii = nullptr;  ///< In the unit of the radial scale; 1.7E308 or NaN is missing, a gap.
    const double* angles = nullptr; ///< In the unit of the angular scale; null: even steps around the chart.
    const double* symbolSizes = nullptr; ///< Pixels, used if the model's m_useSymbolScale is on; null: all
                                         ///< have the model's size.
    int count = 0;                       ///< Of each of the arrays.
};

/// The data of a polar chart.
struct CPolarChartData {
    std::size_t size = sizeof(CPolarChartData); ///< Of this structure, in bytes; to be left as it is.
    const CPolarLayerData* layers = nullptr; ///< In any order; layers that are not among them draw nothing.
    int layerCount = 0;                      ///< Entries of `layers`.
};

/// Renders a polar chart of the host's data into `picture`. What a preview adds to show a setting, such as
/// the key of an empty legend, is left out.
///
/// BadData: a `size` below that of this header, a count below 0, an array missing where there is one, a
/// layer's index that is not there, or two entries for one layer.
CHARTRENDER_API ChartRenderResult RenderPolarChart(const CPolarChart& chart, const CChartLayout& layout,
                                                   const CPolarChartData& data, ChartPictureFormat format,
                                                   CChartPicture& picture);
