#pragma once
// The symbols at data points: their outlines, and a painter that draws one symbol at many points.

#include "engine/paint/canvas.h"

namespace chartdraw {

constexpr int kMaxSymbolSize = 4096; ///< pixels

/// The symbol at each point.
struct DataSymbol {
    int shape = 0;                ///< a symbol code, 1 to 9; another is none
    int size = 5;                 ///< pixels
    Colour fill = kDefaultColour; ///< as the data
    Colour edge = kDefaultColour; ///< as the fill
    int lineWidth = 1;            ///< pixels of the edge, which lies within the size
    bool shaded = false;          ///< the edge is a darker shade of the fill

    bool operator==(const DataSymbol&) const = default;

    /// Sizes limited and default colours replaced.
    DataSymbol resolved(Colour dataColour) const;
    /// No larger than a square of so many pixels.
    DataSymbol within(int side) const;
};

/// Pixels that a symbol reaches whose square has this side: diamonds and triangles have the square's area.
/// What is odd stays odd, so that the middle is one of a pixel.
double symbolReach(int shape, double side);

/// The outline of a symbol within a rectangle; empty for a code that is none.
QPainterPath symbolOutline(int shape, const QRectF& bounds);

/// Draws a symbol at any number of points. Its pixels are made once, so that each point costs a small image
/// copy and all look alike.
class SymbolPainter {
public:
    /// `symbol` is resolved; `canvas` must outlive the painter.
    SymbolPainter(Canvas& canvas, const DataSymbol& symbol);

    bool visible() const { return m_visible; }
    /// On the nearest whole pixel. Here as everywhere whole coordinates are the middle of pixels. A point
    /// that is no number draws none.
    void draw(QPointF centre);
    /// With a size of its own, between pixels; a side that is not above 0 draws none.
    void draw(QPointF centre, QSizeF size);

private:
    /// The pixels of a symbol. Empty ones on its right make the width a multiple of what is blended together.
    struct Sprite {
        QImage image;
        const QRgb* pixels = nullptr; ///< of the rows that are not empty
        int first = 0, rows = 0;      ///< these rows
        int width = 0;
    };

    void paint(Canvas& canvas, QPointF centre, QSizeF size) const;
    const Sprite& sprite();
    /// Straight into the image; false where that cannot be.
    bool blend(const Sprite& sprite, int left, int top) const;

    Canvas& m_canvas;
    DataSymbol m_symbol;
    bool m_visible;
    bool m_wholePixels;     ///< straight sides are crisp on whole pixels only
    QRgb* m_bits = nullptr; ///< of what is drawn on, where that may be written to
    std::size_t m_stride = 0;
    QPoint m_origin; ///< of the picture
    QRect m_limits;
    int m_reach; ///< pixels a side
    Sprite m_sprite;
};

} // namespace chartdraw
