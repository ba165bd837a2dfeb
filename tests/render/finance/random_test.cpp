// Whatever the model and the prices hold, a chart is drawn or is not; the sanitizers' builds watch the rest.
// CHART_RANDOM_MODELS in the environment makes it more of them.

#include "render/finance/draw_finance.h"
#include "tests/driver/random_model.h"
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

    unsigned Seed() { return static_cast<unsigned>(m_random()); }
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

private:
    std::mt19937 m_random;
};

TEST(FinanceRandom, AnyModelOfAnyPricesIsDrawnOrIsNot) {
    const int models = std::max(200, qEnvironmentVariableIntValue("CHART_RANDOM_MODELS"));
    int pictures = 0;
    for (int seed = 0; seed < models; ++seed) {
        Dice dice(static_cast<unsigned>(seed));
        const auto look = driver::RandomModel(dice.Seed()).Make<CFinanceChart>();
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
