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
        for (std::size_t i = 0; i < result.size(); ++i)
            EXPECT_DOUBLE_EQ(result[i], c.expected[i]) << "row " << i;
    }
}

} // namespace

// Worked by hand.
TEST(ArrayMath, RowByRow) {
    const Series b = {10, 0, N, kNaN, 5};
    check({
        {"create", {1, N, kNaN, kInfinity, -kInfinity, 1e308}, [](ArrayMath&) {}, {1, N, N, N, N, 1e308}},
        {"add", {1, 2, 3, 4, N}, [&](ArrayMath& a) { a.add(b); }, {11, 2, N, N, N}},
        {"sub", {1, 2, 3, 4, 5}, [&](ArrayMath& a) { a.sub(b); }, {-9, 2, N, N, 0}},
        {"add shorter", {1, 2, 3}, [](ArrayMath& a) { a.add(Series{1}); }, {2, N, N}},
        {"add longer", {1}, [&](ArrayMath& a) { a.add(b); }, {11}},
        {"add nothing", {1, 2}, [](ArrayMath& a) { a.add({}); }, {N, N}},
        {"add beyond the range", {1.6e308}, [](ArrayMath& a) { a.add(Series{1.6e308}); }, {N}},
        {"sub itself", {1, N, 3}, [](ArrayMath& a) { a.sub(a.result()); }, {0, N, 0}},
        {"mul", {1, -2, N}, [](ArrayMath& a) { a.mul(2.5); }, {2.5, -5, N}},
        {"mul by none", {1, 0}, [](ArrayMath& a) { a.mul(N); }, {N, N}},
        {"div", {1, -2, N}, [](ArrayMath& a) { a.div(4); }, {0.25, -0.5, N}},
        {"div by 0", {1, 0, N}, [](ArrayMath& a) { a.div(0); }, {N, N, N}},
        {"abs", {-1, 2, N, 0}, [](ArrayMath& a) { a.abs(); }, {1, 2, N, 0}},
        {"financeDiv",
         {1, 0, 1, 0, N, 0, 6},
         [](ArrayMath& a) {
             a.financeDiv(Series{2, 0, 0, 3, 0, N}, 0.5);
         },
         {0.5, 0.5, N, 0, N, N, N}},
        {"empty", {}, [&](ArrayMath& a) { a.add(b); }, {}},
    });
}

TEST(ArrayMath, Select) {
    const Series values = {1, 2, 3, N, 5, 6};
    const Series test = {-1, 0, 7, 7, N};
    check({
        {"GTZ", values, [&](ArrayMath& a) { a.selectGTZ(test, 9); }, {9, 9, 3, N, N, N}},
        {"LTZ", values, [&](ArrayMath& a) { a.selectLTZ(test, 9); }, {1, 9, 9, N, N, N}},
        {"EQZ", values, [&](ArrayMath& a) { a.selectEQZ(test, 9); }, {9, 2, 9, N, N, N}},
        {"GTZ itself", {-1, 0, 2, N}, [](ArrayMath& a) { a.selectGTZ({}, 0); }, {0, 0, 2, N}},
        {"LTZ itself", {-1, 0, 2, N}, [](ArrayMath& a) { a.selectLTZ({}, 5); }, {-1, 5, 5, N}},
        {"EQZ itself", {-1, 0, 2, N}, [](ArrayMath& a) { a.selectEQZ({}, 5); }, {5, 0, 5, N}},
        {"fill none", {-1, 2}, [](ArrayMath& a) { a.selectGTZ({}, N); }, {N, 2}},
    });
}

// Worked by hand; the deviation of 2 4 4 4 5 5 7 9 is the textbooks' example of 2.
TEST(ArrayMath, WithHistory) {
    check({
        {"delta 1", {1, 4, 9, N, 25, 36}, [](ArrayMath& a) { a.delta(1); }, {N, 3, 5, N, N, 11}},
        {"delta 2", {1, 4, 9, 16}, [](ArrayMath& a) { a.delta(2); }, {N, N, 8, 12}},
        {"movAvg 3", {3, 6, 9, 0, N, 1, 2, 3}, [](ArrayMath& a) { a.movAvg(3); }, {N, N, 6, 5, N, N, N, 2}},
        {"movMax 2", {3, 1, 2, 5, 4}, [](ArrayMath& a) { a.movMax(2); }, {N, 3, 2, 5, 5}},
        {"movMin 2", {3, 1, 2, 5, 4}, [](ArrayMath& a) { a.movMin(2); }, {N, 1, 1, 2, 4}},
        {"movStdDev 8",
         {2, 4, 4, 4, 5, 5, 7, 9},
         [](ArrayMath& a) { a.movStdDev(8); },
         {N, N, N, N, N, N, N, 2}},
        {"expAvg", {8, 4, N, 6, 0}, [](ArrayMath& a) { a.expAvg(0.5); }, {8, 6, N, 6, 3}},
        {"expAvg after a gap", {N, kNaN, 4, 8}, [](ArrayMath& a) { a.expAvg(0.25); }, {N, N, 4, 5}},
        {"expAvg 0", {5, 7, 9}, [](ArrayMath& a) { a.expAvg(-3); }, {5, 5, 5}},
        {"expAvg 1", {5, 0.1, 9}, [](ArrayMath& a) { a.expAvg(kInfinity); }, {5, 0.1, 9}},
        {"expAvg NaN", {5, 7}, [](ArrayMath& a) { a.expAvg(kNaN); }, {N, N}},
    });
}

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

TEST(ArrayMath, Max) {
    const std::pair<Series, double> cases[] = {
        {{}, 0}, {{N, kNaN}, 0}, {{-3, N, -2}, -2}, {{N, 1, 7, 3}, 7}, {{kInfinity, 2}, 2},
    };
    for (const auto& [values, largest] : cases)
        EXPECT_EQ(ArrayMath(values).max(), largest) << testing::PrintToString(values);
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
            for (const double value : window)
                sum += value;
            const long double mean = sum / interval;
            for (const double value : window)
                squares += (value - mean) * (value - mean);
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
