#pragma once

/// @file
/// Which panes and indicators a finance chart shows, and their look.

#include <charteditors/chart_color.h>

/// A finance chart. Heights are in pixels, periods in trading days; a new one shows the main pane with
/// high-low-open-close bars and no indicator. A pane that is off takes no height.
class CHARTEDITORS_API CFinanceChart {
public:
    CFinanceChart();
    CFinanceChart(const CFinanceChart& other);
    CFinanceChart& operator=(const CFinanceChart& other);
    ~CFinanceChart();

    /// Panes from the top: 0 main chart, 1 relative strength, 2 momentum, 3 slow stochastic, 4 moving average
    /// convergence. Anything else is skipped. Default 0, 1, 2, 3, 4.
    std::int32_t m_order[5] = {0, 1, 2, 3, 4};
    std::int32_t m_mainHeight = 200;    ///< Default 200.
    bool m_showSma = false;             ///< Simple moving average. Default false.
    std::int32_t m_smaPeriod = 5;       ///< Default 5.
    CChartColor m_smaColor;             ///< Default General 0x663300.
    bool m_showHloc = true;             ///< High-low-open-close bars. Default true.
    CChartColor m_hlocUpColor;          ///< Default General 0x8000.
    CChartColor m_hlocDownColor;        ///< Default General 0xFF0000.
    bool m_showBollingerBand = false;   ///< Default false.
    std::int32_t m_bbPeriod = 20;       ///< Default 20.
    double m_bbBandWidth = 2.0;         ///< Standard deviations to each side. Default 2.
    CChartColor m_bbFillColor;          ///< Mostly transparent. Default General 0xC06666FF.
    CChartColor m_bbLineColor;          ///< Default General 0x9999FF.
    bool m_showVolBars = false;         ///< Volume bars in the main pane. Default false.
    std::int32_t m_volBarsHeight = 70;  ///< Default 70.
    CChartColor m_volUpColor;           ///< Default General 0x99FF99.
    CChartColor m_volDownColor;         ///< Default General 0xFF9999.
    CChartColor m_volFlatColor;         ///< Default General 0x808080.
    bool m_showCandleStick = false;     ///< Default false.
    CChartColor m_candleUpColor;        ///< Default General 0xFF00.
    CChartColor m_candleDownColor;      ///< Default General 0xFF0000.
    bool m_showDonchianChannel = false; ///< Default false.
    std::int32_t m_dcPeriod = 20;       ///< Default 20.
    CChartColor m_dcFillColor;          ///< Mostly transparent. Default General 0xC06666FF.
    CChartColor m_dcLineColor;          ///< Default General 0x9999FF.
    bool m_showRsi = false;             ///< Relative strength pane. Default false.
    std::int32_t m_rsiHeight = 70;      ///< Default 70.
    std::int32_t m_rsiPeriod = 14;      ///< Default 14.
    double m_rsiRange = 20.0;           ///< Percent on each side of 50 where the zones begin. Default 20.
    CChartColor m_rsiColor;             ///< Default General 0x800080.
    CChartColor m_rsiUpColor;           ///< Default General 0xFF0000.
    CChartColor m_rsiDownColor;         ///< Default General 0xFF.
    bool m_showMomentum = false;        ///< Momentum pane. Default false.
    std::int32_t m_momentumHeight = 70; ///< Default 70.
    std::int32_t m_momentumPeriod = 12; ///< Default 12.
    CChartColor m_momentumColor;        ///< Default General 0xFF.
    bool m_showSlowStochastic = false;  ///< Slow stochastic pane. Default false.
    std::int32_t m_ssHeight = 70;       ///< Default 70.
    std::int32_t m_ssPeriod1 = 14;      ///< Default 14.
    std::int32_t m_ssPeriod2 = 3;       ///< Default 3.
    CChartColor m_ssColor1;             ///< Default General 0x6060.
    CChartColor m_ssColor2;             ///< Default General 0x606000.
    bool m_showMacd = false;            ///< Moving average convergence pane. Default false.
    std::int32_t m_macdHeight = 70;     ///< Default 70.
    std::int32_t m_macdPeriod1 = 26;    ///< Slow average. Default 26.
    std::int32_t m_macdPeriod2 = 12;    ///< Fast average. Default 12.
    std::int32_t m_macdPeriod3 = 9;     ///< Signal line. Default 9.
    CChartColor m_macdIndicatorColor;   ///< Default General 0xFF.
    CChartColor m_macdSignalColor;      ///< Default General 0xFF00FF.
    CChartColor m_macdDivergentColor;   ///< Default General 0x8000.
};
