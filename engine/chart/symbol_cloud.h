#pragma once
// Symbols in such numbers that most of them are hidden by later ones: drawn from the last to the first, each
// behind what is there already, so that those behind what shows nothing through cost a look at their place.

#include "engine/chart/data_symbol.h"

#include <cstdint>
#include <vector>

namespace chartdraw {

class SymbolCloud {
public:
    /// Whether that many symbols with their middles in `area` cover it so often, and can be drawn so: up to
    /// 64 pixels in size, on an image that may be written to.
    static bool pays(const Canvas& canvas, const DataSymbol& symbol, const QRect& area, std::size_t count);

    /// `symbol` is resolved; `canvas` must outlive the cloud.
    SymbolCloud(Canvas& canvas, const DataSymbol& symbol, const QRect& area);

    /// The point is within the area. As SymbolPainter::draw, but behind the points before it.
    void drawBehind(QPointF centre);
    /// Lays all of them on the picture.
    void finish();

private:
    /// Places between whole pixels, in x and in y.
    static constexpr int kPhases = 4;

    const QImage& sprite(int phase);
    bool isFull(const QRect& tiles) const;
    void lookAt(int column, int row);

    Canvas& m_canvas;
    DataSymbol m_symbol;
    QRect m_area; ///< of the picture: where the symbols reach
    QImage m_image;
    QRgb* m_bits;
    int m_stride;
    unsigned m_opaque = 255; ///< the alpha from which on no symbol adds anything
    int m_phases = kPhases;  ///< 1 for symbols that stand on whole pixels only
    QImage m_sprites[kPhases * kPhases];
    // Of the tiles of the image, row by row:
    int m_columns;
    std::vector<std::uint8_t> m_full;   ///< whether all pixels are opaque
    std::vector<std::uint8_t> m_visits; ///< symbols since it was looked at
};

} // namespace chartdraw
