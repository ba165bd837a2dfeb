#include "engine/pie/pie_painter.h"

#include <algorithm>
#include <numbers>

namespace chartdraw {

namespace {

constexpr Colour kFaceEdge = 0x00ffffff;
constexpr double kNarrow = 0.08; ///< radians
constexpr double kSliver = 0.1;  ///< pixels of the rim
// Two smoothed edges side by side let the background shine through, so what is drawn earlier reaches under
// its neighbours: faces by an angle, which holds in the centre as well, walls by pixels.
constexpr double kFaceOverlap = std::numbers::pi / 8;
constexpr double kWallOverlap = 0.75;

class PiePainter {
public:
    PiePainter(Canvas& canvas, const PieLook& pie, std::span<const SectorLook> sectors)
        : m_canvas(canvas), m_pie(pie), m_sectors(sectors), m_extent(pie.body.bounds(pie.body.centre)),
          m_wallDrawn(sectors.size()) {}

    void walls() {
        std::vector<SectorSpan> spans;
        for (const SectorLook& sector : m_sectors)
            spans.push_back(sector.span);
        for (const WallStep& step : wallOrder(spans, viewerAngle(m_pie.body)))
            if (step.front)
                outerWall(step.sector);
            else
                backWalls(step.sector);
    }

    void faces() {
        PieBody under = m_pie.body;
        under.radius -= 1; // what reaches under others must not colour their rims
        under.inner += under.inner > 0 ? 1 : 0;
        for (std::size_t i = 0; i < m_sectors.size(); ++i) {
            const SectorLook& sector = m_sectors[i];
            const double ahead = joinedAhead(i);
            const double behind = i == 0 ? joinedBehind() : 0;
            if (ahead + behind > 0 && under.radius > under.inner) {
                const SectorSpan reach{sector.span.start - behind, behind + sector.span.span + ahead};
                m_canvas.fillPath(under.face(sector.centre, reach), sector.fill, &m_extent);
            }
            m_canvas.fillPath(m_pie.body.face(sector.centre, sector.span), sector.fill, &m_extent);
        }
        for (const SectorLook& sector : m_sectors) {
            // Light lines around narrow sectors would leave little of their colours.
            const bool narrow = sector.span.span < kNarrow;
            m_canvas.strokePath(m_pie.body.face(sector.centre, sector.span),
                                orDefault(sector.edge, narrow ? kTransparent : kFaceEdge), 1);
        }
    }

private:
    bool opaque(std::size_t i) const { return m_canvas.colours().solid(m_sectors[i].fill).alpha() == 255; }

    std::size_t next(std::size_t i) const { return (i + 1) % m_sectors.size(); }
    std::size_t before(std::size_t i) const { return (i + m_sectors.size() - 1) % m_sectors.size(); }

    bool joined(std::size_t a, std::size_t b) const {
        return a != b && m_sectors[a].centre == m_sectors[b].centre && opaque(a) && opaque(b);
    }

    /// The angle that sector `i` may reach under those after it.
    double joinedAhead(std::size_t i) const {
        double angle = 0;
        for (; i + 1 < m_sectors.size() && angle < kFaceOverlap && joined(i, i + 1); ++i)
            angle += m_sectors[i + 1].span.span;
        return std::min(angle, kFaceOverlap);
    }

    /// The angle that the first sector may reach under the last ones: all around, so that the centre is
    /// closed.
    double joinedBehind() const {
        double angle = 0;
        for (std::size_t i = m_sectors.size() - 1; i > 0 && joined(i, next(i)); --i)
            angle += m_sectors[i].span.span;
        return angle;
    }

    void outerWall(std::size_t i) {
        // Reaching only under walls that are still to come.
        const double more = kWallOverlap / m_pie.body.radius;
        SectorSpan span = m_sectors[i].span;
        if (joined(i, before(i)) && !m_wallDrawn[before(i)]) {
            span.start -= more;
            span.span += more;
        }
        if (joined(i, next(i)) && !m_wallDrawn[next(i)])
            span.span += more;
        m_wallDrawn[i] = true;
        const QRectF rim = m_pie.body.bounds(m_sectors[i].centre);
        QLinearGradient shade(rim.left(), 0, rim.right(), 0);
        shade.setStops({{0, dark(i, 0.34)}, {0.3, dark(i, 0.14)}, {1, dark(i, 0.5)}});
        wall(i, m_pie.body.roundWall(m_sectors[i].centre, span, true), shade);
    }

    void backWalls(std::size_t i) {
        const SectorLook& sector = m_sectors[i];
        const QRectF hole = m_pie.body.ellipse(sector.centre, m_pie.body.inner);
        QLinearGradient shade(hole.left(), 0, hole.right(), 0);
        shade.setStops({{0, dark(i, 0.5)}, {0.7, dark(i, 0.22)}, {1, dark(i, 0.34)}});
        wall(i, m_pie.body.roundWall(sector.centre, sector.span, false), shade);
        for (const bool atEnd : {false, true}) {
            // Hidden where the next sector stands right beside.
            if (m_sectors.size() > 1 && joined(i, atEnd ? next(i) : before(i)))
                continue;
            const double outwards = (atEnd ? sector.span.end() : sector.span.start) +
                                    (atEnd ? std::numbers::pi : -std::numbers::pi) / 2;
            wall(i, m_pie.body.cutWall(sector.centre, sector.span, atEnd),
                 dark(i, 0.3 + 0.14 * direction(outwards).x()));
        }
    }

    /// Black that darkens the fill of a sector, no more visible than the fill itself.
    QColor dark(std::size_t i, double amount) const {
        const double alpha = m_pie.flatShade ? 0.4 : amount;
        return QColor::fromRgbF(
            0, 0, 0, static_cast<float>(alpha * m_canvas.colours().solid(m_sectors[i].fill).alphaF()));
    }

    void wall(std::size_t i, const QPainterPath& path, const QBrush& shade) {
        if (path.isEmpty())
            return;
        const SectorLook& sector = m_sectors[i];
        m_canvas.fillPath(path, sector.fill, &m_extent);
        m_canvas.painter().fillPath(path, shade);
        m_canvas.strokePath(path, orDefault(sector.edge, kTransparent), 1);
    }

    Canvas& m_canvas;
    const PieLook& m_pie;
    std::span<const SectorLook> m_sectors;
    QRectF m_extent;
    std::vector<bool> m_wallDrawn;
};

} // namespace

void drawPie(Canvas& canvas, const PieLook& pie, std::span<const SectorLook> sectors) {
    std::vector<SectorLook> visible;
    for (const SectorLook& sector : sectors) {
        if (sector.span.span <= 0)
            continue;
        // Slivers that no pixel can show go together, so that thousands of them cost no more than hundreds.
        SectorLook* last = visible.empty() ? nullptr : &visible.back();
        if (last != nullptr && last->span.span * pie.body.radius < kSliver && last->centre == sector.centre)
            last->span.span += sector.span.span;
        else
            visible.push_back(sector);
    }
    if (visible.empty())
        return;
    PiePainter painter(canvas, pie, visible);
    if (pie.body.solid())
        painter.walls();
    painter.faces();
}

} // namespace chartdraw
