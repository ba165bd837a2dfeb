// The lines that join labels to their sectors. Each leaves the rim straight outwards, bends outside of it and
// ends level beside its label. One that has to go round a part of the pie follows the rim at a distance of
// its own, so that lines lie neither over neighbouring sectors nor over each other.

#include "engine/pie/label_parts.h"
#include "engine/pie/sector_geometry.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace chartdraw {

namespace {

constexpr double kLineGap = 2;  ///< pixels between a line's end and the label
constexpr double kLastPart = 5; ///< the least length of the part beside the label
constexpr double kPitch = 3;    ///< between lines that go round the pie side by side
constexpr double kLevel = 3;    ///< a label this near to the height of the bend gets a level line
constexpr double kTurn = 2 * std::numbers::pi;

/// A point about the centre of the spot's ellipse, widened by `out`: its angle, and its distance in radii.
struct Seen {
    double angle, distance;
};

Seen seenFrom(const SectorLabel& spot, QPointF point, double out) {
    const double x = (point.x() - spot.centre.x()) / std::max(1e-6, spot.rx + out);
    const double y = (point.y() - spot.centre.y()) / std::max(1e-6, spot.ry + out);
    return {std::atan2(x, -y), std::hypot(x, y)};
}

QPointF onRing(const SectorLabel& spot, double angle, double out) {
    const QPointF way = direction(angle);
    return spot.centre + QPointF(way.x() * (spot.rx + out), way.y() * (spot.ry + out));
}

/// The line of one label while it is made.
class Join {
public:
    /// `farthest`: where the outermost of the lines that go round stands.
    Join(const SectorLabel& spot, const QRectF& box, double stub, double farthest) : m_spot(&spot) {
        const double side = box.center().x() >= spot.centre.x() ? 1 : -1;
        const double middle = std::floor(box.center().y()); // the level part covers one row of pixels
        const QPointF near(side > 0 ? box.left() - kLineGap : box.right() + kLineGap, middle);
        if ((near.x() - spot.rim.x()) * side < kLastPart) { // above or below the sector
            const bool above = middle < spot.rim.y();
            m_end = {{std::clamp(spot.rim.x(), box.left(), box.right()),
                      above ? box.bottom() + 1 : box.top() - 1}};
            return;
        }
        const QPointF elbow = onRing(spot, spot.angle, stub);
        const double latest = near.x() - side * kLastPart;
        if (std::abs(elbow.y() - middle) <= kLevel && (latest - elbow.x()) * side >= 0) {
            m_end = {{elbow.x(), middle}, near};
            return;
        }
        m_bends = true;
        m_end = {{latest, middle}, near};
        // No ring goes beyond the place where the line turns to its label.
        const double reach = (seenFrom(spot, m_end.front(), 0).distance - 1) * std::min(spot.rx, spot.ry);
        m_most = std::max(1.0, std::min(farthest, reach - 0.5));
        const Seen seen = seenFrom(spot, m_end.front(), m_most);
        m_way = std::remainder(seen.angle - spot.angle, kTurn);
        const double free = seen.distance > 1 ? std::acos(1 / seen.distance) : 0;
        m_round = std::abs(m_way) > free ? m_way - std::copysign(free, m_way) : 0;
    }

    /// Whether the line follows the rim before it can leave it.
    bool goesRound() const { return m_round != 0; }
    /// The angle along the rim from its beginning to its end; clockwise above 0.
    double way() const { return m_way; }
    /// Whether this line passes outside of the sector of another one.
    bool passes(const Join& other) const {
        const double behind = std::remainder(other.m_spot->angle - m_spot->angle, kTurn);
        return m_way * behind > 0 && std::abs(behind) < std::abs(m_way);
    }

    std::vector<QPointF> points(double out) const {
        out = std::min(out, m_bends ? m_most : out);
        std::vector<QPointF> result{m_spot->rim};
        if (m_bends) {
            constexpr double kStep = 0.1; // radians
            const int steps = static_cast<int>(std::ceil(std::abs(m_round) / kStep));
            for (int k = 0; k <= steps; ++k)
                result.push_back(onRing(*m_spot, m_spot->angle + (steps > 0 ? m_round * k / steps : 0), out));
        }
        result.insert(result.end(), m_end.begin(), m_end.end());
        return result;
    }

private:
    const SectorLabel* m_spot;
    std::vector<QPointF> m_end;
    bool m_bends = false;
    double m_most = 0;
    double m_way = 0;
    double m_round = 0; ///< the part of it before the line leaves the rim
};

bool cross(QPointF a, QPointF b, QPointF c, QPointF d) {
    const auto side = [](QPointF p, QPointF q, QPointF r) {
        return (q.x() - p.x()) * (r.y() - p.y()) - (q.y() - p.y()) * (r.x() - p.x());
    };
    return side(a, b, c) * side(a, b, d) < 0 && side(c, d, a) * side(c, d, b) < 0;
}

QRectF boundsOf(const std::vector<QPointF>& line) {
    return QPolygonF(QList<QPointF>(line.begin(), line.end())).boundingRect().adjusted(0, 0, 1, 1);
}

} // namespace

bool joinsCross(const std::vector<QPointF>& a, const std::vector<QPointF>& b) {
    constexpr double kSame = 1.5; // lines from sectors of no breadth begin at one place
    if (a.empty() || b.empty() || (a.front() - b.front()).manhattanLength() < kSame)
        return false;
    for (std::size_t i = 1; i < a.size(); ++i)
        for (std::size_t k = 1; k < b.size(); ++k)
            if (cross(a[i - 1], a[i], b[k - 1], b[k]))
                return true;
    return false;
}

void addJoins(std::span<const SectorLabel> spots, std::vector<PlacedLabel>& labels, double stub, double room,
              const std::vector<bool>& wanted) {
    struct Line {
        std::size_t label;
        Join join;
        int ring = 0; ///< how many lines that go round lie inside of this one
    };
    std::vector<Line> lines;
    for (std::size_t i = 0; i < labels.size(); ++i)
        if (labels[i].shown && wanted[i])
            lines.push_back({i, Join(spots[i], labels[i].box, stub, stub + std::max(0.0, room))});
    // What a line passes that has gone round, or had to give way itself, lies inside of it.
    std::vector<Line*> order;
    for (Line& line : lines)
        order.push_back(&line);
    std::stable_sort(order.begin(), order.end(), [](const Line* a, const Line* b) {
        return std::abs(a->join.way()) < std::abs(b->join.way());
    });
    int most = 0;
    for (bool changed = true; changed && most <= static_cast<int>(lines.size());) {
        changed = false;
        for (Line* line : order) {
            for (const Line* other : order) {
                const bool inside = other->ring > 0 || other->join.goesRound();
                if (inside && line->ring <= other->ring && line->join.passes(other->join)) {
                    line->ring = other->ring + 1;
                    most = std::max(most, line->ring);
                    changed = true;
                }
            }
        }
    }
    const double pitch = most > 0 ? std::min(kPitch, std::max(0.0, room) / most) : 0;
    for (const Line& line : lines)
        labels[line.label].join = line.join.points(stub + pitch * line.ring);
    // What no way leads to without crossing has to go.
    std::vector<QRectF> bounds;
    for (const PlacedLabel& label : labels)
        bounds.push_back(boundsOf(label.join));
    for (std::size_t i = 0; i < labels.size(); ++i)
        for (std::size_t k = 0; k < i && !labels[i].join.empty(); ++k)
            if (bounds[i].intersects(bounds[k]) && joinsCross(labels[i].join, labels[k].join))
                labels[spots[k].weight >= spots[i].weight ? i : k] = {};
}

} // namespace chartdraw
