// Indicators over the prices of the main pane: averages and bands.

#include "render/finance/finance_chart.h"
#include <algorithm>
#include <charconv>

static std::string ShortNumber(double value) {
    char text[32];
    const auto end = std::to_chars(text, std::end(text), value, std::chars_format::general, 6).ptr;
    return {text, end};
}

InterLineLayer* FinanceChart::addBand(Series upper, Series lower, int lineColor, int fillColor,
                                      const char* name) {
    std::string text = name;
    std::size_t rows = std::min(upper.size(), lower.size());
    while (rows > 0 && (upper[rows - 1] == CHART_NO_VALUE || lower[rows - 1] == CHART_NO_VALUE))
        --rows;
    if (rows > 0) {
        text += ": " + formatValue(lower[rows - 1]);
        text += " - " + formatValue(upper[rows - 1]);
    }
    XYChart* xy = m_mainChart->xy;
    LineLayer* top = CXYChart_addLineLayer(xy, upper.data(), RowCount(upper), lineColor, text.c_str(), 0);
    LineLayer* bottom = CXYChart_addLineLayer(xy, lower.data(), RowCount(lower), lineColor, nullptr, 0);
    Line* topLine = CLineLayer_getLine(top, 0);
    Line* bottomLine = CLineLayer_getLine(bottom, 0);
    return CXYChart_addInterLineLayer(xy, topLine, bottomLine, fillColor, -1);
}

LineLayer* FinanceChart::addSimpleMovingAvg(int period, int color) {
    const CSeriesMath average(m_closeData);
    CArrayMath_movAvg(average, period);
    const std::string name = "SMA (" + std::to_string(period) + ")";
    return addLineIndicator(*m_mainChart, average.Rows(), color, name.c_str());
}

InterLineLayer* FinanceChart::addBollingerBand(int period, double bandWidth, int lineColor, int fillColor) {
    const CSeriesMath deviation(m_closeData);
    CArrayMath_movStdDev(deviation, period);
    CArrayMath_mul2(deviation, bandWidth);
    const Series distance = deviation.Rows();
    const CSeriesMath average(m_closeData);
    CArrayMath_movAvg(average, period);
    const std::string name = "Bollinger (" + std::to_string(period) + ", " + ShortNumber(bandWidth) + ")";

    const CSeriesMath lower(average.Rows());
    CArrayMath_sub(lower, distance.data(), RowCount(distance));
    CArrayMath_selectGTZ(lower, nullptr, 0, 0); // no price is below 0
    const CSeriesMath upper(average.Rows());
    CArrayMath_add(upper, distance.data(), RowCount(distance));
    return addBand(upper.Rows(), lower.Rows(), lineColor, fillColor, name.c_str());
}

InterLineLayer* FinanceChart::addDonchianChannel(int period, int lineColor, int fillColor) {
    const std::string name = "Donchian (" + std::to_string(period) + ")";
    const CSeriesMath lower(m_lowData);
    CArrayMath_movMin(lower, period);
    const CSeriesMath upper(m_highData);
    CArrayMath_movMax(upper, period);
    return addBand(upper.Rows(), lower.Rows(), lineColor, fillColor, name.c_str());
}
