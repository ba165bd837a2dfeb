// The parts of a polar chart other than its layers: plot area, zones, grid, and the labels of both axes.

#include "engine/axis/round_labels.h"
#include "engine/data/no_value.h"
#include "engine/paint/clip.h"
#include "engine/polar/polar_chart.h"
#include "engine/text/fitted_text.h"

#include <QRegion>
#include <algorithm>
#include <cmath>
#include <numbers>

namespace chartdraw {

namespace {

constexpr double kLabelGap = 3;     ///< pixels between a line and its labels
constexpr double kLabelAir = 2;     ///< and between two labels
constexpr double kMinorLength = 5;  ///< of the marks of minor ticks at the rim
constexpr double kLeastWrap = 2.5;  ///< lines high that a label is broad at least
const QPointF kToBorders(0.5, 0.5); ///< from centres of pixels to the pixel borders that paths count

/// What a pen of this width covers.
QPainterPath outlineOf(const QPainterPath& lines, double width) {
    QPainterPath outline;
    if (width > 0) {
        QPainterPathStroker stroker;
        stroker.setWidth(width);
        stroker.setCapStyle(Qt::FlatCap);
        outline = stroker.createStroke(lines);
    }
    outline.setFillRule(Qt::WindingFill);
    return outline;
}

/// Alternating sectors one by one: as one outline, thousands that meet in a point would take minutes.
void drawThinSectors(Canvas& canvas, const PolarFrame& frame, Colour first, Colour second) {
    const QPainterPath whole = frame.ring(frame.radius);
    const QRectF extent = whole.boundingRect();
    // Cutting them is quicker than leaving it to the painter.
    const QRectF picture = canvas.painter().worldTransform().inverted().mapRect(
        QRectF(-2, -2, canvas.width() + 4, canvas.height() + 4));
    // An opaque colour lies over the first one, so that nothing shows through between the two.
    const bool covers = canvas.colours().solid(second).alpha() == 255;
    if (covers)
        canvas.fillPath(whole, first, &extent);
    for (std::size_t i = covers ? 1 : 0; i < frame.spokes.size(); i += covers ? 2 : 1)
        canvas.fillPath(clipPath(frame.sectorBehind(i), picture), i % 2 == 0 ? first : second, &extent);
}

} // namespace

void PolarChart::drawArea(Canvas& canvas, const Plot& plot) const {
    if (m_first == kDefaultColour && m_second == kDefaultColour)
        canvas.fillPath(plot.frame.ring(m_radius), m_background);
    else
        drawAlternating(canvas, plot);
}

void PolarChart::drawAlternating(Canvas& canvas, const Plot& plot) const {
    const Colour colours[] = {orDefault(m_first, m_background), orDefault(m_second, m_background)};
    constexpr std::size_t kManySpokes = 720;
    const QRectF extent = plot.frame.ring(m_radius).boundingRect();
    if (!m_alternateRings && plot.frame.spokes.size() > kManySpokes) {
        drawThinSectors(canvas, plot.frame, colours[0], colours[1]);
        return;
    }
    // All parts of a colour are one outline and are filled at once, so that no seams show between them.
    QPainterPath parts[2];
    std::size_t index = 0;
    if (m_alternateRings) {
        double from = 0;
        for (const double ring : plot.rings) {
            parts[index++ % 2].addPath(plot.frame.band(from, ring));
            from = ring;
        }
        parts[index % 2].addPath(plot.frame.band(from, m_radius));
    } else if (plot.frame.spokes.size() < 2) {
        parts[0] = plot.frame.ring(m_radius);
    } else {
        for (std::size_t i = 0; i < plot.frame.spokes.size(); ++i)
            parts[i % 2].addPath(plot.frame.sectorBehind(i));
    }
    canvas.fillPath(parts[0], colours[0], &extent);
    canvas.fillPath(parts[1], colours[1], &extent);
}

void PolarChart::drawZones(Canvas& canvas, const PolarFrame& frame) const {
    for (const Zone& zone : m_radial->zones()) {
        const double from = frame.pixels(zone.start), to = frame.pixels(zone.end);
        if (!std::isnan(from) && !std::isnan(to))
            canvas.fillPath(frame.band(from, to), zone.colour);
    }
    for (const AngularAxis::Zone& zone : m_angular->zones()) {
        const auto [from, turns] = m_angular->zoneTurns(zone);
        if (turns > 0) {
            const QPainterPath sector = frame.sector(from, turns);
            canvas.fillPath(sector, zone.fill);
            canvas.strokePath(sector, zone.edge, 1);
        }
    }
}

/// Draws lines with gaps for the values of the radial axis, which they would strike through.
template <class Draw>
void PolarChart::leaveValues(Canvas& canvas, const Plot& plot, const Draw& draw) const {
    QRegion rest(0, 0, width(), height());
    for (const PlacedText& value : plot.values)
        rest -= value.box.toAlignedRect().adjusted(-1, 0, 1, 0);
    QPainter& painter = canvas.painter();
    painter.save();
    painter.setClipRegion(rest, painter.hasClipping() ? Qt::IntersectClip : Qt::ReplaceClip);
    draw();
    painter.restore();
}

void PolarChart::drawGrid(Canvas& canvas, const Plot& plot) const {
    leaveValues(
        canvas, plot, [&] { drawGridLines(canvas, plot); });
}

void PolarChart::drawRim(Canvas& canvas, const Plot& plot) const {
    leaveValues(
        canvas, plot, [&] { canvas.strokePath(plot.frame.ring(m_radius), m_edge, m_edgeWidth); });
}

void PolarChart::drawGridLines(Canvas& canvas, const Plot& plot) const {
    const PolarFrame& frame = plot.frame;
    QPainterPath rings, spokes;
    for (const double ring : plot.rings)
        rings.addPath(frame.ring(ring));
    const auto add = [&](double turn, double from) {
        spokes.moveTo(frame.at(turn, from) + kToBorders);
        spokes.lineTo(frame.at(turn, m_radius) + kToBorders);
    };
    for (const double turn : frame.spokes)
        add(turn, 0);
    for (const double turn : plot.angular.minor)
        add(turn, std::max(0.0, m_radius - kMinorLength));
    if (canvas.colours().solid(m_ringColour).alpha() == 255 &&
        canvas.colours().solid(m_spokeColour).alpha() == 255) {
        canvas.strokePath(rings, m_ringColour, m_ringWidth);
        canvas.strokePath(spokes, m_spokeColour, m_spokeWidth);
        return;
    }
    // A colour that shows through is laid on once, not again wherever lines meet.
    const QPainterPath ringLines = outlineOf(rings, m_ringWidth);
    const QPainterPath spokeLines = outlineOf(spokes, m_spokeWidth);
    if (m_ringColour == m_spokeColour) {
        QPainterPath all = ringLines;
        all.addPath(spokeLines);
        canvas.fillPath(all, m_ringColour);
    } else {
        canvas.fillPath(ringLines, m_ringColour);
        canvas.fillPath(spokeLines, m_spokeColour);
    }
}

/// From the centre upwards, ticks and labels on its left.
void PolarChart::drawRadialAxis(Canvas& canvas, const Plot& plot) const {
    const auto point = [&](double pixels, double left) {
        return plot.frame.at(0, pixels) - QPointF(left, 0);
    };
    const TickSettings& settings = m_radial->ticks();
    for (const PlannedTick& tick : plot.radial.ticks) {
        const double pixels = std::round(plot.frame.pixels(tick.value));
        const int length = tick.major ? settings.majorLength : settings.minorLength;
        if (pixels <= m_radius + 0.5 && length != 0 && m_radial->width() > 0)
            canvas.line(point(pixels, length), point(pixels, 0), m_radial->tickColour(), 1);
    }
    canvas.line(point(0, 0), point(m_radius, 0), m_radial->colour(), m_radial->width());
}

void PolarChart::placeValues(Plot& plot) {
    const TickSettings& settings = m_radial->ticks();
    const double reach = std::max({0, settings.majorLength, settings.minorLength}) + kLabelGap;
    for (PlannedTick& tick : plot.radial.ticks) {
        const double pixels = std::round(plot.frame.pixels(tick.value));
        if (!tick.label || !(pixels <= m_radius + 0.5))
            continue;
        // At the rim, where the labels of the angles are, there may only be room below it.
        const QPointF end = plot.frame.at(0, pixels) - QPointF(reach, 0);
        QRectF box = movedInto(tick.label->boundsAt(end + kToBorders, Right), room());
        for (const double top : {box.top(), std::max(box.top(), plot.frame.centre.y() - m_radius + 1)}) {
            box.moveTop(top);
            if (textRoom().claim(box)) {
                plot.values.push_back({std::move(*tick.label), box});
                break;
            }
        }
    }
    if (colours().invisible(m_radial->labelBox().look().colour))
        plot.values.clear();
}

/// Right of the axis, as near to its middle as there is room beside the labels of marks.
void PolarChart::drawRadialTitle(Canvas& canvas, const PolarFrame& frame) {
    const TextBlock title = m_radial->title().block();
    if (title.empty())
        return;
    for (const double part : {0.5, 0.6, 0.4, 0.7, 0.3, 0.8}) {
        const QPointF beside = frame.at(0, m_radius * part) + QPointF(m_radial->titleGap(), 0);
        const QRectF box = movedInto(title.boundsAt(beside, Left), room());
        if (textRoom().claim(box)) {
            title.drawAt(canvas, box.topLeft(), TopLeft);
            return;
        }
    }
}

/// A ring at the value of each mark of the radial axis.
void PolarChart::drawMarks(Canvas& canvas, const PolarFrame& frame) const {
    for (const Mark* mark : m_radial->marks())
        if (isValue(mark->value()) && frame.radial.contains(mark->value()))
            canvas.strokePath(frame.ring(frame.pixels(mark->value())), mark->colour(), 1);
}

void PolarChart::placeTexts(Plot& plot) {
    const PolarFrame& frame = plot.frame;
    for (const Mark* mark : m_radial->marks()) { // right of the axis
        TextBlock label = mark->block();
        if (label.empty() || !isValue(mark->value()) || !frame.radial.contains(mark->value()))
            continue;
        const QPointF beside = frame.at(0, frame.pixels(mark->value())) + QPointF(kLabelGap, -1);
        const QRectF box = movedInto(label.boundsAt(beside, BottomLeft), room());
        if (textRoom().claim(box))
            plot.texts.push_back({std::move(label), box});
    }
    placeAngularLabels(plot);
    placeValues(plot);
}

void PolarChart::placeAngularLabels(Plot& plot) {
    const bool edged = !colours().invisible(m_edge);
    const double radius = m_radius + (edged ? m_edgeWidth / 2.0 : 0) + kLabelGap;
    const QPointF centre = plot.frame.centre + kToBorders;
    TextLook look = m_angular->labelBox().look();
    const bool wraps = look.wrapWidth == 0 && look.angle == 0 && !look.vertical;
    const double least = kLeastWrap * TextBlock(look, "0", fonts()).boxSize().height();
    std::vector<TextBlock> labels;
    std::vector<QRectF> boxes;
    for (const AngularTick& spoke : plot.angular.spokes) {
        const double angle = spoke.turn * 2 * std::numbers::pi;
        QSize most;
        if (wraps) {
            const double side = roundDirection(angle).x();
            const double rim = centre.x() + side * radius;
            const double beside = side < 0 ? rim - room().left() : room().right() - rim;
            most.setWidth(static_cast<int>(std::max(least, beside)));
        }
        TextBlock label = fittedText(look, spoke.label, fonts(), most);
        if (label.empty())
            continue;
        QRectF box = movedInto(boxOutside(centre, radius, angle, QSizeF(label.size())), room());
        box.moveTopLeft(QPointF(std::round(box.left()), std::round(box.top())));
        labels.push_back(std::move(label));
        boxes.push_back(box);
    }
    const std::vector<bool> kept = thinAround(boxes, kLabelAir);
    for (std::size_t i = 0; i < labels.size(); ++i)
        if (kept[i] && textRoom().claim(boxes[i]))
            plot.texts.push_back({std::move(labels[i]), boxes[i]});
}

} // namespace chartdraw
