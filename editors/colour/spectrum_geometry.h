#pragma once
// Where the parts of the spectrum control are, and which place stands for which colour.

#include "editors/colour/hsl.h"

#include <QPoint>
#include <QRect>

/// The spectrum shows hue from left to right and saturation from bottom to top; the slider beside it shows
/// lightness from bottom to top. All in pixels of the control.
struct SpectrumGeometry {
    explicit SpectrumGeometry(QSize control);

    QRect spectrum;
    QRect slider;  ///< the bar with its arrow: what can be pressed
    QRect bar;     ///< the colours of the slider
    int arrowLeft; ///< left edge of the arrow

    QPoint Crosshair(const Hsl& color) const; ///< centre of the crosshair
    int SliderPosition(int lum) const;        ///< rows below the top of the bar
    /// Top left corner of the arrow for that lightness.
    QPoint Arrow(int lum) const;

    int HueAt(int x) const;
    int SatAt(int y) const;
    int LumAt(int y) const;
};
