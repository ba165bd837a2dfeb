#include "render/finance/draw_finance.h"
#include "render/dressing.h"

CSamplePrices::CSamplePrices() : m_table(9, 6, 130) {
    CRanTable_setDateCol(m_table.Get(), 0, CChart_chartTime(2002, 9, 4, 0, 0, 0), 86400, true);
    CRanTable_setHLOCCols(m_table.Get(), 1, 100, -5, 5, 0, 1e308);
    CRanTable_setCol(m_table.Get(), 5, 5e7, 2.5e8);
}

FinanceSeries CSamplePrices::Rows() const {
    // Braces read the columns in order.
    return {m_table.Column(0), m_table.Column(1), m_table.Column(2),
            m_table.Column(3), m_table.Column(4), m_table.Column(5)};
}

void DressFinanceChart(FinanceChart& chart, const CChartLayout& layout, bool addSampleKey) {
    DrawChartBackground(chart.Chart(), layout);
    DrawChartTitles(chart.Chart(), layout);
    DrawChartLegend(chart.Chart(), layout, addSampleKey);
}

namespace {

/// Adds what a model shows. Colours are resolved one after the other, before each call.
class PaneMaker {
public:
    PaneMaker(FinanceChart& chart, const CFinanceChart& look) : m_chart(chart), m_look(look) {}

    void AddPane(int number) {
        switch (number) {
        case 0:
            AddMain();
            break;
        case 1:
            if (m_look.m_showRsi)
                AddRsi();
            break;
        case 2:
            if (m_look.m_showMomentum)
                m_chart.addMomentum(m_look.m_momentumHeight, m_look.m_momentumPeriod,
                                    Number(m_look.m_momentumColor));
            break;
        case 3:
            if (m_look.m_showSlowStochastic)
                AddSlowStochastic();
            break;
        case 4:
            if (m_look.m_showMacd)
                AddMacd();
            break;
        default:
            break;
        }
    }

private:
    int Number(const CChartColor& color) const { return color.GetChartColor(m_chart.Chart()); }

    void AddMain() {
        FinancePane& pane = m_chart.addMainChart(m_look.m_mainHeight);
        if (m_look.m_showSma)
            m_chart.addSimpleMovingAvg(m_look.m_smaPeriod, Number(m_look.m_smaColor));
        if (m_look.m_showHloc) {
            const int up = Number(m_look.m_hlocUpColor);
            m_chart.addHLOC(up, Number(m_look.m_hlocDownColor));
        }
        if (m_look.m_showBollingerBand) {
            const int line = Number(m_look.m_bbLineColor);
            m_chart.addBollingerBand(m_look.m_bbPeriod, m_look.m_bbBandWidth, line,
                                     Number(m_look.m_bbFillColor));
        }
        if (m_look.m_showVolBars) {
            const int up = Number(m_look.m_volUpColor);
            const int down = Number(m_look.m_volDownColor);
            m_chart.addVolBarsToChart(pane, m_look.m_volBarsHeight, up, down, Number(m_look.m_volFlatColor));
        }
        if (m_look.m_showCandleStick) {
            const int up = Number(m_look.m_candleUpColor);
            m_chart.addCandleStick(up, Number(m_look.m_candleDownColor));
        }
        if (m_look.m_showDonchianChannel) {
            const int line = Number(m_look.m_dcLineColor);
            m_chart.addDonchianChannel(m_look.m_dcPeriod, line, Number(m_look.m_dcFillColor));
        }
    }

    void AddRsi() {
        const int line = Number(m_look.m_rsiColor);
        const int up = Number(m_look.m_rsiUpColor);
        m_chart.addRSI(m_look.m_rsiHeight, m_look.m_rsiPeriod, line, m_look.m_rsiRange, up,
                       Number(m_look.m_rsiDownColor));
    }

    void AddSlowStochastic() {
        const int k = Number(m_look.m_ssColor1);
        m_chart.addSlowStochastic(m_look.m_ssHeight, m_look.m_ssPeriod1, m_look.m_ssPeriod2, k,
                                  Number(m_look.m_ssColor2));
    }

    void AddMacd() {
        const int indicator = Number(m_look.m_macdIndicatorColor);
        const int signal = Number(m_look.m_macdSignalColor);
        m_chart.addMACD(m_look.m_macdHeight, m_look.m_macdPeriod1, m_look.m_macdPeriod2, m_look.m_macdPeriod3,
                        indicator, signal, Number(m_look.m_macdDivergentColor));
    }

    FinanceChart& m_chart;
    const CFinanceChart& m_look;
};

} // namespace

void AddFinancePanes(FinanceChart& chart, const CFinanceChart& look) {
    for (const std::int32_t number : look.m_order)
        PaneMaker(chart, look).AddPane(number);
}

void DrawFinanceChart(CChartPreview& view) {
    FinanceChart chart(view.m_layout->m_financeWidth);
    DressFinanceChart(chart, *view.m_layout, true);
    const CSamplePrices prices;
    chart.setData(prices.Rows(), CSamplePrices::extraPoints);
    AddFinancePanes(chart, view.m_ownFinanceChart);
    StorePicture(&view, chart.Chart());
}
