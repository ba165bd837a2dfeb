#pragma once
// A title: a text at one of the nine positions of the picture, or a strip across its top.

#include "engine/chart/draw_obj.h"

#include <array>

namespace chartdraw {

/// How far the titles at each position reach inwards, in pixels; grows as titles are placed.
class TitleStacks {
public:
    explicit TitleStacks(QSize picture) : m_picture(picture) {}

    /// The upper left corner for a title of `size` at an alignment code; the next one there stands behind it.
    QPoint place(QSize size, int alignment);
    /// The same for a strip across the top, which the corners have to make room for as well.
    QPoint placeStrip(QSize size);

private:
    QSize m_picture;
    std::array<int, 9> m_used = {};
};

class Title : public TextBox {
public:
    Title(Chart& chart, std::string text, const TextLook& look, int alignment, bool strip);

    /// The title at its place, which is taken from `stacks` unless it has a position of its own.
    PlacedText placed(TitleStacks& stacks) const;
    int measuredHeight() const override;

private:
    TextBlock laidOut() const;

    int m_alignment;
    bool m_strip;
};

} // namespace chartdraw
