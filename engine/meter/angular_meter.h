#pragma once
// A meter with a round scale. Its ticks stand inside the scale's circle, its labels outside, pointers turn
// about the middle.

#include "engine/meter/base_meter.h"

#include <QRectF>

namespace chartdraw {

class AngularMeter : public BaseMeter {
public:
    static constexpr Kind kKind = Kind::AngularMeter;

    AngularMeter(int width, int height, Colour background, Colour edge, int effect);

    /// Angles in degrees clockwise from the top; the scale runs from start to end, anticlockwise where the
    /// end is less. Equal angles and more than a turn are a full turn; what is no number is -90 or 90.
    void setMeter(QPoint centre, int radius, double startAngle, double endAngle);
    /// Between two radii in either order.
    void addRing(int startRadius, int endRadius, Colour fill, Colour edge);
    void addZone(double start, double end, Colour fill, Colour edge);

protected:
    void drawBody(Canvas& canvas) override;
    QPainterPath outlineOf(const MeterPointer& pointer, double fraction) const override;

private:
    struct Ring {
        int inner, outer;
        Colour fill, edge;
    };
    struct Zone {
        double start, end;
        Colour fill, edge;
    };

    /// Degrees clockwise from the top at a fraction of the scale.
    double angleAt(double fraction) const { return m_start + (m_end - m_start) * fraction; }
    QRectF circle(double radius) const;
    double majorLength() const;

    void drawRings(Canvas& canvas) const;
    void drawZones(Canvas& canvas) const;
    void drawScale(Canvas& canvas, const Dial& dial) const;
    void drawLabels(Canvas& canvas, const Dial& dial);
    std::vector<QRectF> labelBoxes(const Dial& dial);
    std::vector<QRectF> boxesAround(const Dial& dial, double radius, bool outside) const;
    /// The first radius from `radius` on at which no label lies across the border of a ring.
    double clearOfRings(const Dial& dial, double radius) const;

    QPointF m_centre; ///< the middle of a pixel
    double m_radius;
    double m_start = -90, m_end = 90;
    std::vector<Ring> m_rings;
    std::vector<Zone> m_zones;
};

} // namespace chartdraw
