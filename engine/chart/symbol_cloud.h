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

    /// The last point first. As SymbolPainter::draw, but behind the points before them. Those with their
    /// middles outside the area are passed over.
    void drawBehind(std::span<const double> x, std::span<const double> y);
    /// Lays all of them on the picture, moved by the offset.
    void finish(QPoint offset);

private:
    /// Places between whole pixels, in x and in y.
    static constexpr int kPhaseBits = 2, kPhases = 1 << kPhaseBits;

    struct Sprite {
        QImage image;
        int first = 0, rows = 0; ///< those that are not empty
    };
    const Sprite& sprite(int phase);
    void drawOne(double x, double y, std::size_t tile);
    bool isFull(const QRect& tiles) const;
    void lookAt(int column, int row);

    Canvas& m_canvas;
    DataSymbol m_symbol;
    int m_reach;  ///< pixels a side
    QRect m_area; ///< of the picture: where the symbols reach
    QRectF m_middles;
    QImage m_image;
    QRgb* m_bits;
    int m_stride;
    unsigned m_opaque = 255;      ///< the alpha from which on no symbol adds anything
    int m_phaseBits = kPhaseBits; ///< 0 for symbols that stand on whole pixels only
    Sprite m_sprites[kPhases * kPhases];
    int m_columns; ///< of the tiles of the image
    // Of the tiles, row by row; the last is none but always full:
    std::vector<std::uint8_t> m_full;   ///< whether all pixels are opaque
    std::vector<std::uint8_t> m_hides;  ///< whether all symbols are hidden whose first pixel it has
    std::vector<std::uint8_t> m_visits; ///< symbols since it was looked at
    std::vector<std::int32_t> m_tiles;  ///< of points in hand
};

} // namespace chartdraw
