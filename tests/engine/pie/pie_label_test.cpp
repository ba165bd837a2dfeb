// The labels of a pie in its picture: where their boxes stand, what they are joined by, how they are dressed.

#include "tests/engine/chart/picture.h"

namespace {

constexpr unsigned kWhite = 0xffffff;
constexpr int kBox = 0x112233, kJoin = 0x445566;

/// One sector of 300 degrees and one of 60 at the upper left, about (150, 100) with radius 60; the boxes of
/// the labels have a colour of their own, the letters are invisible.
struct Pie {
    PieChart* pie = CPieChart_create(300, 200, kWhite, CHART_TRANSPARENT, 0);
    BaseChart* chart = PieChart2BaseChart(pie);
    TextBox* style;

    Pie() {
        const double values[] = {0, 5, 1};
        const char* const names[] = {"", "large one", "small one"};
        CPieChart_setPieSize(pie, 150, 100, 60);
        CPieChart_setData(pie, values, 3, names, 3);
        style = CPieChart_setLabelStyle(pie, nullptr, 8, CHART_TRANSPARENT);
        CBox_setBackground(TextBox2Box(style), kBox, CHART_TRANSPARENT, 0);
        CPieChart_setLabelFormat(pie, "{label}");
        CPieChart_setLineColor(pie, -1, kJoin);
    }
    ~Pie() { CBaseChart_destroy(chart); }
    QImage picture() { return pictures::of(chart, false); }
    /// The boxes on the right and on the left of the pie's centre.
    QRect box(bool right) { return pictures::boundsOf(picture().copy(right ? 150 : 0, 0, 150, 200), kBox); }
};

TEST(PieLabels, StandBesideTheirSectors) {
    Pie pie; // the large sector's middle is at 150 degrees, the small one's at 330
    const QRect large = pie.box(true), small = pie.box(false);
    EXPECT_GT(large.top(), 140) << "below to the right";
    EXPECT_LT(small.bottom(), 60) << "above to the left";
    EXPECT_NEAR(large.height(), 14, 4);
    EXPECT_TRUE(pictures::boundsOf(pie.picture(), kJoin).isNull()) << "no line to a label close by";
}

TEST(PieLabels, StandInColumnsWithLinesToThem) {
    Pie pie;
    CPieChart_setLabelLayout(pie.pie, CHART_SIDE_LAYOUT, 20, -1, -1);
    EXPECT_EQ(pie.box(true).left(), 150 + 60 + 20 - 150);
    EXPECT_EQ(pie.box(false).right(), 150 - 60 - 20 - 1);
    const QRect lines = pictures::boundsOf(pie.picture(), kJoin);
    EXPECT_GT(lines.right(), 150 + 60 + 10);
    EXPECT_LT(lines.left(), 150 - 60 - 10);

    CSector_setColor(CPieChart_sector(pie.pie, 2), -1, -1, 0x00ff00);
    EXPECT_LT(pictures::boundsOf(pie.picture(), 0x00ff00).right(), 150) << "a line of its own colour";
    EXPECT_GT(pictures::boundsOf(pie.picture(), kJoin).left(), 150);

    CPieChart_setLabelLayout(pie.pie, CHART_SIDE_LAYOUT, 20, 90, 130);
    EXPECT_GE(pie.box(false).top(), 90) << "held between the rows that were told";
    EXPECT_LE(pie.box(true).bottom(), 130);
}

TEST(PieLabels, GoInsideForANegativeDistance) {
    Pie pie;
    CPieChart_setLabelLayout(pie.pie, CHART_CIRCLE_LAYOUT, -30, -1, -1);
    // 30 pixels from the centre at 150 degrees: 15 to the right, 26 down.
    const QRect large = pictures::boundsOf(pie.picture().copy(0, 100, 300, 100), kBox);
    EXPECT_NEAR(large.center().x(), 165, 1);
    EXPECT_NEAR(large.center().y(), 26, 1);
}

TEST(PieLabels, KeepTheirDistance) {
    Pie pie;
    CPieChart_setLabelLayout(pie.pie, CHART_CIRCLE_LAYOUT, 3, -1, -1);
    const QRect near = pie.box(true);
    CPieChart_setLabelLayout(pie.pie, CHART_CIRCLE_LAYOUT, 23, -1, -1);
    EXPECT_NEAR(pie.box(true).top() - near.top(), 20 * 0.87, 2) << "20 pixels on at 150 degrees";
    EXPECT_FALSE(pictures::boundsOf(pie.picture(), kJoin).isNull()) << "a line where the gap is wide";
}

TEST(PieLabels, AreDressedThroughTheOneBox) {
    Pie pie;
    EXPECT_EQ(CPieChart_setLabelStyle(pie.pie, nullptr, 8, CHART_TRANSPARENT), pie.style);
    CBox_setBackground(TextBox2Box(pie.style), kBox, CHART_TRANSPARENT, 0);
    const QRect flat = pie.box(true);
    CTextBox_setFontAngle(pie.style, 90, false);
    EXPECT_EQ(pie.box(true).size(), flat.size().transposed());
    CTextBox_setFontAngle(pie.style, 0, true);
    EXPECT_GT(pie.box(true).height(), 60) << "nine letters stacked";
    CTextBox_setFontAngle(pie.style, 0, false);
    CTextBox_setMargin(pie.style, 12);
    EXPECT_EQ(pie.box(true).height(), flat.height() + 2 * 12 - 2) << "1 pixel of margin before";
    CTextBox_setFontSize(pie.style, 16, 0);
    EXPECT_GT(pie.box(true).width(), flat.width() * 3 / 2);
}

TEST(PieLabels, AreHiddenByABlankFormat) {
    Pie pie;
    CPieChart_setLabelLayout(pie.pie, CHART_SIDE_LAYOUT, 20, -1, -1);
    CPieChart_setLabelFormat(pie.pie, " ");
    EXPECT_TRUE(pictures::boundsOf(pie.picture(), kBox).isNull());
    EXPECT_TRUE(pictures::boundsOf(pie.picture(), kJoin).isNull()) << "no lines to nothing";
    CPieChart_setLabelFormat(pie.pie, nullptr);
    EXPECT_GT(pie.box(true).height(), 20) << "the default has two lines";
}

} // namespace
