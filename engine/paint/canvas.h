#pragma once
// Where everything is drawn: a painter on an image, in picture pixels, that takes colour values and effects.
// Coordinates of boxes are whole pixels: a box (x, y, w, h) covers exactly those pixels, and horizontal and
// vertical lines are put onto whole pixels so that they are crisp.

#include "engine/paint/colour.h"
#include "engine/paint/effect.h"

#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <array>
#include <span>

namespace chartdraw {

/// Corner radii in pixels: top left, top right, bottom right, bottom left.
using Corners = std::array<int, 4>;

class Canvas {
public:
    /// `image` and `colours` must outlive the canvas. The image is ARGB32_Premultiplied.
    Canvas(QImage& image, const ColourTable& colours, bool antiAlias = true);

    QPainter& painter() { return m_painter; }
    const ColourTable& colours() const { return m_colours; }
    int width() const;
    int height() const;


    void fillRect(const QRectF& rect, Colour colour);
    /// `extent`: what a metal gradient spans, the path's bounds when null.
    void fillPath(const QPainterPath& path, Colour colour, const QRectF* extent = nullptr);
    void strokePath(const QPainterPath& path, Colour colour, double width);
    /// A straight line between points; horizontal and vertical ones are crisp, others anti-aliased. Width in
    /// pixels; 0 or less draws nothing.
    void line(QPointF from, QPointF to, Colour colour, double width);
    /// A connected line. Long lines are handed to the raster engine in pieces, so that a wide pen stays
    /// linear in the number of points.
    void polyline(std::span<const QPointF> points, Colour colour, double width);
    /// A box: fill, then the effect, then the edge inside its outermost pixels. With a plain border effect and
    /// a default (-1) edge the border alone is drawn.
    void box(const QRect& rect, Colour fill, Colour edge, int effect, const Corners& corners = {});
    /// Any closed shape (a bar, a sector, a ring) with fill, edge and effect.
    void shape(const QPainterPath& path, Colour fill, Colour edge, int effect, double edgeWidth = 1);

private:
    QPainter m_painter;
    const ColourTable& m_colours;
};

/// The outline of a rectangle with rounded corners; radii are limited to half the sides.
QPainterPath roundedRect(const QRectF& rect, const Corners& corners);

} // namespace chartdraw
