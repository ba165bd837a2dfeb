#pragma once

/// @file
/// Finance charts of the host's prices.

#include <charteditors/chart_layout.h>
#include <charteditors/finance_chart.h>
#include <chartrender/picture.h>

/// The rows of a finance chart, one a trading day (or hour, or month). The arrays have a value for each row;
/// they stay the host's, and are only read during the call.
///
/// Rows are shown side by side in the order of their dates, whatever their order in the arrays, without gaps
/// for days without trade. Of rows with the same date the last one counts, and a row whose date is NaN or
/// infinite is left out. A price that is NaN or infinite is missing; a high below its low is exchanged with
/// it; a volume that is NaN, infinite or negative is missing.
struct CFinanceChartData {
    std::size_t size = sizeof(CFinanceChartData); ///< Of this structure, in bytes; to be left as it is.
    const double* dates = nullptr;  ///< Seconds since 1 January of year 1, as CChart_chartTime gives.
    const double* open = nullptr;   ///< The first price of the day.
    const double* high = nullptr;   ///< The highest price of the day.
    const double* low = nullptr;    ///< The lowest price of the day.
    const double* close = nullptr;  ///< The last price of the day.
    const double* volume = nullptr; ///< Null: the chart has no volume bars.
    int count = 0;                  ///< Rows in each array.
    int leadingRows = 0; ///< Rows at the beginning, after ordering, that only feed the indicators and are not
                         ///< shown. Negative counts as 0.
};

/// Renders a finance chart of the host's prices into `picture`. The width is the layout's m_financeWidth, the
/// height follows from the panes: 65 pixels, more where the titles at the top need it, and for each pane its
/// height and one. Long prices get a wider margin. BadData for a `size` below that of this header, a negative
/// count, or a missing array other than that of the volume.
CHARTRENDER_API ChartRenderResult RenderFinanceChart(const CFinanceChart& chart, const CChartLayout& layout,
                                                     const CFinanceChartData& data, ChartPictureFormat format,
                                                     CChartPicture& picture);
