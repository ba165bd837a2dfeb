#include "engine/polar/polar_layer.h"

#include "engine/axis/round_labels.h"
#include "engine/chart/chart.h"
#include "engine/data/no_value.h"
#include "engine/polar/smooth_curve.h"
#include "engine/scale/nice_numbers.h"

#include <QPolygonF>
#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace chartdraw {

namespace {

constexpr int kWidestLine = 1000; ///< pixels
constexpr double kLabelGap = 2;   ///< pixels between a symbol and its label
constexpr const char* kDefaultFormat = "{value}";

/// What the format of a data label may name.
class PointFields final : public FieldSource {
public:
    PointFields(double value, double angle, std::string_view label, std::string_view name, std::size_t row,
                int decimals)
        : m_value(value), m_angle(angle), m_label(label), m_name(name), m_row(row),
          m_text(valueText(value, decimals)) {}

    FieldValue field(std::string_view name) const override {
        if (name == "value")
            return FieldValue::number(m_value, m_text);
        if (name == "angle" || name == "x")
            return FieldValue::number(m_angle);
        if (name == "label" || name == "xLabel")
            return m_label.empty() ? FieldValue::number(m_angle) : FieldValue::text(m_label);
        if (name == "dataSetName")
            return FieldValue::text(m_name);
        if (name == "dataItem")
            return FieldValue::number(static_cast<double>(m_row));
        return FieldValue::unknown();
    }

private:
    double m_value, m_angle;
    std::string_view m_label, m_name;
    std::size_t m_row;
    std::string m_text;
};

} // namespace

PolarLayer::PolarLayer(Kind kind, Chart& chart, std::vector<double> data, Colour colour, std::string name)
    : Part(kind, chart), m_data(std::move(data)), m_colour(colour), m_name(std::move(name)),
      m_labelFormat(kDefaultFormat) {}

void PolarLayer::setAngles(std::vector<double> angles) {
    m_angles = std::move(angles);
}

TextBox* PolarLayer::setDataLabelStyle(const TextLook& look) {
    if (m_labelStyle == nullptr)
        m_labelStyle = chart().own<TextBox>(chart());
    m_labelStyle->look() = look;
    m_labelStyle->look().setMargins(2, 2, 0, 0);
    return m_labelStyle;
}

void PolarLayer::setDataLabelFormat(std::string_view format) {
    m_labelFormat = Format(format.empty() ? kDefaultFormat : format);
}

void PolarLayer::setSymbol(const DataSymbol& symbol) {
    m_symbol = symbol;
}

void PolarLayer::setLineWidth(int width) {
    m_lineWidth = std::clamp(width, 0, kWidestLine);
}

void PolarLayer::setSymbolScale(std::vector<double> sizes) {
    m_symbolSizes = std::move(sizes);
}

void PolarLineLayer::setCloseLoop(bool close) {
    m_closed = close;
}

DataRange PolarLayer::range() const {
    DataRange range;
    range.add(m_data);
    return range;
}

bool PolarLayer::isArea() const {
    return isKind(kind(), Kind::PolarAreaLayer);
}

bool PolarLayer::isSmooth() const {
    return kind() == Kind::PolarSplineLineLayer || kind() == Kind::PolarSplineAreaLayer;
}

std::vector<double> PolarLayer::anglesOf(const AngularAxis& axis) const {
    std::vector<double> angles = m_angles.empty() ? axis.evenSteps(m_data.size()) : m_angles;
    angles.resize(m_data.size(), kNoValue);
    return angles;
}

std::vector<std::optional<PolarLayer::Point>> PolarLayer::points(const PolarFrame& frame,
                                                                 const AngularAxis& axis) const {
    const std::vector<double> angles = anglesOf(axis);
    std::vector<std::optional<Point>> points(m_data.size());
    for (std::size_t row = 0; row < m_data.size(); ++row) {
        const double turn = axis.turn(angles[row]), pixels = frame.pixels(m_data[row]);
        if (!std::isnan(turn) && !std::isnan(pixels))
            points[row] = Point{row, turn, pixels, frame.at(turn, pixels)};
    }
    return points;
}

double PolarLayer::symbolSize(std::size_t row) const {
    if (row < m_symbolSizes.size())
        return isValue(m_symbolSizes[row]) ? std::clamp<double>(m_symbolSizes[row], 0, kMaxSymbolSize) : 0;
    return m_symbol.size;
}

void PolarLayer::draw(Canvas& canvas, const PolarFrame& frame, const AngularAxis& axis) const {
    const auto points = this->points(frame, axis);
    QPainter& painter = canvas.painter();
    painter.save();
    // What goes beyond the scale is cut off at the circle, which holds all of the scale; a polygon of the
    // grid does not. Smooth curves may go beyond it between two points.
    const bool leaves = isSmooth() || std::any_of(points.begin(), points.end(), [&](const auto& point) {
                            return point && point->pixels > frame.radius;
                        });
    if (leaves)
        painter.setClipPath(frame.circle(frame.radius + m_lineWidth / 2.0 + 1));
    if (isArea())
        drawArea(canvas, points);
    else
        drawLine(canvas, points);
    painter.restore();
    drawSymbols(canvas, frame, points);
}

void PolarLayer::drawArea(Canvas& canvas, const std::vector<std::optional<Point>>& points) const {
    std::vector<QPointF> border;
    for (const auto& point : points)
        if (point)
            border.push_back(point->at);
    if (isSmooth())
        border = smoothCurve(border, true);
    else if (!border.empty())
        border.push_back(border.front());
    QPainterPath path;
    path.addPolygon(QPolygonF(QList<QPointF>(border.begin(), border.end())).translated(0.5, 0.5));
    path.setFillRule(Qt::WindingFill);
    canvas.fillPath(path, m_colour);
    // The border of a colour that shows through is the full colour.
    const QColor colour = canvas.colours().solid(m_colour);
    const bool literal = m_colour < kTransparent;
    canvas.polyline(border, literal ? static_cast<Colour>(colour.rgb() & 0xffffff) : m_colour, m_lineWidth);
}

void PolarLayer::drawLine(Canvas& canvas, const std::vector<std::optional<Point>>& points) const {
    const bool whole = std::all_of(points.begin(), points.end(), [](const auto& point) { return point; });
    std::vector<QPointF> line, run;
    const QPointF gap(std::numeric_limits<double>::quiet_NaN(), 0);
    const auto endRun = [&](bool closed) {
        if (isSmooth())
            run = smoothCurve(run, closed);
        line.insert(line.end(), run.begin(), run.end());
        line.push_back(gap);
        run.clear();
    };
    for (const auto& point : points)
        if (point)
            run.push_back(point->at);
        else
            endRun(false);
    if (m_closed && points.size() > 2 && points.front() && points.back()) {
        if (whole && isSmooth()) {
            endRun(true);
            canvas.polyline(line, m_colour, m_lineWidth);
            return;
        }
        run.push_back(points.front()->at);
    }
    endRun(false);
    canvas.polyline(line, m_colour, m_lineWidth);
}

void PolarLayer::drawSymbols(Canvas& canvas, const PolarFrame& frame,
                             const std::vector<std::optional<Point>>& points) const {
    SymbolPainter painter(canvas, m_symbol.resolved(m_colour));
    for (const auto& point : points) {
        if (!point || point->pixels > frame.radius + 0.5)
            continue;
        if (point->row < m_symbolSizes.size()) {
            const double size = symbolSize(point->row);
            painter.draw(point->at, QSizeF(size, size));
        } else {
            painter.draw(point->at);
        }
    }
}

void PolarLayer::drawLabels(Canvas& canvas, const PolarFrame& frame, const AngularAxis& axis,
                            const QRectF& room, TextRoom& texts) const {
    if (m_labelStyle == nullptr)
        return;
    constexpr std::size_t kMostLabels = 500; // more cannot be told apart in any picture
    const std::vector<double> angles = anglesOf(axis);
    std::size_t drawn = 0;
    for (const auto& point : points(frame, axis)) {
        if (!point || point->pixels > frame.radius + 0.5 || drawn == kMostLabels)
            continue;
        const std::size_t row = point->row;
        const bool named = m_angles.empty() && row < axis.labels().size();
        const auto label = named ? std::string_view(axis.labels()[row]) : std::string_view();
        const PointFields fields(m_data[row], angles[row], label, m_name, row, frame.decimals);
        const TextBlock text = m_labelStyle->block(m_labelFormat.apply(fields));
        if (text.empty())
            continue;
        const bool marked = m_symbol.shape > 0;
        const double clear =
            (marked ? symbolReach(m_symbol.shape, symbolSize(row)) / 2 : m_lineWidth / 2.0) + kLabelGap;
        const double outwards = point->turn * 2 * std::numbers::pi;
        for (const double aside : {0.0, 0.25, -0.25, 0.5, -0.5, 0.75, -0.75, 1.0}) {
            QRectF box = boxOutside(point->at + QPointF(0.5, 0.5), clear, outwards + aside * std::numbers::pi,
                                    QSizeF(text.size()));
            box.moveTopLeft(QPointF(std::round(box.left()), std::round(box.top())));
            if (room.contains(box) && texts.isFree(box)) {
                text.drawAt(canvas, box.topLeft(), TopLeft);
                texts.take(box);
                ++drawn;
                break;
            }
        }
    }
}

void PolarLayer::collectKeys(std::vector<LegendKey>& keys) const {
    if (m_name.empty())
        return;
    if (isArea()) {
        keys.push_back(boxKey(m_name, m_colour, kTransparent));
        return;
    }
    const auto mark = [symbol = m_symbol.resolved(m_colour)](Canvas& canvas, QPointF at) {
        constexpr int kLargest = 11; // of a symbol in a key
        SymbolPainter(canvas, symbol.within(kLargest)).draw(at);
    };
    keys.push_back(lineKey(m_name, m_colour, m_lineWidth, mark));
}

} // namespace chartdraw
