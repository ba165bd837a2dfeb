#pragma once
// An axis on a bare chart of 400 x 300 pixels, planned and laid out at a side.

#include "engine/axis/axis_layout.h"
#include "engine/chart/chart.h"
#include "tests/expect.h"
#include <ostream>
#include <string>
#include <vector>

namespace chartdraw {
class BareChart : public Chart {
public:
    BareChart() : Chart(Kind::BaseChart, 400, 300, kBackgroundColour, kTransparent, 0) {}
};

/// A line from pixel 50 to 350 (50 to 250 upright), at row 200 (column 100).
inline AxisPlace placeAt(int side) {
    AxisPlace place;
    place.side = side;
    place.from = 50;
    place.to = place.upright() ? 250 : 350;
    place.across = place.upright() ? 100 : 200;
    place.picture = place.room = QRect(0, 0, 400, 300);
    return place;
}

inline AxisLayout layoutAt(const Axis& axis, AxisPlace place, AxisRequest request = {}) {
    place.setScaleEnds(axis.scale());
    request.length = place.scaleLength();
    request.upright = place.upright();
    request.labelRoom = labelRoomOf(axis, place);
    return layoutAxis(axis, planAxis(axis, request), place);
}

inline AxisLayout layoutAt(const Axis& axis, int side, const AxisRequest& request = {}) {
    return layoutAt(axis, placeAt(side), request);
}

inline std::vector<std::string> textsOf(const AxisLayout& layout) {
    std::vector<std::string> texts;
    for (const AxisLayout::Label& label : layout.labels) texts.push_back(label.text);
    return texts;
}

inline std::vector<int> majorPixels(const AxisLayout& layout) {
    std::vector<int> pixels;
    for (const AxisLayout::Tick& tick : layout.ticks)
        if (tick.major) pixels.push_back(tick.pixel);
    return pixels;
}

inline AxisRequest ofData(const std::vector<double>& values) {
    AxisRequest request;
    for (const double value : values) request.data.add(value);
    return request;
}

inline AxisRequest ofRows(int count, int first = 0) {
    AxisRequest request;
    request.rowCount = count;
    request.firstRow = first;
    return request;
}
} // namespace chartdraw

inline std::ostream& operator<<(std::ostream& out, const QRectF& rect) {
    return out << "(" << rect.left() << ", " << rect.top() << ") to (" << rect.right() << ", " << rect.bottom() << ")";
}
