// Whatever the model and the prices hold, a chart is drawn or is not; the sanitizers' builds watch the rest.
// CHART_RANDOM_MODELS in the environment makes it more of them.

#include "render/finance/draw_finance.h"
#include <QtGlobal>
#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <numeric>
#include <random>

namespace {

class Dice {
public:
    explicit Dice(unsigned seed) : m_random(seed) {}

    int Below(int end) { return static_cast<int>(m_random() % static_cast<unsigned>(end)); }
    bool Often() { return Below(12) != 0; }

    int Whole(int from, int to) {
        static constexpr int odd[] = {0, 1, -1, -1000, 70000, INT32_MIN, INT32_MAX};
        return Often() ? from + Below(to - from + 1) : odd[Below(std::ssize(odd))];
    }
    double Real() {
        using Limits = std::numeric_limits<double>;
        static constexpr double odd[] = {
            0,      -1,    CHART_NO_VALUE, Limits::quiet_NaN(), Limits::infinity(),
            -1e308, 1e300, 5e-324,         -Limits::infinity(), 1e17};
        return Often() ? Below(2000) / 10.0 : odd[Below(std::ssize(odd))];
    }
    std::vector<double> Series(int rows) {
        std::vector<double> series(static_cast<std::size_t>(Often() ? rows : Below(rows + 1)));
        std::generate(series.begin(), series.end(), [&] { return Real(); });
        return series;
    }
    void Fill(CChartColor& color) {
        color.m_type = Below(4);
        color.m_color = static_cast<std::uint32_t>(m_random());
        color.m_direction = Whole(0, 360);
        color.m_patternFile = "no such file";
    }

private:
    std::mt19937 m_random;
};

CFinanceChart randomModel(Dice& dice) {
    CFinanceChart look;
    for (std::int32_t& pane : look.m_order)
        pane = dice.Whole(0, 4);
    for (std::int32_t* height : {&look.m_mainHeight, &look.m_volBarsHeight, &look.m_rsiHeight,
                                 &look.m_momentumHeight, &look.m_ssHeight, &look.m_macdHeight})
        *height = dice.Whole(0, 150);
    for (std::int32_t* period : {&look.m_smaPeriod, &look.m_bbPeriod, &look.m_dcPeriod, &look.m_rsiPeriod,
                                 &look.m_momentumPeriod, &look.m_ssPeriod1, &look.m_ssPeriod2,
                                 &look.m_macdPeriod1, &look.m_macdPeriod2, &look.m_macdPeriod3})
        *period = dice.Whole(1, 30);
    look.m_bbBandWidth = dice.Real();
    look.m_rsiRange = dice.Real();
    for (bool* show : {&look.m_showSma, &look.m_showHloc, &look.m_showBollingerBand, &look.m_showVolBars,
                       &look.m_showCandleStick, &look.m_showDonchianChannel, &look.m_showRsi,
                       &look.m_showMomentum, &look.m_showSlowStochastic, &look.m_showMacd})
        *show = dice.Below(2) != 0;
    for (CChartColor* color :
         {&look.m_smaColor, &look.m_hlocUpColor, &look.m_hlocDownColor, &look.m_bbFillColor,
          &look.m_bbLineColor, &look.m_volUpColor, &look.m_candleUpColor, &look.m_candleDownColor,
          &look.m_dcFillColor, &look.m_rsiUpColor, &look.m_macdDivergentColor, &look.m_ssColor1})
        dice.Fill(*color);
    return look;
}

TEST(FinanceRandom, AnyModelOfAnyPricesIsDrawnOrIsNot) {
    const int models = std::max(200, qEnvironmentVariableIntValue("CHART_RANDOM_MODELS"));
    int pictures = 0;
    for (int seed = 0; seed < models; ++seed) {
        Dice dice(static_cast<unsigned>(seed));
        const CFinanceChart look = randomModel(dice);
        const int rows = dice.Below(5) == 0 ? dice.Below(3) : dice.Below(400);
        std::vector<double> series[6];
        for (std::vector<double>& values : series)
            values = dice.Series(rows);
        if (dice.Often()) { // times that a chart can be of
            std::fill(series[0].begin(), series[0].end(), dice.Below(3) * 43200.0);
            std::partial_sum(series[0].begin(), series[0].end(), series[0].begin());
        }
        FinanceChart chart(dice.Whole(40, 600));
        DressFinanceChart(chart, CChartLayout(), true);
        chart.setData({series[0], series[1], series[2], series[3], series[4], series[5]}, dice.Whole(0, 40));
        AddFinancePanes(chart, look);
        const char* bytes = nullptr;
        int length = 0;
        pictures += CBaseChart_makeChart2(chart.Chart(), CHART_FORMAT_BMP, &bytes, &length);
    }
    EXPECT_GT(pictures, models / 3);
}

} // namespace
