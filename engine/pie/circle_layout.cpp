#include "engine/pie/label_parts.h"
#include "engine/pie/sector_geometry.h"

#include <algorithm>
#include <cmath>

namespace chartdraw {

namespace {

constexpr double kGap = 1;       ///< pixels between two labels
constexpr double kBendRoom = 20; ///< how much farther out a displaced label stands at most
constexpr double kStub = 5;      ///< how far a join line leaves the rim before it bends
constexpr double kRingRoom = 6;  ///< for lines that go round, where labels have given way
constexpr double kPassing = 9;   ///< room for a join line beside a label
constexpr double kJoinFrom = 14; ///< a label farther than this from its sector gets a join line

/// The box of a label that just touches the ellipse widened by `distance`, in the label's direction.
QRectF touching(const SectorLabel& spot, double distance) {
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
    Half(std::span<const SectorLabel> spots, const QRectF& room, double distance, bool right, bool crowded)
        : m_spots(spots), m_room(room), m_distance(distance), m_right(right), m_crowded(crowded) {}

    void add(std::size_t spot) { m_items.push_back({spot, touching(m_spots[spot], m_distance), {}}); }

    void place(std::vector<PlacedLabel>& result) {
        // By angle, not by the wished heights: join lines of labels in the order of their sectors do not
        // cross.
        std::stable_sort(m_items.begin(), m_items.end(), [this](const Item& a, const Item& b) {
            return direction(m_spots[a.spot].angle).y() < direction(m_spots[b.spot].angle).y();
        });
        dropWhatNeverFits();
        while (!tryPlace())
            dropLightestOf(m_tooLong);
        for (const Item& item : m_items)
            result[item.spot] = {true, item.box, {}};
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

    /// What the tries would come to by themselves as long as they fail with the labels that overlap where
    /// they would like to stand: of hundreds of labels most go so, and each try compares all that are left.
    void dropWhatNeverFits() {
        struct Wish {
            std::vector<std::size_t> overlaps; ///< items before this one, in order
            std::size_t first = 0;             ///< of these that is still there
            bool dropped = false;
        };
        std::vector<Wish> wishes(m_items.size());
        for (std::size_t b = 0; b < m_items.size(); ++b) {
            wishes[b].dropped = !stack({b, b + 1});
            for (std::size_t a = 0; a < b && !wishes[b].dropped; ++a)
                if (!wishes[a].dropped && m_items[a].box.intersects(m_items[b].box))
                    wishes[b].overlaps.push_back(a);
        }
        for (std::size_t drop = 0; drop < m_items.size();) {
            // Each item is linked to the one before it down to the first that any of those behind overlaps.
            std::vector<std::size_t> left;
            std::size_t lowest = m_items.size();
            for (std::size_t b = m_items.size(); b-- > 0;) {
                Wish& wish = wishes[b];
                if (wish.dropped)
                    continue;
                while (wish.first < wish.overlaps.size() && wishes[wish.overlaps[wish.first]].dropped)
                    ++wish.first;
                if (wish.first < wish.overlaps.size())
                    lowest = std::min(lowest, wish.overlaps[wish.first]);
                m_items[b].linked = lowest < b;
                left.push_back(b);
            }
            std::reverse(left.begin(), left.end());
            drop = m_items.size();
            for (std::size_t begin = 0, end; begin < left.size() && drop == m_items.size(); begin = end) {
                double sum = m_items[left[begin]].wish.height();
                for (end = begin + 1; end < left.size() && m_items[left[end]].linked; ++end)
                    sum += kGap + m_items[left[end]].wish.height();
                if (sum > m_room.height())
                    drop = *std::min_element(left.begin() + static_cast<std::ptrdiff_t>(begin),
                                             left.begin() + static_cast<std::ptrdiff_t>(end),
                                             [this](std::size_t a, std::size_t b) {
                                                 return m_spots[m_items[a].spot].weight <
                                                        m_spots[m_items[b].spot].weight;
                                             });
            }
            if (drop < m_items.size())
                wishes[drop].dropped = true;
        }
        std::vector<Item> kept;
        for (std::size_t i = 0; i < m_items.size(); ++i)
            if (!wishes[i].dropped)
                kept.push_back(m_items[i]);
        m_items = std::move(kept);
    }

    /// Stacks labels that would overlap, more of them in each round. False: a stack is longer than the room.
    bool tryPlace() {
        for (Item& item : m_items)
            item.linked = false;
        do {
            for (std::size_t begin = 0, end; begin < m_items.size(); begin = end) {
                end = begin + 1;
                while (end < m_items.size() && m_items[end].linked)
                    ++end;
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
        if (sum - kGap > m_room.height())
            return false;
        const auto tops = stackApart(wished, lengths, m_room.top(), m_room.bottom() + kGap);
        for (std::size_t i = range.begin; i < range.end; ++i) {
            const double top = tops[i - range.begin];
            m_items[i].box = QRectF(QPointF(leftAt(m_items[i], top), top), m_items[i].wish.size());
        }
        return true;
    }

    /// Where a box must begin to stay clear of the pie at a height.
    double leftAt(const Item& item, double top) const {
        const SectorLabel& spot = m_spots[item.spot];
        const double moved = std::abs(top - item.wish.top());
        const double side = m_right ? 1 : -1;
        const auto edge = [&](double near) { return m_right ? near : near - item.wish.width(); };
        const auto farther = [&](double a, double b) { return m_right ? std::max(a, b) : std::min(a, b); };
        double left = item.wish.left();
        if (moved > 0.01) {
            // The farther from its sector, the more room for the bend of its join line.
            const double distance = m_distance + std::min(kBendRoom, moved);
            const double away =
                std::max({0.0, top - spot.centre.y(), spot.centre.y() - top - item.wish.height()}) /
                (spot.ry + distance);
            if (away < 1) {
                const double clear = (spot.rx + distance) * std::sqrt(1 - away * away);
                left = farther(left, edge(spot.centre.x() + side * clear));
            }
        }
        if (m_crowded) {
            // Join lines of labels above and below go past on the side of the middle line.
            left = farther(left, edge(spot.rim.x() + side * kPassing));
        }
        return std::clamp(left, m_room.left(), std::max(m_room.left(), m_room.right() - item.wish.width()));
    }

    bool linkOverlaps() {
        bool changed = false;
        for (std::size_t b = 1; b < m_items.size(); ++b) {
            for (std::size_t a = 0; a < b; ++a) {
                if (!m_items[a].box.intersects(m_items[b].box))
                    continue;
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

    std::span<const SectorLabel> m_spots;
    const QRectF& m_room;
    double m_distance;
    bool m_right, m_crowded;
    std::vector<Item> m_items;
    Range m_tooLong = {0, 0};
};

/// Which labels stand away from their sectors, or not where they would if they were alone.
std::vector<bool> displaced(std::span<const SectorLabel> spots, const std::vector<PlacedLabel>& labels,
                            double distance) {
    std::vector<bool> result(labels.size(), false);
    for (std::size_t i = 0; i < spots.size(); ++i) {
        const QRectF& box = labels[i].box;
        const QPointF near(std::clamp(spots[i].rim.x(), box.left(), box.right()),
                           std::clamp(spots[i].rim.y(), box.top(), box.bottom()));
        const QPointF gap = near - spots[i].rim;
        const QPointF moved = box.center() - touching(spots[i], distance).center();
        result[i] = labels[i].shown && (std::hypot(gap.x(), gap.y()) > kJoinFrom ||
                                        std::hypot(moved.x(), moved.y()) > box.height() / 2);
    }
    return result;
}

/// Whether a part of the join line lies in the box. Lines are short, so looking at points of it will do.
bool crosses(const std::vector<QPointF>& join, const QRectF& box) {
    for (std::size_t k = 1; k < join.size(); ++k) {
        const QPointF way = join[k] - join[k - 1];
        const int steps = 1 + static_cast<int>(std::hypot(way.x(), way.y()) / 3);
        for (int step = 0; step <= steps; ++step)
            if (box.contains(join[k - 1] + way * step / steps))
                return true;
    }
    return false;
}

bool anyConflict(const std::vector<PlacedLabel>& labels) {
    for (std::size_t i = 0; i < labels.size(); ++i) {
        for (std::size_t k = 0; k < labels.size() && labels[i].shown; ++k)
            if (k != i && labels[k].shown &&
                (labels[i].box.intersects(labels[k].box) || crosses(labels[i].join, labels[k].box)))
                return true;
    }
    return false;
}

/// Whether some of the box lies clearly inside the spot's ellipse.
bool covers(const QRectF& box, const SectorLabel& spot) {
    constexpr double kGraze = 3;
    const double x = std::clamp(spot.centre.x(), box.left(), box.right()) - spot.centre.x();
    const double y = std::clamp(spot.centre.y(), box.top(), box.bottom()) - spot.centre.y();
    return spot.rx > kGraze && spot.ry > kGraze &&
           std::hypot(x / (spot.rx - kGraze), y / (spot.ry - kGraze)) < 1;
}

/// A label inside its sector, centred at a distance from the rim, moved into the picture if need be.
QRectF insideBox(const SectorLabel& spot, const QRectF& room, double distance) {
    const double rx = std::max(0.0, spot.rx + distance);
    const double ry = rx * (spot.rx > 0 ? spot.ry / spot.rx : 1);
    const QPointF way(direction(spot.angle).x() * rx, direction(spot.angle).y() * ry);
    QRectF box(QPointF(), spot.size);
    box.moveCenter(spot.centre + way);
    box.moveLeft(std::clamp(box.left(), room.left(), std::max(room.left(), room.right() - box.width())));
    box.moveTop(std::clamp(box.top(), room.top(), std::max(room.top(), room.bottom() - box.height())));
    return box;
}

} // namespace

std::vector<PlacedLabel> circleLayout(std::span<const SectorLabel> spots, const LabelRooms& rooms,
                                      double distance) {
    std::vector<PlacedLabel> result;
    const auto kept = heaviest(spots, kMostLabels);
    if (distance < 0) {
        result.resize(spots.size());
        for (std::size_t i : kept)
            result[i] = {true, insideBox(spots[i], rooms.left | rooms.right, distance), {}};
        hideOverlaps(spots, result);
        return result;
    }
    // Labels at the top and bottom may lie over the middle line, as long as nothing else is in their way.
    for (const bool crowded : {false, true}) {
        result.assign(spots.size(), {});
        Half left(spots, rooms.left, distance, false, crowded);
        Half right(spots, rooms.right, distance, true, crowded);
        for (std::size_t i : kept)
            (direction(spots[i].angle).x() >= -1e-9 ? right : left).add(i);
        left.place(result);
        right.place(result);
        addJoins(spots, result, std::clamp(distance / 2, 2.0, kStub), distance / 2 + kRingRoom,
                 displaced(spots, result, distance));
        if (!anyConflict(result))
            break;
    }
    hideOverlaps(spots, result);
    // Where the room is too narrow a label would lie on the pie.
    for (std::size_t i = 0; i < spots.size(); ++i)
        if (result[i].shown && covers(result[i].box, spots[i]))
            result[i] = {};
    return result;
}

} // namespace chartdraw
