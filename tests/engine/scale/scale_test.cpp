// Round numbers and the map from values to fractions; expected values worked by hand.

#include "engine/data/chart_time.h"
#include "engine/data/no_value.h"
#include "engine/scale/nice_numbers.h"
#include "engine/scale/number_text.h"
#include "engine/scale/scale.h"
#include "tests/expect.h"
#include <cfloat>
#include <cmath>
#include <limits>

using namespace chartdraw;

namespace {
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();
} // namespace

TEST(NiceNumbers, Steps) {
    const std::pair<double, double> cases[] = {
        {1, 1},           {1.1, 2},         {2.1, 5},    {5.1, 10},   {10.1, 20}, {21, 25},
        {26, 50},         {210, 250},       {0.21, 0.5}, {0.07, 0.1}, {0.3, 0.5}, {3e-7, 5e-7},
        {1e-300, 1e-300}, {1.5e300, 2e300}, {0, 1},      {-3, 1},     {kNan, 1},  {kInf, 1},
    };
    for (const auto& [least, step] : cases) EXPECT_DOUBLE_EQ(niceStep(least), step) << least;
    // A quotient a hair above a step is that step, and decimal steps carry no noise.
    EXPECT_EQS((niceStep(0.1 + 0.2 - 0.1), 0.2), (niceStep(0.0000002), 0.0000002), (nextNiceStep(20), 25),
               (nextNiceStep(0.2), 0.5));
}

TEST(NiceNumbers, RoundingLeavesNoNoise) {
    EXPECT_EQS((roundToDecimals(3 * 0.1, 1), 0.3), (roundToDecimals(1e9 + 3 * 0.2, 1), 1000000000.6),
               (roundToDecimals(1249, -2), 1200), (roundToDecimals(-0.01, 1), 0),
               (std::signbit(roundToDecimals(-0.01, 1)), false), (roundToDecimals(0.1, 400), 0.1));
    EXPECT_EQ(floorToStep(0.3, 0.1), 3) << "0.3 / 0.1 is below 3 in binary";
    EXPECT_EQS((ceilToStep(0.7, 0.1), 7), (floorToStep(-0.05, 0.1), -1), (ceilToStep(1e300, 1e-300), 1e15));
}

TEST(NiceNumbers, DecimalsAndLabels) {
    EXPECT_EQS((decimalsOf(0.25), 2), (decimalsOf(0.1 + 0.2), 1), (decimalsOf(5000), -3), (exponentOf(0.25), -1),
               (exponentOf(9.9999999999999999), 1), (numberText(12.5, NumberSpec::atMost(2)), "12.5"),
               (numberText(0.126, NumberSpec::atMost(2)), "0.13"));
    using Texts = std::vector<std::string>;
    EXPECT_EQS((stepLabels({0, 0.25, 0.5}, 0.25), (Texts{"0.00", "0.25", "0.50"})),
               (stepLabels({0.5, 1.5}, 1, 0.5), (Texts{"0.5", "1.5"})),
               (stepLabels({0, 1.0 / 3, 2.0 / 3}, 1.0 / 3), (Texts{"0.0000", "0.3333", "0.6667"})),
               (stepLabels({1e15, 1e15 + 1}, 1), (Texts{"1.000000000000000e15", "1.000000000000001e15"})),
               (stepLabels({0, 5e-301, 1e-300}, 5e-301), (Texts{"0", "0.5e-300", "1.0e-300"})));
}

TEST(Scale, FractionsAndBack) {
    const double day = chartTime(2003, 5, 1);
    using Case = std::tuple<Scale, double, double>;
    const Case cases[] = {
        {Scale::linear(-6, 6), 3, 0.75},
        {Scale::linear(100, 0), 25, 0.25},
        {Scale::linear(0, 10), 10, 1},
        {Scale::linear(0, 10), 20, 2},
        {Scale::log(1, 10000), 100, 0.5},
        {Scale::log(0.01, 1), 0.1, 0.5},
        {Scale::date(day, day + 86400), day + 21600, 0.25},
        {Scale::items(4, true), 0, 0.125},
        {Scale::items(5, false), 1, 0.25},
        {Scale::items(1, false), 0, 0.5},
    };
    for (const auto& [scale, value, fraction] : cases) {
        EXPECT_DOUBLE_EQ(scale.fraction(value), fraction) << value;
        EXPECT_NEAR(scale.value(fraction), value, 1e-12 * std::abs(value)) << value;
    }
    EXPECT_EQS((Scale::log(3, 7).value(1), 7), (Scale::linear(0, 0.3).contains(0.1 * 3), true),
               (Scale::linear(0, 0.3).contains(0.31), false), (Scale::linear(0, 5).clamp(9), 5));
}

TEST(Scale, LimitsAreMadeUsable) {
    using Case = std::tuple<Scale, double, double>;
    const double end = kLastChartTime + 1;
    const Case cases[] = {
        {Scale(), 0, 1},
        {Scale::linear(100, 0), 0, 100},
        {Scale::linear(0, 0), 0, 1},
        {Scale::linear(50, 50), 50, 55},
        {Scale::linear(kNan, 8), 0, 8},
        {Scale::linear(kNoValue, kInf), 0, 1},
        {Scale::linear(-DBL_MAX, DBL_MAX), -1e307, 1e307},
        {Scale::linear(1e9, 1e9 + 1), 1e9, 1e9 + 1},
        {Scale::log(0, 1000), 10, 1000},
        {Scale::log(-5, -1), 1, 10},
        {Scale::log(7, 7), 7, 70},
        {Scale::date(-1e9, 1e300), 0, end},
        {Scale::date(86400, 86400), 86400, 172800},
        {Scale::date(end, end), end - 86400, end},
        {Scale::items(-3, false), -0.5, 0.5},
    };
    for (const auto& [scale, lower, upper] : cases) {
        EXPECT_DOUBLE_EQ(scale.lower(), lower);
        EXPECT_DOUBLE_EQ(scale.upper(), upper);
    }
}
