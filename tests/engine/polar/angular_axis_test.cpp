// The round axis as numbers: where values stand, which spokes there are, and what zones cover.

#include "engine/polar/angular_axis.h"
#include "engine/polar/polar_chart.h"
#include "tests/expect.h"
#include <gmock/gmock.h>
#include <limits>

using namespace chartdraw;
using testing::DoubleNear;
using testing::ElementsAre;
using testing::Pointwise;

namespace {
constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

struct AngularAxisTest : testing::Test {
    PolarChart chart{100, 100, 0xffffff, kTransparent, 0};
    AngularAxis& axis = *chart.angularAxis();

    std::vector<std::string> labels(double circumference = 600) const {
        std::vector<std::string> result;
        for (const AngularTick& spoke : axis.ticks(circumference).spokes) result.push_back(spoke.label);
        return result;
    }
    std::vector<double> turns(double circumference = 600) const {
        std::vector<double> result;
        for (const AngularTick& spoke : axis.ticks(circumference).spokes) result.push_back(spoke.turn);
        return result;
    }
};

TEST_F(AngularAxisTest, PutsValuesOnTheTurnAndGoesOnRound) {
    const std::tuple<double, double, double, double> rows[] = {
        {0, 360, 90, 0.25},   {0, 360, 360, 0},       {0, 360, 450, 0.25},  {0, 360, -90, 0.75},
        {0, 24, 6, 0.25},     {-180, 180, 0, 0.5},    {360, 0, 90, 0.75},   {10, 10, 180, 0.5},
        {kNan, 24, 180, 0.5}, {0, 1.7e308, 180, 0.5}, {0, kInf, 270, 0.75},
    };
    for (const auto& [lower, upper, value, turn] : rows) {
        axis.setLinearScale(lower, upper, {});
        EXPECT_NEAR(axis.turn(value), turn, 1e-9) << lower << ".." << upper << ": " << value;
    }
    EXPECT_EQS((std::isnan(axis.turn(kNan)), true), (std::isnan(axis.turn(kNoValue)), true));
    EXPECT_GE(axis.turn(1e300), 0);
    EXPECT_LT(axis.turn(1e300), 1);
}

TEST_F(AngularAxisTest, HasSpokesAtRoundValuesAndNamesTheTopOnce) {
    EXPECT_THAT(labels(), ElementsAre("0", "30", "60", "90", "120", "150", "180", "210", "240", "270", "300", "330"));
    axis.setLinearScale(0, 24, {3, 1, 0});
    EXPECT_THAT(labels(), ElementsAre("0", "3", "6", "9", "12", "15", "18", "21"));
    EXPECT_THAT(turns(), Pointwise(DoubleNear(1e-9), {0.0, 0.125, 0.25, 0.375, 0.5, 0.625, 0.75, 0.875}));
    EXPECT_EQ(axis.ticks(600).minor.size(), 16u);
    axis.setLinearScale(0, 100, {});
    EXPECT_THAT(labels(), ElementsAre("0", "10", "20", "30", "40", "50", "60", "70", "80", "90"));
    axis.setLinearScale(4, 0, {1, 0, 0}); // the other way round
    EXPECT_THAT(turns(), Pointwise(DoubleNear(1e-9), {0.0, 0.75, 0.5, 0.25}));
    axis.setLinearScale(0, 360, {1e-9, 1e-12, 0});
    EXPECT_LE(axis.ticks(600).spokes.size() + axis.ticks(600).minor.size(), 300u) << "at most every 2 pixels";
    EXPECT_GE(axis.ticks(600).spokes.size(), 4u);
}

TEST_F(AngularAxisTest, SpreadsLabelsEvenly) {
    axis.setLabels({"N", "E", "S", "W"});
    EXPECT_THAT(labels(), ElementsAre("N", "E", "S", "W"));
    EXPECT_THAT(turns(), ElementsAre(0, 0.25, 0.5, 0.75));
    EXPECT_THAT(axis.evenSteps(6), Pointwise(DoubleNear(1e-9), {0.0, 90.0, 180.0, 270.0, 360.0, 450.0}))
        << "rows follow the labels";
    axis.setLabels(std::vector<std::string>(100'000, "x"));
    EXPECT_LE(labels().size(), 150u) << "no more spokes than can be told apart";
    axis.setLabels({});
    EXPECT_EQ(labels().size(), 12u) << "the numbers come back";
    EXPECT_THAT(axis.evenSteps(4), Pointwise(DoubleNear(1e-9), {0.0, 90.0, 180.0, 270.0}));
    axis.setLinearScale(360, 0, {});
    EXPECT_THAT(axis.evenSteps(4), Pointwise(DoubleNear(1e-9), {360.0, 270.0, 180.0, 90.0}))
        << "steps go clockwise, numbers the other way";
}

TEST_F(AngularAxisTest, CoversZonesClockwise) {
    const struct {
        double start, end, from, covered;
    } rows[] = {
        {90, 180, 0.25, 0.25},
        {330, 30, 330.0 / 360, 1.0 / 6},
        {-30, 30, 330.0 / 360, 1.0 / 6},
        {0, 360, 0, 1},
        {45, 900, 0, 1},
        {10, 10, 0, 0},
        {kNan, 10, 0, 0},
        {10, kInf, 0, 0},
    };
    for (const auto& row : rows) {
        const auto [from, covered] = axis.zoneTurns({row.start, row.end, 0, 0});
        EXPECT_NEAR(from, row.from, 1e-9) << row.start << " to " << row.end;
        EXPECT_NEAR(covered, row.covered, 1e-9) << row.start << " to " << row.end;
    }
}
} // namespace
