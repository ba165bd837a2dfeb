#pragma once
// Fonts by file name. A name is "file.ttf", "file.ttc|2", a path to a file, one of the style words "normal",
// "bold", "italic", "boldItalic" (a chart's default fonts), or empty for "normal". Loaded faces are cached
// for the life of the process and shared by all charts and threads.

#include <QFont>
#include <array>
#include <string>
#include <string_view>

namespace chartdraw {

/// The four default fonts of a chart: what the style words mean. Empty entries are the library's own.
struct FontSet {
    std::array<std::string, 4> files; ///< normal, bold, italic, bold italic
    bool smooth = true;               ///< letters have smooth edges

    /// The file behind a name: a style word or an empty name looked up, anything else as it stands. A style
    /// word without a file gives the word itself, "normal" for the empty name.
    std::string resolve(std::string_view name) const;
};

constexpr double kDefaultFontSize = 8.0; ///< points
constexpr double kMaxFontSize = 1000.0;
constexpr double kDotsPerInch = 96.0; ///< 1 point is 4/3 pixel in every picture

/// `points` within what can be drawn: the default for NaN, 0 and less, at most kMaxFontSize.
double limitedFontSize(double points);

/// Another number when fonts that were given out may be of faces that are gone.
int fontGeneration();

/// A font for a name and a size in points, taken to the nearest whole pixel. A missing or damaged file gives
/// a good sans face of the same size. Glyphs that the face lacks come from an installed face that has them.
/// Fonts hold engines of the calling thread: do not hand one to another thread. `widthPoints`: the size that
/// sets the width of the glyphs, 0 for the same.
QFont font(const FontSet& set, std::string_view name, double points, double widthPoints = 0);

} // namespace chartdraw
