#pragma once
// What a pen covers, gathered before anything is coloured: a pixel that several parts of a line touch takes
// the most that one of them covers of it. So parts show neither joints nor overlaps in any colour, every end
// and corner is round, and the work grows with the line's length however often it turns or crosses itself,
// which the raster engine's wide strokes do not manage.

#include <QPainter>
#include <QPointF>
#include <QRect>
#include <cstdint>
#include <vector>

namespace chartdraw {

class PenMask {
public:
    /// `area`: the pixels of the image that are of interest. `width` of the pen in such pixels, at least 1.
    PenMask(const QRect& area, double width);

    /// Coordinates are pixel borders, within 1e6 of the area. Equal ends make a dot.
    void segment(QPointF from, QPointF to);

    /// Lays the colour on what is covered, once; all or nothing of a pixel where the painter does not smooth.
    /// The brush is in the painter's coordinates.
    void paint(QPainter& painter, const QBrush& brush) const;

private:
    struct Stroke;
    void row(int y, int from, int to, const Stroke& stroke);

    QRect m_area;
    double m_reach; ///< the farthest distance from the middle of the pen to that of a pixel that it touches
    std::size_t m_stride;
    std::vector<std::uint8_t> m_covered;
};

} // namespace chartdraw
