#include "editors/colour/hsl.h"

#include <algorithm>

namespace {

int Rounded(double value, int limit) {
    return std::min(static_cast<int>(value + 0.5), limit);
}

/// One component at its place `t` on the colour circle, a third away from the next one.
double Component(double p, double q, double t) {
    if (t < 0)
        t += 1;
    if (t > 1)
        t -= 1;
    if (6 * t < 1)
        return p + (q - p) * 6 * t;
    if (2 * t < 1)
        return q;
    if (3 * t < 2)
        return p + (q - p) * (2.0 / 3 - t) * 6;
    return p;
}

} // namespace

Hsl HslOf(std::uint32_t color) {
    const double r = RedOf(color) / 255.0;
    const double g = GreenOf(color) / 255.0;
    const double b = BlueOf(color) / 255.0;
    const double most = std::max({r, g, b});
    const double least = std::min({r, g, b});
    const double l = (most + least) / 2;
    double s = 0;
    double h = 0;
    if (most > least) {
        const double d = most - least;
        s = l < 0.5 ? d / (most + least) : d / (2 - most - least);
        if (r == most)
            h = (g - b) / d;
        else if (g == most)
            h = (b - r) / d + 2;
        else
            h = (r - g) / d + 4;
        h /= 6;
        if (h < 0)
            h += 1;
    }
    return {
        .hue = Rounded(h * 240, kHueMax), .sat = Rounded(s * 240, kSatMax), .lum = Rounded(l * 240, kLumMax)};
}

std::uint32_t RgbOf(double hue, double sat, double lum) {
    const double h = hue / 240;
    const double s = sat / 240;
    const double l = lum / 240;
    const auto byte = [](double value) { return static_cast<int>(value * 255); };
    if (s == 0)
        return Rgb(byte(l), byte(l), byte(l));
    const double q = l < 0.5 ? l * (1 + s) : l + s - l * s;
    const double p = 2 * l - q;
    return Rgb(byte(Component(p, q, h + 1.0 / 3)), byte(Component(p, q, h)),
               byte(Component(p, q, h - 1.0 / 3)));
}
