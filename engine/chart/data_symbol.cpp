#include "engine/chart/data_symbol.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace chartdraw {

namespace {

constexpr double kFarthest = 1e6; ///< pixels; farther out nothing shows

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
      m_wholePixels(symbol.shape == kSquare || symbol.shape == kCross) {}

void SymbolPainter::draw(QPointF centre) {
    constexpr int kLargestSprite = 64;
    if (m_symbol.size > kLargestSprite || m_canvas.scale() != 1) {
        draw(centre, QSizeF(m_symbol.size, m_symbol.size));
        return;
    }
    if (!m_visible || !(std::abs(centre.x()) < kFarthest && std::abs(centre.y()) < kFarthest))
        return;
    const double steps = m_wholePixels ? 1 : kPhases;
    const auto place = [&](double along, int& phase) {
        const double snapped = std::floor(along * steps + 0.5) / steps;
        const double whole = std::floor(snapped);
        phase = static_cast<int>((snapped - whole) * kPhases);
        return whole - m_symbol.size / 2 - 1;
    };
    int phaseX = 0, phaseY = 0;
    const QPointF corner(place(centre.x(), phaseX), place(centre.y(), phaseY));
    m_canvas.painter().drawImage(corner, sprite(phaseX, phaseY));
}

void SymbolPainter::draw(QPointF centre, QSizeF size) {
    const bool drawn = m_visible && size.width() > 0 && size.height() > 0 &&
                       std::abs(centre.x()) < kFarthest && std::abs(centre.y()) < kFarthest;
    if (drawn)
        paint(m_canvas, centre, size.boundedTo(QSizeF(kMaxSymbolSize, kMaxSymbolSize)));
}

/// A pixel free on all sides of the symbol, and one for its place between pixels.
const QImage& SymbolPainter::sprite(int phaseX, int phaseY) {
    QImage& image = m_sprites[static_cast<std::size_t>(phaseY * kPhases + phaseX)];
    if (image.isNull()) {
        image = QImage(m_symbol.size + 3, m_symbol.size + 3, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        Canvas canvas(image, m_canvas.colours(), m_canvas.painter().testRenderHint(QPainter::Antialiasing));
        const double middle = 1 + m_symbol.size / 2;
        paint(canvas, QPointF(middle + 1.0 * phaseX / kPhases, middle + 1.0 * phaseY / kPhases),
              QSizeF(m_symbol.size, m_symbol.size));
    }
    return image;
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
