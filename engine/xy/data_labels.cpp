#include "engine/xy/data_labels.h"

#include "engine/axis/round_labels.h"
#include "engine/scale/nice_numbers.h"
#include "engine/scale/short_labels.h"
#include "engine/xy/row_room.h"
#include "engine/xy/xy_chart.h"

#include <algorithm>
#include <cmath>

namespace chartdraw {

namespace {

constexpr double kTouch = 1; // pixels by which it may lie over another one
constexpr double kSpill = 2; // pixels that a label may be broader than its body
constexpr int kDark = 135;   // the lightness of a ground up to which its text is white

class Fields final : public FieldSource {
public:
    Fields(const Layer& layer, const RowTexts& rows, const LabelContent& content, const ValueForm& values)
        : m_layer(layer), m_rows(rows), m_content(content), m_values(values) {}

    FieldValue field(std::string_view name) const override {
        if (name == "value") {
            m_text = m_values.text(m_content.value);
            return FieldValue::number(m_content.value, m_text);
        }
        if (name == "xLabel") {
            m_text = m_rows.text(m_content.row);
            return FieldValue::number(m_rows.value(m_content.row), m_text);
        }
        if (name == "x")
            return FieldValue::number(m_layer.xValue(m_content.row));
        if (name == "dataSetName") {
            return FieldValue::text(m_content.set != nullptr ? std::string_view(m_content.set->name())
                                                             : std::string_view());
        }
        if (name == "percent" && !std::isnan(m_content.percent)) {
            m_text = numberText(m_content.percent, NumberSpec::atMost(2));
            return FieldValue::number(m_content.percent, m_text);
        }
        for (const auto& [known, value] : m_content.more)
            if (name == known)
                return FieldValue::number(value);
        return FieldValue::unknown();
    }

private:
    const Layer& m_layer;
    const RowTexts& m_rows;
    const LabelContent& m_content;
    const ValueForm& m_values;
    mutable std::string m_text; // what a field refers to until the next one is asked for
};

QPointF wholeCorner(const QRectF& box) {
    return {std::round(box.left()), std::round(box.top())};
}

/// Each label is laid out before it is known to fit. Several times as many as a picture has room for are
/// enough.
int mostTries(const XYChart& chart, QSizeF least) {
    const double labels =
        static_cast<double>(chart.width()) * chart.height() / std::max(1.0, least.width() * least.height());
    return static_cast<int>(std::clamp(4 * labels, 1000.0, 1e5));
}

/// By the largest value of the layer: a shorter form where that has no room in its row, exponents where it
/// has them.
ValueForm valueForm(const Layer& layer, const PlotFrame& frame, const TextBox& style) {
    ValueForm form{.decimals = frame.decimals};
    const DataRange shown = layer.yRange();
    double most = shown.empty ? 0 : std::max(std::abs(shown.min), std::abs(shown.max));
    for (const DataSet* set : layer.dataSets()) {
        const DataRange range = set->range(layer.rows().begin, layer.rows().end);
        most = range.empty ? most : std::max({most, std::abs(range.min), std::abs(range.max)});
    }
    if (most > 0 && (most >= 1e15 || most < 1e-5)) {
        form.power = exponentOf(most);
    } else if (const ShortUnit* unit = shortUnit(most); unit != nullptr && unit->size >= 1e6) {
        const double room = frame.swapped ? frame.plot.width() / 4.0 : rowRoom(layer, frame);
        if (style.block(form.text(most)).size().width() > room)
            form.unit = unit->size, form.suffix = unit->name;
    }
    return form;
}

} // namespace

std::string ValueForm::text(double value) const {
    if (value != 0 && power)
        return numberText(value, NumberSpec::atPower(*power, std::min(decimals, 5 - *power)));
    // The digits that count are the same in any unit.
    std::string result = valueText(value / unit, decimals + exponentOf(unit));
    return value == 0 ? result : result + suffix;
}

DataLabels::DataLabels(Canvas& canvas, const Layer& layer, const PlotFrame& frame, const TextBox& style,
                       const std::string& format)
    : m_canvas(canvas), m_layer(layer), m_frame(frame), m_style(style), m_format(format),
      m_rows(layer.chart().rowTexts()), m_plot(QRectF(frame.inner()).adjusted(1, 1, -1, -1)),
      m_least(style.block("1").size()), m_tries(mostTries(layer.chart(), m_least)),
      m_room(layer.chart().textRoom()), m_values(valueForm(layer, frame, style)),
      m_plain(style.look().colour == kTextColour),
      m_boxed(!canvas.colours().invisible(style.look().background)) {}

void DataLabels::addBody(int first, int last, double from, double to) {
    const int depth = m_frame.depth; // a body in depth reaches to the right and up
    if (m_frame.swapped)
        m_bodies.add(first - depth, last, std::min(from, to), std::max(from, to) + depth);
    else
        m_bodies.add(first, last + depth, std::min(from, to) - depth, std::max(from, to));
}

QRectF DataLabels::boxAt(const LabelSpot& spot, LabelSide side, QSizeF size) const {
    QRectF box(QPointF(), size);
    const double alongY = side != spot.side && !std::isnan(spot.otherY) ? spot.otherY : spot.alongY;
    box.moveCenter(m_frame.at(spot.alongX, alongY) + QPointF(0.5, 0.5));
    if (side != LabelSide::Inside) {
        const bool growing = (m_frame.y.upperPixel() > m_frame.y.lowerPixel()) == (side == LabelSide::Above);
        const double sign = growing ? 1 : -1;
        if (growing == m_frame.swapped) { // beyond the side of the body that is seen
            const double depth = m_frame.depth;
            box.translate(m_frame.swapped ? QPointF(depth, -depth / 2) : QPointF(depth / 2, -depth));
        }
        const double reach = spot.gap + (m_frame.swapped ? size.width() : size.height()) / 2;
        box.translate(m_frame.swapped ? QPointF(sign * reach, 0) : QPointF(0, sign * reach));
    }
    return box;
}

bool DataLabels::fitsBody(const LabelSpot& spot, QSizeF size) const {
    const double alongX = m_frame.swapped ? size.height() : size.width();
    const double alongY = m_frame.swapped ? size.width() : size.height();
    const int columns = spot.last - spot.first + 1;
    return (spot.body <= 0 || alongY <= spot.body + 4) &&
           (columns <= 0 || m_boxed || alongX <= columns + (m_frame.swapped ? 4 : kSpill));
}

/// A label without a ground of its own is not read on the body of another value.
bool DataLabels::standsOnOther(const QRectF& box, const LabelSpot& spot) const {
    if (m_boxed)
        return false;
    const QRectF inner = box.adjusted(kTouch, kTouch, -kTouch, -kTouch).translated(-m_frame.depthOffset);
    const double low = m_frame.swapped ? inner.left() : inner.top();
    const double high = m_frame.swapped ? inner.right() : inner.bottom();
    const int first = static_cast<int>(std::ceil(m_frame.swapped ? inner.top() : inner.left()));
    const int last = static_cast<int>(m_frame.swapped ? inner.bottom() : inner.right());
    if (!spot.overlaid)
        return m_bodies.stands(first, last, low, high);
    return m_bodies.stands(first, std::min(last, spot.first - 1), low, high) ||
           m_bodies.stands(std::max(first, spot.last + 1), last, low, high);
}

bool DataLabels::place(QRectF& box, const LabelSpot& spot, QSizeF size) {
    const LabelSide other = spot.side == LabelSide::Above ? LabelSide::Below : LabelSide::Above;
    if (spot.side == LabelSide::Inside && !fitsBody(spot, size))
        return false;
    const LabelSide inside[] = {LabelSide::Inside};
    const LabelSide outside[] = {spot.side, other};
    const auto sides = spot.side == LabelSide::Inside ? std::span<const LabelSide>(inside)
                                                      : std::span<const LabelSide>(outside);
    for (const LabelSide side : sides.first(spot.oneSided ? 1 : sides.size())) {
        const QRectF wished = boxAt(spot, side, size);
        QRectF moved = movedInto(wished, m_plot);
        moved.moveTopLeft(wholeCorner(moved));
        // Across the values a label may move along the frame, but not onto its own point.
        const double shift = m_frame.swapped ? moved.left() - wished.left() : moved.top() - wished.top();
        // On the other side of its point it is below the tip of its body.
        const bool within = side != LabelSide::Inside && side != spot.side && std::isnan(spot.otherY);
        if (std::abs(shift) <= spot.gap + 0.5 && m_room.isFree(moved) &&
            (within ? fitsBody(spot, size) : side == LabelSide::Inside || !standsOnOther(moved, spot))) {
            box = moved;
            m_side = side;
            return true;
        }
    }
    m_side = spot.side;
    return (spot.mayLeave && placeBeyond(box, spot, size)) || (spot.beside && placeBeside(box, spot, size));
}

/// Between the plot area and what stands next to it.
bool DataLabels::placeBeyond(QRectF& box, const LabelSpot& spot, QSizeF size) const {
    QRectF wished = boxAt(spot, spot.side, size);
    const double beyond = m_frame.swapped ? wished.right() - m_plot.right() : m_plot.top() - wished.top();
    if (m_frame.depth > 0 ||
        beyond < (m_frame.swapped ? size.width() : size.height()) / 2) // too far from its point
        return false;
    if (m_frame.swapped)
        wished.moveLeft(m_frame.plot.right() + 2);
    else
        wished.moveBottom(m_frame.plot.top());
    wished.moveTopLeft(wholeCorner(wished));
    const XYChart& chart = m_layer.chart();
    if (!QRectF(0, 0, chart.width(), chart.height()).contains(wished) || !m_room.isFree(wished))
        return false;
    box = wished;
    return true;
}

bool DataLabels::placeBeside(QRectF& box, const LabelSpot& spot, QSizeF size) const {
    const double along = m_frame.swapped ? size.height() : size.width();
    for (const double sign : {1.0, -1.0}) {
        const double reach = sign * (spot.gap + 1 + along / 2);
        QRectF wished(QPointF(), size);
        wished.moveCenter(m_frame.at(spot.alongX, spot.alongY) + QPointF(0.5, 0.5));
        wished.translate(m_frame.swapped ? QPointF(0, reach) : QPointF(reach, 0));
        wished.moveTopLeft(wholeCorner(wished));
        if (m_plot.contains(wished) && m_room.isFree(wished)) {
            box = wished;
            return true;
        }
    }
    return false;
}

/// A text without a colour of its own is black or white on a body, as it is read best.
TextBlock DataLabels::blockOf(const std::string& text, const LabelSpot& spot) const {
    const QColor ground = m_canvas.colours().solid(m_side == spot.side ? spot.ground : spot.otherGround);
    if (!m_plain || m_boxed || ground.alpha() < 128)
        return m_style.block(text);
    TextLook look = m_style.look();
    look.colour = qGray(ground.rgb()) > kDark ? 0x000000 : 0xffffff;
    return {look, text, m_layer.chart().fonts()};
}

void DataLabels::draw(const LabelContent& content, const LabelSpot& spot) {
    const QRectF near = m_plot.adjusted(-3, -3, 3, 3);
    QRectF box;
    if (!near.contains(m_frame.at(spot.alongX, spot.alongY) + QPointF(0.5, 0.5)) ||
        !place(box, spot, m_least)) // where not even the least label has room none is laid out
        return;
    if (m_tries <= 0)
        return;
    --m_tries;
    const std::string text = m_format.apply(Fields(m_layer, m_rows, content, m_values));
    const LabelSide tried = m_side;
    const TextBlock block = blockOf(text, spot);
    if (!block.empty() && place(box, spot, block.size())) {
        m_room.take(box);
        if (m_side == tried)
            block.drawAt(m_canvas, box.topLeft(), TopLeft);
        else
            blockOf(text, spot).drawAt(m_canvas, box.topLeft(), TopLeft);
    }
}

} // namespace chartdraw
