#include "engine/pie/pie_chart.h"

#include "engine/data/no_value.h"
#include "engine/paint/picture.h"
#include "engine/pie/pie_painter.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace chartdraw {

namespace {

constexpr int kFarthest = 2 * kMaxSide; ///< pixels; what lies farther out shows in no picture

int limited(int pixels) {
    return std::clamp(pixels, -kFarthest, kFarthest);
}

} // namespace

void Sector::setColour(Colour fill, Colour edge, Colour joinLine) {
    m_fill = orDefault(fill, m_fill);
    m_edge = orDefault(edge, m_edge);
    m_joinLine = orDefault(joinLine, m_joinLine);
}

void Sector::setExplode(int distance) {
    m_explode = distance == -1 ? -1 : std::clamp(distance, 0, kFarthest);
}

PieChart::PieChart(int width, int height, Colour background, Colour edge, int effect)
    : Chart(Kind::PieChart, width, height, background, edge, effect), m_format(kDefaultFormat) {
    m_labelStyle = own<TextBox>(*this);
    setLabelStyle({});
}

void PieChart::setSize(QPoint centre, int radius, int inner) {
    m_sized = true;
    m_centre = {limited(centre.x()), limited(centre.y())};
    m_radius = limited(radius);
    m_inner = std::max(0, limited(inner));
}

void PieChart::setData(std::vector<double> values, std::vector<std::string> labels) {
    m_values = std::move(values);
    m_labels = std::move(labels);
    m_labels.resize(m_values.size());
}

void PieChart::setLabelFormat(std::string_view format) {
    m_format = Format(format.empty() ? kDefaultFormat : format);
}

TextBox* PieChart::setLabelStyle(const TextLook& look) {
    m_labelStyle->look() = look;
    m_labelStyle->look().setMargins(2, 2, 1, 1);
    return m_labelStyle;
}

void PieChart::setLabelLayout(bool inColumns, int distance, int top, int bottom) {
    m_inColumns = inColumns;
    m_labelDistance = limited(distance);
    m_labelTop = limited(top);
    m_labelBottom = limited(bottom);
}

void PieChart::setLineColour(Colour edge, Colour joinLine) {
    m_edge = orDefault(edge, m_edge);
    m_joinLine = orDefault(joinLine, m_joinLine);
}

void PieChart::setStartAngle(double degrees, bool clockwise) {
    m_startAngle = degrees;
    m_clockwise = clockwise;
}

void PieChart::set3D(int depth, double degrees, bool oblique) {
    m_view = View3D{std::clamp(depth, -1, kFarthest), degrees, oblique};
}

Sector* PieChart::sector(int index) {
    if (index < 0 || index >= std::ssize(m_values))
        return nullptr;
    Sector*& sector = m_sectors[static_cast<std::size_t>(index)];
    if (sector == nullptr)
        sector = own<Sector>(*this);
    return sector;
}

const Sector* PieChart::styleOf(std::size_t index) const {
    const auto found = m_sectors.find(index);
    return found != m_sectors.end() ? found->second : nullptr;
}

Colour PieChart::fillOf(std::size_t index) const {
    const Sector* style = styleOf(index);
    return orDefault(style != nullptr ? style->fill() : kDefaultColour,
                     seriesColour(static_cast<int>(index % kPaletteSize)));
}

bool PieChart::hasDataIn(const QRect& box) const {
    const PieBody shape = body();
    const QRectF face = shape.ellipse(shape.centre, shape.radius);
    return meets(box, face) || meets(box, face.translated(shape.depth));
}

PieBody PieChart::body() const {
    PieBody body;
    body.centre = m_sized ? QPointF(m_centre) : QPointF(width() / 2.0, height() / 2.0);
    body.radius = m_sized ? m_radius : std::min(width(), height()) * 0.35;
    body.inner = std::min<double>(m_inner, body.radius);
    if (!m_view)
        return body;
    // A body that lies aside may lie anywhere; a tilt goes from above to the side.
    const bool automatic = !std::isfinite(m_view->degrees) || m_view->degrees == -1;
    const double given =
        m_view->oblique ? std::fmod(m_view->degrees, 360.0) : std::clamp(m_view->degrees, 0.0, 90.0);
    const double angle = (automatic ? 45 : given) * std::numbers::pi / 180;
    const double depth = m_view->depth >= 0 ? m_view->depth : std::max(4.0, std::round(body.radius * 0.15));
    if (m_view->oblique) {
        body.depth = {std::cos(angle) * depth, std::sin(angle) * depth};
    } else {
        // Seen exactly from the side, the face would be nothing.
        body.flatness = std::max(0.1, std::cos(angle));
        body.depth = {0, depth};
    }
    return body;
}

QPointF PieChart::centreOf(const PieBody& body, std::size_t index, const SectorSpan& span) const {
    const Sector* style = styleOf(index);
    const int distance = style != nullptr ? style->explode() : 0;
    if (distance == 0)
        return body.centre;
    return body.at(body.centre, span.middle(), distance > 0 ? distance : std::max(5.0, body.radius * 0.12));
}

void PieChart::drawBody(Canvas& canvas) {
    const PieBody body = this->body();
    if (body.radius < 1 || m_values.empty())
        return;
    const std::vector<double> parts = shares(m_values);
    const std::vector<SectorSpan> spans = sectorSpans(parts, m_startAngle, m_clockwise);
    if (std::none_of(parts.begin(), parts.end(), [](double part) { return part > 0; })) {
        const SectorSpan whole{0, 2 * std::numbers::pi};
        canvas.strokePath(body.face(body.centre, whole), kLineColour, 1);
        return;
    }
    std::vector<SectorLook> sectors;
    sectors.reserve(spans.size());
    for (std::size_t i = 0; i < spans.size(); ++i) {
        const Sector* style = styleOf(i);
        const Colour edge = orDefault(style != nullptr ? style->edge() : kDefaultColour, m_edge);
        sectors.push_back({spans[i], centreOf(body, i, spans[i]), fillOf(i), edge});
    }
    if (!m_clockwise)
        std::reverse(sectors.begin(), sectors.end());
    drawPie(canvas, {body, m_view && m_view->oblique}, sectors);
    drawLabels(canvas, body, parts, spans);
}

} // namespace chartdraw
