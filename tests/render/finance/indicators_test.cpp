// The numbers of every indicator, worked out by hand from its definition, as the layers get them.

#include "render/finance/finance_chart.h"
#include "tests/expect.h"
#include "tests/recorder/recorder.h"
#include <functional>
#include <gmock/gmock.h>
#include <sstream>

namespace {
using Rows = std::vector<double>;

constexpr double _ = CHART_NO_VALUE;

/// Numbers between blanks; "_" is a missing one.
Rows rowsOf(std::string_view text) {
    Rows rows;
    std::istringstream words{std::string(text)};
    for (std::string word; words >> word;) rows.push_back(word == "_" ? CHART_NO_VALUE : std::stod(word));
    return rows;
}

struct Case {
    const char* name;
    const char* prices; ///< closes; then, after bars, highs and lows, which else are the closes, and volumes
    std::function<void(FinanceChart&)> add;
    const char* series; ///< of the lines and bars that are added, between bars
    const char* names;
};

std::vector<std::string> parts(const std::string& text) {
    std::vector<std::string> found(1);
    for (const char c : text) c == '|' ? found.emplace_back() : found.back() += c;
    return found;
}

class Indicators : public testing::TestWithParam<Case> {};

TEST_P(Indicators, AreExact) {
    std::vector<Rows> prices;
    for (const std::string& part : parts(GetParam().prices)) prices.push_back(rowsOf(part));
    prices.resize(4);
    for (const std::size_t missing : {1U, 2U})
        if (prices[missing].empty()) prices[missing] = prices[0];
    Rows times(prices[0].size());
    for (std::size_t row = 0; row < times.size(); ++row) times[row] = 86400 * static_cast<double>(row);
    FinanceChart chart(500);
    chart.setData({times, prices[1], prices[2], prices[0], prices[0], prices[3]}, 0);
    chart.addMainChart(200);
    const recorder::Recording recording;
    GetParam().add(chart);
    const std::vector<std::string> series = parts(GetParam().series);
    std::size_t added = 0;
    std::string names;
    for (const std::string& line : recording.Lines()) {
        if (!line.starts_with("CXYChart_addLineLayer(") && !line.starts_with("CXYChart_addBarLayer(")) continue;
        std::istringstream list(line.substr(line.find('[') + 1));
        Rows rows;
        for (double value; list >> value; list.ignore(1)) rows.push_back(value);
        ASSERT_LT(added, series.size());
        EXPECT_THAT(rows, testing::Pointwise(testing::DoubleNear(1e-12), rowsOf(series[added]))) << added;
        const std::size_t quote = line.find('"');
        names += added++ > 0 ? "|" : "";
        names += quote == std::string::npos ? "" : line.substr(quote + 1, line.rfind('"') - quote - 1);
    }
    EXPECT_EQS((names, GetParam().names), (added, series.size()));
}

auto sma(int period) {
    return [=](FinanceChart& chart) { chart.addSimpleMovingAvg(period, 0); };
}
auto bollinger(int period, double width) {
    return [=](FinanceChart& chart) { chart.addBollingerBand(period, width, 0, 0); };
}
auto donchian(int period) {
    return [=](FinanceChart& chart) { chart.addDonchianChannel(period, 0, 0); };
}
auto rsi(int period) {
    return [=](FinanceChart& chart) { chart.addRSI(70, period, 0, 20, 0, 0); };
}
auto momentum(int period) {
    return [=](FinanceChart& chart) { chart.addMomentum(70, period, 0); };
}
auto stochastic(int period1, int period2) {
    return [=](FinanceChart& chart) { chart.addSlowStochastic(70, period1, period2, 0, 0); };
}
auto macd(int slow, int fast, int signal) {
    return [=](FinanceChart& chart) { chart.addMACD(70, slow, fast, signal, 0, 0, 0); };
}
void volume(FinanceChart& chart) { chart.addVolBars(70, 0, 0, 0); }

const char* const rising = "1 2 4 7 5";
const char* const constant = "5 5 5 5 5";
const char* const missing = "1 2 _ 4 5 7";

const Case cases[] = {
    {"Sma", rising, sma(2), "_ 1.5 3 5.5 6", "SMA (2): 6"},
    {"SmaMissingDay", missing, sma(2), "_ 1.5 _ _ 4.5 6", "SMA (2): 6"},
    {"SmaPeriod0", rising, sma(0), rising, "SMA (0): 5"},
    {"SmaLongerThanData", rising, sma(6), "_ _ _ _ _", "SMA (6)"},
    {"SmaNoRows", "", sma(2), "", "SMA (2)"},

    // Of two rows the deviation is half their difference: 0.5, 1, 1.5, 1. Upper line first, lower named first.
    {"Bollinger", rising, bollinger(2, 2), "_ 2.5 5 8.5 8|_ 0.5 1 2.5 4", "Bollinger (2, 2): 4 - 8|"},
    {"BollingerNotBelow0", rising, bollinger(2, 4), "_ 3.5 7 11.5 10|_ 0 0 0 2", "Bollinger (2, 4): 2 - 10|"},
    // Of three rows 1, 2, 3 it is the root of 2 / 3, and three roots of 6 / 9 are the root of 6.
    {"BollingerOfThree", "1 2 3", bollinger(3, 1.5), "_ _ 3.2247448713915890491|_ _ 0.77525512860841095",
     "Bollinger (3, 1.5): 0.775255 - 3.22474|"},
    {"BollingerPeriod0", rising, bollinger(0, 2), "1 2 4 7 5|1 2 4 7 5", "Bollinger (0, 2): 5 - 5|"},

    {"Donchian", "2 4 1|3 5 4|1 2 0", donchian(2), "_ 5 5|_ 1 0", "Donchian (2): 0 - 5|"},
    {"DonchianMissingDay", missing, donchian(3), "_ _ _ _ _ 7|_ _ _ _ _ 4", "Donchian (3): 4 - 7|"},

    // Changes 1, 2, -1, 0, 0: rises of 1.5, 1, 0, 0 on the average of two, in all 1.5, 1.5, 0.5, 0.
    {"Rsi", "1 2 4 3 3 3", rsi(2), "_ _ 100 66.66666666666666667 0 50", "RSI (2): 50"},
    {"RsiMissingDay", missing, rsi(1), "_ 100 _ _ 100 100", "RSI (1): 100"},
    {"RsiConstant", constant, rsi(2), "_ _ 50 50 50", "RSI (2): 50"},

    {"Momentum", rising, momentum(2), "_ _ 3 5 1", "Momentum (2): 1"},
    {"MomentumMissingDay", missing, momentum(1), "_ 1 _ _ 1 2", "Momentum (1): 2"},

    // Of two rows lowest 2, 2, 4, 4 and highest 6, 8, 8, 8; the close stands at 75, 50, 100 and 0 % of that.
    {"Stochastic", "3 5 5 8 4|4 6 8 8 8|2 2 4 4 4", stochastic(2, 2), "_ _ _ 75 50|_ _ _ _ 62.5",
     "Slow Stochastic %K (2): 50|%D (2): 62.5"},
    {"StochasticConstant", constant, stochastic(2, 1), "_ _ _ 50 50|_ _ _ 50 50",
     "Slow Stochastic %K (2): 50|%D (1): 50"},

    // Factors 1/2, 1 and 1/2: the slow average is 8, 12, 10.
    {"Macd", "8 16 8", macd(3, 1, 3), "0 4 -2|0 2 0|0 2 -2", "MACD (3, 1): -2|EXP (3): 0|Divergence: -2"},
    {"MacdMissingDay", "8 _ 16 8", macd(3, 1, 3), "0 _ 4 -2|0 _ 2 0|0 _ 2 -2",
     "MACD (3, 1): -2|EXP (3): 0|Divergence: -2"},

    // In thousands: the first row has no change, so it is in no layer.
    {"Volume", "1 2 2 1 1|||5000 1000 2000 3000 4000", volume, "_ 1 0 0 0|_ 0 0 3 0|_ 0 2 0 4", "||"},
    {"VolumeMissingDay", "1 2 _ 1|||1 2 3 _", volume, "_ 2 _ _|_ 0 _ _|_ 0 _ _", "||"},
};

INSTANTIATE_TEST_SUITE_P(Finance, Indicators, testing::ValuesIn(cases),
                         [](const auto& test) { return test.param.name; });

std::vector<std::string> volumeTexts(const Rows& closes, const Rows& volumes) {
    Rows times(closes.size());
    FinanceChart chart(500);
    chart.setData({times, closes, closes, closes, closes, volumes}, 0);
    FinancePane& pane = chart.addIndicator(70);
    const recorder::Recording recording;
    chart.addVolBarsToChart(pane, 70, 0, 0, 0);
    std::vector<std::string> texts;
    for (const std::string& line : recording.Lines())
        if (line.starts_with("CAxis_setLabelFormat") || line.starts_with("CLayer_getDataSet") ||
            line.starts_with("CDataSet_setDataName"))
            texts.push_back(line.substr(line.find(line.starts_with("CL") ? "Layer#" : "\"")));
    return texts;
}

TEST(FinanceVolume, SaysUnitAndLastValueWithTheLayerOfTheLastRow) {
    // format of the axis, layer of up, down or flat, and its name
    const std::tuple<Rows, Rows, std::vector<std::string>> rows[] = {
        {{1, 2}, {1, 999}, {R"("{value}"))", "Layer#1, 0)", R"("Vol: 999"))"}},
        {{2, 1}, {1, 1000}, {R"("{value|1}K"))", "Layer#2, 0)", R"("Vol: 1K"))"}},
        {{2, 2}, {1, 1e6}, {R"("{value|1}M"))", "Layer#3, 0)", R"("Vol: 1M"))"}},
        {{2, 2, _}, {1, 2e10, _}, {R"("{value}B"))", "Layer#3, 0)", R"("Vol: 20B"))"}},
        {{1, 2}, {}, {R"("{value|1}"))", "Layer#3, 0)", R"("Vol"))"}},
        {{1, 2}, {_, _}, {R"("{value|1}"))", "Layer#3, 0)", R"("Vol"))"}},
        {{1}, {5, 6}, {R"("{value|1}"))", "Layer#3, 0)", R"("Vol: 6"))"}}, // more volumes than closes
    };
    for (const auto& [closes, volumes, texts] : rows) EXPECT_EQ(volumeTexts(closes, volumes), texts);
}

TEST(FinanceLegend, SaysThePricesOfTheLastCloseInTheColourOfItsWay) {
    const struct {
        Rows open, high, low, close;
        std::string hloc, candle; // text and colour, 1 up or 2 down
    } rows[] = {
        {{1, 4}, {5, 6}, {0, 3}, {2, 5}, R"("Op:4, Hi:6, Lo:3, Cl:5", 1)", R"("Op:4, Hi:6, Lo:3, Cl:5", 1)"},
        {{1, 6}, {5, 6}, {0, 3}, {2, 5}, R"("Op:6, Hi:6, Lo:3, Cl:5", 1)", R"("Op:6, Hi:6, Lo:3, Cl:5", 2)"},
        {{1, 4}, {8, 6}, {0, 3}, {7, 5}, R"("Op:4, Hi:6, Lo:3, Cl:5", 2)", R"("Op:4, Hi:6, Lo:3, Cl:5", 1)"},
        {{1, 4}, {5, 6}, {0, 3}, {2, _}, R"("Op:1, Hi:5, Lo:0, Cl:2", 1)", R"("Op:1, Hi:5, Lo:0, Cl:2", 1)"},
        {{}, {5}, {0, 3}, {2, 5}, R"("Lo:3, Cl:5", 1)", R"("Lo:3, Cl:5", 2)"},
        {{1}, {2}, {1}, {_}, "", ""},
    };
    const auto key = [](const auto& row, bool candles) {
        const Rows times(2);
        FinanceChart chart(500);
        chart.setData({times, row.high, row.low, row.open, row.close, {}}, 0);
        chart.addMainChart(200);
        const recorder::Recording recording;
        chart.addPriceLegend(1, 2, candles);
        const std::string line = recording.Count("CLegendBox_addKey") > 0 ? recording.Lines().back() : "";
        const std::size_t quote = std::min(line.find('"'), line.size());
        return line.substr(quote, std::min(line.find(", 0, null"), line.size()) - quote);
    };
    for (const auto& row : rows) EXPECT_EQS((key(row, false), row.hloc), (key(row, true), row.candle));
}
} // namespace
