// Smooth curves: through their points, round where the points are, and without overshooting.

#include "engine/polar/smooth_curve.h"
#include "tests/expect.h"
#include <algorithm>
#include <cmath>
#include <numbers>

using chartdraw::smoothCurve;

namespace {
std::vector<QPointF> circle(int count) {
    std::vector<QPointF> points;
    for (int i = 0; i < count; ++i) {
        const double angle = 2 * std::numbers::pi * i / count;
        points.emplace_back(100 * std::sin(angle), -100 * std::cos(angle));
    }
    return points;
}

TEST(SmoothCurve, PassesItsPointsInOrder) {
    const std::vector<QPointF> points = {{0, 0}, {50, 20}, {60, 80}, {10, 90}, {-40, 10}};
    const auto curve = smoothCurve(points, false);
    auto from = curve.begin();
    for (const QPointF& point : points) {
        from = std::find(from, curve.end(), point);
        ASSERT_NE(from, curve.end());
    }
    EXPECT_EQS((curve.front(), points.front()), (curve.back(), points.back()),
               (smoothCurve(points, true).back(), points.front()));
}

TEST(SmoothCurve, IsRoundAndFineEnough) {
    const auto curve = smoothCurve(circle(8), true);
    for (std::size_t i = 0; i < curve.size(); ++i) {
        EXPECT_NEAR(std::hypot(curve[i].x(), curve[i].y()), 100, 1) << "a circle from eight points";
        if (i > 0) EXPECT_LE(std::hypot(curve[i].x() - curve[i - 1].x(), curve[i].y() - curve[i - 1].y()), 4);
    }
}

TEST(SmoothCurve, KeepsToTheRoomOfItsPoints) {
    // A long step beside a short one makes careless splines swing out.
    const std::vector<QPointF> points = {{0, 0}, {100, 0}, {101, 30}, {102, 0}, {200, 0}};
    for (const QPointF& point : smoothCurve(points, false)) {
        EXPECT_GE(point.y(), -8);
        EXPECT_LE(point.y(), 31);
        EXPECT_GE(point.x(), 0);
        EXPECT_LE(point.x(), 200);
    }
}

TEST(SmoothCurve, TakesFewAndRepeatedPoints) {
    EXPECT_TRUE(smoothCurve({}, true).empty());
    const QPointF a(1, 2), b(30, 2);
    EXPECT_EQ(smoothCurve(std::vector{a}, true), std::vector{a});
    EXPECT_EQ(smoothCurve(std::vector{a, a, a}, true), std::vector{a});
    for (const QPointF& point : smoothCurve(std::vector{a, a, b, b, a}, true))
        EXPECT_DOUBLE_EQ(point.y(), 2) << "two places make a straight line";
    for (const QPointF& point : smoothCurve(std::vector{a, b, QPointF(60, 2), b, a}, false))
        EXPECT_TRUE(std::isfinite(point.x()) && std::isfinite(point.y()));
}
} // namespace
