#pragma once
// The polar chart: a round plot area with rings of a radial axis and spokes of an angular one, and layers of
// lines and areas around its centre.

#include "engine/axis/axis_plan.h"
#include "engine/chart/chart.h"
#include "engine/polar/angular_axis.h"
#include "engine/polar/polar_layer.h"

namespace chartdraw {

class PolarChart : public Chart {
public:
    static constexpr Kind kKind = Kind::PolarChart;

    PolarChart(int width, int height, Colour background, Colour edge, int effect);

    void setPlotArea(QPoint centre, int radius, Colour background, Colour edge, int edgeWidth);
    /// -1 is the background.
    void setAlternatingColours(Colour first, Colour second, bool rings);
    /// Of the rings and of the spokes; -1 keeps a colour.
    void setGrid(Colour rings, int ringWidth, Colour spokes, int spokeWidth);
    void setGridStyle(bool polygon, bool onTop);
    AngularAxis* angularAxis() const { return m_angular; }
    Axis* radialAxis() const { return m_radial; }
    /// -1 is the next series colour.
    PolarLayer* addLayer(Kind kind, std::vector<double> data, Colour colour, std::string name);

    void collectKeys(std::vector<LegendKey>& keys) const override;
    bool hasDataIn(const QRect& box) const override;

protected:
    void drawBody(Canvas& canvas) override;

private:
    struct PlacedText {
        TextBlock text;
        QRectF box;
    };
    struct Plot {
        AngularTicks angular;
        AxisPlan radial;
        PolarFrame frame;
        std::vector<double> rings;        ///< pixels of the grid's rings, rising
        std::vector<PlacedText> texts{};  ///< of marks and spokes
        std::vector<PlacedText> values{}; ///< of the radial axis; the grid has gaps for them
    };

    Plot plot() const;
    QRectF room() const;

    void drawArea(Canvas& canvas, const Plot& plot) const;
    void drawAlternating(Canvas& canvas, const Plot& plot) const;
    void drawZones(Canvas& canvas, const PolarFrame& frame) const;
    void drawGrid(Canvas& canvas, const Plot& plot) const;
    void drawRim(Canvas& canvas, const Plot& plot) const;
    template <class Draw>
    void leaveValues(Canvas& canvas, const Plot& plot, const Draw& draw) const;
    void drawGridLines(Canvas& canvas, const Plot& plot) const;
    void drawRadialAxis(Canvas& canvas, const Plot& plot) const;
    void drawRadialTitle(Canvas& canvas, const PolarFrame& frame);
    void drawMarks(Canvas& canvas, const PolarFrame& frame) const;
    /// Looks for room for the texts of a plot, those that are missed most first.
    void placeTexts(Plot& plot);
    void placeAngularLabels(Plot& plot);
    void placeValues(Plot& plot);

    QPoint m_centre;
    int m_radius;
    Colour m_background = kTransparent, m_edge = kTransparent;
    int m_edgeWidth = 1;
    Colour m_first = kDefaultColour, m_second = kDefaultColour;
    bool m_alternateRings = true;
    Colour m_ringColour = 0xcccccc, m_spokeColour = 0xcccccc;
    int m_ringWidth = 1, m_spokeWidth = 1;
    bool m_polygon = false, m_gridOnTop = true;
    AngularAxis* m_angular;
    Axis* m_radial;
    std::vector<PolarLayer*> m_layers;
};

} // namespace chartdraw
