#include "engine/xy/data_labels.h"

#include "engine/axis/round_labels.h"
#include "engine/xy/xy_chart.h"

#include <algorithm>
#include <cmath>

namespace chartdraw {

namespace {

constexpr int kLeastDigits = 2, kMostDigits = 6; // significant ones of a value without a format
constexpr int kDark = 135;                       // the lightness of a ground up to which its text is white

class Fields final : public FieldSource {
public:
    Fields(const Layer& layer, const RowTexts& rows, const LabelContent& content, int decimals)
        : m_layer(layer), m_rows(rows), m_content(content), m_decimals(decimals) {}

    FieldValue field(std::string_view name) const override {
        if (name == "value") {
            // What is finer than the axis can tell, and the noise of computing, is no part of a value.
            const int digits =
                std::clamp(exponentOf(m_content.value) + m_decimals + 1, kLeastDigits, kMostDigits);
            m_text = numberText(m_content.value, {.form = NumberSpec::Form::General, .digits = digits});
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
    int m_decimals;
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

} // namespace

DataLabels::DataLabels(Canvas& canvas, const Layer& layer, const PlotFrame& frame, const TextBox& style,
                       const std::string& format)
    : m_canvas(canvas), m_layer(layer), m_frame(frame), m_style(style), m_format(format),
      m_rows(layer.chart().rowTexts()), m_plot(QRectF(frame.inner()).adjusted(1, 1, -1, -1)),
      m_least(style.block("1").size()), m_tries(mostTries(layer.chart(), m_least)),
      m_room(layer.chart().textRoom()), m_plain(style.look().colour == kTextColour) {}

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
    return spot.body <= 0 || (m_frame.swapped ? size.width() : size.height()) <= spot.body + 4;
}

bool DataLabels::place(QRectF& box, const LabelSpot& spot, QSizeF size) {
    const LabelSide other = spot.side == LabelSide::Above ? LabelSide::Below : LabelSide::Above;
    if (!fitsBody(spot, size))
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
        if (std::abs(shift) <= spot.gap + 0.5 && m_room.isFree(moved)) {
            box = moved;
            m_side = side;
            return true;
        }
    }
    m_side = spot.side;
    return spot.beside && placeBeside(box, spot, size);
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
    if (!m_plain || ground.alpha() < 128)
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
    const std::string text = m_format.apply(Fields(m_layer, m_rows, content, m_frame.decimals));
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
