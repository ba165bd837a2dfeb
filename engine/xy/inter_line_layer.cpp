#include "engine/xy/inter_line_layer.h"

#include "engine/xy/curves.h"
#include "engine/xy/line_layer.h"
#include "engine/xy/row_room.h"
#include "engine/xy/xy_chart.h"

#include <algorithm>
#include <cmath>

namespace chartdraw {

namespace {

using Run = std::vector<QPointF>;

std::vector<Run> ascendingRuns(std::span<const QPointF> points) {
    std::vector<Run> runs;
    const auto byX = [](const QPointF& a, const QPointF& b) { return a.x() < b.x(); };
    forEachRun(
        points,
        [&](std::span<const QPointF> run) {
            Run& copy = runs.emplace_back(run.begin(), run.end());
            if (copy.front().x() > copy.back().x())
                std::reverse(copy.begin(), copy.end());
            std::stable_sort(copy.begin(), copy.end(), byX);
        });
    std::stable_sort(runs.begin(), runs.end(),
                     [&](const Run& a, const Run& b) { return byX(a.front(), b.front()); });
    return runs;
}

/// Goes along a run from left to right.
class Walker {
public:
    explicit Walker(const Run& run) : m_run(run) {}
    /// Moves to the last segment that begins before `x`, so that yAt() is the height just right of it.
    void enter(double x) {
        while (m_at + 2 < m_run.size() && m_run[m_at + 1].x() <= x)
            ++m_at;
    }
    double yAt(double x) const {
        if (m_run.size() == 1)
            return m_run.front().y();
        const QPointF from = m_run[m_at], to = m_run[m_at + 1];
        return to.x() > from.x() ? from.y() + (to.y() - from.y()) * (x - from.x()) / (to.x() - from.x())
                                 : to.y();
    }

private:
    const Run& m_run;
    std::size_t m_at = 0;
};

/// Collects the piece that is being walked along.
class PieceMaker {
public:
    PieceMaker(std::vector<BetweenPiece>& pieces, bool up) : m_pieces(pieces), m_up(up) {}

    /// Between x0 and x1 both lines are straight: from a0 to a1 and from b0 to b1.
    void add(double x0, double x1, double a0, double a1, double b0, double b1) {
        const double left = b0 - a0, right = b1 - a1; // above 0: the first line is nearer to the top
        if ((left > 0 && right < 0) || (left < 0 && right > 0)) {
            const double x = x0 + (x1 - x0) * left / (left - right);
            const double y = a0 + (a1 - a0) * left / (left - right);
            add(x0, x, a0, y, b0, y);
            add(x, x1, y, a1, y, b1);
            return;
        }
        if (left == 0 && right == 0) {
            finish();
            return;
        }
        const bool above = ((left != 0 ? left : right) > 0) == m_up;
        if (!m_first.empty() && above != m_above)
            finish();
        m_above = above;
        extend(m_first, {x0, a0}, {x1, a1});
        extend(m_second, {x0, b0}, {x1, b1});
    }

    void finish() {
        if (!m_first.empty()) {
            BetweenPiece piece{m_above, m_first};
            std::reverse(m_second.begin(), m_second.end());
            piece.outline += m_second;
            m_pieces.push_back(std::move(piece));
        }
        m_first.clear();
        m_second.clear();
    }

private:
    static void extend(QPolygonF& line, QPointF from, QPointF to) {
        if (line.empty() || line.back() != from)
            line << from;
        line << to;
    }

    std::vector<BetweenPiece>& m_pieces;
    bool m_up, m_above = false;
    QPolygonF m_first, m_second;
};

void walk(const Run& first, const Run& second, PieceMaker& maker) {
    const double from = std::max(first.front().x(), second.front().x());
    const double to = std::min(first.back().x(), second.back().x());
    std::vector<double> stops;
    for (const Run* run : {&first, &second}) {
        for (const QPointF& point : *run)
            if (point.x() >= from && point.x() <= to)
                stops.push_back(point.x());
    }
    stops.push_back(from);
    stops.push_back(to);
    std::sort(stops.begin(), stops.end());
    stops.erase(std::unique(stops.begin(), stops.end()), stops.end());
    Walker a(first), b(second);
    for (std::size_t i = 0; i + 1 < stops.size(); ++i) {
        a.enter(stops[i]);
        b.enter(stops[i]);
        maker.add(stops[i], stops[i + 1], a.yAt(stops[i]), a.yAt(stops[i + 1]), b.yAt(stops[i]),
                  b.yAt(stops[i + 1]));
    }
    maker.finish();
}

const SeriesLine* asSeries(const Line* line) {
    return dynamic_cast<const SeriesLine*>(line);
}
const MarkLine* asMark(const Line* line) {
    return dynamic_cast<const MarkLine*>(line);
}

} // namespace

std::vector<BetweenPiece> piecesBetween(std::span<const QPointF> first, std::span<const QPointF> second,
                                        bool up) {
    std::vector<BetweenPiece> pieces;
    PieceMaker maker(pieces, up);
    const std::vector<Run> as = ascendingRuns(first), bs = ascendingRuns(second);
    for (std::size_t a = 0, b = 0; a < as.size() && b < bs.size();) {
        if (as[a].front().x() < bs[b].back().x() && bs[b].front().x() < as[a].back().x())
            walk(as[a], bs[b], maker);
        ++(as[a].back().x() < bs[b].back().x() ? a : b);
    }
    return pieces;
}

InterLineLayer* InterLineLayer::add(XYChart& chart, const Line* first, const Line* second, Colour above,
                                    Colour below) {
    const auto fits = [&](const Line* line) {
        const MarkLine* mark = asMark(line);
        return line != nullptr && &line->chart() == &chart &&
               (asSeries(line) != nullptr ||
                (mark != nullptr && mark->mark().axis().direction() == Direction::Y));
    };
    if (!fits(first) || !fits(second) || (asSeries(first) == nullptr && asSeries(second) == nullptr))
        return nullptr;
    return chart.addLayer<InterLineLayer>(*first, *second, above, orDefault(below, above));
}

InterLineLayer::InterLineLayer(XYChart& chart, const Line& first, const Line& second, Colour above,
                               Colour below)
    : Layer(Kind::InterLineLayer, chart), m_first(first), m_second(second), m_above(above), m_below(below) {
    // The positions of a mark are those of its axis.
    for (const Line* line : {&second, &first}) {
        if (const MarkLine* mark = asMark(line)) {
            for (const ChartAxis& own : chart.axes())
                if (own.axis == &mark->mark().axis())
                    setYAxis(own.axis);
        }
    }
}

std::vector<QPointF> InterLineLayer::pointsOf(const Line& line, const PlotFrame& frame) const {
    if (const SeriesLine* series = asSeries(&line)) {
        // The layer was added, and so drawn, before this one. Its own frame may have another axis.
        const PlotFrame& own = series->layer().frame();
        std::vector<QPointF> points = series->layer().curve(series->set(), own);
        const QPointF shift = own.at(0, 0);
        for (QPointF& point : points)
            point += frame.swapped ? QPointF(shift.y(), shift.x()) : shift;
        return points;
    }
    const double y = std::floor(frame.y.pixel(asMark(&line)->mark().value()) + 0.5);
    const QPointF shift = frame.at(0, 0); // a mark stands at the front of the chart, where it is drawn
    const QPointF moved = frame.swapped ? QPointF(shift.y(), shift.x()) : shift;
    const double from = std::min(frame.x.lowerPixel(), frame.x.upperPixel());
    const double to = std::max(frame.x.lowerPixel(), frame.x.upperPixel());
    return {QPointF(from, y) + moved, QPointF(to, y) + moved};
}

void InterLineLayer::draw(Canvas& canvas, const PlotFrame& frame) {
    const bool up = frame.y.upperPixel() < frame.y.lowerPixel();
    const ClipScope clip(canvas, frame.inner());
    for (const BetweenPiece& piece : piecesBetween(pointsOf(m_first, frame), pointsOf(m_second, frame), up)) {
        QPainterPath path;
        QPolygonF outline;
        for (const QPointF& point : piece.outline)
            outline << (frame.swapped ? QPointF(point.y(), point.x()) : point) + QPointF(0.5, 0.5);
        path.addPolygon(outline);
        path.closeSubpath();
        canvas.fillPath(path, piece.firstAbove ? m_above : m_below);
    }
}

} // namespace chartdraw
