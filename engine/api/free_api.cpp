// Operations without a handle that concern colours and effects.

#include "engine/api/call.h"
#include "engine/paint/colour.h"
#include "engine/paint/effect.h"
#include <chartdraw/surface.h>

extern "C" {

int CChart_metalColor(int base, int angle) {
    return chartdraw::guarded([&] {
        return static_cast<int>(chartdraw::metalColour(static_cast<chartdraw::Colour>(base), angle));
    });
}

int CChart_softLighting(int direction, int raisedEffect) {
    return chartdraw::softLighting(direction, raisedEffect);
}

int CChart_glassEffect(int glareSize, int direction, int raisedEffect) {
    return chartdraw::glassEffect(glareSize, direction, raisedEffect);
}

} // extern "C"
