// The labels and legend keys of a pie: their texts, and drawing them where the layouts say.

#include "engine/data/no_value.h"
#include "engine/pie/label_parts.h"
#include "engine/pie/pie_chart.h"
#include "engine/scale/number_text.h"
#include "engine/text/fitted_text.h"

#include <algorithm>
#include <cmath>

namespace chartdraw {

namespace {

constexpr double kLeastWrap = 3.5;    ///< lines high that a label is broad at least
constexpr int kMargin = 2;            ///< pixels between labels and the border of the picture
constexpr double kCircleDistance = 6; ///< pixels between rim and label when nothing else is told

/// What the format of a label or key may name.
class SectorFields final : public FieldSource {
public:
    SectorFields(std::string label, double value, double share, std::size_t index)
        : m_label(std::move(label)), m_value(value), m_percent(share * 100), m_index(index),
          m_text(numberText(value, {.form = NumberSpec::Form::General, .digits = 6})) {}

    FieldValue field(std::string_view name) const override {
        if (name == "label" || name == "dataSetName")
            return FieldValue::text(m_label);
        if (name == "value")
            return FieldValue::number(m_value, m_text);
        if (name == "percent")
            return FieldValue::number(m_percent);
        if (name == "sector")
            return FieldValue::number(static_cast<double>(m_index));
        return FieldValue::unknown();
    }

private:
    std::string m_label;
    double m_value;
    double m_percent;
    std::size_t m_index;
    std::string m_text; ///< of the value, without the noise of computing
};

} // namespace

struct PieChart::Label {
    std::size_t sector;
    SectorLabel spot;
    TextBlock text;
};

std::shared_ptr<const FieldSource> PieChart::fieldsOf(std::size_t index, double share) const {
    return std::make_shared<SectorFields>(m_labels[index], m_values[index], share, index);
}

void PieChart::collectKeys(std::vector<LegendKey>& keys) const {
    const std::vector<double> parts = shares(m_values);
    for (std::size_t i = 0; i < m_values.size(); ++i) {
        if (!m_labels[i].empty()) {
            LegendKey key = boxKey({}, fillOf(i), kTransparent);
            key.fields = fieldsOf(i, parts[i]);
            keys.push_back(std::move(key));
        }
    }
}

double PieChart::labelDistance(const PieBody& body) const {
    // The lines of many sectors go round the pie side by side.
    if (m_inColumns && m_labelDistance < 0)
        return std::max(18.0, body.radius / 6) +
               std::clamp(1.5 * (static_cast<double>(m_values.size()) - 8), 0.0, 15.0);
    if (m_inColumns)
        return m_labelDistance;
    return m_labelDistance == -1 ? kCircleDistance : m_labelDistance;
}

int PieChart::widthBeside(const PieBody& body, QPointF about, double angle, const LabelRooms& rooms) const {
    const double side = direction(angle).x();
    double room = width() * 0.4;
    if (m_inColumns || std::abs(side) > 0.5) {
        const double rim = about.x() + (side < 0 ? -body.radius : body.radius);
        const double beside = side < 0 ? rim - rooms.left.left() : rooms.right.right() - rim;
        room = beside - std::max(0.0, labelDistance(body));
    }
    const double line = m_labelStyle->block("0").boxSize().height();
    // The label may come nearer to the pie for it, but not onto it.
    const double least = std::min(kLeastWrap * line, room + std::max(0.0, labelDistance(body)) / 4);
    return static_cast<int>(std::max({1.0, least, room}));
}

std::vector<PieChart::Label> PieChart::makeLabels(const PieBody& body, std::span<const double> shares,
                                                  std::span<const SectorSpan> spans,
                                                  const LabelRooms& rooms) const {
    std::vector<SectorLabel> weights(shares.size());
    for (std::size_t i = 0; i < shares.size(); ++i)
        weights[i].weight = shares[i];
    TextLook look = m_labelStyle->look();
    const bool wraps = look.wrapWidth == 0 && look.angle == 0 && !look.vertical;
    std::vector<Label> labels;
    for (std::size_t i : heaviest(weights, kMostLabels)) {
        if (!isValue(m_values[i]) || m_values[i] < 0)
            continue;
        const std::string text = m_format.apply(*fieldsOf(i, shares[i]));
        if (text.find_first_not_of(" \t\r\n") == std::string::npos)
            continue;
        const double angle = spans[i].middle();
        const QPointF about = centreOf(body, i, spans[i]);
        QSize most;
        if (wraps) { // a long word may come nearer to the pie
            const int beside = widthBeside(body, about, angle, rooms);
            look.wrapWidth = std::max(1, beside - look.marginLeft - look.marginRight);
            most.setWidth(beside + static_cast<int>(labelDistance(body) * 0.7));
        }
        TextBlock block = fittedText(look, text, fonts(), most);
        if (block.empty())
            continue;
        const QPointF lowered =
            body.depth * body.facing(angle); // in front, the label stays clear of the wall
        const SectorLabel spot{angle,
                               about + lowered,
                               body.radius,
                               body.radius * body.flatness,
                               body.at(about, angle, body.radius) + lowered,
                               QSizeF(block.size()),
                               shares[i]};
        labels.push_back({i, spot, std::move(block)});
    }
    return labels;
}

void PieChart::drawLabels(Canvas& canvas, const PieBody& body, std::span<const double> shares,
                          std::span<const SectorSpan> spans) {
    QRectF room = QRectF(0, 0, width(), height()).adjusted(kMargin, kMargin, -kMargin, -kMargin);
    if (m_inColumns) {
        room.setTop(m_labelTop >= 0 ? m_labelTop : room.top());
        room.setBottom(m_labelBottom >= 0 ? m_labelBottom : room.bottom());
    }
    const LabelRooms rooms = roomsBeside(room, body.bounds(body.centre), textRoom().boxes());
    const std::vector<Label> labels = makeLabels(body, shares, spans, rooms);
    std::vector<SectorLabel> spots;
    for (const Label& label : labels)
        spots.push_back(label.spot);
    const std::vector<PlacedLabel> placed = m_inColumns ? sideLayout(spots, rooms, labelDistance(body))
                                                        : circleLayout(spots, rooms, labelDistance(body));
    std::vector<bool> shown;
    for (const PlacedLabel& label : placed)
        shown.push_back(label.shown && textRoom().claim(label.box));
    for (std::size_t i = 0; i < labels.size(); ++i) {
        if (!shown[i])
            continue;
        const Sector* style = styleOf(labels[i].sector);
        const Colour line = orDefault(style != nullptr ? style->joinLine() : kDefaultColour, m_joinLine);
        if (placed[i].join.size() > 1)
            canvas.polyline(placed[i].join, line, 1);
    }
    for (std::size_t i = 0; i < labels.size(); ++i) {
        if (!shown[i])
            continue;
        const QPointF corner(std::floor(placed[i].box.left()), std::floor(placed[i].box.top()));
        labels[i].text.drawAt(canvas, corner, TopLeft);
    }
}

} // namespace chartdraw
