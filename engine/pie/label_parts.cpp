#include "engine/pie/label_parts.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace chartdraw {

namespace {

constexpr double kApart = 3; ///< pixels between a label and another text

/// What is left of a room beside a text: the largest part that still holds `needed`, the room itself if none.
QRectF without(const QRectF& room, const QRectF& needed, const QRectF& text) {
    if (!room.intersects(text))
        return room;
    const QRectF parts[] = {QRectF(QPointF(room.left(), text.bottom() + kApart), room.bottomRight()),
                            QRectF(room.topLeft(), QPointF(room.right(), text.top() - kApart)),
                            QRectF(QPointF(text.right() + kApart, room.top()), room.bottomRight()),
                            QRectF(room.topLeft(), QPointF(text.left() - kApart, room.bottom()))};
    QRectF best;
    for (const QRectF& part : parts)
        if (part.isValid() && part.contains(needed & room) &&
            part.width() * part.height() > best.width() * best.height())
            best = part;
    return best.isValid() ? best : room;
}

} // namespace

LabelRooms roomsBeside(const QRectF& whole, const QRectF& pie, std::span<const QRectF> texts) {
    LabelRooms rooms{whole, whole};
    const double middle = pie.center().x();
    const QRectF left(pie.topLeft(), QPointF(middle, pie.bottom()));
    const QRectF right(QPointF(middle, pie.top()), pie.bottomRight());
    for (const QRectF& text : texts) {
        if (text.left() < middle)
            rooms.left = without(rooms.left, left, text);
        if (text.right() > middle)
            rooms.right = without(rooms.right, right, text);
    }
    return rooms;
}

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
