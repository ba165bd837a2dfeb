#include "engine/data/array_math.h"
#include "engine/data/no_value.h"
#include <algorithm>
#include <climits>
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace chartdraw {
namespace {
using Series = std::vector<double>;
using Operation = std::function<void(ArrayMath&)>;

constexpr double N = kNoValue;
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

Series run(const Series& values, const Operation& operation) {
    ArrayMath math(values);
    operation(math);
    return {math.result().begin(), math.result().end()};
}

struct Case {
    const char* name;
    Series values;
    Operation operation;
    Series expected;
};

void check(const std::vector<Case>& cases) {
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const Series result = run(c.values, c.operation);
        ASSERT_EQ(result.size(), c.expected.size());
        for (std::size_t i = 0; i < result.size(); ++i) EXPECT_DOUBLE_EQ(result[i], c.expected[i]) << "row " << i;
    }
}
} // namespace

TEST(ArrayMath, OddIntervals) {
    const Series values = {4, N, 9};
    for (const int interval : {1, 0, -1, INT_MIN}) {
        SCOPED_TRACE(interval);
        check({
            {"delta", {4, 5, 7}, [=](ArrayMath& a) { a.delta(interval); }, {N, 1, 2}},
            {"movAvg", values, [=](ArrayMath& a) { a.movAvg(interval); }, values},
            {"movMax", values, [=](ArrayMath& a) { a.movMax(interval); }, values},
            {"movMin", values, [=](ArrayMath& a) { a.movMin(interval); }, values},
            {"movStdDev", values, [=](ArrayMath& a) { a.movStdDev(interval); }, {0, N, 0}},
        });
    }
    for (const int interval : {4, INT_MAX}) {
        SCOPED_TRACE(interval);
        for (const Series& any : {Series{1, 2, 3}, Series{}}) {
            const Series none(any.size(), N);
            check({
                {"delta", any, [=](ArrayMath& a) { a.delta(interval); }, none},
                {"movAvg", any, [=](ArrayMath& a) { a.movAvg(interval); }, none},
                {"movMax", any, [=](ArrayMath& a) { a.movMax(interval); }, none},
                {"movMin", any, [=](ArrayMath& a) { a.movMin(interval); }, none},
                {"movStdDev", any, [=](ArrayMath& a) { a.movStdDev(interval); }, none},
            });
        }
    }
}

// Against the definition, window by window, in the longer floating type.
TEST(ArrayMath, MovingOperationsMeetTheirDefinition) {
    std::mt19937 random(42);
    for (int round = 0; round < 300; ++round) {
        Series values(random() % 80);
        const double level = round % 3 == 0 ? 1e9 : 0; // a small spread on a high level
        for (double& value : values)
            value = random() % 25 == 0 ? N : level + static_cast<double>(random() % 10000) / 100 - 50;
        const int interval = 1 + static_cast<int>(random() % 20);
        const Series avg = run(
            values, [=](ArrayMath& a) { a.movAvg(interval); });
        const Series deviation = run(
            values, [=](ArrayMath& a) { a.movStdDev(interval); });
        const Series highest = run(
            values, [=](ArrayMath& a) { a.movMax(interval); });
        const Series lowest = run(values, [=](ArrayMath& a) { a.movMin(interval); });
        for (int row = 0; row < std::ssize(values); ++row) {
            SCOPED_TRACE(testing::Message() << "round " << round << " row " << row << " of " << interval);
            const auto at = static_cast<std::size_t>(row);
            const Series window(values.begin() + std::max(row + 1 - interval, 0), values.begin() + row + 1);
            if (std::ssize(window) < interval || std::count(window.begin(), window.end(), N) > 0) {
                ASSERT_EQ((Series{avg[at], deviation[at], highest[at], lowest[at]}), (Series{N, N, N, N}));
                continue;
            }
            long double sum = 0, squares = 0;
            for (const double value : window) sum += value;
            const long double mean = sum / interval;
            for (const double value : window) squares += (value - mean) * (value - mean);
            const double slack = level > 0 ? 1e-6 : 1e-12;
            ASSERT_NEAR(avg[at], static_cast<double>(mean), slack);
            ASSERT_NEAR(deviation[at], static_cast<double>(std::sqrt(squares / interval)), slack);
            ASSERT_EQ(highest[at], *std::max_element(window.begin(), window.end()));
            ASSERT_EQ(lowest[at], *std::min_element(window.begin(), window.end()));
        }
    }
}

TEST(ArrayMath, LargeNumbersLeaveNoTraceInLaterWindows) {
    Series values(100000, 0.1);
    values[10] = 1e300;
    values[11] = -1e200;
    const Series avg = run(
        values, [](ArrayMath& a) { a.movAvg(5); });
    const Series deviation = run(values, [](ArrayMath& a) { a.movStdDev(5); });
    for (const std::size_t row : {16UL, 5000UL, 99999UL}) {
        EXPECT_DOUBLE_EQ(avg[row], 0.1) << row;
        EXPECT_EQ(deviation[row], 0) << row;
    }
}

// What makes the strength of a market that stands still 0 / 0 and not the quotient of two rounding errors.
TEST(ArrayMath, MeanOfZerosIsZero) {
    Series changes = {0.1, 0.7, 1.3, 0.2};
    changes.resize(20, 0.0);
    const Series mean = run(changes, [](ArrayMath& a) { a.movAvg(4); });
    EXPECT_EQ(Series(mean.begin() + 7, mean.end()), Series(13, 0.0));
}
} // namespace chartdraw
