#pragma once
// Things that stand on a chart and can be addressed by a handle: boxes, texts, lines. They belong to their
// chart and are drawn by it.

#include "engine/chart/part.h"
#include "engine/text/text_block.h"

#include <QRect>
#include <optional>
#include <string>

namespace chartdraw {

class TextRoom;

/// A text laid out for one picture, and its place there.
struct PlacedText {
    TextBlock block;
    QPointF anchor;
    int alignment;

    void reserve(TextRoom& room) const;
    void draw(Canvas& canvas) const { block.drawAt(canvas, anchor, alignment); }
};

class DrawObj : public Part {
public:
    static constexpr Kind kKind = Kind::DrawObj;

    /// Draws the object where it stands. Objects that are only a style (label looks) draw nothing.
    virtual void draw(Canvas& canvas);
    /// What is drawn instead, where the object is a text.
    virtual std::optional<PlacedText> placedText() const { return std::nullopt; }

protected:
    using Part::Part;
};

/// Anything with a frame. `look` is what the Box and TextBox operations alike change.
class Box : public DrawObj {
public:
    static constexpr Kind kKind = Kind::Box;

    const TextLook& look() const { return m_look; }
    TextLook& look() { return m_look; }

    /// A position given by hand replaces the automatic place.
    void setPos(int x, int y);
    const std::optional<QPoint>& pos() const { return m_pos; }

    /// Height in pixels as it will be drawn, known before anything is drawn.
    virtual int measuredHeight() const { return m_look.height > 0 ? m_look.height : 0; }

protected:
    using DrawObj::DrawObj;

private:
    TextLook m_look;
    std::optional<QPoint> m_pos;
};

/// A text with its look. What it is for decides where it is drawn: a title, a free text, the key format of a
/// legend, or a style that axes, layers and sectors apply to their labels.
class TextBox : public Box {
public:
    static constexpr Kind kKind = Kind::TextBox;

    TextBox(Chart& chart, std::string text = {}, const TextLook& look = {});

    const std::string& text() const { return m_text; }
    void setText(std::string text);

    /// `text` laid out in this box's look and the chart's fonts.
    TextBlock block(std::string_view text) const;
    TextBlock block() const { return block(m_text); }
    int measuredHeight() const override;

protected:
    TextBox(Kind kind, Chart& chart, std::string text, const TextLook& look);

private:
    std::string m_text;
};

/// A text at a point: `alignment` says which point of its box stands there.
class FreeText : public TextBox {
public:
    FreeText(Chart& chart, std::string text, const TextLook& look, QPoint at, int alignment);
    std::optional<PlacedText> placedText() const override;

private:
    int m_anchor;
};

/// A straight line; also the handle to a line that something else draws (a layer's, a mark's).
class Line : public DrawObj {
public:
    static constexpr Kind kKind = Kind::Line;

    Line(Chart& chart, QPoint from, QPoint to, Colour colour, int width);
    void draw(Canvas& canvas) override;

protected:
    explicit Line(Chart& chart) : DrawObj(Kind::Line, chart) {}

private:
    QPoint m_from, m_to;
    Colour m_colour = kTransparent;
    int m_width = 0;
};

} // namespace chartdraw
