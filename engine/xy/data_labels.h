#pragma once
// Labels of values: what they say, and where they stand. A label stands beside its point or inside its body,
// within the plot area, and goes to another side of the point, or is left out, rather than lie over a label
// that is already there.

#include "engine/axis/axis_plan.h"
#include "engine/chart/text_room.h"
#include "engine/scale/format.h"
#include "engine/xy/layer.h"
#include "engine/xy/skyline.h"

#include <cmath>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace chartdraw {

/// On which side of its point a label wants to be, in the direction of the values: Above is where larger
/// values are.
enum class LabelSide : unsigned char { Above, Below, Inside };

/// What a label says.
struct LabelContent {
    std::size_t row = 0;          ///< before trimming
    const DataSet* set = nullptr; ///< null for sums
    double value = 0;
    double percent = 0; ///< part of its stack, 0 to 100; NaN where there is none
    /// Further fields: {open}, {top}...
    std::span<const std::pair<std::string_view, double>> more = {};
};

/// Where a label may stand: the middle of a body, or a point with `gap` pixels to keep from it.
struct LabelSpot {
    double alongX = 0, alongY = 0;
    LabelSide side = LabelSide::Above;
    int gap = 2;
    double otherY = NAN;               ///< the point on the other side, where that is not the same
    double body = 0;                   ///< pixels along y that the label has inside a body, 0 any
    int first = 0, last = -1;          ///< the columns of the body along x; none: as broad as it may be
    bool overlaid = false;             ///< other bodies may stand behind on the same columns
    bool mayLeave = false;             ///< may stand beyond the plot area, where it ends at the point
    bool beside = false;               ///< may stand left or right of its point
    bool oneSided = false;             ///< may not stand on the other side, where a line would run through it
    Colour ground = kTransparent;      ///< what the label is read on, where that is known
    Colour otherGround = kTransparent; ///< the same on the other side of the point
};

/// How the values of a layer are written where no format is given: all in one way.
struct ValueForm {
    int decimals = 0;              ///< that tell values on the axis apart
    double unit = 1;               ///< that they are counted in
    const char* suffix = "";       ///< and its name
    std::optional<int> power = {}; ///< of ten, for numbers with exponents

    std::string text(double value) const;
};

class DataLabels {
public:
    /// All are kept by reference.
    DataLabels(Canvas& canvas, const Layer& layer, const PlotFrame& frame, const TextBox& style,
               const std::string& format);

    /// A body that labels beside others keep off: columns and reach in pixels, as in LabelSpot.
    void addBody(int first, int last, double from, double to);
    /// Left out where it has no room.
    void draw(const LabelContent& content, const LabelSpot& spot);

private:
    QRectF boxAt(const LabelSpot& spot, LabelSide side, QSizeF size) const;
    bool fitsBody(const LabelSpot& spot, QSizeF size) const;
    bool standsOnOther(const QRectF& box, const LabelSpot& spot) const;
    bool place(QRectF& box, const LabelSpot& spot, QSizeF size);
    bool placeBeyond(QRectF& box, const LabelSpot& spot, QSizeF size) const;
    bool placeBeside(QRectF& box, const LabelSpot& spot, QSizeF size) const;
    TextBlock blockOf(const std::string& text, const LabelSpot& spot) const;

    Canvas& m_canvas;
    const Layer& m_layer;
    const PlotFrame& m_frame;
    const TextBox& m_style;
    Format m_format;
    RowTexts m_rows;
    QRectF m_plot;  ///< what labels stay within, pixel borders
    QSizeF m_least; ///< no label is smaller
    int m_tries;    ///< labels that may still be laid out
    TextRoom& m_room;
    ValueForm m_values;
    Skyline m_bodies;
    bool m_plain;                        ///< the style has no colour of its own
    bool m_boxed;                        ///< it has a ground of its own
    LabelSide m_side = LabelSide::Above; ///< of the last label that was placed
};

} // namespace chartdraw
