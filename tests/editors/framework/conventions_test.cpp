#include "editors/framework/conventions.h"
#include "tests/expect.h"

namespace {
TEST(Codes, OfAlignmentsAndSidesGoToRowsAndBack) {
    const int alignments[] = {7, 8, 9, 4, 5, 6, 1, 2, 3, 10, 11, 12, 13};
    for (int row = 0; row < 13; ++row)
        EXPECT_EQS((IndexToAlignment(row), alignments[row]), (AlignmentToIndex(alignments[row]), row));
    const int sides[] = {4, 6, 8, 2};
    for (int row = 0; row < 4; ++row) EXPECT_EQS((IndexToSide(row), sides[row]), (SideToIndex(sides[row]), row));
    for (const int unknown : {-1, 0, 14, 99}) EXPECT_EQS((AlignmentToIndex(unknown), 0), (SideToIndex(unknown), 0));
    for (const int outside : {-1, 13, 99}) EXPECT_EQS((IndexToAlignment(outside), 7), (IndexToSide(outside), 4));
    EXPECT_STREQ(Alignments().Rows()[1].text, "TopCenter(Top)");
    EXPECT_STREQ(Alignments().Rows()[7].text, "BottomCenter(Bottom)");
}

TEST(FirstLineOf, CutsTextsAtTheirFirstBreak) {
    EXPECT_EQS((FirstLineOf("one"), "one"), (FirstLineOf(""), ""), (FirstLineOf("one\ntwo\nthree"), "one..."),
               (FirstLineOf("one\r\ntwo"), "one..."), (FirstLineOf("one\rtwo"), "one..."), (FirstLineOf("\n"), "..."),
               (FromEditText("a\r\nb\nc\rd"), "a\nb\nc\rd"));
}
} // namespace
