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
using namespace pictures;

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
        for (int i = size - 1; i >= 0; --i) value = value << 8 | static_cast<unsigned char>(data[at + i]);
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
        EXPECT_EQS((std::string(file.data, 2), "BM"), (file.number(2, 4), static_cast<unsigned>(file.length)));
        EXPECT_EQ(file.number(10, 4), 54u) << "where the pixels begin";
        EXPECT_EQS((file.number(14, 4), 40u), (file.number(18, 4), static_cast<unsigned>(width)));
        EXPECT_EQ(file.number(22, 4), 5u) << "bottom up";
        EXPECT_EQS((file.number(26, 2), 1u), (file.number(28, 2), 24u), (file.number(30, 4), 0u));
        EXPECT_EQ(file.number(54, 3), 0x336699) << "the lower left pixel, blue first";
        CBaseChart_destroy(chart);
    }
}

TEST(Bitmap, IsNotMadeOfWhatHasNoPicture) {
    const std::tuple<int, int, bool> rows[] = {
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
    for (const auto& [width, height, made] : rows) {
        BaseChart* chart = PieChart2BaseChart(pie(width, height));
        const Bytes file(chart);
        EXPECT_EQ(file.made, made) << width << " x " << height;
        EXPECT_EQS((file.data != nullptr, made), (file.length > 54, made));
        CBaseChart_setSize(chart, 20, 20);
        EXPECT_TRUE(Bytes(chart).made);
        const Bytes other(chart, 1);
        EXPECT_FALSE(other.made) << "only one format is known";
        EXPECT_EQS((other.data, nullptr), (other.length, 0));
        CBaseChart_destroy(chart);
    }
    const Bytes none(nullptr);
    EXPECT_EQS((none.data, nullptr), (none.length, 0),
               (CBaseChart_makeChart2(nullptr, CHART_FORMAT_BMP, nullptr, nullptr), false));
}

BaseChart* sketch() {
    BaseChart* chart = PieChart2BaseChart(CPieChart_create(40, 30, 0xffffff, CHART_TRANSPARENT, 0));
    TextBox* box = CBaseChart_addText(chart, 10, 10, "  ", "normal", 8, 0, 7, 0, false);
    CBox_setBackground(TextBox2Box(box), 0xff0000, 0x0000ff, 0);
    CBaseChart_addLine(chart, 3, 5, 36, 5, 0x008000, 1);
    return chart;
}

TEST(Bitmap, IsDrawnAtAScaleWithCrispLines) {
    BaseChart* natural = sketch();
    const QRect box = boundsOf(of(natural), 0x0000ff);
    for (const double scale : {0.75, 1.0, 1.5, 2.0}) {
        BaseChart* chart = sketch();
        const Bytes file(chart, CHART_FORMAT_BMP + 256 * static_cast<int>(scale * int{CHART_SCALE_UNIT}));
        ASSERT_TRUE(file.made) << scale;
        const QImage image = QImage::fromData(reinterpret_cast<const uchar*>(file.data), file.length, "BMP");
        EXPECT_EQ(image.size(), QSize(qRound(40 * scale), qRound(30 * scale)));
        const auto at = [scale](int place) { return static_cast<int>(std::floor(place * scale + 0.5)); };
        const QRect line = boundsOf(image, 0x008000);
        EXPECT_EQ(line, QRect(at(3), at(5), at(37) - at(3), std::max(1, qRound(scale)))) << scale;
        const QRect drawn = boundsOf(image, 0x0000ff);
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
