#include "engine/pie/label_parts.h"
#include "engine/pie/sector_geometry.h"

#include <algorithm>
#include <cmath>

namespace chartdraw {

namespace {

constexpr double kRowGap = 2;      ///< pixels between two labels of a column
constexpr double kNearAxis = 0.25; ///< sine of the angle up to which a label may change its column

using Column = std::vector<std::size_t>;

double heightOf(std::span<const SectorLabel> spots, const Column& column) {
    double sum = 0;
    for (std::size_t i : column)
        sum += spots[i].size.height() + kRowGap;
    return sum;
}

double wishedTop(const SectorLabel& spot, double distance) {
    return spot.centre.y() + direction(spot.angle).y() * (spot.ry + distance / 2) - spot.size.height() / 2;
}

/// Hands the labels nearest to the top or bottom over to the other column while that helps: around there
/// either side is as good.
void balance(std::span<const SectorLabel> spots, Column& from, Column& to, double height) {
    const auto leaning = [&](std::size_t i) { return std::abs(direction(spots[i].angle).x()); };
    while (heightOf(spots, from) > height && from.size() > 1) {
        const auto next = leaning(from.front()) < leaning(from.back()) ? from.begin() : from.end() - 1;
        const bool atTop = direction(spots[*next].angle).y() < 0;
        if (leaning(*next) > kNearAxis || heightOf(spots, to) + spots[*next].size.height() + kRowGap > height)
            return;
        to.insert(atTop ? to.begin() : to.end(), *next);
        from.erase(next);
    }
}

void dropLightest(std::span<const SectorLabel> spots, Column& column, double height) {
    while (!column.empty() && heightOf(spots, column) > height + kRowGap) {
        column.erase(std::min_element(
            column.begin(), column.end(),
            [&](std::size_t a, std::size_t b) { return spots[a].weight < spots[b].weight; }));
    }
}

} // namespace

std::vector<PlacedLabel> sideLayout(std::span<const SectorLabel> spots, const QRectF& room, double distance) {
    std::vector<PlacedLabel> result(spots.size());
    Column columns[2]; // left, right
    double edges[2] = {room.right(), room.left()};
    for (const SectorLabel& spot : spots) {
        edges[0] = std::min(edges[0], spot.centre.x() - spot.rx);
        edges[1] = std::max(edges[1], spot.centre.x() + spot.rx);
    }
    for (std::size_t i : heaviest(spots, kMostLabels))
        columns[direction(spots[i].angle).x() >= -1e-9 ? 1 : 0].push_back(i);
    const double height = room.height();
    for (Column& column : columns) {
        std::stable_sort(
            column.begin(), column.end(),
            [&](std::size_t a, std::size_t b) {
                return direction(spots[a].angle).y() < direction(spots[b].angle).y();
            });
    }
    balance(spots, columns[0], columns[1], height);
    balance(spots, columns[1], columns[0], height);
    for (int side = 0; side < 2; ++side) {
        Column& column = columns[side];
        dropLightest(spots, column, height);
        std::vector<double> wished, lengths;
        for (std::size_t i : column) {
            wished.push_back(wishedTop(spots[i], distance));
            lengths.push_back(spots[i].size.height() + kRowGap);
        }
        const auto tops = stackApart(wished, lengths, room.top(), room.bottom() + kRowGap);
        for (std::size_t k = 0; k < column.size(); ++k) {
            const SectorLabel& spot = spots[column[k]];
            const double width = spot.size.width();
            const double x = side == 0 ? std::max(room.left(), edges[0] - distance - width)
                                       : std::min(room.right() - width, edges[1] + distance);
            result[column[k]] = {true, QRectF(QPointF(x, tops[k]), spot.size), {}};
        }
    }
    hideOverlaps(spots, result);
    for (std::size_t i = 0; i < spots.size(); ++i)
        if (result[i].shown)
            result[i].join = joinLine(spots[i], result[i].box);
    return result;
}

} // namespace chartdraw
