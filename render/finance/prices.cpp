// Prices and volumes on the main pane.

#include "render/finance/finance_chart.h"
#include <algorithm>
#include <cmath>

static double ValueAt(Series data, int row) {
    return row >= 0 && row < RowCount(data) ? data[static_cast<std::size_t>(row)] : CHART_NO_VALUE;
}

/// About how many characters the labels of an axis from `low` to `high` have.
static int LabelLength(double low, double high) {
    const double largest = std::max(std::abs(low), std::abs(high));
    const double step = (high - low) / 5;
    const int digits = largest >= 10 ? static_cast<int>(std::log10(largest)) + 1 : 1;
    const int decimals = step > 0 ? std::clamp(static_cast<int>(std::ceil(-std::log10(step))), 0, 9) : 0;
    return (low < 0) + std::min(digits, 9) + (decimals > 0 ? decimals + 1 : 0);
}

void FinanceChart::fitPriceLabels() {
    double low = 0, high = 0;
    bool any = false;
    for (const Series series : {Series(m_highData), Series(m_lowData)}) {
        for (std::size_t row = static_cast<std::size_t>(m_extraPoints); row < series.size(); ++row) {
            if (series[row] == CHART_NO_VALUE)
                continue;
            low = any ? std::min(low, series[row]) : series[row];
            high = any ? std::max(high, series[row]) : series[row];
            any = true;
        }
    }
    constexpr int perCharacter = 7, besides = 5; // pixels, of labels of 8 points
    m_rightMargin = std::max(m_rightMargin, besides + perCharacter * LabelLength(low, high));
}

void FinanceChart::addPriceLegend(int upColor, int downColor, bool candleStickMode) {
    const int last = lastIndex(m_closeData);
    if (last < 0)
        return;
    const double open = ValueAt(m_openData, last);
    const double close = ValueAt(m_closeData, last);
    std::string text;
    const auto add = [&](const char* name, double value) {
        if (value != CHART_NO_VALUE)
            text += (text.empty() ? "" : ", ") + (name + formatValue(value));
    };
    add("Op:", open);
    add("Hi:", ValueAt(m_highData, last));
    add("Lo:", ValueAt(m_lowData, last));
    add("Cl:", close);

    bool rose = close >= open;
    if (!candleStickMode) {
        const CSeriesMath change(m_closeData);
        CArrayMath_delta(change, 1);
        const int lastChange = lastIndex(change.Rows());
        rose = lastChange < 0 || ValueAt(change.Rows(), lastChange) >= 0;
    }
    CLegendBox_addKey(CBaseChart_getLegend(m_mainChart->chart.Get()), text.c_str(),
                      rose ? upColor : downColor, 0, nullptr);
}

std::string FinanceChart::toolTipFormat() const {
    const std::string* date = &m_toolTipHourFormat;
    if (timeCount() > m_extraPoints) {
        constexpr double day = 86400;
        const double spacing = (m_timeStamps.back() - m_timeStamps.front()) / timeCount();
        if (spacing >= 30 * day)
            date = &m_toolTipMonthFormat;
        else if (spacing >= day)
            date = &m_toolTipDayFormat;
    }
    const auto field = [&](const char* name) {
        return std::string("{") + name + "|" + m_generalFormat + "}";
    };
    return "title='" + *date + " Op:" + field("open") + ", Hi:" + field("high") + ", Lo:" + field("low") +
           ", Cl:" + field("close") + "'";
}

HLOCLayer* FinanceChart::addHLOC(int upColor, int downColor) {
    addPriceLegend(upColor, downColor, false);
    HLOCLayer* layer = CXYChart_addHLOCLayer(
        m_mainChart->xy, m_highData.data(), RowCount(m_highData), m_lowData.data(), RowCount(m_lowData),
        m_openData.data(), RowCount(m_openData), m_closeData.data(), RowCount(m_closeData), -1);
    CHLOCLayer_setColorMethod(layer, CHART_UP_DOWN, upColor, downColor, -CHART_NO_VALUE);
    BaseBoxLayer* boxes = HLOCLayer2BaseBoxLayer(layer);
    CLayer_setHTMLImageMap(BaseBoxLayer2Layer(boxes), "", "", toolTipFormat().c_str());
    CBaseBoxLayer_setDataGap(boxes, 0);
    return layer;
}

CandleStickLayer* FinanceChart::addCandleStick(int upColor, int downColor) {
    addPriceLegend(upColor, downColor, true);
    CandleStickLayer* layer = CXYChart_addCandleStickLayer(
        m_mainChart->xy, m_highData.data(), RowCount(m_highData), m_lowData.data(), RowCount(m_lowData),
        m_openData.data(), RowCount(m_openData), m_closeData.data(), RowCount(m_closeData), upColor,
        downColor, CHART_LINE_COLOR);
    BaseBoxLayer* boxes = CandleStickLayer2BaseBoxLayer(layer);
    CLayer_setHTMLImageMap(BaseBoxLayer2Layer(boxes), "", "", toolTipFormat().c_str());
    const int shown = RowCount(m_highData) - m_extraPoints;
    if (shown > 60)
        CBaseBoxLayer_setDataGap(boxes, 0);
    if (shown > 0) {
        const int dots = plotWidth() / shown;
        if (dots <= 5) // odd, so that the wick stands in the middle of the body
            CBaseBoxLayer_setDataWidth(boxes, dots - dots % 2 + 1);
    }
    return layer;
}

/// Squeezes the second axis to the bottom of the pane.
void FinanceChart::placeVolAxis(FinancePane& pane, int height) const {
    Axis* axis = CXYChart_yAxis2(pane.xy);
    configureYAxis(axis, height);
    const std::int64_t picture = CDrawArea_getHeight(CBaseChart_getDrawArea(pane.chart.Get()));
    const std::int64_t above = picture - m_topMargin - m_bottomMargin - height + m_yAxisMargin;
    CAxis_setMargin(axis, static_cast<int>(std::max<std::int64_t>(above, 0)), 0);
}

BarLayer* FinanceChart::addVolBars(int height, int upColor, int downColor, int flatColor) {
    return addVolBarsToChart(*m_mainChart, height, upColor, downColor, flatColor);
}

BarLayer* FinanceChart::addVolBarsToChart(FinancePane& pane, int height, int upColor, int downColor,
                                          int flatColor) {
    const CSeriesMath change(m_closeData);
    CArrayMath_delta(change, 1);
    const Series changes = change.Rows();
    const auto rowsWhere = [&](auto select) {
        CSeriesMath rows(m_volData);
        select(rows, changes.data(), RowCount(changes), 0);
        return rows;
    };
    const CSeriesMath rising = rowsWhere(CArrayMath_selectGTZ);
    const CSeriesMath falling = rowsWhere(CArrayMath_selectLTZ);
    const CSeriesMath unchanged = rowsWhere(CArrayMath_selectEQZ);
    BarLayer* up = addBarIndicator(pane, rising.Rows(), upColor, "");
    BarLayer* down = addBarIndicator(pane, falling.Rows(), downColor, "");
    BarLayer* flat = addBarIndicator(pane, unchanged.Rows(), flatColor, "");

    const double largest = CArrayMath_max(CSeriesMath(m_volData));
    const bool onMain = &pane == m_mainChart;
    if (onMain) {
        placeVolAxis(pane, height);
        for (BarLayer* layer : {up, down, flat})
            CLayer_setUseYAxis2(BarLayer2Layer(layer), true);
    }
    Axis* axis = onMain ? CXYChart_yAxis2(pane.xy) : CXYChart_yAxis(pane.xy);
    CAxis_setLabelFormat(axis, ((largest < 10 ? "{value|1}" : "{value}") + m_volUnit).c_str());

    const int last = lastIndex(m_volData);
    const double lastChange = ValueAt(changes, last);
    const std::string name = last < 0 ? "Vol" : "Vol: " + formatValue(ValueAt(m_volData, last)) + m_volUnit;
    BarLayer* named = lastChange == 0 || lastChange == CHART_NO_VALUE ? flat : lastChange > 0 ? up : down;
    CDataSet_setDataName(CLayer_getDataSet(BarLayer2Layer(named), 0), name.c_str());
    return named;
}
