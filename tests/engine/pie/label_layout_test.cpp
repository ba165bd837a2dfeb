// The label layouts as numbers: nothing covers anything, nothing leaves the picture, whatever the sectors.

#include "engine/pie/label_parts.h"
#include "engine/pie/sector_geometry.h"
#include "tests/expect.h"
#include <algorithm>
#include <cmath>
#include <gmock/gmock.h>
#include <numbers>
#include <random>

using namespace chartdraw;
using testing::DoubleNear;
using testing::Pointwise;

namespace {
const QRectF kRoom(2, 2, 496, 546);
const QPointF kCentre(250, 275);
constexpr double kRadius = 140;

enum class Layout { Circle, Side };

std::vector<PlacedLabel> place(Layout layout, const std::vector<SectorLabel>& spots, double distance = 10) {
    return layout == Layout::Circle ? circleLayout(spots, {kRoom, kRoom}, distance)
                                    : sideLayout(spots, {kRoom, kRoom}, distance);
}

SectorLabel spotAt(double angle, double weight, QSizeF size) {
    return {angle, kCentre, kRadius, kRadius, kCentre + direction(angle) * kRadius, size, weight};
}

std::vector<SectorLabel> randomSpots(int count, unsigned seed) {
    std::mt19937 random(seed);
    std::vector<double> values;
    for (int i = 0; i < count; ++i) {
        const double part = static_cast<double>(random() % 1000) / 1000;
        values.push_back(seed % 2 == 0 ? part : std::pow(part, 6)); // even ones, or a few large among small
    }
    values[0] += 0.1;
    const auto parts = shares(values);
    const auto spans = sectorSpans(parts, static_cast<double>(random() % 360), seed % 3 != 0);
    std::vector<SectorLabel> spots;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const QSizeF size(20 + static_cast<double>(random() % 60), random() % 4 == 0 ? 27 : 14);
        spots.push_back(spotAt(spans[i].middle(), parts[i], size));
    }
    return spots;
}

TEST(StackApart, MovesAsLittleAsCan) {
    const std::tuple<const char*, std::vector<double>, std::vector<double>, double, double, std::vector<double>>
        rows[] = {
            {"nothing to do", {0, 20, 50}, {10, 10, 10}, 0, 100, {0, 20, 50}},
            {"both give way by half", {20, 20}, {10, 10}, 0, 100, {15, 25}},
            {"a block of three about its mean", {30, 31, 32}, {10, 10, 10}, 0, 100, {21, 31, 41}},
            {"unequal lengths", {40, 40}, {30, 10}, 0, 100, {25, 55}},
            {"held by the upper end", {-20, 3}, {10, 10}, 0, 100, {0, 10}},
            {"held by the lower end", {95, 99}, {10, 10}, 0, 100, {80, 90}},
            {"just room for all", {50, 50, 50}, {20, 20, 20}, 10, 70, {10, 30, 50}},
            {"blocks that meet become one", {10, 10, 25, 25}, {10, 10, 10, 10}, 0, 100, {2.5, 12.5, 22.5, 32.5}},
            {"none", {}, {}, 0, 100, {}},
        };
    for (const auto& [what, wished, lengths, low, high, expected] : rows)
        EXPECT_THAT(stackApart(wished, lengths, low, high), Pointwise(DoubleNear(1e-9), expected)) << what;
}

class BothLayouts : public testing::TestWithParam<Layout> {};
INSTANTIATE_TEST_SUITE_P(Layouts, BothLayouts, testing::Values(Layout::Circle, Layout::Side));

TEST_P(BothLayouts, NeverCoverNorLeaveThePicture) {
    for (int count = 1; count <= 100; ++count) {
        for (unsigned seed = 0; seed < 12; ++seed) {
            const auto spots = randomSpots(count, seed * 1000 + static_cast<unsigned>(count));
            const auto labels = place(GetParam(), spots);
            ASSERT_EQ(labels.size(), spots.size());
            for (std::size_t i = 0; i < labels.size(); ++i) {
                if (!labels[i].shown) continue;
                ASSERT_EQ(labels[i].box.size(), spots[i].size);
                ASSERT_TRUE(kRoom.adjusted(-0.01, -0.01, 0.01, 0.01).contains(labels[i].box))
                    << count << " sectors, seed " << seed;
                for (std::size_t k = 0; k < i; ++k) {
                    ASSERT_FALSE(labels[k].shown && labels[k].box.intersects(labels[i].box))
                        << count << " sectors, seed " << seed << ", labels " << k << " and " << i;
                }
            }
        }
    }
}

TEST_P(BothLayouts, ShowAllLabelsWhereThereIsRoom) {
    std::ptrdiff_t labelled = 0, hidden = 0;
    for (int count = 1; count <= 24; ++count) {
        for (unsigned seed = 0; seed < 20; ++seed) {
            const auto labels = place(GetParam(), randomSpots(count, seed));
            labelled += count;
            hidden += std::count_if(labels.begin(), labels.end(), [](auto& label) { return !label.shown; });
            EXPECT_TRUE(hidden == 0 || count > 7) << count << " sectors, seed " << seed;
        }
    }
    EXPECT_LT(hidden * 200, labelled) << "only where a line would cross others on any way";
}

TEST_P(BothLayouts, GiveUpTheSmallestFirst) {
    std::vector<SectorLabel> spots;
    for (int i = 0; i < 100; ++i) spots.push_back(spotAt(i * std::numbers::pi / 50, i % 2 == 0 ? 2 : 1, {50, 25}));
    const auto labels = place(GetParam(), spots);
    const auto shown = [&](double weight) {
        int count = 0;
        for (std::size_t i = 0; i < labels.size(); ++i) count += labels[i].shown && spots[i].weight == weight ? 1 : 0;
        return count;
    };
    EXPECT_EQ(shown(1), 0);
    EXPECT_GT(shown(2), 25);
}

TEST_P(BothLayouts, JoinLinesBelongToTheirLabels) {
    int joined = 0;
    for (unsigned seed = 0; seed < 40; ++seed) {
        const auto spots = randomSpots(8, seed * 2);
        const auto labels = place(GetParam(), spots);
        for (std::size_t i = 0; i < labels.size(); ++i) {
            const auto& join = labels[i].join;
            if (join.empty()) continue;
            ++joined;
            EXPECT_EQ(join.front(), spots[i].rim);
            for (std::size_t k = 0; k < i; ++k)
                EXPECT_FALSE(joinsCross(join, labels[k].join)) << i << " and " << k << ", seed " << seed;
            // Straight outwards at first, and beside the label level.
            if (join.size() > 2) {
                const QPointF stub = join[1] - join[0], out = direction(spots[i].angle);
                EXPECT_NEAR(stub.x() * out.y() - stub.y() * out.x(), 0, 3) << "seed " << seed;
                EXPECT_EQ(join.back().y(), join[join.size() - 2].y());
            }
            EXPECT_TRUE(labels[i].box.adjusted(-3, -3, 3, 3).contains(join.back()));
            // No part of it runs inside the pie.
            for (std::size_t k = 1; k < join.size(); ++k) {
                for (double t = 0; t <= 1; t += 0.05) {
                    const QPointF off = join[k - 1] * (1 - t) + join[k] * t - kCentre;
                    EXPECT_GT(std::hypot(off.x(), off.y()), kRadius * 0.96) << "seed " << seed;
                }
            }
        }
    }
    EXPECT_GT(joined, 20);
}

TEST(SideLayout, StandsInTwoColumnsThatAlign) {
    std::vector<SectorLabel> spots;
    for (int i = 0; i < 8; ++i) spots.push_back(spotAt((i + 0.5) * std::numbers::pi / 4, 1, QSizeF(30 + 5 * i, 14)));
    const auto labels = place(Layout::Side, spots, 25);
    for (std::size_t i = 0; i < 8; ++i) {
        const bool right = i < 4;
        const double inner = right ? labels[i].box.left() : labels[i].box.right();
        EXPECT_EQ(inner, kCentre.x() + (right ? 1 : -1) * (kRadius + 25));
        EXPECT_EQ(labels[i].join.back().x(), inner - (right ? 2 : -2)); // it ends before its label
    }
}

TEST(CircleLayout, TouchesTheWidenedCircleInEveryDirection) {
    for (int degrees = 0; degrees < 360; degrees += 5) {
        const SectorLabel spot = spotAt(degrees * std::numbers::pi / 180, 1, {60, 14});
        const QRectF box = place(Layout::Circle, {spot}, 10)[0].box;
        const double dx = std::max({0.0, box.left() - kCentre.x(), kCentre.x() - box.right()});
        const double dy = std::max({0.0, box.top() - kCentre.y(), kCentre.y() - box.bottom()});
        EXPECT_NEAR(std::hypot(dx, dy), kRadius + 10, 0.01) << degrees;
    }
}

TEST(CircleLayout, PutsLabelsInsideForANegativeDistance) {
    const auto labels = place(Layout::Circle, {spotAt(std::numbers::pi / 2, 1, {30, 14})}, -40);
    EXPECT_EQS((labels[0].box.center(), kCentre + QPointF(100, 0)), (labels[0].join.empty(), true));
    // Two that would cover each other: the larger sector's stays.
    const auto two = place(Layout::Circle, {spotAt(1.5, 1, {30, 14}), spotAt(1.52, 3, {30, 14})}, -40);
    EXPECT_EQS((two[0].shown, false), (two[1].shown, true));
}
} // namespace
