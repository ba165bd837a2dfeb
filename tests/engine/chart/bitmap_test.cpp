// The finished picture as bytes, when it is made anew, and the area of its pixels.

#include "tests/engine/chart/picture.h"

#include <QTemporaryDir>
#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <string>
#include <vector>

namespace {

PieChart* pie(int width, int height) {
    PieChart* made = CPieChart_create(width, height, 0x336699, CHART_TRANSPARENT, 0);
    const double values[] = {1, 2};
    CPieChart_setData(made, values, 2, nullptr, 0);
    return made;
}

struct Bytes {
    const char* data = reinterpret_cast<const char*>(8);
    int length = 99;
    bool made;

    explicit Bytes(BaseChart* chart, int format = CHART_FORMAT_BMP) {
        made = CBaseChart_makeChart2(chart, format, &data, &length);
    }
    unsigned number(int at, int size) const {
        unsigned value = 0;
        for (int i = size - 1; i >= 0; --i)
            value = value << 8 | static_cast<unsigned char>(data[at + i]);
        return value;
    }
};

TEST(Bitmap, IsA24BitFileWithRowsOfWholeWords) {
    for (int width = 9; width <= 12; ++width) { // rows of 27 to 36 bytes, padded to 28, 32, 36, 36
        BaseChart* chart = PieChart2BaseChart(pie(width, 5));
        const Bytes file(chart);
        ASSERT_TRUE(file.made);
        const unsigned row = width == 9 ? 28 : width == 10 ? 32 : 36;
        ASSERT_EQ(file.length, static_cast<int>(54 + 5 * row));
        EXPECT_EQ(std::string(file.data, 2), "BM");
        EXPECT_EQ(file.number(2, 4), static_cast<unsigned>(file.length));
        EXPECT_EQ(file.number(10, 4), 54u) << "where the pixels begin";
        EXPECT_EQ(file.number(14, 4), 40u);
        EXPECT_EQ(file.number(18, 4), static_cast<unsigned>(width));
        EXPECT_EQ(file.number(22, 4), 5u) << "bottom up";
        EXPECT_EQ(file.number(26, 2), 1u);
        EXPECT_EQ(file.number(28, 2), 24u);
        EXPECT_EQ(file.number(30, 4), 0u);
        EXPECT_EQ(file.number(54, 3), 0x336699u) << "the lower left pixel, blue first";
        CBaseChart_destroy(chart);
    }
}

TEST(Bitmap, IsMadeAnewOnlyAfterAChange) {
    PieChart* made = pie(60, 60);
    BaseChart* chart = PieChart2BaseChart(made);
    const char* const names[] = {"a", "b"};
    const double values[] = {2, 1};
    TextBox* style = CPieChart_setLabelStyle(made, nullptr, 7, -1);
    TextBox* title = CBaseChart_addTitle2(chart, CHART_TOP, "x", nullptr, 6, -1, -1, -1);
    LegendBox* legend = CBaseChart_addLegend(chart, 0, 40, false, nullptr, 6);
    const std::function<void()> changes[] = {
        [&] { CBaseChart_setBackground(chart, 0xffffff, 0xff0000, 0); },
        [&] { CBaseChart_setRoundedFrame(chart, 0, 10, -1, -1, -1); },
        [&] { CBaseChart_setSize(chart, 70, 60); },
        [&] { CPieChart_setPieSize(made, 30, 30, 20); },
        [&] { CPieChart_setData(made, values, 2, names, 2); },
        [&] { CPieChart_setLabelFormat(made, "{label}!"); },
        [&] { CTextBox_setFontColor(style, 0xff00ff); },
        [&] { CPieChart_setLabelLayout(made, CHART_SIDE_LAYOUT, 2, -1, -1); },
        [&] { CPieChart_setLineColor(made, 0x00ffff, 0x00ffff); },
        [&] { CPieChart_setStartAngle(made, 77, false); },
        [&] { CPieChart_setDonutSize(made, 30, 30, 8, 20); },
        [&] { CSector_setColor(CPieChart_sector(made, 0), 0x123456, -1, -1); },
        [&] { CSector_setExplode(CPieChart_sector(made, 1), 5); },
        [&] { CPieChart_set3D(made, 5, 30, false); },
        [&] { CTextBox_setText(title, "y"); },
        [&] { CBox_setPos(TextBox2Box(title), 5, 5); },
        [&] { CLegendBox_addKey(legend, "k", 0x00ff00, 0, nullptr); },
        [&] { CBaseChart_addLine(chart, 0, 0, 50, 50, 0xff0000, 2); },
        [&] { CBaseChart_addText(chart, 9, 9, "t", nullptr, 8, 0, CHART_TOP_LEFT, 0, false); },
        [&] { CBaseChart_setAntiAlias(chart, false, 0); },
    };
    int number = 0;
    for (const auto& change : changes) {
        const Bytes before(chart);
        ASSERT_EQ(Bytes(chart).data, before.data);
        const std::string old(before.data, static_cast<std::size_t>(before.length));
        change();
        const Bytes after(chart);
        EXPECT_NE(std::string(after.data, static_cast<std::size_t>(after.length)), old)
            << "change " << number;
        ++number;
    }
    CBaseChart_destroy(chart);
}

TEST(Bitmap, IsNotMadeOfWhatHasNoPicture) {
    const struct {
        int width, height;
        bool made;
    } rows[] = {
        {0, 10, false},
        {10, 0, false},
        {-5, -5, false},
        {16385, 10, false},
        {20000, 20000, false},
        {16384, 1, true},
        {1, 16384, true},
        {1, 1, true},
        {std::numeric_limits<int>::max(), std::numeric_limits<int>::max(), false},
        {std::numeric_limits<int>::min(), 1, false},
    };
    for (const auto& row : rows) {
        BaseChart* chart = PieChart2BaseChart(pie(row.width, row.height));
        const Bytes file(chart);
        EXPECT_EQ(file.made, row.made) << row.width << " x " << row.height;
        EXPECT_EQ(file.data != nullptr, row.made);
        EXPECT_EQ(file.length > 54, row.made);
        // A good size heals it.
        CBaseChart_setSize(chart, 20, 20);
        EXPECT_TRUE(Bytes(chart).made);
        const Bytes other(chart, 1);
        EXPECT_FALSE(other.made) << "only one format is known";
        EXPECT_EQ(other.data, nullptr);
        EXPECT_EQ(other.length, 0);
        CBaseChart_destroy(chart);
    }
    const Bytes none(nullptr);
    EXPECT_EQ(none.data, nullptr);
    EXPECT_EQ(none.length, 0);
    EXPECT_FALSE(CBaseChart_makeChart2(nullptr, CHART_FORMAT_BMP, nullptr, nullptr));
}

TEST(DrawArea, HasTheSizeOfItsChartAndTakesAnImage) {
    const QTemporaryDir folder;
    const std::string file = folder.filePath("image.png").toStdString();
    QImage image(33, 21, QImage::Format_RGB32);
    image.fill(QColor(200, 10, 20));
    ASSERT_TRUE(image.save(QString::fromStdString(file)));

    BaseChart* chart = PieChart2BaseChart(CPieChart_create(50, 40, 0xffffff, CHART_TRANSPARENT, 0));
    DrawArea* area = CBaseChart_getDrawArea(chart);
    EXPECT_EQ(CDrawArea_getWidth(area), 50);
    EXPECT_EQ(CDrawArea_getHeight(area), 40);
    EXPECT_FALSE(CDrawArea_load(area, (file + "x").c_str()));
    EXPECT_FALSE(CDrawArea_load(area, nullptr));
    EXPECT_EQ(CDrawArea_getWidth(area), 50) << "as it was";
    ASSERT_TRUE(CDrawArea_load(area, file.c_str()));
    EXPECT_EQ(CDrawArea_getWidth(area), 33);
    EXPECT_EQ(CDrawArea_getHeight(area), 21);
    CBaseChart_setSize(chart, CDrawArea_getWidth(area), CDrawArea_getHeight(area));
    const QImage shown = pictures::of(chart, false);
    EXPECT_EQ(shown.size(), QSize(33, 21));
    EXPECT_EQ(pictures::boundsOf(shown, 0xc80a14), QRect(0, 0, 33, 21)) << "the image covers the chart";
    CDrawArea_destroy(area); // not the caller's: ignored
    EXPECT_EQ(CDrawArea_getWidth(area), 33);
    CBaseChart_destroy(chart);
}

TEST(Wallpaper, StandsWhereItsAlignmentSays) {
    const QTemporaryDir folder;
    const std::string file = folder.filePath("image.png").toStdString();
    QImage image(10, 6, QImage::Format_RGB32);
    image.fill(QColor(255, 0, 0));
    ASSERT_TRUE(image.save(QString::fromStdString(file)));
    const struct {
        int alignment;
        QPoint corner; // of 10 x 6 in 50 x 40
    } rows[] = {
        {CHART_CENTER, {20, 17}},       {CHART_TOP_LEFT, {0, 0}},
        {CHART_TOP, {20, 0}},           {CHART_TOP_RIGHT, {40, 0}},
        {CHART_LEFT, {0, 17}},          {CHART_RIGHT, {40, 17}},
        {CHART_BOTTOM_LEFT, {0, 34}},   {CHART_BOTTOM, {20, 34}},
        {CHART_BOTTOM_RIGHT, {40, 34}}, {0, {20, 17}},
    };
    for (const auto& row : rows) {
        PieChart* made = CPieChart_create(50, 40, 0xffffff, CHART_TRANSPARENT, 0);
        CPieChart_setPieSize(made, 0, 0, 0);
        CBaseChart_setBgImage(PieChart2BaseChart(made), file.c_str(), row.alignment);
        EXPECT_EQ(pictures::boundsOf(pictures::of(PieChart2BaseChart(made)), 0xff0000),
                  QRect(row.corner, image.size()))
            << row.alignment;
    }
}

/// A white chart of 40 by 30 with a box, a line and a text.
BaseChart* sketch() {
    BaseChart* chart = PieChart2BaseChart(CPieChart_create(40, 30, 0xffffff, CHART_TRANSPARENT, 0));
    TextBox* box = CBaseChart_addText(chart, 10, 10, "  ", "normal", 8, 0, 7, 0, false);
    CBox_setBackground(TextBox2Box(box), 0xff0000, 0x0000ff, 0);
    CBaseChart_addLine(chart, 3, 5, 36, 5, 0x008000, 1);
    return chart;
}

TEST(Bitmap, IsDrawnAtAScaleWithCrispLines) {
    BaseChart* natural = sketch();
    const QRect box = pictures::boundsOf(pictures::of(natural), 0x0000ffu);
    for (const double scale : {0.75, 1.0, 1.5, 2.0}) {
        BaseChart* chart = sketch();
        const Bytes file(chart, CHART_FORMAT_BMP + 256 * static_cast<int>(scale * int{CHART_SCALE_UNIT}));
        ASSERT_TRUE(file.made) << scale;
        const QImage image = QImage::fromData(reinterpret_cast<const uchar*>(file.data), file.length, "BMP");
        EXPECT_EQ(image.size(), QSize(qRound(40 * scale), qRound(30 * scale)));
        const auto at = [scale](int place) { return static_cast<int>(std::floor(place * scale + 0.5)); };
        const QRect line = pictures::boundsOf(image, 0x008000u);
        EXPECT_EQ(line, QRect(at(3), at(5), at(37) - at(3), std::max(1, qRound(scale)))) << scale;
        const QRect drawn = pictures::boundsOf(image, 0x0000ffu);
        EXPECT_EQ(drawn.topLeft(), QPoint(at(box.left()), at(box.top()))) << scale;
        EXPECT_EQ(drawn.bottomRight(), QPoint(at(box.right() + 1) - 1, at(box.bottom() + 1) - 1)) << scale;
        EXPECT_EQ(CDrawArea_getWidth(CBaseChart_getDrawArea(chart)), 40);
        EXPECT_NE(Bytes(chart).length, scale == 1 ? 0 : file.length) << "at natural size again";
        CBaseChart_destroy(chart);
    }
    BaseChart* chart = sketch();
    for (const int format : {CHART_FORMAT_BMP - (1 << 30), 5 + (1 << 24)})
        EXPECT_FALSE(Bytes(chart, format).made) << format;
    CBaseChart_destroy(chart);
}

} // namespace
