#pragma once
// Where everything is drawn: a painter on an image, in picture pixels, that takes colour values and effects.
// A picture may be drawn on an image of more or fewer pixels than its own: the painter is scaled, and what is
// to be crisp is put onto whole pixels of the image. Coordinates of boxes are whole pixels: a box (x, y, w,
// h) covers exactly those pixels, and horizontal and vertical lines are put onto whole pixels so that they
// are crisp.

#include "engine/paint/colour.h"
#include "engine/paint/corners.h"
#include "engine/paint/effect.h"

#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <span>
#include <vector>

namespace chartdraw {

class Canvas {
public:
    /// `image` and `colours` must outlive the canvas. The image is ARGB32_Premultiplied. `transform` leads
    /// from the picture to the image; it may only scale, alike both ways, and move.
    Canvas(QImage& image, const ColourTable& colours, bool antiAlias = true,
           const QTransform& transform = {});

    QPainter& painter() { return m_painter; }
    const ColourTable& colours() const { return m_colours; }
    /// Of the image, in pixels of the picture.
    int width() const;
    int height() const;
    /// Pixels of the image to one of the picture.
    double scale() const { return m_scale; }

    /// Limits drawing to a rectangle, within what it is limited to already, until `popClip`, which also puts
    /// back all that was set on the painter in between.
    void pushClip(const QRect& rect);
    void popClip();

    /// Where pixels may be written straight into the image, which for small things is many times as fast as
    /// the painter.
    struct Pixels {
        QImage* image = nullptr; ///< null: nowhere, as the painter is set now
        QPoint origin;           ///< of the picture on the image
        QRect limits;            ///< on the image
    };
    Pixels pixels() const;

    /// The sides are rounded to whole pixels; what is then empty draws nothing.
    void fillRect(const QRectF& rect, Colour colour);
    /// Coordinates are pixel borders: a rectangle (1, 1, 2, 2) in a path covers 4 pixels. `extent`: what a
    /// metal gradient spans, the path's bounds when null.
    void fillPath(const QPainterPath& path, Colour colour, const QRectF* extent = nullptr);
    /// The pen is centred on the path, whose coordinates are pixel borders; nothing is put onto whole pixels.
    void strokePath(const QPainterPath& path, Colour colour, double width);
    /// A straight line between points; horizontal and vertical ones are crisp, others anti-aliased. Width in
    /// pixels; 0 or less draws nothing. Here and in `polyline` whole coordinates are the middle of pixels: a
    /// line of width 1 from (10, 5) to (20, 5) covers the columns 10 to 20 of row 5. An even width takes the
    /// odd pixel below or to the right.
    void line(QPointF from, QPointF to, Colour colour, double width);
    /// A connected line with round joins and ends. A point that is not a number breaks it; a point alone
    /// between two breaks is a dot. The cost is linear in the line's length for any pen, and a colour that
    /// shows through is laid on once, however often the line crosses itself.
    void polyline(std::span<const QPointF> points, Colour colour, double width);
    /// A box: fill, then the effect, then the edge inside its outermost pixels. With a plain border effect
    /// and a default (-1) edge the border alone is drawn; without one a default edge is none. `edgeWidth` in
    /// pixels.
    void box(const QRect& rect, Colour fill, Colour edge, int effect, const Corners& corners = {},
             int edgeWidth = 1);
    /// Any closed shape (a bar, a sector, a ring) with fill, edge and effect. A path that is an upright
    /// rectangle is drawn as a box, on whole pixels; the edge of others is centred on the path. A default
    /// (-1) edge is none.
    void shape(const QPainterPath& path, Colour fill, Colour edge, int effect, double edgeWidth = 1);

    /// Tells `texts`, which must outlive the canvas, the outline of every text that is drawn from now on.
    void recordTexts(std::vector<QPolygonF>* texts) { m_texts = texts; }
    void textDrawn(const QPolygonF& outline) {
        if (m_texts != nullptr)
            m_texts->push_back(outline);
    }

private:
    /// What can show, with `margin` pixels around it, in the painter's coordinates.
    QRectF visible(double margin) const;
    void fillPixels(const QRect& pixels, Colour colour, const QRectF& extent);
    bool fillStraight(const QRect& pixels, const QColor& colour) const;
    /// The whole pixels of the image that a box of the picture covers, at least one; boxes that touch each
    /// other there touch here.
    QRect onImage(const QRectF& box) const;
    /// A width in pixels of the image, rounded alike wherever it stands.
    int onImage(double width) const;
    /// Fills pixels of the image.
    void fillImage(const QRect& pixels, Colour colour, const QRectF& extent);
    void frame(const QRect& rect, Colour colour, const Corners& corners, int width);

    QImage& m_image;
    QPainter m_painter;
    std::vector<QRect> m_clips; ///< on the image, the last one within all others
    const ColourTable& m_colours;
    double m_scale;
    std::vector<QPolygonF>* m_texts = nullptr;
};

/// Draws an image at its own size, placed in the area by an alignment code (the digits of a number pad, 5 and
/// unknown codes the middle) and cut off at the area's sides.
void drawImage(Canvas& canvas, const QImage& image, const QRect& area, int alignment);

} // namespace chartdraw
