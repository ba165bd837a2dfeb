#pragma once
// A meter with a straight scale along one side of a bar. Zones fill the bar, pointers lie across it with
// their tips at the scale, ticks and labels stand outside on the scale's side.

#include "engine/meter/base_meter.h"

#include <QRect>
#include <utility>

namespace chartdraw {

class LinearMeter : public BaseMeter {
public:
    static constexpr Kind kKind = Kind::LinearMeter;

    LinearMeter(int width, int height, Colour background, Colour edge, int effect);

    /// The bar's upper left corner and its size in pixels. `side`, an alignment code, is the one where the
    /// scale is: Left, Right, TopCenter or BottomCenter; another is Left. The lower limit is below or left,
    /// above or right when reversed.
    void setMeter(QPoint corner, QSize size, int side, bool reverse);
    TextBox* addZone(double start, double end, Colour colour, std::string label);

protected:
    void drawBody(Canvas& canvas) override;
    QPainterPath outlineOf(const MeterPointer& pointer, double fraction) const override;

private:
    struct Zone {
        double start, end;
        Colour colour;
        TextBox* label;
    };
    struct ZoneLabel {
        TextBlock text;
        QRectF box;
    };

    bool upright() const;
    /// Away from the bar on the scale's side.
    QPointF outward() const;
    double barLength() const { return upright() ? m_bar.height() : m_bar.width(); }
    double barBreadth() const { return upright() ? m_bar.width() : m_bar.height(); }
    /// The pixel border along the bar at a fraction of the scale.
    double along(double fraction) const;
    /// The pixel along the bar that a tick covers; no tick stands outside the bar.
    int pixelAt(double fraction) const;
    /// The point on the bar's side at the scale.
    QPointF onScale(double along) const;
    double majorLength() const;
    QRectF room() const;

    void drawZones(Canvas& canvas) const;
    void drawZoneLabels(Canvas& canvas);
    void drawScale(Canvas& canvas, const Dial& dial) const;
    void drawLabels(Canvas& canvas, const Dial& dial);
    QRectF placeInside(const QRectF& zone, QSizeF size, const std::vector<QRectF>& pointers) const;
    QRectF zoneRect(double from, double to) const;

    QRect m_bar;
    int m_side = Left;
    bool m_reverse = false;
    std::vector<Zone> m_zones;
};

} // namespace chartdraw
