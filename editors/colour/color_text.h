#pragma once
// Colours in words, and colours that were typed.

#include <charteditors/chart_color.h>

#include <QString>
#include <cstdint>
#include <optional>

/// "#2F5D8A", with two more digits of opacity where the colour is not opaque. `color` is 0xAARRGGBB with AA
/// counting transparency.
QString HexText(std::uint32_t color);

/// The colour of a text of 3, 4, 6 or 8 hexadecimal digits, as HexText writes them, with or without "#" and
/// blanks around: 3 and 4 digits stand for doubled ones. None for any other text.
std::optional<std::uint32_t> ColorOfHexText(const QString& text);

/// What a person or a screen reader is told of a colour: "#2F5D8A, opaque", "#2F5D8A, 50 % transparent".
QString ColorText(const CChartColor& color);
