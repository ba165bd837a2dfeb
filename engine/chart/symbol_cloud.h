#pragma once
// Symbols in such numbers that most of them are hidden by later ones: drawn from the last to the first, each
// behind what is there already, so that those behind what shows nothing through cost a look at their place.

#include "engine/chart/data_symbol.h"

#include <cstdint>
#include <span>
#include <vector>

namespace chartdraw {

class SymbolCloud {
public:
    /// Whether that many symbols with their middles in `area` cover it so often, and can be drawn so: up to
    /// 64 pixels in size, on an image that may be written to.
    static bool pays(const Canvas& canvas, const DataSymbol& symbol, const QRect& area, std::size_t count);

    /// `symbol` is resolved; `canvas` must outlive the cloud.
    SymbolCloud(Canvas& canvas, const DataSymbol& symbol, const QRect& area);

    /// Where points stand along an axis of the picture: at offset + factor * value, or anywhere beyond the
    /// area what is no number.
    struct Places {
        std::span<const double> values;
        double offset = 0, factor = 1;
    };
    /// The last point first. As SymbolPainter::draw, but behind the points before them. Those with their
    /// middles outside the area are passed over. `x` and `y` have equally many values.
    void drawBehind(const Places& x, const Places& y);
    /// Lays all of them on the picture, moved by the offset.
    void finish(QPoint offset);

private:
    void makeSprites(const DataSymbol& symbol);

    Canvas& m_canvas;
    QRect m_area; ///< of the picture: the pixels where middles may be
    // Pixels are blended in groups of kLanes, rows of strips that stand side by side. Each lies in one piece.
    std::size_t m_strips, m_rows;
    std::vector<QRgb> m_pixels;
    std::vector<std::uint8_t> m_open;   ///< a bit a row of each strip: whether anything can be added to it
    std::vector<std::uint8_t> m_hidden; ///< a bit a pixel: whether symbols are hidden that begin there
    // Of the symbol, once for each pixel of a group that it may begin in:
    int m_side, m_before; ///< pixels, and those before its middle
    std::size_t m_spriteStrips;
    std::vector<QRgb> m_sprites;
    std::vector<std::uint64_t> m_shown;    ///< a bit a row of each strip: whether it is not empty
    std::vector<std::uint64_t> m_anyShown; ///< in one of them at least
    QRgb m_opaque = 0;                     ///< the least pixel to which nothing is added any more
    std::vector<std::uint32_t> m_places;   ///< of points in hand: their first pixels
};

} // namespace chartdraw
