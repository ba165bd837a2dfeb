#pragma once
// The composer of finance charts: panes under one another on one time scale.

#include "render/chart_holder.h"
#include "render/finance/series.h"
#include <algorithm>
#include <memory>
#include <string>

/// One pane: a chart of its own, as wide as the whole.
struct FinancePane {
    XYChart* xy;
    CChartHolder chart; // the same chart, owned
};

/// The rows of a finance chart: chart times and prices, a row a trading day (or hour, or month), ascending.
struct FinanceSeries {
    Series timeStamps, high, low, open, close, volume;
};

/// Stacks panes on a multi chart. In order: the constructor, setData, then panes and what stands on them;
/// panes stand in the order of their calls. What is drawn on the main pane needs addMainChart to have run.
/// Colours are numbers of the drawing library, which may be patterns of Chart(). Heights are pixels of plot
/// area, periods are rows; the first rows of an average, as many as its period but one, have no value.
class FinanceChart {
public:
    explicit FinanceChart(int width);
    ~FinanceChart();
    FinanceChart(const FinanceChart&) = delete;
    FinanceChart& operator=(const FinanceChart&) = delete;

    /// The whole chart; it lives as long as this object.
    BaseChart* Chart() const { return m_multiBase.Get(); }

    /// Copies the rows. `extraPoints`: leading rows that only feed the averages and are not shown.
    void setData(const FinanceSeries& series, int extraPoints);

    /// Makes the room above the first pane at least so many pixels. Before the first pane.
    void leaveTopRoom(int pixels) { m_topMargin = std::max(m_topMargin, pixels); }
    /// Gives the labels of prices that are long numbers the room that they need. Before the first pane.
    void fitPriceLabels();

    FinancePane& addMainChart(int height);
    FinancePane& addIndicator(int height);

    HLOCLayer* addHLOC(int upColor, int downColor);
    CandleStickLayer* addCandleStick(int upColor, int downColor);
    /// On the lower `height` pixels of the main pane.
    BarLayer* addVolBars(int height, int upColor, int downColor, int flatColor);
    /// On the main pane as addVolBars, on another one over its whole height. The result is the layer that
    /// stands in the legend.
    BarLayer* addVolBarsToChart(FinancePane& pane, int height, int upColor, int downColor, int flatColor);

    // Over the prices of the main pane.
    LineLayer* addSimpleMovingAvg(int period, int color);
    InterLineLayer* addBollingerBand(int period, double bandWidth, int lineColor, int fillColor);
    InterLineLayer* addDonchianChannel(int period, int lineColor, int fillColor);

    // Panes of their own.
    FinancePane& addRSI(int height, int period, int color, double range, int upColor, int downColor);
    FinancePane& addMomentum(int height, int period, int color);
    FinancePane& addSlowStochastic(int height, int period1, int period2, int color1, int color2);
    /// `period1` is that of the slow average, `period2` of the fast one, `period3` of the signal.
    FinancePane& addMACD(int height, int period1, int period2, int period3, int color, int signalColor,
                         int divColor);

    // What panes are made of. Names go into the legend, with the last value of the series.
    LineLayer* addLineIndicator(FinancePane& pane, Series data, int color, const char* name);
    BarLayer* addBarIndicator(FinancePane& pane, Series data, int color, const char* name);
    /// Two lines on the main pane and the area between them.
    InterLineLayer* addBand(Series upper, Series lower, int lineColor, int fillColor, const char* name);
    /// Two marks on the pane, with the areas where the line passes them.
    InterLineLayer* addThreshold(FinancePane& pane, LineLayer* layer, double topValue, int topColor,
                                 double bottomValue, int bottomColor);
    /// The legend key of the main pane with the last prices. The last row rose, for candles, if its close is
    /// at least its open, else if it is at least the close before.
    void addPriceLegend(int upColor, int downColor, bool candleStickMode);
    CSeriesMath computeRSI(int period) const;
    std::string toolTipFormat() const;
    std::string formatLegendName(const char* name, Series data) const;
    /// The row of the last value, -1 where there is none.
    static int lastIndex(Series data);

private:
    void setXLabels(Axis* axis) const;
    void configureYAxis(Axis* axis, int height) const;
    void addLegendStrip(const FinancePane& pane) const;
    void placeVolAxis(FinancePane& pane, int height) const;
    int plotWidth() const;
    int timeCount() const { return RowCount(m_timeStamps); }
    std::string formatValue(double value) const;

    MultiChart* m_multi;
    CChartHolder m_multiBase; // the same chart, owned

    int m_totalWidth;
    int m_totalHeight = 0; // of the panes so far, a pixel between them included
    bool m_antiAlias = true;
    bool m_logScale = false;
    bool m_axisOnRight = true;

    int m_leftMargin = 40;
    int m_rightMargin = 40;
    int m_topMargin = 30;
    int m_bottomMargin = 35;

    int m_plotAreaBgColor = 0xfffff0;
    int m_majorHGridColor = 0xdddddd;
    int m_minorHGridColor = 0xdddddd;
    int m_majorVGridColor = 0xdddddd;
    int m_minorVGridColor = 0xdddddd;

    std::string m_legendFont = "normal";
    double m_legendFontSize = 8;
    int m_legendBgColor = static_cast<int>(0x80ccccff);

    std::string m_yAxisFont = "normal";
    double m_yAxisFontSize = 8;
    int m_yAxisFontColor = CHART_TEXT_COLOR;
    int m_yAxisMargin = 13; // pixels at the top of a pane, for a line of the legend

    std::string m_xAxisFont = "normal";
    double m_xAxisFontSize = 8;
    int m_xAxisFontColor = CHART_TEXT_COLOR;
    double m_xAxisFontAngle = 0;

    std::vector<double> m_timeStamps, m_highData, m_lowData, m_openData, m_closeData;
    std::vector<double> m_volData; // in units of m_volUnit
    std::string m_volUnit;         // "", "K", "M" or "B"
    int m_extraPoints = 0;

    std::string m_yearFormat = "{value|yyyy}";
    std::string m_firstMonthFormat = "<*font=bold*>{value|mmm yy}";
    std::string m_otherMonthFormat = "{value|mmm}";
    std::string m_firstDayFormat = "<*font=bold*>{value|d mmm}";
    std::string m_otherDayFormat = "{value|d}";
    std::string m_firstHourFormat = "<*font=bold*>{value|d mmm\nh:nna}";
    std::string m_otherHourFormat = "{value|h:nna}";
    int m_xAxisLabelSpacing = 50; // wanted pixels between date labels

    std::string m_generalFormat = "G"; // of all numbers in legends, marks and tooltips
    std::string m_toolTipMonthFormat = "[{xLabel|mmm yyyy}]";
    std::string m_toolTipDayFormat = "[{xLabel|mmm d, yyyy}]";
    std::string m_toolTipHourFormat = "[{xLabel|mmm d, yyyy hh:nn:ss}]";

    FinancePane* m_mainChart = nullptr;    // one of m_charts
    FinancePane* m_currentChart = nullptr; // the last of m_charts
    std::vector<std::unique_ptr<FinancePane>> m_charts;
};
