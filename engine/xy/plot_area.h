#pragma once
// The plot area of an XY chart: where it is, what stands behind the layers, and the grid lines' look. The
// frame lines run on the pixel columns left and left + width and on the rows top and top + height, which is
// where the limits of axes without margins stand.

#include "engine/object/object.h"
#include "engine/paint/colour.h"

#include <QPoint>
#include <QRect>
#include <array>
#include <string>
#include <vector>

namespace chartdraw {

class Canvas;
class Chart;

/// How the grid lines of one sort look. Invisible with a width below 1 or a transparent colour.
struct GridLook {
    Colour colour = kTransparent;
    int width = 1; ///< pixels
};

class PlotArea : public Object {
public:
    static constexpr Kind kKind = Kind::PlotArea;

    enum Grid { MajorHorizontal, MajorVertical, MinorHorizontal, MinorVertical };

    explicit PlotArea(Chart& chart) : Object(Kind::PlotArea), m_chart(chart) {}

    void setRect(int x, int y, int width, int height);
    void setBackground(Colour background, Colour alternate, Colour edge);
    void setImage(std::string path, int alignment);
    void setQuadrants(const std::array<Colour, 4>& colours, Colour edge);
    void setGridColours(const std::array<Colour, 4>& colours);
    void setGridWidths(const std::array<int, 4>& widths);

    /// Left, top, width and height as given; the frame's pixels are rect().adjusted(0, 0, 1, 1).
    const QRect& rect() const { return m_rect; }
    const GridLook& grid(Grid sort) const { return m_grids[sort]; }

    /// What the background needs to know of the axes.
    struct Lines {
        std::vector<int> bands;    ///< pixels along the bands' direction at which colours change, ascending
        bool bandsUpright = false; ///< bands stand side by side instead of above each other
        QPoint origin;             ///< where the axes' zeros cross, limited to the frame
    };
    /// Background and image into the frame moved by `offset` (the back wall of a 3D chart).
    void drawBackground(Canvas& canvas, QPoint offset, const Lines& lines) const;
    void drawEdge(Canvas& canvas, QPoint offset) const;

private:
    Chart& m_chart;
    QRect m_rect;
    Colour m_background = kTransparent;
    Colour m_alternate = kDefaultColour; ///< as the background
    Colour m_edge = kLineColour;
    std::string m_imagePath;
    int m_imageAlignment = 5;
    std::array<Colour, 4> m_quadrants;
    bool m_hasQuadrants = false;
    std::array<GridLook, 4> m_grids{GridLook{0xc0c0c0, 1}, GridLook{}, GridLook{}, GridLook{}};
};

} // namespace chartdraw
