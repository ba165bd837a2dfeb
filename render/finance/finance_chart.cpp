// The core: data, panes, and their axes.

#include "render/finance/finance_chart.h"
#include <algorithm>
#include <cstdint>
#include <limits>

/// Heights and widths are the user's, as large as they may be.
static int Limited(std::int64_t pixels) {
    return static_cast<int>(
        std::clamp<std::int64_t>(pixels, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

FinanceChart::FinanceChart(int width)
    : m_multi(CMultiChart_create(width, 1, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0)),
      m_multiBase(MultiChart2BaseChart(m_multi)), m_totalWidth(width) {}

FinanceChart::~FinanceChart() {
    for (std::unique_ptr<FinancePane>& pane : m_charts)
        pane.reset();
}

int FinanceChart::plotWidth() const {
    return Limited(std::int64_t{m_totalWidth} - m_leftMargin - m_rightMargin);
}

std::string FinanceChart::formatValue(double value) const {
    const char* text = CBaseChart_formatValue(Chart(), value, m_generalFormat.c_str());
    return text ? text : "";
}

int FinanceChart::lastIndex(Series data) {
    int row = RowCount(data) - 1;
    while (row >= 0 && data[static_cast<std::size_t>(row)] == CHART_NO_VALUE)
        --row;
    return row;
}

std::string FinanceChart::formatLegendName(const char* name, Series data) const {
    std::string text = name ? name : "";
    const int last = text.empty() ? -1 : lastIndex(data);
    if (last >= 0)
        text += ": " + formatValue(data[static_cast<std::size_t>(last)]);
    return text;
}

void FinanceChart::setData(const FinanceSeries& series, int extraPoints) {
    const auto copy = [](std::vector<double>& to, Series from) { to.assign(from.begin(), from.end()); };
    copy(m_timeStamps, series.timeStamps);
    copy(m_highData, series.high);
    copy(m_lowData, series.low);
    copy(m_openData, series.open);
    copy(m_closeData, series.close);
    m_extraPoints = std::max(extraPoints, 0);

    const CSeriesMath volume(series.volume);
    const double largest = CArrayMath_max(volume);
    int exponent = 3;
    double unit = 1e9;
    for (; exponent > 0 && unit > largest; --exponent)
        unit /= 1000;
    CArrayMath_div2(volume, unit);
    copy(m_volData, volume.Rows());
    static constexpr const char* units[] = {"", "K", "M", "B"};
    m_volUnit = units[exponent];
}

FinancePane& FinanceChart::addMainChart(int height) {
    m_mainChart = &addIndicator(height);
    CMultiChart_setMainChart(m_multi, m_mainChart->chart.Get());
    Axis* axis = CXYChart_yAxis(m_mainChart->xy);
    CAxis_setMargin(axis, 2 * m_yAxisMargin, 0); // the legend of the main pane takes two lines
    if (m_logScale)
        CAxis_setLogScale3(axis, nullptr);
    else
        CAxis_setLinearScale3(axis, nullptr);
    return *m_mainChart;
}

FinancePane& FinanceChart::addIndicator(int height) {
    XYChart* xy = CXYChart_create(m_totalWidth, Limited(std::int64_t{height} + m_topMargin + m_bottomMargin),
                                  CHART_TRANSPARENT, CHART_TRANSPARENT, 0);
    m_charts.push_back(std::make_unique<FinancePane>(FinancePane{xy, CChartHolder(XYChart2BaseChart(xy))}));
    FinancePane& pane = *m_charts.back();
    BaseChart* chart = pane.chart.Get();
    CXYChart_setTrimData(xy, m_extraPoints, std::numeric_limits<int>::max());

    Axis* xAxis = CXYChart_xAxis(xy);
    if (m_currentChart) {
        // Only the lowest pane shows the dates. The one that was lowest keeps its line and loses its labels.
        Axis* above = CXYChart_xAxis(m_currentChart->xy);
        CAxis_setColors(above, CHART_LINE_COLOR, CHART_TRANSPARENT, -1, -1);
        CAxis_copyAxis(xAxis, above);
    } else {
        setXLabels(xAxis);
    }
    m_currentChart = &pane;

    // Panes overlap by their margins; a pixel divides their plot areas.
    CMultiChart_addChart(m_multi, 0, m_totalHeight, chart);
    m_totalHeight = Limited(std::int64_t{m_totalHeight} + height + 1);
    CBaseChart_setSize(Chart(), m_totalWidth,
                       Limited(std::int64_t{m_totalHeight} + m_topMargin + m_bottomMargin));

    PlotArea* area = CXYChart_setPlotArea(xy, m_leftMargin, m_topMargin, plotWidth(), height,
                                          m_plotAreaBgColor, -1, -1, 0xc0c0c0, CHART_TRANSPARENT);
    CPlotArea_setGridColor(area, m_majorHGridColor, m_majorVGridColor, m_minorHGridColor, m_minorVGridColor);
    CBaseChart_setAntiAlias(chart, m_antiAlias, 2);
    addLegendStrip(pane);
    CAxis_setIndent(xAxis, true);
    CAxis_setTickLength2(xAxis, 2, 0);
    CAxis_setLabelStyle(xAxis, m_xAxisFont.c_str(), m_xAxisFontSize, m_xAxisFontColor, m_xAxisFontAngle);
    CXYChart_setYAxisOnRight(xy, m_axisOnRight);
    configureYAxis(CXYChart_yAxis(xy), height);
    return pane;
}

/// A strip over the plot area's top edge.
void FinanceChart::addLegendStrip(const FinancePane& pane) const {
    LegendBox* legend = CBaseChart_addLegend(pane.chart.Get(), m_leftMargin, m_topMargin, false,
                                             m_legendFont.c_str(), m_legendFontSize);
    TextBox* textBox = LegendBox2TextBox(legend);
    Box* box = TextBox2Box(textBox);
    CBox_setBackground(box, m_legendBgColor, -1, 0);
    CTextBox_setMargin2(textBox, 5, 0, 2, 0);
    CBox_setSize(box, plotWidth(), 0);
}

void FinanceChart::configureYAxis(Axis* axis, int height) const {
    CAxis_setAutoScale(axis, 0, 0.05, 0);
    if (height < 100)
        CAxis_setTickDensity(axis, 15, -1);
    CAxis_setMargin(axis, m_yAxisMargin, 0);
    CAxis_setLabelStyle(axis, m_yAxisFont.c_str(), m_yAxisFontSize, m_yAxisFontColor, 0);
    CAxis_setTickLength2(axis, -4, -2);
}

LineLayer* FinanceChart::addLineIndicator(FinancePane& pane, Series data, int color, const char* name) {
    return CXYChart_addLineLayer(pane.xy, data.data(), RowCount(data), color,
                                 formatLegendName(name, data).c_str(), 0);
}

BarLayer* FinanceChart::addBarIndicator(FinancePane& pane, Series data, int color, const char* name) {
    BarLayer* layer = CXYChart_addBarLayer(pane.xy, data.data(), RowCount(data), color,
                                           formatLegendName(name, data).c_str(), 0);
    CLayer_setBorderColor(BarLayer2Layer(layer), CHART_TRANSPARENT, 0);
    return layer;
}
