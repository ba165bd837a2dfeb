#include "render/dressing.h"
#include "render/finance/draw_finance.h"
#include "render/render_picture.h"
#include <algorithm>
#include <chartrender/finance.h>
#include <cmath>
#include <new>
#include <numeric>

namespace {

/// The host's rows as the composer wants them: by date, one a date, and gaps marked.
class OrderedRows {
public:
    explicit OrderedRows(const CFinanceChartData& data) {
        std::vector<int> rows(static_cast<std::size_t>(data.count));
        std::iota(rows.begin(), rows.end(), 0);
        std::erase_if(
            rows, [&](int row) { return !std::isfinite(data.dates[row]); });
        std::stable_sort(rows.begin(), rows.end(),
                         [&](int a, int b) { return data.dates[a] < data.dates[b]; });
        for (const int row : rows)
            Add(data, row);
    }

    FinanceSeries Rows() const { return {m_dates, m_high, m_low, m_open, m_close, m_volume}; }

private:
    static double Known(double value) { return std::isfinite(value) ? value : CHART_NO_VALUE; }

    void Add(const CFinanceChartData& data, int row) {
        if (!m_dates.empty() && m_dates.back() == data.dates[row])
            for (std::vector<double>* series : {&m_dates, &m_high, &m_low, &m_open, &m_close, &m_volume})
                series->pop_back();
        double high = Known(data.high[row]);
        double low = Known(data.low[row]);
        if (high < low && low != CHART_NO_VALUE)
            std::swap(high, low);
        m_dates.push_back(data.dates[row]);
        m_high.push_back(high);
        m_low.push_back(low);
        m_open.push_back(Known(data.open[row]));
        m_close.push_back(Known(data.close[row]));
        const double volume = data.volume ? Known(data.volume[row]) : CHART_NO_VALUE;
        m_volume.push_back(volume < 0 ? CHART_NO_VALUE : volume);
    }

    std::vector<double> m_dates, m_high, m_low, m_open, m_close, m_volume;
};

bool IsComplete(const CFinanceChartData& data) {
    if (data.size < sizeof(CFinanceChartData) || data.count < 0)
        return false;
    return data.count == 0 || (data.dates && data.open && data.high && data.low && data.close);
}

} // namespace

ChartRenderResult RenderFinanceChart(const CFinanceChart& chart, const CChartLayout& layout,
                                     const CFinanceChartData& data, ChartPictureFormat format,
                                     CChartPicture& picture) {
    CChartPictureAccess::Clear(picture);
    if (!IsComplete(data))
        return ChartRenderResult::BadData;
    try {
        CFinanceChart look = chart;
        look.m_showVolBars = chart.m_showVolBars && data.volume;
        FinanceChart composed(layout.m_financeWidth);
        DressFinanceChart(composed, layout, false);
        composed.setData(OrderedRows(data).Rows(), data.leadingRows);
        composed.leaveTopRoom(TopTitleRoom(layout) + 4);
        composed.fitPriceLabels();
        AddFinancePanes(composed, look);
        return CChartPictureAccess::Make(picture, composed.Chart(), format);
    } catch (const std::bad_alloc&) {
        return ChartRenderResult::NoPicture;
    }
}
