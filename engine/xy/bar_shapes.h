#pragma once
// The forms of bars that are no rectangles.

#include "engine/paint/canvas.h"

namespace chartdraw {

/// Codes of the shapes of bars; 2 to 6 are those of symbols too.
enum BarShape {
    NoShape = 0,
    SquareShape = 1,
    DiamondShape = 2,
    InvertedTriangleShape = 6,
    CircleShape = 7,
    CircleShapeNoShading = 10,
};

struct BarLook {
    Colour fill = 0;
    Colour edge = kTransparent;
    Colour side = 0; ///< sides of the body in depth, before light and shade
    Colour sideEdge = kTransparent;
    int effect = 0;
    int edgeWidth = 1;
    int depth = 0; ///< pixels
};

/// Draws a bar that fills `pixels` with one of the shape codes. `tip`: the side at which it ends, as the
/// digits of a number pad (8 up, 2 down, 4 left, 6 right).
void drawBar(Canvas& canvas, const QRect& pixels, int shape, int tip, const BarLook& look);

} // namespace chartdraw
