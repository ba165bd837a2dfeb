// Indicators in panes of their own.

#include "render/finance/finance_chart.h"

static void Divide(const CSeriesMath& by, const CSeriesMath& part, double zeroByZero) {
    const Series divisor = by.Rows();
    CArrayMath_financeDiv(part, divisor.data(), RowCount(divisor), zeroByZero);
}

static void Subtract(const CSeriesMath& from, const CSeriesMath& series) {
    const Series rows = series.Rows();
    CArrayMath_sub(from, rows.data(), RowCount(rows));
}

InterLineLayer* FinanceChart::addThreshold(FinancePane& pane, LineLayer* layer, double topValue, int topColor,
                                           double bottomValue, int bottomColor) {
    Axis* axis = CXYChart_yAxis(pane.xy);
    Mark* top = CAxis_addMark(axis, topValue, topColor, formatValue(topValue).c_str(), nullptr, 8);
    Mark* bottom =
        CAxis_addMark(axis, bottomValue, bottomColor, formatValue(bottomValue).c_str(), nullptr, 8);
    Line* line = CLineLayer_getLine(layer, 0);
    CXYChart_addInterLineLayer(pane.xy, line, CMark_getLine(top), topColor, CHART_TRANSPARENT);
    return CXYChart_addInterLineLayer(pane.xy, line, CMark_getLine(bottom), CHART_TRANSPARENT, bottomColor);
}

CSeriesMath FinanceChart::computeRSI(int period) const {
    const CSeriesMath change(m_closeData);
    CArrayMath_delta(change, 1);
    const CSeriesMath all(change.Rows());
    CArrayMath_abs(all);
    CArrayMath_movAvg(all, period);
    CSeriesMath strength(change.Rows());
    CArrayMath_selectGTZ(strength, nullptr, 0, 0);
    CArrayMath_movAvg(strength, period);
    Divide(all, strength, 0.5); // no change at all is neither strong nor weak
    CArrayMath_mul2(strength, 100);
    return strength;
}

FinancePane& FinanceChart::addRSI(int height, int period, int color, double range, int upColor,
                                  int downColor) {
    FinancePane& pane = addIndicator(height);
    const std::string name = "RSI (" + std::to_string(period) + ")";
    LineLayer* layer = addLineIndicator(pane, computeRSI(period).Rows(), color, name.c_str());
    if (range > 0 && range < 50)
        addThreshold(pane, layer, 50 + range, upColor, 50 - range, downColor);
    CAxis_setLinearScale(CXYChart_yAxis(pane.xy), 0, 100, 0, 0);
    return pane;
}

FinancePane& FinanceChart::addMomentum(int height, int period, int color) {
    const CSeriesMath change(m_closeData);
    CArrayMath_delta(change, period);
    FinancePane& pane = addIndicator(height);
    const std::string name = "Momentum (" + std::to_string(period) + ")";
    addLineIndicator(pane, change.Rows(), color, name.c_str());
    return pane;
}

FinancePane& FinanceChart::addSlowStochastic(int height, int period1, int period2, int color1, int color2) {
    const CSeriesMath lowest(m_lowData);
    CArrayMath_movMin(lowest, period1);
    const CSeriesMath span(m_highData);
    CArrayMath_movMax(span, period1);
    Subtract(span, lowest);
    const CSeriesMath k(m_closeData);
    Subtract(k, lowest);
    Divide(span, k, 0.5);
    CArrayMath_mul2(k, 100);
    CArrayMath_movAvg(k, 3);

    FinancePane& pane = addIndicator(height);
    const std::string kName = "Slow Stochastic %K (" + std::to_string(period1) + ")";
    addLineIndicator(pane, k.Rows(), color1, kName.c_str());
    const CSeriesMath d(k.Rows());
    CArrayMath_movAvg(d, period2);
    const std::string dName = "%D (" + std::to_string(period2) + ")";
    addLineIndicator(pane, d.Rows(), color2, dName.c_str());
    CAxis_setLinearScale(CXYChart_yAxis(pane.xy), 0, 100, 0, 0);
    return pane;
}

FinancePane& FinanceChart::addMACD(int height, int period1, int period2, int period3, int color,
                                   int signalColor, int divColor) {
    const auto average = [](Series series, int period) {
        CSeriesMath rows(series);
        CArrayMath_expAvg(rows, 2 / (period + 1.0));
        return rows;
    };
    FinancePane& pane = addIndicator(height);
    const CSeriesMath slow = average(m_closeData, period1);
    const CSeriesMath macd = average(m_closeData, period2);
    Subtract(macd, slow);
    const std::string name = "MACD (" + std::to_string(period1) + ", " + std::to_string(period2) + ")";
    addLineIndicator(pane, macd.Rows(), color, name.c_str());
    const CSeriesMath signal = average(macd.Rows(), period3);
    const std::string signalName = "EXP (" + std::to_string(period3) + ")";
    addLineIndicator(pane, signal.Rows(), signalColor, signalName.c_str());
    const CSeriesMath divergence(macd.Rows());
    Subtract(divergence, signal);
    addBarIndicator(pane, divergence.Rows(), divColor, "Divergence");
    return pane;
}
