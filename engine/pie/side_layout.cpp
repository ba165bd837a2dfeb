#include "engine/pie/label_parts.h"
#include "engine/pie/sector_geometry.h"

#include <algorithm>
#include <cmath>

namespace chartdraw {

namespace {

constexpr double kStub = 5;          ///< how far a join line leaves the rim before it bends
constexpr double kBesideLabel = 7.5; ///< pixels of it beside the label
constexpr double kRowGap = 2;        ///< pixels between two labels of a column
constexpr double kNearAxis = 0.25;   ///< sine of the angle up to which a label may change its column

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
void balance(std::span<const SectorLabel> spots, Column& from, Column& to, double height,
             double otherHeight) {
    const auto leaning = [&](std::size_t i) { return std::abs(direction(spots[i].angle).x()); };
    while (heightOf(spots, from) > height && from.size() > 1) {
        const auto next = leaning(from.front()) < leaning(from.back()) ? from.begin() : from.end() - 1;
        const bool atTop = direction(spots[*next].angle).y() < 0;
        if (leaning(*next) > kNearAxis ||
            heightOf(spots, to) + spots[*next].size.height() + kRowGap > otherHeight)
            return;
        to.insert(atTop ? to.begin() : to.end(), *next);
        from.erase(next);
    }
}

/// Of equal weights the one goes whose neighbours are nearest.
void dropLightest(std::span<const SectorLabel> spots, Column& column, double height) {
    const auto crowding = [&](std::size_t at) {
        const auto level = [&](std::size_t i) { return direction(spots[column[i]].angle).y(); };
        return at == 0 || at + 1 == column.size() ? -2.0 : level(at - 1) - level(at + 1);
    };
    while (!column.empty() && heightOf(spots, column) > height + kRowGap) {
        std::size_t worst = 0;
        for (std::size_t i = 1; i < column.size(); ++i) {
            const double less = spots[column[worst]].weight - spots[column[i]].weight;
            if (less > 1e-9 || (less > -1e-9 && crowding(i) > crowding(worst) + 1e-9))
                worst = i;
        }
        column.erase(column.begin() + static_cast<std::ptrdiff_t>(worst));
    }
}

} // namespace

std::vector<PlacedLabel> sideLayout(std::span<const SectorLabel> spots, const LabelRooms& rooms,
                                    double distance) {
    std::vector<PlacedLabel> result(spots.size());
    Column columns[2]; // left, right
    const QRectF* const sides[2] = {&rooms.left, &rooms.right};
    double edges[2] = {rooms.left.right(), rooms.right.left()};
    for (const SectorLabel& spot : spots) {
        edges[0] = std::min(edges[0], spot.centre.x() - spot.rx);
        edges[1] = std::max(edges[1], spot.centre.x() + spot.rx);
    }
    for (std::size_t i : heaviest(spots, kMostLabels))
        columns[direction(spots[i].angle).x() >= -1e-9 ? 1 : 0].push_back(i);
    for (Column& column : columns) {
        std::stable_sort(
            column.begin(), column.end(),
            [&](std::size_t a, std::size_t b) {
                return direction(spots[a].angle).y() < direction(spots[b].angle).y();
            });
    }
    balance(spots, columns[0], columns[1], rooms.left.height(), rooms.right.height());
    balance(spots, columns[1], columns[0], rooms.right.height(), rooms.left.height());
    for (int side = 0; side < 2; ++side) {
        Column& column = columns[side];
        const QRectF& room = *sides[side];
        dropLightest(spots, column, room.height());
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
    const double free = distance - kBesideLabel;
    const double stub = std::clamp(free / 2, 1.0, kStub);
    addJoins(spots, result, stub, std::max(1.0, free - stub), std::vector<bool>(spots.size(), true));
    return result;
}

} // namespace chartdraw
