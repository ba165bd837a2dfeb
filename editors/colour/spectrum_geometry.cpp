#include "editors/colour/spectrum_geometry.h"

#include <algorithm>

namespace {

constexpr int kTop = 7;         // of the spectrum and the bar
constexpr int kArrowHeight = 9; // pixels
constexpr int kBarWidth = 14;
constexpr int kSliderWidth = 29; // from the control's right edge to the left of the slider

/// A rectangle from edges of which right and bottom are outside.
QRect Between(int left, int top, int right, int bottom) {
    return {left, top, std::max(0, right - left), std::max(0, bottom - top)};
}

/// The share `part` of `whole`, on a scale from 0 to `limit`; nothing has no share.
int Scaled(int part, int whole, int limit) {
    return whole > 0 ? std::clamp(part * limit / whole, 0, limit) : 0;
}

} // namespace

SpectrumGeometry::SpectrumGeometry(QSize control)
    : spectrum(Between(0, kTop, control.width() - 35, control.height() - kTop)),
      slider(Between(control.width() - kSliderWidth, 3, control.width() - 2, control.height() - 3)),
      bar(control.width() - kSliderWidth, kTop, kBarWidth, spectrum.height()),
      arrowLeft(control.width() - 12) {}

QPoint SpectrumGeometry::Crosshair(const Hsl& color) const {
    const int w = spectrum.width();
    const int h = spectrum.height();
    return {std::min(w * color.hue / kHueMax, w - 1),
            std::min(kTop + h - 1, h - h * color.sat / kSatMax + kTop)};
}

int SpectrumGeometry::SliderPosition(int lum) const {
    const int h = bar.height();
    return std::clamp(h - h * lum / kLumMax, 0, std::max(0, h - 1));
}

QPoint SpectrumGeometry::Arrow(int lum) const {
    return {arrowLeft, 3 + std::clamp(SliderPosition(lum), 0, std::max(0, slider.height() - kArrowHeight))};
}

int SpectrumGeometry::HueAt(int x) const {
    return Scaled(x, spectrum.width() - 1, kHueMax);
}

int SpectrumGeometry::SatAt(int y) const {
    const int h = spectrum.height();
    return Scaled(h - y + 6, h - 1, kSatMax);
}

int SpectrumGeometry::LumAt(int y) const {
    const int h = bar.height();
    return Scaled(h - std::clamp(y - kTop, 0, std::max(0, h - 1)) - 1, h - 1, kLumMax);
}
