#pragma once
// A layer of a polar chart: one series of radii at angles, as a line or an area, straight or smooth.

#include "engine/chart/data_symbol.h"
#include "engine/chart/draw_obj.h"
#include "engine/chart/legend.h"
#include "engine/polar/angular_axis.h"
#include "engine/polar/polar_frame.h"
#include "engine/scale/auto_scale.h"
#include "engine/scale/format.h"

#include <optional>
#include <string>
#include <vector>

namespace chartdraw {

class TextRoom;

class PolarLayer : public Part {
public:
    static constexpr Kind kKind = Kind::PolarLayer;

    /// `kind` is one of the four kinds of polar layers. `colour` is not -1.
    PolarLayer(Kind kind, Chart& chart, std::vector<double> data, Colour colour, std::string name);

    void setAngles(std::vector<double> angles);
    TextBox* setDataLabelStyle(const TextLook& look);
    void setDataLabelFormat(std::string_view format);
    void setSymbol(const DataSymbol& symbol);
    void setLineWidth(int width);
    void setSymbolScale(std::vector<double> sizes);

    DataRange range() const;
    bool isArea() const;

    void draw(Canvas& canvas, const PolarFrame& frame, const AngularAxis& axis) const;
    /// Labels stand outwards of their points, or where else beside them there is room: inside `room` and off
    /// other texts. One that has none is left out.
    void drawLabels(Canvas& canvas, const PolarFrame& frame, const AngularAxis& axis, const QRectF& room,
                    TextRoom& texts) const;
    void collectKeys(std::vector<LegendKey>& keys) const;

protected:
    bool m_closed = true; ///< the last point is joined to the first

private:
    /// A row with an angle and a radius.
    struct Point {
        std::size_t row;
        double turn, pixels;
        QPointF at;
    };

    bool isSmooth() const;
    /// One entry a row; none for gaps.
    std::vector<std::optional<Point>> points(const PolarFrame& frame, const AngularAxis& axis) const;
    std::vector<double> anglesOf(const AngularAxis& axis) const;
    double symbolSize(std::size_t row) const;
    void drawArea(Canvas& canvas, const std::vector<std::optional<Point>>& points) const;
    void drawLine(Canvas& canvas, const std::vector<std::optional<Point>>& points) const;
    void drawSymbols(Canvas& canvas, const PolarFrame& frame,
                     const std::vector<std::optional<Point>>& points) const;

    std::vector<double> m_data;
    Colour m_colour;
    std::string m_name;
    std::vector<double> m_angles; ///< none: even steps
    TextBox* m_labelStyle = nullptr;
    Format m_labelFormat;
    DataSymbol m_symbol;
    std::vector<double> m_symbolSizes;
    int m_lineWidth = 1;
};

class PolarLineLayer : public PolarLayer {
public:
    static constexpr Kind kKind = Kind::PolarLineLayer;
    using PolarLayer::PolarLayer;

    void setCloseLoop(bool close);
};

} // namespace chartdraw
