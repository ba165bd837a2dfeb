// Sectors as numbers: parts of the turn, which walls face the viewer, and which of them hide others.

#include "engine/pie/sector_geometry.h"
#include <gmock/gmock.h>
#include <limits>
#include <numbers>

using namespace chartdraw;
using testing::DoubleNear;
using testing::ElementsAre;
using testing::Pointwise;

namespace {
constexpr double kPi = std::numbers::pi;
constexpr double kDegree = kPi / 180;

TEST(Shares, CountOnlyRealPositiveValues) {
    const double inf = std::numeric_limits<double>::infinity();
    const std::tuple<std::vector<double>, std::vector<double>> rows[] = {
        {{1, 3}, {0.25, 0.75}},
        {{5}, {1}},
        {{2, 0, -7, 1.7E+308, std::nan(""), inf, -inf, 6}, {0.25, 0, 0, 0, 0, 0, 0, 0.75}},
        {{1e308, 1e308, 1.5e308, 0.5e308}, {0.25, 0.25, 0.375, 0.125}}, // the plain sum is infinite
        {{5e-324, 5e-324}, {0.5, 0.5}},                                 // the smallest numbers there are
        {{0, -1}, {0, 0}},
        {{}, {}},
    };
    for (const auto& [values, expected] : rows) EXPECT_THAT(shares(values), Pointwise(DoubleNear(1e-12), expected));
}

TEST(SectorSpans, RunEitherWayFromTheStart) {
    const std::vector<double> parts = {0.25, 0, 0.75};
    const struct {
        double start;
        bool clockwise;
        double middles[3]; // degrees clockwise from the top, worked by hand
    } rows[] = {
        {0, true, {45, 90, 225}},
        {30, true, {75, 120, 255}},
        {0, false, {-45, -90, -225}},
        {750, false, {-15, -60, -195}}, // 750 is two turns and 30
        {std::nan(""), true, {45, 90, 225}},
    };
    for (const auto& row : rows) {
        const auto spans = sectorSpans(parts, row.start, row.clockwise);
        for (std::size_t i = 0; i < 3; ++i) {
            EXPECT_NEAR(spans[i].middle() / kDegree, row.middles[i], 1e-9) << "start " << row.start;
            EXPECT_NEAR(spans[i].span, parts[i] * 2 * kPi, 1e-12);
        }
    }
}

PieBody tilted() { return {.centre = {100, 100}, .radius = 80, .inner = 40, .flatness = 0.5, .depth = {0, 20}}; }

TEST(PieBody, ShowsTheOuterWallInFrontAndTheInnerOneBehind) {
    const PieBody body = tilted();
    const SectorSpan whole{0, 2 * kPi};
    const QRectF outer = body.roundWall(body.centre, whole, true).boundingRect();
    EXPECT_NEAR(outer.top(), 100, 1);
    EXPECT_NEAR(outer.bottom(), 100 + 40 + 20, 1e-3);
    EXPECT_NEAR(outer.width(), 160, 1e-3);
    const QRectF inner = body.roundWall(body.centre, whole, false).boundingRect();
    EXPECT_NEAR(inner.top(), 100 - 20, 1);
    EXPECT_NEAR(inner.bottom(), 100 + 20, 1e-3);

    // A sector at the back has no outer wall, one that reaches round the back has it at both ends.
    EXPECT_TRUE(body.roundWall(body.centre, {-45 * kDegree, 90 * kDegree}, true).isEmpty());
    const QPainterPath ends = body.roundWall(body.centre, {-120 * kDegree, 240 * kDegree}, true);
    EXPECT_TRUE(ends.contains(QPointF(100 + 80 * std::sin(105 * kDegree), 100 + 40 * 0.26 + 10)));
    EXPECT_TRUE(ends.contains(QPointF(100 - 80 * std::sin(105 * kDegree), 100 + 40 * 0.26 + 10)));
    EXPECT_FALSE(ends.contains(QPointF(100, 100 + 40 + 10)));
}

TEST(PieBody, ShowsTheCutsThatFaceTheViewer) {
    const PieBody body = tilted();
    const std::tuple<double, double, bool, bool> rows[] = {
        {10, 80, false, true},    // right, behind: the cut on its front side
        {100, 170, false, true},  // right, in front
        {190, 260, true, false},  // left, in front: its first cut looks forward
        {-80, -10, true, false},  // left, behind
        {-60, 60, true, true},    // across the back
        {120, 240, false, false}, // across the front: both cuts look backwards
    };
    for (const auto& [start, end, startShows, endShows] : rows) {
        const SectorSpan span{start * kDegree, (end - start) * kDegree};
        EXPECT_EQ(!body.cutWall(body.centre, span, false).isEmpty(), startShows) << start;
        EXPECT_EQ(!body.cutWall(body.centre, span, true).isEmpty(), endShows) << end;
    }
    EXPECT_TRUE(body.cutWall(body.centre, {0, 2 * kPi}, true).isEmpty()) << "a whole pie is not cut";
}

std::vector<int> order(const std::vector<double>& borders, double viewer) {
    std::vector<SectorSpan> spans;
    for (std::size_t i = 0; i + 1 < borders.size(); ++i)
        spans.push_back({borders[i] * kDegree, (borders[i + 1] - borders[i]) * kDegree});
    std::vector<int> result; // index + 1 for the outer wall, negative for the others
    for (const WallStep& step : wallOrder(spans, viewer * kDegree)) {
        const int number = static_cast<int>(step.sector) + 1;
        result.push_back(step.front ? number : -number);
    }
    return result;
}

TEST(WallOrder, GoesFromTheBackToTheFront) {
    // Quarters with borders at 45, 135...: the one across the top is behind, that across the bottom in front.
    EXPECT_THAT(order({-45, 45, 135, 225, 315}, 180), ElementsAre(-1, 1, -2, 2, -4, 4, -3, 3));
    // Seen from the right, the left one is behind.
    EXPECT_THAT(order({-45, 45, 135, 225, 315}, 90), ElementsAre(-4, 4, -1, 1, -3, 3, -2, 2));
    // The first reaches round from back to front on the left: its outer wall comes last.
    EXPECT_THAT(order({150, 380, 440, 510}, 180), ElementsAre(-1, -2, 2, -3, 3, 1));
    // Sectors without a span have no walls.
    EXPECT_THAT(order({0, 180, 180, 360}, 100), ElementsAre(-3, 3, -1, 1));
}
} // namespace
