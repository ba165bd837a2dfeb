#pragma once
// A planned axis on the picture: a straight line along a side, its ticks, labels and title, each on its
// pixels. The layout is made once and asked for its boxes (tests, neighbours) or drawn.

#include "engine/axis/axis_map.h"
#include "engine/axis/axis_plan.h"

#include <QRect>
#include <optional>
#include <vector>

namespace chartdraw {

/// Where a straight axis stands.
struct AxisPlace {
    int side = 2;   ///< where labels and outward ticks are: 4 left, 6 right, 8 top, 2 bottom of the line
    int from = 0;   ///< pixel of the line's left or upper end
    int to = 0;     ///< pixel of its right or lower end, included
    int across = 0; ///< pixel row or column of the line; a wider line grows outwards
    int lower = 0;  ///< pixels of the limits of the scale
    int upper = 0;
    QRect picture;            ///< what title and marks should not leave
    QRect room;               ///< what labels should not leave along the axis
    std::optional<int> avoid; ///< pixel along the axis where something crosses the labels' room

    bool upright() const { return side == 4 || side == 6; }
    /// Puts the ends of a scale on the line: margins taken off, the one named top at the upper or right end,
    /// and reversal done. Between the ends lies at least a pixel, where the line has two.
    void setScaleEnds(const ScaleSettings& scale);
    int scaleLength() const { return upper > lower ? upper - lower : lower - upper; }
};

struct AxisLayout {
    struct Tick {
        double value = 0;
        int pixel = 0; ///< along the axis
        bool major = true;
    };
    /// A text and where it stands: with a point of its bounds, or of the box about which it is turned, at the
    /// anchor.
    struct Label {
        double value = 0;
        std::string text;
        TextBlock block;
        QPointF anchor;
        int alignment = 5;
        bool pivot = false;

        QRectF box() const;
        QPolygonF outline() const;
        void move(QPointF by) { anchor += by; }
        /// Leaves the label out where the picture has no room for it.
        void draw(Canvas& canvas, TextRoom& room) const;
    };

    AxisMap map;
    AxisPlace place;
    std::vector<Tick> ticks; ///< major ones first, each sort ascending by value
    std::vector<Label> labels;
    std::vector<Label> marks; ///< of the axis's marks in sight
    std::optional<Label> title;
    std::optional<Label> factor; ///< of all labels, at the upper end of the axis
    int reach = 0; ///< pixels from `place.across` outwards to the end of what is drawn, the title left out
};

/// How far labels may reach away from the line, for an AxisRequest: from the ticks to the border of the
/// picture, less what a title beside them takes. At least a pixel.
double labelRoomOf(const Axis& axis, const AxisPlace& place);

/// `plan` should come from a request with the length and orientation of the place.
AxisLayout layoutAxis(const Axis& axis, AxisPlan plan, const AxisPlace& place);

/// The pixels of a line of `width` along a side at `across`, which grows outwards.
QRect axisLine(const AxisPlace& place, int width);

void drawAxisLine(Canvas& canvas, const Axis& axis, const AxisLayout& layout); ///< line and ticks

} // namespace chartdraw
