#pragma once
// Labels of values: what they say, and where they stand. A label stands beside its point or inside its body,
// within the plot area, and goes to another side of the point, or is left out, rather than lie over a label
// that is already there.

#include "engine/axis/axis_plan.h"
#include "engine/scale/format.h"
#include "engine/xy/layer.h"

#include <cmath>
#include <memory>
#include <span>
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
    double otherY = NAN; ///< the point on the other side, where that is not the same
    double body = 0;     ///< Inside: pixels along y that the label has, 0 any
};

/// Which parts of a picture labels have taken, to the nearest two pixels. One for all layers of a picture.
class LabelRoom {
public:
    explicit LabelRoom(QSize picture);
    bool isFree(const QRectF& box) const;
    void take(const QRectF& box);

private:
    QRect cells(const QRectF& box) const;
    QSize m_size;
    std::vector<bool> m_taken; ///< row by row
};

class DataLabels {
public:
    /// All are kept by reference.
    DataLabels(Canvas& canvas, const Layer& layer, const PlotFrame& frame, const TextBox& style,
               const std::string& format);

    /// Left out where it has no room.
    void draw(const LabelContent& content, const LabelSpot& spot);

private:
    QRectF boxAt(const LabelSpot& spot, LabelSide side, QSizeF size) const;
    bool fitsBody(const LabelSpot& spot, QSizeF size) const;
    bool place(QRectF& box, const LabelSpot& spot, QSizeF size) const;

    Canvas& m_canvas;
    const Layer& m_layer;
    const PlotFrame& m_frame;
    const TextBox& m_style;
    Format m_format;
    RowTexts m_rows;
    QRectF m_plot;  ///< what labels stay within, pixel borders
    QSizeF m_least; ///< no label is smaller
    int m_tries;    ///< labels that may still be laid out
    std::shared_ptr<LabelRoom> m_room;
};

} // namespace chartdraw
