#include "tests/engine/paint/pixels.h"
#include <cmath>
#include <limits>
#include <vector>

namespace chartdraw {
namespace {
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr QRgb kInk = 0xff123456;
constexpr Colour kInkColour = 0x123456;

struct LineCase {
    QPointF from, to;
    double width;
    QRect covered;
};

// Whole coordinates are middles of pixels; the even pen's extra pixel lies below or to the right.
const LineCase kLines[] = {
    {{10, 5}, {20, 5}, 1, {10, 5, 11, 1}},
    {{20, 5}, {10, 5}, 1, {10, 5, 11, 1}},
    {{10, 5}, {20, 5}, 2, {10, 5, 11, 2}},
    {{10, 5}, {20, 5}, 3, {10, 4, 11, 3}},
    {{10, 5}, {20, 5}, 4, {10, 4, 11, 4}},
    {{7, 3}, {7, 9}, 1, {7, 3, 1, 7}},
    {{7, 9}, {7, 3}, 2, {7, 3, 2, 7}},
    {{7, 3}, {7, 9}, 5, {5, 3, 5, 7}},
    {{10.4, 5.4}, {19.6, 5.4}, 1, {10, 5, 11, 1}},
    {{10, 5}, {20, 5}, 0.3, {10, 5, 11, 1}},
    {{-1e12, 5}, {kInfinity, 5}, 1, {0, 5, 32, 1}},
};

TEST(Line, UprightOnesCoverWholePixelsInExactlyTheColour) {
    for (const LineCase& c : kLines) {
        const QImage image = drawn(32, 16, [&](Canvas& on) { on.line(c.from, c.to, kInkColour, c.width); });
        EXPECT_EQ(inked(image), c.covered) << c.from.x() << ' ' << c.width;
        EXPECT_EQ(count(image, kInk), c.covered.width() * c.covered.height());
    }
}

TEST(Line, NothingToDraw) {
    const QImage image = drawn(32, 16, [](Canvas& on) {
        on.line({1, 1}, {9, 9}, kInkColour, 0);
        on.line({1, 1}, {9, 9}, kInkColour, -3);
        on.line({1, 1}, {9, 9}, kInkColour, kNan);
        on.line({1, kNan}, {9, 9}, kInkColour, 1);
        on.line({1, 1}, {9, 9}, kTransparent, 1);
        on.polyline({}, kInkColour, 1);
        on.fillRect(QRectF(kNan, 1, 5, 5), kInkColour);
        on.fillRect(QRectF(1, 1, 0, 5), kInkColour);
        on.box(QRect(5, 5, -3, 4), kInkColour, kInkColour, 5);
    });
    EXPECT_TRUE(inked(image).isNull());
}

TEST(Line, FarEndsKeepTheSlope) {
    // Through (16, 8) with slope 1/2: (0, 0) and (30, 15) lie on it.
    const QImage image = drawn(32, 16, [](Canvas& on) {
        on.line({16 - 2e8, 8 - 1e8}, {16 + 2e8, 8 + 1e8}, 0x000000, 1);
    });
    for (const int x : {0, 10, 20, 30}) {
        EXPECT_LT(qRed(image.pixel(x, x / 2)), 60) << x;
        EXPECT_EQ(image.pixel(x, (x / 2 + 8) % 16), kWhite);
    }
}

TEST(FillRect, CoversWholePixels) {
    const std::pair<QRectF, QRect> cases[] = {
        {{3, 4, 5, 6}, {3, 4, 5, 6}},     {{3.4, 4.4, 5, 6}, {3, 4, 5, 6}},      {{8, 10, -5, -6}, {3, 4, 5, 6}},
        {{2.6, 3.6, 1, 1}, {3, 4, 1, 1}}, {{-1e30, -5, 2e30, 8}, {0, 0, 32, 3}}, {{-kInfinity, 2, kInfinity, 3}, {}},
    };
    for (const auto& [rect, covered] : cases) {
        const QImage image = drawn(32, 16, [&, given = rect](Canvas& on) { on.fillRect(given, kInkColour); });
        EXPECT_EQ(inked(image), covered) << rect.x() << ' ' << rect.width();
        EXPECT_EQ(count(image, kInk), covered.width() * covered.height());
    }
}

TEST(Path, FarOutlinesAreCutAndKeepWhatShows) {
    QPainterPath wedge; // its left border runs through (0, 0) and (16, 16)
    wedge.moveTo(-1e7, -1e7);
    wedge.lineTo(1e7, -1e7);
    wedge.lineTo(1e7, 1e7);
    wedge.closeSubpath();
    const QImage image = drawn(16, 16, [&](Canvas& on) { on.fillPath(wedge, kInkColour); });
    EXPECT_EQS((image.pixel(12, 3), kInk), (image.pixel(3, 12), kWhite));
    const QImage outline = drawn(16, 16, [&](Canvas& on) { on.strokePath(wedge, kInkColour, 3); });
    EXPECT_EQS((outline.pixel(8, 8), kInk), (outline.pixel(12, 3), kWhite));
}

TEST(Polyline, StepsAreCrisp) {
    const std::vector<QPointF> steps = {{2, 2}, {10, 2}, {10, 9}, {20, 9}};
    const QImage thin = drawn(32, 16, [&](Canvas& on) { on.polyline(steps, kInkColour, 1); });
    EXPECT_EQS((inked(thin), QRect(2, 2, 19, 8)), (thin.pixel(5, 2), kInk), (thin.pixel(10, 5), kInk));
    const QImage wide = drawn(32, 16, [&](Canvas& on) { on.polyline(steps, kInkColour, 2); });
    for (const QPoint inside : {QPoint(5, 2), QPoint(5, 3), QPoint(10, 6), QPoint(11, 6), QPoint(15, 10)})
        EXPECT_EQ(wide.pixel(inside), kInk);
    for (const QPoint outside : {QPoint(5, 1), QPoint(5, 4), QPoint(9, 6), QPoint(12, 6)})
        EXPECT_EQ(wide.pixel(outside), kWhite);
}

TEST(Polyline, GapsBreakAndALonePointIsADot) {
    const std::vector<QPointF> points = {{2, 5}, {8, 5}, {kNan, kNan}, {16, 5}, {20, kNan}, {24, 5}, {30, 5}};
    const QImage image = drawn(32, 10, [&](Canvas& on) { on.polyline(points, kInkColour, 1); });
    std::string row;
    for (int x = 0; x < 32; ++x) row += image.pixel(x, 5) == kWhite ? '.' : '#';
    EXPECT_EQ(row, "..#######.......#.......#######.");
    const QImage dot = drawn(32, 10, [&](Canvas& on) {
        on.polyline(std::vector<QPointF>{{9, 5}, {9, 5}}, kInkColour, 5);
    });
    EXPECT_EQ(inked(dot), QRect(7, 3, 5, 5));
}

std::vector<QPointF> wave(int points, double width, double height) {
    std::vector<QPointF> line;
    for (int i = 0; i < points; ++i)
        line.emplace_back(width * i / points, height / 2 + height / 3 * std::sin(i * 0.37) + i % 3);
    return line;
}

TEST(Polyline, PointsOnAStraightLineLeaveNoMark) {
    const QPointF ends[] = {{20, 12}, {80, 87}};
    for (const double width : {2.0, 3.0, 5.0, 30.0}) {
        std::vector<QPointF> many;
        for (int i = 0; i <= 40; ++i) many.push_back(ends[0] + (ends[1] - ends[0]) * i / 40);
        const QImage dotted = drawn(
            100, 100, [&](Canvas& on) { on.polyline(many, 0, width); });
        const QImage plain = drawn(100, 100, [&](Canvas& on) { on.polyline(ends, 0, width); });
        EXPECT_LE(difference(dotted, plain), 1) << width;
        EXPECT_EQ(plain.pixel(50, 50), 0xff000000) << width; // (50, 49.5) lies on the line
    }
}

TEST(Polyline, PiecesLookLikeOneStroke) {
    const std::vector<QPointF> line = wave(120, 300, 100);
    for (const double width : {1.0, 2.0, 3.0, 7.0}) {
        const double offset = width == 2 ? 1 : 0.5;
        const QImage pieces = drawn(300, 100, [&](Canvas& on) { on.polyline(line, 0, width); });
        const QImage whole = drawn(300, 100, [&](Canvas& on) {
            QPen pen(Qt::black, width, Qt::SolidLine, width > 1 ? Qt::RoundCap : Qt::SquareCap,
                     width < 3 ? Qt::MiterJoin : Qt::RoundJoin);
            on.painter().setPen(pen);
            on.painter().translate(offset, offset);
            on.painter().drawPolyline(line.data(), static_cast<int>(line.size()));
        });
        int differing = 0;
        for (int y = 0; y < 100; ++y)
            for (int x = 0; x < 300; ++x)
                differing += std::abs(qRed(pieces.pixel(x, y)) - qRed(whole.pixel(x, y))) > 64 ? 1 : 0;
        // Anti-aliased pixels at the joins of pieces may differ; nothing else may.
        EXPECT_LT(differing, 120) << width;
        EXPECT_FALSE(inked(whole).isNull());
    }
}

TEST(Polyline, ShowsNoJointsWhenItShowsThrough) {
    for (const double width : {1.0, 2.0, 8.0}) {
        const QImage image = drawn(300, 100, [&](Canvas& on) { on.polyline(wave(400, 300, 100), 0x80000000, width); });
        int darkest = 255;
        for (int y = 0; y < 100; ++y)
            for (int x = 0; x < 300; ++x) darkest = std::min(darkest, qRed(image.pixel(x, y)));
        EXPECT_NEAR(darkest, 128, 1) << width; // half of white, nowhere covered twice
    }
}

TEST(Polyline, FollowsAMovedPainter) {
    for (const Colour colour : {kInkColour, 0x80000000 | kInkColour}) {
        const QImage image = drawn(32, 16, [&](Canvas& on) {
            on.painter().translate(1000, 500);
            on.polyline(std::vector<QPointF>{{-995, -495}, {-990, -495}, {-985, -495}}, colour, 1);
        });
        EXPECT_EQ(inked(image), QRect(5, 5, 11, 1));
    }
}

TEST(DrawImage, StandsByItsAlignmentAndIsCutAtTheArea) {
    QImage stamp(4, 2, QImage::Format_ARGB32_Premultiplied);
    stamp.fill(QColor::fromRgba(kInk));
    const std::pair<int, QPoint> corners[] = {{7, {5, 3}},   {8, {13, 3}}, {9, {21, 3}},  {4, {5, 7}},
                                              {5, {13, 7}},  {6, {21, 7}}, {1, {5, 11}},  {2, {13, 11}},
                                              {3, {21, 11}}, {0, {13, 7}}, {77, {13, 7}}, {-1, {13, 7}}};
    for (const auto& [alignment, corner] : corners) {
        const QImage image = drawn(32, 16, [&, code = alignment](Canvas& on) {
            drawImage(on, stamp, {5, 3, 20, 10}, code);
        });
        EXPECT_EQ(inked(image), QRect(corner, stamp.size())) << alignment;
    }
    const QImage cut = drawn(32, 16, [&](Canvas& on) { drawImage(on, stamp.scaled(100, 100), {5, 3, 20, 10}, 9); });
    EXPECT_EQ(inked(cut), QRect(5, 3, 20, 10));
    EXPECT_TRUE(inked(drawn(8, 8, [](Canvas& on) { drawImage(on, {}, {0, 0, 8, 8}, 5); })).isNull());
}
} // namespace
} // namespace chartdraw
