#include "engine/chart/draw_obj.h"

#include "engine/chart/chart.h"

#include <algorithm>

namespace chartdraw {

void PlacedText::reserve(TextRoom& room) const {
    if (!block.empty())
        room.reserve(block.outlineAt(anchor, alignment));
}

void DrawObj::draw(Canvas& /*canvas*/) {}

void Box::setPos(int x, int y) {
    // Far enough outside any picture; what is added to a position later cannot overflow.
    constexpr int kFar = 1000000;
    m_pos = QPoint(std::clamp(x, -kFar, kFar), std::clamp(y, -kFar, kFar));
}

TextBox::TextBox(Chart& chart, std::string text, const TextLook& look)
    : TextBox(Kind::TextBox, chart, std::move(text), look) {}

TextBox::TextBox(Kind kind, Chart& chart, std::string text, const TextLook& look)
    : Box(kind, chart), m_text(std::move(text)) {
    this->look() = look;
}

void TextBox::setText(std::string text) {
    m_text = std::move(text);
}

TextBlock TextBox::block(std::string_view text) const {
    return {look(), text, chart().fonts()};
}

int TextBox::measuredHeight() const {
    return block().size().height();
}

FreeText::FreeText(Chart& chart, std::string text, const TextLook& look, QPoint at, int alignment)
    : TextBox(chart, std::move(text), look), m_anchor(alignment) {
    setPos(at.x(), at.y());
}

std::optional<PlacedText> FreeText::placedText() const {
    return PlacedText{block(), *pos(), m_anchor};
}

Line::Line(Chart& chart, QPoint from, QPoint to, Colour colour, int width)
    : DrawObj(Kind::Line, chart), m_from(from), m_to(to), m_colour(colour), m_width(width) {}

void Line::draw(Canvas& canvas) {
    canvas.line(m_from, m_to, orDefault(m_colour, kLineColour), m_width);
}

} // namespace chartdraw
