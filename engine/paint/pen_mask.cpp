#include "engine/paint/pen_mask.h"
#include "engine/paint/picture_layer.h"

#include <QImage>
#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace chartdraw {

namespace {

// Lanes are short loops kept from being unrolled: only loops are turned into operations on many pixels.
constexpr int kLane = 8;             // pixels that the processor takes together
constexpr int kUnit = 255 * 4;       // to a pixel
constexpr double kMostUnits = 20000; // leaves room for a lane's width
constexpr int kBand = 32;            // rows coloured at a time, few enough to stay in the cache
constexpr double kLevel = 1e-9;      // slope below which a line has no row-wise middle

using Lane = std::int16_t[kLane];

/// Pixels as small whole numbers, of which the processor takes most at a time.
std::int16_t units(double pixels) {
    const double wanted = pixels * kUnit;
    return static_cast<std::int16_t>(wanted < -kMostUnits  ? -kMostUnits
                                     : wanted > kMostUnits ? kMostUnits
                                                           : wanted);
}

void cover(std::uint8_t* pixels, const Lane& lane) {
#pragma GCC unroll 1
    for (int k = 0; k < kLane; ++k) {
        const std::int16_t above = lane[k] > 0 ? lane[k] : std::int16_t{0};
        const std::int16_t part = above < kUnit ? above : std::int16_t{kUnit};
        const auto covered = static_cast<std::uint8_t>(part >> 2);
        pixels[k] = pixels[k] > covered ? pixels[k] : covered;
    }
}

/// Whether nothing can be added to the first `count` pixels of a lane.
bool isFull(const std::uint8_t* pixels, int count) {
    constexpr std::uint64_t all = ~std::uint64_t{0};
    std::uint64_t lane = 0;
    static_assert(sizeof(lane) == kLane);
    std::memcpy(&lane, pixels, sizeof(lane));
    if (count >= kLane)
        return lane == all;
    const std::uint64_t rest =
        std::endian::native == std::endian::little ? all << 8 * count : all >> 8 * count;
    return (lane | rest) == all;
}

} // namespace

/// A segment as distances from its first end: along it and across it, at the middle of pixel (0, 0).
struct PenMask::Stroke {
    double along, across;
    double ux, uy; ///< direction, of length 1
    double length;
    Lane sideways;
};

PenMask::PenMask(const QRect& area, double width)
    : m_area(area), m_reach(width / 2 + 0.5), m_stride(static_cast<std::size_t>(area.width()) + kLane),
      m_covered(m_stride * static_cast<std::size_t>(area.height())) {}

void PenMask::row(int y, int from, int to, const Stroke& stroke) {
    std::uint8_t* pixels = m_covered.data() + m_stride * static_cast<std::size_t>(y) + from;
    const double span = (kLane - 1) * stroke.ux;
    double along = stroke.along + from * stroke.ux + y * stroke.uy;
    double across = stroke.across + from * stroke.uy - y * stroke.ux;
    for (int x = from; x < to;
         x += kLane, pixels += kLane, along += kLane * stroke.ux, across += kLane * stroke.uy) {
        if (isFull(pixels, to - x))
            continue; // as most are where a wide pen crosses its own line again and again
        Lane lane;
        if (std::min(along, along + span) >= 0 && std::max(along, along + span) <= stroke.length) {
            const std::int16_t left = units(m_reach + across), right = units(m_reach - across);
#pragma GCC unroll 1
            for (int k = 0; k < kLane; ++k) {
                const auto a = static_cast<std::int16_t>(left + stroke.sideways[k]);
                const auto b = static_cast<std::int16_t>(right - stroke.sideways[k]);
                lane[k] = a < b ? a : b;
            }
        } else {
            const auto ux = static_cast<float>(stroke.ux), uy = static_cast<float>(stroke.uy);
            const auto first = static_cast<float>(along), side = static_cast<float>(across);
            const auto length = static_cast<float>(stroke.length), reach = static_cast<float>(m_reach);
#pragma GCC unroll 1
            for (int k = 0; k < kLane; ++k) {
                const float at = first + static_cast<float>(k) * ux;
                const float off = side + static_cast<float>(k) * uy;
                const float past = at > length ? at - length : 0.0F;
                const float beyond = at < 0 ? at : past;
                const float rest = reach - std::sqrt(off * off + beyond * beyond);
                const float part = rest > 0 ? rest : 0.0F;
                lane[k] = static_cast<std::int16_t>(static_cast<int>((part < 1 ? part : 1.0F) * kUnit));
            }
        }
        cover(pixels, lane);
    }
}

void PenMask::segment(QPointF from, QPointF to) {
    from -= m_area.topLeft();
    to -= m_area.topLeft();
    const QPointF step = to - from;
    const double length = std::hypot(step.x(), step.y());
    Stroke stroke{0, 0, 1, 0, length, {}};
    if (length > 0) {
        stroke.ux = step.x() / length;
        stroke.uy = step.y() / length;
    }
#pragma GCC unroll 1
    for (int k = 0; k < kLane; ++k)
        stroke.sideways[k] = units(k * stroke.uy);
    stroke.along = (0.5 - from.x()) * stroke.ux + (0.5 - from.y()) * stroke.uy;
    stroke.across = (0.5 - from.x()) * stroke.uy - (0.5 - from.y()) * stroke.ux;
    const double low = std::max(0.0, std::min(from.x(), to.x()) - m_reach);
    const double high = std::min<double>(m_area.width(), std::max(from.x(), to.x()) + m_reach);
    const int top = static_cast<int>(std::max(0.0, std::min(from.y(), to.y()) - m_reach));
    const int bottom =
        static_cast<int>(std::ceil(std::min<double>(m_area.height(), std::max(from.y(), to.y()) + m_reach)));
    const bool sloped = std::abs(stroke.uy) > kLevel;
    const double slope = sloped ? stroke.ux / stroke.uy : 0;
    const double half = sloped ? m_reach / std::abs(stroke.uy) : 0;
    for (int y = top; y < bottom; ++y) {
        double left = low, right = high;
        if (sloped) {
            const double middle = from.x() + (y + 0.5 - from.y()) * slope;
            left = std::max(left, middle - half - 0.5); // the middle of a pixel counts, not its border
            right = std::min(right, middle + half - 0.5);
        }
        if (left < right)
            row(y, static_cast<int>(left), static_cast<int>(right) + 1, stroke);
    }
}

void PenMask::paint(QPainter& painter, const QBrush& brush) const {
    const bool plain = brush.style() == Qt::SolidPattern;
    const QColor colour = plain ? brush.color() : Qt::black;
    const bool smooth = painter.testRenderHint(QPainter::Antialiasing);
    std::array<QRgb, 256> colours;
    for (std::size_t i = 0; i < colours.size(); ++i) {
        const int part = smooth ? static_cast<int>(i) : i > 127 ? 255 : 0;
        colours[i] = qPremultiply(
            qRgba(colour.red(), colour.green(), colour.blue(), (colour.alpha() * part + 127) / 255));
    }
    QImage band(m_area.width(), std::min(kBand, m_area.height()), QImage::Format_ARGB32_Premultiplied);
    for (int top = 0; top < m_area.height(); top += kBand) {
        const QRect rows(0, 0, band.width(), std::min(kBand, m_area.height() - top));
        for (int y = 0; y < rows.height(); ++y) {
            const std::uint8_t* covered = m_covered.data() + m_stride * static_cast<std::size_t>(top + y);
            std::transform(covered, covered + band.width(), reinterpret_cast<QRgb*>(band.scanLine(y)),
                           [&](std::uint8_t part) { return colours[part]; });
        }
        const QPoint place = m_area.topLeft() + QPoint(0, top);
        if (!plain) {
            QPainter inner(&band);
            inner.setCompositionMode(QPainter::CompositionMode_SourceIn);
            QBrush moved = brush;
            moved.setTransform(brush.transform() * painter.worldTransform() *
                               QTransform::fromTranslate(-place.x(), -place.y()));
            inner.fillRect(rows, moved);
        }
        drawPixels(painter, place, rows.height() < band.height() ? band.copy(rows) : band);
    }
}

} // namespace chartdraw
