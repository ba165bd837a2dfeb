#include "engine/data/label_filter.h"

#include <climits>
#include <gtest/gtest.h>
#include <limits>

namespace chartdraw {

TEST(LabelFilter, KeepsWhatItIsGiven) {
    for (int type = 1; type <= 8; ++type) {
        for (const int step : {1, 2, 3, 12, 100, 4095}) {
            for (const double margin : {0.0, 0.05, 0.1, 0.5, 0.9999, 1.0}) {
                const int filter = encodeFilter(type, step, margin);
                EXPECT_EQ(decodeFilter(filter), (LabelFilter{static_cast<FilterType>(type), step, margin}));
                EXPECT_TRUE(filter < 0 || filter > 7) << "looks like a row number";
            }
        }
    }
}

TEST(LabelFilter, BareRowNumbersAreTheTypeOfTheirRow) {
    EXPECT_EQ(decodeFilter(0), (LabelFilter{FilterType::StartOfHour, 1, 0}));
    EXPECT_EQ(decodeFilter(3), (LabelFilter{FilterType::StartOfMonth, 1, 0}));
    EXPECT_EQ(decodeFilter(6), (LabelFilter{FilterType::AllPass, 1, 0}));
    EXPECT_EQ(decodeFilter(7), (LabelFilter{FilterType::NonePass, 1, 0}));
}

TEST(LabelFilter, LimitsWhatIsOutOfRange) {
    struct Case {
        int type, step;
        double margin;
        LabelFilter limited;
    };
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    const Case cases[] = {
        {8, 0, 0, {FilterType::NonePass, 1, 0}},
        {0, 1, 0, {FilterType::NonePass, 1, 0}},
        {9, 1, 0, {FilterType::NonePass, 1, 0}},
        {INT_MIN, INT_MIN, -1, {FilterType::NonePass, 1, 0}},
        {2, INT_MAX, infinity, {FilterType::StartOfDay, 4095, 1}},
        {2, 1, -infinity, {FilterType::StartOfDay, 1, 0}},
        {2, 1, nan, {FilterType::StartOfDay, 1, 0}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(decodeFilter(encodeFilter(c.type, c.step, c.margin)), c.limited) << c.type << ' ' << c.step;
}

TEST(LabelFilter, AnyNumberDecodesWithinTheRanges) {
    for (const int other : {-1, 8, 100, 0x3fffffff, INT_MIN})
        EXPECT_EQ(decodeFilter(other), LabelFilter{}) << other;
    for (const int odd : {1 << 30, (1 << 30) + 7, INT_MAX}) {
        const LabelFilter filter = decodeFilter(odd);
        EXPECT_EQ(filter.type, FilterType::NonePass) << odd;
        EXPECT_GE(filter.step, 1);
        EXPECT_LE(filter.initialMargin, 1);
    }
}

} // namespace chartdraw
