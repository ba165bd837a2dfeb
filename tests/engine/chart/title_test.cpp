// Titles, free texts and the frame of a picture, by where their coloured boxes stand.

#include "tests/engine/chart/picture.h"
#include <cstring>

namespace {
using namespace pictures;

BaseChart* chart(int width = 300, int height = 200) {
    return PieChart2BaseChart(CPieChart_create(width, height, kWhite, CHART_TRANSPARENT, 0));
}

TextBox* block(BaseChart* chart, int alignment, int colour, int width, int height) {
    TextBox* title = CBaseChart_addTitle2(chart, alignment, "", nullptr, 8, -1, colour, CHART_TRANSPARENT);
    CBox_setSize(TextBox2Box(title), width, height);
    return title;
}

TEST(Titles, StackInwardsAtTheNinePlaces) {
    // of 40 x 20 and 30 x 10 in 300 x 200, worked by hand
    const std::tuple<int, QRect, QRect> rows[] = {
        {CHART_TOP_LEFT, {0, 0, 40, 20}, {0, 20, 30, 10}},
        {CHART_TOP, {130, 0, 40, 20}, {135, 20, 30, 10}},
        {CHART_TOP_RIGHT, {260, 0, 40, 20}, {270, 20, 30, 10}},
        {CHART_LEFT, {0, 90, 40, 20}, {40, 95, 30, 10}},
        {CHART_CENTER, {130, 90, 40, 20}, {135, 115, 30, 10}},
        {CHART_RIGHT, {260, 90, 40, 20}, {230, 95, 30, 10}},
        {CHART_BOTTOM_LEFT, {0, 180, 40, 20}, {0, 170, 30, 10}},
        {CHART_BOTTOM, {130, 180, 40, 20}, {135, 170, 30, 10}},
        {CHART_BOTTOM_RIGHT, {260, 180, 40, 20}, {270, 170, 30, 10}},
        {99, {130, 0, 40, 20}, {135, 20, 30, 10}}, // no alignment code: at the top
    };
    for (const auto& [alignment, first, second] : rows) {
        BaseChart* base = chart();
        block(base, alignment, kRed, 40, 20);
        block(base, alignment, kGreen, 30, 10);
        const QImage image = of(base);
        EXPECT_EQ(boundsOf(image, kRed), first) << alignment;
        EXPECT_EQ(boundsOf(image, kGreen), second) << alignment;
    }
}
} // namespace
