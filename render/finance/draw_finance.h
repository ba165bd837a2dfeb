#pragma once
// The finance chart of a model, and the prices of its preview.

#include "render/chart_preview.h"
#include "render/finance/finance_chart.h"
#include "render/sample_data.h"

/// Made-up prices and volumes of 130 weekdays from 4 September 2002 on, always the same.
class CSamplePrices {
public:
    static constexpr int extraPoints = 30; ///< Leading rows that only feed the averages.

    CSamplePrices();

    /// Good as long as this object.
    FinanceSeries Rows() const;

private:
    CRandomTable m_table;
};

/// Background, titles and legend of the layout. To be called first; the height is that of the panes.
/// `addSampleKey`: as for DrawChartLegend.
void DressFinanceChart(FinanceChart& chart, const CChartLayout& layout, bool addSampleKey);

/// The panes that the model shows, in its order, with all that stands on them. The chart is to have its data.
void AddFinancePanes(FinanceChart& chart, const CFinanceChart& look);

/// The routine of PreviewFinanceChart, with sample prices.
void DrawFinanceChart(CChartPreview& view);
