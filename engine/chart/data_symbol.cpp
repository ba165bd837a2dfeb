#include "engine/chart/data_symbol.h"

#include "engine/paint/blend.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <span>

namespace chartdraw {

namespace {

constexpr double kFarthest = 1e6; ///< pixels; farther out nothing shows
constexpr int kDarker = 160;      ///< percent

constexpr int kSquare = 1, kDiamond = 2, kTriangle = 3, kRightTriangle = 4, kLeftTriangle = 5,
              kInvertedTriangle = 6, kCircle = 7, kCross = 8, kCross2 = 9;

/// Corners of a symbol in a square from -1 to 1, y downward.
std::span<const QPointF> corners(int shape) {
    static const QPointF square[] = {{-1, -1}, {1, -1}, {1, 1}, {-1, 1}};
    static const QPointF diamond[] = {{0, -1}, {1, 0}, {0, 1}, {-1, 0}};
    static const QPointF up[] = {{0, -1}, {1, 1}, {-1, 1}};
    static const QPointF right[] = {{1, 0}, {-1, 1}, {-1, -1}};
    static const QPointF left[] = {{-1, 0}, {1, -1}, {1, 1}};
    static const QPointF down[] = {{0, 1}, {-1, -1}, {1, -1}};
    constexpr double a = 0.3; // half the breadth of the arms of an upright cross
    static const QPointF cross[] = {{-a, -1}, {a, -1}, {a, -a}, {1, -a}, {1, a},   {a, a},
                                    {a, 1},   {-a, 1}, {-a, a}, {-1, a}, {-1, -a}, {-a, -a}};
    constexpr double b = 0.4; // what a slanting arm takes of a side
    static const QPointF slanting[] = {{-1, b - 1}, {b - 1, -1}, {0, -b}, {1 - b, -1}, {1, b - 1},  {b, 0},
                                       {1, 1 - b},  {1 - b, 1},  {0, b},  {b - 1, 1},  {-1, 1 - b}, {-b, 0}};
    switch (shape) {
    case kSquare:
        return square;
    case kDiamond:
        return diamond;
    case kTriangle:
        return up;
    case kRightTriangle:
        return right;
    case kLeftTriangle:
        return left;
    case kInvertedTriangle:
        return down;
    case kCross:
        return cross;
    case kCross2:
        return slanting;
    default:
        return {};
    }
}

} // namespace

DataSymbol DataSymbol::resolved(Colour dataColour) const {
    DataSymbol result = *this;
    result.size = std::clamp(size, 0, kMaxSymbolSize);
    result.lineWidth = std::clamp(lineWidth, 0, kMaxSymbolSize);
    result.fill = orDefault(fill, dataColour);
    result.edge = orDefault(edge, result.fill);
    return result;
}

DataSymbol DataSymbol::within(int side) const {
    DataSymbol result = *this;
    while (result.size > 1 && symbolReach(shape, result.size) > side)
        --result.size;
    return result;
}

double symbolReach(int shape, double side) {
    const bool half = shape >= kDiamond && shape <= kInvertedTriangle; // of the rectangle around it
    return half ? side + 2 * std::round(side * (std::numbers::sqrt2 - 1) / 2) : side;
}

QPainterPath symbolOutline(int shape, const QRectF& bounds) {
    QPainterPath path;
    if (shape == kCircle) {
        path.addEllipse(bounds);
        return path;
    }
    for (const QPointF& corner : corners(shape)) {
        const QPointF at =
            bounds.center() + QPointF(corner.x() * bounds.width() / 2, corner.y() * bounds.height() / 2);
        path.elementCount() == 0 ? path.moveTo(at) : path.lineTo(at);
    }
    path.closeSubpath();
    return path;
}

SymbolPainter::SymbolPainter(Canvas& canvas, const DataSymbol& symbol)
    : m_canvas(canvas), m_symbol(symbol),
      m_visible(symbol.shape >= kSquare && symbol.shape <= kCross2 && symbol.size > 0 &&
                !(canvas.colours().invisible(symbol.fill) && canvas.colours().invisible(symbol.edge))),
      m_wholePixels(symbol.shape == kSquare || symbol.shape == kCross),
      m_reach(static_cast<int>(symbolReach(symbol.shape, symbol.size))) {
    if (symbol.shaded) {
        const QColor fill = canvas.colours().solid(symbol.fill);
        m_symbol.edge = (fill.darker(kDarker).rgb() & 0xffffff) | static_cast<Colour>(255 - fill.alpha())
                                                                      << 24;
    }
    if (const Canvas::Pixels open = canvas.pixels(); open.image != nullptr) {
        m_bits = reinterpret_cast<QRgb*>(open.image->bits());
        m_stride = static_cast<std::size_t>(open.image->bytesPerLine()) / sizeof(QRgb);
        m_origin = open.origin;
        m_limits = open.limits;
    }
}

void SymbolPainter::draw(QPointF centre) {
    constexpr int kLargestSprite = 64;
    if (!m_visible || !(std::abs(centre.x()) < kFarthest && std::abs(centre.y()) < kFarthest))
        return;
    if (m_symbol.size > kLargestSprite || m_canvas.scale() != 1) {
        const QTransform& toImage = m_canvas.painter().worldTransform();
        const QPointF middle(0.5, 0.5), at = toImage.map(centre + middle);
        const QPointF pixel(std::floor(at.x()), std::floor(at.y()));
        draw(toImage.inverted().map(pixel + middle) - middle, QSizeF(m_symbol.size, m_symbol.size));
        return;
    }
    const auto place = [this](double along) {
        return static_cast<int>(std::floor(along + 0.5)) - m_reach / 2 - 1;
    };
    const int left = place(centre.x()), top = place(centre.y());
    const Sprite& drawn = sprite();
    if (!blend(drawn, left, top))
        m_canvas.painter().drawImage(QPoint(left, top), drawn.image);
}

void SymbolPainter::draw(QPointF centre, QSizeF size) {
    const bool drawn = m_visible && size.width() > 0 && size.height() > 0 &&
                       std::abs(centre.x()) < kFarthest && std::abs(centre.y()) < kFarthest;
    if (drawn) {
        size = size.boundedTo(QSizeF(kMaxSymbolSize, kMaxSymbolSize));
        paint(m_canvas, centre,
              {symbolReach(m_symbol.shape, size.width()), symbolReach(m_symbol.shape, size.height())});
    }
}

/// A pixel free on all sides of the symbol.
const SymbolPainter::Sprite& SymbolPainter::sprite() {
    Sprite& sprite = m_sprite;
    if (sprite.pixels != nullptr)
        return sprite;
    const int side = m_reach + 2;
    sprite.image = QImage((side + kLanes - 1) / kLanes * kLanes, side, QImage::Format_ARGB32_Premultiplied);
    sprite.image.fill(Qt::transparent);
    {
        Canvas canvas(sprite.image, m_canvas.colours(),
                      m_canvas.painter().testRenderHint(QPainter::Antialiasing));
        const double middle = 1 + m_reach / 2;
        paint(canvas, QPointF(middle, middle), QSizeF(m_reach, m_reach));
    }
    const auto isEmpty = [&sprite](int row) {
        const auto* pixels = reinterpret_cast<const QRgb*>(sprite.image.constScanLine(row));
        return std::all_of(pixels, pixels + sprite.image.width(), [](QRgb pixel) { return pixel == 0; });
    };
    int end = side;
    while (sprite.first < end && isEmpty(sprite.first))
        ++sprite.first;
    while (end > sprite.first && isEmpty(end - 1))
        --end;
    sprite.rows = end - sprite.first;
    sprite.width = sprite.image.width();
    sprite.pixels = reinterpret_cast<const QRgb*>(sprite.image.constBits()) + sprite.first * sprite.width;
    return sprite;
}

bool SymbolPainter::blend(const Sprite& sprite, int left, int top) const {
    left += m_origin.x();
    top += m_origin.y() + sprite.first;
    if (m_bits == nullptr || left < m_limits.left() || left + sprite.width > m_limits.right() + 1 ||
        top < m_limits.top() || top + sprite.rows > m_limits.bottom() + 1)
        return false;
    const auto width = static_cast<std::size_t>(sprite.width);
    blendRows({m_bits + static_cast<std::size_t>(top) * m_stride + left, m_stride}, {sprite.pixels, width},
              width, static_cast<std::size_t>(sprite.rows));
    return true;
}

void SymbolPainter::paint(Canvas& canvas, QPointF centre, QSizeF size) const {
    // Of an even size, the odd pixel lies before the point.
    const auto before = [this](double side) { return m_wholePixels ? std::floor(side / 2) : side / 2 - 0.5; };
    const QPointF at =
        m_wholePixels ? QPointF(std::floor(centre.x() + 0.5), std::floor(centre.y() + 0.5)) : centre;
    const QRectF bounds(at - QPointF(before(size.width()), before(size.height())), size);
    const double edge = std::min<double>(m_symbol.lineWidth, std::min(size.width(), size.height()) / 2);
    if (edge <= 0 || m_symbol.edge == m_symbol.fill || canvas.colours().invisible(m_symbol.edge)) {
        canvas.fillPath(symbolOutline(m_symbol.shape, bounds), m_symbol.fill);
        return;
    }
    const double inset = edge / 2;
    const QPainterPath outline = symbolOutline(m_symbol.shape, bounds.adjusted(inset, inset, -inset, -inset));
    canvas.fillPath(outline, m_symbol.fill, &bounds);
    canvas.strokePath(outline, m_symbol.edge, edge);
}

} // namespace chartdraw
