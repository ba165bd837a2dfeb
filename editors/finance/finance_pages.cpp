#include "editors/finance/finance_pages.h"

#include "editors/fields/color_field.h"
#include "editors/fields/tips.h"

CFinanceMainPage::CFinanceMainPage(CFinanceChart& chart, QWidget& owner) : m_form(*this, owner) {
    m_form.Tight();
    TableOfPrices(chart);
    m_form.Column();
    TableOfOverlays(chart);
}

void CFinanceMainPage::TableOfPrices(CFinanceChart& chart) {
    m_form.Integer("Height:", chart.m_mainHeight).Step(10).Floor(0).Tip(tip::kPixels);
    m_form.Group("SimpleMoveAverage:");
    m_form.Check("Show SimpleMoveAverage", chart.m_showSma);
    m_form.Integer("Period:", chart.m_smaPeriod).Step(1).Floor(0).Tip(tip::kTradingDays);
    m_form.Field<CChartColorField>("Color:", chart.m_smaColor);
    m_form.Group("HLOC:");
    m_form.Check("Show HLOC", chart.m_showHloc);
    m_form.Field<CChartColorField>("UpColor:", chart.m_hlocUpColor);
    m_form.Field<CChartColorField>("DownColor:", chart.m_hlocDownColor);
    m_form.Group("VolBars:");
    m_form.Check("Show VolBars", chart.m_showVolBars);
    m_form.Integer("Height:", chart.m_volBarsHeight).Step(10).Floor(0).Tip(tip::kPixels);
    m_form.Field<CChartColorField>("UpColor:", chart.m_volUpColor);
    m_form.Field<CChartColorField>("DownColor:", chart.m_volDownColor);
    m_form.Field<CChartColorField>("FlatColor:", chart.m_volFlatColor);
}

void CFinanceMainPage::TableOfOverlays(CFinanceChart& chart) {
    m_form.Group("DonchianChannel:");
    m_form.Check("Show DonchianChannel", chart.m_showDonchianChannel);
    m_form.Integer("Period:", chart.m_dcPeriod).Step(1).Floor(0).Tip(tip::kTradingDays);
    m_form.Field<CChartColorField>("FillColor:", chart.m_dcFillColor);
    m_form.Field<CChartColorField>("LineColor:", chart.m_dcLineColor);
    m_form.Group("CandleStick:");
    m_form.Check("Show CandleStick", chart.m_showCandleStick);
    m_form.Field<CChartColorField>("UpColor:", chart.m_candleUpColor);
    m_form.Field<CChartColorField>("DownColor:", chart.m_candleDownColor);
    m_form.Group("BollingerBand:");
    m_form.Check("Show BollingerBand", chart.m_showBollingerBand);
    m_form.Integer("Period:", chart.m_bbPeriod).Step(1).Floor(0).Tip(tip::kTradingDays);
    m_form.Real("BandWidth:", chart.m_bbBandWidth)
        .Unrounded()
        .Step(1)
        .Floor(0)
        .Tip("Standard deviations to each side");
    m_form.Field<CChartColorField>("FillColor:", chart.m_bbFillColor);
    m_form.Field<CChartColorField>("LineColor:", chart.m_bbLineColor);
}

CFinanceRsiPage::CFinanceRsiPage(CFinanceChart& chart, QWidget& owner) : m_form(*this, owner) {
    m_form.Check("Show RSI", chart.m_showRsi);
    m_form.Integer("Height:", chart.m_rsiHeight).Step(10).Floor(0).Tip(tip::kPixels);
    m_form.Integer("Period:", chart.m_rsiPeriod).Step(1).Floor(0).Tip(tip::kTradingDays);
    m_form.Real("Range:", chart.m_rsiRange)
        .Step(10)
        .Floor(0)
        .Tip("Per cent on each side of 50 where the zones begin");
    m_form.Field<CChartColorField>("Color:", chart.m_rsiColor);
    m_form.Field<CChartColorField>("UpColor:", chart.m_rsiUpColor);
    m_form.Field<CChartColorField>("DownColor:", chart.m_rsiDownColor);
}

CFinanceMomentumPage::CFinanceMomentumPage(CFinanceChart& chart, QWidget& owner) : m_form(*this, owner) {
    m_form.Check("Show Momentum", chart.m_showMomentum);
    m_form.Integer("Height:", chart.m_momentumHeight).Step(10).Floor(0).Tip(tip::kPixels);
    m_form.Integer("Period:", chart.m_momentumPeriod).Step(1).Floor(0).Tip(tip::kTradingDays);
    m_form.Field<CChartColorField>("Color:", chart.m_momentumColor);
}

CFinanceStochasticPage::CFinanceStochasticPage(CFinanceChart& chart, QWidget& owner) : m_form(*this, owner) {
    m_form.Check("Show SlowStochastic", chart.m_showSlowStochastic);
    m_form.Integer("Height:", chart.m_ssHeight).Step(10).Floor(0).Tip(tip::kPixels);
    m_form.Integer("Period 1:", chart.m_ssPeriod1)
        .Step(1)
        .Floor(0)
        .Tip("Trading days that a price is compared with");
    m_form.Integer("Period 2:", chart.m_ssPeriod2).Step(1).Floor(0).Tip("Trading days of the average");
    m_form.Field<CChartColorField>("Color 1:", chart.m_ssColor1);
    m_form.Field<CChartColorField>("Color 2:", chart.m_ssColor2);
}

CFinanceMacdPage::CFinanceMacdPage(CFinanceChart& chart, QWidget& owner) : m_form(*this, owner) {
    m_form.Check("Show MACD", chart.m_showMacd);
    m_form.Integer("Height:", chart.m_macdHeight).Step(10).Floor(0).Tip(tip::kPixels);
    m_form.Integer("Period 1:", chart.m_macdPeriod1).Step(1).Floor(0).Tip("Trading days of the slow average");
    m_form.Integer("Period 2:", chart.m_macdPeriod2).Step(1).Floor(0).Tip("Trading days of the fast average");
    m_form.Integer("Period 3:", chart.m_macdPeriod3).Step(1).Floor(0).Tip("Trading days of the signal line");
    m_form.Field<CChartColorField>("Indicator:", chart.m_macdIndicatorColor);
    m_form.Field<CChartColorField>("Signal:", chart.m_macdSignalColor);
    m_form.Field<CChartColorField>("Divergent:", chart.m_macdDivergentColor);
}
