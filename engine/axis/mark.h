#pragma once
// A mark: a line across the plot area at a value of an axis, with a label at the end where the axis is.

#include "engine/chart/draw_obj.h"

namespace chartdraw {

class Axis;
class Mark;

/// The handle to a mark's line, which an inter-line layer may fill up to.
class MarkLine : public Line {
public:
    MarkLine(Chart& chart, const Mark& mark) : Line(chart), m_mark(mark) {}
    const Mark& mark() const { return m_mark; }
    void draw(Canvas& /*canvas*/) override {} // the chart draws the line when it draws the mark

private:
    const Mark& m_mark;
};

/// The text box is the label: its look is edited by the handle.
class Mark : public TextBox {
public:
    static constexpr Kind kKind = Kind::Mark;

    Mark(Chart& chart, const Axis& axis, double value, Colour colour, std::string label, const TextLook& look)
        : TextBox(Kind::Mark, chart, std::move(label), look), m_axis(axis), m_value(value), m_colour(colour),
          m_line(chart, *this) {}

    const Axis& axis() const { return m_axis; }
    double value() const { return m_value; }
    Colour colour() const { return m_colour; }
    MarkLine* line() { return &m_line; }

private:
    const Axis& m_axis;
    double m_value;
    Colour m_colour;
    MarkLine m_line;
};

} // namespace chartdraw
