#include "engine/xy/frame_painter.h"

#include "engine/xy/frame_layout.h"
#include "engine/xy/xy_chart.h"

#include <QRegion>
#include <algorithm>
#include <cmath>
#include <optional>

namespace chartdraw {

namespace {

constexpr double kFarValue = 1e307;

class FramePainter {
public:
    FramePainter(Canvas& canvas, XYChart& chart)
        : m_canvas(canvas), m_chart(chart), m_area(*chart.plotArea()), m_frame(layoutFrame(chart)) {}

    void draw() {
        drawWalls();
        m_area.drawBackground(m_canvas, m_frame.back(), backgroundLines());
        for (std::size_t i = 0; i < m_frame.axes.size(); ++i)
            drawZones(*m_chart.axes()[i].axis, m_frame.axes[i]);
        drawGrid(false);
        drawGrid(true);
        m_area.drawEdge(m_canvas, m_frame.back());
        drawWallEdges();
        for (std::size_t i = 0; i < m_frame.axes.size(); ++i)
            drawAxisLine(m_canvas, *m_chart.axes()[i].axis, m_frame.axes[i]);
        for (std::size_t i = 0; i < m_frame.layers.size(); ++i)
            m_chart.layers()[i]->draw(m_canvas, m_frame.layers[i]);
        for (std::size_t i = 0; i < m_frame.axes.size(); ++i)
            drawMarks(*m_chart.axes()[i].axis, m_frame.axes[i]);
        drawAxisTexts();
        for (std::size_t i = 0; i < m_frame.layers.size(); ++i)
            m_chart.layers()[i]->drawLabels(m_canvas, m_frame.layers[i]);
    }

private:
    const AxisLayout& firstX() const { return m_frame.axes[0]; }
    const AxisLayout& firstY() const { return m_frame.axes[1]; }

    static int zeroOf(const AxisLayout& axis) {
        return std::clamp(axis.map.wholePixel(axis.map.clamp(0)), axis.place.from, axis.place.to);
    }

    PlotArea::Lines backgroundLines() const {
        PlotArea::Lines lines;
        for (const AxisLayout::Tick& tick : firstY().ticks)
            if (tick.major)
                lines.bands.push_back(tick.pixel);
        lines.bandsUpright = !firstY().place.upright();
        lines.origin = QPoint(zeroOf(firstX()), zeroOf(firstY()));
        if (m_chart.swapped())
            lines.origin = QPoint(lines.origin.y(), lines.origin.x());
        return lines;
    }

    /// The four-sided wall between a line of the front and the same line at the back.
    void drawWall(QPoint from, QPoint to) {
        QPainterPath path;
        const QPoint back = m_frame.back();
        path.addPolygon(QPolygonF{QPointF(from), QPointF(to), QPointF(to + back), QPointF(from + back)});
        path.translate(0.5, 0.5);
        path.closeSubpath();
        m_canvas.fillPath(path, m_area.background());
        m_canvas.fillPath(path, kWallShade);
    }

    void drawWalls() {
        if (m_frame.depth > 0 && !m_canvas.colours().invisible(m_area.background())) {
            drawWall(m_frame.plot.topLeft(), m_frame.plot.bottomLeft());
            drawWall(m_frame.plot.bottomLeft(), m_frame.plot.bottomRight());
        }
    }

    void drawWallEdges() {
        if (m_frame.depth > 0)
            for (const QPoint corner :
                 {m_frame.plot.topLeft(), m_frame.plot.bottomLeft(), m_frame.plot.bottomRight()})
                m_canvas.line(corner, corner + m_frame.back(), m_area.edge(), 1);
    }

    /// The pixels across the plot area between two positions along an axis, moved to the back wall.
    QRect strip(const AxisPlace& place, int from, int to) const {
        const QRect& plot = m_frame.plot;
        const QRect flat = place.upright() ? QRect(QPoint(plot.left(), from), QPoint(plot.right(), to))
                                           : QRect(QPoint(from, plot.top()), QPoint(to, plot.bottom()));
        return flat.translated(m_frame.back());
    }

    void drawZones(const Axis& axis, const AxisLayout& layout) {
        const AxisPlace& place = layout.place;
        const auto pixel = [&](double value) {
            return std::clamp(layout.map.wholePixel(std::clamp(value, -kFarValue, kFarValue)), place.from,
                              place.to);
        };
        for (const Zone& zone : axis.zones()) {
            if (std::isnan(zone.start) || std::isnan(zone.end))
                continue;
            const auto [low, high] = std::minmax({pixel(zone.start), pixel(zone.end)});
            m_canvas.fillRect(strip(place, low, high - 1), orDefault(zone.colour, kTransparent));
        }
    }

    /// Lines along lying bars would run through their labels, so there they stand between the rows.
    std::optional<int> gridPixel(const AxisLayout& axis, const AxisLayout::Tick& tick) const {
        const Scale& scale = axis.map.scale();
        if (!m_chart.swapped() || &axis != &firstX() || scale.kind() != ScaleKind::Enumerated ||
            scale.lower() != -0.5)
            return tick.pixel;
        const double between = tick.value + 0.5;
        return between < scale.upper() ? std::optional(axis.map.wholePixel(between)) : std::nullopt;
    }

    void drawGrid(bool major) {
        for (const AxisLayout* axis : {&firstX(), &firstY()}) {
            const bool level = axis->place.upright(); // lines run across the axis
            const GridLook& look =
                m_area.grid(major ? (level ? PlotArea::MajorHorizontal : PlotArea::MajorVertical)
                                  : (level ? PlotArea::MinorHorizontal : PlotArea::MinorVertical));
            if (look.width < 1 || m_canvas.colours().invisible(look.colour))
                continue;
            for (const AxisLayout::Tick& tick : axis->ticks)
                if (const std::optional<int> pixel = gridPixel(*axis, tick); tick.major == major && pixel)
                    drawGridLine(axis->place, *pixel, look);
        }
    }

    /// What is left of a grid line of an axis that stands within the plot area, where it would strike its
    /// labels through.
    QRegion besideLabels(const QRect& line, const AxisPlace& place) const {
        QRegion rest(line);
        if (place.avoid)
            for (const AxisLayout& axis : m_frame.axes)
                for (const AxisLayout::Label& label : axis.labels)
                    if (label.box().intersects(line))
                        rest -= label.box().toAlignedRect().adjusted(-1, 0, 1, 0);
        return rest;
    }

    void drawGridLine(const AxisPlace& place, int pixel, const GridLook& look) {
        const QRect line = strip(place, pixel, pixel);
        for (const QRect& part : besideLabels(line, place))
            m_canvas.line(part.topLeft(), part.bottomRight(), look.colour, look.width);
        if (m_frame.depth > 0) { // on to the front along the side wall or the floor
            const QPoint end = place.upright() ? line.topLeft() : line.bottomLeft();
            m_canvas.line(end, end - m_frame.back(), look.colour, look.width);
        }
    }

    void drawMarks(const Axis& axis, const AxisLayout& layout) {
        const AxisPlace& place = layout.place;
        const QRect& plot = m_frame.plot;
        for (const Mark* mark : axis.marks()) {
            if (!layout.map.contains(mark->value()))
                continue;
            const int pixel = layout.map.wholePixel(mark->value());
            if (place.upright())
                m_canvas.line(QPoint(plot.left(), pixel), QPoint(plot.right(), pixel), mark->colour(), 1);
            else
                m_canvas.line(QPoint(pixel, plot.top()), QPoint(pixel, plot.bottom()), mark->colour(), 1);
        }
    }

    /// Along the axis inwards until there is room. Without it all numbers of the axis would be wrong, so it
    /// is there in any case.
    void drawFactor(AxisLayout::Label& factor, bool upright) {
        constexpr int kTries = 30;
        const QPointF anchor = factor.anchor;
        const QRectF box = factor.box();
        const QPointF inwards = QRectF(m_frame.plot).center() - box.center();
        const QPointF step = upright ? QPointF(0, std::copysign(box.height() / 2, inwards.y()))
                                     : QPointF(std::copysign(box.width() / 2, inwards.x()), 0);
        TextRoom& room = m_chart.textRoom();
        const QPointF across = upright ? QPointF(std::copysign(box.width() / 2, inwards.x()), 0)
                                       : QPointF(0, std::copysign(box.height() / 2, inwards.y()));
        for (int tries = 0; tries < kTries * kTries && !room.hasRoom(factor.outline()); ++tries)
            factor.anchor = anchor + step * (tries % kTries) + across * (tries / kTries);
        if (!room.hasRoom(factor.outline()))
            factor.anchor = anchor;
        room.reserve(factor.outline());
        factor.block.drawAt(m_canvas, factor.anchor, factor.alignment);
    }

    /// A label that touches another text moves a little to the middle of its axis, before it goes.
    void drawLabel(AxisLayout::Label& label, bool upright) {
        TextRoom& room = m_chart.textRoom();
        const QRectF box = label.box();
        const QPointF inwards = QRectF(m_frame.plot).center() - box.center();
        const QPointF step =
            upright ? QPointF(0, std::copysign(1, inwards.y())) : QPointF(std::copysign(1, inwards.x()), 0);
        const QPointF anchor = label.anchor;
        for (int by = 1; by <= box.height() / 4 && !label.pivot && !room.hasRoom(label.outline()); ++by)
            label.anchor = anchor + step * by;
        label.draw(m_canvas, room);
    }

    /// What is missed most first: where texts of the axes lie over one another, the later ones go.
    void drawAxisTexts() {
        TextRoom& room = m_chart.textRoom();
        for (AxisLayout& axis : m_frame.axes)
            if (axis.factor)
                drawFactor(*axis.factor, axis.place.upright());
        for (const AxisLayout& axis : m_frame.axes)
            if (axis.title)
                axis.title->draw(m_canvas, room);
        for (const AxisLayout& axis : m_frame.axes)
            for (const AxisLayout::Label& mark : axis.marks)
                mark.draw(m_canvas, room);
        for (AxisLayout& axis : m_frame.axes)
            for (AxisLayout::Label& label : axis.labels)
                drawLabel(label, axis.place.upright());
    }

    static constexpr Colour kWallShade = 0xe0000000; // a breath of black over the background

    Canvas& m_canvas;
    XYChart& m_chart;
    const PlotArea& m_area;
    FrameLayout m_frame;
};

} // namespace

void drawFrame(Canvas& canvas, XYChart& chart) {
    FramePainter(canvas, chart).draw();
}

} // namespace chartdraw
