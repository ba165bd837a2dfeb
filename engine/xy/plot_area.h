#pragma once
// The plot area of an XY chart: where it is, what stands behind the layers, and the grid lines' look. The
// frame lines run on the pixel columns left and left + width and on the rows top and top + height, which is
// where the limits of axes without margins stand.

#include "engine/chart/part.h"
#include "engine/paint/colour.h"

#include <QPoint>
#include <QRect>
#include <array>
#include <string>
#include <vector>

namespace chartdraw {

class Canvas;

/// How the grid lines of one sort look. Invisible with a width below 1 or a transparent colour.
struct GridLook {
    Colour colour = kTransparent;
    int width = 1; ///< pixels
};

class PlotArea : public Part {
public:
    static constexpr Kind kKind = Kind::PlotArea;

    enum Grid { MajorHorizontal, MajorVertical, MinorHorizontal, MinorVertical };

    explicit PlotArea(Chart& chart) : Part(Kind::PlotArea, chart) {}

    void setRect(int x, int y, int width, int height);
    void setBackground(Colour background, Colour alternate, Colour edge);
    void setImage(std::string path, int alignment);
    void setQuadrants(const std::array<Colour, 4>& colours, Colour edge);
    /// Colours of the major grids of a new plot area: light grey and none by default.
    void setFirstGrid(Colour horizontal, Colour vertical);
    void setGridColours(const std::array<Colour, 4>& colours);
    void setGridWidths(const std::array<int, 4>& widths);

    const GridLook& grid(Grid sort) const { return m_grids[sort]; }

    /// What the background needs to know of the axes.
    struct Lines {
        std::vector<int> bands;    ///< pixels of the y axis's major ticks: colours change there
        bool bandsUpright = false; ///< the bands stand side by side, not above each other
        QPoint origin;             ///< pixel of the zeros of both axes, limited to the frame
    };
    /// Background colours and image over the pixels of the frame, moved by `offset` (to the back wall).
    void drawBackground(Canvas& canvas, QPoint offset, const Lines& lines) const;
    void drawEdge(Canvas& canvas, QPoint offset) const;

    /// The pixels of the plot area, the lines of its frame included.
    QRect frame() const { return m_rect.adjusted(0, 0, 1, 1); }
    Colour background() const { return m_background; }
    Colour edge() const { return m_edge; }

private:
    void drawBands(Canvas& canvas, const QRect& frame, QPoint offset, const Lines& lines) const;

    QRect m_rect;
    Colour m_background = kTransparent;
    Colour m_alternate = kDefaultColour; ///< as the background
    Colour m_edge = kLineColour;
    std::string m_imagePath;
    int m_imageAlignment = 5;
    std::array<Colour, 4> m_quadrants{kTransparent, kTransparent, kTransparent, kTransparent};
    bool m_hasQuadrants = false;
    std::array<GridLook, 4> m_grids{GridLook{0xc0c0c0, 1}, GridLook{}, GridLook{}, GridLook{}};
};

} // namespace chartdraw
