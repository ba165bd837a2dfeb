#include "engine/chart/text_room.h"

#include <algorithm>
#include <cmath>

namespace chartdraw {

namespace {

constexpr int kCell = 2;        // pixels
constexpr double kTouching = 1; // pixels by which texts may lie over each other, or over the border

} // namespace

TextRoom::Text TextRoom::textOf(const QPolygonF& outline) {
    const QRectF bounds = outline.boundingRect();
    const double x = std::min(kTouching, bounds.width()) / 2, y = std::min(kTouching, bounds.height()) / 2;
    const bool upright =
        outline.size() < 2 || outline[0].x() == outline[1].x() || outline[0].y() == outline[1].y();
    return {outline, bounds.adjusted(x, y, -x, -y), upright};
}

TextRoom::TextRoom(QSize picture)
    : m_picture(QPointF(), QSizeF(std::max(0, picture.width()), std::max(0, picture.height()))),
      m_size((std::max(0, picture.width()) + kCell - 1) / kCell,
             (std::max(0, picture.height()) + kCell - 1) / kCell),
      m_taken(static_cast<std::size_t>(m_size.width()) * static_cast<std::size_t>(m_size.height())) {}

QRect TextRoom::cells(const QRectF& box) const {
    const QRect pixels =
        (box & QRectF(0, 0, m_size.width() * kCell, m_size.height() * kCell)).toAlignedRect();
    if (pixels.isEmpty())
        return {};
    return {QPoint(pixels.left() / kCell, pixels.top() / kCell),
            QPoint(pixels.right() / kCell, pixels.bottom() / kCell)};
}

std::size_t TextRoom::cell(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(m_size.width()) +
           static_cast<std::size_t>(x);
}

void TextRoom::reserve(const QPolygonF& outline) {
    m_texts.push_back(textOf(outline));
    if (m_texts.back().upright) {
        take(outline.boundingRect());
        return;
    }
    const QRect range = cells(outline.boundingRect());
    for (int y = range.top(); y <= range.bottom(); ++y)
        for (int x = range.left(); x <= range.right(); ++x)
            if (outline.containsPoint(QPointF(x + 0.5, y + 0.5) * kCell, Qt::OddEvenFill))
                m_taken[cell(x, y)] = true;
}

bool TextRoom::hasRoom(const QPolygonF& outline) const {
    const Text wanted = textOf(outline);
    const double border = kTouching / 2;
    return m_picture.adjusted(-border, -border, border, border).contains(wanted.bounds) &&
           std::none_of(m_texts.begin(), m_texts.end(), [&](const Text& text) {
               return text.bounds.intersects(wanted.bounds) &&
                      ((text.upright && wanted.upright) || text.outline.intersects(outline));
           });
}

bool TextRoom::claim(const QPolygonF& outline) {
    const bool free = hasRoom(outline);
    if (free)
        reserve(outline);
    return free;
}

std::vector<QRectF> TextRoom::boxes() const {
    std::vector<QRectF> boxes;
    for (const Text& text : m_texts)
        boxes.push_back(text.bounds);
    return boxes;
}

bool TextRoom::isFree(const QRectF& box) const {
    const QRect range = cells(box);
    for (int y = range.top(); y <= range.bottom(); ++y)
        for (int x = range.left(); x <= range.right(); ++x)
            if (m_taken[cell(x, y)])
                return false;
    return true;
}

void TextRoom::take(const QRectF& box) {
    const QRect range = cells(box);
    for (int y = range.top(); y <= range.bottom(); ++y)
        std::fill_n(m_taken.begin() + static_cast<std::ptrdiff_t>(cell(range.left(), y)), range.width(),
                    true);
}

} // namespace chartdraw
