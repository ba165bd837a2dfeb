#include "engine/chart/symbol_cloud.h"

#include "engine/chart/blend.h"
#include "engine/data/fast_loop.h"

#include <algorithm>
#include <cmath>

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

} // namespace

bool SymbolCloud::pays(const Canvas& canvas, const DataSymbol& symbol, const QRect& area, std::size_t count) {
    const double covered = static_cast<double>(count) * symbol.size * symbol.size;
    return symbol.size > 0 && symbol.size <= kLargest &&
           covered > kOften * std::max(1, area.width()) * std::max(1, area.height()) &&
           canvas.pixels().image != nullptr;
}

SymbolCloud::SymbolCloud(Canvas& canvas, const DataSymbol& symbol, const QRect& area)
    : m_canvas(canvas), m_symbol(symbol) {
    const int reach = symbol.size / 2 + 3;
    m_area = area.adjusted(-reach, -reach, reach, reach);
    m_image = QImage((m_area.width() + 2 * kLanes) / kLanes * kLanes, m_area.height() + kTile,
                     QImage::Format_ARGB32_Premultiplied);
    m_image.fill(Qt::transparent);
    m_bits = reinterpret_cast<QRgb*>(m_image.bits());
    m_stride = static_cast<int>(m_image.bytesPerLine() / static_cast<qsizetype>(sizeof(QRgb)));
    m_columns = (m_image.width() + kTile - 1) / kTile;
    m_full.resize(static_cast<std::size_t>(m_columns) *
                  static_cast<std::size_t>((m_image.height() + kTile - 1) / kTile));
    m_visits.resize(m_full.size());
    m_phases = sprite(0) == sprite(1) ? 1 : kPhases;
}

/// As SymbolPainter draws it, with two pixels free before a symbol in the middle of its pixel and no fewer
/// behind it.
const QImage& SymbolCloud::sprite(int phase) {
    QImage& image = m_sprites[phase];
    if (!image.isNull())
        return image;
    const int side = m_symbol.size + 5;
    image = QImage((side + kLanes - 1) / kLanes * kLanes, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    Canvas canvas(image, m_canvas.colours(), m_canvas.painter().testRenderHint(QPainter::Antialiasing));
    const double middle = m_symbol.size / 2 + 2;
    SymbolPainter(canvas, m_symbol)
        .draw({middle + 1.0 * (phase % kPhases) / kPhases, middle + 1.0 * (phase / kPhases) / kPhases});
    unsigned strongest = 1;
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x)
            strongest = std::max(strongest, static_cast<unsigned>(qAlpha(image.pixel(x, y))));
    m_opaque = std::min(m_opaque, 255 - 127 / strongest); // less than half of a step is rounded down to none
    return image;
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

void SymbolCloud::drawBehind(QPointF centre) {
    const auto place = [this](double along, int& phase) {
        const int nearest = static_cast<int>(std::floor(along * m_phases + 0.5));
        phase = nearest % m_phases;
        return nearest / m_phases;
    };
    int phaseX = 0, phaseY = 0;
    const QPointF inside = centre - m_area.topLeft();
    const int left = place(inside.x(), phaseX) - m_symbol.size / 2 - 2;
    const int top = place(inside.y(), phaseY) - m_symbol.size / 2 - 2;
    const int side = m_symbol.size + 5;
    const QRect tiles(QPoint(std::max(0, left) / kTile, std::max(0, top) / kTile),
                      QPoint((left + side - 1) / kTile, (top + side - 1) / kTile));
    const QImage& drawn = sprite(phaseY * kPhases + phaseX);
    if (left < 0 || top < 0 || left + drawn.width() > m_image.width() || top + side > m_image.height() ||
        isFull(tiles))
        return;
    blendBehind(m_bits + top * m_stride + left, static_cast<std::size_t>(m_stride),
                reinterpret_cast<const QRgb*>(drawn.constBits()), static_cast<std::size_t>(drawn.width()),
                static_cast<std::size_t>(side));
    for (int row = tiles.top(); row <= tiles.bottom(); ++row)
        for (int column = tiles.left(); column <= tiles.right(); ++column)
            lookAt(column, row);
}

void SymbolCloud::finish() {
    m_canvas.painter().drawImage(m_area.topLeft(), m_image);
}

} // namespace chartdraw
