#pragma once
// Where the labels of a pie stand and how their join lines run, as pure numbers. Labels never cover one
// another and stay inside the picture; where there is no room for all of them, the smallest sectors go
// without.

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <span>
#include <vector>

namespace chartdraw {

/// What a label has to say about its place.
struct SectorLabel {
    double angle = 0; ///< of the sector's middle, radians clockwise from the top
    QPointF centre;   ///< of the ellipse that the label must stay clear of
    double rx = 0;    ///< half axes of that ellipse
    double ry = 0;
    QPointF rim;       ///< where the join line begins
    QSizeF size;       ///< of the label's box, pixels
    double weight = 0; ///< what decides who stays when there is no room
};

struct PlacedLabel {
    bool shown = false;
    QRectF box;
    std::vector<QPointF> join; ///< the join line from the rim to the label; empty: none
};

/// The parts of the picture that labels of the left and of the right half may stand in.
struct LabelRooms {
    QRectF left, right;
};

/// `whole` without the boxes of other texts: of each half as little as leaves the pie whole.
LabelRooms roomsBeside(const QRectF& whole, const QRectF& pie, std::span<const QRectF> texts);

/// Labels around the pie, inside their rooms. `distance` is counted from the rim outwards; below 0 the labels
/// are centred that far inside the rim and have no join lines.
std::vector<PlacedLabel> circleLayout(std::span<const SectorLabel> spots, const LabelRooms& rooms,
                                      double distance);

/// Labels in two columns inside their rooms, `distance` beside the pie, joined to their sectors by lines that
/// bend once.
std::vector<PlacedLabel> sideLayout(std::span<const SectorLabel> spots, const LabelRooms& rooms,
                                    double distance);

/// Moves intervals of the given lengths apart, keeping their order and staying as near to the wished starts
/// as possible (least squares), all of them between `low` and `high`. They must fit in there together.
std::vector<double> stackApart(std::span<const double> wished, std::span<const double> lengths, double low,
                               double high);

} // namespace chartdraw
