#pragma once
// The markup that runs inside a text: <*tag*> and <*tag=value,tag=value*>. Tags: font=NAME, size=POINTS,
// color=HEX (also "color=RRGGBB" with the transparency byte in front), underline (underline=0 off), super,
// sub, br, and "/" which goes back to what stood before the last tag. An unknown tag is ignored, an unclosed
// one is text.

#include "engine/paint/colour.h"

#include <string>
#include <string_view>
#include <vector>

namespace chartdraw {

/// How a run differs from the text box's own look.
struct RunStyle {
    std::string font; ///< empty: the box's
    double size = 0;  ///< points; 0: the box's
    Colour colour = kDefaultColour;
    bool underline = false;
    int script = 0; ///< 1 superscript, -1 subscript
    bool operator==(const RunStyle&) const = default;
};

struct Run {
    std::string text; ///< never holds a line break
    RunStyle style;
};

using MarkupLine = std::vector<Run>;

/// Lines of runs. Line feeds and <*br*> break lines. At least one line, which may be empty.
std::vector<MarkupLine> parseMarkup(std::string_view text);

} // namespace chartdraw
