#include "engine/pie/label_parts.h"
#include "engine/pie/sector_geometry.h"

#include <algorithm>
#include <cmath>

namespace chartdraw {

namespace {

constexpr double kGap = 1;       ///< pixels between two labels
constexpr double kJoinFrom = 14; ///< a label farther than this from its sector gets a join line

/// The box of a label that just touches the ellipse widened by `distance`, in the label's direction.
QRectF touching(const LabelSpot& spot, double distance) {
    const double rx = std::max(1e-6, spot.rx + distance);
    const double ry = std::max(1e-6, spot.ry + distance);
    const QPointF way(direction(spot.angle).x() * rx, direction(spot.angle).y() * ry);
    const double halfWidth = spot.size.width() / 2;
    const double halfHeight = spot.size.height() / 2;
    // Farther out along the way the nearest point of the box only moves away, so halving finds the place.
    double low = 0;
    double high = 1 + halfWidth / rx + halfHeight / ry;
    for (int i = 0; i < 24; ++i) {
        const double middle = (low + high) / 2;
        const double x = std::max(0.0, std::abs(way.x()) * middle - halfWidth) / rx;
        const double y = std::max(0.0, std::abs(way.y()) * middle - halfHeight) / ry;
        (std::hypot(x, y) < 1 ? low : high) = middle;
    }
    const QPointF centre = spot.centre + way * high;
    return {centre - QPointF(halfWidth, halfHeight), spot.size};
}

/// One half of the circle, its labels from top to bottom.
class Half {
public:
    Half(std::span<const LabelSpot> spots, const LabelRoom& room, double distance, bool right, bool keepApart)
        : m_spots(spots), m_room(room), m_distance(distance), m_right(right), m_keepApart(keepApart) {}

    void add(std::size_t spot) { m_items.push_back({spot, touching(m_spots[spot], m_distance), {}}); }

    void place(std::vector<PlacedLabel>& result) {
        std::stable_sort(m_items.begin(), m_items.end(), [](const Item& a, const Item& b) {
            return a.wish.center().y() < b.wish.center().y();
        });
        while (!tryPlace()) {
            dropLightestOf(m_tooLong);
        }
        for (const Item& item : m_items) {
            result[item.spot] = {true, item.box, {}};
        }
    }

private:
    struct Item {
        std::size_t spot;
        QRectF wish;
        QRectF box;
        bool linked = false; ///< must stand below the item before it
    };
    struct Range {
        std::size_t begin, end;
    };

    /// Stacks labels that would overlap, more of them in each round. False: a stack is longer than the room.
    bool tryPlace() {
        for (Item& item : m_items) {
            item.linked = false;
        }
        do {
            for (std::size_t begin = 0, end; begin < m_items.size(); begin = end) {
                end = begin + 1;
                while (end < m_items.size() && m_items[end].linked) {
                    ++end;
                }
                if (!stack({begin, end})) {
                    m_tooLong = {begin, end};
                    return false;
                }
            }
        } while (linkOverlaps());
        return true;
    }

    bool stack(Range range) {
        std::vector<double> wished, lengths;
        double sum = 0;
        for (std::size_t i = range.begin; i < range.end; ++i) {
            wished.push_back(m_items[i].wish.top());
            lengths.push_back(m_items[i].wish.height() + kGap);
            sum += lengths.back();
        }
        if (sum - kGap > m_room.bottom - m_room.top) {
            return false;
        }
        const auto tops = stackApart(wished, lengths, m_room.top, m_room.bottom + kGap);
        for (std::size_t i = range.begin; i < range.end; ++i) {
            const double top = tops[i - range.begin];
            m_items[i].box = QRectF(QPointF(leftAt(m_items[i], top), top), m_items[i].wish.size());
        }
        return true;
    }

    /// Where a box must begin to stay clear of the pie at a height.
    double leftAt(const Item& item, double top) const {
        const LabelSpot& spot = m_spots[item.spot];
        const double rx = spot.rx + m_distance;
        const double ry = spot.ry + m_distance;
        const double width = item.wish.width();
        const double height = item.wish.height();
        const double away =
            std::max({0.0, top - spot.centre.y(), spot.centre.y() - top - height}) / std::max(1e-6, ry);
        double left = item.wish.left();
        if (away < 1 && std::abs(top - item.wish.top()) > 0.01) {
            const double clear = rx * std::sqrt(1 - away * away);
            left = m_right ? std::max(left, spot.centre.x() + clear)
                           : std::min(left, spot.centre.x() - clear - width);
        }
        if (m_keepApart) {
            left = m_right ? std::max(left, spot.centre.x() + kGap)
                           : std::min(left, spot.centre.x() - kGap - width);
        }
        return std::clamp(left, 0.0, std::max(0.0, m_room.picture.width() - width));
    }

    bool linkOverlaps() {
        bool changed = false;
        for (std::size_t b = 1; b < m_items.size(); ++b) {
            for (std::size_t a = 0; a < b; ++a) {
                if (!m_items[a].box.intersects(m_items[b].box)) {
                    continue;
                }
                for (std::size_t i = a + 1; i <= b; ++i) {
                    changed = changed || !m_items[i].linked;
                    m_items[i].linked = true;
                }
            }
        }
        return changed;
    }

    void dropLightestOf(Range range) {
        const auto at = [&](std::size_t i) { return m_items.begin() + static_cast<std::ptrdiff_t>(i); };
        m_items.erase(std::min_element(at(range.begin), at(range.end), [&](const Item& a, const Item& b) {
            return m_spots[a.spot].weight < m_spots[b.spot].weight;
        }));
    }

    std::span<const LabelSpot> m_spots;
    const LabelRoom& m_room;
    double m_distance;
    bool m_right, m_keepApart;
    std::vector<Item> m_items;
    Range m_tooLong = {0, 0};
};

bool anyOverlap(const std::vector<PlacedLabel>& labels) {
    for (std::size_t i = 0; i < labels.size(); ++i) {
        for (std::size_t k = 0; k < i && labels[i].shown; ++k) {
            if (labels[k].shown && labels[i].box.intersects(labels[k].box)) {
                return true;
            }
        }
    }
    return false;
}

/// A label inside its sector, centred at a distance from the rim, moved into the picture if need be.
QRectF insideBox(const LabelSpot& spot, const LabelRoom& room, double distance) {
    const double rx = std::max(0.0, spot.rx + distance);
    const double ry = rx * (spot.rx > 0 ? spot.ry / spot.rx : 1);
    const QPointF way(direction(spot.angle).x() * rx, direction(spot.angle).y() * ry);
    QRectF box(QPointF(), spot.size);
    box.moveCenter(spot.centre + way);
    box.moveLeft(std::clamp(box.left(), 0.0, std::max(0.0, room.picture.width() - box.width())));
    box.moveTop(std::clamp(box.top(), room.top, std::max(room.top, room.bottom - box.height())));
    return box;
}

} // namespace

std::vector<PlacedLabel> circleLayout(std::span<const LabelSpot> spots, const LabelRoom& room,
                                      double distance) {
    std::vector<PlacedLabel> result;
    const auto kept = heaviest(spots, kMostLabels);
    if (distance < 0) {
        result.resize(spots.size());
        for (std::size_t i : kept) {
            result[i] = {true, insideBox(spots[i], room, distance), {}};
        }
        hideOverlaps(spots, result);
        return result;
    }
    // Labels at the top and bottom may lie over the middle line; only if that brings those of the two halves
    // together, each half keeps to its side.
    for (const bool keepApart : {false, true}) {
        result.assign(spots.size(), {});
        Half left(spots, room, distance, false, keepApart);
        Half right(spots, room, distance, true, keepApart);
        for (std::size_t i : kept) {
            (direction(spots[i].angle).x() >= -1e-9 ? right : left).add(i);
        }
        left.place(result);
        right.place(result);
        if (!anyOverlap(result)) {
            break;
        }
    }
    hideOverlaps(spots, result);
    for (std::size_t i = 0; i < spots.size(); ++i) {
        const QRectF& box = result[i].box;
        const QPointF near(std::clamp(spots[i].rim.x(), box.left(), box.right()),
                           std::clamp(spots[i].rim.y(), box.top(), box.bottom()));
        const QPointF gap = near - spots[i].rim;
        if (result[i].shown && std::hypot(gap.x(), gap.y()) > kJoinFrom) {
            result[i].join = joinLine(spots[i], box);
        }
    }
    return result;
}

} // namespace chartdraw
