#include "editors/colour/hsl.h"
#include "tests/expect.h"
#include <cstdlib>

TEST(Hsl, IsOnTheScaleTo240) {
    using Case = std::tuple<int, int, int, Hsl>;
    // Worked by hand. 51, 102, 153: greatest 0.6, least 0.2, so l = 0.4 -> 96; s = 0.4 / 0.8 = 0.5 -> 120;
    // h = ((0.2 - 0.4) / 0.4 + 4) / 6 = 7 / 12 -> 140.
    const Case cases[] = {
        {0, 0, 0, {0, 0, 0}},
        {255, 255, 255, {0, 0, 240}},
        {255, 0, 0, {0, 240, 120}},
        {255, 255, 0, {40, 240, 120}},
        {0, 255, 0, {80, 240, 120}},
        {0, 255, 255, {120, 240, 120}},
        {0, 0, 255, {160, 240, 120}},
        {255, 0, 255, {200, 240, 120}},
        {51, 102, 153, {140, 120, 96}},
        {128, 128, 128, {0, 0, 120}},
        {192, 64, 64, {0, 121, 120}},
        {255, 127, 127, {0, 240, 180}},
        // h = 1 - 1 / (6 * 255) -> 239.84, which rounds to 240 and is kept below it.
        {255, 0, 1, {239, 240, 120}},
    };
    for (const auto& [red, green, blue, hsl] : cases)
        EXPECT_EQ(HslOf(Rgb(red, green, blue)), hsl) << red << ' ' << green << ' ' << blue;
}

TEST(Hsl, BecomesBytesThatAreCutNotRounded) {
    // Worked by hand. Lightness 96 of 240 without saturation: 0.4 * 255 = 102. At h 140, s 120, l 96: q = 0.6, p = 0.2;
    // red p -> 51, green p + 0.4 * 6 * (2/3 - 7/12) = 0.4 -> 102 less an error of arithmetic, blue q -> 153.
    EXPECT_EQ(RgbOf(0, 0, 96), Rgb(102, 102, 102));
    EXPECT_EQ(RgbOf(200, 0, 100), Rgb(106, 106, 106)); // 106.25
    EXPECT_EQS((RgbOf(0, 0, 0), Rgb(0, 0, 0)), (RgbOf(0, 0, 240), Rgb(255, 255, 255)),
               (RgbOf(0, 240, 120), Rgb(255, 0, 0)));
    EXPECT_EQ(RgbOf(240, 240, 120), Rgb(255, 0, 0)); // once round the circle
    EXPECT_EQ(RgbOf(160, 240, 120), Rgb(0, 0, 255));
    EXPECT_EQ(RgbOf(20, 240, 120), Rgb(255, 127, 0)); // 127.5
    EXPECT_EQS((RgbOf(0, 240, 240), Rgb(255, 255, 255)), (RgbOf(0, 240, 0), Rgb(0, 0, 0)));
}

TEST(Hsl, ComesBackOverTheWholeCube) {
    // A step of hue, saturation or lightness is a little more than a byte wide, so there and back moves a
    // component by a few.
    for (int red = 0; red < 256; red += 5) {
        for (int green = 0; green < 256; green += 5) {
            for (int blue = 0; blue < 256; blue += 5) {
                const Hsl hsl = HslOf(Rgb(red, green, blue));
                ASSERT_TRUE(hsl.hue >= 0 && hsl.hue <= 239 && hsl.sat >= 0 && hsl.sat <= 240 && hsl.lum >= 0 &&
                            hsl.lum <= 240);
                const std::uint32_t back = RgbOf(hsl.hue, hsl.sat, hsl.lum);
                ASSERT_LE(back, 0xFFFFFFU);
                ASSERT_LE(std::abs(RedOf(back) - red), 4) << red << ' ' << green << ' ' << blue;
                ASSERT_LE(std::abs(GreenOf(back) - green), 4) << red << ' ' << green << ' ' << blue;
                ASSERT_LE(std::abs(BlueOf(back) - blue), 4) << red << ' ' << green << ' ' << blue;
            }
        }
    }
}
