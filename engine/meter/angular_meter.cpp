#include "engine/meter/angular_meter.h"

#include "engine/axis/round_labels.h"
#include "engine/data/no_value.h"

#include <QTransform>
#include <algorithm>
#include <cmath>
#include <numbers>

namespace chartdraw {

namespace {

constexpr double kLabelGap = 3;          ///< pixels between the scale and its labels
constexpr double kLabelAir = 2;          ///< and between two labels
constexpr int kPictureMargin = 2;        ///< and between labels and the border of the picture
constexpr double kMiddle = 0.2;          ///< as a part of the radius: where labels would cover pointers
constexpr double kPointerBreadth = 0.07; ///< as a part of the radius
constexpr double kPointerTail = 0.16;    ///< behind the middle, as a part of the pointer's length

double radians(double degrees) {
    return degrees * std::numbers::pi / 180;
}

} // namespace

AngularMeter::AngularMeter(int width, int height, Colour background, Colour edge, int effect)
    : BaseMeter(Kind::AngularMeter, width, height, background, edge, effect),
      m_centre(QPointF(width / 2, height / 2) + QPointF(0.5, 0.5)),
      m_radius(std::max(0, limited(std::min(width, height))) * 0.4) {}

void AngularMeter::setMeter(QPoint centre, int radius, double startAngle, double endAngle) {
    m_centre = QPointF(limited(centre.x()), limited(centre.y())) + QPointF(0.5, 0.5);
    m_radius = std::max(0, limited(radius));
    const double start = isValue(startAngle) ? startAngle : -90;
    const double end = isValue(endAngle) ? endAngle : 90;
    const bool anticlockwise = end < start;
    const double turn = std::min(360.0, std::abs(end - start));
    m_start = std::fmod(start, 360);
    m_end = m_start + (turn == 0 ? 360 : turn) * (anticlockwise ? -1 : 1);
}

void AngularMeter::addRing(int startRadius, int endRadius, Colour fill, Colour edge) {
    const int a = std::max(0, limited(startRadius)), b = std::max(0, limited(endRadius));
    m_rings.push_back(
        {std::min(a, b), std::max(a, b), orDefault(fill, kTransparent), orDefault(edge, kTransparent)});
}

void AngularMeter::addZone(double start, double end, Colour fill, Colour edge) {
    m_zones.push_back({start, end, orDefault(fill, kTransparent), edge});
}

QRectF AngularMeter::circle(double radius) const {
    return {m_centre - QPointF(radius, radius), QSizeF(2 * radius, 2 * radius)};
}

double AngularMeter::majorLength() const {
    return std::clamp(m_radius * 0.07, 3.0, 16.0);
}

void AngularMeter::drawBody(Canvas& canvas) {
    drawRings(canvas);
    if (m_radius <= 0)
        return;
    drawZones(canvas);
    const double breadth = m_radius * radians(std::abs(m_end - m_start));
    const Dial dial = this->dial(breadth, true);
    drawScale(canvas, dial);
    drawLabels(canvas, dial);
}

void AngularMeter::drawRings(Canvas& canvas) const {
    for (const Ring& ring : m_rings) {
        QPainterPath path; // odd-even: the inner circle is a hole
        path.addEllipse(circle(ring.outer));
        if (ring.inner > 0)
            path.addEllipse(circle(ring.inner));
        canvas.fillPath(path, ring.fill);
        canvas.strokePath(path, ring.edge, 1);
    }
}

void AngularMeter::drawZones(Canvas& canvas) const {
    for (const Zone& zone : m_zones) {
        const auto covered = span(zone.start, zone.end);
        if (!covered)
            continue;
        const double from = angleAt(covered->first), to = angleAt(covered->second);
        QPainterPath path;
        if (std::abs(to - from) >= 360) {
            path.addEllipse(circle(m_radius));
        } else {
            path.moveTo(m_centre);
            path.arcTo(circle(m_radius), 90 - from, from - to); // the toolkit's angles run the other way
            path.closeSubpath();
        }
        fillZone(canvas, path, zone.fill, zone.edge);
    }
}

void AngularMeter::drawScale(Canvas& canvas, const Dial& dial) const {
    if (axisWidth() > 0) {
        const QRectF line = circle(m_radius + axisWidth() / 2.0);
        QPainterPath path;
        path.arcMoveTo(line, 90 - m_start);
        path.arcTo(line, 90 - m_start, m_start - m_end);
        canvas.strokePath(path, scaleColour(), axisWidth());
    }
    for (const TickSort& sort : tickSorts(dial)) {
        QPainterPath path;
        for (const double value : sort.values) {
            const QPointF out = roundDirection(radians(angleAt(*fraction(value))));
            path.moveTo(m_centre + out * m_radius);
            path.lineTo(m_centre + out * (m_radius - majorLength() * sort.length));
        }
        canvas.strokePath(path, scaleColour(), sort.width);
    }
}

std::vector<QRectF> AngularMeter::boxesAround(const Dial& dial, double radius, bool outside) const {
    std::vector<QRectF> boxes;
    for (const Label& label : dial.labels) {
        const double angle = radians(angleAt(*fraction(label.value)));
        const QSizeF size(label.text.size());
        const QRectF box =
            outside ? boxOutside(m_centre, radius, angle, size) : boxInside(m_centre, radius, angle, size);
        boxes.emplace_back(QPointF(std::round(box.left()), std::round(box.top())), size);
    }
    return boxes;
}

double AngularMeter::clearOfRings(const Dial& dial, double radius) const {
    double reach = 0;
    for (const QRectF& box : boxesAround(dial, radius, true)) {
        const QPointF middle = box.center() - m_centre;
        reach = std::max(reach, std::hypot(std::abs(middle.x()) + box.width() / 2,
                                           std::abs(middle.y()) + box.height() / 2));
    }
    const double breadth = reach - radius;
    std::vector<int> borders;
    for (const Ring& ring : m_rings)
        if (!colours().invisible(ring.fill) || !colours().invisible(ring.edge))
            borders.insert(borders.end(), {ring.inner, ring.outer});
    std::sort(borders.begin(), borders.end());
    for (const int border : borders)
        if (border > radius - 1 && border < radius + breadth)
            radius = border + kLabelGap;
    return radius;
}

/// Outside the scale, and beyond rings whose border would run through a label. Where the picture has no room
/// for that, inside the ticks.
std::vector<QRectF> AngularMeter::labelBoxes(const Dial& dial) {
    const QRectF room = QRectF(0, 0, width(), height())
                            .adjusted(kPictureMargin, kPictureMargin, -kPictureMargin, -kPictureMargin);
    const auto moved = [&](std::vector<QRectF> boxes) {
        for (QRectF& box : boxes)
            box = movedInto(box, room);
        return boxes;
    };
    const double outside = clearOfRings(dial, m_radius + axisWidth() + kLabelGap);
    const std::vector<QRectF> around = moved(boxesAround(dial, outside, true));
    const bool fit = std::all_of(around.begin(), around.end(), [&](const QRectF& box) {
        return !reachesInto(box, m_centre, outside) && textRoom().hasRoom(box);
    });
    if (fit)
        return around;
    std::vector<QRectF> boxes = moved(boxesAround(dial, m_radius - majorLength() - kLabelGap, false));
    // About the middle, where the pointers turn, nothing can be read.
    const double least = m_radius * kMiddle;
    const bool legible = std::none_of(boxes.begin(), boxes.end(),
                                      [&](const QRectF& box) { return reachesInto(box, m_centre, least); });
    return legible ? boxes : around;
}

void AngularMeter::drawLabels(Canvas& canvas, const Dial& dial) {
    const std::vector<QRectF> boxes = labelBoxes(dial);
    const std::vector<bool> kept = thinAround(boxes, kLabelAir);
    for (std::size_t i = 0; i < boxes.size(); ++i)
        if (kept[i] && textRoom().claim(boxes[i]))
            dial.labels[i].text.drawAt(canvas, boxes[i].topLeft(), TopLeft);
}

QPainterPath AngularMeter::outlineOf(const MeterPointer& pointer, double fraction) const {
    const double length = m_radius * pointer.lengthRatio();
    const double breadth = std::max(3.0, m_radius * kPointerBreadth) * pointer.widthRatio();
    const QPainterPath blade =
        chartdraw::pointerOutline(pointer.shape(), length, length * kPointerTail, breadth);
    const double hub = breadth * 0.65;
    QPainterPath cap;
    cap.addEllipse(QPointF(), hub, hub);
    // One outline, so that a colour that shows through lies on it once.
    const QTransform turned = QTransform::fromTranslate(m_centre.x(), m_centre.y()).rotate(angleAt(fraction));
    return turned.map(blade.united(cap));
}

} // namespace chartdraw
