#include "tests/driver/manners.h"

using namespace driver;

namespace {
CFinanceChart StartChart() {
    CFinanceChart chart;
    for (bool* show : {&chart.m_showSma, &chart.m_showBollingerBand, &chart.m_showVolBars, &chart.m_showCandleStick,
                       &chart.m_showDonchianChannel, &chart.m_showRsi, &chart.m_showMomentum,
                       &chart.m_showSlowStochastic, &chart.m_showMacd})
        *show = true;
    chart.m_rsiRange = 10;
    return chart;
}

constexpr Number kPixels = {10, 0};
constexpr Number kRows = {1, 0};

const Properties kTable = {
    {"MainChart", "", "Height:", "155", "mainHeight=155", kPixels},
    {"MainChart", "SimpleMoveAverage:", "Show SimpleMoveAverage", "", "showSma=false"},
    {"MainChart", "SimpleMoveAverage:", "Period:", "12", "smaPeriod=12", kRows},
    {"MainChart", "SimpleMoveAverage:", "Color:", "Metal", "smaColor.type=metal"},
    {"MainChart", "HLOC:", "Show HLOC", "", "showHloc=false"},
    {"MainChart", "HLOC:", "UpColor:", "Metal", "hlocUpColor.type=metal", {}, false}, // looks alike
    {"MainChart", "HLOC:", "DownColor:", "Metal", "hlocDownColor.type=metal"},
    {"MainChart", "VolBars:", "Show VolBars", "", "showVolBars=false"},
    {"MainChart", "VolBars:", "Height:", "35", "volBarsHeight=35", kPixels},
    {"MainChart", "VolBars:", "UpColor:", "Metal", "volUpColor.type=metal"},
    {"MainChart", "VolBars:", "DownColor:", "Metal", "volDownColor.type=metal"},
    {"MainChart", "VolBars:", "FlatColor:", "Metal", "volFlatColor.type=metal", {}, false}, // no such day
    {"MainChart", "DonchianChannel:", "Show DonchianChannel", "", "showDonchianChannel=false"},
    {"MainChart", "DonchianChannel:", "Period:", "7", "dcPeriod=7", kRows},
    {"MainChart", "DonchianChannel:", "FillColor:", "Metal", "dcFillColor.type=metal"},
    {"MainChart", "DonchianChannel:", "LineColor:", "Metal", "dcLineColor.type=metal"},
    {"MainChart", "CandleStick:", "Show CandleStick", "", "showCandleStick=false"},
    {"MainChart", "CandleStick:", "UpColor:", "Metal", "candleUpColor.type=metal"},
    {"MainChart", "CandleStick:", "DownColor:", "Metal", "candleDownColor.type=metal"},
    {"MainChart", "BollingerBand:", "Show BollingerBand", "", "showBollingerBand=false"},
    {"MainChart", "BollingerBand:", "Period:", "9", "bbPeriod=9", kRows},
    {"MainChart", "BollingerBand:", "BandWidth:", "1.2345", "bbBandWidth=1.2345", kRows},
    {"MainChart", "BollingerBand:", "FillColor:", "Metal", "bbFillColor.type=metal"},
    {"MainChart", "BollingerBand:", "LineColor:", "Metal", "bbLineColor.type=metal"},

    {"RSI", "", "Show RSI", "", "showRsi=false"},
    {"RSI", "", "Height:", "95", "rsiHeight=95", kPixels},
    {"RSI", "", "Period:", "5", "rsiPeriod=5", kRows},
    {"RSI", "", "Range:", "12.346", "rsiRange=12.35", {10, 0}},
    {"RSI", "", "Color:", "Metal", "rsiColor.type=metal"},
    {"RSI", "", "UpColor:", "Metal", "rsiUpColor.type=metal"},
    {"RSI", "", "DownColor:", "Metal", "rsiDownColor.type=metal"},

    {"Momentum", "", "Show Momentum", "", "showMomentum=false"},
    {"Momentum", "", "Height:", "45", "momentumHeight=45", kPixels},
    {"Momentum", "", "Period:", "3", "momentumPeriod=3", kRows},
    {"Momentum", "", "Color:", "Metal", "momentumColor.type=metal"},

    {"SlowStochastic", "", "Show SlowStochastic", "", "showSlowStochastic=false"},
    {"SlowStochastic", "", "Height:", "45", "ssHeight=45", kPixels},
    {"SlowStochastic", "", "Period 1:", "6", "ssPeriod1=6", kRows},
    {"SlowStochastic", "", "Period 2:", "8", "ssPeriod2=8", kRows},
    {"SlowStochastic", "", "Color 1:", "Metal", "ssColor1.type=metal"},
    {"SlowStochastic", "", "Color 2:", "Metal", "ssColor2.type=metal"},

    {"MACD", "", "Show MACD", "", "showMacd=false"},
    {"MACD", "", "Height:", "45", "macdHeight=45", kPixels},
    {"MACD", "", "Period 1:", "19", "macdPeriod1=19", kRows},
    {"MACD", "", "Period 2:", "6", "macdPeriod2=6", kRows},
    {"MACD", "", "Period 3:", "4", "macdPeriod3=4", kRows},
    {"MACD", "", "Indicator:", "Metal", "macdIndicatorColor.type=metal"},
    {"MACD", "", "Signal:", "Metal", "macdSignalColor.type=metal"},
    {"MACD", "", "Divergent:", "Metal", "macdDivergentColor.type=metal"},
};
} // namespace

TEST(FinanceEditor, EachControlReachesItsField) {
    TestProperties(StartChart(), CChartLayout(), kTable);
    TestTableIsWhole(StartChart(), CChartLayout(), kTable);
}

TEST(FinanceEditor, KeepsItsManners) {
    TestEditor("FinanceChart", {"MainChart", "RSI", "Momentum", "SlowStochastic", "MACD"}, StartChart(), CChartLayout(),
               kTable);
}
