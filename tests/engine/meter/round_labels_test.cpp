// Boxes around a circle: they touch it, keep their angle, and those without room go.

#include "engine/axis/round_labels.h"

#include <cmath>
#include <gmock/gmock.h>
#include <numbers>

using namespace chartdraw;
using testing::ElementsAre;

namespace {

const QPointF kCentre(30, -20);

double distanceTo(const QRectF& box, bool farthest) {
    const QRectF moved = box.translated(-kCentre);
    const double x = farthest ? std::max(std::abs(moved.left()), std::abs(moved.right()))
                              : std::max({0.0, moved.left(), -moved.right()});
    const double y = farthest ? std::max(std::abs(moved.top()), std::abs(moved.bottom()))
                              : std::max({0.0, moved.top(), -moved.bottom()});
    return std::hypot(x, y);
}

TEST(RoundLabels, TouchTheCircleAtTheirAngle) {
    for (int degrees = -360; degrees <= 720; degrees += 7) {
        for (const QSizeF size : {QSizeF(40, 12), QSizeF(6, 30), QSizeF(1, 1), QSizeF(0, 0)}) {
            const double angle = degrees * std::numbers::pi / 180;
            const QRectF outside = boxOutside(kCentre, 50, angle, size);
            EXPECT_NEAR(distanceTo(outside, false), 50, 1e-6) << degrees;
            const QRectF inside = boxInside(kCentre, 50, angle, size);
            EXPECT_NEAR(distanceTo(inside, true), 50, 1e-6) << degrees;
            for (const QRectF& box : {outside, inside}) {
                const QPointF middle = box.center() - kCentre;
                const QPointF out = roundDirection(angle);
                EXPECT_NEAR(middle.x() * out.y() - middle.y() * out.x(), 0, 1e-6)
                    << "on its ray, " << degrees;
                EXPECT_GE(QPointF::dotProduct(middle, out), 0);
            }
        }
    }
    EXPECT_EQ(boxInside(kCentre, 5, 1, QSizeF(40, 12)).center(), kCentre) << "too large: about the centre";
}

TEST(RoundLabels, KeepTheirDistanceOrGo) {
    const auto row = [](int count, double step, double width) {
        std::vector<QRectF> boxes;
        for (int i = 0; i < count; ++i)
            boxes.emplace_back(i * step, 0, width, 10);
        return boxes;
    };
    EXPECT_THAT(thinAround(row(3, 20, 15), 2), ElementsAre(true, true, true));
    EXPECT_THAT(thinAround(row(5, 10, 15), 2), ElementsAre(true, false, true, false, true));
    EXPECT_THAT(thinAround(row(4, 10, 15), 2), ElementsAre(true, false, false, true))
        << "a wider step that reaches the last one";
    EXPECT_THAT(thinAround(row(3, 0, 15), 2), ElementsAre(true, false, false));
    EXPECT_TRUE(thinAround({}, 2).empty());
    // The last one of a full turn comes upon the first.
    EXPECT_THAT(thinAround(std::vector<QRectF>{{0, 0, 9, 9}, {20, 0, 9, 9}, {1, 1, 9, 9}}, 1),
                ElementsAre(true, true, false));
}

TEST(RoundLabels, MoveIntoTheRoom) {
    const QRectF room(0, 0, 100, 50);
    EXPECT_EQ(movedInto({10, 10, 20, 20}, room), QRectF(10, 10, 20, 20));
    EXPECT_EQ(movedInto({-10, 45, 20, 20}, room), QRectF(0, 30, 20, 20));
    EXPECT_EQ(movedInto({50, 0, 200, 20}, room), QRectF(0, 0, 200, 20));
}

} // namespace
