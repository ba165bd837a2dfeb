#pragma once
// The pointers of meters: their shapes as outlines, and the handle that names value, colours and shape.

#include "engine/chart/draw_obj.h"

#include <QPainterPath>

namespace chartdraw {

enum class PointerShape { Diamond, Triangular, Arrow, Arrow2, Line, Pencil };

/// The outline of a pointer that points upwards from the origin: its tip at (0, -length), its other end at
/// (0, tail). `width` is the greatest breadth of a diamond; the other shapes follow from it. Without a tail
/// a diamond is widest halfway, else at the origin.
QPainterPath pointerOutline(PointerShape shape, double length, double tail, double width);

class MeterPointer : public DrawObj {
public:
    static constexpr Kind kKind = Kind::MeterPointer;

    MeterPointer(Chart& chart, double value, Colour fill, Colour edge)
        : DrawObj(Kind::MeterPointer, chart), m_value(value), m_fill(fill), m_edge(edge) {}

    /// Ratios that are not above 0 keep what was there.
    void setShape(PointerShape shape, double lengthRatio, double widthRatio);

    double value() const { return m_value; }
    Colour fill() const { return m_fill; }
    Colour edge() const { return m_edge; }
    PointerShape shape() const { return m_shape; }
    double lengthRatio() const { return m_lengthRatio; }
    double widthRatio() const { return m_widthRatio; }

private:
    double m_value;
    Colour m_fill, m_edge;
    PointerShape m_shape = PointerShape::Diamond;
    double m_lengthRatio = 1, m_widthRatio = 1;
};

} // namespace chartdraw
