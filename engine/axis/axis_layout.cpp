#include "engine/axis/axis_layout.h"

#include "engine/chart/chart.h"
#include "engine/text/fitted_text.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace chartdraw {

namespace {

constexpr int kLabelGap = 3;     // pixels between a tick and its label
constexpr int kLeastTitle = 100; // pixels that a title has before it is broken
constexpr int kTitleBorder = 3;  // pixels that it keeps from the border of the picture

/// Away from the line, in pixels of the picture.
QPointF outward(int side) {
    switch (side) {
    case Left:
        return {-1, 0};
    case Right:
        return {1, 0};
    case TopCenter:
        return {0, -1};
    default:
        return {0, 1};
    }
}

/// A side's code with the row of `along` (upright) or its column: the point of a box that touches the line.
int facing(int side, int along) {
    switch (side) {
    case Left:
        return Right - 3 * along;
    case Right:
        return Left - 3 * along;
    case TopCenter:
        return BottomCenter + along;
    default:
        return TopCenter + along;
    }
}

/// The picture point at a pixel along the axis, `distance` pixels outwards from its line.
QPointF pointAt(const AxisPlace& place, double along, double distance) {
    const QPointF onLine = place.upright() ? QPointF(place.across, along) : QPointF(along, place.across);
    return onLine + outward(place.side) * distance;
}

double alongOf(const AxisPlace& place, QPointF point) {
    return place.upright() ? point.y() : point.x();
}

/// Puts labels beside the line, each in the way its angle asks for.
class LabelPlacer {
public:
    LabelPlacer(const AxisPlace& place, double angle, double distance)
        : m_place(place), m_distance(distance) {
        const double radians = angle * std::numbers::pi / 180;
        const QPointF reading(std::cos(radians), -std::sin(radians));
        const QPointF out = outward(place.side);
        m_outwards = QPointF::dotProduct(reading, out);
        m_corner = std::abs(reading.x() * out.y() - reading.y() * out.x());
    }

    void put(AxisLayout::Label& label, int pixel) const {
        // Boxes are told by their borders: the middle of pixel n lies at n + 0.5.
        label.anchor = pointAt(m_place, pixel, m_distance) + QPointF(0.5, 0.5);
        const bool slanted = std::abs(m_outwards) > 0.05 && m_corner > 0.05;
        if (!slanted) {
            label.alignment = facing(m_place.side, 0);
            return;
        }
        // Turned about the end at the tick; the corner beside that end keeps the gap.
        label.pivot = true;
        label.alignment = m_outwards > 0 ? Left : Right;
        label.anchor += outward(m_place.side) * (label.block.boxSize().height() / 2.0 * m_corner);
    }

private:
    const AxisPlace& m_place;
    double m_distance;
    double m_outwards; ///< how far the text runs away from the line, -1 to 1
    double m_corner;   ///< how much of its height lies across the line
};

/// Moves a box along and across the axis into the picture; nothing where it is larger than that.
QPointF intoPicture(const QRectF& box, const QRect& picture) {
    const auto shift = [](double low, double high, double from, double to) {
        if (high - low > to - from)
            return 0.0;
        return low < from ? from - low : high > to ? to - high : 0.0;
    };
    const QRectF room(picture);
    return {shift(box.left(), box.right(), room.left(), room.right()),
            shift(box.top(), box.bottom(), room.top(), room.bottom())};
}

QPointF alongOnly(const AxisPlace& place, QPointF by) {
    return place.upright() ? QPointF(0, by.y()) : QPointF(by.x(), 0);
}

/// Moves labels at the ends into the room, and takes away a neighbour that one then lies over. Slanted labels
/// stay at their ticks.
void keepInside(std::vector<AxisLayout::Label>& labels, const AxisPlace& place) {
    const auto close = [&](const AxisLayout::Label& a, const AxisLayout::Label& b) {
        const double air = place.upright() ? 0 : kLabelGap;
        return a.box().adjusted(-air, 0, air, 0).intersects(b.box());
    };
    const auto moved = [&](AxisLayout::Label& label) {
        const QPointF by = label.pivot ? QPointF() : alongOnly(place, intoPicture(label.box(), place.room));
        label.move(by);
        return !by.isNull();
    };
    if (labels.empty())
        return;
    if (moved(labels.front()))
        while (labels.size() > 2 && close(labels.front(), labels[1]))
            labels.erase(labels.begin() + 1);
    if (moved(labels.back()))
        while (labels.size() > 1 && close(labels.back(), labels[labels.size() - 2]))
            labels.erase(labels.size() > 2 ? labels.end() - 2 : labels.end() - 1);
}

void placeLabels(AxisLayout& layout, AxisPlan& plan, const Axis& axis, double distance) {
    const AxisPlace& place = layout.place;
    const LabelPlacer placer(place, axis.labelBox().look().angle, distance);
    for (PlannedTick& tick : plan.ticks) {
        if (!tick.label)
            continue;
        AxisLayout::Label label{.value = tick.value,
                                .text = std::move(tick.text),
                                .block = std::move(*tick.label),
                                .anchor = {},
                                .alignment = Center,
                                .pivot = false};
        placer.put(label, layout.map.wholePixel(tick.value));
        layout.labels.push_back(std::move(label));
    }
    keepInside(layout.labels, place);
    if (place.avoid) {
        std::erase_if(
            layout.labels,
            [&](const AxisLayout::Label& label) {
                const QRectF box = label.box();
                return alongOf(place, box.topLeft()) < *place.avoid + 1 &&
                       alongOf(place, box.bottomRight()) > *place.avoid;
            });
    }
}

/// Moves labels along the axis until none lies over another, each as near to its place as the rest allow and
/// inside the picture. The last ones go where there are too many.
void spread(std::vector<AxisLayout::Label>& all, const AxisPlace& place) {
    const auto start = [&](const AxisLayout::Label& label) { return alongOf(place, label.box().topLeft()); };
    const auto length = [&](const AxisLayout::Label& label) {
        return alongOf(place, label.box().bottomRight()) - start(label);
    };
    const double low = place.upright() ? place.picture.top() : place.picture.left();
    const double high = low + (place.upright() ? place.picture.height() : place.picture.width());
    double taken = 0;
    all.erase(std::find_if(all.begin(), all.end(),
                           [&](const AxisLayout::Label& label) {
                               taken += length(label);
                               return taken > high - low;
                           }),
              all.end());
    std::vector<AxisLayout::Label*> labels;
    for (AxisLayout::Label& label : all)
        labels.push_back(&label);
    std::stable_sort(labels.begin(), labels.end(), [&](const auto* a, const auto* b) {
        return start(*a) + length(*a) / 2 < start(*b) + length(*b) / 2;
    });
    // Labels that touch become a group, which stands in the middle of where its members want to be.
    struct Group {
        std::size_t first, count;
        double wished; // sum of where each member wants the group to start
        double length;
        double at(double lowest, double highest) const {
            const double most = std::max(lowest, highest - length);
            return std::clamp(wished / static_cast<double>(count), lowest, most);
        }
    };
    std::vector<Group> groups;
    for (std::size_t i = 0; i < labels.size(); ++i) {
        groups.push_back({i, 1, start(*labels[i]), length(*labels[i])});
        while (groups.size() > 1) {
            Group& before = groups[groups.size() - 2];
            const Group& last = groups.back();
            if (before.at(low, high) + before.length <= last.at(low, high))
                break;
            before.wished += last.wished - before.length * static_cast<double>(last.count);
            before.length += last.length;
            before.count += last.count;
            groups.pop_back();
        }
    }
    for (const Group& group : groups) {
        double at = group.at(low, high);
        for (std::size_t i = group.first; i < group.first + group.count; ++i) {
            const double by = at - start(*labels[i]);
            at += length(*labels[i]);
            labels[i]->move(place.upright() ? QPointF(0, by) : QPointF(by, 0));
        }
    }
}

/// Pixels from the line to the border of the picture.
double spaceBeside(const AxisPlace& place) {
    const QRect& picture = place.picture;
    switch (place.side) {
    case Left:
        return place.across - picture.left();
    case Right:
        return picture.right() - place.across;
    case TopCenter:
        return place.across - picture.top();
    default:
        return picture.bottom() - place.across;
    }
}

/// The labels of the marks stand among those of the ticks, which give way to them.
void placeMarks(AxisLayout& layout, const Axis& axis, double distance) {
    const int beside = std::max(1, static_cast<int>(spaceBeside(layout.place) - distance));
    const QSize most =
        layout.place.upright() ? QSize(beside, 0) : QSize(layout.place.picture.width(), beside);
    for (const Mark* mark : axis.marks()) {
        if (!layout.map.contains(mark->value()))
            continue;
        AxisLayout::Label label{.value = mark->value(),
                                .text = mark->text(),
                                .block = fittedText(mark->look(), mark->text(), axis.chart().fonts(), most),
                                .anchor = {},
                                .alignment = Center,
                                .pivot = false};
        if (label.block.empty())
            continue;
        LabelPlacer(layout.place, mark->look().angle, distance)
            .put(label, layout.map.wholePixel(mark->value()));
        layout.marks.push_back(std::move(label));
    }
    spread(layout.marks, layout.place);
    for (const AxisLayout::Label& mark : layout.marks)
        std::erase_if(layout.labels,
                      [&](const AxisLayout::Label& tick) { return tick.box().intersects(mark.box()); });
}

int reachOf(const AxisLayout& layout, double ticks) {
    double reach = ticks;
    for (const auto* labels : {&layout.labels, &layout.marks}) {
        for (const AxisLayout::Label& label : *labels) {
            const QRectF box = label.box();
            const AxisPlace& place = layout.place;
            const double edge = place.side == Left        ? place.across - box.left()
                                : place.side == Right     ? box.right() - place.across - 1
                                : place.side == TopCenter ? place.across - box.top()
                                                          : box.bottom() - place.across - 1;
            reach = std::max(reach, edge);
        }
    }
    return static_cast<int>(std::ceil(reach));
}

/// A title on the line of the axis stands beyond its end; all others stand beside it, outside the labels.
bool titleStandsBeyond(const Axis& axis, const AxisPlace& place) {
    const int code = axis.titleAlignment();
    return place.upright() ? code == TopCenter || code == BottomCenter : code == Left || code == Right;
}

/// From the line to the labels.
double labelDistance(const Axis& axis) {
    return std::max(0, axis.width() - 1) + std::max(0, axis.ticks().majorLength) + kLabelGap + 0.5;
}

/// Beside the axis a long title is broken, so that it does not run into that of the next side. Below a level
/// one it takes no line that the labels need.
TextBlock titleBlock(const Axis& axis, const AxisPlace& place) {
    const bool beyond = titleStandsBeyond(axis, place);
    TextLook look = axis.titleLook(place.upright() && !beyond);
    const bool along = std::fmod(look.angle, 180) == (place.upright() ? 90 : 0);
    const int picture = place.upright() ? place.picture.height() : place.picture.width();
    if (!beyond && (along || std::fmod(look.angle, 180) == (place.upright() ? -90 : 0)) && !look.vertical)
        look.wrapWidth = std::max(place.to - place.from + 1, std::min(picture, kLeastTitle));
    QSize room = place.picture.adjusted(kTitleBorder, kTitleBorder, -kTitleBorder, -kTitleBorder).size();
    const TextLook& labels = axis.labelBox().look();
    if (!place.upright() && !beyond && !axis.title().pos() && look.angle == 0 &&
        !axis.chart().colours().invisible(labels.colour)) {
        const FontSet& fonts = axis.chart().fonts();
        const double taken = labelDistance(axis) + TextBlock(labels, "0", fonts).boxSize().height() +
                             std::max(0, axis.titleGap()) + kTitleBorder;
        const int line = TextBlock(look, "0", fonts).boxSize().height();
        room.setHeight(
            std::clamp(static_cast<int>(spaceBeside(place) - taken), line, std::max(line, room.height())));
    }
    return fittedText(look, axis.title().text(), axis.chart().fonts(), room);
}

/// Beyond the upper end of the labels, or where the picture ends there, inside of the line.
void placeFactor(AxisLayout& layout, const std::string& factor, const Axis& axis, double distance) {
    const AxisPlace& place = layout.place;
    TextLook look = axis.labelBox().look();
    look.angle = 0;
    const bool atTo = place.upper > place.lower;
    const double end = atTo ? place.to + 1 : place.from;
    double beyond = kLabelGap;
    for (const AxisLayout::Label& label : layout.labels) {
        const QRectF box = label.box();
        beyond = std::max(beyond, atTo ? alongOf(place, box.bottomRight()) - end
                                       : end - alongOf(place, box.topLeft()));
    }
    const auto at = [&](double along, double across) { return pointAt(place, along, across); };
    AxisLayout::Label label{.value = 0,
                            .text = factor,
                            .block = TextBlock(look, factor, axis.chart().fonts()),
                            .anchor = at(end + (atTo ? beyond : -beyond), distance),
                            .alignment = facing(place.side, atTo ? -1 : 1),
                            .pivot = false};
    const QPointF back = intoPicture(label.box(), place.picture);
    const std::vector<QRectF> taken = axis.chart().textRoom().boxes();
    const auto isTaken = [&] {
        const QRectF box = label.box().translated(back);
        return std::any_of(taken.begin(), taken.end(),
                           [&](const QRectF& text) { return text.intersects(box); });
    };
    if (alongOnly(place, back).isNull() && !isTaken()) {
        label.move(back);
    } else {
        label.anchor = at(end + (atTo ? -kLabelGap : kLabelGap), -2.0 * kLabelGap);
        const int inside = place.side == Left        ? Right
                           : place.side == Right     ? Left
                           : place.side == TopCenter ? BottomCenter
                                                     : TopCenter;
        label.alignment = facing(inside, atTo ? 1 : -1);
        label.move(intoPicture(label.box(), place.picture));
    }
    layout.factor = std::move(label);
}

void placeTitle(AxisLayout& layout, const Axis& axis) {
    const AxisPlace& place = layout.place;
    const int code = axis.titleAlignment();
    const bool upright = place.upright();
    const bool beyond = titleStandsBeyond(axis, place);
    TextBlock block = titleBlock(axis, place);
    if (block.empty())
        return;
    AxisLayout::Label title{.value = 0,
                            .text = axis.title().text(),
                            .block = std::move(block),
                            .anchor = {},
                            .alignment = Center,
                            .pivot = false};
    const int gap = axis.titleGap();
    if (beyond) {
        const bool atFrom = upright ? code == TopCenter : code == Left;
        const double end = atFrom ? place.from - gap : place.to + 1 + gap;
        title.anchor = upright ? QPointF(place.across + 0.5, end) : QPointF(end, place.across + 0.5);
        title.alignment = upright ? (atFrom ? BottomCenter : TopCenter) : (atFrom ? Right : Left);
    } else {
        const int along = upright ? verticalOf(code) : horizontalOf(code);
        const double at = along < 0   ? place.from
                          : along > 0 ? place.to + 1
                                      : (place.from + place.to + 1) / 2.0;
        title.alignment = facing(place.side, along);
        title.anchor = pointAt(place, at, layout.reach + gap);
        const bool ownPixel = place.side == Right || place.side == BottomCenter;
        title.anchor += outward(place.side) * (ownPixel ? 1 : 0);
    }
    const QPointF out = outward(place.side);
    const QRect bordered = place.picture.adjusted(kTitleBorder, kTitleBorder, -kTitleBorder, -kTitleBorder);
    const QPointF back = intoPicture(title.box(), bordered);
    const auto inward = [&](const QRect& room) {
        return std::max(0.0, -QPointF::dotProduct(intoPicture(title.box(), room), out));
    };
    // Pulled back into the picture: over the gap, and only where that is not enough over labels, which then
    // go.
    const double far = inward(bordered);
    const double most =
        beyond ? far : std::max(std::min<double>(far, std::max(0, gap)), inward(place.picture));
    title.move(alongOnly(place, back) - out * most);
    if (axis.title().pos())
        title.move(QPointF(*axis.title().pos()) - title.box().topLeft());
    layout.title = std::move(title);
}

} // namespace

void AxisPlace::setScaleEnds(const ScaleSettings& scale) {
    const int length = std::max(0, to - from);
    double top = scale.marginTop;
    double bottom = scale.marginBottom;
    if (top + bottom > length - 1) {
        const double shrink = std::max(0, length - 1) / std::max(1.0, top + bottom);
        top *= shrink;
        bottom *= shrink;
    }
    const int topPixels = static_cast<int>(top), bottomPixels = static_cast<int>(bottom);
    lower = upright() ? to - bottomPixels : from + bottomPixels;
    upper = upright() ? from + topPixels : to - topPixels;
    if (scale.reverse)
        std::swap(lower, upper);
}

QRectF AxisLayout::Label::box() const {
    return pivot ? block.pivotBoundsAt(anchor, alignment) : block.boundsAt(anchor, alignment);
}

QPolygonF AxisLayout::Label::outline() const {
    return pivot ? block.pivotOutlineAt(anchor, alignment) : block.outlineAt(anchor, alignment);
}

void AxisLayout::Label::draw(Canvas& canvas, TextRoom& room) const {
    if (!room.claim(outline()))
        return;
    if (pivot)
        block.drawPivotAt(canvas, anchor, alignment);
    else
        block.drawAt(canvas, anchor, alignment);
}

double labelRoomOf(const Axis& axis, const AxisPlace& place) {
    double room = spaceBeside(place);
    if (!axis.title().pos() && !titleStandsBeyond(axis, place)) {
        const TextBlock title = titleBlock(axis, place);
        const int height = place.upright() ? title.size().width() : title.size().height();
        room -= title.empty() ? 0 : height + kTitleBorder + std::max(0, axis.titleGap());
    }
    return std::max(1.0, room - labelDistance(axis));
}

AxisLayout layoutAxis(const Axis& axis, AxisPlan plan, const AxisPlace& place) {
    AxisLayout layout;
    layout.map = plan.map(place.lower, place.upper);
    layout.place = place;
    for (const PlannedTick& tick : plan.ticks)
        layout.ticks.push_back({tick.value, layout.map.wholePixel(tick.value), tick.major});
    const double ticks = std::max({0, axis.ticks().majorLength, axis.ticks().minorLength});
    const double line = std::max(0, axis.width() - 1);
    const double distance = labelDistance(axis);
    placeLabels(layout, plan, axis, distance);
    placeMarks(layout, axis, distance);
    if (axis.chart().colours().invisible(axis.labelBox().look().colour))
        layout.labels.clear(); // they took part in the plan, so that axes that differ in this alone agree
    if (!plan.factor.empty() && !layout.labels.empty())
        placeFactor(layout, plan.factor, axis, distance);
    layout.reach = reachOf(layout, line + ticks);
    placeTitle(layout, axis);
    return layout;
}

QRect axisLine(const AxisPlace& place, int width) {
    const int out = width - 1; // pixels beyond the line's own
    switch (place.side) {
    case Left:
        return {QPoint(place.across - out, place.from), QPoint(place.across, place.to)};
    case Right:
        return {QPoint(place.across, place.from), QPoint(place.across + out, place.to)};
    case TopCenter:
        return {QPoint(place.from, place.across - out), QPoint(place.to, place.across)};
    default:
        return {QPoint(place.from, place.across), QPoint(place.to, place.across + out)};
    }
}

void drawAxisLine(Canvas& canvas, const Axis& axis, const AxisLayout& layout) {
    const int width = axis.width();
    if (width < 1)
        return;
    const AxisPlace& place = layout.place;
    const TickSettings& ticks = axis.ticks();
    for (const AxisLayout::Tick& tick : layout.ticks) {
        const int length = tick.major ? ticks.majorLength : ticks.minorLength;
        if (length == 0)
            continue;
        const double first = length > 0 ? width : -1;
        const double last = length > 0 ? width - 1 + length : length;
        canvas.line(pointAt(place, tick.pixel, first), pointAt(place, tick.pixel, last), axis.tickColour(),
                    width);
    }
    canvas.fillRect(axisLine(place, width), axis.colour());
}

} // namespace chartdraw
