#pragma once
// A text turned into glyphs at places: markup, fonts, shaping, lines and their alignment among each other,
// and letters stacked from top to bottom. Knows nothing of boxes and angles.

#include "engine/text/text_block.h"

#include <QGlyphRun>
#include <QList>
#include <vector>

namespace chartdraw {

/// Glyphs of one style. Places are pixels from the top left corner of the text.
struct GlyphPiece {
    QList<QGlyphRun> glyphs;
    QPointF offset;
    QRectF underline; ///< Empty for none.
    Colour colour = kTextColour;
};

struct GlyphText {
    std::vector<GlyphPiece> pieces;
    QSize size = {0, 0}; ///< whole pixels
};

/// Lays out what a look says of the text itself. Empty where the application cannot do text.
GlyphText layOutGlyphs(const TextLook& look, std::string_view text, const FontSet& fonts);

} // namespace chartdraw
