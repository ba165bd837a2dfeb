#pragma once

/// @file
/// XY charts of the host's data.
///
///     const double north[] = {25, 18, 31}, south[] = {12, 27, 19};
///     const char* months[] = {"Jan", "Feb", "Mar"};
///     CXYSeriesData sets[2];
///     sets[0].name = "North", sets[0].values = north, sets[0].count = 3;
///     sets[1].name = "South", sets[1].values = south, sets[1].count = 3;
///     CXYLayerData bars; // of layer 0, the bars
///     bars.series = sets, bars.seriesCount = 2;
///     CXYChartData data;
///     data.rowCount = 3, data.labels = months, data.layers = &bars, data.layerCount = 1;
///     RenderXYChart(chart, layout, data, ChartPictureFormat::Png, picture);
///
/// All arrays stay the host's, and are only read during the call. A value of 1.7E308 or NaN is missing: the
/// row has a gap. Names are null where there is none. Structures begin with their size, which their
/// constructor sets, so that fields can be added.

#include <charteditors/chart_layout.h>
#include <charteditors/xy_chart.h>
#include <chartrender/picture.h>

/// One data set of bars, lines or areas.
struct CXYSeriesData {
    std::size_t size = sizeof(CXYSeriesData); ///< Of the structure, set by its constructor.
    const char* name = nullptr;               ///< In the legend; null is the name of the layer.
    const double* values = nullptr;           ///< One for each row.
    int count = 0;                            ///< Of the values; must be the number of rows.
};

/// The bar of one task of a plan.
struct CXYTaskData {
    std::size_t size = sizeof(CXYTaskData); ///< Of the structure, set by its constructor.
    int row = 0;                            ///< Below the number of rows. Several tasks may stand in one.
    double start = 0;                       ///< Often chart times.
    double end = 0;                         ///< As the start; not before it.
};

/// What one layer of the model shows. Only the fields of the layer's kind are read; a layer with none of
/// them draws nothing.
struct CXYLayerData {
    std::size_t size = sizeof(CXYLayerData); ///< Of the structure, set by its constructor.
    int layer = 0; ///< Its index in the model's m_layers. At most one of these for each.

    /// Bars, lines and areas. Sets beyond the colours of the model have those of the palette.
    const CXYSeriesData* series = nullptr;
    int seriesCount = 0; ///< Of `series`.

    /// How many values each of the arrays below has: for boxes and prices the number of rows, for points and
    /// tasks any.
    int count = 0;
    const double* x = nullptr; ///< Points: must be there. All but tasks: where each row stands, instead of
                               ///< at 0, 1, 2...
    const double* y = nullptr; ///< Points.
    const double* bubbleSize = nullptr; ///< Points: widths in pixels, if the layer's are bubbles.
    const double* top = nullptr;        ///< Boxes, with whiskers or without, as the next.
    const double* bottom = nullptr;     ///< The lower edges.
    const double* maximum = nullptr;    ///< Whiskers, as the next.
    const double* minimum = nullptr;    ///< The lower ends.
    const double* middle = nullptr;     ///< The line in a box with whiskers.
    const double* high = nullptr;       ///< Prices, as the next.
    const double* low = nullptr;        ///< The lowest price of each row.
    const double* open = nullptr;       ///< The first.
    const double* close = nullptr;      ///< The last.
    const CXYTaskData* tasks = nullptr; ///< Bars of a plan. Row i has the colour of the model's group i.
};

/// The data of an XY chart.
struct CXYChartData {
    std::size_t size = sizeof(CXYChartData); ///< Of the structure, set by its constructor.
    int rowCount = 0;                        ///< How many rows all layers have.
    /// The names of the rows, along the x axis, or null. Shown unless the model gives that axis a scale of
    /// its own, linear or of dates.
    const char* const* labels = nullptr;
    /// The chart time of each row, or null. Without labels, an axis that may choose shows one for each row,
    /// and one of dates puts the rows where they belong.
    const double* dates = nullptr;
    const CXYLayerData* layers = nullptr; ///< In any order; layers that are not among them draw nothing.
    int layerCount = 0;                   ///< Of `layers`.
};

/// Renders an XY chart of the host's data into `picture`. What a preview adds to show a setting, such as the
/// sample line, is left out.
///
/// BadData: a count below 0, or an array missing where there is one; a count of series, boxes or prices that
/// is not the number of rows; a layer's index or a task's row that is not there; two entries for one layer; a
/// size that is none.
CHARTRENDER_API ChartRenderResult RenderXYChart(const CXYChart& chart, const CChartLayout& layout,
                                                const CXYChartData& data, ChartPictureFormat format,
                                                CChartPicture& picture);
