#pragma once
// A planned axis on the picture: a straight line along a side, its ticks, labels and title, each on its
// pixels. The layout is made once and asked for its boxes (tests, neighbours) or drawn.

#include "engine/axis/axis_map.h"
#include "engine/axis/axis_plan.h"

#include <QRect>
#include <vector>

namespace chartdraw {

/// Where a straight axis stands.
struct AxisPlace {
    int side = 2;   ///< where labels and outward ticks are: 4 left, 6 right, 8 top, 2 bottom of the line
    int from = 0;   ///< pixel of the line's left or upper end
    int to = 0;     ///< pixel of its right or lower end, included
    int across = 0; ///< pixel row (column) of the line; a wider line grows outwards
    bool reversed = false; ///< the upper limit is at the left or at the bottom
    QRect picture;         ///< what labels should not leave

    bool upright() const { return side == 4 || side == 6; }
};

struct AxisLayout {
    struct Tick {
        int pixel = 0; ///< along the axis
        bool major = true;
    };
    struct Label {
        QRectF box; ///< bounds on the picture
        std::string text;
        double value = 0;
        TextBlock block;
        QPointF anchor;
        int alignment; ///< of the block at the anchor
        bool pivot;    ///< turned about the anchor
    };

    AxisMap map;
    AxisPlace place;
    QRect line; ///< the pixels of the line, empty with width 0
    std::vector<Tick> ticks;
    std::vector<Label> labels;
    std::optional<Label> title;
    QRectF bounds; ///< of line, ticks and labels (not the title)
};

/// `plan` should come from a request with the place's length and orientation.
AxisLayout layoutAxis(const Axis& axis, AxisPlan plan, const AxisPlace& place);

/// The map alone, as layoutAxis makes it: margins taken off, reversal done.
AxisMap mapAxis(const Axis& axis, const AxisPlan& plan, const AxisPlace& place);
/// Pixels from end to end of the scale at a place: its length without the margins, at least 1.
double scaleLength(const Axis& axis, const AxisPlace& place);

void drawAxisLine(Canvas& canvas, const Axis& axis, const AxisLayout& layout); ///< line and ticks
void drawAxisLabels(Canvas& canvas, const AxisLayout& layout);                 ///< labels and title

} // namespace chartdraw
