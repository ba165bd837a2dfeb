// The recorder: lines in their one form, handles by kind and number, calls passed on to the library.

#include "tests/recorder/recorder.h"
#include <chartdraw/surface.h>
#include <gmock/gmock.h>

using recorder::Recording;
using testing::ElementsAre;

TEST(Recorder, KnowsAllOperations) { EXPECT_EQ(recorder::operationCount, 222); }

TEST(Recorder, WritesNumbersTextsAndArraysInOneForm) {
    CChart_metalColor(1, 2); // before the recording
    const Recording recording;
    CChart_chartTime(2001, 1, -1, 0, 65535, 65536);
    CChart_metalColor(-1, static_cast<int>(0xff000000));
    CChart_encodeFilter(6, 1, 0.1);
    CAxis_setLinearScale(nullptr, 5, -2.5, 1.7e308, 1.0 / 3);
    CPieChart_setStartAngle(nullptr, 90, true);
    const double values[] = {1, 2.5};
    const char* labels[] = {"a \"b\"\\", nullptr, "c\nd", "\xc3\xa9"};
    CPieChart_setData(nullptr, values, 2, labels, 4);
    CPieChart_setData(nullptr, nullptr, 0, nullptr, 3);
    EXPECT_THAT(recording.Lines(),
                ElementsAre("CChart_chartTime(2001, 1, -1, 0, 65535, 0x00010000)", "CChart_metalColor(-1, 0xff000000)",
                            "CChart_encodeFilter(6, 1, 0.1)",
                            "CAxis_setLinearScale(null, 5, -2.5, 1.7e+308, 0.3333333333333333)",
                            "CPieChart_setStartAngle(null, 90, true)",
                            "CPieChart_setData(null, [1, 2.5], [\"a \\\"b\\\"\\\\\", null, \"c\\nd\", \"\xc3\xa9\"])",
                            "CPieChart_setData(null, [], [])"));
    EXPECT_EQ(recording.Count("CPieChart_setData"), 2);
    EXPECT_EQ(recording.Count("CPieChart_set"), 0);
}

TEST(Recorder, NumbersHandlesUntilTheyEnd) {
    const Recording recording;
    for (int round = 0; round < 2; ++round) {
        RanTable* first = CRanTable_create(1, 1, 1);
        RanTable* second = CRanTable_create(2, 1, 1);
        CRanTable_destroy(first);
        CRanTable_setCol(second, 0, 1, 1);
        CRanTable_destroy(second);
    }
    EXPECT_THAT(recording.Lines(),
                ElementsAre("CRanTable_create(1, 1, 1)", "CRanTable_create(2, 1, 1)", "CRanTable_destroy(RanTable#1)",
                            "CRanTable_setCol(RanTable#2, 0, 1, 1)", "CRanTable_destroy(RanTable#2)",
                            "CRanTable_create(1, 1, 1)", "CRanTable_create(2, 1, 1)", "CRanTable_destroy(RanTable#3)",
                            "CRanTable_setCol(RanTable#4, 0, 1, 1)", "CRanTable_destroy(RanTable#4)"));
}
