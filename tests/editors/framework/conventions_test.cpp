#include "editors/framework/conventions.h"

#include <gtest/gtest.h>

namespace {

TEST(Codes, OfAlignmentsAndSidesGoToRowsAndBack) {
    const int alignments[] = {7, 8, 9, 4, 5, 6, 1, 2, 3, 10, 11, 12, 13};
    for (int row = 0; row < 13; ++row) {
        EXPECT_EQ(IndexToAlignment(row), alignments[row]);
        EXPECT_EQ(AlignmentToIndex(alignments[row]), row);
    }
    const int sides[] = {4, 6, 8, 2};
    for (int row = 0; row < 4; ++row) {
        EXPECT_EQ(IndexToSide(row), sides[row]);
        EXPECT_EQ(SideToIndex(sides[row]), row);
    }
    for (const int unknown : {-1, 0, 14, 99}) {
        EXPECT_EQ(AlignmentToIndex(unknown), 0);
        EXPECT_EQ(SideToIndex(unknown), 0);
    }
    for (const int outside : {-1, 13, 99}) {
        EXPECT_EQ(IndexToAlignment(outside), 7);
        EXPECT_EQ(IndexToSide(outside), 4);
    }
    EXPECT_STREQ(Alignments().Rows()[1].text, "TopCenter(Top)");
    EXPECT_STREQ(Alignments().Rows()[7].text, "BottomCenter(Bottom)");
}

TEST(FirstLineOf, CutsTextsAtTheirFirstBreak) {
    EXPECT_EQ(FirstLineOf("one"), "one");
    EXPECT_EQ(FirstLineOf(""), "");
    EXPECT_EQ(FirstLineOf("one\ntwo\nthree"), "one...");
    EXPECT_EQ(FirstLineOf("one\r\ntwo"), "one...");
    EXPECT_EQ(FirstLineOf("one\rtwo"), "one...");
    EXPECT_EQ(FirstLineOf("\n"), "...");
    EXPECT_EQ(FromEditText("a\r\nb\nc\rd"), "a\nb\nc\rd");
}

} // namespace
