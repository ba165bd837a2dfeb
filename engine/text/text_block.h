#pragma once
// A text that has been laid out once and can then be measured and drawn any number of times: markup, several
// lines, alignment, margins, angle, vertical text, and the box around it.

#include "engine/paint/canvas.h"
#include "engine/text/alignment.h"
#include "engine/text/fonts.h"

#include <QPolygonF>
#include <memory>
#include <string>
#include <string_view>

namespace chartdraw {

/// The look of a text and its box. Every text of a chart (titles, labels of axes, sectors and data, keys) has
/// one; a handle to a text box edits it.
struct TextLook {
    std::string font;               ///< as fonts.h tells; empty is "normal"
    double size = kDefaultFontSize; ///< points
    double widthSize = 0;           ///< points; glyph width when not 0 and unlike `size`
    Colour colour = kTextColour;
    double angle = 0;       ///< degrees, counter-clockwise
    bool vertical = false;  ///< letters stacked from top to bottom; further lines to the right
    int alignment = Center; ///< of the lines inside the box
    int marginLeft = 0, marginRight = 0, marginTop = 0, marginBottom = 0; ///< pixels
    int width = 0, height = 0; ///< pixels of the box; 0 or less fits the text. Too long a text is not cut.
    Colour background = kTransparent;
    Colour edge = kTransparent;
    int effect = 0;
    Corners corners = {};
    int wrapWidth = 0; ///< pixels; longer lines are broken at words; 0 never. Not for vertical text.

    void setMargins(int left, int right, int top, int bottom);
};

/// Use a block on the thread that made it: it holds fonts of that thread.
class TextBlock {
public:
    /// Lays out `text` (UTF-8 with markup; bytes that are no UTF-8 show as replacement characters).
    TextBlock(const TextLook& look, std::string_view text, const FontSet& fonts);
    ~TextBlock();
    TextBlock(TextBlock&&) noexcept;
    TextBlock& operator=(TextBlock&&) noexcept;

    bool empty() const; ///< no visible text

    /// Whole pixels of the upright box, margins included.
    QSize boxSize() const;
    /// Whole pixels of the bounds of the turned box.
    QSize size() const;

    /// Bounds of the turned box when its bounds are put with their `alignment` point at `anchor`:
    /// TopLeft puts the top left corner of the bounds there, BottomCenter the middle of the lower side.
    QRectF boundsAt(QPointF anchor, int alignment) const;
    QPolygonF outlineAt(QPointF anchor, int alignment) const;
    void drawAt(Canvas& canvas, QPointF anchor, int alignment) const;

    /// The same with the `alignment` point of the upright box at `anchor`, turned about the anchor: what a
    /// slanted label needs so that its end touches its tick.
    QRectF pivotBoundsAt(QPointF anchor, int alignment) const;
    QPolygonF pivotOutlineAt(QPointF anchor, int alignment) const;
    void drawPivotAt(Canvas& canvas, QPointF anchor, int alignment) const;

private:
    struct Layout;
    std::unique_ptr<Layout> m_layout;
};

} // namespace chartdraw
