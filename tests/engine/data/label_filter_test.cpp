#include "engine/data/label_filter.h"
#include "tests/expect.h"

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
    EXPECT_EQS((decodeFilter(0), (LabelFilter{FilterType::StartOfHour, 1, 0})),
               (decodeFilter(3), (LabelFilter{FilterType::StartOfMonth, 1, 0})),
               (decodeFilter(6), (LabelFilter{FilterType::AllPass, 1, 0})),
               (decodeFilter(7), (LabelFilter{FilterType::NonePass, 1, 0})));
}
} // namespace chartdraw
