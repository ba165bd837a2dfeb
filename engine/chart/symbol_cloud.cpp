#include "engine/chart/symbol_cloud.h"

#include "engine/data/fast_loop.h"
#include "engine/paint/blend.h"
#include "engine/paint/picture_layer.h"

#include <QtEndian>
#include <algorithm>
#include <bit>

namespace chartdraw {

namespace {

constexpr int kLargest = 64;        ///< pixels
constexpr double kOften = 16;       ///< times that the area is covered, from which on it pays
constexpr std::size_t kWindow = 56; ///< rows looked at together: as many bits as eight bytes hold from any on

/// For the loop over many points, which knows no containers.
struct Tables {
    QRgb* pixels;
    const QRgb* sprites;
    std::uint8_t *open, *hidden;
    const std::uint64_t *shown, *anyShown;
    std::size_t rows, spriteRows, strips, windows;
    QRgb opaque;
};

/// Lays the rows of a sprite whose bits are set behind those of a strip from `first` on, and closes those
/// that become opaque.
inline void blendBehind(QRgb* strip, const QRgb* sprite, std::uint64_t rows, std::uint8_t* open,
                        std::size_t first, QRgb opaque) {
    for (; rows != 0; rows &= rows - 1) {
        const auto row = static_cast<std::size_t>(std::countr_zero(rows));
        QRgb* __restrict to = strip + row * kLanes;
        const QRgb* __restrict from = sprite + row * kLanes;
        QRgb least = opaque;
#pragma GCC unroll 1 // only what stays a loop is turned into operations on many pixels
        for (std::size_t k = 0; k < kLanes; ++k) {
            const QRgb pixel = over(to[k], from[k]);
            to[k] = pixel;
            least = pixel < least ? pixel : least;
        }
        const unsigned full = least == opaque;
        open[(first + row) / 8] &= static_cast<std::uint8_t>(~(full << (first + row) % 8));
    }
}

/// Leaves, in their order, the places where a symbol is not hidden, and tells their number.
std::size_t keepShown(std::uint32_t* places, std::size_t count, const std::uint8_t* hidden) {
    std::size_t kept = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const std::uint32_t place = places[i];
        places[kept] = place;
        kept += 1 - (hidden[place / kLanes] >> place % kLanes & 1);
    }
    return kept;
}

/// The last place first.
CHART_FAST_LOOP void drawPlaces(const Tables& given, const std::uint32_t* places, std::size_t count) {
    const Tables t = given; // no pixel that is written is part of it
    while (count-- > 0) {
        const std::size_t begin = places[count] / kLanes, phase = places[count] % kLanes;
        if ((t.hidden[begin] >> phase & 1) != 0)
            continue;
        std::uint64_t open = 0, openToAny = 0;
        for (std::size_t strip = 0; strip < t.strips; ++strip) {
            const QRgb* sprite = t.sprites + (phase * t.strips + strip) * t.spriteRows * kLanes;
            for (std::size_t window = 0; window < t.windows; ++window) {
                const std::size_t first = begin + strip * t.rows + window * kWindow;
                const std::uint64_t here = qFromLittleEndian<quint64>(t.open + first / 8) >> first % 8;
                const std::size_t i = strip * t.windows + window;
                const std::uint64_t drawn = here & t.shown[phase * t.strips * t.windows + i];
                blendBehind(t.pixels + first * kLanes, sprite + window * kWindow * kLanes, drawn, t.open,
                            first, t.opaque);
                open |= drawn;
                openToAny |= here & t.anyShown[i];
            }
        }
        const unsigned hidden = openToAny == 0 ? 0xff : open == 0 ? 1U << phase : 0;
        t.hidden[begin] |= static_cast<std::uint8_t>(hidden);
    }
}

/// Columns or rows from values.
struct Along {
    const double* values;
    double offset, factor;
    double begin, end; ///< of those where symbols may begin
    double beyond;     ///< the one that takes what lies behind the end; what lies before goes to 0
};

/// The places of pixels in strips of so many rows.
CHART_FAST_LOOP void findPlaces(Along x, Along y, std::size_t count, std::int32_t rows,
                                std::uint32_t* places) {
    for (std::size_t i = 0; i < count; ++i) {
        const double atX = x.offset + x.factor * x.values[i], atY = y.offset + y.factor * y.values[i];
        const double afterX = atX >= x.begin ? atX : 0, afterY = atY >= y.begin ? atY : 0;
        const auto column = static_cast<std::int32_t>(afterX < x.end ? afterX : x.beyond);
        const auto row = static_cast<std::int32_t>(afterY < y.end ? afterY : y.beyond);
        places[i] = static_cast<std::uint32_t>((column / kLanes * (rows - 1) + row) * kLanes + column);
    }
}

} // namespace

bool SymbolCloud::pays(const Canvas& canvas, const DataSymbol& symbol, const QRect& area, std::size_t count) {
    const double covered = static_cast<double>(count) * symbol.size * symbol.size;
    return symbol.size > 0 && !area.isEmpty() && symbolReach(symbol.shape, symbol.size) <= kLargest &&
           covered > kOften * area.width() * area.height() && canvas.pixels().image != nullptr;
}

SymbolCloud::SymbolCloud(Canvas& canvas, const DataSymbol& symbol, const QRect& area)
    : m_canvas(canvas), m_area(area) {
    const int reach = static_cast<int>(symbolReach(symbol.shape, symbol.size));
    m_side = reach + 2; // as SymbolPainter draws them, with a pixel free on all sides
    m_before = 1 + reach / 2;
    makeSprites(symbol);
    // A strip or a row around all, for the points that are not shown.
    const auto shown = static_cast<std::size_t>((m_area.width() + kLanes - 1) / kLanes);
    m_strips = 1 + shown + m_spriteStrips;
    m_rows = static_cast<std::size_t>(m_area.height() + 2 + m_side);
    m_pixels.resize(m_strips * m_rows * kLanes);
    m_open.resize(m_strips * m_rows / 8 + sizeof(std::uint64_t), 0xff);
    m_hidden.assign(m_strips * m_rows, 0xff);
    for (std::size_t strip = 1; strip <= shown; ++strip)
        std::fill_n(&m_hidden[strip * m_rows + 1], m_area.height(), 0);
}

void SymbolCloud::makeSprites(const DataSymbol& symbol) {
    const int width = (m_side + 2 * kLanes - 2) / kLanes * kLanes;
    QImage image(width, kLanes * m_side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    {
        Canvas canvas(image, m_canvas.colours(), m_canvas.painter().testRenderHint(QPainter::Antialiasing));
        SymbolPainter painter(canvas, symbol);
        for (int i = 0; i < kLanes; ++i)
            painter.draw(QPointF(m_before + i, m_before + i * m_side));
    }
    m_spriteStrips = static_cast<std::size_t>(width / kLanes);
    const auto rows = static_cast<std::size_t>(m_side);
    const std::size_t windows = (rows + kWindow - 1) / kWindow;
    m_shown.resize(kLanes * m_spriteStrips * windows);
    m_anyShown.resize(m_spriteStrips * windows);
    unsigned strongest = 1;
    for (std::size_t i = 0; i < kLanes * m_spriteStrips * rows; ++i) {
        const std::size_t row = i % rows, strip = i / rows, sprite = strip / m_spriteStrips;
        const auto* from =
            reinterpret_cast<const QRgb*>(image.constScanLine(static_cast<int>(sprite * rows + row))) +
            strip % m_spriteStrips * kLanes;
        m_sprites.insert(m_sprites.end(), from, from + kLanes);
        const unsigned most = *std::max_element(from, from + kLanes) >> 24;
        strongest = std::max(strongest, most);
        const std::uint64_t bit = std::uint64_t{most > 0} << row % kWindow;
        m_shown[strip * windows + row / kWindow] |= bit;
        m_anyShown[strip % m_spriteStrips * windows + row / kWindow] |= bit;
    }
    m_opaque = (255 - 127 / strongest) << 24; // less than half of a step is rounded down to none
}

void SymbolCloud::drawBehind(const Places& x, const Places& y) {
    const std::size_t count = x.values.size();
    const auto along = [](const Places& places, int from, int begin, int length, std::size_t beyond) {
        return Along{.values = places.values.data(),
                     .offset = places.offset + 0.5 - from + begin,
                     .factor = places.factor,
                     .begin = static_cast<double>(begin),
                     .end = static_cast<double>(begin + length),
                     .beyond = static_cast<double>(beyond)};
    };
    m_places.resize(count);
    findPlaces(along(x, m_area.left(), kLanes, m_area.width(), (m_strips - m_spriteStrips) * kLanes),
               along(y, m_area.top(), 1, m_area.height(), static_cast<std::size_t>(m_area.height()) + 1),
               count, static_cast<std::int32_t>(m_rows), m_places.data());
    const Tables tables{.pixels = m_pixels.data(),
                        .sprites = m_sprites.data(),
                        .open = m_open.data(),
                        .hidden = m_hidden.data(),
                        .shown = m_shown.data(),
                        .anyShown = m_anyShown.data(),
                        .rows = m_rows,
                        .spriteRows = static_cast<std::size_t>(m_side),
                        .strips = m_spriteStrips,
                        .windows = m_anyShown.size() / m_spriteStrips,
                        .opaque = m_opaque};
    drawPlaces(tables, m_places.data(), keepShown(m_places.data(), count, m_hidden.data()));
}

void SymbolCloud::finish(QPoint offset) {
    const QPoint corner =
        m_area.topLeft() - QPoint(m_before + kLanes, m_before + 1) + offset + m_canvas.pixels().origin;
    for (std::size_t strip = 0; strip < m_strips; ++strip) {
        const auto* pixels = reinterpret_cast<const uchar*>(&m_pixels[strip * m_rows * kLanes]);
        drawPixels(m_canvas.painter(), corner + QPoint(static_cast<int>(strip) * kLanes, 0),
                   QImage(pixels, kLanes, static_cast<int>(m_rows), kLanes * sizeof(QRgb),
                          QImage::Format_ARGB32_Premultiplied));
    }
}

} // namespace chartdraw
