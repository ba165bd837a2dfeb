#pragma once
// The pie chart: one sector a value, flat or as a body, whole or with a hole, and the label of each sector.

#include "engine/chart/chart.h"
#include "engine/pie/label_layout.h"
#include "engine/pie/sector_geometry.h"
#include "engine/scale/format.h"

#include <map>
#include <optional>

namespace chartdraw {

/// What is particular to one sector. Made when it is first asked for.
class Sector : public Part {
public:
    static constexpr Kind kKind = Kind::Sector;

    explicit Sector(Chart& chart) : Part(Kind::Sector, chart) {}

    /// kDefaultColour keeps what was there.
    void setColour(Colour fill, Colour edge, Colour joinLine);
    /// Pixels outwards; -1 automatic.
    void setExplode(int distance);

    Colour fill() const { return m_fill; }
    Colour edge() const { return m_edge; }
    Colour joinLine() const { return m_joinLine; }
    int explode() const { return m_explode; }

private:
    Colour m_fill = kDefaultColour;
    Colour m_edge = kDefaultColour;
    Colour m_joinLine = kDefaultColour;
    int m_explode = 0;
};

class PieChart : public Chart {
public:
    static constexpr Kind kKind = Kind::PieChart;
    static constexpr const char* kDefaultFormat = "{label}\n{percent|2}%";

    PieChart(int width, int height, Colour background, Colour edge, int effect);

    /// A full pie if `inner` is 0. A radius below 1 draws none.
    void setSize(QPoint centre, int radius, int inner);
    using Chart::setSize;
    void setData(std::vector<double> values, std::vector<std::string> labels);
    void setLabelFormat(std::string_view format);
    TextBox* setLabelStyle(const TextLook& look);
    /// `distance` -1 automatic; top, bottom: rows of the picture, -1 its own.
    void setLabelLayout(bool inColumns, int distance, int top, int bottom);
    void setLineColour(Colour edge, Colour joinLine);
    void setStartAngle(double degrees, bool clockwise);
    /// Depth in pixels, below 0 automatic. Degrees of view: 0 or less automatic. Oblique: the upper face
    /// stays round and the depth lies aside of it; else the face is tilted.
    void set3D(int depth, double degrees, bool oblique);
    /// Null where there is no value of that index.
    Sector* sector(int index);

    void collectKeys(std::vector<LegendKey>& keys) const override;
    bool hasDataIn(const QRect& box) const override;

protected:
    void drawBody(Canvas& canvas) override;

private:
    struct Label;
    struct View3D {
        int depth;
        double degrees;
        bool oblique;
    };

    const Sector* styleOf(std::size_t index) const;
    Colour fillOf(std::size_t index) const;
    PieBody body() const;
    QPointF centreOf(const PieBody& body, std::size_t index, const SectorSpan& span) const;
    double labelDistance(const PieBody& body) const;
    /// Pixels that a line of a label may have beside the pie.
    int widthBeside(const PieBody& body, QPointF about, double angle, const LabelRooms& rooms) const;
    void drawLabels(Canvas& canvas, const PieBody& body, std::span<const double> shares,
                    std::span<const SectorSpan> spans);
    std::vector<Label> makeLabels(const PieBody& body, std::span<const double> shares,
                                  std::span<const SectorSpan> spans, const LabelRooms& rooms) const;
    std::shared_ptr<const FieldSource> fieldsOf(std::size_t index, double share) const;

    bool m_sized = false; ///< else the pie fits itself into the picture
    QPoint m_centre;
    int m_radius = 0, m_inner = 0;
    std::vector<double> m_values;
    std::vector<std::string> m_labels;
    std::map<std::size_t, Sector*> m_sectors;
    Format m_format;
    TextBox* m_labelStyle;
    bool m_inColumns = false;
    int m_labelDistance = -1, m_labelTop = -1, m_labelBottom = -1;
    Colour m_edge = kDefaultColour;
    Colour m_joinLine = kLineColour;
    double m_startAngle = 0;
    bool m_clockwise = true;
    std::optional<View3D> m_view;
};

} // namespace chartdraw
