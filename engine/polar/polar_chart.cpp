#include "engine/polar/polar_chart.h"

#include "engine/scale/nice_numbers.h"

#include "engine/paint/picture.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace chartdraw {

namespace {

constexpr int kWidestLine = 1000;     ///< pixels
constexpr double kZeroAffinity = 0.8; ///< radii are read from the centre

int limited(int pixels) {
    return std::clamp(pixels, -2 * kMaxSide, 2 * kMaxSide);
}

} // namespace

PolarChart::PolarChart(int width, int height, Colour background, Colour edge, int effect)
    : Chart(Kind::PolarChart, width, height, background, edge, effect),
      m_centre(limited(width) / 2, limited(height) / 2),
      m_radius(std::max(0, std::min(limited(width), limited(height))) * 2 / 5),
      m_angular(own<AngularAxis>(*this)), m_radial(own<Axis>(*this, Direction::Y)) {
    // The rim is no border that data should keep away from: the radius is used to the full.
    m_radial->setAutoScale(0, 0, kZeroAffinity);
}

void PolarChart::setPlotArea(QPoint centre, int radius, Colour background, Colour edge, int edgeWidth) {
    m_centre = {limited(centre.x()), limited(centre.y())};
    m_radius = std::max(0, limited(radius));
    m_background = orDefault(background, kTransparent);
    m_edge = orDefault(edge, kTransparent);
    m_edgeWidth = std::clamp(edgeWidth, 0, kWidestLine);
}

void PolarChart::setAlternatingColours(Colour first, Colour second, bool rings) {
    m_first = first;
    m_second = second;
    m_alternateRings = rings;
}

void PolarChart::setGrid(Colour rings, int ringWidth, Colour spokes, int spokeWidth) {
    m_ringColour = orDefault(rings, m_ringColour);
    m_ringWidth = std::clamp(ringWidth, 0, kWidestLine);
    m_spokeColour = orDefault(spokes, m_spokeColour);
    m_spokeWidth = std::clamp(spokeWidth, 0, kWidestLine);
}

void PolarChart::setGridStyle(bool polygon, bool onTop) {
    m_polygon = polygon;
    m_gridOnTop = onTop;
}

PolarLayer* PolarChart::addLayer(Kind kind, std::vector<double> data, Colour colour, std::string name) {
    const Colour own = orDefault(colour, seriesColour(static_cast<int>(m_layers.size())));
    const bool line = isKind(kind, Kind::PolarLineLayer);
    PolarLayer* layer = line ? this->own<PolarLineLayer>(kind, *this, std::move(data), own, std::move(name))
                             : this->own<PolarLayer>(kind, *this, std::move(data), own, std::move(name));
    m_layers.push_back(layer);
    return layer;
}

bool PolarChart::hasDataIn(const QRect& box) const {
    return meets(box, QRectF(m_centre - QPoint(m_radius, m_radius), QSizeF(2.0 * m_radius, 2.0 * m_radius)));
}

void PolarChart::collectKeys(std::vector<LegendKey>& keys) const {
    for (const PolarLayer* layer : m_layers)
        layer->collectKeys(keys);
}

PolarChart::Plot PolarChart::plot() const {
    Plot plot;
    plot.angular = m_angular->ticks(2 * std::numbers::pi * m_radius);
    PolarFrame& frame = plot.frame;
    frame.centre = m_centre;
    frame.radius = m_radius;
    frame.polygon = m_polygon;
    for (const AngularTick& spoke : plot.angular.spokes)
        frame.spokes.push_back(spoke.turn);
    std::sort(frame.spokes.begin(), frame.spokes.end());

    const ScaleSettings& scale = m_radial->scale();
    // A margin never takes all of the radius.
    const double inner = std::min(scale.marginBottom, m_radius / 3);
    const double outer = m_radius - std::min(scale.marginTop, m_radius / 3);
    AxisRequest request;
    for (const PolarLayer* layer : m_layers) {
        request.data.add(layer->range());
        request.includeZero = request.includeZero || layer->isArea();
    }
    request.rowCount = scale.type == ScaleSettings::Type::Labels ? static_cast<int>(scale.labels.size()) : 0;
    request.length = outer - inner;
    request.upright = true;
    plot.radial = planAxis(*m_radial, request);
    frame.radial = scale.reverse ? plot.radial.map(outer, inner) : plot.radial.map(inner, outer);
    const std::vector<PlannedTick>& ticks = plot.radial.ticks;
    if (plot.radial.scale.kind() == ScaleKind::Linear && ticks.size() > 1 && ticks[1].major)
        frame.decimals = stepDecimals(ticks[1].value - ticks[0].value) + 2;
    for (const PlannedTick& tick : ticks) {
        const double pixels = frame.pixels(tick.value);
        if (tick.major && pixels >= 1 && pixels <= m_radius + 0.5)
            plot.rings.push_back(pixels);
    }
    std::sort(plot.rings.begin(), plot.rings.end());
    return plot;
}

QRectF PolarChart::room() const {
    constexpr double kMargin = 2; // between labels and the border of the picture
    return QRectF(0, 0, width(), height()).adjusted(kMargin, kMargin, -kMargin, -kMargin);
}

void PolarChart::drawBody(Canvas& canvas) {
    if (m_radius <= 0)
        return;
    Plot plot = this->plot();
    placeTexts(plot);
    drawArea(canvas, plot);
    drawZones(canvas, plot.frame);
    if (!m_gridOnTop)
        drawGrid(canvas, plot);
    for (const PolarLayer* layer : m_layers)
        layer->draw(canvas, plot.frame, *m_angular);
    if (m_gridOnTop)
        drawGrid(canvas, plot);
    drawRim(canvas, plot);
    drawMarks(canvas, plot.frame);
    drawRadialAxis(canvas, plot);
    for (const auto* texts : {&plot.texts, &plot.values})
        for (const PlacedText& text : *texts)
            text.text.drawAt(canvas, text.box.topLeft(), TopLeft);
    drawRadialTitle(canvas, plot.frame);
    for (const PolarLayer* layer : m_layers)
        layer->drawLabels(canvas, plot.frame, *m_angular, room(), textRoom());
}

} // namespace chartdraw
