#pragma once
// Texts that are to be no larger than their room: broken into lines first, and then cut off with an ellipsis.

#include "engine/text/text_block.h"

#include <functional>
#include <string>
#include <string_view>

namespace chartdraw {

/// As many characters of `whole` (UTF-8) as `fits` lets stand before an ellipsis; all of them if it lets
/// that. Markup is not looked for, and at worst shows.
std::string cutToFit(std::string_view whole, const std::function<bool(const std::string&)>& fits);

/// The text within `most` pixels, turned as its look tells; a side of 0 or below is not limited. A level text
/// without a wrap width of its own is broken at words. Lines that are numbers, and what has no room for two
/// letters, go as a whole.
TextBlock fittedText(TextLook look, const std::string& text, const FontSet& fonts, QSize most);

} // namespace chartdraw
