// Finance charts of 250 and 10,000 days with every pane and indicator, from the prices to the bitmap file;
// and what of that the indicators take, with the layers that they are put into.

#include "bench/floor.h"
#include "render/finance/draw_finance.h"
#include <algorithm>
#include <benchmark/benchmark.h>

namespace {

/// A walk of daily prices.
class Prices {
public:
    explicit Prices(int days) : m_table(9, 6, days) {
        CRanTable_setDateCol(m_table.Get(), 0, CChart_chartTime(1980, 1, 1, 0, 0, 0), 86400, true);
        CRanTable_setHLOCCols(m_table.Get(), 1, 1000, -5, 5, 0, 1e308);
        CRanTable_setCol(m_table.Get(), 5, 5e7, 2.5e8);
    }
    FinanceSeries Rows() const {
        return {m_table.Column(0), m_table.Column(1), m_table.Column(2),
                m_table.Column(3), m_table.Column(4), m_table.Column(5)};
    }

private:
    CRandomTable m_table;
};

CFinanceChart everything() {
    CFinanceChart look;
    for (bool* show : {&look.m_showSma, &look.m_showBollingerBand, &look.m_showVolBars,
                       &look.m_showCandleStick, &look.m_showDonchianChannel, &look.m_showRsi,
                       &look.m_showMomentum, &look.m_showSlowStochastic, &look.m_showMacd})
        *show = true;
    return look;
}

void makeChart(benchmark::State& state, const CFinanceChart& look, bool drawn = true) {
    const Prices prices(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        FinanceChart chart(500);
        DressFinanceChart(chart, CChartLayout(), false);
        chart.setData(prices.Rows(), 30);
        AddFinancePanes(chart, look);
        const char* bytes = nullptr;
        int length = 0;
        if (drawn)
            CBaseChart_makeChart2(chart.Chart(), CHART_FORMAT_BMP, &bytes, &length);
        benchmark::DoNotOptimize(bytes);
    }
}

void allIndicators(benchmark::State& state) {
    makeChart(state, everything());
}
void allIndicatorsUndrawn(benchmark::State& state) {
    makeChart(state, everything(), false);
}
void priceBars(benchmark::State& state) {
    makeChart(state, CFinanceChart());
}
void candles(benchmark::State& state) {
    CFinanceChart look;
    look.m_showHloc = false;
    look.m_showCandleStick = true;
    makeChart(state, look);
}

BENCHMARK(allIndicators)->Arg(250)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(allIndicatorsUndrawn)->Arg(250)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(priceBars)->Arg(250)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(candles)->Arg(250)->Arg(10000)->Unit(benchmark::kMillisecond);

} // namespace

BENCH_MAIN()
