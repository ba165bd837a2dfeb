#include "tests/engine/axis/axis_fixture.h"

namespace chartdraw {
namespace {
TEST(AxisMap, PutsValuesOnPixels) {
    const AxisMap up(Scale::linear(0, 100), 250, 50); // 2 pixels a unit, upwards
    EXPECT_DOUBLE_EQ(up.pixel(25), 200);
    EXPECT_EQ(up.wholePixel(0.4), 249); // 249.2
    EXPECT_EQ(up.wholePixel(0.2), 250); // 249.6
    EXPECT_DOUBLE_EQ(up.value(200), 25);
    EXPECT_EQS((std::isnan(up.pixel(kNoValue)), true), (std::isnan(up.pixel(NAN)), true));
    EXPECT_LT(std::abs(up.pixel(1e300)), 1e9);

    const AxisMap decades(Scale::log(1, 1000), 0, 300); // a decade is 100 pixels
    EXPECT_NEAR(decades.pixel(10), 100, 1e-9);
    EXPECT_NEAR(decades.value(200), 100, 1e-9);
    EXPECT_LT(decades.pixel(-5), -1000);
    EXPECT_FALSE(decades.affine());
}

TEST(AxisMap, TiedAxisMeasuresTheSamePlaceInItsOwnUnits) {
    const AxisMap celsius(Scale::linear(0, 100), 250, 50);
    const AxisMap fahrenheit = celsius.tied(1.8, 32);
    EXPECT_DOUBLE_EQ(fahrenheit.pixel(212), 50);
    EXPECT_DOUBLE_EQ(fahrenheit.pixel(32), 250);
    EXPECT_DOUBLE_EQ(fahrenheit.value(150), 122);
    EXPECT_DOUBLE_EQ(fahrenheit.lower(), 32);
    EXPECT_DOUBLE_EQ(fahrenheit.upper(), 212);
    EXPECT_DOUBLE_EQ(fahrenheit.clamp(0), 32);
    EXPECT_EQS((fahrenheit.contains(212), true), (fahrenheit.contains(213), false));
    const AxisMap falling = celsius.tied(-1, 0);
    EXPECT_DOUBLE_EQ(falling.lower(), -100);
    EXPECT_DOUBLE_EQ(falling.pixel(-100), 50);
    EXPECT_EQ(celsius.tied(1e-300, 1e300).wholePixel(-1e300), 250 + 200 * 1000000); // far, not undefined
}

TEST(AxisPlace, TakesMarginsOffTheEnds) {
    using Row = std::tuple<int, int, int, bool, int, int>;
    // The lines run from 50 to 350, upright ones from 50 to 250.
    const Row rows[] = {
        {2, 0, 0, false, 50, 350},        {2, 30, 10, false, 60, 320}, // top is the right end
        {4, 30, 10, false, 240, 80},                                   //
        {4, 30, 10, true, 80, 240},                                    // reversal changes the values' way, not the room
        {6, 0, 0, true, 50, 250},                                      //
        {4, 199, 0, false, 250, 249},                                  // a pixel is left between the ends
        {4, 3000, 1000, false, 201, 199}, // too much shrinks in proportion: 149 and 49 of 199
    };
    for (const auto& [side, top, bottom, reverse, lower, upper] : rows) {
        ScaleSettings scale;
        scale.marginTop = top;
        scale.marginBottom = bottom;
        scale.reverse = reverse;
        AxisPlace place = placeAt(side);
        place.setScaleEnds(scale);
        EXPECT_EQ(place.lower, lower) << side << ' ' << top;
        EXPECT_EQ(place.upper, upper) << side << ' ' << top;
    }
}
} // namespace
} // namespace chartdraw
