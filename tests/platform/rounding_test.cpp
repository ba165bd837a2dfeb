#include "platform/rounding.h"
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <tuple>

namespace {
TEST(RoundTo, RoundsHalfAwayFromZeroAndWraps) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    // Worked by hand: sign * trunc(|v| * 10^d + 0.5), taken as 32 bits with a sign, / 10^d.
    const std::tuple<double, int, double> cases[] = {
        {0, 2, 0},
        {1.234, 2, 1.23},
        {1.235, 2, 1.24}, // 123.5 + 0.5
        {-1.236, 2, -1.24},
        {0.125, 2, 0.13},
        {-0.004, 2, 0},
        {1.25, 1, 1.3},
        {21474836.47, 2, 21474836.47},
        {21474836.48, 2, -21474836.48},
        {-21474836.48, 2, 21474836.48},
        {42949672.96, 2, 0},
        {42949673.96, 2, 1},
        {1.2, 0, 2},
        {-1.2, 0, 1}, // the sign twice
        {-2.0, -3, 2},
        {kInfinity, 2, 0},
        {-kInfinity, 2, 0},
        {1e308, 2, 0},
        {std::nan(""), 2, 0},
    };
    for (const auto& [value, digits, rounded] : cases) {
        EXPECT_DOUBLE_EQ(RoundTo(value, digits), rounded) << value << ' ' << digits;
        EXPECT_FALSE(std::signbit(RoundTo(value, digits)) && rounded == 0) << value;
    }
}
} // namespace
