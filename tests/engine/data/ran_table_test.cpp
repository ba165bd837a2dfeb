#include "engine/data/ran_table.h"
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace chartdraw {
namespace {
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

std::vector<double> columnOf(const RanTable& table, int index) {
    const auto column = table.column(index);
    return {column.begin(), column.end()};
}

std::vector<double> filled(int seed, int column, double minimum, double maximum, int rows = 3) {
    RanTable table(seed, 8, rows);
    table.setCol(column, minimum, maximum);
    return columnOf(table, column);
}
} // namespace

// Calculated with a second implementation of the generator in whole numbers of unlimited size, which was
// itself checked against the published sequence of seed 1234567 (6457827717110365317, ...).
TEST(RanTable, TheSequenceNeverChanges) {
    using Numbers = std::vector<double>;
    EXPECT_EQ(filled(9, 0, 0, 1), (Numbers{0.2128878334709854, 0.881829896419184, 0.32768151078441876}));
    EXPECT_EQ(filled(9, 5, 0, 1), (Numbers{0.9147118273567436, 0.2060616539740059, 0.750534633723213}));
    EXPECT_EQ(filled(-1, 0, 0, 1), (Numbers{0.6179694563434383, 0.8052456633403555, 0.6377479218026851}));
    EXPECT_EQ(filled(9, 5, 50e6, 250e6), (Numbers{232942365.47134873, 91212330.79480118, 200106926.74464262}));
}

TEST(RanTable, AColumnDoesNotDependOnTheOthers) {
    RanTable table(7, 6, 50);
    table.setCol(3, 0, 10);
    table.setHLOCCols(0, 5, -1, 1, 0, 10);
    table.setCol(5, 0, 10);
    table.setCol(5, 0, 10);
    RanTable alone(7, 8, 50);
    alone.setCol(5, 0, 10);
    EXPECT_EQ(columnOf(table, 5), columnOf(alone, 5));
    EXPECT_NE(filled(7, 5, 0, 10), filled(7, 4, 0, 10));
    EXPECT_NE(filled(7, 5, 0, 10), filled(8, 5, 0, 10));
}

TEST(RanTable, ValuesFillTheirRangeEvenly) {
    for (int seed = -20; seed < 20; ++seed) {
        const auto column = filled(seed, 0, -50, 150, 4000);
        int tenths[10] = {};
        for (const double value : column) {
            ASSERT_GE(value, -50);
            ASSERT_LE(value, 150);
            ++tenths[std::min(static_cast<int>((value + 50) / 20), 9)];
        }
        // 400 expected; 19 is the standard deviation of a fair count.
        EXPECT_GT(*std::min_element(tenths, tenths + 10), 310) << seed;
        EXPECT_LT(*std::max_element(tenths, tenths + 10), 490) << seed;
    }
}

struct Walk {
    double start, minDelta, maxDelta, lower, upper;
    double low, high, fall, rise; ///< the limits and steps that hold
};

TEST(RanTable, PriceRowsAreConsistentAndBounded) {
    const Walk walks[] = {
        {100, -5, 5, 0, 1e308, 0, 8e307, -5, 5},
        {25, -5, 5, 0, 50, 0, 50, -5, 5},
        {50, -172800, 172800, 100, 200, 100, 200, -172800, 172800}, // start below the limits
        {5, -1, 1, 10, 0, 0, 10, -1, 1},                            // limits exchanged
        {5, 1, -1, 0, 10, 0, 10, -1, 1},                            // deltas exchanged
        {5, 2, 3, 0, 10, 0, 10, 2, 3},                              // only upwards: ends at the limit
        {5, 0, 0, 0, 10, 5, 5, 0, 0},
        {kNaN, -1, 1, kNaN, kNaN, -8e307, 8e307, -1, 1},
        {0, -kInfinity, kInfinity, -kInfinity, kInfinity, -8e307, 8e307, -1.6e308, 1.6e308},
        {3, kNaN, kNaN, 0, 10, 3, 3, 0, 0},
        {1e308, -5, 5, 4, 4, 4, 4, -5, 5},
    };
    for (const Walk& walk : walks) {
        for (int seed = 0; seed < 200; ++seed) {
            SCOPED_TRACE(testing::Message() << walk.start << ' ' << walk.lower << " seed " << seed);
            RanTable table(seed, 5, 130);
            table.setHLOCCols(1, walk.start, walk.minDelta, walk.maxDelta, walk.lower, walk.upper);
            const auto high = table.column(1), low = table.column(2), open = table.column(3), close = table.column(4);
            for (std::size_t i = 0; i < 130; ++i) {
                ASSERT_LE(walk.low, low[i]);
                ASSERT_LE(low[i], std::min(open[i], close[i]));
                ASSERT_GE(high[i], std::max(open[i], close[i]));
                ASSERT_LE(high[i], walk.high);
                // A step may be shortened by a limit, and only then.
                const double step = close[i] - open[i];
                const double slack = 1e-9 * std::max(1.0, std::fabs(open[i]));
                ASSERT_TRUE(step <= walk.rise + slack || close[i] == walk.low);
                ASSERT_TRUE(step >= walk.fall - slack || close[i] == walk.high);
                if (i > 0) ASSERT_EQ(open[i], close[i - 1]);
            }
        }
    }
}
} // namespace chartdraw
