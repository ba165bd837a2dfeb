#pragma once
// Colour values in all their forms, and the table that turns one into something a painter can fill with.
//
// A colour value is 32 bits, 0xAARRGGBB with AA counting transparency (0 opaque, 0xff invisible). The range
// in which every literal colour would be invisible, 0xff......, also carries the symbolic values: Transparent
// 0xff000000, the palette entries 0xffff0000 to 0xffff0027, "default" 0xffffffff, and tokens of patterns
// (0xff40....) and metals (0xff80....).

#include <QBrush>
#include <QImage>
#include <QPoint>
#include <QString>
#include <array>
#include <cstdint>
#include <map>

namespace chartdraw {

using Colour = std::uint32_t;

constexpr Colour kTransparent = 0xff000000;
constexpr Colour kDefaultColour = 0xffffffff;
constexpr Colour kBackgroundColour = 0xffff0000;
constexpr Colour kLineColour = 0xffff0001;
constexpr Colour kTextColour = 0xffff0002;
constexpr Colour kDataColour = 0xffff0008;
constexpr int kPaletteSize = 40;
constexpr int kFirstDataColour = 8;

/// The palette value of the n-th series, going round after the last entry.
constexpr Colour seriesColour(int n) {
    return kDataColour + static_cast<Colour>(n < 0 ? 0 : n % (kPaletteSize - kFirstDataColour));
}

/// `colour`, or `fallback` where `colour` is the default value -1.
constexpr Colour orDefault(Colour colour, Colour fallback) {
    return colour == kDefaultColour ? fallback : colour;
}

/// A metal token for a base colour and the angle in degrees that the bands follow one another in: 0 from left
/// to right, 90 from top to bottom. Tokens live as long as the process and mean the
/// same in every chart; the same pair gives the same token. There are 65536; after that the base is returned.
/// Safe to call from any thread.
Colour metalColour(Colour base, int angle);

/// The colours of one chart: the palette and the chart's own patterns. Not shared between threads.
class ColourTable {
public:
    ColourTable();

    /// Registers a tile and returns its token. (startX, startY) is the pixel of the picture where a tile
    /// begins. A null image gives kTransparent. In another chart the token is unknown, so invisible.
    Colour addPattern(const QImage& tile, int startX, int startY);

    /// Makes the patterns of another table known here too, their tiles moved by `offset`: for a chart that is
    /// drawn as part of another one.
    void addPatternsOf(const ColourTable& other, const QPoint& offset);

    /// The plain colour that stands for a value: palette entries looked up, a metal's base, a pattern's mean
    /// colour, invisible for Transparent and unknown tokens.
    QColor solid(Colour colour) const;

    /// A brush for a shape. `extent` is the shape's bounds in picture pixels: a metal gradient spans it.
    QBrush brush(Colour colour, const QRectF& extent) const;

    /// Whether nothing would be drawn.
    bool invisible(Colour colour) const;

private:
    struct Pattern {
        QImage tile;
        QPoint origin;
        QColor mean;
    };
    std::array<QRgb, kPaletteSize> m_palette;
    std::map<Colour, Pattern> m_patterns;
};

} // namespace chartdraw
