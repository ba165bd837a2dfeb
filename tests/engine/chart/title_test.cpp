// Titles, free texts and the frame of a picture, by where their coloured boxes stand.

#include "tests/engine/chart/picture.h"

#include <cstring>

namespace {

constexpr unsigned kWhite = 0xffffff;
constexpr int kRed = 0xff0000, kGreen = 0x00ff00;

BaseChart* chart(int width = 300, int height = 200) {
    return PieChart2BaseChart(CPieChart_create(width, height, kWhite, CHART_TRANSPARENT, 0));
}

/// A title that is nothing but a box of a colour.
TextBox* block(BaseChart* chart, int alignment, int colour, int width, int height) {
    TextBox* title = CBaseChart_addTitle2(chart, alignment, "", nullptr, 8, -1, colour, CHART_TRANSPARENT);
    CBox_setSize(TextBox2Box(title), width, height);
    return title;
}

TEST(Titles, StackInwardsAtTheNinePlaces) {
    const struct {
        int alignment;
        QRect first, second; // of 40 x 20 and 30 x 10 in 300 x 200, worked by hand
    } rows[] = {
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
    for (const auto& row : rows) {
        BaseChart* base = chart();
        block(base, row.alignment, kRed, 40, 20);
        block(base, row.alignment, kGreen, 30, 10);
        const QImage image = pictures::of(base);
        EXPECT_EQ(pictures::boundsOf(image, kRed), row.first) << row.alignment;
        EXPECT_EQ(pictures::boundsOf(image, kGreen), row.second) << row.alignment;
    }
}

TEST(Titles, FitTheirTextAndObeyAPosition) {
    BaseChart* base = chart();
    TextBox* title =
        CBaseChart_addTitle2(base, CHART_TOP, "Costs", "bold", 12, 0x000080, kRed, CHART_TRANSPARENT);
    const int height = CBox_getHeight(TextBox2Box(title));
    EXPECT_GE(height, 16) << "12 points are 16 pixels";
    EXPECT_LE(height, 36);
    QImage image = pictures::of(base, false);
    QRect box = pictures::boundsOf(image, kRed);
    EXPECT_EQ(box.top(), 0);
    EXPECT_EQ(box.height(), height) << "measured before it was drawn";
    EXPECT_NEAR(box.center().x(), 150, 1);
    EXPECT_GT(box.width(), 40);
    EXPECT_LT(box.width(), 100);
    EXPECT_FALSE(pictures::boundsOf(image, 0x000080).isNull()) << "the text itself";

    CBox_setPos(TextBox2Box(title), 33, 77);
    EXPECT_EQ(pictures::boundsOf(pictures::of(base, false), kRed), QRect(QPoint(33, 77), box.size()));
    CTextBox_setFontAngle(title, 90, false);
    EXPECT_EQ(pictures::boundsOf(pictures::of(base), kRed).size(), box.size().transposed());
}

TEST(Titles, OfTheOnePlainKindSpanTheChart) {
    BaseChart* base = chart();
    TextBox* title = CBaseChart_addTitle(base, "", "timesbi.ttf", 15, 0, kRed, CHART_TRANSPARENT);
    const QRect strip = pictures::boundsOf(pictures::of(base, false), kRed);
    EXPECT_EQ(strip.topLeft(), QPoint(0, 0));
    EXPECT_EQ(strip.width(), 300);
    EXPECT_EQ(strip.height(), CBox_getHeight(TextBox2Box(title)));
    CTextBox_setHeight(title, 200); // what the sample of a colour does
    EXPECT_EQ(pictures::boundsOf(pictures::of(base, false), kRed), QRect(0, 0, 300, 200));
    CTextBox_setHeight(title, 30);
    CBox_setPos(TextBox2Box(title), 0, 50);
    EXPECT_EQ(pictures::boundsOf(pictures::of(base), kRed), QRect(0, 50, 300, 30));
}

TEST(FreeTexts, HangOnTheirPoint) {
    const struct {
        int alignment;
        double x, y; // of the corner, by the box's width and height
    } rows[] = {
        {CHART_TOP_LEFT, 0, 0},     {CHART_TOP, -0.5, 0},       {CHART_TOP_RIGHT, -1, 0},
        {CHART_LEFT, 0, -0.5},      {CHART_CENTER, -0.5, -0.5}, {CHART_RIGHT, -1, -0.5},
        {CHART_BOTTOM_LEFT, 0, -1}, {CHART_BOTTOM, -0.5, -1},   {CHART_BOTTOM_RIGHT, -1, -1},
    };
    for (const auto& row : rows) {
        BaseChart* base = chart();
        TextBox* text = CBaseChart_addText(base, 150, 100, "Here", nullptr, 10, -1, row.alignment, 0, false);
        CBox_setBackground(TextBox2Box(text), kRed, CHART_TRANSPARENT, 0);
        const QRect box = pictures::boundsOf(pictures::of(base), kRed);
        EXPECT_NEAR(box.left(), 150 + row.x * box.width(), 1) << row.alignment;
        EXPECT_NEAR(box.top(), 100 + row.y * box.height(), 1) << row.alignment;
    }
}

TEST(Lines, LieOnWholePixels) {
    BaseChart* base = chart();
    CBaseChart_addLine(base, 10, 20, 60, 20, kRed, 1);
    CBaseChart_addLine(base, 100, 30, 100, 90, kGreen, 3);
    CBaseChart_addLine(base, 10, 150, 90, 190, 0x0000ff, 0);
    const QImage image = pictures::of(base);
    const QRect level = pictures::boundsOf(image, kRed);
    EXPECT_EQ(level.height(), 1);
    EXPECT_EQ(level.top(), 20);
    EXPECT_NEAR(level.width(), 51, 1);
    const QRect upright = pictures::boundsOf(image, kGreen);
    EXPECT_EQ(upright.width(), 3);
    EXPECT_EQ(upright.center().x(), 100);
    EXPECT_EQ(pictures::inked(image, kWhite), level.width() + 3 * upright.height())
        << "width 0 draws nothing";
}

TEST(Frames, RoundTheCornersAsGiven) {
    BaseChart* base = chart(100, 100);
    CBaseChart_setBackground(base, kRed, CHART_TRANSPARENT, 0);
    CBaseChart_setRoundedFrame(base, kGreen, 30, 0, -1, 10);
    const QImage image = pictures::of(base);
    EXPECT_EQ(pictures::at(image, 2, 2), static_cast<unsigned>(kGreen)) << "radius 30";
    EXPECT_EQ(pictures::at(image, 12, 12), static_cast<unsigned>(kRed))
        << "9 pixels from the corner is inside";
    EXPECT_EQ(pictures::at(image, 97, 2), static_cast<unsigned>(kRed)) << "radius 0";
    EXPECT_EQ(pictures::at(image, 94, 94), static_cast<unsigned>(kGreen)) << "-1 is as the first: 30";
    EXPECT_EQ(pictures::at(image, 1, 98), static_cast<unsigned>(kGreen)) << "radius 10";
    EXPECT_EQ(pictures::at(image, 5, 94), static_cast<unsigned>(kRed)) << "radius 10";
}

TEST(Frames, DrawEdgesInsideThePicture) {
    BaseChart* base = chart(50, 40);
    CBaseChart_setBackground(base, kRed, kGreen, 0);
    QImage image = pictures::of(base, false);
    EXPECT_EQ(pictures::boundsOf(image, kRed), QRect(1, 1, 48, 38));
    EXPECT_EQ(pictures::boundsOf(image, kGreen), QRect(0, 0, 50, 40));
    // A raised border is light at the top and dark at the bottom, a depressed one the other way.
    CBaseChart_setBackground(base, 0x808080, CHART_TRANSPARENT, 3);
    image = pictures::of(base, false);
    EXPECT_GT(qGray(image.pixel(25, 1)), qGray(image.pixel(25, 38)));
    CBaseChart_setBackground(base, 0x808080, CHART_TRANSPARENT, -3);
    image = pictures::of(base);
    EXPECT_LT(qGray(image.pixel(25, 1)), qGray(image.pixel(25, 38)));
}

} // namespace
