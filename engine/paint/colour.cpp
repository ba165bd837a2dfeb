#include "engine/paint/colour.h"

#include <QLinearGradient>
#include <algorithm>
#include <atomic>
#include <cmath>
#include <mutex>
#include <numbers>
#include <shared_mutex>
#include <utility>
#include <vector>

namespace chartdraw {

namespace {

constexpr Colour kPaletteBase = 0xffff0000;
constexpr Colour kPatternBase = 0xff400000;
constexpr Colour kMetalBase = 0xff800000;
constexpr Colour kTokenMask = 0x003fffff; // the part of a pattern token that counts
constexpr std::size_t kMaxMetals = 1 << 16;

constexpr std::array<QRgb, kPaletteSize> kDefaultPalette = {
    0xffffffff, // 0 background
    0xff000000, // 1 lines
    0xff000000, // 2 text
    0xffd9dee4, // 3 grid lines
    0xfff3f5f8, // 4 bands and panels
    0xff68727d, // 5 secondary text and lines
    0xff2e9e62, // 6 gains
    0xffd64545, // 7 losses
    // 8 to 39: the series. The first eight stay apart for the colour-blind, and so do all neighbours; each is
    // dark enough for a thin line on white and light enough for black text on it.
    0xff4479bb, 0xffd46a10, 0xff63b474, 0xffb95189, 0xff8c81f7, 0xffe4b92e, 0xff52cdec, 0xff9c6c3b, //
    0xff009e81, 0xffe68bd8, 0xff787d4e, 0xff0b819f, 0xff9fb452, 0xffecac9c, 0xff9ab9e9, 0xffbe5a3d, //
    0xff9263ac, 0xff4d8073, 0xffd5adca, 0xff837711, 0xffc64d61, 0xff6ba3ff, 0xffff94b2, 0xffccb377, //
    0xff7f7192, 0xffa2c4a4, 0xff00b6fe, 0xff54822a, 0xffa06768, 0xffc7affc, 0xffea985d, 0xff09d0cd, //
};

struct Metal {
    Colour base;
    int angle;
};

/// The metals of the process. They are few (one a base and angle), so they are never given back; past the
/// limit a metal is its base colour.
class MetalRegistry {
public:
    Colour token(Metal metal) {
        const std::unique_lock lock(m_mutex);
        const auto [entry, fresh] = m_tokens.try_emplace({metal.base, metal.angle}, metal.base);
        if (fresh && m_metals.size() < kMaxMetals) {
            entry->second = kMetalBase + static_cast<Colour>(m_metals.size());
            m_metals.push_back(metal);
        } else if (fresh) {
            m_tokens.erase(entry);
            return metal.base;
        }
        return entry->second;
    }

    /// The metal of a token; `base` is kTransparent for a token that was never given.
    Metal find(Colour token) const {
        const std::shared_lock lock(m_mutex);
        const std::size_t index = token - kMetalBase;
        return index < m_metals.size() ? m_metals[index] : Metal{kTransparent, 0};
    }

private:
    mutable std::shared_mutex m_mutex;
    std::map<std::pair<Colour, int>, Colour> m_tokens;
    std::vector<Metal> m_metals;
};

MetalRegistry& metals() {
    static MetalRegistry registry;
    return registry;
}

bool isMetal(Colour colour) {
    return colour >= kMetalBase && colour < kMetalBase + kMaxMetals;
}
bool isPattern(Colour colour) {
    return colour >= kPatternBase && colour <= kPatternBase + kTokenMask;
}
bool isPalette(Colour colour) {
    return colour >= kPaletteBase && colour < kPaletteBase + kPaletteSize;
}

/// `colour` moved towards white (amount above 0) or black (below 0), its alpha kept.
QColor shade(const QColor& colour, double amount) {
    const double target = amount > 0 ? 255 : 0;
    const double weight = std::abs(amount);
    const auto mix = [&](int channel) {
        return static_cast<int>(std::lround(channel + (target - channel) * weight));
    };
    return {mix(colour.red()), mix(colour.green()), mix(colour.blue()), colour.alpha()};
}

/// The bands of brushed metal: broad sheens with finer streaks between them.
QBrush metalBrush(const QColor& base, int angle, const QRectF& extent) {
    static constexpr std::array<std::pair<double, double>, 15> kBands = {{{0.00, -0.10},
                                                                          {0.08, 0.25},
                                                                          {0.16, 0.62},
                                                                          {0.22, 0.40},
                                                                          {0.30, 0.05},
                                                                          {0.38, -0.14},
                                                                          {0.45, 0.12},
                                                                          {0.53, 0.55},
                                                                          {0.58, 0.70},
                                                                          {0.64, 0.42},
                                                                          {0.72, 0.02},
                                                                          {0.79, -0.16},
                                                                          {0.87, 0.15},
                                                                          {0.94, 0.45},
                                                                          {1.00, 0.10}}};
    const double radians = angle * std::numbers::pi / 180;
    const QPointF direction(std::cos(radians), std::sin(radians));
    const double reach =
        (std::abs(direction.x()) * extent.width() + std::abs(direction.y()) * extent.height()) / 2;
    QLinearGradient gradient(extent.center() - direction * reach, extent.center() + direction * reach);
    for (const auto& [position, amount] : kBands)
        gradient.setColorAt(position, shade(base, amount));
    return gradient;
}

/// The mean of a tile, weighted by alpha; large tiles are sampled. Only a clear tile has a clear mean.
QColor meanColour(const QImage& tile) {
    const int stepX = std::max(1, tile.width() / 128);
    const int stepY = std::max(1, tile.height() / 128);
    std::array<std::int64_t, 4> sum{};
    std::int64_t count = 0;
    for (int y = 0; y < tile.height(); y += stepY) {
        const auto* row = reinterpret_cast<const QRgb*>(tile.constScanLine(y));
        for (int x = 0; x < tile.width(); x += stepX, ++count) {
            const QRgb pixel = row[x];
            sum[0] += qRed(pixel);
            sum[1] += qGreen(pixel);
            sum[2] += qBlue(pixel);
            sum[3] += qAlpha(pixel);
        }
    }
    const std::int64_t alpha = sum[3];
    const auto channel = [&](std::int64_t value) {
        return alpha == 0 ? 0
                          : static_cast<int>(std::min<std::int64_t>(255, (value * 255 + alpha / 2) / alpha));
    };
    return {channel(sum[0]), channel(sum[1]), channel(sum[2]), static_cast<int>((alpha + count - 1) / count)};
}

} // namespace

Colour metalColour(Colour base, int angle) {
    const Colour plain = isMetal(base) ? metals().find(base).base : base;
    return metals().token({plain, (angle % 360 + 360) % 360});
}

ColourTable::ColourTable() : m_palette(kDefaultPalette) {}

Colour ColourTable::addPattern(const QImage& tile, int startX, int startY) {
    if (tile.isNull())
        return kTransparent;
    // One count for all charts: a token that strays into another chart is unknown there.
    static std::atomic<Colour> counter{0};
    const Colour token = kPatternBase + (counter.fetch_add(1, std::memory_order_relaxed) & kTokenMask);
    const QImage image = tile.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    m_patterns.insert_or_assign(token, Pattern{image, QPoint(startX, startY), meanColour(image)});
    return token;
}

void ColourTable::addPatternsOf(const ColourTable& other, const QPoint& offset) {
    for (const auto& [token, pattern] : other.m_patterns)
        m_patterns.insert_or_assign(token, Pattern{pattern.tile, pattern.origin + offset, pattern.mean});
}

QColor ColourTable::solid(Colour colour) const {
    if (colour < kTransparent) {
        return {static_cast<int>(colour >> 16 & 0xff), static_cast<int>(colour >> 8 & 0xff),
                static_cast<int>(colour & 0xff), static_cast<int>(255 - (colour >> 24))};
    }
    if (isPalette(colour))
        return QColor::fromRgba(m_palette[colour - kPaletteBase]);
    if (isMetal(colour))
        return solid(metals().find(colour).base);
    if (isPattern(colour)) {
        const auto found = m_patterns.find(colour);
        if (found != m_patterns.end())
            return found->second.mean;
    }
    return QColor(0, 0, 0, 0);
}

QBrush ColourTable::brush(Colour colour, const QRectF& extent) const {
    if (isPattern(colour)) {
        const auto found = m_patterns.find(colour);
        if (found != m_patterns.end()) {
            QBrush brush(found->second.tile);
            brush.setTransform(QTransform::fromTranslate(found->second.origin.x(), found->second.origin.y()));
            return brush;
        }
        return Qt::NoBrush;
    }
    const QColor plain = solid(colour);
    if (plain.alpha() == 0)
        return Qt::NoBrush;
    if (isMetal(colour) && extent.isValid())
        return metalBrush(plain, metals().find(colour).angle, extent);
    return plain;
}

bool ColourTable::invisible(Colour colour) const {
    return colour >= kTransparent && solid(colour).alpha() == 0;
}

} // namespace chartdraw
