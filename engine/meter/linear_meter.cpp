#include "engine/meter/linear_meter.h"

#include "engine/axis/round_labels.h"
#include "engine/scale/label_thinning.h"
#include "engine/text/fitted_text.h"

#include <QTransform>
#include <algorithm>
#include <cmath>

namespace chartdraw {

namespace {

constexpr double kLabelGap = 3;   ///< pixels between ticks and labels
constexpr double kLabelAir = 1;   ///< and between two labels, one above the other
constexpr int kPictureMargin = 2; ///< and between labels and the border of the picture
constexpr int kZoneMargin = 3;    ///< and around the text of a zone

double lengthAlong(const QRectF& box, bool upright) {
    return upright ? box.height() : box.width();
}

double startAlong(const QRectF& box, bool upright) {
    return upright ? box.top() : box.left();
}

} // namespace

LinearMeter::LinearMeter(int width, int height, Colour background, Colour edge, int effect)
    : BaseMeter(Kind::LinearMeter, width, height, background, edge, effect) {
    const int w = std::max(0, limited(width)), h = std::max(0, limited(height));
    m_bar = QRect(w * 9 / 20, h / 10, w / 10, h * 4 / 5);
}

void LinearMeter::setMeter(QPoint corner, QSize size, int side, bool reverse) {
    m_bar = QRect(limited(corner.x()), limited(corner.y()), std::max(0, limited(size.width())),
                  std::max(0, limited(size.height())));
    m_side = side == Right || side == TopCenter || side == BottomCenter ? side : Left;
    m_reverse = reverse;
}

TextBox* LinearMeter::addZone(double start, double end, Colour colour, std::string label) {
    TextLook look;
    look.setMargins(kZoneMargin, kZoneMargin, 1, 1);
    auto* box = own<TextBox>(*this, std::move(label), look);
    m_zones.push_back({start, end, orDefault(colour, kTransparent), box});
    return box;
}

bool LinearMeter::upright() const {
    return m_side == Left || m_side == Right;
}

QPointF LinearMeter::outward() const {
    return m_side == Left        ? QPointF(-1, 0)
           : m_side == Right     ? QPointF(1, 0)
           : m_side == TopCenter ? QPointF(0, -1)
                                 : QPointF(0, 1);
}

double LinearMeter::along(double fraction) const {
    const double rising = m_reverse ? 1 - fraction : fraction;
    return upright() ? m_bar.top() + m_bar.height() * (1 - rising) : m_bar.left() + m_bar.width() * rising;
}

int LinearMeter::pixelAt(double fraction) const {
    const int first = upright() ? m_bar.top() : m_bar.left();
    const int last = first + static_cast<int>(barLength()) - 1;
    return std::clamp(static_cast<int>(std::floor(along(fraction))), first, std::max(first, last));
}

QPointF LinearMeter::onScale(double along) const {
    switch (m_side) {
    case Right:
        return {static_cast<double>(m_bar.x() + m_bar.width()), along};
    case TopCenter:
        return {along, static_cast<double>(m_bar.y())};
    case BottomCenter:
        return {along, static_cast<double>(m_bar.y() + m_bar.height())};
    default:
        return {static_cast<double>(m_bar.x()), along};
    }
}

double LinearMeter::majorLength() const {
    return std::clamp(std::round(barLength() * 0.025), 4.0, 10.0);
}

QRectF LinearMeter::room() const {
    return QRectF(0, 0, width(), height())
        .adjusted(kPictureMargin, kPictureMargin, -kPictureMargin, -kPictureMargin);
}

QRectF LinearMeter::zoneRect(double from, double to) const {
    const double a = std::round(std::min(along(from), along(to)));
    const double b =
        std::max(a + 1, std::round(std::max(along(from), along(to)))); // however thin, it is there
    return upright() ? QRectF(m_bar.x(), a, m_bar.width(), b - a)
                     : QRectF(a, m_bar.y(), b - a, m_bar.height());
}

void LinearMeter::drawBody(Canvas& canvas) {
    if (barLength() < 1)
        return;
    drawZones(canvas);
    const Dial dial = this->dial(barLength(), !upright());
    drawScale(canvas, dial);
    drawLabels(canvas, dial);
    drawZoneLabels(canvas);
}

void LinearMeter::drawZones(Canvas& canvas) const {
    for (const Zone& zone : m_zones)
        if (const auto covered = span(zone.start, zone.end))
            canvas.fillRect(zoneRect(covered->first, covered->second), zone.colour);
}

/// As near to the middle of the zone as no pointer covers the label.
QRectF LinearMeter::placeInside(const QRectF& zone, QSizeF size, const std::vector<QRectF>& pointers) const {
    const QSizeF spare = zone.size() - size;
    const auto placed = [&](double part) {
        const QPointF corner = upright() ? QPointF(spare.width() / 2, spare.height() * part)
                                         : QPointF(spare.width() * part, spare.height() / 2);
        return QRectF(zone.topLeft() + corner, size);
    };
    for (const double part : {0.5, 0.4, 0.6, 0.3, 0.7, 0.2, 0.8, 0.1, 0.9}) {
        const QRectF box = placed(part);
        const bool free = std::none_of(pointers.begin(), pointers.end(),
                                       [&](const QRectF& pointer) { return pointer.intersects(box); });
        if (free)
            return box;
    }
    return placed(0.5);
}

/// In the middle of the zone where the label has room there; else beside the bar, away from the scale, moved
/// along the bar so that none covers another.
void LinearMeter::drawZoneLabels(Canvas& canvas) {
    const std::vector<QRectF> pointers = pointerBounds();
    std::vector<ZoneLabel> beside;
    for (const Zone& zone : m_zones) {
        const auto covered = span(zone.start, zone.end);
        if (!covered)
            continue;
        TextBlock text = zone.label->block();
        if (text.empty())
            continue;
        const QRectF rect = zoneRect(covered->first, covered->second);
        QSizeF size(text.size());
        if (size.width() <= rect.width() && size.height() <= rect.height()) {
            const QRectF box = placeInside(rect, size, pointers);
            if (textRoom().claim(box))
                text.drawAt(canvas, box.topLeft(), TopLeft);
            continue;
        }
        const double away = barBreadth() + kLabelGap;
        if (upright()) {
            const double free = m_side == Left ? room().right() - m_bar.right() : m_bar.left();
            text = fittedText(zone.label->look(), zone.label->text(), fonts(),
                              QSize(std::max(1, static_cast<int>(free - kLabelGap)), 0));
            size = QSizeF(text.size());
        }
        const QPointF middle = upright() ? QPointF(0, rect.center().y()) : QPointF(rect.center().x(), 0);
        const QPointF half(size.width() / 2, size.height() / 2);
        QPointF at = onScale(upright() ? middle.y() : middle.x()) - outward() * away;
        at -= QPointF(outward().x() * half.x(), outward().y() * half.y());
        beside.push_back({std::move(text), movedInto(QRectF(at - half, size), room())});
    }
    std::stable_sort(
        beside.begin(), beside.end(),
        [this](const ZoneLabel& a, const ZoneLabel& b) {
            return startAlong(a.box, upright()) < startAlong(b.box, upright());
        });
    const auto moveTo = [this](QRectF& box, double start) {
        upright() ? box.moveTop(start) : box.moveLeft(start);
    };
    double free = startAlong(room(), upright());
    for (ZoneLabel& label : beside) {
        moveTo(label.box, std::max(free, startAlong(label.box, upright())));
        free = startAlong(label.box, upright()) + lengthAlong(label.box, upright()) + 1;
    }
    double end = startAlong(room(), upright()) + lengthAlong(room(), upright());
    for (auto label = beside.rbegin(); label != beside.rend(); ++label) {
        moveTo(label->box,
               std::min(startAlong(label->box, upright()), end - lengthAlong(label->box, upright())));
        end = startAlong(label->box, upright()) - 1;
        if (textRoom().claim(label->box))
            label->text.drawAt(canvas, label->box.topLeft(), TopLeft);
    }
}

void LinearMeter::drawScale(Canvas& canvas, const Dial& dial) const {
    const auto strip = [&](double from, double to, double near, double far) {
        // Across: distances from the bar outwards; along: pixel borders.
        const QPointF a = onScale(from) + outward() * near, b = onScale(to) + outward() * far;
        canvas.fillRect(QRectF(a, b).normalized(), scaleColour());
    };
    for (const TickSort& sort : tickSorts(dial)) {
        for (const double value : sort.values) {
            const int before = pixelAt(*fraction(value)) - (sort.width - 1) / 2;
            strip(before, before + sort.width, axisWidth(),
                  axisWidth() + std::round(majorLength() * sort.length));
        }
    }
    const double start = upright() ? m_bar.top() : m_bar.left();
    strip(start, start + barLength(), 0, axisWidth());
}

void LinearMeter::drawLabels(Canvas& canvas, const Dial& dial) {
    const double distance = axisWidth() + majorLength() + kLabelGap;
    std::vector<QRectF> boxes;
    std::vector<LabelExtent> extents;
    for (const Label& label : dial.labels) {
        const QPointF anchor = onScale(pixelAt(*fraction(label.value)) + 0.5) + outward() * distance;
        const int facing = m_side == Left        ? Right
                           : m_side == Right     ? Left
                           : m_side == TopCenter ? BottomCenter
                                                 : TopCenter;
        QRectF box = movedInto(label.text.boundsAt(anchor, facing), room());
        if (upright()) // not onto the bar
            box.moveLeft(label.text.boundsAt(anchor, facing).left());
        boxes.push_back(box);
        const double from = startAlong(boxes.back(), upright());
        extents.push_back({from, from + lengthAlong(boxes.back(), upright())});
    }
    for (const int index : thinLabels(extents, upright() ? kLabelAir : 4 * kLabelAir, true)) {
        const auto i = static_cast<std::size_t>(index);
        if (textRoom().claim(boxes[i]))
            dial.labels[i].text.drawAt(canvas, boxes[i].topLeft(), TopLeft);
    }
}

QPainterPath LinearMeter::outlineOf(const MeterPointer& pointer, double fraction) const {
    const double length = barBreadth() * pointer.lengthRatio();
    const double usual = std::clamp(barBreadth() * 0.3, 5.0, std::max(5.0, barLength() * 0.06));
    const QPainterPath outline =
        chartdraw::pointerOutline(pointer.shape(), length, 0, usual * pointer.widthRatio());
    const QPointF tip = onScale(along(fraction));
    const double turn = m_side == Left ? -90 : m_side == Right ? 90 : m_side == TopCenter ? 0 : 180;
    return QTransform::fromTranslate(tip.x(), tip.y()).rotate(turn).translate(0, length).map(outline);
}

} // namespace chartdraw
