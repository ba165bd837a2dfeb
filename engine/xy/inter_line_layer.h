#pragma once
// The area between two lines, one colour where the first is above the second and another where it is below.

#include "engine/xy/layer.h"

#include <QPointF>
#include <QPolygonF>
#include <span>
#include <vector>

namespace chartdraw {

/// A closed piece between two lines.
struct BetweenPiece {
    bool firstAbove = false; ///< by values
    QPolygonF outline;       ///< positions along x and along y
};

/// The pieces between two lines, cut exactly where these cross. Points with NaN are gaps. `up`: larger values
/// stand at smaller positions. Lines that do not run from left to right are taken in that order.
std::vector<BetweenPiece> piecesBetween(std::span<const QPointF> first, std::span<const QPointF> second,
                                        bool up);

class InterLineLayer : public Layer {
public:
    static constexpr Kind kKind = Kind::InterLineLayer;

    /// Null where a line is neither a layer's nor a mark's of a y axis, or not of this chart, and where both
    /// are marks'.
    static InterLineLayer* add(XYChart& chart, const Line* first, const Line* second, Colour above,
                               Colour below);
    InterLineLayer(XYChart& chart, const Line& first, const Line& second, Colour above, Colour below);

    void draw(Canvas& canvas, const PlotFrame& frame) override;

private:
    std::vector<QPointF> pointsOf(const Line& line, const PlotFrame& frame) const;

    const Line& m_first;
    const Line& m_second;
    Colour m_above, m_below;
};

} // namespace chartdraw
