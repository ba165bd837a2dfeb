#pragma once
// Hue, saturation and lightness on the scale 0 to 240, and where a colour lies in the spectrum control. Here
// a colour has red in the low byte: 0x00BBGGRR.

#include <cstdint>

struct Hsl {
    int hue; ///< 0 to 239
    int sat; ///< 0 to 240
    int lum; ///< 0 to 240
    bool operator==(const Hsl&) const = default;
};

constexpr int kHueMax = 239;
constexpr int kSatMax = 240;
constexpr int kLumMax = 240;

/// Rounded to whole numbers.
Hsl HslOf(std::uint32_t color);
/// Takes numbers between the whole ones, each from 0 to 240.
std::uint32_t RgbOf(double hue, double sat, double lum);

constexpr std::uint32_t Rgb(int red, int green, int blue) {
    return static_cast<std::uint32_t>(blue) << 16 | static_cast<std::uint32_t>(green) << 8 |
           static_cast<std::uint32_t>(red);
}
constexpr int RedOf(std::uint32_t color) {
    return static_cast<int>(color & 0xFF);
}
constexpr int GreenOf(std::uint32_t color) {
    return static_cast<int>(color >> 8 & 0xFF);
}
constexpr int BlueOf(std::uint32_t color) {
    return static_cast<int>(color >> 16 & 0xFF);
}
