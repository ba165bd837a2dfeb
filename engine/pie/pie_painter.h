#pragma once
// Draws the sectors of a pie: walls from back to front, then the faces.

#include "engine/paint/canvas.h"
#include "engine/pie/sector_geometry.h"

#include <span>

namespace chartdraw {

struct SectorLook {
    SectorSpan span;
    QPointF centre; ///< of the sector's own ellipse: the pie's, or moved outwards
    Colour fill;
    Colour edge; ///< kDefaultColour: fine light lines between the faces
};

struct PieLook {
    PieBody body;
    bool flatShade = false; ///< walls of one shade, as a shadow; else shaded as if lit from the left
};

/// `sectors` in clockwise order; those without a span draw nothing.
void drawPie(Canvas& canvas, const PieLook& pie, std::span<const SectorLook> sectors);

} // namespace chartdraw
