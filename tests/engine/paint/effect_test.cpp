#include "tests/engine/paint/pixels.h"
#include <climits>

namespace chartdraw {
namespace {
using Type = Effect::Type;

TEST(Effect, PlainSizesAndTokensNeverMix) {
    for (const int size : {-200, -5, 1, 12, 200}) {
        const Effect effect = Effect::decode(size);
        EXPECT_EQS((effect.type, Type::Border), (effect.size, size));
    }
    EXPECT_EQS((Effect::decode(0).type, Type::Flat), (Effect::decode(INT_MIN).size, -200),
               (Effect::decode(100'000).size, 200));
    for (const int direction : {2, 4, 6, 8}) {
        for (const int size : {0, 1, 200}) {
            const Effect soft = Effect::decode(softLighting(direction, size));
            EXPECT_EQS((soft.type, Type::SoftLighting), (soft.direction, direction), (soft.size, size));
            for (const int glare : {2, 3}) {
                const Effect glass = Effect::decode(glassEffect(glare, direction, size));
                EXPECT_EQS((glass.type, Type::Glass), (glass.direction, direction), (glass.size, size),
                           (glass.glare, glare));
            }
        }
    }
}

TEST(Effect, OddArgumentsHaveAMeaning) {
    for (const int direction : {0, 5, -1, INT_MAX}) EXPECT_EQ(Effect::decode(softLighting(direction, 3)).direction, 8);
    EXPECT_EQS((Effect::decode(softLighting(4, -7)).size, 7), (Effect::decode(glassEffect(3, 8, INT_MAX)).size, 200),
               (Effect::decode(glassEffect(3, 8, INT_MIN)).size, 200),
               (Effect::decode(glassEffect(99, 8, 0)).glare, 3));
}

std::vector<int> effects() {
    std::vector<int> all = {0, 4, -4, softLighting(8, 6), glassEffect(2, 8, 0), glassEffect(2, 6, 0)};
    for (const int direction : {2, 4, 6, 8}) all.push_back(softLighting(direction, 0));
    for (const int direction : {2, 4, 8}) all.push_back(glassEffect(3, direction, 0));
    return all;
}

TEST(Effects, LookDifferentOnEveryShape) {
    const auto bar = [](double x, double width) {
        QPainterPath path;
        path.addRect(QRectF(x, 4, width, 60));
        return path;
    };
    QPainterPath disc;
    disc.addEllipse(QRectF(4, 4, 60, 60));
    const std::function<void(Canvas&, Colour, int)> shapes[] = {
        [](Canvas& on, Colour colour, int effect) {
            on.box({4, 4, 60, 40}, colour, kDefaultColour, effect);
        },
        [](Canvas& on, Colour colour, int effect) {
            on.box({4, 4, 60, 40}, colour, kDefaultColour, effect, {9, 9, 9, 9});
        },
        [&](Canvas& on, Colour colour, int effect) { on.shape(bar(4, 10), colour, kDefaultColour, effect); },
        [&](Canvas& on, Colour colour, int effect) { on.shape(disc, colour, kDefaultColour, effect); },
    };
    for (const auto& shape : shapes) {
        for (const Colour colour : {0x3f86d2u, 0x202020u, 0xf4f0e0u, 0x80b95189u}) {
            std::vector<QImage> seen;
            for (const int effect : effects()) {
                const QImage image = drawn(
                    70, 70, [&](Canvas& on) { shape(on, colour, effect); }, 0xffc0c0c0);
                for (const QImage& other : seen)
                    EXPECT_GT(difference(image, other), 20) << std::hex << colour << ' ' << effect;
                seen.push_back(image);
            }
        }
    }
}

TEST(Effects, BordersShowOnNothingAndStayInside) {
    for (const Corners& corners : {Corners{}, Corners{8, 8, 8, 8}}) {
        const QImage image = drawn(
            60, 40,
            [&](Canvas& on) {
                on.box({5, 5, 50, 30}, kTransparent, kDefaultColour, 3, corners);
            },
            0xff808080);
        EXPECT_EQ(inked(image, 0xff808080), QRect(5, 5, 50, 30));
        EXPECT_GT(qRed(image.pixel(30, 5)), 150); // lit from the top left
        EXPECT_LT(qRed(image.pixel(30, 34)), 100);
        EXPECT_GT(qRed(image.pixel(5, 20)), 150);
        EXPECT_LT(qRed(image.pixel(54, 20)), 100);
        EXPECT_EQ(image.pixel(30, 20), 0xff808080);
    }
}

TEST(Effects, LightComesFromItsSide) {
    const std::pair<int, QPoint> sides[] = {{8, {30, 10}}, {2, {30, 49}}, {4, {10, 30}}, {6, {49, 30}}};
    for (const auto& [direction, lit] : sides) {
        const QPoint dark = QPoint(59, 59) - lit;
        for (const int effect : {softLighting(direction, 0), glassEffect(3, direction, 0)}) {
            const QImage image = drawn(60, 60, [&, code = effect](Canvas& on) {
                on.box({0, 0, 60, 60}, 0x606060, kTransparent, code);
            });
            EXPECT_GT(qRed(image.pixel(lit)), 140) << direction;
            EXPECT_GT(qRed(image.pixel(lit)), qRed(image.pixel(dark)) + 20);
        }
    }
}

TEST(Box, CornersEdgeAndWidths) {
    const QImage image = drawn(40, 30, [](Canvas& on) {
        on.box({5, 5, 30, 20}, 0x00ff00, 0x0000ff, 0, {10, 0, 10, 0}, 2);
    });
    EXPECT_EQ(inked(image), QRect(5, 5, 30, 20));
    for (const QPoint cut : {QPoint(5, 5), QPoint(6, 6), QPoint(34, 24)}) EXPECT_EQ(image.pixel(cut), kWhite);
    for (const QPoint edge : {QPoint(34, 5), QPoint(5, 24), QPoint(20, 5), QPoint(20, 6), QPoint(33, 12)})
        EXPECT_EQ(image.pixel(edge), 0xff0000ff);
    for (const QPoint inside : {QPoint(20, 7), QPoint(32, 12), QPoint(20, 22)})
        EXPECT_EQ(image.pixel(inside), 0xff00ff00);
    // An edge that shows through is laid once everywhere, also at the corners and when it fills the box.
    for (const int width : {1, 2, 3, 50}) {
        const QImage through = drawn(40, 30, [&](Canvas& on) {
            on.box({5, 5, 21, 11}, kTransparent, 0x80000000, 0, {}, width);
        });
        EXPECT_EQ(inked(through), QRect(5, 5, 21, 11));
        EXPECT_NEAR(qRed(through.pixel(5, 5)), 128, 1);
        const int holeWidth = std::max(0, 21 - 2 * width);
        const int holeHeight = std::max(0, 11 - 2 * width);
        EXPECT_EQ(count(through, through.pixel(5, 5)), 21 * 11 - holeWidth * holeHeight) << width;
    }
}

TEST(Shape, ThinBarsAreThere) {
    QPainterPath bar;
    bar.addRect(QRectF(10.1, 4, 0.2, 9.6));
    const QImage image = drawn(20, 20, [&](Canvas& on) { on.shape(bar, 0x123456, kTransparent, 0); });
    EXPECT_EQS((inked(image), QRect(10, 4, 1, 10)), (count(image, 0xff123456), 10));
}
} // namespace
} // namespace chartdraw
