#include "engine/chart/symbol_cloud.h"

#include "engine/chart/blend.h"
#include "engine/data/fast_loop.h"

#include <algorithm>

namespace chartdraw {

namespace {

constexpr int kTile = 8;      ///< pixels a side
constexpr int kVisits = 12;   ///< symbols after which a tile is looked at
constexpr int kLargest = 64;  ///< pixels
constexpr double kOften = 16; ///< times that the area is covered, from which on it pays

/// Lays premultiplied pixels behind others. `width` is a multiple of the lanes, and the rows of `from` have
/// no more.
CHART_FAST_LOOP void blendBehind(QRgb* __restrict to, std::size_t stride, const QRgb* __restrict from,
                                 std::size_t width, std::size_t rows) {
    for (; rows > 0; --rows, to += stride, from += width) {
        for (std::size_t x = 0; x < width; x += kLanes) {
#pragma GCC unroll 1 // only what stays a loop is turned into operations on many pixels
            for (std::size_t k = x; k < x + kLanes; ++k)
                to[k] = over(to[k], from[k]);
        }
    }
}

/// Where symbols stand, for a loop over many.
struct Grid {
    double left, right, top, bottom; ///< of the middles that are shown
    double x, y;                     ///< of the first pixel of the first tile
    double phases;
    int shift;  ///< the power of two that the phases are
    int before; ///< pixels of a symbol before its middle
    int columns, none;
};

/// The tiles in which symbols begin; `none` of those that are not shown.
CHART_FAST_LOOP void findTiles(const double* x, const double* y, std::size_t count, const Grid& given,
                               std::int32_t* tiles) {
    const Grid grid = given;
    for (std::size_t i = 0; i < count; ++i) {
        const bool shown =
            (x[i] >= grid.left) & (x[i] <= grid.right) & (y[i] >= grid.top) & (y[i] <= grid.bottom);
        const double atX = shown ? x[i] : grid.left, atY = shown ? y[i] : grid.top;
        const int column =
            ((static_cast<int>((atX - grid.x) * grid.phases + 0.5) >> grid.shift) - grid.before) / kTile;
        const int row =
            ((static_cast<int>((atY - grid.y) * grid.phases + 0.5) >> grid.shift) - grid.before) / kTile;
        tiles[i] = shown ? row * grid.columns + column : grid.none;
    }
}

} // namespace

bool SymbolCloud::pays(const Canvas& canvas, const DataSymbol& symbol, const QRect& area, std::size_t count) {
    const double covered = static_cast<double>(count) * symbol.size * symbol.size;
    return symbol.size > 0 && symbolReach(symbol.shape, symbol.size) <= kLargest &&
           covered > kOften * std::max(1, area.width()) * std::max(1, area.height()) &&
           canvas.pixels().image != nullptr;
}

SymbolCloud::SymbolCloud(Canvas& canvas, const DataSymbol& symbol, const QRect& area)
    : m_canvas(canvas), m_symbol(symbol), m_reach(static_cast<int>(symbolReach(symbol.shape, symbol.size))) {
    const int reach = m_reach / 2 + 3;
    m_middles = QRectF(area).translated(-0.5, -0.5);
    m_area = area.adjusted(-reach, -reach, reach, reach);
    m_image = QImage((m_area.width() + 2 * kLanes) / kLanes * kLanes, m_area.height() + kTile,
                     QImage::Format_ARGB32_Premultiplied);
    m_image.fill(Qt::transparent);
    m_bits = reinterpret_cast<QRgb*>(m_image.bits());
    m_stride = static_cast<int>(m_image.bytesPerLine() / static_cast<qsizetype>(sizeof(QRgb)));
    m_columns = (m_image.width() + kTile - 1) / kTile;
    m_full.resize(static_cast<std::size_t>(m_columns) *
                      static_cast<std::size_t>((m_image.height() + kTile - 1) / kTile) +
                  1);
    m_full.back() = 1;
    m_hides = m_full;
    m_visits.resize(m_full.size());
    m_phaseBits = sprite(0).image == sprite(1).image ? 0 : kPhaseBits;
}

/// As SymbolPainter draws it, with two pixels free before a symbol in the middle of its pixel and no fewer
/// behind it.
const SymbolCloud::Sprite& SymbolCloud::sprite(int phase) {
    Sprite& sprite = m_sprites[phase];
    QImage& image = sprite.image;
    if (sprite.rows > 0)
        return sprite;
    const int side = m_reach + 5;
    image = QImage((side + kLanes - 1) / kLanes * kLanes, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    Canvas canvas(image, m_canvas.colours(), m_canvas.painter().testRenderHint(QPainter::Antialiasing));
    const double middle = m_reach / 2 + 2;
    SymbolPainter(canvas, m_symbol)
        .draw({middle + 1.0 * (phase % kPhases) / kPhases, middle + 1.0 * (phase / kPhases) / kPhases},
              QSizeF(m_symbol.size, m_symbol.size));
    unsigned strongest = 1;
    sprite.first = side;
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const auto alpha = static_cast<unsigned>(qAlpha(image.pixel(x, y)));
            strongest = std::max(strongest, alpha);
            sprite.first = alpha > 0 ? std::min(sprite.first, y) : sprite.first;
            sprite.rows = alpha > 0 ? y + 1 - sprite.first : sprite.rows;
        }
    }
    m_opaque = std::min(m_opaque, 255 - 127 / strongest); // less than half of a step is rounded down to none
    return sprite;
}

bool SymbolCloud::isFull(const QRect& tiles) const {
    for (int row = tiles.top(); row <= tiles.bottom(); ++row) {
        for (int column = tiles.left(); column <= tiles.right(); ++column)
            if (m_full[static_cast<std::size_t>(row * m_columns + column)] == 0)
                return false;
    }
    return true;
}

/// Looks from time to time whether a tile is full.
void SymbolCloud::lookAt(int column, int row) {
    const auto tile = static_cast<std::size_t>(row * m_columns + column);
    if (m_full[tile] != 0 || ++m_visits[tile] < kVisits)
        return;
    m_visits[tile] = 0;
    const QRect pixels = QRect(column * kTile, row * kTile, kTile, kTile) & m_image.rect();
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        for (int x = pixels.left(); x <= pixels.right(); ++x)
            if (m_bits[y * m_stride + x] >> 24 < m_opaque)
                return;
    }
    m_full[tile] = 1;
}

void SymbolCloud::drawBehind(std::span<const double> x, std::span<const double> y) {
    const Grid grid{.left = m_middles.left(),
                    .right = m_middles.right(),
                    .top = m_middles.top(),
                    .bottom = m_middles.bottom(),
                    .x = static_cast<double>(m_area.left()),
                    .y = static_cast<double>(m_area.top()),
                    .phases = static_cast<double>(1 << m_phaseBits),
                    .shift = m_phaseBits,
                    .before = m_reach / 2 + 2,
                    .columns = m_columns,
                    .none = static_cast<int>(m_full.size()) - 1};
    m_tiles.resize(x.size());
    findTiles(x.data(), y.data(), x.size(), grid, m_tiles.data());
    for (std::size_t i = x.size(); i-- > 0;)
        if (const auto tile = static_cast<std::size_t>(m_tiles[i]); m_hides[tile] == 0)
            drawOne(x[i], y[i], tile);
}

void SymbolCloud::drawOne(double x, double y, std::size_t tile) {
    const auto place = [this](double along, int& phase) {
        const int nearest = static_cast<int>(along * (1 << m_phaseBits) + 0.5);
        phase = nearest & ((1 << m_phaseBits) - 1);
        return (nearest >> m_phaseBits) - m_reach / 2 - 2;
    };
    int phaseX = 0, phaseY = 0;
    const int left = place(x - m_area.left(), phaseX), top = place(y - m_area.top(), phaseY);
    const int side = m_reach + 5;
    const QRect tiles(QPoint(left / kTile, top / kTile),
                      QPoint((left + side - 1) / kTile, (top + side - 1) / kTile));
    if (isFull(tiles)) {
        // What begins anywhere in the tile does not reach farther.
        const int most = (side + kTile - 2) / kTile;
        const QRect all(0, 0, m_columns, (m_image.height() + kTile - 1) / kTile);
        m_hides[tile] = isFull(QRect(tiles.topLeft(), QSize(most + 1, most + 1)) & all);
        return;
    }
    const Sprite& drawn = sprite(phaseY * kPhases + phaseX);
    const auto width = static_cast<std::size_t>(drawn.image.width());
    blendBehind(m_bits + (top + drawn.first) * m_stride + left, static_cast<std::size_t>(m_stride),
                reinterpret_cast<const QRgb*>(drawn.image.constBits()) +
                    width * static_cast<std::size_t>(drawn.first),
                width, static_cast<std::size_t>(drawn.rows));
    for (int row = tiles.top(); row <= tiles.bottom(); ++row)
        for (int column = tiles.left(); column <= tiles.right(); ++column)
            lookAt(column, row);
}

void SymbolCloud::finish(QPoint offset) {
    m_canvas.painter().drawImage(m_area.topLeft() + offset, m_image);
}

} // namespace chartdraw
