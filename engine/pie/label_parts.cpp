#include "engine/pie/label_parts.h"

#include "engine/pie/sector_geometry.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace chartdraw {

namespace {

constexpr double kLineGap = 2;   ///< between a join line's end and the label
constexpr double kOutwards = 10; ///< how far a join line leaves the rim before it bends
constexpr double kLastPart = 5;  ///< the least length of the part beside the label

/// Whether a line from the rim outwards cuts through the ellipse.
bool cutsThrough(const SectorLabel& spot, QPointF from, QPointF to) {
    if (spot.rx <= 0 || spot.ry <= 0)
        return false;
    const auto scaled = [&](QPointF point) {
        return QPointF((point.x() - spot.centre.x()) / spot.rx, (point.y() - spot.centre.y()) / spot.ry);
    };
    const QPointF a = scaled(from);
    const QPointF way = scaled(to) - a;
    const double length = QPointF::dotProduct(way, way);
    const double nearest = length > 0 ? std::clamp(-QPointF::dotProduct(a, way) / length, 0.0, 1.0) : 0;
    const QPointF closest = a + way * nearest;
    // The line starts on the rim or just inside it, so only a clear cut counts.
    return std::hypot(closest.x(), closest.y()) < std::min(1.0, std::hypot(a.x(), a.y())) - 0.02;
}

} // namespace

std::vector<std::size_t> heaviest(std::span<const SectorLabel> spots, std::size_t most) {
    std::vector<std::size_t> order(spots.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    if (order.size() > most) {
        std::stable_sort(order.begin(), order.end(),
                         [&](std::size_t a, std::size_t b) { return spots[a].weight > spots[b].weight; });
        order.resize(most);
        std::sort(order.begin(), order.end());
    }
    return order;
}

void hideOverlaps(std::span<const SectorLabel> spots, std::vector<PlacedLabel>& labels) {
    for (std::size_t i = 0; i < labels.size(); ++i) {
        for (std::size_t k = 0; k < i && labels[i].shown; ++k)
            if (labels[k].shown && labels[i].box.intersects(labels[k].box))
                labels[spots[k].weight >= spots[i].weight ? i : k] = {};
    }
}

std::vector<QPointF> joinLine(const SectorLabel& spot, const QRectF& box) {
    const double side = box.center().x() >= spot.centre.x() ? 1 : -1; // of the pie on which the label stands
    const double nearX = side > 0 ? box.left() - kLineGap : box.right() + kLineGap;
    const double middle = std::floor(box.center().y()); // the level part covers one row of pixels
    if ((nearX - spot.rim.x()) * side < kLastPart) {
        const bool above = middle < spot.rim.y();
        const double x = std::clamp(spot.rim.x(), box.left(), box.right());
        return {spot.rim, {x, above ? box.bottom() + 1 : box.top() - 1}};
    }
    // Bend where the line has just left the rim; farther out if it would run through the pie from there.
    const double latest = nearX - side * kLastPart;
    double bend = spot.rim.x() + direction(spot.angle).x() * kOutwards;
    if ((bend - latest) * side > 0 || (bend - spot.rim.x()) * side < 0)
        bend = latest;
    for (int step = 1; step <= 8 && cutsThrough(spot, spot.rim, {bend, middle}); ++step)
        bend += (latest - bend) * step / 8;
    return {spot.rim, {bend, middle}, {nearX, middle}};
}

std::vector<double> stackApart(std::span<const double> wished, std::span<const double> lengths, double low,
                               double high) {
    // With the lengths before it taken off, each interval wishes for a place, and the places may not fall:
    // blocks of intervals that would are given their mean.
    struct Block {
        double sum;
        std::size_t count;
        double mean() const { return sum / static_cast<double>(count); }
    };
    std::vector<Block> blocks;
    double before = 0;
    for (std::size_t i = 0; i < wished.size(); ++i) {
        blocks.push_back({wished[i] - before, 1});
        before += lengths[i];
        while (blocks.size() > 1 && blocks[blocks.size() - 2].mean() > blocks.back().mean()) {
            const Block last = blocks.back();
            blocks.pop_back();
            blocks.back().sum += last.sum;
            blocks.back().count += last.count;
        }
    }
    const double latest = std::max(low, high - before);
    std::vector<double> result;
    result.reserve(wished.size());
    before = 0;
    for (const Block& block : blocks) {
        for (std::size_t k = 0; k < block.count; ++k) {
            before += result.empty() ? 0 : lengths[result.size() - 1];
            result.push_back(std::clamp(block.mean(), low, latest) + before);
        }
    }
    return result;
}

} // namespace chartdraw
